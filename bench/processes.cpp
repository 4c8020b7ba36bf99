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

// The most that was resident in the first three seconds.
double Megabytes(const std::string& Program) {
    const pid_t Process = Start({Program});
    std::this_thread::sleep_for(std::chrono::seconds(3));
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

void Compare(const char* Name, const std::vector<std::string>& Ours, const std::vector<std::string>& Bare) {
    std::vector<double> OurTimes;
    std::vector<double> BareTimes;
    for (int Turn = 0; Turn < 15; ++Turn) {
        OurTimes.push_back(Milliseconds(Ours));
        BareTimes.push_back(Milliseconds(Bare));
    }
    PrintLine(Name, "ms", Median(OurTimes), Median(BareTimes));
}

// The programs that follow have an offscreen desktop of this size, in pixels.
void UseScreen(const std::string& Folder, int Width, int Height) {
    std::ofstream(Folder + "/screen.json")
        << R"({"screens":[{"name":"Only","x":0,"y":0,"width":)" << Width << R"(,"height":)" << Height
        << R"(,"logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]})";
    setenv("QT_QPA_PLATFORM", ("offscreen:configfile=" + Folder + "/screen.json").c_str(), 1);
}

// For the next start of the program.
void KeepOverlays(Boolean Shown) {
    SetOverlays(Shown);
    SaveConfiguration();
}

}  // namespace

void PrintProcesses() {
    StartOnce();
    std::string Folder = (std::filesystem::temp_directory_path() / "gloamtide-bench-XXXXXX").string();
    if (mkdtemp(Folder.data()) == nullptr) return;
    std::filesystem::current_path(Folder);
    setenv("XDG_CONFIG_HOME", Folder.c_str(), 1);
    setenv("QT_LOGGING_RULES", "*.warning=false", 1);
    state.AppDirectory = Folder;
    state.ConfigFilePath = Folder + "/bench.gtf";
    WriteStartupFile();

    UseScreen(Folder, 1280, 1024);
    Milliseconds({GLOAMTIDE_STILL, "still.png"});
    Milliseconds({GLOAMTIDE_BARE_QT, "still.png", "still.bmp"});  // read without work
    Compare("gloamtide-still, start to end", {GLOAMTIDE_STILL, "still.png"},
            {GLOAMTIDE_BARE_QT, "still.bmp", "bare.png"});
    Compare("gloamtide, start to first picture", {GLOAMTIDE_FIRST_PICTURE}, {GLOAMTIDE_BARE_QT, "still.bmp"});

    KeepOverlays(False);
    const double Bare = Megabytes(GLOAMTIDE_BARE_QT);
    PrintLine("gloamtide, memory, map alone", "MB", Megabytes(GLOAMTIDE_PROGRAM), Bare);
    KeepOverlays(True);
    UseScreen(Folder, 3840, 2160);
    PrintLine("gloamtide, memory, 3840 by 2160, all overlays", "MB", Megabytes(GLOAMTIDE_PROGRAM), Bare);
    std::filesystem::current_path("/");
    std::filesystem::remove_all(Folder);
}

}  // namespace gloamtide
#else
void gloamtide::PrintProcesses() {}
#endif
