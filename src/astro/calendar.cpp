#include "astro/calendar.h"

#include <cmath>
#include <tuple>

#include "state/numbers.h"
#include "state/state.h"

namespace gloamtide {

void DateToJulian() {
    const double DayOfMonth =
        (static_cast<double>(state.WorkZoneHours) + state.WorkHour - state.WorkDaylightHours) / 24.0 + state.WorkDay +
        state.WorkMinute / 1440.0 + state.WorkSecond / 86400.0;
    const bool Gregorian =
        std::tuple(state.WorkYear, state.WorkMonth, state.WorkDay) >= std::tuple(1582.0F, 10.0F, 15.0F);
    if (state.WorkMonth <= 2.0F) {
        state.WorkYear = state.WorkYear - 1.0F;
        state.WorkMonth = state.WorkMonth + 12.0F;
    }
    const double Year = state.WorkYear;
    const double Month = state.WorkMonth;
    const double BeforeChrist = Year < 0.0 ? 0.75 : 0.0;
    const double Century = Gregorian ? 2.0 - Fix(Year / 100.0) + Fix(Year / 400.0) : 0.0;
    const double YearDays = Fix(365.25 * Year - BeforeChrist);
    const double MonthDays = Fix(30.6001 * (Month + 1.0));
    state.WorkJD = YearDays + Century + MonthDays + DayOfMonth + 1720994.5;
}

void JulianToDate() {
    const double X = state.WorkJD + 0.5 - (static_cast<double>(state.WorkZoneHours) - state.WorkDaylightHours) / 24.0;
    const double Whole = Fix(X);
    const double Fraction = std::abs(X) - std::floor(std::abs(X));
    double B = Whole;
    if (Whole > 2299160.0) {
        const double A = Fix((Whole - 1867216.25) / 36524.25);
        B = Whole + 1.0 + A - Fix(A / 4.0);
    }
    const double C = B + 1524.0;
    const double Years = Fix((C - 122.1) / 365.25);
    const double YearDays = Fix(365.25 * Years);
    const double Months = Fix((C - YearDays) / 30.6001);
    const double Day = C - YearDays + Fraction - Fix(30.6001 * Months);
    state.WorkDay = Single(std::floor(Day));
    state.WorkMonth = Single(Months < 13.5 ? Months - 1.0 : Months - 13.0);
    state.WorkYear = Single(state.WorkMonth > 2.5F ? Years - 4716.0 : Years - 4715.0);
    const double Hour = (Day - state.WorkDay) * 24.0;
    state.WorkHour = Single(std::floor(Hour));
    const double Minute = (Hour - state.WorkHour) * 60.0;
    state.WorkMinute = Single(std::floor(Minute));
    const double Second = (Minute - state.WorkMinute) * 60.0;
    state.WorkSecond = Single(std::floor(Second));
}

}  // namespace gloamtide
