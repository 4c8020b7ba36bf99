// How long a configuration takes to be read and saved, beside the same bytes without their meaning.

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <filesystem>

#include "bench/program.h"
#include "state/state.h"
#include "storage/configuration.h"

namespace gloamtide {
namespace {

// A file beside the others of the machine, not in memory, so that flushing means something.
void UseFile() {
    StartOnce();
    state.ConfigFilePath = state.ConfigOpenPath = "/var/tmp/gloamtide-bench.gtf";
    SaveConfiguration();
}

void Load(benchmark::State& Runs) {
    UseFile();
    for (auto _ : Runs) LoadConfiguration();
    std::filesystem::remove(state.ConfigFilePath);
}

void Save(benchmark::State& Runs) {
    UseFile();
    for (auto _ : Runs) SaveConfiguration();
    std::filesystem::remove(state.ConfigFilePath);
}

void Read(benchmark::State& Runs) {
    UseFile();
    std::array<char, 1008> Bytes{};
    for (auto _ : Runs) {
        const int File = open(state.ConfigFilePath.c_str(), O_RDONLY);
        benchmark::DoNotOptimize(read(File, Bytes.data(), Bytes.size()));
        close(File);
    }
    std::filesystem::remove(state.ConfigFilePath);
}

void Write(benchmark::State& Runs) {
    UseFile();
    const std::array<char, 1008> Bytes{};
    const std::string New = state.ConfigFilePath + ".new";
    for (auto _ : Runs) {
        const int File = open(New.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
        benchmark::DoNotOptimize(write(File, Bytes.data(), Bytes.size()));
        fsync(File);
        close(File);
        std::rename(New.c_str(), state.ConfigFilePath.c_str());
    }
    std::filesystem::remove(state.ConfigFilePath);
}

BENCHMARK(Load)->Name("LoadConfiguration")->Unit(benchmark::kMicrosecond);
BENCHMARK(Save)->Name("SaveConfiguration")->Unit(benchmark::kMicrosecond);
BENCHMARK(Read)->Name("a plain read of as many bytes")->Unit(benchmark::kMicrosecond);
BENCHMARK(Write)->Name("a plain write, flush and rename")->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace gloamtide
