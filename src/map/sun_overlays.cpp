#include "map/sun_overlays.h"

#include "astro/sunrise.h"
#include "forms/form_pictures.h"
#include "map/geometry.h"
#include "state/state.h"

namespace gloamtide {
namespace {

float MapXOf(const SubsolarPoint& Sun) { return HourToMapX(12.0F - Sun.EquationOfTime); }

}  // namespace

void DrawAnalemma() {
    PictureSurface& Map = FormPictures.PictureNightSplit;
    Map.DrawWidth = 1;
    for (int Day = 0; Day <= 365; Day += 10) {
        const SubsolarPoint Sun = SubsolarPointAt(state.CurrentJD + Day);
        Map.PSet(MapXOf(Sun), Sun.Declination, QBColor(15));
    }
}

void DrawSunMarker() {
    PictureSurface& Map = FormPictures.PictureNightSplit;
    const SubsolarPoint Sun = SubsolarPointAt(state.CurrentJD);
    const Color Yellow = QBColor(14);
    Map.FillColor = Yellow;
    Map.FillStyle = FillStyles::Solid;
    Map.Circle(MapXOf(Sun), Sun.Declination, state.MarkerRadiusX, Yellow);

    // Rays at the four points of the compass, then between them; each step counts from the dot before it.
    const double R = state.MarkerRadiusX;
    const double S = state.MarkerRadiusY;
    const double Steps[][2] = {{1.4 * R, 0.0}, {-2.8 * R, 0.0}, {1.4 * R, S},    {0.0, -2.0 * S}, {0.0, S},
                               {R, 0.7 * S},   {-2.0 * R, 0.0}, {0.0, -1.4 * S}, {2.0 * R, 0.0}};
    for (const auto& [X, Y] : Steps) Map.PSetStep(X, Y, Yellow);
}

}  // namespace gloamtide
