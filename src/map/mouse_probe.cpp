#include "map/mouse_probe.h"

#include <cmath>
#include <string>

#include "forms/form_gt_main.h"
#include "map/geometry.h"
#include "state/number_pattern.h"
#include "state/numbers.h"
#include "state/state.h"

namespace gloamtide {
namespace {

std::string InDegrees(double Value, const char* DegreePattern, const char* Positive, const char* Negative) {
    if (!(Value > 0.0 || Value < 0.0)) return "0d 0m";
    const double Magnitude = std::abs(Value);
    double Degrees = std::floor(Magnitude);
    double Minutes = RoundHalfEven((Magnitude - Degrees) * 60.0);
    if (Minutes == 60.0) {
        Minutes = 0.0;
        Degrees += 1.0;
    }
    return FormatNumber(Degrees, DegreePattern) + "d " + FormatNumber(Minutes, "00") + "m" +
           (Value > 0.0 ? Positive : Negative);
}

// Kept: the table's order decides, not nearness, and no city is found across the date line.
std::string CityNear(double Longitude, double Latitude) {
    constexpr double Reach = 0.4;  // degrees
    for (std::size_t City = 1; City <= static_cast<std::size_t>(state.CityCount); ++City) {
        const double CityLongitude = state.CityLongitude[City];
        const double CityLatitude = state.CityLatitude[City];
        if (CityLongitude < Longitude + Reach && CityLongitude > Longitude - Reach && CityLatitude < Latitude + Reach &&
            CityLatitude > Latitude - Reach) {
            return state.CityName[City];
        }
    }
    return "";
}

}  // namespace

void FormGTMain_PictureGT_MouseMove(float X, float Y) {
    MainForm& F = FormGTMain;
    const float Longitude = RotatedMapXToLongitude(X);
    F.LabelMouseLat.Caption = "Lat: " + InDegrees(Y, "#0", "  North", "  South");
    F.LabelMouseLong.Caption = "Long: " + InDegrees(Longitude, "##0", "  East", "  West");
    F.LabelCity.Caption = state.ShowCities == True ? CityNear(Longitude, Y) : "";
}

}  // namespace gloamtide
