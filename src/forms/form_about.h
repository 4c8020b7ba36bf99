// The About window.
#pragma once

#include "platform/controls.h"
#include "platform/form.h"
#include "surface/picture_surface.h"

namespace gloamtide {

struct AboutForm : Form {
    AboutForm();

    Frame FrameAbout{*this, "FrameAbout"};
    PictureSurface Image1{FrameAbout, "Image1"};
    Label LabelAbout{FrameAbout, "LabelAbout"};
    CommandButton CmdAboutOK{FrameAbout, "CmdAboutOK"};
};

extern AboutForm FormAbout;

}  // namespace gloamtide
