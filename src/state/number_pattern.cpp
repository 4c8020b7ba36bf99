#include "state/number_pattern.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace gloamtide {

std::string FormatNumber(double Value, std::string_view Pattern) {
    if (!std::isfinite(Value)) return "";
    const std::size_t Point = std::min(Pattern.find('.'), Pattern.size());
    const std::string_view Whole = Pattern.substr(0, Point);
    const std::string_view Places = Pattern.substr(std::min(Point + 1, Pattern.size()));

    std::array<char, std::numeric_limits<double>::max_exponent10 + 64> Buffer{};
    const auto [End, Error] = std::to_chars(Buffer.data(), Buffer.data() + Buffer.size(), std::abs(Value),
                                            std::chars_format::fixed, static_cast<int>(Places.size()));
    std::string Digits(Buffer.data(), End);
    const std::size_t WholeDigits = std::min(Digits.find('.'), Digits.size());

    const auto Always = static_cast<std::size_t>(std::count(Whole.begin(), Whole.end(), '0'));
    if (WholeDigits < Always) Digits.insert(0, Always - WholeDigits, '0');
    for (std::size_t Place = Places.size(); Place-- > 0 && Places[Place] == '#' && Digits.back() == '0';) {
        Digits.pop_back();
    }
    if (!Places.empty() && Digits.back() == '.') Digits.pop_back();
    return Value < 0.0 ? "-" + Digits : Digits;
}

std::string PlainNumber(float Value) {
    std::array<char, 32> Buffer{};
    const auto [End, Error] = std::to_chars(Buffer.data(), Buffer.data() + Buffer.size(), Value);
    return {Buffer.data(), End};
}

}  // namespace gloamtide
