// The form in which pictures are stored in the program.
#pragma once

#include "assets/assets.h"
#include "platform/bitmap.h"

namespace gloamtide {

// Decodes a BMP of 8 bits a pixel with a palette, rows stored bottom-up. The bytes are the program's own.
Bitmap DecodeBmp(AssetBytes Bytes);

}  // namespace gloamtide
