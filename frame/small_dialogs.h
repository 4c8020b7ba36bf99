// The windows without logic of their own: the splash.
#pragma once

#include "frame/picture_surface.h"

namespace gloamtide {

struct SplashForm : Form {
    SplashForm();

    PictureSurface ImageSplash{*this, "ImageSplash"};
    Label LabelSplash{*this, "LabelSplash"};
};

inline SplashForm FormSplash;

// Puts picture and text of the splash in their places on this screen.
void PlaceSplash();

}  // namespace gloamtide
