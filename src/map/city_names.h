// The names of cities on the map.
#pragma once

namespace gloamtide {

// Writes the names of the largest cities beside their marks on the rotated map: none covers another name or a mark,
// none is cut at an edge of the map. The more device pixels the map has, the more names there are, and the smaller
// they are beside it. A city that is named gets its mark where ShowCities is off.
//   Reads:  the table of cities, ShowCities, CityMarkerRadius, MapShift, MapWidth
void DrawCityNames();

}  // namespace gloamtide
