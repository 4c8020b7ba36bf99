// Times what has to be fast and prints one table: each time, and its ratio to a baseline of the same run.

#include "bench/processes.h"
#include "bench/program.h"
#include "bench/table.h"
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

}  // namespace gloamtide

namespace {

constexpr const char* FourCopies = "four memcpy of a map";
constexpr const char* FourCopies2 = "four memcpy of a map, density 2";
constexpr const char* FourCopies3 = "four memcpy of a map, density 3";
constexpr const char* PlainRead = "a plain read of as many bytes";
constexpr const char* PlainWrite = "a plain write, flush and rename";
constexpr gloamtide::TableLine Lines[] = {
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
    const int Status = gloamtide::PrintTable(Count, Arguments, Lines);
    if (Status == 0) gloamtide::PrintProcesses();
    return Status;
}
