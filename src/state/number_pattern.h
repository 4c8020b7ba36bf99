// Numbers as texts.
#pragma once

#include <string>
#include <string_view>

namespace gloamtide {

// A number in a pattern such as "#0.00": "0" stands for a digit that is always shown, "#" for one that is shown if the
// number has it, "." for the point. Rounded to the pattern's last place from its exact value, an exact tie to the even
// digit; a number below 0 carries a "-", also where it rounds to 0; digits beyond the pattern's width are shown all
// the same. A value that is no finite number gives an empty text.
std::string FormatNumber(double Value, std::string_view Pattern);

// The shortest decimal text that tells the number among all of its width, without a leading blank.
std::string PlainNumber(float Value);

}  // namespace gloamtide
