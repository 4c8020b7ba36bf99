// How long a redraw of the map takes beside plain copies of as many bytes as it has to move.

#include <benchmark/benchmark.h>

#include <cstring>

#include "bench/program.h"
#include "forms/form_gt_main.h"
#include "forms/form_pictures.h"
#include "map/day_night.h"
#include "map/stored_pictures.h"
#include "state/extras.h"
#include "state/state.h"

namespace gloamtide {
namespace {

void SetDensity(double Density) {
    FormGTMain.PictureSundial.Density = Density;
    FormGTMain.PictureGTContainer.Density = Density;
    FormGTMain.PictureGT.Density = Density;
}

// What it takes to turn day and night whole, to lay the one over the other and to hand a copy over.
void FourCopies(benchmark::State& Runs, double Density) {
    StartOnce();
    SetDensity(Density);
    RedrawMap();
    const PicturesForm& F = FormPictures;
    const std::array<Bitmap, 4> From = {F.PictureDay.Picture, F.PictureNight.Picture, F.PictureDay.Picture,
                                        F.PictureNight.Picture};
    std::array<Bitmap, 4> To = From;
    for (auto _ : Runs) {
        for (std::size_t Each = 0; Each < From.size(); ++Each) {
            std::memcpy(To[Each].Pixels.data(), From[Each].Pixels.data(), From[Each].Pixels.size() * sizeof(Color));
            benchmark::DoNotOptimize(To[Each].Pixels.data());
            benchmark::ClobberMemory();
        }
    }
    SetDensity(1.0);
}

void Redraw(benchmark::State& Runs, Boolean Overlays, double Density) {
    StartOnce();
    SetOverlays(Overlays);
    SetDensity(Density);
    RedrawMap();  // makes the pictures that are shown
    for (auto _ : Runs) {
        RedrawMap();
        benchmark::ClobberMemory();
    }
    SetOverlays(False);
    SetDensity(1.0);
}

// The soft edge, and all overlays that any map can have. Nothing decodes the terrain here: the natural map has its
// edge.
void RedrawTerrain(benchmark::State& Runs, double Density) {
    StartOnce();
    extras.TerrainShown = extras.TwilightLinesShown = extras.CityNamesShown = True;
    ResetMapPictures();
    Redraw(Runs, True, Density);
    extras = Extras{};
    ResetMapPictures();
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

constexpr auto Micro = benchmark::kMicrosecond;
BENCHMARK_CAPTURE(FourCopies, 1, 1.0)->Name("four memcpy of a map")->Unit(Micro);
BENCHMARK_CAPTURE(FourCopies, 2, 2.0)->Name("four memcpy of a map, density 2")->Unit(Micro);
BENCHMARK_CAPTURE(FourCopies, 3, 3.0)->Name("four memcpy of a map, density 3")->Unit(Micro);
BENCHMARK_CAPTURE(Redraw, Plain, False, 1.0)->Name("RedrawMap, no overlay")->Unit(Micro);
BENCHMARK_CAPTURE(Redraw, 1, True, 1.0)->Name("RedrawMap, all overlays")->Unit(Micro);
BENCHMARK_CAPTURE(Redraw, 2, True, 2.0)->Name("RedrawMap, all overlays, density 2")->Unit(Micro);
BENCHMARK_CAPTURE(Redraw, 3, True, 3.0)->Name("RedrawMap, all overlays, density 3")->Unit(Micro);
BENCHMARK_CAPTURE(RedrawTerrain, 1, 1.0)->Name("RedrawMap, terrain, all overlays")->Unit(Micro);
BENCHMARK_CAPTURE(RedrawTerrain, 2, 2.0)->Name("RedrawMap, terrain, all overlays, density 2")->Unit(Micro);
BENCHMARK(Rebuild)->Name("the map pictures of a new type")->Unit(Micro);

}  // namespace
}  // namespace gloamtide
