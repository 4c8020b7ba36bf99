#include "panel/information_panel.h"

#include <limits>
#include <sstream>

#include "astro/calendar.h"
#include "clock/recomputation.h"
#include "map/day_night.h"
#include "map/geometry.h"
#include "places/zones.h"
#include "state/numbers.h"
#include "storage/configuration.h"
#include "tests/golden.h"
#include "tests/program_test.h"
#include "tests/vectors.h"

namespace gloamtide {
namespace {

class Panel : public ProgramTest {
protected:
    Panel() {
        Desktop.ScreenWidth = 640;
        Start();
    }

    // Brings the program to the instant and the place of a heading of almanac.txt.
    static void GoTo(const std::string& Heading) {
        std::istringstream Fields(Heading.substr(3));
        double PointerLong = 0.0;
        double PointerLat = 0.0;
        Fields >> state.WorkYear >> state.WorkMonth >> state.WorkDay >> state.WorkHour >> state.WorkMinute >>
            state.WorkSecond >> state.ZoneHours >> state.DaylightHours >> state.LocationLat >> state.LocationLong >>
            PointerLong >> PointerLat >> std::ws;
        std::getline(Fields, state.LocationName);
        ASSERT_TRUE(Fields) << Heading;
        state.WorkZoneHours = state.ZoneHours;
        state.WorkDaylightHours = state.DaylightHours;
        DateToJulian();
        state.CurrentJD = state.WorkJD + 0.5 / 86400.0;  // away from the cut of the seconds
        state.OffsetDays = state.CurrentJD - state.SystemJD;
        SelectZoneRow();
        RecomputeAlmanac();
        RedrawMap();
        FormGTMain.PictureGT.MouseMove(Single(LongitudeToRotatedMapX(PointerLong)), Single(PointerLat));
    }

    // A line for each row of the panel, then the dates beside the band and what the probe says.
    static std::string Almanac() {
        std::string Text;
        for (const Control* Each : FormGTMain.PictureGTData[0].Children) {
            const bool Value = Each->Name.find("Show") != std::string::npos;
            Text += (Value ? "  " : "\n") + dynamic_cast<const Label&>(*Each).Caption.Get();
        }
        Text +=
            "\n" + FormGTMain.LabelEastOfIDLDate.Caption.Get() + " | " + FormGTMain.LabelWestOfIDLDate.Caption.Get();
        for (const Label* Each : {&FormGTMain.LabelMouseLat, &FormGTMain.LabelMouseLong, &FormGTMain.LabelCity}) {
            Text += (Each == &FormGTMain.LabelMouseLat ? "\n" : " | ") + Each->Caption.Get();
        }
        return Text + "\n";
    }
};

TEST_F(Panel, InstantsAndPlacesOfEightThousandYears) {
    state.ShowCities = True;
    std::ifstream Stored(GoldenFile("almanac.txt"));
    std::string Text;
    int Instants = 0;
    for (std::string Line; std::getline(Stored, Line);) {
        if (Line.starts_with("#")) Text += Line + "\n";
        if (!Line.starts_with("== ")) continue;
        GoTo(Line);
        Text += "\n" + Line + Almanac();
        ++Instants;
    }
    EXPECT_GE(Instants, 40);
    ExpectGoldenText("almanac.txt", Text);
}

// Which captions a file made by hand leaves blank, for each field that holds a number which is none or out of any
// range.
TEST_F(Panel, SaysNothingWhereThereIsNothingToTell) {
    constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();
    constexpr double Infinity = std::numeric_limits<double>::infinity();
    const std::string Sun = " LocSunrise LocSunset";
    const std::string Local = " GTLocalDate GTLocalTime DaylightStd";
    const std::string Season = " Season Countdown";
    const std::string Dates = " GreenwichDate GreenwichTime GTJD TimeOffset";
    const std::string Bodies = " SolDec EqtnTime AgeOfMoon PhaseOfMoon EastOfIDLDate WestOfIDLDate";
    const std::tuple<const char*, double, std::string> Files[] = {
        {"AnimYears", 100.0, ""},
        {"OffsetDays", NotANumber, Local + Dates + Season + Sun + Bodies},
        {"OffsetDays", 1e30,
         " GTLocalDate GreenwichDate GTJD TimeOffset" + Season + " EqtnTime EastOfIDLDate WestOfIDLDate"},
        {"ZoneHours", -Infinity, Local + " Timezone" + Season + Sun},
        {"ZoneHours", 24.5, " Timezone LocSunrise"},
        {"LocationLat", Infinity, " LocLat" + Sun},
        {"LocationLat", -1000.0, " LocLat"},
        {"LocationLong", NotANumber, " LocLong" + Sun},
        {"LocationLong", 1e9, " LocLong" + Sun},
        {"AnimYears", Infinity, " AnimInfo"},
        {"AnimDays", NotANumber, " AnimInfo"},
        {"AnimHours", -10000.0, " AnimInfo"},
    };
    MainForm& F = FormGTMain;
    std::vector<Control*> Told = F.PictureGTData[0].Children;
    Told.insert(Told.end(), {&F.LabelEastOfIDLDate, &F.LabelWestOfIDLDate, &F.LabelAnimInfo});
    for (const auto& [Field, Number, Expected] : Files) {
        SetDefaultConfiguration();
        VectorValues{{{{Field, Number}}}, {}}.PutIntoState();
        state.ConfigFilePath = "by-hand.gtf";
        SaveConfiguration();
        for (Control* Each : Told) {
            if (Each->Name.ends_with("Show(0)")) dynamic_cast<Label&>(*Each).Caption = "";
        }
        Desktop.FileNames = {"by-hand.gtf"};
        F.MenuFileSubOpen.Click();
        std::string Blank;
        for (const Control* Each : Told) {
            const bool Says =
                dynamic_cast<const Label&>(*Each).Caption.Get().find_first_not_of(' ') != std::string::npos;
            if (!Says) Blank.append(" ").append(Each->Name, 5, Each->Name.find("Show(") - 5);
        }
        EXPECT_EQ(Blank, Expected) << Field << ' ' << Number;
    }
}

// A mark at each end, since blanks at the end belong to a name.
TEST_F(Panel, NamesOfMonthsAndMoons) {
    std::string Text;
    for (const auto* Names : {&state.MonthNames, &state.MonthAbbreviations, &state.MoonNames}) {
        for (const std::string& Each : *Names) Text += "|" + Each;
        Text += "|\n";
    }
    ExpectGoldenText("month_names.txt", Text);
}

}  // namespace
}  // namespace gloamtide
