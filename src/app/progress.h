// How far a film is, and whether its user wants it any longer.
#pragma once

#include <chrono>
#include <cstdint>

namespace gloamtide {

// Ctrl+C, or a request to end, came while the film was made.
struct Interruption {
    int Signal;
};

// While it lives the program is not ended by SIGINT, SIGTERM and SIGHUP, but Tell throws Interruption after one of
// them; after a second one the program ends at once.
class Progress {
public:
    Progress(std::int64_t TheCount, bool TheShown);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    // "12 of 365 pictures, 0:41 left" on standard error where that is to be shown.
    void Tell(std::int64_t Done);

private:
    using Clock = std::chrono::steady_clock;

    std::int64_t Count;
    bool Shown;
    bool Written = false;
    Clock::time_point Start = Clock::now();
    Clock::time_point Last;
};

}  // namespace gloamtide
