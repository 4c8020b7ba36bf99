// The splash window, shown while the program loads.
#pragma once

#include "platform/controls.h"
#include "platform/form.h"
#include "surface/picture_surface.h"

namespace gloamtide {

struct SplashForm : Form {
    SplashForm();

    PictureSurface ImageSplash{*this, "ImageSplash"};
    Label LabelSplash{*this, "LabelSplash"};
};

extern SplashForm FormSplash;

}  // namespace gloamtide
