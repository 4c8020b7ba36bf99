// Where on the Earth Sun and Moon stand overhead, and where they stand in the location's sky.
#pragma once

namespace gloamtide {

struct EarthPoint {
    double Latitude;   // degrees, north positive
    double Longitude;  // degrees, east positive, -180 up to 180
};

// The place that the Sun stands over.
//   Reads:  CurrentJD, SunDeclination, EquationOfTime
EarthPoint SunOverhead();

// The place that the Moon stands over, as seen from the Earth's centre. The disc on the map stands elsewhere by twice
// the equation of time, see LunarPosition.
//   Reads:  what SunOverhead reads, SunRightAscension, MoonRightAscension, MoonDeclination
EarthPoint MoonOverhead();

struct SkyPoint {
    double Altitude;  // degrees above the plain horizon, without refraction
    double Azimuth;   // degrees from north through east, 0 up to 360
};

// Where a body stands in the sky over the location.
//   Overhead: the place that it stands over
//   Reads:  LocationLat, LocationLong
//   Source: Meeus, Astronomical Algorithms, chapter 13
SkyPoint SkyPointOf(const EarthPoint& Overhead);

}  // namespace gloamtide
