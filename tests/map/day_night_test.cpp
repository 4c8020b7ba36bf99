#include "map/day_night.h"

#include "clock/clock.h"
#include "clock/recomputation.h"
#include "map/stored_pictures.h"
#include "places/zones.h"
#include "tests/golden.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

using DayNight = ProgramTest;

// The whole board, map and almanac, through the program's own start.
struct Scene {
    const char* Name;
    int ScreenWidth;
    std::int16_t MapType;
    const char* Shown;  // initials: Sun, Moon, Analemma, Cities, Grid, Zones, dial (D)
    DateTime Greenwich;
    const char* Place;
    double Lat;
    float Long, Zone;
    std::int16_t Daylight;
    Boolean Corrections;
};

const Scene Scenes[] = {
    {"0-natural-equinox-noon", 640, 0, "", {2026, 3, 5, 20, 12, 0, 0, 0}, "Cleveland, Ohio", 41.598, -81.697F, 5, 0, 0},
    {"0-natural-cities-june", 640, 0, "CM", {2026, 6, 0, 21, 3, 15, 0, 0}, "Quito", -0.25, -78.5F, 5, 0, 0},
    {"0-natural-zones-december", 640, 0, "ZS", {2026, 12, 1, 21, 20, 50, 0, 0}, "Apia", -13.8, -171.75F, -12, 1, 0},
    {"0-political-grid-may", 640, 1, "GSA", {2025, 5, 4, 8, 0, 29, 59, 0}, "", 0.0, 0.0F, 0, 0, 0},
    {"0-natural-everything", 640, 0, "SMACGZD", {2024, 4, 1, 8, 18, 21, 0, 0}, "Iqaluit", 63.75, -68.5F, 5, 1, True},
    {"1-political-everything", 800, 1, "SMACGZD", {2025, 12, 0, 21, 2, 30, 0, 0}, "Sydney", -33.87, 151.2F, -10, 1, 0},
    {"1-natural-dial-by-night", 800, 0, "SAD", {2026, 2, 3, 11, 23, 59, 0, 0}, "Kathmandu", 27.7, 85.3F, -5.75F, 0, 0},
    {"2-political-near-the-equator", 1024, 1, "CZD", {2026, 9, 3, 23, 0, 5, 0, 0}, "Nauru", -0.5, 166.9F, -12, 0, True},
    {"2-natural-grid-zones-noon", 1024, 0, "GZM", {2000, 1, 6, 1, 12, 0, 0, 0}, "Greenwich", 51.5, 0.0F, 0, 0, 0},
    {"3-political-everything", 1280, 1, "SMACGZD", {1999, 8, 3, 11, 10, 3, 0, 0}, "Plymouth", 50.4, -4.1F, 0, 1, True},
    {"3-natural-everything", 1280, 0, "SMACGZD", {3999, 7, 1, 5, 6, 45, 0, 0}, "Mumbai", 18.93, 72.83F, -5.5F, 0, 0},
};

void ShowScene(const Scene& S) {
    const auto Shows = [&](char Initial) {
        return std::string(S.Shown).find(Initial) == std::string::npos ? False : True;
    };
    state.ShowSun = Shows('S');
    state.ShowMoon = Shows('M');
    state.ShowAnalemma = Shows('A');
    state.ShowCities = Shows('C');
    state.ShowMapGrid = Shows('G');
    state.ShowTimezones = Shows('Z');
    state.ShowSundial = Shows('D');
    state.MapType = S.MapType;
    if (state.MapType != state.MapTypeShown) ResetMapPictures();
    state.LocationName = S.Place;
    state.LocationLat = S.Lat;
    state.LocationLong = S.Long;
    state.ZoneHours = S.Zone;
    state.DaylightHours = S.Daylight;
    state.SundialLongitudeCorrection = state.SundialEOTCorrection = state.SundialDSTCorrection = S.Corrections;
    SelectZoneRow();
    ReadSystemClock();
    state.OffsetDays = 0.5 / 86400.0;  // away from the cut of the seconds
    state.CurrentJD = state.SystemJD + state.OffsetDays;
    RecomputeAlmanac();
    RedrawMap();
}

TEST_F(DayNight, ScenesAreAsTheyWereAndStaySo) {
    for (const Scene& S : Scenes) {
        Desktop.System = S.Greenwich;
        if (Desktop.ScreenWidth != S.ScreenWidth || LoadedForms.empty()) {
            Desktop.ScreenWidth = S.ScreenWidth;
            RenewProgram();
            Start();
        }
        ShowScene(S);
        RedrawMap();  // the second shadow of a dial starts from the last hour line of the first
        const Bitmap Map = Painted(FormGTMain.PictureGTContainer);
        FormGTMain_Timer1_Timer();  // draws the location
        ExpectGoldenPicture(S.Name, Painted(FormGTMain.PictureGTContainer));
        RedrawMap();
        EXPECT_EQ(Painted(FormGTMain.PictureGTContainer).Pixels, Map.Pixels) << S.Name << ", redrawn";
    }
}

}  // namespace
}  // namespace gloamtide
