// Runs the benchmarks and prints each time's ratio to its baseline in the same run.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>

#include "bench/program.h"
#include "frame/startup.h"
#include "frame/state.h"
#include "platform/headless/headless_host.h"

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

// Keeps the median of each benchmark's repetitions beside the usual table.
class RatioReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& Reports) override {
        ConsoleReporter::ReportRuns(Reports);
        for (const Run& Each : Reports) {
            if (Each.aggregate_name == "median") Medians[Each.run_name.function_name] = Each.GetAdjustedCPUTime();
        }
    }

    void PrintRatio(const std::string& Name, const std::string& Baseline) const {
        if (!Medians.contains(Name) || !Medians.contains(Baseline)) return;
        std::printf("%s: %.2f times %s\n", Name.c_str(), Medians.at(Name) / Medians.at(Baseline), Baseline.c_str());
    }

private:
    std::map<std::string, double> Medians;
};

}  // namespace

int main(int Count, char** Arguments) {
    std::vector<char*> All(Arguments, Arguments + Count);
    std::string Repeat = "--benchmark_repetitions=9";
    std::string Shuffle = "--benchmark_enable_random_interleaving=true";
    All.insert(All.begin() + 1, {Repeat.data(), Shuffle.data()});
    int Total = static_cast<int>(All.size());
    benchmark::Initialize(&Total, All.data());
    if (benchmark::ReportUnrecognizedArguments(Total, All.data())) return 2;
    RatioReporter Reporter;
    benchmark::RunSpecifiedBenchmarks(&Reporter);
    for (const char* Name :
         {"RedrawMap, no overlay", "RedrawMap, all overlays", "one step of the animation, all overlays"}) {
        Reporter.PrintRatio(Name, "four memcpy of a map");
    }
    return 0;
}
