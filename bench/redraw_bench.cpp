// How long a redraw of the map takes beside plain copies of as many bytes as it has to move.

#include <benchmark/benchmark.h>

#include <cstring>

#include "bench/program.h"
#include "forms/form_pictures.h"
#include "map/day_night.h"
#include "map/stored_pictures.h"
#include "state/state.h"

namespace gloamtide {
namespace {

// Two rotations, the strips and the hand-over move about four bitmaps.
void FourCopies(benchmark::State& Runs) {
    StartOnce();
    const PicturesForm& F = FormPictures;
    const std::array<const Bitmap*, 4> From = {&F.PictureDay.Picture, &F.PictureNight.Picture,
                                               &F.PictureDaySplit.Picture, &F.PictureNightSplit.Picture};
    std::array<Bitmap, 4> To = {*From[0], *From[1], *From[2], *From[3]};
    for (auto _ : Runs) {
        for (std::size_t Each = 0; Each < From.size(); ++Each) {
            std::memcpy(To[Each].Pixels.data(), From[Each]->Pixels.data(), From[Each]->Pixels.size() * sizeof(Color));
            benchmark::DoNotOptimize(To[Each].Pixels.data());
            benchmark::ClobberMemory();
        }
    }
}

void Redraw(benchmark::State& Runs) {
    StartOnce();
    for (auto _ : Runs) {
        RedrawMap();
        benchmark::ClobberMemory();
    }
}

void RedrawWithOverlays(benchmark::State& Runs) {
    StartOnce();
    SetOverlays(True);
    for (auto _ : Runs) {
        RedrawMap();
        benchmark::ClobberMemory();
    }
    SetOverlays(False);
}

// After a change of the map type, with city marks and zone lines.
void Rebuild(benchmark::State& Runs) {
    StartOnce();
    SetOverlays(True);
    for (auto _ : Runs) {
        ResetMapPictures();
        RedrawMap();
    }
    SetOverlays(False);
    RedrawMap();
}

BENCHMARK(FourCopies)->Name("four memcpy of a map")->Unit(benchmark::kMicrosecond);
BENCHMARK(RedrawWithOverlays)->Name("RedrawMap, all overlays")->Unit(benchmark::kMicrosecond);
BENCHMARK(Rebuild)->Name("the map pictures of a new type")->Unit(benchmark::kMicrosecond);
BENCHMARK(Redraw)->Name("RedrawMap, no overlay")->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace gloamtide
