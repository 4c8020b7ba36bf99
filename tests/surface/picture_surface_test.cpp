#include "surface/picture_surface.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <set>
#include <utility>

#include "platform/headless/headless_host.h"

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
        for (PictureSurface* Each : {&Forms.Canvas, &Forms.Other}) {
            Each->Size(40, 30);
            Each->BackColor = 0;
            Each->ScalePixels();
        }
    }

    // The pixels of the canvas that are not black, which is then cleared.
    Pixels Taken() {
        Pixels Result;
        const Bitmap& Picture = Forms.Canvas.Canvas();
        for (int Y = 0; Y < Picture.Height; ++Y) {
            for (int X = 0; X < Picture.Width; ++X) {
                if (Picture.Row(Y)[X] != 0) Result.insert({X, Y});
            }
        }
        Forms.Canvas.BackColor = 0;
        return Result;
    }

    HeadlessHost Desktop;
    SurfaceForm Forms;
    PictureSurface& S = Forms.Canvas;
};

TEST_F(Surface, ColoursHaveRedInTheLowByte) {
    EXPECT_EQ(RGB(255, 224, 192), 12640511U);
    EXPECT_EQ(QBColor(0), 0U);
    EXPECT_EQ(QBColor(8), 8421504U);
    EXPECT_EQ(QBColor(14), RGB(255, 255, 0));
    EXPECT_EQ(QBColor(15), White);
    EXPECT_EQ(QBColor(-1), 0U);
    EXPECT_EQ(QBColor(16), 0U);
}

TEST_F(Surface, ALineIncludesBothEndsAndIsTheSameBothWays) {
    const int Ends[][4] = {{3, 4, 20, 9}, {5, 25, 8, 2}, {7, 7, 7, 7}, {2, 3, 2, 20}, {30, 5, 1, 5}, {0, 0, 29, 29}};
    for (const auto& E : Ends) {
        S.Line(E[0], E[1], E[2], E[3], White);
        EXPECT_EQ(S.CurrentX, E[2]);
        EXPECT_EQ(S.CurrentY, E[3]);
        const Pixels Forth = Taken();
        EXPECT_TRUE(Forth.contains({E[0], E[1]}) && Forth.contains({E[2], E[3]}));
        EXPECT_EQ(Forth.size(), static_cast<std::size_t>(std::max(std::abs(E[2] - E[0]), std::abs(E[3] - E[1])) + 1));
        S.Line(E[2], E[3], E[0], E[1], White);
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
        S.Size(80, 60);  // the same line on a larger surface, of which the canvas is the upper left part
        S.Line(E[0], E[1], E[2], E[3], White);
        Pixels Larger = Taken();
        std::erase_if(Larger, [](const auto& P) { return P.first >= 40 || P.second >= 30; });
        EXPECT_EQ(Seen, Larger);
        S.Size(40, 30);
    }
}

TEST_F(Surface, DottedLinesDotEvenly) {
    S.DrawStyle = DrawStyles::Dotted;
    S.Line(0, 10, 39, 10, White);
    const Pixels Dots = Taken();
    ASSERT_GT(Dots.size(), 10U);
    int Last = Dots.begin()->first;
    for (auto Each = std::next(Dots.begin()); Each != Dots.end(); ++Each) {
        EXPECT_EQ(Each->first - Last, 3);
        Last = Each->first;
    }
    S.Line(-300, 10, 39, 10, White);
    EXPECT_EQ(Taken(), Dots) << "300 is a multiple of the dots' distance";
}

TEST_F(Surface, BoxesTakeTheirCornersInAnyOrder) {
    S.Line(10, 12, 4, 5, White, LineForm::BoxFilled);
    EXPECT_EQ(Taken().size(), 7U * 8U);
    S.Line(4, 5, 10, 12, White, LineForm::Box);
    const Pixels Outline = Taken();
    EXPECT_EQ(Outline.size(), 7U * 8U - 5U * 6U);
    EXPECT_FALSE(Outline.contains({5, 6}));
    S.Line(-1e9, -1e9, 1e9, 1e9, White, LineForm::BoxFilled);
    EXPECT_EQ(Taken().size(), 40U * 30U);
    S.DrawWidth = 2;
    S.PSet(20, 20, White);
    EXPECT_EQ(Taken().size(), 4U);
}

TEST_F(Surface, PointsAndStepsFollowTheUserScale) {
    S.Scale(40.0, 80.0, 0.0, -70.0);  // a map 40 pixels wide: X runs to the left, Y upward
    EXPECT_DOUBLE_EQ(S.ScaleWidth(), -40.0);
    S.PSet(40.0, 80.0, Red);
    EXPECT_EQ(S.Point(40.0, 80.0), static_cast<long>(Red));
    EXPECT_EQ(S.Picture.Row(0)[0], Red);
    S.PSetStep(-3.0, -50.0, Red);
    EXPECT_EQ(S.Picture.Row(10)[3], Red);
    EXPECT_EQ(S.Point(0.0, 0.0), -1) << "X 0 is the right edge itself, beyond the last column";
    EXPECT_EQ(S.Point(1.0, 80.0), 0);
    EXPECT_EQ(S.Point(20.0, 80.1), -1);
    EXPECT_EQ(S.Point(20.0, -70.0), -1);
    EXPECT_EQ(S.Point(std::nan(""), 0.0), -1);
}

TEST_F(Surface, DiscsAreRoundAndSymmetrical) {
    S.FillStyle = FillStyles::Solid;
    S.FillColor = White;
    for (const double Radius : {1.0, 1.182, 2.0, 3.0, 5.0, 7.0, 11.5}) {
        SCOPED_TRACE(Radius);
        S.Circle(20, 15, Radius, Red);
        EXPECT_EQ(S.CurrentX, 20.0);
        const Pixels Disc = Taken();
        for (const auto& [X, Y] : Disc) {
            EXPECT_TRUE(Disc.contains({40 - X, Y}) && Disc.contains({X, 30 - Y}) && Disc.contains({Y + 5, X - 5}));
            EXPECT_LT(std::hypot(X - 20, Y - 15), Radius + 0.5);
        }
        const double Area = std::acos(-1.0) * Radius * Radius;
        EXPECT_GT(static_cast<double>(Disc.size()), Area);
        EXPECT_LT(static_cast<double>(Disc.size()), Area + 2.0 * std::acos(-1.0) * Radius + 1.0);
    }
    for (const double Small : {0.0, 0.45, 0.99, -0.5}) {
        S.Circle(20, 15, Small, Red);
        EXPECT_EQ(Taken(), (Pixels{{20, 15}})) << Small;
    }
    S.Circle(20, 15, 8, Red);
    EXPECT_EQ(S.Point(20, 15), static_cast<long>(White));
    EXPECT_EQ(S.Point(28, 15), static_cast<long>(Red));
    const Pixels Filled = Taken();
    S.FillStyle = FillStyles::Transparent;
    S.Circle(20, 15, 8, Red);
    const Pixels Outline = Taken();
    EXPECT_LT(Outline.size(), Filled.size());
    for (const auto& P : Outline) EXPECT_TRUE(Filled.contains(P));
}

TEST_F(Surface, EllipsesAndArcs) {
    S.FillStyle = FillStyles::Solid;
    S.Circle(20, 15, 10, White, 2.0);  // twice as high as wide
    S.FillColor = White;
    S.Circle(20, 15, 10, White, 2.0);
    Pixels Ellipse = Taken();
    EXPECT_TRUE(Ellipse.contains({20, 25}) && Ellipse.contains({25, 15}));
    EXPECT_FALSE(Ellipse.contains({26, 15}) || Ellipse.contains({20, 26}));
    const double Pi = std::acos(-1.0);
    S.Arc(20, 15, 10, White, 0.59 * Pi, 1.41 * Pi);
    for (const auto& [X, Y] : Taken()) EXPECT_LT(X, 20) << Y;
    S.Arc(20, 15, 10, White, 1.59 * Pi, 0.41 * Pi);  // through 0
    for (const auto& [X, Y] : Taken()) EXPECT_GT(X, 20) << Y;
    S.Arc(20, 15, 10, White, 0.0, 0.5 * Pi);
    for (const auto& [X, Y] : Taken()) EXPECT_TRUE(X >= 20 && Y <= 15);  // counter-clockwise on the screen
}

TEST_F(Surface, NoArgumentHarms) {
    const double Infinity = std::numeric_limits<double>::infinity();
    const double Odd[] = {0.0, -1.0, 39.5, 1e6, -1e18, 1e300, Infinity, -Infinity, std::nan("")};
    S.FillStyle = FillStyles::Solid;
    for (const double A : Odd) {
        for (const double B : Odd) {
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
        }
    }
    S.Size(0, 0);
    S.Line(0, 0, 10, 10, White);
    S.Circle(0, 0, 10, White);
    S.Print("noon");
    EXPECT_EQ(S.Point(0, 0), -1);
}

TEST_F(Surface, TextStandsWithItsTopLeftAtTheCurrentPoint) {
    S.ForeColor = Red;
    S.FontSize = 6.0;  // the headless host's letters: 4 by 8 pixels
    S.CurrentX = 3.0;
    S.CurrentY = 2.0;
    S.Print("1 2");
    EXPECT_DOUBLE_EQ(S.TextWidth("00"), 8.0);
    EXPECT_DOUBLE_EQ(S.TextHeight("00"), 8.0);
    EXPECT_DOUBLE_EQ(S.CurrentY, 10.0);
    const Pixels Text = Taken();
    EXPECT_EQ(Text.size(), 2U * 4U * 8U);
    EXPECT_TRUE(Text.contains({3, 2}) && Text.contains({14, 9}));
    EXPECT_FALSE(Text.contains({7, 2}));
}

TEST_F(Surface, SettingTheBackgroundClears) {
    S.PSet(5, 5, White);
    S.BackColor = 0;  // the colour that it has already
    EXPECT_TRUE(Taken().empty());
}

// --- block transfers

class Transfer : public Surface {
protected:
    Transfer() {
        Bitmap& From = Forms.Other.Canvas();
        for (int Y = 0; Y < From.Height; ++Y) {
            for (int X = 0; X < From.Width; ++X) From.Row(Y)[X] = RGB(X + 1, Y + 1, 7);
        }
    }
};

TEST_F(Transfer, CopiesPixelsWhateverTheScale) {
    S.Scale(956.0, 80.0, 0.0, -70.0);
    BitBlt(S, 5, 6, 10, 8, Forms.Other, 20, 3);
    EXPECT_EQ(S.Picture.Row(6)[5], RGB(21, 4, 7));
    EXPECT_EQ(S.Picture.Row(13)[14], RGB(30, 11, 7));
    EXPECT_EQ(Taken().size(), 80U);
}

TEST_F(Transfer, ANegativeHeightTakesTheRowsAboveUnflipped) {
    BitBlt(S, 0, 10, 5, -3, Forms.Other, 0, 10);
    EXPECT_EQ(S.Picture.Row(9)[0], RGB(1, 10, 7));
    EXPECT_EQ(S.Picture.Row(7)[0], RGB(1, 8, 7));
    EXPECT_EQ(Taken().size(), 15U);
}

TEST_F(Transfer, ClipsAtBothSurfaces) {
    BitBlt(S, -3, 28, 10, 10, Forms.Other, 2, 0);
    EXPECT_EQ(S.Picture.Row(28)[0], RGB(6, 1, 7));
    EXPECT_EQ(Taken().size(), 7U * 2U);
    BitBlt(S, 0, 0, 10, 10, Forms.Other, -4, 25);
    EXPECT_EQ(S.Picture.Row(0)[4], RGB(1, 26, 7));
    EXPECT_EQ(Taken().size(), 6U * 5U);
    const int Lowest = std::numeric_limits<int>::min();
    const int Highest = std::numeric_limits<int>::max();
    for (const int Odd : {0, Lowest, Highest, -1}) {
        BitBlt(S, Odd, Odd, 0, 10, Forms.Other, 0, 0);
        BitBlt(S, Highest, 0, Highest, Odd, Forms.Other, Odd, Highest);
        BitBlt(S, Lowest, Odd, Lowest, Lowest, Forms.Other, Odd, Lowest);
    }
    EXPECT_TRUE(Taken().empty());
    BitBlt(S, 0, 0, Highest, Highest, Forms.Other, 0, 0);
    EXPECT_EQ(Taken().size(), 40U * 30U);
}

TEST_F(Transfer, MovesAPictureWithinItself) {
    PictureSurface& O = Forms.Other;
    BitBlt(O, 3, 2, 30, 20, O, 0, 0);
    EXPECT_EQ(O.Picture.Row(21)[32], RGB(30, 20, 7));
    EXPECT_EQ(O.Picture.Row(2)[3], RGB(1, 1, 7));
}

TEST_F(Transfer, StretchingKeepsFlatColoursFlatAndSizesOneToOneExact) {
    StretchBlt(S, 0, 0, 40, 30, Forms.Other, 0, 0, 40, 30);
    EXPECT_EQ(S.Picture.Pixels, Forms.Other.Picture.Pixels);
    Forms.Other.BackColor = RGB(0, 119, 225);
    for (const auto& [W, H] : {std::pair(40, 30), std::pair(39, 17), std::pair(7, 29), std::pair(400, 300)}) {
        StretchBlt(S, 0, 0, W, H, Forms.Other, 1, 1, 23, 19);
        for (int Y = 0; Y < std::min(H, 30); ++Y) {
            for (int X = 0; X < std::min(W, 40); ++X) ASSERT_EQ(S.Picture.Row(Y)[X], RGB(0, 119, 225));
        }
    }
}

TEST_F(Transfer, ShrinkingWeighsByArea) {
    PictureSurface& O = Forms.Other;
    O.BackColor = 0;
    O.Line(0, 0, 0, 29, RGB(200, 100, 50), LineForm::BoxFilled);
    StretchBlt(S, 0, 0, 16, 30, O, 0, 0, 40, 30);  // 2.5 columns become one
    EXPECT_EQ(S.Picture.Row(3)[0], RGB(80, 40, 20));
    EXPECT_EQ(S.Picture.Row(3)[1], 0U);
}

TEST_F(Transfer, EnlargingRunsEvenlyFromPixelToPixel) {
    PictureSurface& O = Forms.Other;
    O.BackColor = 0;
    O.PSet(1, 0, RGB(100, 100, 100));
    StretchBlt(S, 0, 0, 8, 4, O, 0, 0, 2, 1);
    const int Expected[] = {0, 0, 13, 38, 63, 88, 100, 100};  // eighths: 0, 0, 1, 3, 5, 7, 8, 8
    for (int X = 0; X < 8; ++X) EXPECT_NEAR(RedOf(S.Picture.Row(2)[X]), Expected[X], 1) << X;
}

TEST_F(Transfer, StretchingClipsAndTakesAnyArgument) {
    StretchBlt(S, -10, -10, 80, 60, Forms.Other, 0, 0, 40, 30);
    EXPECT_NEAR(RedOf(S.Picture.Row(0)[0]), 6, 1);
    const int Odd[] = {std::numeric_limits<int>::min(), -5, 0, 3, 1000000, std::numeric_limits<int>::max()};
    for (const int A : Odd) {
        for (const int B : Odd) {
            StretchBlt(S, A, B, B, A, Forms.Other, B, A, A, B);
            StretchBlt(S, 0, 0, 10, 10, Forms.Other, A, A, B, B);
            StretchBlt(S, A, A, B, B, Forms.Other, 0, 0, 10, 10);
        }
    }
    StretchBlt(S, 0, 0, 40, 30, S, 0, 0, 10, 10);
}

}  // namespace
}  // namespace gloamtide
