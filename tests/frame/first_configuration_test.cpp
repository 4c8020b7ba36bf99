#include "frame/first_configuration.h"

#include "places/principal_city.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

namespace fs = std::filesystem;

// A root folder with a time zone database of a few rows, and a program that has started in another folder.
class FirstConfigurationTest : public ProgramTest {
protected:
    FirstConfigurationTest() {
        for (const char* Each : {"root/etc", "root/usr/share", "home"}) fs::create_directories(Folder / Each);
        fs::copy(GoldenFile("zoneinfo"), Folder / "root/usr/share/zoneinfo", fs::copy_options::recursive);
        fs::create_symlink("New_York", Folder / "root/usr/share/zoneinfo/Eastern");
        fs::current_path(Folder / "home");
        Start();
    }

    std::string Root = (Folder / "root").string();
};

TEST_F(FirstConfigurationTest, ShowsThePrincipalCityOfTheComputersZone) {
    std::ostringstream Text;
    for (const auto& [Zone, SecondsEast] : {std::pair("Europe/Berlin", 7200),
                                            {"Europe/Oslo", 3600},
                                            {"New_York", -18000},
                                            {"Eastern", -14400},
                                            {"Africa/Algiers", 3600},
                                            {"Antarctica/McMurdo", 46800},
                                            {"Europe/Broken", 0},
                                            {"../etc", 0},
                                            {"", 0}}) {
        const bool Found = SetFirstConfiguration(Zone, SecondsEast, Root);
        Text << Zone << (Found ? ": " : " is not found: ") << state.LocationName << ", " << state.LocationLat << ", "
             << state.LocationLong << ", zone " << state.ZoneHours << ", daylight saving " << state.DaylightHours
             << "\n";
        EXPECT_TRUE(state.ShowSun == True && state.ShowMoon == True && state.ShowCities == True);
    }
    ExpectGoldenText("first_places.txt", Text.str());

    EXPECT_EQ(ComputerZone(nullptr, Root), "");
    WriteFile("root/etc/timezone", "Africa/Algiers\n");
    EXPECT_EQ(ComputerZone("", Root), "Africa/Algiers");
    fs::create_symlink("../usr/share/zoneinfo/Europe/Oslo", Folder / "root/etc/localtime");
    EXPECT_EQ(ComputerZone(nullptr, Root), "Europe/Oslo");
    for (const char* TZ : {"Europe/Berlin", ":Europe/Berlin", "/usr/share/zoneinfo/Europe/Berlin"}) {
        EXPECT_EQ(ComputerZone(TZ, Root), "Europe/Berlin");
    }
}

TEST_F(FirstConfigurationTest, OverwritesNothing) {
    WriteFile("home/home.gtf", "mine");
    WriteFirstConfiguration();
    EXPECT_EQ(ReadFile("home.gtf", 100), "mine");
    EXPECT_EQ(ReadFile("Startup.dat", 1000), '"' + (Folder / "home/home.gtf").string() + "\"\r\n");
}

}  // namespace
}  // namespace gloamtide
