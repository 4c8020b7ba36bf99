#include "astro/subpoint.h"

#include <cmath>

#include "astro/degrees.h"
#include "state/state.h"

namespace gloamtide {
namespace {

// An angle between 0 and 360 degrees, 360 left out.
double Turned(double Degrees) {
    const double Rest = std::fmod(Degrees, 360.0);
    return Rest < 0.0 ? std::fmod(Rest + 360.0, 360.0) : Rest;
}

double East(double Longitude) { return Turned(Longitude + 180.0) - 180.0; }

}  // namespace

EarthPoint SunOverhead() {
    // A Julian day begins at noon: its fraction is Greenwich's time since then.
    const double DaysAfterNoon = state.CurrentJD - std::floor(state.CurrentJD);
    return {state.SunDeclination, East(-360.0 * DaysAfterNoon - state.EquationOfTime / 4.0)};
}

EarthPoint MoonOverhead() {
    const double HoursEast = static_cast<double>(state.MoonRightAscension) - state.SunRightAscension;
    return {state.MoonDeclination, East(SunOverhead().Longitude + 15.0 * HoursEast)};
}

SkyPoint SkyPointOf(const EarthPoint& Overhead) {
    const double Phi = state.LocationLat;
    const double Delta = Overhead.Latitude;
    const double H = state.LocationLong - Overhead.Longitude;  // the hour angle, west positive
    const double Up = SinDeg(Phi) * SinDeg(Delta) + CosDeg(Phi) * CosDeg(Delta) * CosDeg(H);
    const double North = CosDeg(Phi) * SinDeg(Delta) - SinDeg(Phi) * CosDeg(Delta) * CosDeg(H);
    const double West = CosDeg(Delta) * SinDeg(H);
    const double ToDegrees = 180.0 / Pi;
    return {std::atan2(Up, std::hypot(North, West)) * ToDegrees, Turned(std::atan2(-West, North) * ToDegrees)};
}

}  // namespace gloamtide
