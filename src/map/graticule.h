// What is drawn on the map by longitude and latitude: cities, grid, the marker of the location.
#pragma once

namespace gloamtide {

// Marks every city in the cached pictures that show cities, as far as they exist, in the map's unrotated position.
//   Reads:  CityLongitude, CityLatitude, CityCount, CityMarkerRadius
void DrawCityMarks();

// Draws parallels, meridians, and the tropics and polar circles dotted, on the rotated map.
//   Reads:  MapShift
void DrawMapGrid();

// Draws the location as a disc on the shown map itself, white and grey in turn; the next redraw removes it.
//   Reads:  LocationLong, LocationLat, MapShift
//   Sets:   BlinkPhase
void BlinkLocationMarker();

}  // namespace gloamtide
