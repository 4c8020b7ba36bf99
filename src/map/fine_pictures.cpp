#include "map/fine_pictures.h"

#include <algorithm>

namespace gloamtide {

void PaintSea(Bitmap& Day, const Bitmap& Sea) {
    std::transform(Day.Pixels.begin(), Day.Pixels.end(), Sea.Pixels.begin(), Day.Pixels.begin(),
                   [](Color Land, Color IsSea) { return IsSea != 0 ? DaySea : Land; });
}

Bitmap NightOf(const Bitmap& Day, int Levels, Color NightSea) {
    Bitmap Night = Day;
    auto* Bytes = reinterpret_cast<unsigned char*>(Night.Pixels.data());  // as bytes: many in one instruction
    const auto Darker = static_cast<unsigned char>(Levels);
    std::transform(Bytes, Bytes + Night.Pixels.size() * sizeof(Color), Bytes, [Darker](unsigned char Level) {
        return static_cast<unsigned char>(std::max(Level, Darker) - Darker);
    });
    std::transform(Day.Pixels.begin(), Day.Pixels.end(), Night.Pixels.begin(), Night.Pixels.begin(),
                   [NightSea](Color Lit, Color Dark) { return Lit == DaySea ? NightSea : Dark; });
    return Night;
}

}  // namespace gloamtide
