#include "dialogs/configure.h"

#include "tests/program_test.h"

namespace gloamtide {
namespace {

class Configure : public ProgramTest {
protected:
    Configure() {
        Desktop.ScreenWidth = 640;
        Desktop.System.Second = 30;  // away from the cut of the minutes
        Start();
        state.ConfigSaved = True;
    }

    static void Open() { FormGTMain.MenuConfigure.Click(); }
    static void OK() { FormConfigure.CmdConfigureOK.Click(); }

    void PickCity(const std::string& Name) {
        int Position = 0;
        while (F.ComboCityName.List(Position) != Name) ++Position;
        F.ComboCityName.Pick(Position);
    }

    // Latitude and longitude: degrees and minutes, south and west as -1.
    using Lists = std::array<int, 6>;
    Lists Place() const {
        return {F.OptionSetLat[1].Value ? -1 : 1,  F.ComboSetLatDeg.ListIndex,  F.ComboSetLatMin.ListIndex,
                F.OptionSetLong[1].Value ? -1 : 1, F.ComboSetLongDeg.ListIndex, F.ComboSetLongMin.ListIndex};
    }

    std::string Zone() const { return F.ComboSelTZ.Text.Get().substr(0, F.ComboSelTZ.Text.Get().find("  ")); }

    // The days that the list offers after it is dropped down.
    int DaysOf(int Month, const std::string& Year) {
        F.ComboSelMonth.ListIndex = Month - 1;
        F.TextSelYear.Text = Year;
        F.ComboSelDay.ListIndex = 5;
        F.ComboSelDay.DropDown();
        EXPECT_EQ(F.ComboSelDay.ListIndex, 0);
        return F.ComboSelDay.ListCount();
    }

    ConfigureForm& F = FormConfigure;
};

// The way of one OK through the whole program.
TEST_F(Configure, ACityReachesStatePanelMapAndClock) {
    const Bitmap MapBefore = FormGTMain.PictureGT.Picture;
    Desktop.Local = {2026, 12, 1, 21, 16, 5, 59, 0};
    Open();
    EXPECT_TRUE(F.Visible && !FormGTMain.Visible);
    PickCity("Sydney, Australia");
    EXPECT_EQ(state.LocationName, "Cleveland, Ohio") << "nothing changes before OK";
    OK();
    EXPECT_TRUE(FormGTMain.Visible && !F.Visible);
    EXPECT_EQ(state.ConfigSaved, False);
    EXPECT_EQ(std::tuple(state.LocationName, state.LocationLat, state.LocationLong, state.ZoneHours),
              std::tuple("Sydney, Australia", -(33.0 + 52.0 / 60.0), 150.0F + 12.0F / 60.0F, -10.0F));
    EXPECT_NEAR(state.CurrentJD, 2461395.753819, 2.5 / 86400.0) << "16:05 in a zone ten hours ahead of Greenwich";
    EXPECT_EQ(FormGTMain.LabelLocLatShow[0].Caption, "33d 52m South");
    EXPECT_EQ(FormGTMain.LabelGTLocalDateShow[0].Caption, "December 21, 2026");
    EXPECT_NE(FormGTMain.PictureGT.Picture.Pixels, MapBefore.Pixels);
    const double Chosen = state.CurrentJD;
    Desktop.Advance(10000);
    EXPECT_NEAR(state.CurrentJD, Chosen + 10.0 / 86400.0, 1e-8) << "the clock runs on from there";
}

TEST_F(Configure, OpensWithWhatIsInForceAndCancelChangesNothing) {
    state.LocationName = "Ushuaia";
    state.LocationLat = -54.8;
    state.LocationLong = 68.3F;
    state.DaylightHours = 1;
    RecomputeAlmanac();
    Open();
    EXPECT_EQ(F.ComboCityName.Text, "Ushuaia");
    EXPECT_EQ(Place(), (Lists{-1, 54, 48, 1, 68, 18}));
    EXPECT_EQ(Zone(), "GMT - 5:00") << "filling the lists asks no zone mask";
    EXPECT_EQ(F.ComboSelMonth.Text.Get() + F.ComboSelDay.Text.Get() + " " + F.TextSelYear.Text.Get() +
                  F.ComboSelHour.Text.Get() + F.ComboSelMinute.Text.Get(),
              "June 1 2026 8 0");
    EXPECT_TRUE(F.OptionDaylightSavings[1].Value && F.OptionDateTime[0].Value && !F.FrameSetGTDate.Visible);

    F.OptionDateTime[1].Value = true;
    EXPECT_TRUE(F.FrameSetGTDate.Visible);
    F.ComboSetLongDeg.ListIndex = 140;
    F.TextSelYear.Text = "1999";
    F.Close();  // does what Cancel does
    EXPECT_TRUE(FormGTMain.Visible && state.ConfigSaved == True);
    EXPECT_EQ(state.LocationLong, 68.3F);
    Open();
    EXPECT_EQ(F.ComboSetLongDeg.ListIndex, 68);
    EXPECT_EQ(F.TextSelYear.Text, "2026");
    EXPECT_TRUE(F.FrameSetGTDate.Visible) << "the choice of the date stays as it was";
    EXPECT_EQ(Zone(), "GMT + 9:00") << "and so does the zone";
}

TEST_F(Configure, OpensWithTheNearestEntriesForWhatItsListsLack) {
    state.LocationLat = 89.99;
    state.LocationLong = -180.5F;
    RecomputeAlmanac();
    Open();
    EXPECT_EQ(Place(), (Lists{1, 79, 59, -1, 179, 30}));
    DaysOf(2, "2026");
    F.CmdConfigureCancel.Click();
    state.LocationLat = state.LocationLong = 0.0F;
    RecomputeAlmanac();
    state.LocalDay = 31.0F;
    Open();
    EXPECT_EQ(F.ComboSelDay.Text, " 31");
    EXPECT_EQ(Place(), (Lists{1, 0, 0, 1, 0, 0})) << "the equator and the first meridian are north and east";
}

TEST_F(Configure, TheZoneFollowsThePlaceUntilTheUserKnowsBetter) {
    Open();
    PickCity("Tokyo, Japan");
    EXPECT_EQ(Zone(), "GMT + 9:00");
    F.OptionSetLong[1].Value = true;
    EXPECT_EQ(Zone(), "GMT - 9:00");
    F.ComboSetLongDeg.ListIndex = 110;
    EXPECT_EQ(Zone(), "GMT - 7:00");
    F.OptionSetLong[0].Value = true;
    EXPECT_EQ(Zone(), "GMT + 8:00");
    F.OptionSetLat[1].Value = true;
    F.ComboSetLatDeg.ListIndex = 25;
    F.ComboSetLongDeg.ListIndex = 134;
    EXPECT_EQ(Zone(), "GMT + 9:30");
    F.OptionDaylightSavings[1].Value = true;
    F.ComboSelTZ.ListIndex = 0;
    F.ComboCityName.Type("My own hill");
    const Lists Typed = Place();
    OK();
    EXPECT_EQ(state.ZoneHours, 12.0F);
    EXPECT_EQ(state.DaylightHours, 1);
    Open();
    EXPECT_EQ(F.ComboCityName.Text, "My own hill");
    EXPECT_EQ(Place(), Typed);
    EXPECT_EQ(F.ComboSelTZ.ListIndex, 0) << "what the user chose stays";
}

TEST_F(Configure, SouthEndsAtItsLastDegreeAndNorthKeepsIt) {
    Open();
    F.ComboSetLatDeg.ListIndex = 75;
    for (const auto& [South, Degrees] : {std::pair(1U, 70), std::pair(0U, 80)}) {
        F.OptionSetLat[South].Value = true;
        EXPECT_EQ(F.ComboSetLatDeg.ListIndex, 69);
        EXPECT_EQ(F.ComboSetLatDeg.ListCount(), Degrees);
    }
}

TEST_F(Configure, TheDayListFollowsTheMonth) {
    Open();
    const int Lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    for (int Month = 1; Month <= 12; ++Month) EXPECT_EQ(DaysOf(Month, "2026"), Lengths[Month - 1]) << Month;
    EXPECT_EQ(DaysOf(2, "1e999"), 28);
}

TEST_F(Configure, ANewDateIsTakenAsTheListsShowIt) {
    Open();
    F.OptionDateTime[1].Value = true;
    F.ComboSelMonth.ListIndex = 1;
    F.ComboSelDay.ListIndex = 30;  // February 31 runs over into March
    F.TextSelYear.Text = "1999x";
    F.ComboSelHour.ListIndex = 23;
    F.ComboSelMinute.ListIndex = 59;
    OK();
    EXPECT_EQ(FormGTMain.LabelGTLocalDateShow[0].Caption, "March 3, 1999");
    EXPECT_EQ(FormGTMain.LabelGTLocalTimeShow[0].Caption.Get().substr(0, 5), "23:59");
}

TEST_F(Configure, OKMovesTheFrozenProgramAndAnyOffsetBackToThePresent) {
    Desktop.Local = {2026, 6, 1, 1, 8, 0, 0, 0};  // the location's own time when it is 12:00 at Greenwich
    state.OffsetDays = 1e6;
    Desktop.Advance(1000);
    ASSERT_FALSE(FormGTMain.Timer1.Enabled);
    Open();
    F.OptionDaylightSavings[1].Value = true;
    OK();
    EXPECT_TRUE(FormGTMain.Timer1.Enabled);
    EXPECT_NEAR(state.OffsetDays, 0.0, 2.5 / 86400.0);
}

// Which years pass is held by tests/data/vectors/year_text.txt, as is the length of their February.
TEST_F(Configure, AYearThatDoesNotPassIsToldAndLeavesTheDialogOpen) {
    Open();
    F.OptionDateTime[1].Value = true;
    F.ComboSetLatMin.ListIndex = 0;
    for (const char* Year : {"4000.5", "1e999", "1e-999"}) {
        F.TextSelYear.Text = Year;
        OK();
        ExpectMessages({"Input Out Of Range: Year must be from -4000 through +4000: Please re-enter."});
        EXPECT_TRUE(F.Visible && Desktop.Focus == &F.TextSelYear) << Year;
    }
    EXPECT_EQ(state.LocalYear, 2026.0F);
    F.CmdConfigureCancel.Click();
    EXPECT_EQ(state.LocationLat, 41.0) << "the place was taken over before the year was looked at";
    EXPECT_EQ(state.ConfigSaved, False);
}

}  // namespace
}  // namespace gloamtide
