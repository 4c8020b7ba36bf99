// Fonts: what stands for the ones that the program names, and text as a mask of pixels.
#pragma once

#include <QFont>
#include <string>

#include "platform/host.h"

namespace gloamtide {

// The installed font that stands for one that the program names, Scale times as large. Its size counts in pixels, at 96
// to the inch whatever the screen says, so that the program's layout holds on every desktop; never below Lowest pixels.
QFont InstalledFont(const Font& Named, double Scale = 1.0, int Lowest = 1);

// How strongly Text covers each pixel, one pixel of the mask to one of the program's pictures. As wide as the text
// advances, as high as a line.
GlyphMask RenderMask(const Font& Named, const std::string& Text);

}  // namespace gloamtide
