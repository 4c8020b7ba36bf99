#include "map/mouse_probe.h"

#include <cmath>
#include <string>

#include "astro/subpoint.h"
#include "forms/form_gt_main.h"
#include "map/geometry.h"
#include "platform/translation.h"
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

std::string TenthsOf(double Degrees, const char* Positive, const char* Negative) {
    return Tr(Degrees < 0.0 ? Negative : Positive, {FormatNumber(std::abs(Degrees), "##0.0")});
}

std::string Told(const EarthPoint& Place) {
    return TenthsOf(Place.Latitude, "%1 N", "%1 S") + ", " + TenthsOf(Place.Longitude, "%1 E", "%1 W");
}

// Whether the pointer is on a mark, its rays included. Hour: local time at the mark's place on the map.
bool IsOnMark(float X, float Y, float Hour, double Latitude) {
    const double Right = X - HourToMapX(Hour);
    const double Up = (Y - Latitude) * state.MapHeight / 150.0;
    return std::hypot(Right, Up) <= 1.4 * state.MarkerRadiusX;
}

// Of the marks the Moon's is on top.
std::string MarkUnder(float X, float Y) {
    if (state.ShowMoon == True && IsOnMark(X, Y, state.MoonMapHour, state.MoonDeclination)) {
        return Tr("Moon, %1 % lit, overhead %2", {FormatNumber(state.MoonLitPercent, "##0"), Told(MoonOverhead())});
    }
    const bool OnSun = IsOnMark(X, Y, 12.0F - state.EquationOfTime / 60.0F, state.SunDeclination);
    return state.ShowSun == True && OnSun ? Tr("Sun overhead %1", {Told(SunOverhead())}) : "";
}

}  // namespace

void FormGTMain_PictureGT_MouseMove(float X, float Y) {
    MainForm& F = FormGTMain;
    const float Longitude = RotatedMapXToLongitude(X);
    F.LabelMouseLat.Caption = "Lat: " + InDegrees(Y, "#0", "  North", "  South");
    F.LabelMouseLong.Caption = "Long: " + InDegrees(Longitude, "##0", "  East", "  West");
    F.PictureGT.ToolTipText = MarkUnder(X, Y);
    F.LabelCity.Caption = state.ShowCities == True ? CityNear(Longitude, Y) : "";
}

}  // namespace gloamtide
