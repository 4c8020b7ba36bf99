// The window of the sundial's options.
#pragma once

#include "platform/controls.h"
#include "platform/form.h"
#include "surface/picture_surface.h"

namespace gloamtide {

struct SundialOptionsForm : Form {
    SundialOptionsForm();

    PictureSurface PictureSundialOptions{*this, "PictureSundialOptions"};
    Label LabelSundialOptions{PictureSundialOptions, "LabelSundialOptions"};
    Frame FrameSundialOptions{PictureSundialOptions, "FrameSundialOptions"};
    CheckBox CheckSundialLongitudeCorrection{FrameSundialOptions, "CheckSundialLongitudeCorrection"};
    CheckBox CheckSundialEOTCorrection{FrameSundialOptions, "CheckSundialEOTCorrection"};
    CheckBox CheckSundialDSTCorrection{FrameSundialOptions, "CheckSundialDSTCorrection"};
    CommandButton CommandSDOptionsOK{PictureSundialOptions, "CommandSDOptionsOK"};
    CommandButton CommandSDOptionsCancel{PictureSundialOptions, "CommandSDOptionsCancel"};
};

extern SundialOptionsForm FormSundialOptions;

}  // namespace gloamtide
