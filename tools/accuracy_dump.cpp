// Prints the almanac's numbers in full precision, for accuracy.py to compare.
//   accuracy_dump           reads lines "JD latitude longitude zone": days, degrees, degrees east, hours west
//   accuracy_dump calendar  reads lines "year month day hour minute second", Greenwich time
// The first line written names the columns, in the units of state/state.h. Rise and Set are minutes of the local day,
// NoRiseSet is 1 for a 24 hour day and -1 for a 24 hour night, Season counts from 0, the northern spring.
#include <iostream>
#include <limits>
#include <string>

#include "astro/calendar.h"
#include "astro/lunar.h"
#include "astro/seasons.h"
#include "astro/solar.h"
#include "astro/sunrise.h"
#include "state/state.h"

namespace {

using namespace gloamtide;

template <class... Numbers>
void Print(Numbers... Each) {
    ((std::cout << Each << ' '), ...) << '\n';
}

int Season() {
    constexpr const char* Names[] = {"Spring", "Summer", "Autumn", "Winter"};
    int Number = 0;
    while (state.SeasonNorth != Names[Number]) ++Number;
    return Number;
}

int NoRiseSet() {
    if (state.SunNoRiseSet == False) return 0;
    return state.SunNoRiseSetText == "24 hour day" ? 1 : -1;
}

void DumpSky() {
    std::cout
        << "SunDeclination EquationOfTime MoonLongitude MoonLatitude MoonRightAscension MoonDeclination MoonAgeDays "
           "MoonLitPercent NoRiseSet Rise Set Season SeasonDaysLeft\n";
    while (std::cin >> state.CurrentJD >> state.LocationLat >> state.LocationLong >> state.ZoneHours) {
        SolarPosition();
        LunarPosition();
        SunriseSunset();
        state.WorkJD = state.CurrentJD;
        state.WorkZoneHours = state.ZoneHours;
        JulianToDate();
        state.LocalYear = state.WorkYear;
        SeasonCountdown();
        Print(state.SunDeclination, state.EquationOfTime, state.MoonEclipticLongitude, state.MoonEclipticLatitude,
              state.MoonRightAscension, state.MoonDeclination, state.MoonAgeDays, state.MoonLitPercent, NoRiseSet(),
              state.SunriseHour * 60 + state.SunriseMinute, state.SunsetHour * 60 + state.SunsetMinute, Season(),
              state.SeasonDaysLeft);
    }
}

void DumpCalendar() {
    std::cout << "JD Year Month Day Hour Minute Second\n";
    while (std::cin >> state.WorkYear >> state.WorkMonth >> state.WorkDay >> state.WorkHour >> state.WorkMinute >>
           state.WorkSecond) {
        DateToJulian();
        JulianToDate();
        Print(state.WorkJD, state.WorkYear, state.WorkMonth, state.WorkDay, state.WorkHour, state.WorkMinute,
              state.WorkSecond);
    }
}

}  // namespace

int main(int Count, char** Arguments) {
    std::ios::sync_with_stdio(false);
    std::cout.precision(std::numeric_limits<double>::max_digits10);
    if (Count > 1 && std::string(Arguments[1]) == "calendar") {
        DumpCalendar();
    } else {
        DumpSky();
    }
}
