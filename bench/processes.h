// The programs as a whole, beside a Qt program that does as little as it can.
#pragma once

namespace gloamtide {

// Prints a line for the time of gloamtide-still from start to end and one for the memory of gloamtide; none where the
// programs were not built.
void PrintProcesses();

}  // namespace gloamtide
