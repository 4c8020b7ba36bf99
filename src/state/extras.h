// What is the program's own, beside what a configuration file holds: kept in its settings, each off at the first start
// where it changes the picture.
#pragma once

#include "state/state.h"

namespace gloamtide {

struct Extras {
    Boolean AlmanacShown = True;         // the panel under the map
    Boolean TerrainShown = False;        // the terrain map in the natural one's place, where MapType is 0
    Boolean TwilightShown = False;       // a soft edge between day and night; terrain always has it
    Boolean TwilightLinesShown = False;  // sunrise and sunset, and where each twilight ends
    Boolean CityNamesShown = False;
};

inline Extras extras;

}  // namespace gloamtide
