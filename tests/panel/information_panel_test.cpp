#include "panel/information_panel.h"

#include "astro/calendar.h"
#include "places/zones.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

class Panel : public ProgramTest {
protected:
    Panel() { Start(640); }

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

    // Opens a file whose one odd field and its number a heading of by_hand.txt names.
    static void OpenFileMadeByHand(const std::string& Heading) {
        std::istringstream Words(Heading.substr(3));
        std::string Field, Number;
        Words >> Field >> Number;
        SetDefaultConfiguration();
        VectorValues{{{{Field, std::stod(Number)}}}, {}}.PutIntoState();
        state.ConfigFilePath = "by-hand.gtf";
        SaveConfiguration();
        for (Label* Each : {&FormGTMain.LabelLocSunriseShow[0], &FormGTMain.LabelLocSunsetShow[0]}) Each->Caption = "";
        auto& Desktop = dynamic_cast<HeadlessHost&>(*host);
        Desktop.System.Second = 30;  // away from the cut of the seconds
        Desktop.FileNames = {"by-hand.gtf"};
        FormGTMain.MenuFileSubOpen.Click();
    }

    // A line for each row of the panel, then the dates beside the band, what the probe says and the animation.
    static std::string Almanac() {
        std::string Text;
        for (const Control* Each : FormGTMain.PictureGTData[0].Children) {
            const bool Value = Each->Name.find("Show") != std::string::npos;
            Text += (Value ? "  " : "\n") + dynamic_cast<const Label&>(*Each).Caption.Get();
        }
        Text +=
            "\n" + FormGTMain.LabelEastOfIDLDate.Caption.Get() + " | " + FormGTMain.LabelWestOfIDLDate.Caption.Get();
        for (const Label* Each : {&FormGTMain.LabelMouseLat, &FormGTMain.LabelMouseLong, &FormGTMain.LabelCity,
                                  &FormGTMain.LabelAnimInfo}) {
            Text += (Each == &FormGTMain.LabelMouseLat ? "\n" : " | ") + Each->Caption.Get();
        }
        return Text + "\n";
    }

    // Goes to each heading of a golden text and holds what is shown then. Returns how many there are.
    static int ExpectShown(const std::string& Name, void (*Go)(const std::string&)) {
        std::ifstream Stored(GoldenFile(Name));
        std::string Text;
        int Headings = 0;
        for (std::string Line; std::getline(Stored, Line);) {
            if (Line.starts_with("#")) Text += Line + "\n";
            if (!Line.starts_with("== ")) continue;
            Go(Line);
            Text += "\n" + Line + Almanac();
            ++Headings;
        }
        ExpectGoldenText(Name, Text);
        return Headings;
    }
};

TEST_F(Panel, InstantsAndPlacesOfEightThousandYears) {
    state.ShowCities = True;
    EXPECT_GE(ExpectShown("almanac.txt", GoTo), 40);
}

// A field of the file and its number, in which a user sees nothing.
TEST_F(Panel, FilesMadeByHand) { EXPECT_GE(ExpectShown("by_hand.txt", OpenFileMadeByHand), 10); }

}  // namespace
}  // namespace gloamtide
