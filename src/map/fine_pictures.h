// The maps finer than the stored ones: a picture of the day, and where the sea is, make day and night.
#pragma once

#include "platform/bitmap.h"

namespace gloamtide {

// Gives the sea of a map one flat colour. Sea: as large as the map, black where land is.
void PaintSea(Bitmap& Map, const Bitmap& Sea, Color SeaColor);

// Takes Levels from each channel of each pixel, not below 0.
void Darken(Bitmap& Map, int Levels);

}  // namespace gloamtide
