// The Moon on the map.
#pragma once

namespace gloamtide {

// Draws the Moon where it stands overhead, its phase told in thirteen steps. The map looks down on the Earth, so from
// new to full Moon the lit side is on the left.
//   Reads:  MoonElongationHours, MoonMapHour, MoonDeclination, ScreenClass, MarkerRadiusX
void DrawMoonDisc();

}  // namespace gloamtide
