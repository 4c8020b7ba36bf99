// What is the program's own, beside what a configuration file holds: kept in its settings, each off at the first start
// where it changes the picture.
#pragma once

#include "state/state.h"

namespace gloamtide {

struct Extras {
    Boolean AlmanacShown = True;  // the panel under the map
};

inline Extras extras;

}  // namespace gloamtide
