// The location that a command line names.
#pragma once

#include <QString>

namespace gloamtide {

// Makes a city of the list, or "latitude,longitude" in degrees, the location, and its zone the zone in force, as the
// Configure dialog does. A city goes by its whole name or by that before the first comma, letter case set aside.
//   Sets:   LocationName, LocationLat, LocationLong, ZoneHours, ZoneText
//   Errors: throws UsageError where it is none, more than one, or beyond the map
void TakePlace(const QString& Text);

}  // namespace gloamtide
