// Letters on a picture.
#pragma once

#include "platform/bitmap.h"
#include "platform/host.h"

namespace gloamtide {

// Lays a text on a bitmap, the mask's top left at device pixel (X, Y), the ground kept where no letter is. Rim: device
// pixels, how far a dark rim reaches round the letters where the ground is light; 0: none. Clipped.
void LayText(Bitmap& Target, const GlyphMask& Mask, int X, int Y, Color TextColor, int Rim);

}  // namespace gloamtide
