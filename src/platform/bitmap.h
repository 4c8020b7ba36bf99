// A plain picture in memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace gloamtide {

// A colour as the program writes it: 24 bits, red in the low byte, then green, then blue.
using Color = std::uint32_t;

constexpr Color RGB(int Red, int Green, int Blue) {
    return static_cast<Color>(Red & 255) | static_cast<Color>(Green & 255) << 8U |
           static_cast<Color>(Blue & 255) << 16U;
}

constexpr int RedOf(Color Value) { return static_cast<int>(Value & 255U); }
constexpr int GreenOf(Color Value) { return static_cast<int>(Value >> 8U & 255U); }
constexpr int BlueOf(Color Value) { return static_cast<int>(Value >> 16U & 255U); }

// Rows from the top, pixels from the left, each pixel a Color in 32 bits; in memory the bytes red, green, blue, 0.
struct Bitmap {
    int Width = 0;   // pixels
    int Height = 0;  // pixels
    std::vector<Color> Pixels;

    Bitmap() = default;
    Bitmap(int TheWidth, int TheHeight, Color Fill)
        : Width(TheWidth),
          Height(TheHeight),
          Pixels(static_cast<std::size_t>(TheWidth) * static_cast<std::size_t>(TheHeight), Fill) {}

    // Begins anew where it was, when there is room.
    void Renew(int TheWidth, int TheHeight, Color Fill) {
        Width = TheWidth;
        Height = TheHeight;
        Pixels.assign(static_cast<std::size_t>(TheWidth) * static_cast<std::size_t>(TheHeight), Fill);
    }
    bool Empty() const { return Pixels.empty(); }
    Color* Row(int Y) { return Pixels.data() + static_cast<std::size_t>(Y) * static_cast<std::size_t>(Width); }
    const Color* Row(int Y) const {
        return Pixels.data() + static_cast<std::size_t>(Y) * static_cast<std::size_t>(Width);
    }
};

}  // namespace gloamtide
