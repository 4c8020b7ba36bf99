#include "frame/first_configuration.h"

#include "places/principal_city.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

using FirstStart = ProgramTest;

TEST_F(FirstStart, ShowsThePrincipalCityOfTheComputersZone) {
    Start();
    const std::string Root = GoldenFile("computer").string();
    std::ostringstream Text;
    for (const char* TZ : {"", ":Europe/Berlin", "/usr/share/zoneinfo/New_York"})
        Text << ComputerZone(TZ, Root) << "\n";
    Text << ComputerZone(nullptr, GoldenFile("moved").string()) << "\n" << ComputerZone(nullptr, "/none") << "\n";
    for (const char* Each : {"Europe/Berlin 2", "Europe/Oslo 1", "New_York -5", "Eastern -4", "Africa/Algiers 1",
                             "Antarctica/McMurdo 13", "Europe/Broken 0", "../etc 0", ""}) {
        std::string Zone;
        int Hours = 0;
        std::istringstream(Each) >> Zone >> Hours;
        const bool Found = SetFirstConfiguration(Zone, Hours * 3600, Root);
        Text << Zone << (Found ? ": " : " is not found: ") << state.LocationName << ", " << state.LocationLat << ", "
             << state.LocationLong << ", zone " << state.ZoneHours << ", daylight saving " << state.DaylightHours
             << "\n";
        EXPECT_TRUE(state.ShowSun == True && state.ShowMoon == True && state.ShowCities == True);
    }
    ExpectGoldenText("first_places.txt", Text.str());
}

TEST_F(FirstStart, OverwritesNothing) {
    Start();
    WriteFile("home.gtf", "mine");
    WriteFirstConfiguration();
    EXPECT_EQ(ReadFile("home.gtf", 100), "mine");
    EXPECT_EQ(ReadFile("Startup.dat", 1000), '"' + (Folder / "home.gtf").string() + "\"\r\n");
}

}  // namespace
}  // namespace gloamtide
