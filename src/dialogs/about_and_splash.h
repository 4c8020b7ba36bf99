// The windows without logic of their own: the splash and About.
#pragma once

#include "surface/picture_surface.h"

namespace gloamtide {

struct SplashForm : Form {
    SplashForm();

    PictureSurface ImageSplash{*this, "ImageSplash"};
    Label LabelSplash{*this, "LabelSplash"};
};

struct AboutForm : Form {
    AboutForm();

    Frame FrameAbout{*this, "FrameAbout"};
    PictureSurface Image1{FrameAbout, "Image1"};
    Label LabelAbout{FrameAbout, "LabelAbout"};
    CommandButton CmdAboutOK{FrameAbout, "CmdAboutOK"};
};

inline SplashForm FormSplash;
inline AboutForm FormAbout;

// Puts picture and text of the splash in their places on this screen.
void PlaceSplash();

void FormAbout_Form_Load();
void MenuHelpSubAbout_Click();
void CmdAboutOK_Click();

}  // namespace gloamtide
