#include "app/progress.h"

#include <csignal>
#include <cstdio>
#include <initializer_list>

namespace gloamtide {
namespace {

volatile std::sig_atomic_t CaughtSignal = 0;

// A call that waits is broken off, and the next signal does what it does to any program.
void Catch(void (*Handler)(int)) {
    struct sigaction Action {};
    Action.sa_handler = Handler;
    Action.sa_flags = Handler == SIG_DFL ? 0 : static_cast<int>(SA_RESETHAND);
    for (const int Signal : {SIGINT, SIGTERM, SIGHUP}) sigaction(Signal, &Action, nullptr);
}

}  // namespace

Progress::Progress(std::int64_t TheCount, bool TheShown) : Count(TheCount), Shown(TheShown) {
    Catch([](int Signal) { CaughtSignal = Signal; });
}

Progress::~Progress() {
    Catch(SIG_DFL);
    if (Written) std::fputc('\n', stderr);
}

void Progress::Tell(std::int64_t Done) {
    if (CaughtSignal != 0) throw Interruption{CaughtSignal};
    const Clock::time_point Now = Clock::now();
    if (!Shown || (Done < Count && Now - Last < std::chrono::milliseconds(100))) return;
    Last = Now;
    Written = true;
    const double Taken = std::chrono::duration<double>(Now - Start).count();
    const auto Left = static_cast<long>(Taken * static_cast<double>(Count - Done) / static_cast<double>(Done));
    std::fprintf(stderr, "\r%lld of %lld pictures, %ld:%02ld left  ", static_cast<long long>(Done),
                 static_cast<long long>(Count), Left / 60, Left % 60);
}

}  // namespace gloamtide
