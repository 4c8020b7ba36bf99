#include "surface/stored_bitmap.h"

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
    for (int Y = 0; Y < Result.Height; ++Y) {
        const auto Row = Bytes.subspan(FirstPixel + static_cast<std::size_t>(Result.Height - 1 - Y) * Stride);
        for (int X = 0; X < Result.Width; ++X) {
            const std::size_t Entry = std::size_t{4} * Row[static_cast<std::size_t>(X)];  // blue, green, red, 0
            Result.Row(Y)[X] = RGB(Palette[Entry + 2], Palette[Entry + 1], Palette[Entry]);
        }
    }
    return Result;
}

}  // namespace gloamtide
