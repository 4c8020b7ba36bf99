#include "forms/layout.h"

#include <array>
#include <cmath>

#include "forms/form_gt_main.h"
#include "forms/form_pictures.h"
#include "platform/host.h"
#include "state/extras.h"
#include "state/numbers.h"
#include "state/state.h"

namespace gloamtide {
namespace {

// What the class of the screen selects. Pixels, but for the font's points.
struct ClassLayout {
    std::int16_t MapWidth, MapHeight;
    double MapTop;
    double PanelLeft;
    double ZonehourTop;
    double LabelHeight;  // of the five labels on the map
    double CityWidth;    // room for the longest name
    const char* LabelFont;
    double LabelFontSize;
    float CityMarkerRadius, MarkerRadiusX, MarkerRadiusY;
};

constexpr std::array<ClassLayout, 4> Layouts = {{
    // map      top   panel  hour   labels                       city   marker
    {580, 284, 20.0, 72.0, 298.0, 10.0, 150.0, "MS Serif", 6.0, 0.45F, 5.0F, 3.5F},
    {740, 380, 20.0, 120.0, 392.0, 10.0, 150.0, "MS Serif", 6.0, 0.45F, 5.0F, 2.75F},
    {956, 510, 20.0, 190.0, 518.0, 12.0, 170.0, "MS Serif", 7.0, 1.0F, 6.0F, 2.5F},
    {1182, 640, 32.0, 250.0, 655.0, 16.0, 230.0, "MS Sans Serif", 10.0, 1.0F, 7.0F, 2.25F},
}};

// The dial and what stands on it: the dial in pixels, the rest in twips, the motto's font in points.
struct DialLayout {
    double Width, Height;
    double NightLeft, NightTop;
    double MottoWidth, MottoLeft, MottoTop, MottoFontSize;
    double OptionsTop;
};

constexpr std::array<DialLayout, 4> Dials = {{
    {190, 142, 900, 1430, 2500, 180, 1500, 6, 1840},
    {220, 165, 1100, 1760, 2900, 160, 1800, 7, 2200},
    {240, 180, 1200, 1920, 3060, 240, 1920, 8, 2400},
    {320, 240, 1850, 2700, 4000, 400, 2700, 10, 3300},
}};

constexpr int MapBorders = 4;  // pixels, both sides of the map together

const ClassLayout& Current() { return Layouts[static_cast<std::size_t>(state.ScreenClass)]; }
PictureSurface& CurrentPanel() { return FormGTMain.PictureGTData[static_cast<std::size_t>(state.ScreenClass)]; }

}  // namespace

std::int16_t ScreenClassOf(int WidthPx) {
    if (WidthPx < 800) return 0;
    if (WidthPx < 1024) return 1;
    return WidthPx < 1280 ? 2 : 3;
}

int ScreenWidthOf(std::int16_t Class) {
    constexpr int Widths[] = {640, 800, 1024, 1280};
    return Widths[Class];
}

namespace {

double MapBottom(const ClassLayout& Layout) { return Layout.MapTop + Layout.MapHeight + MapBorders; }
double PanelTop(const ClassLayout& Layout) { return Layout.MapTop + 1.01 * (Layout.MapHeight + MapBorders); }

void SetBoard(Form& Which, const BoardSize& Size) {
    Which.BoardWidth = Size.Width;
    Which.BoardHeight = Size.Height;
}

}  // namespace

BoardSize BoardOf(std::int16_t Class) {
    const auto Index = static_cast<std::size_t>(Class);
    const double Height = PanelTop(Layouts[Index]) + FormGTMain.PictureGTData[Index].Height;
    return {1.0 * ScreenWidthOf(Class), std::ceil(Height)};
}

BoardSize MapSizeOf(std::int16_t Class) {
    const ClassLayout& Layout = Layouts[static_cast<std::size_t>(Class)];
    return {1.0 * Layout.MapWidth, 1.0 * Layout.MapHeight};
}

void ShowAlmanac() {
    const bool Shown = extras.AlmanacShown == True;
    CurrentPanel().Visible = Shown;
    const double Height = Shown ? BoardOf(state.ScreenClass).Height : MapBottom(Current());
    SetBoard(FormGTMain, {1.0 * state.ScreenWidthPx, Height});
}

void PlaceOnForm(Form& Which, Control& Element, const DialogPlace (&Places)[4]) {
    Which.SetScaleWidth(1000.0);
    Which.SetScaleHeight(1000.0);
    const int WidthPx = ToInt16(host->ScreenWidthTwips() / TwipsPerPixel);
    const std::int16_t Class = ScreenClassOf(WidthPx);
    SetBoard(Which, BoardOf(Class));
    const DialogPlace& Place = Places[Class];
    Element.Move(Place.Left, Place.Top);
}

void MeasureScreen() {
    state.ScreenWidthPx = ToInt16(host->ScreenWidthTwips() / TwipsPerPixel);
    state.ScreenClass = ScreenClassOf(state.ScreenWidthPx);
    state.MapWidth = Current().MapWidth;
    state.MapHeight = Current().MapHeight;
    ShowAlmanac();

    FormPictures.Load();
    for (PictureSurface* Each : FormPictures.WorkPictures()) {
        Each->Size(state.MapWidth, state.MapHeight);
        Each->Density = FormGTMain.PictureGT.Density;
    }
    FormGTMain.PictureGT.Size(state.MapWidth + MapBorders, state.MapHeight + MapBorders);
    FormGTMain.PictureGTContainer.Size(state.ScreenWidthPx, 1.4 * CurrentPanel().Height + state.MapHeight);
}

namespace {

// Names that a user types can be long: the panel and its last column take all the room up to the screen's edge.
void WidenPanel() {
    PictureSurface& Panel = CurrentPanel();
    const double DesignEdge = Panel.ScaleWidth();
    Panel.Width = FormGTMain.PictureGTContainer.ScaleWidth() - Panel.Left;
    for (Control* Each : Panel.Children) {
        const bool Last = Each->Left + Each->Width > DesignEdge - TwipsPerPixel;
        if (Last) Each->Width = Panel.ScaleWidth() - Each->Left;
    }
}

void ApplyClass() {
    MainForm& F = FormGTMain;
    for (Label* Each : {&F.LabelEastOfIDLDate, &F.LabelWestOfIDLDate, &F.LabelZonehour, &F.LabelMouseLat,
                        &F.LabelMouseLong, &F.LabelCity, &F.LabelAnimInfo, &F.LabelAnimSteps}) {
        Each->FontName = Current().LabelFont;
        Each->FontSize = Current().LabelFontSize;
    }
    for (Label* Each : {&F.LabelMouseLat, &F.LabelMouseLong, &F.LabelCity, &F.LabelAnimInfo, &F.LabelAnimSteps}) {
        Each->Height = Current().LabelHeight;
    }
    if (state.ScreenClass == 3) {
        for (Label* Each : {&F.LabelEastOfIDLDate, &F.LabelWestOfIDLDate, &F.LabelZonehour}) Each->Height = 16.0;
        for (Label* Each : {&F.LabelMouseLat, &F.LabelMouseLong, &F.LabelAnimInfo}) Each->Width = 110.0;
        F.LabelWestOfIDLDate.Top = 14.0;
    }
    F.LabelCity.Width = Current().CityWidth;
    F.PictureGT.Top = Current().MapTop;
    F.LabelZonehour.Top = Current().ZonehourTop;
    CurrentPanel().Left = Current().PanelLeft;
    WidenPanel();
    state.CityMarkerRadius = Current().CityMarkerRadius;
    state.MarkerRadiusX = Current().MarkerRadiusX;
    state.MarkerRadiusY = Current().MarkerRadiusY;
    F.LabelWorking.Move((F.PictureGT.Width - F.LabelWorking.Width) / 2.0, F.PictureGT.Height / 2.0);
    ShowAlmanac();
}

// Before the dial has a scale of its own: it still counts in twips.
void LayOutDial() {
    MainForm& F = FormGTMain;
    const DialLayout& Dial = Dials[static_cast<std::size_t>(state.ScreenClass)];
    F.PictureSundial.Size(Dial.Width, Dial.Height);
    F.PictureSundial.Move(0.0, F.PictureGT.Height - Dial.Height - 2.0);
    F.LabelTwilightNight.Move(Dial.NightLeft, Dial.NightTop);
    F.LabelSundialMotto.Move(Dial.MottoLeft, Dial.MottoTop);
    F.LabelSundialMotto.Size(Dial.MottoWidth, Dial.OptionsTop - Dial.MottoTop);
    F.LabelSundialMotto.FontSize = Dial.MottoFontSize;
    F.CommandSDOptions.Move(0.0, Dial.OptionsTop);
}

// What follows from the sizes: the labels in the lower right corner of the map, each above the one before.
void PlaceOnMap() {
    MainForm& F = FormGTMain;
    const double W = F.PictureGT.Width;
    const double H = F.PictureGT.Height;
    F.PictureGT.Left = F.PictureGTContainer.ScaleWidth() - W;
    CurrentPanel().Top = F.PictureGT.Top + 1.01 * H;
    F.CmdAnimStop.Move(W - 2.0 * F.CmdAnimStop.Width, H - 4.5 * F.CmdAnimStop.Height);
    F.LabelAnimInfo.Move(W - F.LabelAnimInfo.Width, F.CmdAnimStop.Top - 1.3 * F.LabelAnimInfo.Height);
    F.LabelAnimSteps.Move(W - F.LabelAnimInfo.Width, F.LabelAnimInfo.Top - F.LabelAnimSteps.Height);
    F.LabelMouseLong.Move(W - F.LabelMouseLong.Width, H - 2.7 * F.LabelMouseLong.Height);
    F.LabelMouseLat.Move(W - F.LabelMouseLat.Width, F.LabelMouseLong.Top - F.LabelMouseLat.Height);
    F.LabelCity.Move(W - 1.1 * F.LabelCity.Width, F.LabelMouseLat.Top - 1.2 * F.LabelCity.Height);
}

}  // namespace

void LayOutMainWindow() {
    MainForm& F = FormGTMain;
    F.PictureGTContainer.Move(0.0, 0.0);
    F.LabelEastOfIDLDate.Move(0.0, 0.0);
    F.LabelWestOfIDLDate.Move(0.0, 10.0);
    F.LabelZonehour.Left = 0.0;
    for (PictureSurface& Panel : F.PictureGTData) Panel.Visible = false;
    ApplyClass();
    LayOutDial();
    PlaceOnMap();
}

void ScaleMapPictures() {
    const auto ScaleOne = [](PictureSurface& Which, double UnitsAcross) { Which.Scale(UnitsAcross, 80.0, 0.0, -70.0); };
    for (PictureSurface* Each : FormPictures.WorkPictures()) ScaleOne(*Each, state.MapWidth);
    ScaleOne(FormGTMain.PictureGT, state.MapWidth);
    ScaleOne(FormPictures.PictureTZmask, FormPictures.PictureTZmask.Width.Pixels());
}

}  // namespace gloamtide
