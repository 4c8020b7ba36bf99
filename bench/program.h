// The started program, at the largest map size, shared by all benchmarks of a run.
#pragma once

#include "state/state.h"

namespace gloamtide {

void StartOnce();

// Shows or hides all that can be shown on the map: Sun, Moon, analemma, cities, time zones with the hour ruler, grid,
// sundial.
void SetOverlays(Boolean Shown);

}  // namespace gloamtide
