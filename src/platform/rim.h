// Light letters on light ground get a dark rim, whoever draws them.
#pragma once

#include <algorithm>

#include "platform/bitmap.h"

namespace gloamtide {

constexpr Color RimColor = RGB(16, 16, 24);

constexpr int BrightnessOf(Color Value) {
    return (54 * RedOf(Value) + 183 * GreenOf(Value) + 19 * BlueOf(Value)) / 256;
}

// How strong the rim is on this ground, 0 to 255: there is none on the blue of the sea or darker, and it is full where
// yellow has less than three times the luminance.
constexpr int RimNeededOn(Color Ground) {
    constexpr int Unneeded = 115;  // brightness
    constexpr int InFull = 150;
    return std::clamp(255 * (BrightnessOf(Ground) - Unneeded) / (InFull - Unneeded), 0, 255);
}

}  // namespace gloamtide
