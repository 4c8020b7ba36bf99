#include "map/stored_pictures.h"

#include <utility>

#include "assets/assets.h"
#include "forms/form_gt_main.h"
#include "forms/form_pictures.h"
#include "map/day_night.h"
#include "map/fine_pictures.h"
#include "map/geometry.h"
#include "map/graticule.h"
#include "map/zone_lines.h"
#include "platform/host.h"
#include "surface/stored_bitmap.h"

namespace gloamtide {
namespace {

constexpr Color DaySea = RGB(0, 119, 225);

// Where the pictures of a map type come from, and what makes its night.
struct MapSource {
    PictureSurface& DayOriginal;
    PictureSurface& NightOriginal;
    AssetBytes Day;
    AssetBytes Night;
    AssetBytes FineDay;
    int Darkening;  // levels of each channel of the land
    Color NightSea;
};

MapSource SourceOf(int MapType) {
    PicturesForm& F = FormPictures;
    if (MapType == 0) {
        return {F.PictureDayOrig, F.PictureNightOrig, NaturalDayBmp(), NaturalNightBmp(), NaturalFineWebp(), 30,
                RGB(0, 10, 54)};
    }
    return {F.PicturePolitDayOrig, F.PicturePolitNightOrig, PoliticalDayBmp(),
            PoliticalNightBmp(),   PoliticalFineWebp(),     50,
            RGB(0, 0, 3)};
}

// Lends the image to the original's surface while it is stretched.
void Stretch(PictureSurface& To, PictureSurface& Original, Bitmap&& Image) {
    Original.Size(Image.Width, Image.Height);
    std::swap(Original.Picture, Image);
    StretchBlt(To, 0, 0, state.MapWidth, state.MapHeight, Original, 0, 0, Original.Picture.Width,
               Original.Picture.Height);
    std::swap(Original.Picture, Image);
}

// False where the stored pictures do, or the host does not decode finer ones.
bool MakeFromFine(const MapSource& Source) {
    PicturesForm& F = FormPictures;
    if (F.PictureDay.Density <= 1.0 || F.PictureDay.Density * state.MapWidth <= StoredWidth) return false;
    Bitmap Map = host->DecodePicture(Source.FineDay);
    const Bitmap Sea = host->DecodePicture(SeaFinePng());
    if (Map.Empty() || Map.Width != Sea.Width || Map.Height != Sea.Height) return false;
    PaintSea(Map, Sea, DaySea);
    Stretch(F.PictureDay, Source.DayOriginal, std::move(Map));
    Darken(Map, Source.Darkening);
    PaintSea(Map, Sea, Source.NightSea);
    Stretch(F.PictureNight, Source.NightOriginal, std::move(Map));
    return true;
}

}  // namespace

void FormPictures_Form_Load() { FormPictures.PictureTZmask.SetPicture(DecodeBmp(ZoneMaskBmp())); }

void ResetMapPictures() {
    if (state.MapType != 0 && state.MapType != 1) return;
    state.MapTypeShown = state.MapType;
    PicturesForm& F = FormPictures;
    for (PictureSurface* Each : F.WorkPictures()) Each->Picture = Bitmap();
    const MapSource Source = SourceOf(state.MapType);
    if (MakeFromFine(Source)) return;
    Stretch(F.PictureNight, Source.NightOriginal, DecodeBmp(Source.Night));
    Stretch(F.PictureDay, Source.DayOriginal, DecodeBmp(Source.Day));
}

MapPictures ShownMapPictures() {
    PicturesForm& F = FormPictures;
    const MapPictures Plain = {F.PictureDay, F.PictureNight};
    const MapPictures Cities = {F.PictureCitiesDay, F.PictureCitiesNight};
    const MapPictures Zones = {F.PictureTZDay, F.PictureTZNight};
    const MapPictures Both = {F.PictureTZCitiesDay, F.PictureTZCitiesNight};
    const bool WithZones = state.ShowTimezones == True;
    const MapPictures& Shown = state.ShowCities == True ? (WithZones ? Both : Cities) : (WithZones ? Zones : Plain);
    for (const MapPictures& Each : {Cities, Zones, Both}) {
        if (&Each.Day == &Shown.Day) continue;
        Each.Day.Picture = Each.Night.Picture = Bitmap();
    }
    if (Shown.Day.Picture.Empty()) {
        Shown.Day.SetPicture(Plain.Day.Picture);
        Shown.Night.SetPicture(Plain.Night.Picture);
        DrawCityMarks();
        DrawTimeZoneLines();
    }
    return Shown;
}

void FollowDensity() {
    const MainForm& F = FormGTMain;
    const double Density = F.PictureGT.Density;
    const bool AllFollow = F.PictureGTContainer.Density == Density && F.PictureSundial.Density == Density;
    if (!AllFollow || F.PictureGT.Picture.Empty()) return;
    for (PictureSurface* Each : FormPictures.WorkPictures()) Each->Density = Density;
    ResetMapPictures();
    RedrawMap();
}

}  // namespace gloamtide
