#include "surface/picture_surface.h"

#include <set>

#include "tests/program_test.h"

namespace gloamtide {
namespace {

constexpr Color White = RGB(255, 255, 255);
constexpr Color Red = RGB(255, 0, 0);

struct SurfaceForm : Form {
    SurfaceForm() : Form("SurfaceForm", 0.0, 0.0) { ScalePixels(); }
    PictureSurface Canvas{*this, "Canvas"};
    PictureSurface Other{*this, "Other"};
};

using Pixels = std::set<std::pair<int, int>>;

class Surface : public testing::Test {
protected:
    Surface() {
        for (PictureSurface* Each : {&S, &O}) {
            Each->Size(40, 30);
            Each->BackColor = 0;
            Each->ScalePixels();
        }
        Bitmap& From = O.Canvas();
        for (int Y = 0; Y < From.Height; ++Y) {
            for (int X = 0; X < From.Width; ++X) From.Row(Y)[X] = RGB(X + 1, Y + 1, 7);
        }
    }

    // The pixels of the canvas that are not black, which is then cleared.
    Pixels Taken() {
        Pixels Result;
        const Bitmap& Picture = S.Canvas();
        for (int Y = 0; Y < Picture.Height; ++Y) {
            for (int X = 0; X < Picture.Width; ++X) {
                if (Picture.Row(Y)[X] != 0) Result.insert({X, Y});
            }
        }
        S.BackColor = 0;
        return Result;
    }

    HeadlessHost Desktop;
    SurfaceForm Forms;
    PictureSurface& S = Forms.Canvas;
    PictureSurface& O = Forms.Other;
};

TEST_F(Surface, ALineIncludesBothEndsAndIsTheSameBothWays) {
    const int Ends[][4] = {{3, 4, 20, 9}, {5, 25, 8, 2}, {7, 7, 7, 7}, {2, 3, 2, 20}, {30, 5, 1, 5}, {0, 0, 29, 29}};
    for (const auto& E : Ends) {
        S.Line(E[0], E[1], E[2], E[3], White);
        const Pixels Forth = Taken();
        EXPECT_TRUE(Forth.contains({E[0], E[1]}) && Forth.contains({E[2], E[3]}));
        EXPECT_EQ(Forth.size(), static_cast<std::size_t>(std::max(std::abs(E[2] - E[0]), std::abs(E[3] - E[1])) + 1));
        S.LineTo(E[0], E[1], White);
        EXPECT_EQ(Taken(), Forth);
    }
}

// What is seen of a line must not depend on how much of it lies outside.
TEST_F(Surface, ClippingMovesNoPixel) {
    const double Ends[][4] = {{-50, -20, 90, 47}, {-13, 60, 45, -31}, {20, -1000, 25, 2000}, {-100000, 3, 300000, 29}};
    for (const auto& E : Ends) {
        S.Line(E[0], E[1], E[2], E[3], White);
        const Pixels Seen = Taken();
        ASSERT_FALSE(Seen.empty());
        for (const auto& [X, Y] : Seen) {  // half a pixel from the true line, along the shorter axis
            const double Dx = E[2] - E[0];
            const double Dy = E[3] - E[1];
            const double Off = std::abs((X - E[0]) * Dy - (Y - E[1]) * Dx) / std::max(std::abs(Dx), std::abs(Dy));
            EXPECT_LE(Off, 0.5 + 1e-9);
        }
        S.Size(80, 30);  // the same line on a wider surface, of which the canvas is the left part
        S.Line(E[0], E[1], E[2], E[3], White);
        Pixels Wider = Taken();
        EXPECT_EQ(S.Picture.Width, 80);
        std::erase_if(Wider, [](const auto& P) { return P.first >= 40; });
        EXPECT_EQ(Seen, Wider);
        S.Size(40, 30);
    }
}

TEST_F(Surface, PointsAndStepsFollowTheUserScale) {
    S.Scale(40.0, 80.0, 0.0, -70.0);  // a map 40 pixels wide: X runs to the left, Y upward
    S.PSet(40.0, 80.0, Red);
    S.PSetStep(-3.0, -50.0, Red);
    EXPECT_EQ(S.Point(37.0, 30.0), static_cast<long>(Red));
    EXPECT_EQ(S.Point(1.0, 80.0), 0);
    // X 0 is the right edge itself, beyond the last column.
    for (const auto& [X, Y] : {std::pair(0.0, 0.0), std::pair(20.0, 80.1), std::pair(20.0, -70.0), std::pair(40.1, 0.0),
                               std::pair(std::nan(""), 0.0)}) {
        EXPECT_EQ(S.Point(X, Y), -1) << X << ", " << Y;
    }
}

// What a host has to show again: all that changes, whatever draws.
TEST_F(Surface, AnObserverHearsOfEveryPixelThatChanges) {
    struct Listener : ElementObserver {
        Pixels Told;
        void ElementChanged(Element&) override {}
        void PictureDrawn(int Left, int Top, int Right, int Bottom) override {
            for (int Y = Top; Y <= Bottom; ++Y) {
                for (int X = Left; X <= Right; ++X) Told.insert({X, Y});
            }
        }
    };
    const std::function<void()> Drawings[] = {
        [this] { S.Line(3, 4, 50, 21, White); },
        [this] { S.Line(3, 4, 20, 21, White, LineForm::Box); },
        [this] { S.Line(3, 4, 20, 21, White, LineForm::BoxFilled); },
        [this] { S.PSet(7, 8, White); },
        [this] { S.Circle(20, 15, 9, White, 1.6); },
        [this] { S.Arc(20, 15, 9, White, 1.0, 3.0); },
        [this] { S.Print("noon"); },
        [this] { S.SetPicture(O.Picture); },
        [this] { BitBlt(S, 5, 20, 9, -7, O, 3, 20); },
        [this] { StretchBlt(S, -3, 5, 30, 20, O, 1, 2, 9, 9); },
        [this] { S.BackColor = Red; },
    };
    S.ForeColor = White;
    S.FillStyle = FillStyles::Solid;
    for (const auto& Draw : Drawings) {
        Listener Hears;
        S.Observer = &Hears;
        Draw();
        S.Observer = nullptr;
        const Pixels Changed = Taken();
        SCOPED_TRACE(&Draw - Drawings);
        EXPECT_FALSE(Changed.empty());
        EXPECT_TRUE(std::includes(Hears.Told.begin(), Hears.Told.end(), Changed.begin(), Changed.end()));
    }
}

TEST_F(Surface, NoArgumentHarms) {
    const double Infinity = std::numeric_limits<double>::infinity();
    const double Odd[] = {0.0, -1.0, 39.5, 1e6, -1e18, 1e300, Infinity, -Infinity, std::nan("")};
    S.FillStyle = FillStyles::Solid;
    for (const int Size : {40, 0}) {
        S.Size(Size, Size);
        for (std::size_t Each = 0; Each < std::size(Odd) * std::size(Odd); ++Each) {
            const double A = Odd[Each / std::size(Odd)];
            const double B = Odd[Each % std::size(Odd)];
            S.Line(A, B, B, A, White);
            S.Line(A, 3.0, 7.0, B, White, LineForm::Box);
            S.Line(A, B, 7.0, 3.0, White, LineForm::BoxFilled);
            S.PSet(A, B, White);
            S.PSetStep(A, B, White);
            S.Circle(A, 5.0, B, White, 1.3);
            S.Circle(5.0, B, 3.0, White, A);
            S.Arc(5.0, 5.0, A, White, B, 1.0);
            S.CurrentX = A;
            S.CurrentY = B;
            S.Print("noon");
            S.Scale(A, B, B, A);
            ASSERT_TRUE(std::isnormal(S.ScaleX.Units) && std::isfinite(S.ScaleX.Origin)) << A << ", " << B;
        }
    }
    EXPECT_EQ(S.Point(0, 0), -1);
}

// What stretches a picture is held by the boards in tests/data/pictures.
TEST_F(Surface, TransfersAreClippedAtBothSurfacesAndNeverFlipped) {
    constexpr int Highest = std::numeric_limits<int>::max();
    S.Scale(956.0, 80.0, 0.0, -70.0);  // has no say
    for (const VectorRow& R : ReadVectors("transfers")) {
        SCOPED_TRACE(R.Where);
        const auto In = [&R](const char* Name) { return R.In.Whole(Name); };
        BitBlt(S, In("X"), In("Y"), In("Width"), In("Height"), O, In("SourceX"), In("SourceY"));
        const Color Seen = S.Canvas().Row(R.Out.Whole("SeenY"))[R.Out.Whole("SeenX")];
        R.Expect({{"Red", RedOf(Seen)}, {"Green", GreenOf(Seen)}, {"Count", Taken().size()}});
    }
    const int Odd[] = {std::numeric_limits<int>::min(), -5, 0, 3, 1000000, Highest};
    for (const int A : Odd) {
        for (const int B : Odd) {
            BitBlt(S, Highest, A, Highest, B, O, B, Highest);
            BitBlt(S, Odd[0], A, Odd[0], Odd[0], O, B, Odd[0]);
            EXPECT_TRUE(Taken().empty());
            StretchBlt(S, A, B, B, A, O, B, A, A, B);
            StretchBlt(S, 0, 0, 10, 10, O, A, A, B, B);
            StretchBlt(S, A, A, B, B, O, 0, 0, 10, 10);
            Taken();
        }
    }
    BitBlt(O, 3, 2, 30, 20, O, 0, 0);  // within itself
    EXPECT_EQ(O.Picture.Row(21)[32], RGB(30, 20, 7));
    EXPECT_EQ(O.Picture.Row(2)[3], RGB(1, 1, 7));
}

TEST_F(Surface, LightIsAveragedAndAFlatColourStaysFlat) {
    O.BackColor = 0;
    O.Line(0, 0, 0, 29, RGB(200, 100, 50), LineForm::BoxFilled);
    O.Line(30, 0, 39, 29, RGB(0, 119, 225), LineForm::BoxFilled);
    StretchBlt(S, 0, 0, 20, 30, O, 0, 0, 40, 30, Averaging::Light);
    EXPECT_EQ(S.Picture.Row(3)[0], RGB(146, 71, 34)) << "half the light of 200, 100, 50 by IEC 61966-2-1";
    EXPECT_EQ(S.Picture.Row(3)[17], RGB(0, 119, 225));
}

}  // namespace
}  // namespace gloamtide
