#include "map/sun_overlays.h"

#include <cmath>

#include "clock/clock.h"
#include "map/day_night.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

class SunOverlays : public ProgramTest {
protected:
    SunOverlays() {
        Desktop.ScreenWidth = 1280;
        Desktop.System = {2026, 2, 3, 11, 12, 0, 0, 0};  // the Sun is latest: 14 minutes behind the clock
        Start();
        FormPictures.PictureNightSplit.BackColor = 0;
    }

    static std::vector<std::pair<int, int>> PixelsOf(Color Wanted) {
        const Bitmap& Map = FormPictures.PictureNightSplit.Picture;
        std::vector<std::pair<int, int>> Found;
        for (int Y = 0; Y < Map.Height; ++Y) {
            for (int X = 0; X < Map.Width; ++X) {
                if (Map.Row(Y)[X] == Wanted) Found.emplace_back(X, Y);
            }
        }
        return Found;
    }
};

TEST_F(SunOverlays, TheMarkerIsADiscWithEightRaysWhereTheSunIs) {
    DrawSunMarker();
    const auto Yellow = PixelsOf(RGB(255, 255, 0));
    double X = 0.0;
    double Y = 0.0;
    for (const auto& [Px, Py] : Yellow) {
        X += Px;
        Y += Py;
    }
    const double Count = static_cast<double>(Yellow.size());
    // 14.2 minutes behind the clock: right of the middle by 1182 / 1440 pixels a minute; declination about -14.
    EXPECT_NEAR(X / Count, 591.0 + 14.2 * 1182.0 / 1440.0, 1.5);
    EXPECT_NEAR(Y / Count, (80.0 + 14.0) / 150.0 * 640.0, 2.0);
    EXPECT_GT(Count, 3.14 * 49.0);
    EXPECT_LT(Count, 3.14 * 64.0);
    int Rays = 0;
    for (const auto& [Px, Py] : Yellow) Rays += std::hypot(Px - X / Count, Py - Y / Count) > 8.0 ? 1 : 0;
    EXPECT_EQ(Rays, 8);
}

TEST_F(SunOverlays, TheAnalemmaIsAFigureOfEightAboutTheMiddle) {
    DrawAnalemma();
    const auto Dots = PixelsOf(RGB(255, 255, 255));
    EXPECT_GE(Dots.size(), 33U);
    EXPECT_LE(Dots.size(), 37U);
    int Left = 0;
    for (const auto& [X, Y] : Dots) {
        EXPECT_NEAR(X, 591, 16);
        EXPECT_NEAR(Y, 80.0 / 150.0 * 640.0, 23.5 / 150.0 * 640.0 + 1.0);
        Left += X < 591 ? 1 : 0;
    }
    EXPECT_GT(Left, 10);
    EXPECT_GT(static_cast<int>(Dots.size()) - Left, 10);
}

TEST_F(SunOverlays, TheLitSpanIsCentredOnTheMarker) {
    state.ShowSun = True;
    RedrawMap();
    const double Middle = (state.StripLeftX + state.StripRightX) / 2.0;
    double X = 0.0;
    const auto Yellow = PixelsOf(RGB(255, 255, 0));
    for (const auto& [Px, Py] : Yellow) X += Px;
    EXPECT_NEAR(X / static_cast<double>(Yellow.size()), Middle, 1.0);
}

}  // namespace
}  // namespace gloamtide
