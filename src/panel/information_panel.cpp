#include "panel/information_panel.h"

#include <cmath>
#include <string_view>

#include "astro/lunar.h"
#include "forms/form_gt_main.h"
#include "panel/now_button.h"
#include "state/number_pattern.h"
#include "state/numbers.h"
#include "state/state.h"

namespace gloamtide {
namespace {

// A number in its pattern, with what follows it; nothing where it is none or too wide for the almanac, as only a file
// made by hand has it.
std::string Told(double Value, std::string_view Pattern, const std::string& Rest = "") {
    constexpr double Widest = 1e8;
    return std::abs(Value) < Widest ? FormatNumber(Value, Pattern) + Rest : "";
}

// 0.005 degrees keep what was set in whole minutes from falling one minute short.
void SplitDegrees(double Coordinate, std::int16_t& Degrees, std::int16_t& Minutes) {
    const double Magnitude = std::abs(Coordinate);
    const double WholeDegrees = std::floor(Magnitude);
    const double WholeMinutes = std::floor((Magnitude + 0.005 - WholeDegrees) * 60.0);
    Degrees = ToInt16(WholeMinutes == 60.0 ? WholeDegrees + 1.0 : WholeDegrees);
    Minutes = ToInt16(WholeMinutes == 60.0 ? 0.0 : WholeMinutes);
}

std::string Coordinate(double Value, int Degrees, int Minutes, const char* DegreePattern, const char* Positive,
                       const char* Negative) {
    if (!(std::abs(Value) < 1000.0)) return "";
    if (Value == 0.0) return "0d 0m";
    return FormatNumber(Degrees, DegreePattern) + "d " + FormatNumber(Minutes, "00") + "m " +
           (Value > 0.0 ? Positive : Negative);
}

std::string Date(float Month, float Day, float Year) {
    if (!(Month >= 1.0F && Month <= 12.0F)) return "";  // a broken date has no month
    const std::string ShownYear = Told(Year, "###0");
    if (ShownYear.empty()) return "";
    return state.MonthNames[static_cast<std::size_t>(Month)] + PlainNumber(Day) + ", " + ShownYear;
}

std::string Time(float Hour, float Minute, float Second) {
    if (!std::isfinite(Hour + Minute + Second)) return "";
    return FormatNumber(Hour, "00") + ":" + FormatNumber(Minute, "00") + ":" + FormatNumber(Second, "00");
}

// Kept: the 12-hour clock counts from 0, so half past noon reads 0:30 PM.
std::string RiseOrSet(int Hour, int Minute, float ChangeSeconds, const std::string& ChangeText) {
    const std::string Change = Told(ChangeSeconds, "###0", ChangeText);
    if (Change.empty()) return "";
    const char* const Marker = Hour < 12 || Hour == 24 ? " AM  (" : " PM  (";
    return FormatNumber(Hour % 12, "#0") + ":" + FormatNumber(Minute, "00") + Marker + Change;
}

void ShowRiseAndSet(Label& Rise, Label& Set) {
    if (state.SunNoRiseSet == True) {
        Rise.Caption = state.SunNoRiseSetText;
        Set.Caption = state.SunNoRiseSetText;
        return;
    }
    if (state.SunriseHour >= 0 && state.SunriseHour <= 23) {
        Rise.Caption =
            RiseOrSet(state.SunriseHour, state.SunriseMinute, state.SunriseChangeSeconds, state.SunriseChangeText);
    }
    if (state.SunsetHour >= 0 && state.SunsetHour <= 24) {
        Set.Caption =
            RiseOrSet(state.SunsetHour, state.SunsetMinute, state.SunsetChangeSeconds, state.SunsetChangeText);
    }
}

std::string Countdown(float Days) {
    const float WholeDays = std::floor(Days);
    const float Hours = (Days - WholeDays) * 24.0F;
    return Told(WholeDays, "#0", " Days, " + FormatNumber(Hours, "#0") + " Hours");
}

}  // namespace

void UpdateInformationPanel() {
    SplitDegrees(state.LocationLat, state.LocationLatDegrees, state.LocationLatMinutes);
    SplitDegrees(state.LocationLong, state.LocationLongDegrees, state.LocationLongMinutes);

    MainForm& F = FormGTMain;
    const auto i = static_cast<std::size_t>(state.ScreenClass);
    F.LabelLocLatShow[i].Caption =
        Coordinate(state.LocationLat, state.LocationLatDegrees, state.LocationLatMinutes, "#0", "North", "South");
    F.LabelLocLongShow[i].Caption =
        Coordinate(state.LocationLong, state.LocationLongDegrees, state.LocationLongMinutes, "##0", "East", "West");
    F.LabelLocNameShow[i].Caption = state.LocationName;
    F.LabelGTLocalDateShow[i].Caption = Date(state.LocalMonth, state.LocalDay, state.LocalYear);
    F.LabelGTLocalTimeShow[i].Caption = Time(state.LocalHour, state.LocalMinute, state.LocalSecond);
    const char* const Note = state.DaylightHours == 1 ? "(Daylight Savings Time)" : "(Standard Time)";
    F.LabelDaylightStdShow[i].Caption = F.LabelGTLocalTimeShow[i].Caption == "" ? "" : Note;
    ShowRiseAndSet(F.LabelLocSunriseShow[i], F.LabelLocSunsetShow[i]);
    ChooseMoonPhaseText();
    F.LabelPhaseOfMoonShow[i].Caption = Told(state.MoonLitPercent, "##0.0", " %  " + state.MoonPhaseText);
    F.LabelAgeOfMoonShow[i].Caption = Told(state.MoonAgeDays, "#0.00", " Days of 29.53 Day Synodic Cycle");
    F.LabelTimezoneShow[i].Caption = state.ZoneText;
    F.LabelGreenwichDateShow[i].Caption = Date(state.GreenwichMonth, state.GreenwichDay, state.GreenwichYear);
    const std::string GreenwichTime = Time(state.GreenwichHour, state.GreenwichMinute, state.GreenwichSecond);
    F.LabelGreenwichTimeShow[i].Caption = GreenwichTime.empty() ? "" : GreenwichTime + "    (Universal Time)";
    F.LabelGTJDShow[i].Caption = Told(state.CurrentJD, "0000000.00000");
    F.LabelSolDecShow[i].Caption = Told(state.SunDeclination, "#0.00", "  Degrees");
    F.LabelEqtnTimeShow[i].Caption =
        Told(state.EquationOfTime, "#0.00",
             state.EquationOfTime < 0.0F ? "  Minutes (Sun Behind Clock)" : "  Minutes (Sun Ahead of Clock)");
    F.LabelTimeOffsetShow[i].Caption = Told(state.OffsetDays, "#######0.0##", "  Days");
    const std::string TimeLeft = Countdown(state.SeasonDaysLeft);
    F.LabelSeasonShow[i].Caption =
        TimeLeft.empty() ? "" : state.SeasonNorth + " in N. Hemi -- " + state.SeasonSouth + " in S. Hemi";
    F.LabelCountdownShow[i].Caption = TimeLeft;
    ShowNowButton();
}

void LoadMonthNames() {
    state.MonthNames = {"",      "January ", "February ",  "March ",   "April ",    "May ",     "June ",
                        "July ", "August ",  "September ", "October ", "November ", "December "};
    state.MonthAbbreviations = {"",     "Jan ", "Feb ", "Mar ", "Apr ", "May ", "Jun ",
                                "Jul ", "Aug ", "Sep ", "Oct ", "Nov ", "Dec "};
}

void LoadMoonNames() {
    state.MoonNames = {"",
                       "Moon After Yule ",
                       "Snow Moon",
                       "Crow Moon ",
                       "Grass Moon ",
                       "Planting Moon ",
                       "Rose Moon ",
                       "Thunder Moon ",
                       "Grain Moon ",
                       "Harvest Moon ",
                       "Hunters Moon ",
                       "Frost Moon ",
                       "Moon Before Yule "};
}

}  // namespace gloamtide
