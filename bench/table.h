// What the benchmarks print: each time beside a baseline of the same run.
#pragma once

#include <span>

namespace gloamtide {

struct TableLine {
    const char* Name;
    const char* Baseline;
};

// Runs all benchmarks of the program and prints the lines whose two times were measured: medians of processor time, or
// of what a benchmark takes itself. Returns the program's exit status.
int PrintTable(int Count, char** Arguments, std::span<const TableLine> Lines);

}  // namespace gloamtide
