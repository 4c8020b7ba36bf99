// Dusk and dawn: how the day goes over into the night, by the altitude of the Sun's centre, without refraction.
#pragma once

namespace gloamtide {

// Lays the shown day, turned, over the night of PictureNightSplit with a soft edge: all day from 0.5 degrees above the
// horizon, all night from 18 below, between them mixed as light by a smoothstep of the altitude.
//   Reads:  SunDeclination, EquationOfTimeMapShift, MapShift, MapWidth
//   Errors: all night where there is no such Sun, nor are there lines then
void LayTwilight();

// Draws where the Sun stands 0.833 degrees below the horizon, as it rises or sets, and 6, 12 and 18 degrees, where
// civil, nautical and astronomical twilight end.
//   Reads:  as LayTwilight
void DrawTwilightLines();

}  // namespace gloamtide
