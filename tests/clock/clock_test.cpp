#include "clock/clock.h"

#include "tests/program_test.h"

namespace gloamtide {
namespace {

class Clock : public ProgramTest {
protected:
    // All that the almanac shows.
    static std::string Panel() {
        std::string Text;
        for (const Control* Each : FormGTMain.PictureGTData[static_cast<std::size_t>(state.ScreenClass)].Children) {
            Text += dynamic_cast<const Label&>(*Each).Caption.Get() + '\n';
        }
        return Text;
    }

    // What the full recomputation shows is held by tests/vectors_test.cpp.
    static void ExpectFullRecomputation() {
        const std::string Shown = Panel();
        RecomputeAlmanac();
        EXPECT_EQ(Shown, Panel());
    }
};

TEST_F(Clock, TheWholePanelFollowsTheStartTheMinuteAndTheAnimation) {
    Desktop.System = {2027, 3, 1, 1, 4, 10, 0, 0};  // still February in Cleveland
    Start();
    ExpectFullRecomputation();
    state.OffsetDays = 28.0 / 1440.0 + 0.5 / 86400.0;  // away from the cut of the seconds
    FormGTMain.Timer1.Tick();
    FormGTMain.Timer2.Tick();
    FormGTMain.Timer1.Tick();
    ExpectFullRecomputation();
    state.AnimDays = 40.0F;
    FormGTMain.MenuAnimationSubStart.Click();
    FormGTMain.Timer3.Tick();
    ExpectFullRecomputation();
}

TEST_F(Clock, TheInstantFollowsTheSystemClockWithItsOffset) {
    Start();
    state.OffsetDays = 365.25;
    const double Before = state.SystemJD;
    Desktop.Advance(90000);
    EXPECT_NEAR(state.SystemJD - Before, 90.0 / 86400.0, 1e-9);
    EXPECT_EQ(state.CurrentJD, state.OffsetDays + state.SystemJD);
    EXPECT_EQ(state.SystemTimeBuffer.Minute * 60 + state.SystemTimeBuffer.Second, 90);
    Desktop.System = {1970, 1, 4, 1, 0, 0, 0, 700};  // the clock was set back; its milliseconds are dropped
    Desktop.Advance(1000);
    EXPECT_EQ(state.SystemJD, 2440587.5 + 1.0 / 86400.0);
    EXPECT_EQ(state.BlinkPhase, True) << "91 blinks";
}

TEST_F(Clock, TheMapMovesOnceAMinute) {
    Start();
    const auto Before = std::pair(state.MapShift, state.SunDeclination);
    Desktop.Advance(59000);
    EXPECT_EQ(std::pair(state.MapShift, state.SunDeclination), Before);
    Desktop.Advance(10 * 60000 - 59000);
    EXPECT_EQ(state.MapShift, 1174) << "ten minutes of 1440, 8 pixels of 1182, left of noon";
}

TEST_F(Clock, AtTheUpperLimitTheProgramFreezesWithOneMessage) {
    Start();
    state.OffsetDays = HighestJD - state.SystemJD - 0.5 / 86400.0;
    FormGTMain.Timer1.Tick();
    EXPECT_TRUE(Desktop.Messages.empty());
    state.OffsetDays = HighestJD - state.SystemJD;
    FormGTMain.Timer1.Tick();
    EXPECT_EQ(Desktop.Messages.size(), 1U);
    Desktop.Advance(5000);
    ASSERT_EQ(Desktop.Messages.size(), 1U);
    EXPECT_EQ(
        Desktop.Messages[0].Box.Text,
        "The Gloamtide year has passed out of its range of -4000 to +4000. Please use the Configure or File/Open "
        "Menu to restore the year to within the valid range.  The Map Display and Almanac Panel will remain frozen "
        "until the year is valid.");
    EXPECT_EQ(std::tuple(Desktop.Messages[0].Box.Icon, Desktop.Messages[0].BeepsBefore),
              std::tuple(MessageIcon::Exclamation, 1));
    EXPECT_EQ(std::pair(FormGTMain.Timer1.Enabled.Get(), FormGTMain.Timer2.Enabled.Get()), std::pair(false, true));
    EXPECT_EQ(state.CurrentJD, HighestJD);
    EXPECT_EQ(state.GreenwichYear, 4001.0F) << "the fields show the first instant past the limit";
}

TEST_F(Clock, TheLowerLimitIsNotTestedWhileTheClockRuns) {
    Start();
    state.OffsetDays = LowestJD - state.SystemJD - 100.0;
    Desktop.Advance(2000);
    EXPECT_TRUE(Desktop.Messages.empty() && FormGTMain.Timer1.Enabled);
}

}  // namespace
}  // namespace gloamtide
