#include "forms/form_splash.h"

namespace gloamtide {

SplashForm FormSplash;

SplashForm::SplashForm() : Form("FormSplash", 9345.0, 3870.0, true) {
    Caption = "Welcome to Gloamtide";
    ImageSplash.Description = "Gloamtide";
    LabelSplash.Caption = "Program loading ----- please wait";
    LabelSplash.ForeColor = RGB(255, 255, 255);
    LabelSplash.FontSize = 12.0;
    LabelSplash.Size(5760.0, 360.0);
}

}  // namespace gloamtide
