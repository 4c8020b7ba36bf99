// Pictures of one thing at two densities.
#pragma once

#include "platform/bitmap.h"

namespace gloamtide {

// Sets the density of the map and of the dial and the container, which the map waits for.
void SetDensity(double Density);

// Makes the map one colour by day and black by night, at the density that was set, before it is redrawn.
void PaintPlainMap(Color Day);

// Fine has Density times the pixels of Coarse each way. Averaged down, each of its pixels should lie between the
// darkest and the brightest of the nine of Coarse round its place, and each pixel of Coarse between those of Fine round
// its own, Levels more allowed: then areas are equal, and edges at most a pixel off. Returns how many pixels of Coarse
// do not, -1 where the sizes are wrong.
int PixelsApart(const Bitmap& Coarse, const Bitmap& Fine, int Density, int Levels);

}  // namespace gloamtide
