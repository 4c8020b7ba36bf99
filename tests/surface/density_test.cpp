#include "tests/density.h"

#include <tuple>

#include "surface/picture_surface.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

constexpr double Densities[] = {1.15, 1.25, 1.5, 2.0, 3.0};
constexpr Color White = RGB(255, 255, 255);

struct Density : testing::Test {
    HeadlessHost Desktop;
    Form Window{"Window", 0.0, 0.0};

    // Black, in units of pixels.
    void Prepare(PictureSurface& Surface, double At, int Across, int Down) {
        Window.ScalePixels();
        Surface.Size(Across, Down);
        Surface.ScalePixels();
        Surface.Density = At;
        Surface.BackColor = 0;
        Surface.Canvas();
    }
};

TEST_F(Density, WhatIsNoneIsNotTakenAndOnlyAChangeIsAnEvent) {
    PictureSurface Surface{Window, "Surface"};
    Prepare(Surface, 1.0, 1182, 640);
    int Events = 0;
    Surface.DensityChanged = [&] { ++Events; };
    for (const double None : {0.0, -2.0, 0.2, 8.1, 1e300, std::nan("")}) Surface.Density = None;
    Surface.Density = 1.0;
    EXPECT_EQ(Surface.Density, 1.0);
    EXPECT_EQ(Events, 0);
    Surface.Density = 1.25;
    EXPECT_EQ(Events, 1);
    EXPECT_EQ(Surface.Canvas().Width, 1478);  // 1477.5
    EXPECT_EQ(Surface.Canvas().Height, 800);
}

void DrawEverything(PictureSurface& Surface) {
    Surface.Line(3.3, 2.6, 3.3, 90.2, White);
    Surface.Line(10.8, 5.1, 60.4, 30.9, White);
    Surface.DrawWidth = 2;
    Surface.Line(70.0, 5.0, 110.0, 30.0, White, LineForm::Box);
    Surface.DrawWidth = 1;
    Surface.Line(75.2, 10.7, 100.9, 20.1, White, LineForm::BoxFilled);
    Surface.DrawStyle = DrawStyles::Dotted;
    Surface.Line(10.0, 40.0, 110.0, 40.0, White);
    Surface.DrawStyle = DrawStyles::Solid;
    Surface.PSet(12.4, 50.7, White);
    Surface.Circle(20.5, 50.5, 0.45, White);
    Surface.FillStyle = FillStyles::Transparent;
    Surface.Circle(40.3, 60.8, 12.0, White);
    Surface.Arc(75.5, 60.5, 12.0, White, 1.0, 4.0);
    Surface.FillStyle = FillStyles::Solid;
    Surface.FillColor = RGB(200, 0, 0);
    Surface.Circle(105.1, 60.4, 14.0, White, 1.6);
    Surface.CurrentX = 10.0;
    Surface.CurrentY = 80.0;
    Surface.ForeColor = White;
    Surface.Print("Now or never");
}

std::ptrdiff_t WhiteIn(const PictureSurface& Surface, double Y, int Left, int Right) {
    const int Side = static_cast<int>(Surface.Density);
    const Color* Row = Surface.Picture.Row(static_cast<int>(Y * Side));
    return std::count(Row + std::ptrdiff_t{Left} * Side, Row + std::ptrdiff_t{Right} * Side, White);
}

TEST_F(Density, AllLooksTheSameOnlyFiner) {
    PictureSurface Coarse{Window, "Coarse"};
    Prepare(Coarse, 1.0, 120, 100);
    DrawEverything(Coarse);
    PictureSurface Fine{Window, "Fine"};
    for (const int At : {2, 3}) {
        Prepare(Fine, At, 120, 100);
        DrawEverything(Fine);
        // What runs through row 40, dots and blanks, and through the middle of a circle: an outline, twice.
        for (const auto& [Y, Left, Right] : {std::tuple(40.2, 0, 119), {60.8, 25, 55}}) {
            EXPECT_EQ(WhiteIn(Fine, Y, Left, Right), At * WhiteIn(Coarse, Y, Left, Right)) << Y << " at " << At;
        }
        EXPECT_EQ(PixelsApart(Coarse.Picture, Fine.Picture, At, 0), 0) << At;
    }
    EXPECT_EQ(Fine.TextWidth("00"), Coarse.TextWidth("00"));
    EXPECT_EQ(Fine.TextHeight("00"), Coarse.TextHeight("00"));
}

TEST_F(Density, BoxesAndBlocksThatMeetLeaveNoGap) {
    PictureSurface Surface{Window, "Surface"};
    PictureSurface Source{Window, "Source"};
    for (const double At : Densities) {
        Prepare(Surface, At, 118, 10);
        for (double Left = 0.1; Left < 118.0; Left += 7.3) {
            Surface.Line(Left, 0.0, Left + 6.3, 10.0, White - static_cast<Color>(Left), LineForm::BoxFilled);
        }
        const Bitmap& Boxes = Surface.Picture;
        EXPECT_EQ(std::count(Boxes.Pixels.begin(), Boxes.Pixels.end(), 0U), 0) << At;
        EXPECT_EQ(Boxes.Row(0)[static_cast<int>(7.4 * At)], White - 7) << At << ": a box keeps what is its own";

        Prepare(Source, At, 118, 10);
        Source.BackColor = White;
        Prepare(Surface, At, 118, 10);
        for (int Left = 0; Left < 118; Left += 7) BitBlt(Surface, Left, 0, 7, 10, Source, Left, 0);
        EXPECT_EQ(Surface.Picture.Pixels, Source.Picture.Pixels) << At;
    }
}

TEST_F(Density, TurningLosesNoColumnAndShowsNoSeam) {
    PictureSurface Source{Window, "Source"};
    PictureSurface Turned{Window, "Turned"};
    for (const double At : Densities) {
        Prepare(Source, At, 1182, 2);
        Prepare(Turned, At, 1182, 2);
        const int Columns = Source.Canvas().Width;
        for (int Column = 0; Column < 2 * Columns; ++Column) Source.Picture.Row(0)[Column] = static_cast<Color>(Column);
        for (const int Shift : {0, 1, 7, 333, 591, 1181, 1182}) {
            for (const int From : {-5, 300}) {  // in two pieces
                BitBltTurned(Turned, From, 0, From < 0 ? 305 : 2 * Columns, 2, Source, Shift);
            }
            const int Moved = static_cast<int>(std::lround(Shift * At));
            for (int Column = 0; Column < Columns; ++Column) {
                ASSERT_EQ(Turned.Picture.Row(0)[Column], Source.Picture.Row(0)[(Column + Moved) % Columns])
                    << At << " turned by " << Shift;
            }
            ASSERT_EQ(Turned.Picture.Row(1)[0], Source.Picture.Row(1)[Moved % Columns]);
        }
    }
}

}  // namespace
}  // namespace gloamtide
