// How long one tick of the clock takes.

#include <benchmark/benchmark.h>

#include "bench/program.h"
#include "clock/clock.h"

namespace gloamtide {
namespace {

void Tick(benchmark::State& Runs) {
    StartOnce();
    for (auto _ : Runs) FormGTMain_Timer1_Timer();
}

BENCHMARK(Tick)->Name("one tick of the clock")->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace gloamtide
