// The stored pictures and the cached maps made from them. Only those that the map shows, and the plain ones, exist.
#pragma once

#include "surface/picture_surface.h"

namespace gloamtide {

// Puts the zone mask on its surface of FormPictures.
void FormPictures_Form_Load();

// Makes the plain map of the current type; all other cached pictures go, to be made when they are next shown.
//   Reads:  MapType (0 natural, 1 political; with any other it does nothing)
//   Sets:   MapTypeShown; PictureDay, PictureNight
void ResetMapPictures();

struct MapPictures {
    PictureSurface& Day;
    PictureSurface& Night;
};

// The cached pictures that are to be shown, made from the plain ones where they are not there yet. The others that show
// cities or zones go.
//   Reads:  ShowCities, ShowTimezones, the tables of cities
MapPictures ShownMapPictures();

// Draws the map anew at the density that FormGTMain.PictureGT was given. The dial and the container have densities of
// their own, to be set before. Does nothing before the first redraw.
void FollowDensity();

}  // namespace gloamtide
