#include "frame/first_configuration.h"

#include "places/principal_city.h"
#include "storage/configuration.h"
#include "storage/files.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

namespace fs = std::filesystem;

// A root folder with a time zone database of a few rows, and a program that has started in another folder.
class FirstConfigurationTest : public ProgramTest {
protected:
    FirstConfigurationTest() {
        Desktop.ScreenWidth = 640;
        for (const char* Each : {"root/etc", "root/usr/share/zoneinfo/US", "root/usr/share/zoneinfo/America", "home"}) {
            fs::create_directories(Folder / Each);
        }
        WriteFile(
            "root/usr/share/zoneinfo/zone1970.tab",
            "# a comment\tand its tabs\tEurope/Berlin\n\nDE,DK\t+5230+01322\tEurope/Berlin\tmost of Germany\n"
            "US\t+404251-0740023\tAmerica/New_York\tEastern (most areas)\nAU\t-3352+15113\tAustralia/Sydney\n"
            "DZ\t+3647+00303\tAfrica/Algiers\nAQ\t-7750+16636\tAntarctica/McMurdo\nXX\t+52x0+01322\tEurope/Broken\n");
        WriteFile("root/usr/share/zoneinfo/zone.tab", "NO\t+5955+01045\tEurope/Oslo\n");
        WriteFile("root/usr/share/zoneinfo/America/New_York", "");
        fs::create_symlink("../America/New_York", Folder / "root/usr/share/zoneinfo/US/Eastern");
        fs::current_path(Folder / "home");
        Start();
    }

    std::string Root = (Folder / "root").string();
};

TEST_F(FirstConfigurationTest, TheComputersZoneIsWhatItsClockGoesBy) {
    EXPECT_EQ(ComputerZone(nullptr, Root), "");
    WriteFile("root/etc/timezone", "Africa/Algiers\n");
    EXPECT_EQ(ComputerZone("", Root), "Africa/Algiers");
    fs::create_symlink("../usr/share/zoneinfo/Europe/Oslo", Folder / "root/etc/localtime");
    EXPECT_EQ(ComputerZone(nullptr, Root), "Europe/Oslo");
    for (const char* TZ : {"Europe/Berlin", ":Europe/Berlin", "/usr/share/zoneinfo/Europe/Berlin"}) {
        EXPECT_EQ(ComputerZone(TZ, Root), "Europe/Berlin");
    }
}

TEST_F(FirstConfigurationTest, ShowsThePrincipalCityOfTheZone) {
    struct Row {
        const char* Zone;
        int SecondsEast;
        bool Found;
        const char* Name;
        int LatitudeMinutes, LongitudeMinutes;
        float ZoneHours;
        int DaylightHours;
    };
    for (const Row& R : {Row{"Europe/Berlin", 7200, true, "Berlin, Germany", 3147, 798, -1.0F, 1},
                         {"Europe/Oslo", 3600, true, "Oslo, Norway", 3596, 644, -1.0F, 0},
                         {"America/New_York", -18000, true, "New York, NY, USA", 2439, -4436, 5.0F, 0},
                         {"US/Eastern", -14400, true, "New York, NY, USA", 2439, -4436, 5.0F, 1},
                         {"Australia/Sydney", 39600, true, "Sydney, Australia", -2032, 9012, -10.0F, 1},
                         {"Africa/Algiers", 3600, true, "Algiers", 2207, 183, -1.0F, 0},  // the table's is elsewhere
                         {"Antarctica/McMurdo", 46800, false, "Cleveland, Ohio", 2496, -4902, 5.0F, 0},
                         {"Europe/Broken", 0, false, "Cleveland, Ohio", 2496, -4902, 5.0F, 0},
                         {"CET-1CEST", 3600, false, "Cleveland, Ohio", 2496, -4902, 5.0F, 0},
                         {"../../../etc", 0, false, "Cleveland, Ohio", 2496, -4902, 5.0F, 0},
                         {"", 0, false, "Cleveland, Ohio", 2496, -4902, 5.0F, 0}}) {
        SCOPED_TRACE(R.Zone);
        EXPECT_EQ(SetFirstConfiguration(R.Zone, R.SecondsEast, Root), R.Found);
        EXPECT_EQ(std::tuple(state.LocationName, std::lround(state.LocationLat * 60.0),
                             std::lround(state.LocationLong * 60.0F), state.ZoneHours, state.DaylightHours),
                  std::tuple(R.Name, R.LatitudeMinutes, R.LongitudeMinutes, R.ZoneHours, R.DaylightHours));
        EXPECT_TRUE(state.ShowSun == True && state.ShowMoon == True && state.ShowCities == True);
    }
}

TEST_F(FirstConfigurationTest, TheNextStartFindsItAndNothingIsOverwritten) {
    SetFirstConfiguration("Europe/Berlin", 3600, Root);
    WriteFirstConfiguration();
    EXPECT_EQ(ReadFile("Startup.dat", 1000), '"' + (Folder / "home/home.gtf").string() + "\"\r\n");
    RenewProgram();
    StartProgram();
    ExpectMessages({});
    EXPECT_EQ(std::tuple(state.LocationName, state.OffsetDays, state.ConfigSaved),
              std::tuple("Berlin, Germany", 0.0, True));
    const std::string Kept = ReadFile("home.gtf", 2000);
    SetFirstConfiguration("Europe/Oslo", 3600, Root);
    WriteFirstConfiguration();
    EXPECT_EQ(ReadFile("home.gtf", 2000), Kept);
}

}  // namespace
}  // namespace gloamtide
