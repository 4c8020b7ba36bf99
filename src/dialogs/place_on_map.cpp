#include "dialogs/place_on_map.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "clock/recomputation.h"
#include "dialogs/configure.h"
#include "forms/form_configure.h"
#include "forms/form_gt_main.h"
#include "map/day_night.h"
#include "map/geometry.h"
#include "platform/translation.h"
#include "state/number_pattern.h"
#include "state/state.h"

namespace gloamtide {
namespace {

struct Place {
    double Latitude;   // degrees, north positive
    double Longitude;  // degrees, east positive
    std::size_t City;  // row of the nearest city; 0 where none is near
};

// The nearest city's row; 0 where none is within reach.
std::size_t CityAt(double X, double Y) {
    constexpr double Reach = 8.0;  // map pixels
    const double Width = state.MapWidth;
    std::size_t Nearest = 0;
    double Least = Reach;
    for (std::size_t City = 1; City <= static_cast<std::size_t>(state.CityCount); ++City) {
        const double Across = std::abs(LongitudeToRotatedMapX(static_cast<double>(state.CityLongitude[City])) - X);
        const double Down = LatitudeToPixelY(static_cast<double>(state.CityLatitude[City])) - LatitudeToPixelY(Y);
        const double Distance = std::hypot(std::min(Across, Width - Across), Down);
        if (Distance > Least) continue;
        Least = Distance;
        Nearest = City;
    }
    return Nearest;
}

Place PlaceAt(float X, float Y) { return {Y, RotatedMapXToLongitude(X), CityAt(X, Y)}; }

// "41d 36m North, 81d 42m West", as the lists of the dialog have it.
std::string NameByCoordinates() {
    const ConfigureForm& F = FormConfigure;
    const auto Told = [](const ComboBox& Degrees, const ComboBox& Minutes, const char* Half) {
        return FormatNumber(Degrees.ListIndex, "##0") + "d " + FormatNumber(Minutes.ListIndex, "00") + "m " + Half;
    };
    return Told(F.ComboSetLatDeg, F.ComboSetLatMin, F.OptionSetLat[1].Value ? "South" : "North") + ", " +
           Told(F.ComboSetLongDeg, F.ComboSetLongMin, F.OptionSetLong[1].Value ? "West" : "East");
}

void ConfigureAt(const Place& Chosen) {
    MenuConfigure_Click();
    if (Chosen.City > 0) return PickCity(Chosen.City);
    PickPlace("", Chosen.Latitude, Chosen.Longitude);
    FormConfigure.ComboCityName.Type(NameByCoordinates());
}

void GoToCity(std::size_t Row) {
    ShowConfigurationInForce();
    PickCity(Row);
    TakeListedPlace();
    TakeListedZone();
    state.ConfigSaved = False;
    RecomputeAlmanac();
    RedrawMap();
}

}  // namespace

void ConnectPlaceOnMap() {
    FormGTMain.PictureGT.DoubleClick = FormGTMain_PictureGT_DoubleClick;
    FormGTMain.PictureGT.ContextMenu = FormGTMain_PictureGT_ContextMenu;
}

void FormGTMain_PictureGT_DoubleClick(float X, float Y) { ConfigureAt(PlaceAt(X, Y)); }

std::vector<MenuChoice> FormGTMain_PictureGT_ContextMenu(float X, float Y) {
    const Place Here = PlaceAt(X, Y);
    std::vector<MenuChoice> Choices = {{Tr("Set Location Here..."), [Here] { ConfigureAt(Here); }}};
    if (Here.City > 0) Choices.push_back({Tr("Show %1", {state.CityName[Here.City]}), [Here] { GoToCity(Here.City); }});
    return Choices;
}

}  // namespace gloamtide
