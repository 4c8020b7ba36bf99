#include "bench/processes.h"

#ifdef GLOAMTIDE_PROGRAM
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include "bench/program.h"
#include "state/state.h"
#include "storage/configuration.h"

namespace gloamtide {
namespace {

using Clock = std::chrono::steady_clock;

pid_t Start(std::vector<std::string> Words) {
    std::vector<char*> Arguments(Words.size() + 1, nullptr);
    std::transform(Words.begin(), Words.end(), Arguments.begin(), [](std::string& Each) { return Each.data(); });
    pid_t Process = 0;
    return posix_spawn(&Process, Arguments[0], nullptr, nullptr, Arguments.data(), environ) == 0 ? Process : 0;
}

// From start to end.
double Milliseconds(const std::vector<std::string>& Words) {
    const auto Begin = Clock::now();
    waitpid(Start(Words), nullptr, 0);
    return std::chrono::duration<double, std::milli>(Clock::now() - Begin).count();
}

// The most that was resident in the first two seconds.
double Megabytes(const std::string& Program) {
    const pid_t Process = Start({Program});
    std::this_thread::sleep_for(std::chrono::seconds(2));
    std::ifstream Status("/proc/" + std::to_string(Process) + "/status");
    double Kilobytes = 0.0;
    for (std::string Word; Status >> Word;) {
        if (Word == "VmHWM:") Status >> Kilobytes;
    }
    kill(Process, SIGTERM);
    waitpid(Process, nullptr, 0);
    return Kilobytes / 1024.0;
}

double Median(std::vector<double> Values) {
    std::nth_element(Values.begin(), Values.begin() + static_cast<std::ptrdiff_t>(Values.size() / 2), Values.end());
    return Values[Values.size() / 2];
}

void PrintLine(const char* Name, const char* Unit, double Ours, double Bare) {
    std::printf("| %s | %.0f %s | a bare Qt window | %.0f %s | %.3g |\n", Name, Ours, Unit, Bare, Unit, Ours / Bare);
}

}  // namespace

void PrintProcesses() {
    StartOnce();
    std::string Folder = (std::filesystem::temp_directory_path() / "gloamtide-bench-XXXXXX").string();
    if (mkdtemp(Folder.data()) == nullptr) return;
    std::filesystem::current_path(Folder);
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    setenv("QT_LOGGING_RULES", "*.warning=false", 1);
    state.AppDirectory = Folder;
    state.ConfigFilePath = "bench.gtf";
    SaveConfiguration();
    WriteStartupFile();

    std::vector<double> Ours;
    std::vector<double> Bare;
    for (int Turn = 0; Turn < 15; ++Turn) {
        Ours.push_back(Milliseconds({GLOAMTIDE_STILL, "still.png"}));
        Bare.push_back(Milliseconds({GLOAMTIDE_BARE_QT, "bare.png"}));
    }
    PrintLine("gloamtide-still, start to end", "ms", Median(Ours), Median(Bare));
    PrintLine("gloamtide, memory", "MB", Megabytes(GLOAMTIDE_PROGRAM), Megabytes(GLOAMTIDE_BARE_QT));
    std::filesystem::current_path("/");
    std::filesystem::remove_all(Folder);
}

}  // namespace gloamtide
#else
void gloamtide::PrintProcesses() {}
#endif
