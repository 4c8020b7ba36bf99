#include "map/day_night.h"

#include <algorithm>
#include <utility>

#include "astro/degrees.h"
#include "forms/form_gt_main.h"
#include "forms/form_pictures.h"
#include "map/city_names.h"
#include "map/geometry.h"
#include "map/graticule.h"
#include "map/hour_ruler.h"
#include "map/moon_disc.h"
#include "map/stored_pictures.h"
#include "map/sun_overlays.h"
#include "map/twilight.h"
#include "state/extras.h"
#include "state/numbers.h"
#include "sundial/dial.h"

namespace gloamtide {
namespace {

// Part of a picture, in device pixels, onto the map as the instant turns it.
void LayTurned(PictureSurface& Source, int X, int Y, std::int64_t Width, int Height) {
    BitBltTurned(FormPictures.PictureNightSplit, X, Y, Width, Height, Source, state.MapShift);
}

void LayNight() {
    PictureSurface& Night = ShownMapPictures().Night;
    LayTurned(Night, 0, 0, Night.Canvas().Width, Night.Canvas().Height);
}

// Where the lit span lies at StripLatitude. Sets StripTop, DayHalfWidth, StripLeftX, StripRightX.
void PlaceDayStrip() {
    state.StripTop = LatitudeToPixelY(state.StripLatitude);
    // The supplement of the half-day arc. The clamp of ArcCosDeg makes polar day and polar night.
    const double A = ArcCosDeg(state.TanSunDeclination / TanDeg(90.0F - state.StripLatitude));
    state.DayHalfWidth = Single(181.0 - A);
    state.StripRightX = LongitudeToMapX(-state.DayHalfWidth) - state.EquationOfTimeMapShift;
    state.StripLeftX = LongitudeToMapX(state.DayHalfWidth) - state.EquationOfTimeMapShift;
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

// The end of the Earth that lies in polar night, or the map's end before it. Beyond it nothing is lit.
void StartStrips() {
    state.StripStartLatitude = state.SunDeclination <= 0.0 ? std::min(Single(state.SunDeclination + 90.0), 80.0F)
                                                           : std::max(Single(state.SunDeclination - 90.0), -70.0F);
}

// From the end of the Earth that lies in polar night to the other end of the map. The strips are a little higher than
// the steps between them, so that they leave no gaps; beyond 50 degrees, where the terminator bends, they are finer.
void LayDayStrips() {
    const double FineHeight = state.MapHeight / 250.0;
    const double CoarseHeight = state.MapHeight / 170.0;
    if (state.SunDeclination <= 0.0) {
        LayBand(state.StripStartLatitude, 50.0F, -0.4F, FineHeight);
        LayBand(50.0F, -50.0F, -0.75F, CoarseHeight);
        LayBand(-50.0F, -70.0F, -0.4F, FineHeight);
    } else {
        LayBand(state.StripStartLatitude, -50.0F, 0.4F, -FineHeight);
        LayBand(-50.0F, 50.0F, 0.75F, -CoarseHeight);
        LayBand(50.0F, 80.0F, 0.4F, -FineHeight);
    }
}

// At any other density the strips would show as steps: each row of device pixels is a strip of its own, reckoned at
// the latitude of its middle, with its ends on device pixels.
void LayDayRows() {
    PictureSurface& Map = FormPictures.PictureNightSplit;
    const double Density = Map.Density;
    const int Rows = Map.Canvas().Height;
    state.StripHeight = Single(1.0 / Density);
    for (int Row = 0; Row < Rows; ++Row) {
        state.StripLatitude = Single(80.0 - (Row + 0.5) / Density * 150.0 / state.MapHeight);
        const bool Lit = state.SunDeclination <= 0.0 ? state.StripLatitude <= state.StripStartLatitude
                                                     : state.StripLatitude >= state.StripStartLatitude;
        if (!Lit) continue;
        PlaceDayStrip();
        const int Left = ToInt32(state.StripLeftX * Density);
        const int Right = ToInt32(state.StripRightX * Density);
        LayTurned(ShownMapPictures().Day, Left, Row, std::int64_t{Right} - Left, 1);
    }
}

// The edge between day and night is soft where the user asks for it, and on the terrain.
void LayDay() {
    if (extras.TwilightShown == True || state.MapTypeShown == TerrainMap) {
        LayTwilight();
        return;
    }
    StartStrips();
    if (FormPictures.PictureNightSplit.Density == 1.0) {
        LayDayStrips();
    } else {
        LayDayRows();
    }
}

// The order decides what covers what.
void DrawOverlays() {
    if (extras.TwilightLinesShown == True) DrawTwilightLines();
    if (state.ShowSun == True) DrawSunMarker();
    if (state.ShowMoon == True) DrawMoonDisc();
    if (state.ShowAnalemma == True) DrawAnalemma();
    if (state.ShowTimezones == True) DrawZoneHourRuler();
    FormGTMain.LabelZonehour.Visible = state.ShowTimezones == True;
    if (state.ShowMapGrid == True) DrawMapGrid();
    if (extras.CityNamesShown == True) DrawCityNames();
    DrawDateBand();
    if (state.ShowSundial == True) DrawSundial();
    FormGTMain.PictureSundial.Visible = state.ShowSundial == True;
}

}  // namespace

void BlitDayStrip() {
    PlaceDayStrip();
    // Map pixels, not map units: the span lies symmetrically about the middle of the map.
    const int Left = ToInt32(state.StripLeftX);
    const int Top = ToInt32(state.StripTop);
    const int Width = ToInt32(static_cast<double>(state.StripRightX) - state.StripLeftX);
    LayTurned(ShownMapPictures().Day, Left, Top, Width, ToInt32(state.StripHeight));
}

void RedrawMap() {
    // Nobody looks before the end, so the new map is put together where the last one was shown: one picture less.
    Bitmap& Map = FormPictures.PictureNightSplit.Picture;
    Map = std::exchange(FormGTMain.PictureGT.Picture, Bitmap());
    RotateMap();
    LayNight();
    LayDay();
    DrawOverlays();
    FormGTMain.PictureGT.TakePicture(std::exchange(Map, Bitmap()));
}

}  // namespace gloamtide
