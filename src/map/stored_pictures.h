// The stored pictures and the cached maps made from them. Only those that the map shows exist.
#pragma once

#include "surface/picture_surface.h"

namespace gloamtide {

constexpr std::int16_t TerrainMap = 2;  // in MapTypeShown: the terrain in the natural map's place

// Goes over to the current map type: the cached pictures of the old one go.
//   Reads:  MapType (0 natural, 1 political; with any other it does nothing), TerrainShown of the extras
//   Sets:   MapTypeShown
void ResetMapPictures();

struct MapPictures {
    PictureSurface& Day;
    PictureSurface& Night;
};

// The cached pictures that are to be shown. Where they are not there yet they are made and all others go.
//   Reads:  ShowCities, ShowTimezones, MapTypeShown, the table of cities
MapPictures ShownMapPictures();

// Draws the map anew at the density that FormGTMain.PictureGT was given. The dial and the container have densities of
// their own, to be set before. Does nothing before the first redraw.
void FollowDensity();

}  // namespace gloamtide
