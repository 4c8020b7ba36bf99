#include "dialogs/about_and_splash.h"

#include "assets/assets.h"
#include "forms/form_about.h"
#include "forms/form_gt_main.h"
#include "forms/form_splash.h"
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

void PlaceSplash() {
    ShowImage(FormSplash.ImageSplash, SplashBmp());
    PlaceOnForm(FormSplash, FormSplash.ImageSplash, {{80, 240}, {200, 400}, {360, 600}, {560, 1100}});
    PlaceOnForm(FormSplash, FormSplash.LabelSplash, {{400, 1300}, {520, 1700}, {700, 2200}, {900, 3000}});
}

void ConnectAbout() {
    FormGTMain.MenuHelpSubAbout.Click = MenuHelpSubAbout_Click;
    FormAbout.OnLoad = FormAbout_Form_Load;
    FormAbout.CmdAboutOK.Click = CmdAboutOK_Click;
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
