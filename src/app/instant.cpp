#include "app/instant.h"

#include <cmath>
#include <cstdio>

#include "astro/calendar.h"
#include "state/state.h"

namespace gloamtide {
namespace {

constexpr std::int64_t DaySeconds = 86400;

std::int16_t Short(std::int64_t Value) { return static_cast<std::int16_t>(Value); }

}  // namespace

// The calendar reckons the day alone, so that no second is lost to the fraction of a Julian date.
Instant InstantOf(const DateTime& Reading) {
    state.WorkYear = Reading.Year;
    state.WorkMonth = Reading.Month;
    state.WorkDay = Reading.Day;
    state.WorkHour = state.WorkMinute = state.WorkSecond = 0.0F;
    state.WorkZoneHours = 0.0F;
    state.WorkDaylightHours = 0;
    DateToJulian();
    const std::int64_t Day = std::llround(state.WorkJD + 0.5);
    return Day * DaySeconds + std::int64_t{Reading.Hour} * 3600 + std::int64_t{Reading.Minute} * 60 + Reading.Second;
}

DateTime ReadingOf(Instant Which) {
    const std::int64_t Day = Which / DaySeconds;
    const std::int64_t Second = Which % DaySeconds;
    state.WorkJD = static_cast<double>(Day);  // its noon
    state.WorkZoneHours = 0.0F;
    state.WorkDaylightHours = 0;
    JulianToDate();
    DateTime Reading;
    Reading.Year = static_cast<std::int16_t>(state.WorkYear);
    Reading.Month = static_cast<std::int16_t>(state.WorkMonth);
    Reading.Day = static_cast<std::int16_t>(state.WorkDay);
    Reading.DayOfWeek = Short((Day + 1) % 7);
    Reading.Hour = Short(Second / 3600);
    Reading.Minute = Short(Second / 60 % 60);
    Reading.Second = Short(Second % 60);
    return Reading;
}

std::string IsoText(const DateTime& Reading) {
    char Text[64];
    std::snprintf(Text, sizeof Text,
                  Reading.Year < 0 ? "%05d-%02d-%02dT%02d:%02d:%02d" : "%04d-%02d-%02dT%02d:%02d:%02d", Reading.Year,
                  Reading.Month, Reading.Day, Reading.Hour, Reading.Minute, Reading.Second);
    return Text;
}

Instant After(Instant Start, const Step& Each, std::int64_t Steps) {
    if (Each.Years == 0) return Start + Steps * Each.Seconds;
    DateTime Reading = ReadingOf(Start);
    Reading.Year = Short(Reading.Year + Steps * Each.Years);
    return InstantOf(Reading);
}

std::int64_t CountInstants(Instant First, Instant Last, const Step& Each) {
    if (Each.Years == 0) return (Last - First) / Each.Seconds + 1;
    std::int64_t Steps = (ReadingOf(Last).Year - ReadingOf(First).Year) / Each.Years;
    if (After(First, Each, Steps) > Last) --Steps;
    return Steps + 1;
}

}  // namespace gloamtide
