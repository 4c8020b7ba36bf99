// Times what has to be fast and prints one table: each time, and its ratio to a baseline of the same run.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>

#include "bench/processes.h"
#include "bench/program.h"
#include "frame/startup.h"
#include "platform/headless/headless_host.h"
#include "state/state.h"

namespace gloamtide {

void StartOnce() {
    static HeadlessHost Desktop;
    if (state.MapWidth != 0) return;
    Desktop.ScreenWidth = 1280;
    state.StartupSource = ConfigurationSource::Defaults;
    StartProgram();
}

void SetOverlays(Boolean Shown) {
    state.ShowSun = state.ShowMoon = state.ShowAnalemma = Shown;
    state.ShowCities = state.ShowTimezones = state.ShowMapGrid = Shown;
    state.ShowSundial = Shown;
}

}  // namespace gloamtide

namespace {

// Keeps the median of each benchmark's repetitions, in microseconds of processor time.
class Medians : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& Reports) override {
        for (const Run& Each : Reports) {
            if (Each.aggregate_name == "median") Times[Each.run_name.function_name] = Each.GetAdjustedCPUTime();
        }
    }

    std::map<std::string, double> Times;
};

struct Line {
    const char* Name;
    const char* Baseline;
};

constexpr const char* FourCopies = "four memcpy of a map";
constexpr const char* FourCopies2 = "four memcpy of a map, density 2";
constexpr const char* FourCopies3 = "four memcpy of a map, density 3";
constexpr const char* PlainRead = "a plain read of as many bytes";
constexpr const char* PlainWrite = "a plain write, flush and rename";
constexpr Line Lines[] = {
    {"RedrawMap, no overlay", FourCopies},
    {"RedrawMap, all overlays", FourCopies},
    {"RedrawMap, all overlays, density 2", FourCopies2},
    {"RedrawMap, all overlays, density 3", FourCopies3},
    {"RedrawMap, terrain, all overlays", FourCopies},
    {"RedrawMap, terrain, all overlays, density 2", FourCopies2},
    {"one step of the animation, all overlays", FourCopies},
    {"the map pictures of a new type", FourCopies},
    {"one tick of the clock", FourCopies},
    {"the sundial at 40 degrees", FourCopies},
    {"the sundial at 5 degrees", FourCopies},
    {"LoadConfiguration", PlainRead},
    {"SaveConfiguration", PlainWrite},
};

}  // namespace

int main(int Count, char** Arguments) {
    std::vector<char*> All(Arguments, Arguments + Count);
    std::string Repeat = "--benchmark_repetitions=9";
    std::string Shuffle = "--benchmark_enable_random_interleaving=true";
    std::string Briefly = "--benchmark_min_time=0.1";
    All.insert(All.begin() + 1, {Repeat.data(), Shuffle.data(), Briefly.data()});
    int Total = static_cast<int>(All.size());
    benchmark::Initialize(&Total, All.data());
    if (benchmark::ReportUnrecognizedArguments(Total, All.data())) return 2;
    Medians Measured;
    benchmark::RunSpecifiedBenchmarks(&Measured);

    const auto& Times = Measured.Times;
    std::printf("| What | Median | Beside | Median | Ratio |\n|---|---:|---|---:|---:|\n");
    for (const auto& [Name, Baseline] : Lines) {
        if (!Times.contains(Name) || !Times.contains(Baseline)) continue;
        std::printf("| %s | %.1f us | %s | %.1f us | %.3g |\n", Name, Times.at(Name), Baseline, Times.at(Baseline),
                    Times.at(Name) / Times.at(Baseline));
    }
    gloamtide::PrintProcesses();
    return 0;
}
