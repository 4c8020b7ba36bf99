// The map's scales: stored-picture pixels (960 by 510), map pixels (MapWidth by MapHeight, y downward), and map units,
// the user scale of every map surface: X from MapWidth at the left edge to 0 at the right edge, Y the latitude in
// degrees from 80 at the top to -70 at the bottom. A column in map pixels is MapWidth less X.
#pragma once

#include <concepts>

#include "state/state.h"

namespace gloamtide {

constexpr int StoredWidth = 960;   // pixels
constexpr int StoredHeight = 510;  // pixels

// Each conversion reckons in the width of its argument, in the order written, and rounds nothing to whole numbers.
// They read MapWidth, MapHeight and MapShift.

// Degrees of longitude, east positive, of an X of the unrotated map.
template <std::floating_point Number>
Number MapXToLongitude(Number X) {
    return Number(180) - (X * Number(360)) / Number(state.MapWidth);
}

// X of a longitude on the unrotated map, map units.
template <std::floating_point Number>
Number LongitudeToMapX(Number Longitude) {
    return ((Number(180) - Longitude) * Number(state.MapWidth)) / Number(360);
}

// X of a longitude on the map as it was rotated by the last redraw, map units, up to MapWidth itself.
template <std::floating_point Number>
Number LongitudeToRotatedMapX(Number Longitude) {
    const Number X = LongitudeToMapX(Longitude) + Number(state.MapShift);
    return X > Number(state.MapWidth) ? X - Number(state.MapWidth) : X;
}

// Degrees of longitude of an X of the map as it was rotated by the last redraw.
template <std::floating_point Number>
Number RotatedMapXToLongitude(Number X) {
    const Number Width = state.MapWidth;
    Number Unrotated = Width + X - Number(state.MapShift);
    if (Unrotated > Width) Unrotated -= Width;
    return MapXToLongitude(Unrotated);
}

// X of a local mean time in hours on the rotated map: 0 at the left edge, 12 in the middle, 24 at the right edge.
template <std::floating_point Number>
Number HourToMapX(Number Hour) {
    return Number(state.MapWidth) - (Hour * Number(state.MapWidth)) / Number(24);
}

// Map pixels from the top edge of a latitude in degrees; for block transfers alone, since surfaces take latitudes.
template <std::floating_point Number>
Number LatitudeToPixelY(Number Latitude) {
    return Number(state.MapHeight) * ((Number(80) - Latitude) / Number(150));
}

// Turns the map so that the mean Sun stands in its middle.
//   Reads:  GreenwichHour, GreenwichMinute, MapWidth
//   Sets:   RotationHour (0 up to 24), MapShift (0 to MapWidth; both ends mean no rotation)
void RotateMap();

}  // namespace gloamtide
