// Roundings and conversions of numbers, defined for every value, NaN and infinity too.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <string_view>

namespace gloamtide {

// To the nearest whole number, halves to the even neighbour (the processor's own rounding, which nothing here changes).
inline double RoundHalfEven(double Value) { return std::nearbyint(Value); }

// Cuts off the fraction.
inline double Fix(double Value) { return std::trunc(Value); }

// Rounds to single precision, as a store into a field of that width does.
inline float Single(double Value) { return static_cast<float>(Value); }

// Rounds to a whole number, halves to even; values outside the type's range become its nearest limit, NaN becomes 0.
template <class Whole>
Whole ToWhole(double Value) {
    if (std::isnan(Value)) return 0;
    const double Rounded = RoundHalfEven(Value);
    if (Rounded <= static_cast<double>(std::numeric_limits<Whole>::min())) return std::numeric_limits<Whole>::min();
    if (Rounded >= static_cast<double>(std::numeric_limits<Whole>::max())) return std::numeric_limits<Whole>::max();
    return static_cast<Whole>(Rounded);
}

inline std::int16_t ToInt16(double Value) { return ToWhole<std::int16_t>(Value); }
inline std::int32_t ToInt32(double Value) { return ToWhole<std::int32_t>(Value); }

// The decimal number at the start of a typed text, blanks before it set aside: 1999 of "1999x", 0 where there is none.
// One beyond the reach of a double is infinite.
double LeadingNumber(std::string_view Text);

}  // namespace gloamtide
