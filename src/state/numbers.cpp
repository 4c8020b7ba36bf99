#include "state/numbers.h"

#include <algorithm>
#include <charconv>

namespace gloamtide {

double LeadingNumber(std::string_view Text) {
    Text.remove_prefix(std::min(Text.find_first_not_of(' '), Text.size()));
    const bool Negative = Text.starts_with('-');
    if (Negative || Text.starts_with('+')) Text.remove_prefix(1);
    if (Text.find_first_of("0123456789.") != 0) return 0.0;  // nor a word for infinity
    double Value = 0.0;
    const auto [End, Error] = std::from_chars(Text.data(), Text.data() + Text.size(), Value);
    if (Error == std::errc::result_out_of_range) Value = std::numeric_limits<double>::infinity();
    return Negative ? -Value : Value;
}

}  // namespace gloamtide
