#include "frame/small_dialogs.h"

#include "assets/assets.h"
#include "frame/layout.h"
#include "frame/stored_bitmap.h"

namespace gloamtide {

SplashForm::SplashForm() : Form("FormSplash", 9345.0, 3870.0, true) {
    Caption = "Welcome to Gloamtide";
    LabelSplash.Caption = "Program loading ----- please wait";
    LabelSplash.ForeColor = RGB(255, 255, 255);
    LabelSplash.FontSize = 12.0;
    LabelSplash.Size(6000.0, 360.0);
}

void PlaceSplash() {
    const Bitmap Picture = DecodeBmp(SplashBmp());
    FormSplash.ImageSplash.Width.SetPixels(Picture.Width);
    FormSplash.ImageSplash.Height.SetPixels(Picture.Height);
    FormSplash.ImageSplash.SetPicture(Picture);
    PlaceOnForm(FormSplash, FormSplash.ImageSplash, {{80, 240}, {200, 400}, {360, 600}, {560, 1100}});
    PlaceOnForm(FormSplash, FormSplash.LabelSplash, {{400, 1300}, {520, 1700}, {700, 2200}, {900, 3000}});
}

}  // namespace gloamtide
