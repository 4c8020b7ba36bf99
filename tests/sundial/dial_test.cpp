#include "sundial/dial.h"

#include "astro/solar.h"
#include "clock/clock.h"
#include "tests/golden.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

using Dial = ProgramTest;

// Four in a row: spans of hours and quadrants, both centres, both hemispheres, day and night, the three corrections.
TEST_F(Dial, OfManyPlaces) {
    struct Place {
        double Lat;
        float Long, Zone;
        std::int16_t Daylight;
        double LocalJD;
        Boolean LongitudeCorrection, EOTCorrection, DSTCorrection;
    };
    constexpr double June = 2461212.5;      // 2026 June 21, 0h
    constexpr double November = 2461347.5;  // 2026 November 3, 0h: the Sun 16 minutes ahead
    constexpr double February = 2461082.5;  // 2026 February 11, 0h: the Sun 14 minutes behind
    constexpr double Hour = 1.0 / 24.0;
    const Place Places[] = {
        {41.4, 0.0F, 0.0F, 0, June + 15 * Hour, False, False, False},
        {41.4, -81.7F, 5.0F, 1, November + 9.25 * Hour, True, True, True},
        {48.0, 7.49F, -1.0F, 0, February + 16.5 * Hour, True, False, False},
        {30.0, 31.25F, -2.0F, 0, June + 5.5 * Hour, False, True, False},
        {-33.9, 151.2F, -10.0F, 1, November + 10 * Hour, False, False, True},
        {-33.9, 18.4F, -2.0F, 0, February + 17 * Hour, False, False, False},
        {-52.0, -69.0F, 4.0F, 0, June + 11 * Hour, True, True, True},
        {-69.0, 39.5F, -3.0F, 0, November + 22 * Hour, False, False, False},
        {0.0, -78.5F, 5.0F, 0, June + 10 * Hour, False, False, False},
        {5.0, -52.3F, 3.0F, 0, June + 15.5 * Hour, False, False, False},
        {-9.98, -78.0F, 5.0F, 1, February + 8 * Hour, False, False, True},
        {10.0, 78.1F, -5.5F, 0, November + 12.25 * Hour, False, False, False},
        {69.0, 25.5F, -2.0F, 0, June + 0.25 * Hour, False, False, False},
        {55.75, 37.6F, -3.0F, 0, June + 21.1 * Hour, True, True, False},
        {41.4, -81.7F, 5.0F, 0, June + 23 * Hour, False, False, False},
        {-2.0, 45.0F, -3.0F, 0, June + 1 * Hour, True, False, False},
    };
    Desktop.ScreenWidth = 1280;
    Start();
    const PictureSurface& Picture = FormGTMain.PictureSundial;
    const int Width = static_cast<int>(Picture.Width.Pixels());
    const int Height = static_cast<int>(Picture.Height.Pixels());
    Bitmap Sheet(4 * Width, 4 * Height, 0);
    int Number = 0;
    for (const Place& P : Places) {
        state.LocationLat = P.Lat;
        state.LocationLong = P.Long;
        state.ZoneHours = P.Zone;
        state.DaylightHours = P.Daylight;
        state.CurrentJD = P.LocalJD + (P.Zone - P.Daylight) / 24.0 + 0.5 / 86400.0;  // away from the cut of the seconds
        state.SundialLongitudeCorrection = P.LongitudeCorrection;
        state.SundialEOTCorrection = P.EOTCorrection;
        state.SundialDSTCorrection = P.DSTCorrection;
        SolarPosition();
        UpdateDateFields();
        DrawSundial();
        Lay(Sheet, Painted(Picture), Number % 4 * Width, Number / 4 * Height);
        ++Number;
    }
    ExpectGoldenPicture("dials", Sheet);
}

}  // namespace
}  // namespace gloamtide
