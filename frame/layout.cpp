#include "frame/layout.h"

#include <array>
#include <cmath>

#include "frame/form_gt_main.h"
#include "frame/form_pictures.h"
#include "frame/numbers.h"
#include "frame/state.h"
#include "platform/host.h"

namespace gloamtide {
namespace {

// What the class of the screen selects. Sizes and places in pixels.
struct ClassLayout {
    std::int16_t MapWidth;
    std::int16_t MapHeight;
    double MapTop;
    double PanelLeft;
    float CityMarkerRadius;
    float MarkerRadiusX;
    float MarkerRadiusY;
};

constexpr std::array<ClassLayout, 4> Layouts = {{
    // map          top   panel  city   marker
    {580, 284, 20.0, 72.0, 0.45F, 5.0F, 3.5F},
    {740, 380, 20.0, 120.0, 0.45F, 5.0F, 2.75F},
    {956, 510, 20.0, 190.0, 1.0F, 6.0F, 2.5F},
    {1182, 640, 32.0, 250.0, 1.0F, 7.0F, 2.25F},
}};

const ClassLayout& Current() { return Layouts[static_cast<std::size_t>(state.ScreenClass)]; }
PictureSurface& CurrentPanel() { return FormGTMain.PictureGTData[static_cast<std::size_t>(state.ScreenClass)]; }

}  // namespace

std::int16_t ScreenClassOf(int WidthPx) {
    if (WidthPx < 800) return 0;
    if (WidthPx < 1024) return 1;
    return WidthPx < 1280 ? 2 : 3;
}

void PlaceOnForm(Form& Which, Control& Element, const DialogPlace (&Places)[4]) {
    Which.SetScaleWidth(1000.0);
    Which.SetScaleHeight(1000.0);
    const int WidthPx = ToInt16(host->ScreenWidthTwips() / TwipsPerPixel);
    const DialogPlace& Place = Places[ScreenClassOf(WidthPx)];
    Element.Move(Place.Left, Place.Top);
}

void MeasureScreen() {
    state.ScreenWidthPx = ToInt16(host->ScreenWidthTwips() / TwipsPerPixel);
    state.ScreenClass = ScreenClassOf(state.ScreenWidthPx);
    state.MapWidth = Current().MapWidth;
    state.MapHeight = Current().MapHeight;

    FormPictures.Load();
    for (PictureSurface* Each : FormPictures.WorkPictures()) Each->Size(state.MapWidth, state.MapHeight);
    FormGTMain.PictureGT.Size(state.MapWidth + 4, state.MapHeight + 4);
    FormGTMain.PictureGTContainer.Size(state.ScreenWidthPx, 1.4 * CurrentPanel().Height + state.MapHeight);
}

void LayOutMainWindow() {
    MainForm& F = FormGTMain;
    F.PictureGTContainer.Move(0.0, 0.0);
    for (PictureSurface& Panel : F.PictureGTData) Panel.Visible = false;
    F.PictureGT.Top = Current().MapTop;
    CurrentPanel().Left = Current().PanelLeft;
    state.CityMarkerRadius = Current().CityMarkerRadius;
    state.MarkerRadiusX = Current().MarkerRadiusX;
    state.MarkerRadiusY = Current().MarkerRadiusY;
    F.LabelWorking.Move((F.PictureGT.Width - F.LabelWorking.Width) / 2.0, F.PictureGT.Height / 2.0);
    CurrentPanel().Visible = true;

    F.PictureGT.Left = F.PictureGTContainer.ScaleWidth() - F.PictureGT.Width;
    CurrentPanel().Top = F.PictureGT.Top + 1.01 * F.PictureGT.Height;
}

void ScaleMapPictures() {
    const auto ScaleOne = [](PictureSurface& Which, double UnitsAcross) { Which.Scale(UnitsAcross, 80.0, 0.0, -70.0); };
    for (PictureSurface* Each : FormPictures.WorkPictures()) ScaleOne(*Each, state.MapWidth);
    ScaleOne(FormGTMain.PictureGT, state.MapWidth);
    ScaleOne(FormPictures.PictureTZmask, FormPictures.PictureTZmask.Width.Pixels());
}

}  // namespace gloamtide
