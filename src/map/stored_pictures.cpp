#include "map/stored_pictures.h"

#include "assets/assets.h"
#include "forms/form_gt_main.h"
#include "forms/form_pictures.h"
#include "map/day_night.h"
#include "map/geometry.h"
#include "map/graticule.h"
#include "map/zone_lines.h"
#include "surface/stored_bitmap.h"

namespace gloamtide {

void FormPictures_Form_Load() {
    FormPictures.PictureDayOrig.SetPicture(DecodeBmp(NaturalDayBmp()));
    FormPictures.PictureNightOrig.SetPicture(DecodeBmp(NaturalNightBmp()));
    FormPictures.PicturePolitDayOrig.SetPicture(DecodeBmp(PoliticalDayBmp()));
    FormPictures.PicturePolitNightOrig.SetPicture(DecodeBmp(PoliticalNightBmp()));
    FormPictures.PictureTZmask.SetPicture(DecodeBmp(ZoneMaskBmp()));
}

void ResetMapPictures() {
    if (state.MapType != 0 && state.MapType != 1) return;
    state.MapTypeShown = state.MapType;
    PicturesForm& F = FormPictures;
    PictureSurface& Night = state.MapType == 0 ? F.PictureNightOrig : F.PicturePolitNightOrig;
    PictureSurface& Day = state.MapType == 0 ? F.PictureDayOrig : F.PicturePolitDayOrig;
    const auto Stretch = [](PictureSurface& To, PictureSurface& From) {
        StretchBlt(To, 0, 0, state.MapWidth, state.MapHeight, From, 0, 0, StoredWidth, StoredHeight);
    };
    Stretch(F.PictureNight, Night);
    Stretch(F.PictureDay, Day);
    // The others would stretch into the same pixels: copies are some times cheaper.
    const auto Copy = [](PictureSurface& To, PictureSurface& From) {
        BitBlt(To, 0, 0, state.MapWidth, state.MapHeight, From, 0, 0);
    };
    for (PictureSurface* To :
         {&F.PictureCitiesNight, &F.PictureTZNight, &F.PictureTZCitiesNight, &F.PictureNightSplit}) {
        Copy(*To, F.PictureNight);
    }
    for (PictureSurface* To : {&F.PictureCitiesDay, &F.PictureTZDay, &F.PictureTZCitiesDay, &F.PictureDaySplit}) {
        Copy(*To, F.PictureDay);
    }
}

void RebuildMapPictures() {
    ResetMapPictures();
    DrawCityMarks();
    DrawTimeZoneLines();
}

void FollowDensity() {
    const MainForm& F = FormGTMain;
    const double Density = F.PictureGT.Density;
    const bool AllFollow = F.PictureGTContainer.Density == Density && F.PictureSundial.Density == Density;
    if (!AllFollow || F.PictureGT.Picture.Empty()) return;
    for (PictureSurface* Each : FormPictures.WorkPictures()) Each->Density = Density;
    RebuildMapPictures();
    RedrawMap();
}

}  // namespace gloamtide
