#include "map/twilight.h"

#include <algorithm>
#include <cmath>

#include "astro/degrees.h"
#include "astro/solar.h"
#include "forms/layout.h"
#include "map/day_night.h"
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
        FormGTMain.PictureSundial.Density = Density;
        FormGTMain.PictureGTContainer.Density = Density;
        FormGTMain.PictureGT.Density = Density;
        MeasureScreen();
        ScaleMapPictures();
        FormPictures.PictureDay.Canvas();
        FormPictures.PictureDay.BackColor = Day;
        FormPictures.PictureNight.Canvas();
        FormPictures.PictureNight.BackColor = 0;
        state.SunDeclination = Declination;
        state.EquationOfTimeMapShift = static_cast<float>(ShiftPixels);
        RedrawMap();
        return FormGTMain.PictureGT.Picture;
    }
};

const std::pair<double, double> Suns[] = {{23.4393, 0.0}, {-23.4393, 7.5}, {12.0, -8.25}, {0.0, 3.0}};

TEST_F(Twilight, EachPixelHasTheLightOfItsAltitude) {
    extras.TwilightShown = True;
    for (const double Density : {1.0, 1.25}) {
        for (const auto& [Declination, Shift] : Suns) {
            const Bitmap& Map = Drawn(Density, RGB(255, 255, 255), Declination, Shift);
            double Worst = 0.0;
            for (int Y = 0; Y < Map.Height; ++Y) {
                for (int X = 0; X < Map.Width; ++X) {
                    const double Altitude = AltitudeAt((X + 0.5) / Map.Width, 80.0 - (Y + 0.5) * 150.0 / Map.Height);
                    Worst = std::max(Worst, std::abs(RedOf(Map.Row(Y)[X]) - LevelAt(Altitude)));
                }
            }
            EXPECT_LT(Worst, 2.0) << Declination << " at density " << Density;
        }
    }
}

// A pixel belongs to a line where, and only where, an altitude of a line is passed within a pixel or two.
TEST_F(Twilight, LinesAreWhereTheAltitudesAreAndCrossTheSeamWhole) {
    extras.TwilightLinesShown = True;
    for (const auto& [Declination, Shift] : Suns) {
        const Bitmap& Map = Drawn(1.0, 0, Declination, Shift);
        const auto Crosses = [&Map](int X, int Y, double Reach) {
            double Lowest = 90.0;
            double Highest = -90.0;
            for (const auto& [Right, Down] : {std::pair(-Reach, 0.0), {Reach, 0.0}, {0.0, -Reach}, {0.0, Reach}}) {
                const double Latitude = 80.0 - (Y + 0.5 + Down) * 150.0 / Map.Height;
                const double Altitude = AltitudeAt((X + 0.5 + Right) / Map.Width, Latitude);
                Lowest = std::min(Lowest, Altitude);
                Highest = std::max(Highest, Altitude);
            }
            const double Lines[] = {-0.833, -6.0, -12.0, -18.0};
            return std::any_of(std::begin(Lines), std::end(Lines),
                               [&](double Line) { return Lowest <= Line && Line <= Highest; });
        };
        const auto OnLine = [&Map](int X, int Y) { return Map.Row(Y)[X] != 0; };
        int Wrong = 0;
        for (int Y = 1; Y < Map.Height - 1; ++Y) {
            for (int X = 1; X < Map.Width - 1; ++X) {
                bool Near = false;
                for (const int Down : {-1, 0, 1}) {
                    Near = Near || OnLine(X - 1, Y + Down) || OnLine(X, Y + Down) || OnLine(X + 1, Y + Down);
                }
                Wrong += (OnLine(X, Y) && !Crosses(X, Y, 1.6)) || (Crosses(X, Y, 0.1) && !Near) ? 1 : 0;
            }
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
