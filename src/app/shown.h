// What lies over the map, by the names that a command line has for it.
#pragma once

#include <vector>

#include "state/state.h"

namespace gloamtide {

struct ShownThing {
    const char* Name;
    Boolean& Flag;  // of the state or of the extras
};

const std::vector<ShownThing>& ShownThings();

}  // namespace gloamtide
