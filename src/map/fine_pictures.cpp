#include "map/fine_pictures.h"

#include <algorithm>

namespace gloamtide {

void PaintSea(Bitmap& Day, const Bitmap& Sea) {
    std::transform(Day.Pixels.begin(), Day.Pixels.end(), Sea.Pixels.begin(), Day.Pixels.begin(),
                   [](Color Land, Color IsSea) { return IsSea != 0 ? DaySea : Land; });
}

Bitmap NightOf(const Bitmap& Day, int Levels, Color NightSea) {
    const auto Darker = [Levels](int Level) { return std::max(0, Level - Levels); };
    Bitmap Night = Day;
    for (Color& Pixel : Night.Pixels) {
        Pixel = Pixel == DaySea ? NightSea : RGB(Darker(RedOf(Pixel)), Darker(GreenOf(Pixel)), Darker(BlueOf(Pixel)));
    }
    return Night;
}

}  // namespace gloamtide
