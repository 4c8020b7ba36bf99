// The levels of a channel as amounts of light, which may be added and averaged as the eye does from afar.
#pragma once

#include <array>
#include <cstdint>

namespace gloamtide {

// The transfer curve of sRGB, IEC 61966-2-1. A level there and back is itself.
struct LinearLight {
    std::array<std::uint16_t, 256> Light;   // of a level: 0, none, to 65535, all
    std::array<std::uint8_t, 65536> Level;  // the nearest level of an amount of light
};

const LinearLight& LinearLightTables();

}  // namespace gloamtide
