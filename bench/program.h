// The started program, at the largest map size, shared by all benchmarks of a run.
#pragma once

namespace gloamtide {

void StartOnce();

}  // namespace gloamtide
