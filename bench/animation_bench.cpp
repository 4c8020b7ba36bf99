// How long one step of the animation takes with everything shown.

#include <benchmark/benchmark.h>

#include "bench/program.h"
#include "clock/animation.h"
#include "state/state.h"

namespace gloamtide {
namespace {

void AnimationStep(benchmark::State& Runs) {
    StartOnce();
    SetOverlays(True);
    state.AnimStepYears = 0.0;
    state.AnimStepDays = 1.0 / 24.0;
    const double Begin = state.CurrentJD;
    for (auto _ : Runs) FormGTMain_Timer3_Timer();
    state.CurrentJD = Begin;
    SetOverlays(False);
}

BENCHMARK(AnimationStep)->Name("one step of the animation, all overlays")->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace gloamtide
