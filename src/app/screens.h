// The screens that the program has layouts for.
#pragma once

#include <vector>

#include "platform/qt/qt_host.h"

namespace gloamtide {

// From the narrowest to the widest, each with the size of the main window's board.
std::vector<ProgramScreen> ProgramScreens();

}  // namespace gloamtide
