// The Moon's place, age and lit part: the largest terms of the theory in Meeus.
#pragma once

namespace gloamtide {

// Puts the Moon's place for the shown instant into the state. Runs directly after SolarPosition, whose fields for the
// same instant it reads.
//   Reads:  JulianCenturies to JulianCenturies3, MeanObliquity, SunMeanAnomaly, SunRightAscension, EquationOfTime
//   Sets:   MoonMeanLongitude to MoonLitPercent
//   Good:   six terms each in longitude and latitude: some tenths of a degree; no parallax, no distance
//   Errors: none
//   Source: Meeus, Astronomical Algorithms, chapter 47
void LunarPosition();

// Names the phase for the almanac.
//   Reads:  MoonElongationHours, LocalDay, LocalMonth, MoonNames
//   Sets:   MoonPhaseText
void ChooseMoonPhaseText();

}  // namespace gloamtide
