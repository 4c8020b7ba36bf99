#include "dialogs/small_dialogs.h"

#include "assets/assets.h"
#include "forms/form_gt_main.h"
#include "forms/layout.h"
#include "map/day_night.h"
#include "surface/stored_bitmap.h"

namespace gloamtide {
namespace {

void ShowImage(PictureSurface& Surface, AssetBytes Bytes) {
    const Bitmap Image = DecodeBmp(Bytes);
    Surface.Width.SetPixels(Image.Width);
    Surface.Height.SetPixels(Image.Height);
    Surface.SetPicture(Image);
}

}  // namespace

SplashForm::SplashForm() : Form("FormSplash", 9345.0, 3870.0, true) {
    Caption = "Welcome to Gloamtide";
    ImageSplash.Description = "Gloamtide";
    LabelSplash.Caption = "Program loading ----- please wait";
    LabelSplash.ForeColor = RGB(255, 255, 255);
    LabelSplash.FontSize = 12.0;
    LabelSplash.Size(5760.0, 360.0);
}

void PlaceSplash() {
    ShowImage(FormSplash.ImageSplash, SplashBmp());
    PlaceOnForm(FormSplash, FormSplash.ImageSplash, {{80, 240}, {200, 400}, {360, 600}, {560, 1100}});
    PlaceOnForm(FormSplash, FormSplash.LabelSplash, {{400, 1300}, {520, 1700}, {700, 2200}, {900, 3000}});
}

AboutForm::AboutForm() : Form("FormAbout", 6810.0, 5220.0) {
    Caption = "About Gloamtide";
    FrameAbout.Size(4500.0, 2700.0);
    Image1.Description = "Gloamtide's icon";
    LabelAbout.Caption = "Gloamtide Version 4.01";
    LabelAbout.FontSize = 12.0;
    LabelAbout.TextAlignment = Alignment::Center;
    LabelAbout.Move(150.0, 1440.0);
    LabelAbout.Size(4200.0, 360.0);
    CmdAboutOK.Caption = "OK";
    CmdAboutOK.Default = true;
    CmdAboutOK.Cancel = true;
    CmdAboutOK.Move(1650.0, 2040.0);
    CmdAboutOK.Size(1200.0, 420.0);
}

void FormAbout_Form_Load() {
    ShowImage(FormAbout.Image1, IconBmp());
    FormAbout.Image1.Move((FormAbout.FrameAbout.ScaleWidth() - FormAbout.Image1.Width) / 2.0, 330.0);
    PlaceOnForm(FormAbout, FormAbout.FrameAbout, {{360, 240}, {560, 300}, {800, 400}, {1100, 500}});
}

void MenuHelpSubAbout_Click() {
    FormGTMain.Hide();
    FormAbout.Show();
}

void CmdAboutOK_Click() {
    FormAbout.Hide();
    FormGTMain.Show();
    RedrawMap();
}

}  // namespace gloamtide
