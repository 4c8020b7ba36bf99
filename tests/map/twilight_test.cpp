#include "map/twilight.h"

#include <algorithm>
#include <cmath>

#include "astro/degrees.h"
#include "astro/solar.h"
#include "forms/layout.h"
#include "map/day_night.h"
#include "tests/density.h"
#include "tests/program_test.h"
#include "tests/vectors.h"

namespace gloamtide {
namespace {

// Altitude of the Sun, degrees, at a latitude and at a place between the left edge of the map, 0, and the right, 1.
double AltitudeAt(double Across, double Latitude) {
    const double HourAngle = (Across - 0.5 + 1.0 * state.EquationOfTimeMapShift / state.MapWidth) * 360.0;
    const double Sine = SinDeg(Latitude) * SinDeg(state.SunDeclination) +
                        CosDeg(Latitude) * CosDeg(state.SunDeclination) * CosDeg(HourAngle);
    return std::asin(std::clamp(Sine, -1.0, 1.0)) * 180.0 / Pi;
}

double AltitudeOf(const Bitmap& Map, int X, int Y) {  // of a pixel's middle
    return AltitudeAt((X + 0.5) / Map.Width, 80.0 - (Y + 0.5) * 150.0 / Map.Height);
}

// White by day, black by night: the level at an altitude.
double LevelAt(double Altitude) {
    const double T = std::clamp((Altitude + 18.0) / 18.5, 0.0, 1.0);
    const double Light = T * T * (3.0 - 2.0 * T);
    return 255.0 * (Light <= 0.0031308 ? 12.92 * Light : 1.055 * std::pow(Light, 1.0 / 2.4) - 0.055);
}

class Twilight : public ProgramTest {
protected:
    Twilight() {
        FormPictures.OnLoad = [] {};
        Desktop.ScreenWidth = 800;
        state.GreenwichHour = 12.0F;
    }

    // Draws the map of one colour by day and black by night under a Sun.
    static const Bitmap& Drawn(double Density, Color Day, double Declination, double ShiftPixels) {
        SetDensity(Density);
        PaintPlainMap(Day);
        state.SunDeclination = Declination;
        state.EquationOfTimeMapShift = static_cast<float>(ShiftPixels);
        RedrawMap();
        return FormGTMain.PictureGT.Picture;
    }
};

const std::pair<double, double> Suns[] = {{23.4393, 0.0}, {-23.4393, 7.5}, {12.0, -8.25}, {0.0, 3.0}};

TEST_F(Twilight, EachPixelHasTheLightOfItsAltitudeAndWithoutASunItIsNight) {
    extras.TwilightShown = True;
    for (const double Density : {1.0, 1.25}) {
        for (const auto& [Declination, Shift] : Suns) {
            const Bitmap& Map = Drawn(Density, RGB(255, 255, 255), Declination, Shift);
            double Worst = 0.0;
            for (int Pixel = 0; Pixel < Map.Width * Map.Height; ++Pixel) {
                const double Altitude = AltitudeOf(Map, Pixel % Map.Width, Pixel / Map.Width);
                Worst = std::max(Worst, std::abs(RedOf(Map.Row(0)[Pixel]) - LevelAt(Altitude)));
            }
            EXPECT_LT(Worst, 2.0) << Declination << " at density " << Density;
        }
    }
    for (const auto& [Declination, Shift] : {std::pair(std::nan(""), 0.0), {10.0, 1e30}}) {
        const Bitmap& Map = Drawn(1.0, RGB(255, 255, 255), Declination, Shift);
        EXPECT_EQ(std::count(Map.Pixels.begin(), Map.Pixels.end(), 0U), std::ssize(Map.Pixels)) << Declination;
    }
}

// A pixel of a line has its altitude to a pixel or two, and each pixel of an altitude has one beside it.
TEST_F(Twilight, LinesAreWhereTheAltitudesAreAndCrossTheSeamWhole) {
    extras.TwilightLinesShown = True;
    for (const auto& [Declination, Shift] : Suns) {
        const Bitmap& Map = Drawn(1.0, 0, Declination, Shift);
        int Wrong = 0;
        for (int Pixel = 0; Pixel < Map.Width * (Map.Height - 2); ++Pixel) {
            const int X = Pixel % Map.Width;
            const int Y = Pixel / Map.Width + 1;
            double Apart = 90.0;
            for (const double Line : {-0.833, -6.0, -12.0, -18.0}) {
                Apart = std::min(Apart, std::abs(AltitudeOf(Map, X, Y) - Line));
            }
            const auto OnLine = [&](int Right, int Down) {
                return Map.Row(Y + Down)[(X + Right + Map.Width) % Map.Width] != 0;
            };
            const bool Beside = OnLine(1, 0) || OnLine(-1, 0) || OnLine(0, 1) || OnLine(0, -1);
            Wrong += OnLine(0, 0) ? Apart > 0.8 : Apart < 0.05 && !Beside;
        }
        EXPECT_EQ(Wrong, 0) << Declination;
    }
}

TEST_F(Twilight, TheAltitudeIsThatOfAnAlmanac) {
    Desktop.ScreenWidth = 1280;
    MeasureScreen();
    for (const VectorRow& R : ReadVectors("published_twilight")) {
        state.CurrentJD = R.In["CurrentJD"];
        SolarPosition();
        const double LocalMeanTime = state.CurrentJD + 0.5 + R.In["LocationLong"] / 360.0;  // days
        EXPECT_NEAR(AltitudeAt(LocalMeanTime - std::floor(LocalMeanTime), R.In["LocationLat"]), -6.0, 0.1) << R.Where;
    }
}

}  // namespace
}  // namespace gloamtide
