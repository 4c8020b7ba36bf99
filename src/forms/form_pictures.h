// The form that nobody sees: it holds all off-screen pictures.
#pragma once

#include <array>

#include "platform/form.h"
#include "surface/picture_surface.h"

namespace gloamtide {

struct PicturesForm : Form {
    PicturesForm();

    // The five stored pictures.
    PictureSurface PictureDayOrig{*this, "PictureDayOrig"};
    PictureSurface PictureNightOrig{*this, "PictureNightOrig"};
    PictureSurface PicturePolitDayOrig{*this, "PicturePolitDayOrig"};
    PictureSurface PicturePolitNightOrig{*this, "PicturePolitNightOrig"};
    PictureSurface PictureTZmask{*this, "PictureTZmask"};

    // The cache, in the map's Greenwich-centred position: the plain map, and with cities, zone lines, both.
    PictureSurface PictureDay{*this, "PictureDay"};
    PictureSurface PictureNight{*this, "PictureNight"};
    PictureSurface PictureCitiesDay{*this, "PictureCitiesDay"};
    PictureSurface PictureCitiesNight{*this, "PictureCitiesNight"};
    PictureSurface PictureTZDay{*this, "PictureTZDay"};
    PictureSurface PictureTZNight{*this, "PictureTZNight"};
    PictureSurface PictureTZCitiesDay{*this, "PictureTZCitiesDay"};
    PictureSurface PictureTZCitiesNight{*this, "PictureTZCitiesNight"};

    // The map of the current redraw: the turned night, on which day and overlays are laid. Empty between redraws.
    PictureSurface PictureNightSplit{*this, "PictureNightSplit"};

    // Those that have the size and the scale of the map.
    std::array<PictureSurface*, 9> WorkPictures();
};

extern PicturesForm FormPictures;

}  // namespace gloamtide
