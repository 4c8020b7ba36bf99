#include "clock/animation.h"

#include <functional>
#include <numeric>

#include "tests/program_test.h"

namespace gloamtide {
namespace {

class Animation : public ProgramTest {
protected:
    Animation() { Start(640); }  // the smallest map: a third of the time

    static bool LabelsShown() {
        EXPECT_EQ(F.LabelAnimInfo.Visible.Get(), F.CmdAnimStop.Visible.Get());
        EXPECT_EQ(F.LabelAnimSteps.Visible.Get(), F.CmdAnimStop.Visible.Get());
        return F.CmdAnimStop.Visible;
    }

    static inline MainForm& F = FormGTMain;
};

TEST_F(Animation, AnHourASecondWithABeepUntilItIsStopped) {
    const double Begin = state.CurrentJD;
    EXPECT_FALSE(LabelsShown());
    F.MenuAnimationSubStart.Click();
    EXPECT_TRUE(LabelsShown());
    EXPECT_FALSE(F.Timer1.Enabled);
    const std::vector<Color>& Map = F.PictureGT.Picture.Pixels;
    const std::vector<Color> MapBefore = Map;
    Desktop.Advance(999);
    EXPECT_EQ(Desktop.Beeps, 0);
    EXPECT_EQ(Map, MapBefore);
    state.LocalSecond = 41.0F;
    state.GreenwichSecond = 17.0F;
    Desktop.Advance(4001);
    EXPECT_EQ(Desktop.Beeps, 5);
    EXPECT_GT(std::transform_reduce(Map.begin(), Map.end(), MapBefore.begin(), 0, std::plus(), std::not_equal_to()),
              1000)
        << "more than the marker that blinks";
    EXPECT_EQ(F.LabelGTLocalTimeShow[0].Caption.Get().substr(6) + F.LabelGreenwichTimeShow[0].Caption.Get().substr(6),
              "4117    (Universal Time)")
        << "the seconds are kept by every step";
    EXPECT_NEAR(state.CurrentJD, Begin + 5.0 / 24.0, 1e-9);
    EXPECT_EQ(F.LabelTimeOffsetShow[0].Caption, std::string("0.208  Days"));
    EXPECT_EQ(state.BlinkPhase, True) << "five blinks";

    F.CmdAnimStop.Click();
    EXPECT_FALSE(LabelsShown());
    const double Offset = state.OffsetDays;
    Desktop.Advance(3000);
    EXPECT_EQ(Desktop.Beeps, 5);
    EXPECT_EQ(state.CurrentJD, state.SystemJD + Offset) << "the clock runs on from there";
}

using LongAnimation = Animation;

TEST_F(LongAnimation, RunsTenThousandStepsOrUpToItsLimit) {
    const struct {
        float Years, Days;
        bool Forward;
        double Limit;          // or none, which is 0
        const char* LastDate;  // the first instant past the limit stays on the panel
    } Runs[] = {{0.0F, 1.0F, true, 0.0, ""},
                {0.0F, 1.0F, false, 0.0, ""},
                {1.0F, 0.0F, true, HighestJD, "June 1, 4001"},
                {1.0F, 0.0F, false, LowestJD, "June 1, -4001"}};
    for (const auto& R : Runs) {
        SCOPED_TRACE(&R - Runs);
        RenewProgram();
        Start();
        state.ShowSun = state.ShowMoon = state.ShowAnalemma = state.ShowCities = True;
        state.ShowMapGrid = state.ShowTimezones = state.ShowSundial = True;
        FormAnimation.OptionAnimOptionsFwdBack[R.Forward ? 0 : 1].Value = true;
        state.AnimYears = R.Years * SanitizedShare;
        state.AnimDays = R.Days;
        state.AnimHours = 0.0F;
        F.MenuAnimationSubStart.Click();
        F.Timer1.Enabled = true;  // as a file that is opened meanwhile leaves it
        double Before = state.CurrentJD;
        for (int Step = 0; Step < 10000 / SanitizedShare && F.Timer3.Enabled; ++Step) {
            F.Timer3.Tick();
            if (!F.Timer3.Enabled) break;
            const double Moved = state.CurrentJD - Before;
            ASSERT_NEAR(R.Forward ? Moved : -Moved, state.AnimYears * 365.25 + R.Days, R.Years == 0.0F ? 1e-6 : 11.5)
                << Before;
            Before = state.CurrentJD;
        }
        ASSERT_EQ(Desktop.Messages.size(), R.Limit == 0.0 ? 0U : 1U);
        if (R.Limit == 0.0) continue;
        EXPECT_EQ(std::exchange(Desktop.Messages, {})[0].Box.Title, "Gloamtide Year Limit Reached");
        EXPECT_EQ(state.CurrentJD, R.Limit);
        EXPECT_TRUE(SanitizedShare != 1 || F.LabelGTLocalDateShow[0].Caption.Get() == R.LastDate);
        EXPECT_FALSE(F.Timer1.Enabled || F.Timer3.Enabled || LabelsShown());
        const int Beeps = Desktop.Beeps;
        Desktop.Advance(5000);
        EXPECT_EQ(Desktop.Beeps, Beeps);
    }
}

TEST_F(Animation, KeysStepAndTheClockRunsOn) {
    Desktop.System = {2024, 3, 5, 1, 12, 34, 56, 0};  // March 1
    F.Keys.at("Home")();
    std::ostringstream Text;
    for (const char* Key : {"Right", "Left", "Shift+Left", "Left", "Ctrl+Left", "Ctrl+Right", "Shift+Right", "Right",
                            "PgUp", "PgUp", "Shift+Left", "Shift+Right", "PgDown", "PgDown", "PgDown"}) {
        F.Keys.at(Key)();
        Text << Key << ": " << state.OffsetDays << (F.ButtonNow.Visible ? " " + F.ButtonNow.ToolTipText.Get() : "")
             << "\n";
    }
    ExpectGoldenText("steps.txt", Text.str());
    EXPECT_EQ(Desktop.Beeps, 0);
    F.Keys.at("Space")();
    F.Keys.at("PgDown")();
    EXPECT_EQ(std::tuple(state.AnimStepDays, state.AnimStepYears), std::tuple(1.0 / 24.0, 0.0)) << "its own step stays";
    EXPECT_TRUE(F.Timer3.Enabled && !F.Timer1.Enabled);
    F.Keys.at("Space")();
    EXPECT_TRUE(F.Timer1.Enabled && !F.Timer3.Enabled && !LabelsShown());
    state.CurrentJD = HighestJD - 1.0;
    F.Keys.at("PgDown")();
    EXPECT_TRUE(state.CurrentJD == HighestJD && !F.Timer1.Enabled && Desktop.Messages.size() == 1);
    F.Keys.at("Left")();
    EXPECT_TRUE(F.Timer1.Enabled && Desktop.Messages.size() == 1) << "back from the limit the clock runs again";
}

TEST_F(Animation, NowLeadsBackFromAnywhere) {
    const auto Shown = [&] {
        return std::tuple(state.OffsetDays, state.CurrentJD, F.LabelLocSunriseShow[0].Caption.Get());
    };
    F.Keys.at("Home")();
    const auto Present = std::pair(Shown(), F.PictureGT.Picture.Pixels);
    for (const double Offset : {-90.0, 1e9, -1e300}) {
        state.OffsetDays = Offset;
        const DateTime Time = Desktop.System;
        F.MenuAnimationSubStart.Click();
        Desktop.Advance(2000);
        state.ConfigSaved = True;
        Desktop.System = Time;
        (Offset < 0.0 ? F.MenuAnimationSubNow.Click : F.ButtonNow.Click)();
        EXPECT_EQ(std::pair(Shown(), F.PictureGT.Picture.Pixels), Present);
        EXPECT_TRUE(F.Timer1.Enabled && !F.Timer3.Enabled && !LabelsShown() && !F.ButtonNow.Visible &&
                    !state.ConfigSaved);
    }
}

}  // namespace
}  // namespace gloamtide
