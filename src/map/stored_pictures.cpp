#include "map/stored_pictures.h"

#include <future>
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
#include "state/extras.h"
#include "surface/stored_bitmap.h"

namespace gloamtide {
namespace {

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

// Puts an image on a surface that takes its size.
void Put(PictureSurface& Original, Bitmap Image) {
    Original.Size(Image.Width, Image.Height);
    Original.Picture = std::move(Image);
}

void Stretch(PictureSurface& To, PictureSurface& Original, Averaging Averaged = Averaging::Levels) {
    StretchBlt(To, 0, 0, state.MapWidth, state.MapHeight, Original, 0, 0, Original.Picture.Width,
               Original.Picture.Height, Averaged);
}

// Puts the finer picture on the original's surface, where it stays while the type does: a window whose size changes
// makes the map anew time and again. False where the stored pictures do, or the host does not decode finer ones.
bool HasFineDay(const MapSource& Source) {
    const double Density = FormPictures.PictureDay.Density;
    if (Density <= 1.0 || Density * state.MapWidth <= StoredWidth) return false;
    if (!Source.DayOriginal.Picture.Empty()) return true;
    Bitmap Day = host->DecodePicture(Source.FineDay);
    const Bitmap Sea = host->DecodePicture(SeaFinePng());
    if (Day.Empty() || Day.Width != Sea.Width || Day.Height != Sea.Height) return false;
    PaintSea(Day, Sea);
    Put(Source.DayOriginal, std::move(Day));
    return true;
}

void MakePlain(const MapPictures& Pictures, const MapSource& Source) {
    const bool Fine = HasFineDay(Source);
    auto Night = std::async(std::launch::async, [&] {  // what takes longest at the start and after a change of size
        Put(Source.NightOriginal,
            Fine ? NightOf(Source.DayOriginal.Picture, Source.Darkening, Source.NightSea) : DecodeBmp(Source.Night));
        Stretch(Pictures.Night, Source.NightOriginal);
        Source.NightOriginal.Picture = Bitmap();
    });
    if (!Fine) Put(Source.DayOriginal, DecodeBmp(Source.Day));
    Stretch(Pictures.Day, Source.DayOriginal);
    Night.get();
    if (!Fine) Source.DayOriginal.Picture = Bitmap();
}

// The originals are larger than any map but the finest, so they are reduced as light. They stay like a finer picture of
// the others. False where the host does not decode them: then the natural map serves.
bool MakeTerrain(const MapPictures& Pictures) {
    PictureSurface& Day = FormPictures.PictureDayOrig;
    PictureSurface& Night = FormPictures.PictureNightOrig;
    const auto Make = [](PictureSurface& Shown, PictureSurface& Original, AssetBytes Stored) {
        if (Original.Picture.Empty()) Put(Original, host->DecodePicture(Stored));
        Stretch(Shown, Original, Averaging::Light);
    };
    auto MakingNight = std::async(std::launch::async, [&] { Make(Pictures.Night, Night, TerrainNightWebp()); });
    Make(Pictures.Day, Day, TerrainDayWebp());
    MakingNight.get();
    const bool Made = !Day.Picture.Empty() && !Night.Picture.Empty();
    if (!Made || Pictures.Day.Density <= 1.0) Day.Picture = Night.Picture = Bitmap();
    return Made;
}

MapPictures ChooseMapPictures() {
    PicturesForm& F = FormPictures;
    if (state.ShowCities == True && state.ShowTimezones == True) return {F.PictureTZCitiesDay, F.PictureTZCitiesNight};
    if (state.ShowCities == True) return {F.PictureCitiesDay, F.PictureCitiesNight};
    if (state.ShowTimezones == True) return {F.PictureTZDay, F.PictureTZNight};
    return {F.PictureDay, F.PictureNight};
}

// Those that are shown again are made where they were.
void EmptyMapPictures() {
    for (PictureSurface* Each : FormPictures.WorkPictures()) Each->Picture.Renew(0, 0, 0);
}

// Not even the map that is to be put together keeps its memory while pictures are made: that is when most is needed.
void DropOtherMapPictures(const MapPictures& Shown) {
    for (PictureSurface* Each : FormPictures.WorkPictures()) {
        if (Each != &Shown.Day && Each != &Shown.Night) Each->Picture = Bitmap();
    }
}

}  // namespace

void ResetMapPictures() {
    if (state.MapType != 0 && state.MapType != 1) return;
    const bool Terrain = state.MapType == 0 && extras.TerrainShown == True;
    state.MapTypeShown = Terrain ? TerrainMap : state.MapType;
    EmptyMapPictures();
    PicturesForm& F = FormPictures;
    for (PictureSurface* Each : {&F.PictureDayOrig, &F.PictureNightOrig, &F.PicturePolitDayOrig}) {
        Each->Picture = Bitmap();
    }
}

MapPictures ShownMapPictures() {
    const MapPictures Shown = ChooseMapPictures();
    if (!Shown.Day.Picture.Empty()) return Shown;
    DropOtherMapPictures(Shown);
    Shown.Day.Canvas();
    Shown.Night.Canvas();
    if (state.MapTypeShown == TerrainMap) {
        if (!MakeTerrain(Shown)) MakePlain(Shown, SourceOf(0));
    } else if (state.MapTypeShown >= 0) {
        MakePlain(Shown, SourceOf(state.MapTypeShown));
    }
    DrawCityMarks();
    DrawTimeZoneLines();
    return Shown;
}

void FollowDensity() {
    const MainForm& F = FormGTMain;
    const double Density = F.PictureGT.Density;
    const bool AllFollow = F.PictureGTContainer.Density == Density && F.PictureSundial.Density == Density;
    if (!AllFollow || F.PictureGT.Picture.Empty()) return;
    for (PictureSurface* Each : FormPictures.WorkPictures()) Each->Density = Density;
    EmptyMapPictures();
    RedrawMap();
}

}  // namespace gloamtide
