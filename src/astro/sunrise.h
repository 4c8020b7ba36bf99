// Sunrise and sunset of the shown day, and the Sun's path over the map in a year.
#pragma once

namespace gloamtide {

// Puts the local times of sunrise and sunset, or that there are none, into the state. A closed formula: the Sun's
// place is taken once, at 12h Universal Time of the local civil day; the Sun's centre stands 0.833 degrees below the
// plain horizon then.
//   Reads:  CurrentJD, ZoneHours, DaylightHours, LocationLat, LocationLong
//   Sets:   SunNoRiseSet, SunNoRiseSetText; unless the Sun stays up or down: SunriseHour, SunriseMinute, SunsetHour,
//           SunsetMinute, SunriseChangeSeconds, SunriseChangeText, SunsetChangeSeconds, SunsetChangeText
//   Good:   within 2 minutes up to 50 degrees of latitude, 3 up to 60 (tests/astro/sunrise_test.cpp)
//   Errors: none; close to the polar circles the Sun is said to rise and set about two minutes apart
void SunriseSunset();

// Where the Sun stands overhead.
struct SubsolarPoint {
    float Declination;     // degrees, north positive
    float EquationOfTime;  // hours, positive when the Sun is ahead of the clock
};

// For the overlays of the map; leaves the fields of SolarPosition alone.
//   JD: days, Greenwich
SubsolarPoint SubsolarPointAt(double JD);

}  // namespace gloamtide
