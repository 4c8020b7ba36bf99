#include "surface/stored_bitmap.h"

#include <algorithm>
#include <array>

namespace gloamtide {
namespace {

// Little-endian numbers of a BMP header.
int NumberAt(AssetBytes Bytes, std::size_t Place) {
    return Bytes[Place] | Bytes[Place + 1] << 8 | Bytes[Place + 2] << 16 | Bytes[Place + 3] << 24;
}

}  // namespace

Bitmap DecodeBmp(AssetBytes Bytes) {
    const auto FirstPixel = static_cast<std::size_t>(NumberAt(Bytes, 10));
    const auto Palette = Bytes.subspan(14 + static_cast<std::size_t>(NumberAt(Bytes, 14)));
    Bitmap Result(NumberAt(Bytes, 18), NumberAt(Bytes, 22), 0);
    const std::size_t Stride = (static_cast<std::size_t>(Result.Width) + 3) / 4 * 4;  // rows fill whole 32-bit words
    std::array<Color, 256> Colors{};
    for (std::size_t Index = 0; Index < Colors.size(); ++Index) {
        const auto Entry = Palette.subspan(4 * Index);  // blue, green, red, 0
        Colors[Index] = RGB(Entry[2], Entry[1], Entry[0]);
    }
    for (int Y = 0; Y < Result.Height; ++Y) {
        const unsigned char* Row = &Bytes[FirstPixel + static_cast<std::size_t>(Result.Height - 1 - Y) * Stride];
        std::transform(Row, Row + Result.Width, Result.Row(Y), [&](unsigned char Index) { return Colors[Index]; });
    }
    return Result;
}

}  // namespace gloamtide
