// How the interface adapts to the screen.
#pragma once

#include <cstdint>

#include "platform/form.h"

namespace gloamtide {

// The class of a screen, 0 to 3, of its width in pixels: below 800, below 1024, below 1280, wider.
std::int16_t ScreenClassOf(int WidthPx);

// Places in thousandths of a form's design size, by screen class.
struct DialogPlace {
    double Left;
    double Top;
};

// Brings an element of a form to about the middle of the board, which is as large as the main window's. The form still
// has its design size, and keeps the units that this gives it when it is shown larger.
void PlaceOnForm(Form& Which, Control& Element, const DialogPlace (&Places)[4]);

// The size of the main window's board on a screen of a class, in pixels: map, labels and almanac.
struct BoardSize {
    double Width;
    double Height;
};
BoardSize BoardOf(std::int16_t Class);
BoardSize MapSizeOf(std::int16_t Class);  // of the map on it alone

// The width of the narrowest screen of a class, but for the first: of the one that it was made for. Pixels.
int ScreenWidthOf(std::int16_t Class);

// Shows or hides the almanac's panel; without it the board ends under the map.
//   Reads:  AlmanacShown of the extras, ScreenClass
void ShowAlmanac();

// Fixes the screen's class and the sizes of the map and of all pictures.
//   Sets:  ScreenWidthPx, ScreenClass, MapWidth, MapHeight; the sizes of the work pictures, which take the density
//          of PictureGT, of PictureTZmask, PictureGT and PictureGTContainer
void MeasureScreen();

// Lays out the main window for the class of the screen, once, at the start.
//   Sets:  CityMarkerRadius, MarkerRadiusX, MarkerRadiusY
void LayOutMainWindow();

// Gives the map pictures and the zone mask their user scale: map units.
void ScaleMapPictures();

}  // namespace gloamtide
