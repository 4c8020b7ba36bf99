// The full recomputation of what follows from the instant and the place.
#pragma once

namespace gloamtide {

// Brings the whole almanac up to date, after start-up, after a configuration was opened, after the Configure dialog.
// The map is redrawn by the caller, when its window stands.
//   Reads:  CurrentJD, the location and its clock
//   Sets:   all that the routines of astro/ set, the date fields, the captions of the panel
void RecomputeAlmanac();

}  // namespace gloamtide
