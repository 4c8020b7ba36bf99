#include "map/day_night.h"

#include "astro/degrees.h"
#include "forms/form_gt_main.h"
#include "forms/form_pictures.h"
#include "map/geometry.h"
#include "map/graticule.h"
#include "map/hour_ruler.h"
#include "map/moon_disc.h"
#include "map/sun_overlays.h"
#include "state/numbers.h"
#include "sundial/dial.h"

namespace gloamtide {
namespace {

// A picture rotated by MapShift has at column p what the source has at column p + MapShift, modulo MapWidth.
void RotatePicture(PictureSurface& Rotated, PictureSurface& Source) {
    const int Unmoved = state.MapWidth - state.MapShift;
    BitBlt(Rotated, Unmoved, 0, state.MapShift, state.MapHeight, Source, 0, 0);
    BitBlt(Rotated, 0, 0, Unmoved, state.MapHeight, Source, state.MapShift, 0);
}

void RotateDayAndNight() {
    PicturesForm& F = FormPictures;
    PictureSurface* Day = &F.PictureDay;
    PictureSurface* Night = &F.PictureNight;
    if (state.ShowCities == True && state.ShowTimezones == True) {
        Day = &F.PictureTZCitiesDay;
        Night = &F.PictureTZCitiesNight;
    } else if (state.ShowCities == True) {
        Day = &F.PictureCitiesDay;
        Night = &F.PictureCitiesNight;
    } else if (state.ShowTimezones == True) {
        Day = &F.PictureTZDay;
        Night = &F.PictureTZNight;
    }
    RotatePicture(F.PictureDaySplit, *Day);
    RotatePicture(F.PictureNightSplit, *Night);
}

// Strips from the latitude First to the latitude Last, included when reached; the step is added in single precision.
void LayBand(float First, float Last, float Step, double Height) {
    state.StripHeight = Single(Height);
    state.StripLatitude = First;
    while (Step < 0.0F ? state.StripLatitude >= Last : state.StripLatitude <= Last) {
        BlitDayStrip();
        state.StripLatitude += Step;
    }
}

// From the end of the Earth that lies in polar night to the other end of the map. The strips are a little higher than
// the steps between them, so that they leave no gaps; beyond 50 degrees, where the terminator bends, they are finer.
void LayDayStrips() {
    const double FineHeight = state.MapHeight / 250.0;
    const double CoarseHeight = state.MapHeight / 170.0;
    if (state.SunDeclination <= 0.0) {
        state.StripStartLatitude = Single(state.SunDeclination + 90.0);
        if (state.StripStartLatitude >= 80.0F) state.StripStartLatitude = 80.0F;
        LayBand(state.StripStartLatitude, 50.0F, -0.4F, FineHeight);
        LayBand(50.0F, -50.0F, -0.75F, CoarseHeight);
        LayBand(-50.0F, -70.0F, -0.4F, FineHeight);
    } else {
        state.StripStartLatitude = Single(state.SunDeclination - 90.0);
        if (state.StripStartLatitude <= -70.0F) state.StripStartLatitude = -70.0F;
        LayBand(state.StripStartLatitude, -50.0F, 0.4F, -FineHeight);
        LayBand(-50.0F, 50.0F, 0.75F, -CoarseHeight);
        LayBand(50.0F, 80.0F, 0.4F, -FineHeight);
    }
}

// The order decides what covers what.
void DrawOverlays() {
    if (state.ShowSun == True) DrawSunMarker();
    if (state.ShowMoon == True) DrawMoonDisc();
    if (state.ShowAnalemma == True) DrawAnalemma();
    if (state.ShowTimezones == True) DrawZoneHourRuler();
    FormGTMain.LabelZonehour.Visible = state.ShowTimezones == True;
    if (state.ShowMapGrid == True) DrawMapGrid();
    DrawDateBand();
    if (state.ShowSundial == True) DrawSundial();
    FormGTMain.PictureSundial.Visible = state.ShowSundial == True;
}

}  // namespace

void BlitDayStrip() {
    state.StripTop = LatitudeToPixelY(state.StripLatitude);
    // The supplement of the half-day arc. The clamp of ArcCosDeg makes polar day and polar night.
    const double A = ArcCosDeg(state.TanSunDeclination / TanDeg(90.0F - state.StripLatitude));
    state.DayHalfWidth = Single(181.0 - A);
    state.StripRightX = LongitudeToMapX(-state.DayHalfWidth) - state.EquationOfTimeMapShift;
    state.StripLeftX = LongitudeToMapX(state.DayHalfWidth) - state.EquationOfTimeMapShift;
    // Map pixels, not map units: the span lies symmetrically about the middle of the map.
    const int Left = ToInt32(state.StripLeftX);
    const int Top = ToInt32(state.StripTop);
    const int Width = ToInt32(static_cast<double>(state.StripRightX) - state.StripLeftX);
    BitBlt(FormPictures.PictureNightSplit, Left, Top, Width, ToInt32(state.StripHeight), FormPictures.PictureDaySplit,
           Left, Top);
}

void RedrawMap() {
    RotateMap();
    RotateDayAndNight();
    LayDayStrips();
    DrawOverlays();
    FormGTMain.PictureGT.SetPicture(FormPictures.PictureNightSplit.Picture);
}

}  // namespace gloamtide
