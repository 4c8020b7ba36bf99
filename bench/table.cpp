#include "bench/table.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>

namespace gloamtide {
namespace {

// Keeps the median of each benchmark's repetitions, in microseconds of processor time or of the time it took itself.
class Medians : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& Reports) override {
        for (const Run& Each : Reports) {
            if (Each.aggregate_name != "median") continue;
            const bool Own = !Each.run_name.time_type.empty();
            Times[Each.run_name.function_name] = Own ? Each.GetAdjustedRealTime() : Each.GetAdjustedCPUTime();
        }
    }

    std::map<std::string, double> Times;
};

}  // namespace

int PrintTable(int Count, char** Arguments, std::span<const TableLine> Lines) {
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
    return 0;
}

}  // namespace gloamtide
