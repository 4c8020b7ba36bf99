#include "panel/information_panel.h"

#include <cmath>
#include <limits>

#include "clock/clock.h"
#include "clock/recomputation.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

class Panel : public ProgramTest {
protected:
    Panel() {
        Desktop.System = {2026, 6, 1, 1, 12, 0, 0, 0};
        Start();
    }

    static const std::string& Shown(MainForm::PanelLabels& Label) {
        UpdateInformationPanel();
        return Label[static_cast<std::size_t>(state.ScreenClass)].Caption;
    }

    MainForm& F = FormGTMain;
};

TEST_F(Panel, TheStartShowsTheWholeAlmanac) {
    state.CurrentJD += 0.5 / 86400.0;  // away from the cut of the seconds
    UpdateDateFields();
    EXPECT_EQ(Shown(F.LabelLocNameShow), "Cleveland, Ohio");
    EXPECT_EQ(Shown(F.LabelLocLatShow), "41d 36m North");
    EXPECT_EQ(Shown(F.LabelLocLongShow), "81d 42m West");
    EXPECT_EQ(Shown(F.LabelGTLocalDateShow), "June 1, 2026");
    EXPECT_EQ(Shown(F.LabelGTLocalTimeShow), "07:00:00");
    EXPECT_EQ(Shown(F.LabelDaylightStdShow), "(Standard Time)");
    EXPECT_EQ(Shown(F.LabelGreenwichDateShow), "June 1, 2026");
    EXPECT_EQ(Shown(F.LabelGreenwichTimeShow), "12:00:00    (Universal Time)");
    EXPECT_EQ(Shown(F.LabelGTJDShow), "2461193.00001");
    EXPECT_EQ(Shown(F.LabelTimezoneShow), "GMT - 5:00");
    EXPECT_EQ(Shown(F.LabelTimeOffsetShow), "0.0  Days");
    EXPECT_EQ(Shown(F.LabelSeasonShow), "Spring in N. Hemi -- Autumn in S. Hemi");
    EXPECT_EQ(Shown(F.LabelSolDecShow), "22.09  Degrees");
    EXPECT_EQ(Shown(F.LabelEqtnTimeShow), "2.13  Minutes (Sun Ahead of Clock)");
    EXPECT_EQ(Shown(F.LabelAgeOfMoonShow).substr(5), " Days of 29.53 Day Synodic Cycle");
    for (std::size_t Other = 0; Other < 3; ++Other) {  // the panels of the other screens stay empty
        EXPECT_EQ(F.LabelGTJDShow[Other].Caption, "");
        EXPECT_FALSE(F.PictureGTData[Other].Visible);
    }
    EXPECT_TRUE(F.PictureGTData[3].Visible);
}

TEST_F(Panel, CoordinatesInDegreesAndMinutes) {
    const auto LatText = [&](double Value) { return state.LocationLat = Value, Shown(F.LabelLocLatShow); };
    const auto LongText = [&](float Value) { return state.LocationLong = Value, Shown(F.LabelLocLongShow); };
    EXPECT_EQ(LatText(41.5), "41d 30m North");
    EXPECT_EQ(LatText(-0.25), "0d 15m South");
    EXPECT_EQ(LatText(0.0), "0d 0m");
    EXPECT_EQ(LatText(10.999), "11d 00m North") << "sixty minutes are a degree";
    EXPECT_EQ(LongText(-81.697F), "81d 42m West");
    EXPECT_EQ(LongText(139.77F), "139d 46m East");
    EXPECT_EQ(LongText(0.0F), "0d 0m");
    EXPECT_EQ(state.LocationLongDegrees, 0);
    for (int Minute = 0; Minute < 60; ++Minute) {  // what was set in whole minutes stays on its minute
        LatText(41.0 + Minute / 60.0);
        EXPECT_EQ(state.LocationLatMinutes, Minute);
        EXPECT_EQ(state.LocationLatDegrees, 41);
    }
}

TEST_F(Panel, SunriseAndSunset) {
    state.SunriseHour = 7;
    state.SunriseMinute = 52;
    state.SunriseChangeSeconds = 9.4F;
    state.SunriseChangeText = " Sec Later Than Yesterday)";
    state.SunsetHour = 17;
    state.SunsetMinute = 7;
    state.SunsetChangeSeconds = 48.0F;
    state.SunsetChangeText = " Sec Earlier Than Yesterday)";
    EXPECT_EQ(Shown(F.LabelLocSunriseShow), "7:52 AM  (9 Sec Later Than Yesterday)");
    EXPECT_EQ(Shown(F.LabelLocSunsetShow), "5:07 PM  (48 Sec Earlier Than Yesterday)");
    state.SunriseHour = 0;
    state.SunsetHour = 12;
    state.SunsetMinute = 30;
    EXPECT_EQ(Shown(F.LabelLocSunriseShow), "0:52 AM  (9 Sec Later Than Yesterday)");
    EXPECT_EQ(Shown(F.LabelLocSunsetShow), "0:30 PM  (48 Sec Earlier Than Yesterday)");
    state.SunsetHour = 24;
    state.SunsetMinute = 5;
    EXPECT_EQ(Shown(F.LabelLocSunsetShow), "0:05 AM  (48 Sec Earlier Than Yesterday)");
    state.SunriseHour = -1;  // outside the day: the labels keep their texts
    state.SunsetHour = 25;
    EXPECT_EQ(Shown(F.LabelLocSunriseShow), "0:52 AM  (9 Sec Later Than Yesterday)");
    EXPECT_EQ(Shown(F.LabelLocSunsetShow), "0:05 AM  (48 Sec Earlier Than Yesterday)");
    state.SunNoRiseSet = True;
    state.SunNoRiseSetText = "24 hour day";
    EXPECT_EQ(Shown(F.LabelLocSunriseShow), "24 hour day");
    EXPECT_EQ(Shown(F.LabelLocSunsetShow), "24 hour day");
}

TEST_F(Panel, TheOtherTexts) {
    state.EquationOfTime = -3.30F;
    EXPECT_EQ(Shown(F.LabelEqtnTimeShow), "-3.30  Minutes (Sun Behind Clock)");
    state.EquationOfTime = 0.0F;
    EXPECT_EQ(Shown(F.LabelEqtnTimeShow), "0.00  Minutes (Sun Ahead of Clock)");
    state.SunDeclination = -23.03;
    EXPECT_EQ(Shown(F.LabelSolDecShow), "-23.03  Degrees");
    state.SeasonDaysLeft = 12.99F;
    EXPECT_EQ(Shown(F.LabelCountdownShow), "12 Days, 24 Hours") << "hours do not carry into the days";
    state.MoonLitPercent = 99.96F;
    state.MoonElongationHours = 12.0F;
    state.LocalMonth = 9.0F;
    state.LocalDay = 12.0F;
    EXPECT_EQ(Shown(F.LabelPhaseOfMoonShow), "100.0 %  (Full -- Harvest Moon )");
    state.DaylightHours = 1;
    EXPECT_EQ(Shown(F.LabelDaylightStdShow), "(Daylight Savings Time)");
    state.LocalYear = -3999.0F;
    EXPECT_EQ(Shown(F.LabelGTLocalDateShow), "September 12, -3999");
}

TEST_F(Panel, HeadingsAndToolTips) {
    EXPECT_EQ(F.LabelCountdown[0].Caption, "Time Until Next Season:");
    EXPECT_EQ(F.LabelCountdown[1].Caption, "Time Until Next Season");
    EXPECT_EQ(F.LabelCountdown[2].Caption, "Time Until Next Season:");
    EXPECT_EQ(F.LabelCountdown[3].Caption, "Time Until Next Season");
    for (std::size_t Class = 0; Class < 4; ++Class) {
        EXPECT_EQ(F.LabelSolDec[Class].Caption, "Sun's Declination:");
        EXPECT_EQ(F.LabelDaylightStdShow[Class].ToolTipText, F.LabelGTLocalTime[Class].ToolTipText.Get());
        EXPECT_EQ(F.LabelLocLongShow[Class].ToolTipText,
                  "Longtitude of  user-specified Location.  Set with 'Configure' Menu.");
        EXPECT_EQ(F.LabelLocLongShow[Class].ToolTipText, F.LabelLocationLong[Class].ToolTipText.Get());
    }
}

TEST_F(Panel, ItFollowsTheClockEverySecond) {
    const std::string Before = F.LabelGTLocalTimeShow[3].Caption;
    Desktop.Advance(30000);
    EXPECT_NE(F.LabelGTLocalTimeShow[3].Caption.Get(), Before);
    EXPECT_EQ(F.LabelGTLocalTimeShow[3].Caption.Get().substr(0, 6), "07:00:");
}

TEST_F(Panel, BrokenValuesDoNoHarm) {
    const double Infinity = std::numeric_limits<double>::infinity();
    for (const double Odd : {std::nan(""), Infinity, -Infinity, 1e300, -1e300, 1e9}) {
        const auto Single = static_cast<float>(Odd);
        state.OffsetDays = Odd;
        state.LocationLat = Odd;
        state.LocationLong = Single;
        state.ZoneHours = Single;
        state.DaylightHours = -32768;
        RecomputeAlmanac();
        Desktop.Advance(60000);
        state.SeasonDaysLeft = state.MoonLitPercent = state.MoonAgeDays = state.LocalMonth = state.LocalDay = Single;
        UpdateInformationPanel();
    }
}

}  // namespace
}  // namespace gloamtide
