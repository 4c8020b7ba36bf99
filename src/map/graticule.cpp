#include "map/graticule.h"

#include "forms/form_gt_main.h"
#include "forms/form_pictures.h"
#include "map/geometry.h"
#include "state/state.h"

namespace gloamtide {

void DrawCityMarks() {
    PicturesForm& F = FormPictures;
    const Color Yellow = QBColor(14);
    for (PictureSurface* Each :
         {&F.PictureCitiesDay, &F.PictureCitiesNight, &F.PictureTZCitiesDay, &F.PictureTZCitiesNight}) {
        if (Each->Picture.Empty()) continue;
        Each->FillColor = Yellow;
        Each->FillStyle = FillStyles::Solid;
        for (std::size_t City = 1; City <= static_cast<std::size_t>(state.CityCount); ++City) {
            Each->Circle(LongitudeToMapX(state.CityLongitude[City]), state.CityLatitude[City], state.CityMarkerRadius,
                         Yellow);
        }
    }
}

void DrawMapGrid() {
    PictureSurface& Map = FormPictures.PictureNightSplit;
    const Color Grey = QBColor(8);
    const auto DrawParallel = [&](double Latitude) { Map.Line(state.MapWidth, Latitude, 0.0, Latitude, Grey); };
    Map.DrawStyle = DrawStyles::Solid;
    for (int Latitude = -60; Latitude <= 60; Latitude += 20) DrawParallel(Latitude);
    for (int Longitude = -180; Longitude <= 165; Longitude += 15) {
        const double X = LongitudeToRotatedMapX(static_cast<double>(Longitude));
        Map.Line(X, 80.0, X, -70.0, Grey);
    }
    Map.DrawStyle = DrawStyles::Dotted;
    for (const float Circle : {23.4393F, -23.4393F, 66.5607F, -66.5607F}) DrawParallel(Circle);
}

void BlinkLocationMarker() {
    PictureSurface& Map = FormGTMain.PictureGT;
    const Color Shade = QBColor(state.BlinkPhase == True ? 15 : 8);
    Map.FillStyle = FillStyles::Solid;
    Map.FillColor = Shade;
    Map.Circle(LongitudeToRotatedMapX(state.LocationLong), state.LocationLat, state.MapWidth / 1000.0, Shade);
    state.BlinkPhase = state.BlinkPhase == True ? False : True;
}

}  // namespace gloamtide
