// Pictures of one thing at two densities.
#pragma once

#include "platform/bitmap.h"

namespace gloamtide {

// Fine has Density times the pixels of Coarse each way. Averaged down, each of its pixels should lie between the
// darkest and the brightest of the nine of Coarse round its place, and each pixel of Coarse between those of Fine round
// its own, Levels more allowed: then areas are equal, and edges at most a pixel off. Returns how many pixels of Coarse
// do not, -1 where the sizes are wrong.
int PixelsApart(const Bitmap& Coarse, const Bitmap& Fine, int Density, int Levels);

}  // namespace gloamtide
