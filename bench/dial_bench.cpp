// How long one drawing of the sundial takes: in the middle latitudes, and near the equator with its 761 shadow lines.

#include <benchmark/benchmark.h>

#include "bench/program.h"
#include "clock/recomputation.h"
#include "state/state.h"
#include "sundial/dial.h"

namespace gloamtide {
namespace {

void DrawDial(benchmark::State& Runs, double Latitude) {
    StartOnce();
    const SharedState Before = state;
    state.LocationLat = Latitude;
    state.CurrentJD = 2461213.2;  // an afternoon in June
    RecomputeAlmanac();
    for (auto _ : Runs) DrawSundial();
    state = Before;
    RecomputeAlmanac();
}

BENCHMARK_CAPTURE(DrawDial, Middle, 40.0)->Name("the sundial at 40 degrees")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(DrawDial, Equator, 5.0)->Name("the sundial at 5 degrees")->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace gloamtide
