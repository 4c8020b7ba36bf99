// Instants of the command line, and the steps between them.
#pragma once

#include <cstdint>
#include <string>

#include "platform/date_time.h"

namespace gloamtide {

// Whole seconds, Greenwich, since the midnight that begins Julian day 0.
using Instant = std::int64_t;

// The date is one of the program's calendar: Julian up to 1582 October 4, then Gregorian. Both set the work fields of
// the calendar.
Instant InstantOf(const DateTime& Reading);
DateTime ReadingOf(Instant Which);

// As in 2026-12-21T20:50:00; a year before 0 begins with a sign.
std::string IsoText(const DateTime& Reading);

// Seconds or calendar years.
struct Step {
    std::int64_t Seconds = 0;
    int Years = 0;
};

// So many steps later. Years are counted on the calendar: month, day and time stay; a day that the month does not have
// runs on into the next.
Instant After(Instant Start, const Step& Each, std::int64_t Steps);

// How many instants there are from First to Last, both included, a step apart; Last is not before First.
std::int64_t CountInstants(Instant First, Instant Last, const Step& Each);

}  // namespace gloamtide
