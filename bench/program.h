// The started program, at the largest map size, shared by all benchmarks of a run.
#pragma once

#include "state/state.h"

namespace gloamtide {

void StartOnce();

// Shows or hides all that can be shown on the map: Sun, Moon, analemma, cities, time zones with the hour ruler, grid,
// sundial.
inline void SetOverlays(Boolean Shown) {
    state.ShowSun = state.ShowMoon = state.ShowAnalemma = Shown;
    state.ShowCities = state.ShowTimezones = state.ShowMapGrid = Shown;
    state.ShowSundial = Shown;
}

}  // namespace gloamtide
