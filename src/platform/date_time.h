// A reading of a clock.
#pragma once

#include <cstdint>

namespace gloamtide {

// The fields are as the desktop gives them; the program takes any values.
struct DateTime {
    std::int16_t Year = 0;
    std::int16_t Month = 0;      // 1 to 12
    std::int16_t DayOfWeek = 0;  // 0 Sunday to 6 Saturday
    std::int16_t Day = 0;
    std::int16_t Hour = 0;
    std::int16_t Minute = 0;
    std::int16_t Second = 0;
    std::int16_t Milliseconds = 0;
};

}  // namespace gloamtide
