#include "map/fine_pictures.h"

#include <algorithm>

namespace gloamtide {

void PaintSea(Bitmap& Map, const Bitmap& Sea, Color SeaColor) {
    std::transform(Map.Pixels.begin(), Map.Pixels.end(), Sea.Pixels.begin(), Map.Pixels.begin(),
                   [SeaColor](Color Pixel, Color IsSea) { return IsSea != 0 ? SeaColor : Pixel; });
}

void Darken(Bitmap& Map, int Levels) {
    for (Color& Pixel : Map.Pixels) {
        const auto Darker = [Levels](int Level) { return std::max(0, Level - Levels); };
        Pixel = RGB(Darker(RedOf(Pixel)), Darker(GreenOf(Pixel)), Darker(BlueOf(Pixel)));
    }
}

}  // namespace gloamtide
