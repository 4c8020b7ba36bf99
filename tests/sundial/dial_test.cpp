#include "sundial/dial.h"

#include <cmath>
#include <limits>

#include "astro/solar.h"
#include "clock/clock.h"
#include "map/day_night.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

const double Radian = std::acos(-1.0) / 180.0;

class Dial : public ProgramTest {
protected:
    Dial() {
        Desktop.ScreenWidth = 1280;
        Start();
        state.ShowSundial = True;
    }

    static void SetCorrections(Boolean On) {
        state.SundialLongitudeCorrection = state.SundialEOTCorrection = state.SundialDSTCorrection = On;
    }

    // An instant on the location's clock, and the dial that belongs to it.
    static void DrawAt(double Lat, float Long, float Zone, double LocalJD) {
        state.LocationLat = Lat;
        state.LocationLong = Long;
        state.ZoneHours = Zone;
        state.CurrentJD = LocalJD + Zone / 24.0 + 0.5 / 86400.0;
        SolarPosition();
        UpdateDateFields();
        DrawSundial();
    }

    static bool SunIsUp() { return state.SinSunAltitude > 0.0026; }

    // The direction of the shadow's tip from the dial's centre, degrees clockwise from the top, the gnomon's
    // thickness set aside.
    static double ShadowDirection() {
        const double Length = std::cos(state.SunAltitude * Radian) / state.SinSunAltitude * state.GnomonHeight;
        const double X = Length * std::sin(state.SunAzimuth * Radian);
        const double Y = state.GnomonLength + Length * std::cos(state.SunAzimuth * Radian);
        return std::atan2(X, Y) / Radian;
    }

    static double LineDirection(float Hour) {
        state.SundialHour = Hour;
        ComputeHourLineAngle();
        return state.HourLineAngle;
    }

    static double Apart(double A, double B) { return std::abs(std::remainder(A - B, 360.0)); }
};

TEST_F(Dial, WorkedLines) {
    state.LocationLat = 40.0;
    state.LocationLong = 0.0F;
    DrawSundial();
    state.SundialHour = 15.0F;
    PlaceHourLine();
    EXPECT_NEAR(state.HourLineAngle, 32.73F, 0.005);
    EXPECT_NEAR(state.HourLineEndX, 642.8F, 0.05);
    EXPECT_EQ(state.HourLineEndY, 1000.0F);
    EXPECT_NEAR(FormGTMain.LabelHour[15].Left, 627.8, 0.05);
    EXPECT_NEAR(FormGTMain.LabelHour[15].Top, 1100.0, 0.05);
    for (const auto& [Hour, X, Left, Top] :
         {std::tuple(6, -1000.0F, -1080.0, 20.0), std::tuple(18, 1000.0F, 1015.0, 50.0)}) {
        state.SundialHour = static_cast<float>(Hour);
        PlaceHourLine();
        EXPECT_EQ(state.HourLineEndX, X);
        EXPECT_NEAR(state.HourLineEndY, 0.0F, 1e-3);
        EXPECT_NEAR(FormGTMain.LabelHour[static_cast<std::size_t>(Hour)].Left, Left, 1e-3);
        EXPECT_NEAR(FormGTMain.LabelHour[static_cast<std::size_t>(Hour)].Top, Top, 1e-3);
    }
    state.LocationLat = 41.4;
    EXPECT_NEAR(LineDirection(15.0F), 33.48, 0.005);
}

TEST_F(Dial, LongitudeCorrectionRunsFromMinus30To30) {
    for (const auto& [Longitude, Minutes] :
         {std::pair(0.0F, 0.0F), std::pair(15.0F, 0.0F), std::pair(-75.0F, 0.0F), std::pair(7.5F, -30.0F),
          std::pair(5.0F, 20.0F), std::pair(-81.0F, -24.0F)}) {
        state.LocationLong = Longitude;
        DrawSundial();
        EXPECT_NEAR(state.LongitudeCorrectionMinutes, Minutes, 1e-3) << Longitude;
    }
}

// The shadow tells apparent solar time: its tip lies on the line of that hour.
TEST_F(Dial, TheShadowLiesOnTheLineOfSolarTime) {
    SetCorrections(False);
    int Cases = 0;
    for (const double Lat : {-60.0, -47.0, -34.0, -21.0, -10.0, 10.0, 23.0, 36.0, 49.0, 60.0}) {
        for (double Day = 2461041.5; Day < 2461041.5 + 365.0; Day += 33.0) {
            for (int Hour = 0; Hour < 24; ++Hour) {
                DrawAt(Lat, 19.0F, -1.0F, Day + Hour / 24.0);
                if (!SunIsUp()) continue;
                const float SolarHour = static_cast<float>(state.SolarHourAngle / 15.0 + 12.0);
                const double Shadow = ShadowDirection();
                ASSERT_LT(Apart(Shadow, LineDirection(SolarHour >= 24.0F ? SolarHour - 24.0F : SolarHour)), 1.0)
                    << Lat << " at " << Day << ", " << Hour;
                ++Cases;
            }
        }
    }
    EXPECT_GT(Cases, 1200);
}

// With all three corrections the lines are turned so that the shadow reads the clock of the location.
TEST_F(Dial, WithAllCorrectionsTheShadowReadsTheClock) {
    SetCorrections(True);
    int Cases = 0;
    for (const auto& [Long, Zone] : {std::pair(19.0F, -1.0F), std::pair(-81.7F, 5.0F), std::pair(0.0F, 0.0F)}) {
        for (const double Lat : {-52.0, -20.0, 20.0, 41.5, 58.0}) {
            for (std::int16_t Daylight = 0; Daylight < 2; ++Daylight) {
                state.DaylightHours = Daylight;
                for (double Day = 2461041.5; Day < 2461041.5 + 365.0; Day += 61.0) {
                    for (int Hour = 5; Hour < 20; ++Hour) {
                        DrawAt(Lat, Long, Zone - Daylight, Day + Hour / 24.0);
                        state.ZoneHours = Zone;
                        UpdateDateFields();
                        DrawSundial();
                        if (!SunIsUp()) continue;
                        const double Shadow = ShadowDirection();
                        const float Clock = state.LocalHour + state.LocalMinute / 60.0F;
                        const double Early = LineDirection(Clock - 2.0F / 60.0F);
                        const double Late = LineDirection(Clock + 2.0F / 60.0F);
                        ASSERT_LE(Apart(Early, Shadow) + Apart(Shadow, Late), Apart(Early, Late) + 0.01)
                            << Lat << ' ' << Long << " at " << Day << ", " << Hour;
                        ++Cases;
                    }
                }
            }
        }
    }
    EXPECT_GT(Cases, 1500);
}

TEST_F(Dial, DayAndNightLook) {
    DrawAt(41.5, -81.7F, 5.0F, 2461213.0);  // noon at midsummer
    EXPECT_TRUE(FormGTMain.LabelSundialMotto.Visible);
    EXPECT_FALSE(FormGTMain.LabelTwilightNight.Visible);
    EXPECT_EQ(FormGTMain.PictureSundial.BackColor, RGB(255, 224, 192));
    const auto& Pixels = FormGTMain.PictureSundial.Picture.Pixels;
    EXPECT_GT(std::count(Pixels.begin(), Pixels.end(), RGB(128, 128, 128)), 50) << "the shadow";
    DrawAt(41.5, -81.7F, 5.0F, 2461213.5);
    EXPECT_FALSE(FormGTMain.LabelSundialMotto.Visible);
    EXPECT_TRUE(FormGTMain.LabelTwilightNight.Visible);
    EXPECT_EQ(FormGTMain.PictureSundial.BackColor, RGB(128, 128, 128));
}

TEST_F(Dial, TheLatitudeChoosesHoursAndCentre) {
    struct Row {
        double Lat;
        int First, Last, Base;
    };
    for (const Row& R :
         {Row{0, 7, 17, -3000}, Row{-9.98, 7, 17, -3000}, Row{9.99995, 7, 17, -3000}, Row{10, 4, 20, 0},
          Row{-39.9, 4, 20, 0}, Row{40, 3, 21, 0}, Row{53, 2, 22, 0}, Row{60, 0, 23, 0}, Row{-69, 0, 23, 0}}) {
        SCOPED_TRACE(R.Lat);
        state.LocationLat = R.Lat;
        DrawSundial();
        EXPECT_EQ(state.FirstDialHour, R.First);
        EXPECT_EQ(state.LastDialHour, R.Last);
        EXPECT_EQ(state.GnomonBaseY, R.Base);
        for (int Hour = 0; Hour < 24; ++Hour) {
            EXPECT_EQ(FormGTMain.LabelHour[static_cast<std::size_t>(Hour)].Visible, Hour >= R.First && Hour <= R.Last);
        }
    }
}

TEST_F(Dial, TheSouthMirrorsTheDial) {
    for (float Hour = 5.0F; Hour < 20.0F; Hour += 1.0F) {
        state.LocationLat = 35.0;
        const double North = LineDirection(Hour);
        state.LocationLat = -35.0;
        EXPECT_LT(Apart(LineDirection(Hour), -North), 1e-4);
    }
}

TEST_F(Dial, OptionsTurnTheLinesAndLeaveTheShadow) {
    DrawAt(41.5, -81.7F, 5.0F, 2461213.1);
    const double Azimuth = state.SunAzimuth;
    const double Line = LineDirection(15.0F);
    SetCorrections(True);
    state.DaylightHours = 0;
    DrawAt(41.5, -81.7F, 5.0F, 2461213.1);
    EXPECT_EQ(state.SunAzimuth, Azimuth);
    EXPECT_GT(Apart(LineDirection(15.0F), Line), 1.0);
}

TEST_F(Dial, TheRedrawShowsAndHidesIt) {
    RedrawMap();
    EXPECT_TRUE(FormGTMain.PictureSundial.Visible);
    state.ShowSundial = False;
    RedrawMap();
    EXPECT_FALSE(FormGTMain.PictureSundial.Visible);
}

TEST_F(Dial, BrokenPlacesAndSunsDoNoHarm) {
    const double Infinity = std::numeric_limits<double>::infinity();
    for (const double Odd : {std::nan(""), Infinity, -Infinity, 90.0, -90.0, 1e300, 12345.0}) {
        state.LocationLat = Odd;
        DrawSundial();
        state.SunDeclination = Odd;
        DrawSundial();
        state.LocationLat = 40.0;
        state.LocationLong = state.EquationOfTime = state.LocalHour = static_cast<float>(Odd);
        DrawSundial();
        state.LocationLong = state.EquationOfTime = state.LocalHour = 0.0F;
    }
    state.LocationLat = state.SunDeclination = 20.0;  // the Sun exactly overhead
    state.LocalHour = 12.0F;
    state.LocalMinute = state.LocationLong = state.EquationOfTime = 0.0F;
    DrawSundial();
}

}  // namespace
}  // namespace gloamtide
