// gloamtide-first-start: prepares the current folder for a user who starts Gloamtide in it for the first time.

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>

#include "frame/first_configuration.h"
#include "frame/startup.h"
#include "places/principal_city.h"
#include "platform/headless/headless_host.h"
#include "state/state.h"
#include "storage/files.h"

namespace {

using namespace gloamtide;

void Say(const std::string& Text) { std::fprintf(stderr, "gloamtide: %s\n", Text.c_str()); }

// By which the computer's clock is ahead of Greenwich now, seconds.
int SecondsEast() {
    const std::time_t Now = std::time(nullptr);
    std::tm Local{};
    return localtime_r(&Now, &Local) == nullptr ? 0 : static_cast<int>(Local.tm_gmtoff);
}

void PrepareFolder() {
    HeadlessHost Nobody;  // the program starts unseen, for its tables and its zone mask
    state.StartupSource = ConfigurationSource::Defaults;
    StartProgram();
    const std::string Zone = ComputerZone(std::getenv("TZ"));
    if (!SetFirstConfiguration(Zone, SecondsEast())) {
        Say("no city is known for the computer's time zone \"" + Zone + "\", so the first place is " +
            state.LocationName);
    }
    WriteFirstConfiguration();
}

}  // namespace

int main() {
    try {
        PrepareFolder();
        return 0;
    } catch (const FileFailure& Failure) {
        Say(std::string("the first configuration is not kept: ") + Failure.what());
        return 1;
    }
}
