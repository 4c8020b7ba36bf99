// The maps finer than the stored ones: a picture of the day, and where the sea is, make day and night.
#pragma once

#include "platform/bitmap.h"

namespace gloamtide {

constexpr Color DaySea = RGB(0, 119, 225);  // of both maps; no land has it

// Gives the sea of a map of the day its one flat colour. Sea: as large as the map, black where land is.
void PaintSea(Bitmap& Day, const Bitmap& Sea);

// The same map by night: the sea in another colour, the land darker by Levels in each channel, not below 0.
Bitmap NightOf(const Bitmap& Day, int Levels, Color NightSea);

}  // namespace gloamtide
