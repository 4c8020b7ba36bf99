// The season in both hemispheres and the time to the next.
#pragma once

namespace gloamtide {

// Puts the season of the shown instant into the state.
//   Reads:  LocalYear, CurrentJD
//   Sets:   SeasonNorth, SeasonSouth, SeasonDaysLeft (never negative)
//   Good:   fitted to the years about 2000; for far years the instants drift
//   Source: Meeus, Astronomical Algorithms, chapter 27, the polynomials alone
void SeasonCountdown();

}  // namespace gloamtide
