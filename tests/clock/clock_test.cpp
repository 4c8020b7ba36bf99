#include "clock/clock.h"

#include "tests/program_test.h"

namespace gloamtide {
namespace {

class Clock : public ProgramTest {};

TEST_F(Clock, LocalAndGreenwichFieldsFollowTheZoneNotTheMachine) {
    Desktop.System = {2027, 1, 5, 1, 4, 30, 0, 0};
    Start();
    EXPECT_EQ(state.LocalYear, 2026.0F);
    EXPECT_EQ(state.LocalMonth, 12.0F);
    EXPECT_EQ(state.LocalDay, 31.0F);
    EXPECT_EQ(state.GreenwichYear, 2027.0F);
    EXPECT_EQ(state.GreenwichMonth, 1.0F);
    EXPECT_EQ(state.GreenwichDay, 1.0F);
    EXPECT_EQ(state.WorkZoneHours, 0.0F);
    state.CurrentJD += 0.5 / 86400.0;  // away from the cut of the seconds
    state.DaylightHours = 1;
    UpdateDateFields();
    EXPECT_EQ(state.LocalDay, 1.0F);
    EXPECT_EQ(state.LocalHour, 0.0F);
    EXPECT_EQ(state.LocalMinute, 30.0F);
    EXPECT_EQ(state.GreenwichHour, 4.0F);
    EXPECT_EQ(state.WorkDaylightHours, 0);
}

TEST_F(Clock, TheInstantFollowsTheSystemClockWithItsOffset) {
    Start();
    state.OffsetDays = 365.25;
    const double Before = state.SystemJD;
    Desktop.Advance(90000);
    EXPECT_NEAR(state.SystemJD - Before, 90.0 / 86400.0, 1e-9);
    EXPECT_EQ(state.CurrentJD, state.OffsetDays + state.SystemJD);
    EXPECT_EQ(state.SystemTimeBuffer.Minute, 1);
    EXPECT_EQ(state.SystemTimeBuffer.Second, 30);
    Desktop.System = {1970, 1, 4, 1, 0, 0, 0, 700};  // the clock was set back; its milliseconds are dropped
    Desktop.Advance(1000);
    EXPECT_EQ(state.SystemJD, 2440587.5 + 1.0 / 86400.0);
}

TEST_F(Clock, TheMapMovesOnceAMinute) {
    Desktop.System = {2026, 6, 1, 1, 12, 0, 0, 0};
    Start();
    const std::int32_t Shift = state.MapShift;
    const double Declination = state.SunDeclination;
    Desktop.Advance(59000);
    EXPECT_EQ(state.MapShift, Shift);
    EXPECT_EQ(state.SunDeclination, Declination);
    Desktop.Advance(10 * 60000 - 59000);
    EXPECT_EQ(state.MapShift, 1174) << "ten minutes of 1440, 8 pixels of 1182, left of noon";
    EXPECT_GT(state.SunDeclination, Declination);
}

TEST_F(Clock, AtTheUpperLimitTheProgramFreezesWithOneMessage) {
    Start();
    state.OffsetDays = HighestJD - state.SystemJD - 1.5 / 86400.0;
    Desktop.Advance(1000);
    EXPECT_TRUE(Desktop.Messages.empty());
    Desktop.Advance(5000);
    ASSERT_EQ(Desktop.Messages.size(), 1U);
    EXPECT_EQ(Desktop.Messages[0].Box.Title, "Gloamtide Year Limit Reached");
    EXPECT_EQ(Desktop.Messages[0].Box.Icon, MessageIcon::Exclamation);
    EXPECT_EQ(
        Desktop.Messages[0].Box.Text,
        "The Gloamtide year has passed out of its range of -4000 to +4000. Please use the Configure or File/Open "
        "Menu to restore the year to within the valid range.  The Map Display and Almanac Panel will remain frozen "
        "until the year is valid.");
    EXPECT_EQ(Desktop.Messages[0].BeepsBefore, 1);
    EXPECT_FALSE(FormGTMain.Timer1.Enabled);
    EXPECT_TRUE(FormGTMain.Timer2.Enabled);
    EXPECT_EQ(state.CurrentJD, HighestJD);
    EXPECT_EQ(state.GreenwichYear, 4001.0F) << "the fields show the first instant past the limit";
}

TEST_F(Clock, TheLowerLimitIsNotTestedWhileTheClockRuns) {
    Start();
    state.OffsetDays = LowestJD - state.SystemJD - 100.0;
    Desktop.Advance(2000);
    EXPECT_TRUE(Desktop.Messages.empty());
    EXPECT_TRUE(FormGTMain.Timer1.Enabled);
}

TEST_F(Clock, ANewMapTypeIsBuiltOnce) {
    Start();
    state.ConfigSaved = True;
    state.MapType = 1;
    FormGTMain.LabelWorking.Visible = true;
    FormGTMain.Timer4.Enabled = true;
    Desktop.Advance(99);
    EXPECT_NE(FormPictures.PictureNight.Picture.Row(300)[100], RGB(0, 0, 3));
    Desktop.Advance(1);
    EXPECT_EQ(FormPictures.PictureNight.Picture.Row(300)[100], RGB(0, 0, 3));
    EXPECT_FALSE(FormGTMain.Timer4.Enabled || FormGTMain.LabelWorking.Visible);
    EXPECT_EQ(state.ConfigSaved, False);
}

}  // namespace
}  // namespace gloamtide
