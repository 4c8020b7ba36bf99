// Where the Sun stands overhead, now and in the course of a year.
#pragma once

namespace gloamtide {

// Dots for every ten days of the year from the shown instant on.
//   Reads:  CurrentJD, MapWidth
void DrawAnalemma();

// A disc with eight rays.
//   Reads:  CurrentJD, MapWidth, MarkerRadiusX, MarkerRadiusY
void DrawSunMarker();

}  // namespace gloamtide
