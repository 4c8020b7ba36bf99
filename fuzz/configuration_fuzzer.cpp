// Fuzzes the configuration file: gloamtide_fuzz FOLDER, with configurations to begin from in the folder.
#include <cstddef>
#include <cstdint>

#include "frame/startup.h"
#include "state/state.h"
#include "tests/storage/configuration_fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size) {
    using namespace gloamtide;
    static HeadlessHost Desktop;
    [[maybe_unused]] static const bool Started = [] {
        state.StartupSource = ConfigurationSource::Defaults;
        Desktop.ScreenWidth = 640;  // the smallest map
        StartProgram();
        return true;
    }();
    OpenConfigurationBytes(Desktop, {Data, Data + Size});
    AnimateOnce();
    return 0;
}
