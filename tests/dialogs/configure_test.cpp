#include "dialogs/configure.h"

#include "clock/clock.h"
#include "clock/recomputation.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

class Configure : public ProgramTest {
protected:
    Configure() {
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

    // The days that the list offers after it is dropped down.
    int DaysOf(int Month, const std::string& Year) {
        F.ComboSelMonth.ListIndex = Month - 1;
        F.TextSelYear.Text = Year;
        F.ComboSelDay.ListIndex = 5;
        F.ComboSelDay.DropDown();
        EXPECT_EQ(F.ComboSelDay.ListIndex, 0);
        return F.ComboSelDay.ListCount();
    }

    static std::string Panel(const MainForm::PanelLabels& Labels) {
        return Labels[static_cast<std::size_t>(state.ScreenClass)].Caption;
    }

    ConfigureForm& F = FormConfigure;
};

// The way of one OK through the whole program.
TEST_F(Configure, ACityReachesStatePanelMapAndClock) {
    FormGTMain.MenuShowHideSubSundial.Click();
    const Bitmap MapBefore = FormGTMain.PictureGT.Picture;
    Desktop.Local = {2026, 12, 1, 21, 16, 5, 59, 0};
    Open();
    EXPECT_TRUE(F.Visible);
    EXPECT_FALSE(FormGTMain.Visible);

    PickCity("Cleveland, OH, USA");
    EXPECT_EQ(Place(), (Lists{1, 41, 28, -1, 81, 40}));
    EXPECT_EQ(state.ZoneHoursTable[static_cast<std::size_t>(F.ComboSelTZ.ListIndex)], 5.0F);
    EXPECT_EQ(state.LocationName, "Cleveland, Ohio") << "nothing changes before OK";
    EXPECT_EQ(state.LocationLat, 41.598);
    OK();

    EXPECT_EQ(state.ConfigSaved, False);
    EXPECT_EQ(state.LocationName, "Cleveland, OH, USA");
    EXPECT_EQ(state.LocationLat, 41.0 + 28.0 / 60.0);
    EXPECT_EQ(state.LocationLong, -static_cast<float>(81.0 + 40.0 / 60.0));
    EXPECT_EQ(state.ZoneHours, 5.0F);
    EXPECT_EQ(state.ZoneText, "GMT - 5:00");
    // 16:05 in a zone five hours behind Greenwich; the solstice is at 20:50.
    EXPECT_NEAR(state.CurrentJD, 2461396.378819, 2.5 / 86400.0);
    EXPECT_EQ(state.OffsetDays, state.CurrentJD - state.SystemJD);
    EXPECT_NEAR(state.SunDeclination, -23.44, 0.01);
    EXPECT_EQ(Panel(FormGTMain.LabelLocNameShow), "Cleveland, OH, USA");
    EXPECT_EQ(Panel(FormGTMain.LabelLocLatShow), "41d 28m North");
    EXPECT_EQ(Panel(FormGTMain.LabelLocLongShow), "81d 40m West");
    EXPECT_EQ(Panel(FormGTMain.LabelGTLocalDateShow), "December 21, 2026");
    EXPECT_EQ(Panel(FormGTMain.LabelGTLocalTimeShow).substr(0, 5), "16:05");
    EXPECT_EQ(Panel(FormGTMain.LabelGreenwichTimeShow).substr(0, 5), "21:05");
    EXPECT_EQ(Panel(FormGTMain.LabelSeasonShow), "Winter in N. Hemi -- Summer in S. Hemi");
    EXPECT_EQ(Panel(FormGTMain.LabelTimezoneShow), "GMT - 5:00");
    EXPECT_TRUE(FormGTMain.Visible);
    EXPECT_FALSE(F.Visible);
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
    const int Zone = F.ComboSelTZ.ListIndex;
    Open();
    EXPECT_EQ(F.ComboCityName.Text, std::string("Ushuaia"));
    EXPECT_EQ(Place(), (Lists{-1, 54, 48, 1, 68, 18}));
    EXPECT_EQ(F.ComboSetLatDeg.ListCount(), 70);
    EXPECT_EQ(F.ComboSelTZ.ListIndex, Zone) << "filling the lists asks no zone mask";
    EXPECT_EQ(F.ComboSelMonth.Text, std::string("June"));
    EXPECT_EQ(F.ComboSelDay.Text, std::string(" 1"));
    EXPECT_EQ(F.TextSelYear.Text, std::string("2026"));
    EXPECT_EQ(F.ComboSelHour.ListIndex, 8);
    EXPECT_EQ(F.ComboSelMinute.ListIndex, 0);
    EXPECT_TRUE(F.OptionDaylightSavings[1].Value);
    EXPECT_TRUE(F.OptionDateTime[0].Value);
    EXPECT_FALSE(F.FrameSetGTDate.Visible);

    F.OptionDateTime[1].Value = true;
    EXPECT_TRUE(F.FrameSetGTDate.Visible);
    F.ComboSetLongDeg.ListIndex = 140;
    F.TextSelYear.Text = "1999";
    F.Close();  // does what Cancel does
    EXPECT_TRUE(FormGTMain.Visible);
    EXPECT_EQ(state.LocationLong, 68.3F);
    EXPECT_EQ(state.ConfigSaved, True);
    EXPECT_EQ(state.OffsetDays, 0.0);
    Open();
    EXPECT_EQ(F.ComboSetLongDeg.ListIndex, 68);
    EXPECT_EQ(F.TextSelYear.Text, std::string("2026"));
    EXPECT_TRUE(F.FrameSetGTDate.Visible) << "the choice of the date stays as it was";
    EXPECT_NE(F.ComboSelTZ.ListIndex, Zone) << "and so does the zone";
}

TEST_F(Configure, OpensWithTheNearestEntriesForWhatItsListsLack) {
    state.LocationLat = 89.99;
    state.LocationLong = -180.5F;
    RecomputeAlmanac();
    Open();
    EXPECT_EQ(Place(), (Lists{1, 79, 59, -1, 179, 30}));
    DaysOf(2, "2026");
    F.CmdConfigureCancel.Click();
    state.LocalDay = 31.0F;
    Open();
    EXPECT_EQ(F.ComboSelDay.Text, std::string(" 31"));
}

TEST_F(Configure, TheZoneFollowsThePlaceAndATypedNameMovesNothing) {
    Open();
    F.ComboCityName.Type("My own hill");
    const Lists Before = Place();
    const int Zone = F.ComboSelTZ.ListIndex;
    OK();
    EXPECT_EQ(state.LocationName, "My own hill");
    EXPECT_EQ(Place(), Before);
    EXPECT_EQ(F.ComboSelTZ.ListIndex, Zone);
    Open();
    PickCity("Tokyo, Japan");
    EXPECT_EQ(F.ComboSelTZ.Text.Get().substr(0, 10), "GMT + 9:00");
    F.OptionDaylightSavings[1].Value = true;
    PickCity("Paris, France");
    EXPECT_EQ(F.ComboSelTZ.Text.Get().substr(0, 10), "GMT + 1:00");
    EXPECT_TRUE(F.OptionDaylightSavings[1].Value) << "a place has no rule for it";
    F.OptionSetLong[1].Value = true;
    F.ComboSetLongDeg.ListIndex = 110;
    EXPECT_EQ(F.ComboSelTZ.Text.Get().substr(0, 10), "GMT - 7:00");
    F.ComboSelTZ.ListIndex = 0;  // the user knows better
    OK();
    EXPECT_EQ(state.ZoneHours, 12.0F);
    EXPECT_EQ(state.DaylightHours, 1);
}

TEST_F(Configure, SouthEndsAtItsLastDegreeAndNorthKeepsIt) {
    Open();
    F.ComboSetLatDeg.ListIndex = 75;
    F.OptionSetLat[1].Value = true;
    EXPECT_EQ(F.ComboSetLatDeg.ListIndex, 69);
    EXPECT_EQ(F.ComboSetLatDeg.ListCount(), 70);
    F.OptionSetLat[0].Value = true;
    EXPECT_EQ(F.ComboSetLatDeg.ListIndex, 69);
    EXPECT_EQ(F.ComboSetLatDeg.ListCount(), 80);
}

TEST_F(Configure, TheDayListFollowsMonthAndYear) {
    Open();
    EXPECT_EQ(DaysOf(1, "2026"), 31);
    EXPECT_EQ(DaysOf(4, "2026"), 30);
    EXPECT_EQ(DaysOf(12, "2026"), 31);
    for (const char* Year : {"2000", "2024", "1600", "1583.6", "2024 "}) EXPECT_EQ(DaysOf(2, Year), 29) << Year;
    for (const char* Year : {"1900", "2023", "1580", "1582", "4", "", "x2000", "1e999"}) {
        EXPECT_EQ(DaysOf(2, Year), 28) << Year;
    }
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
    EXPECT_EQ(Panel(FormGTMain.LabelGTLocalDateShow), "March 3, 1999");
    EXPECT_EQ(Panel(FormGTMain.LabelGTLocalTimeShow).substr(0, 5), "23:59");
    EXPECT_TRUE(Desktop.Messages.empty());
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
    Open();
    F.ComboSelTZ.ListIndex = F.ComboSelTZ.ListIndex - 1;  // an hour further west
    OK();
    EXPECT_NEAR(state.OffsetDays, 1.0 / 24.0, 2.5 / 86400.0);
}

TEST_F(Configure, OnlyYearsFromMinus4000To4000Pass) {
    for (const char* Year : {"0", "-4000", "4000", "+12", "1999.5", "12 BC"}) {
        Open();
        F.OptionDateTime[1].Value = true;
        F.TextSelYear.Text = Year;
        OK();
        EXPECT_TRUE(Desktop.Messages.empty()) << Year;
        EXPECT_FALSE(F.Visible) << Year;
    }
    EXPECT_EQ(state.LocalYear, 12.0F);
    state.ConfigSaved = True;
    Open();
    F.ComboSetLatMin.ListIndex = 0;
    for (const char* Year : {"00", " 0", "", "abc", "-0", "4000.5", "-4000.01", "1e999", "1e-999", "inf", "nan"}) {
        Desktop.Messages.clear();
        F.TextSelYear.Text = Year;
        OK();
        ASSERT_EQ(Desktop.Messages.size(), 1U) << Year;
        EXPECT_TRUE(F.Visible);
    }
    EXPECT_EQ(Desktop.Messages[0].Box.Title, "Input Out Of Range");
    EXPECT_EQ(Desktop.Messages[0].Box.Text, "Year must be from -4000 through +4000: Please re-enter.");
    EXPECT_EQ(Desktop.Messages[0].BeepsBefore, 2);
    EXPECT_EQ(Desktop.Focus, &F.TextSelYear);
    EXPECT_EQ(state.LocalYear, 12.0F);
    F.CmdConfigureCancel.Click();
    EXPECT_EQ(state.LocationLat, 41.0) << "the place was taken over before the year was looked at";
    EXPECT_EQ(state.ConfigSaved, False);
}

}  // namespace
}  // namespace gloamtide
