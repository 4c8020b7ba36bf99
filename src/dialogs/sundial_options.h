// The dialog that turns the sundial's hour lines.
#pragma once

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

inline SundialOptionsForm FormSundialOptions;

void FormSundialOptions_Form_Load();
void CommandSDOptions_Click();
void CommandSDOptionsOK_Click();
void CommandSDOptionsCancel_Click();

}  // namespace gloamtide
