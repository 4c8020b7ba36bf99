#include "forms/form_pictures.h"

namespace gloamtide {

PicturesForm FormPictures;

PicturesForm::PicturesForm() : Form("FormPictures", 0.0, 0.0) {
    ScalePixels();
    for (PictureSurface* Each : {&PictureDayOrig, &PictureNightOrig, &PicturePolitDayOrig, &PicturePolitNightOrig}) {
        Each->Size(960, 510);
    }
    PictureTZmask.Size(956, 510);  // its last four columns are never read
}

std::array<PictureSurface*, 9> PicturesForm::WorkPictures() {
    return {&PictureDay,   &PictureNight,   &PictureNightSplit,  &PictureCitiesDay,    &PictureCitiesNight,
            &PictureTZDay, &PictureTZNight, &PictureTZCitiesDay, &PictureTZCitiesNight};
}

}  // namespace gloamtide
