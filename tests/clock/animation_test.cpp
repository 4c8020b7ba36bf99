#include "clock/animation.h"

#include "astro/calendar.h"
#include "clock/clock.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

class Animation : public ProgramTest {
protected:
    explicit Animation(int ScreenWidth = 1280) {
        Desktop.ScreenWidth = ScreenWidth;
        Start();
    }

    static bool LabelsShown() {
        const MainForm& F = FormGTMain;
        EXPECT_EQ(F.LabelAnimInfo.Visible.Get(), F.CmdAnimStop.Visible.Get());
        EXPECT_EQ(F.LabelAnimSteps.Visible.Get(), F.CmdAnimStop.Visible.Get());
        return F.CmdAnimStop.Visible;
    }

    static void Animate(float Years, float Days, float Hours) {
        state.AnimYears = Years;
        state.AnimDays = Days;
        state.AnimHours = Hours;
        FormGTMain.MenuAnimationSubStart.Click();
    }

    // Puts the program on a local date, at a clock time of 10:30:30.
    static void Show(float Year, float Month, float Day) {
        state.WorkYear = Year;
        state.WorkMonth = Month;
        state.WorkDay = Day;
        state.WorkHour = 10.0F;
        state.WorkMinute = 30.0F;
        state.WorkSecond = 30.0F;
        state.WorkZoneHours = state.ZoneHours;
        state.WorkDaylightHours = state.DaylightHours;
        DateToJulian();
        state.CurrentJD = state.WorkJD;
        UpdateDateFields();
    }

    static std::string LocalDate() {
        return FormGTMain.LabelGTLocalDateShow[static_cast<std::size_t>(state.ScreenClass)].Caption;
    }
};

TEST_F(Animation, AnHourASecondWithABeepUntilItIsStopped) {
    const double Begin = state.CurrentJD;
    EXPECT_FALSE(LabelsShown());
    FormGTMain.MenuAnimationSubStart.Click();
    EXPECT_TRUE(LabelsShown());
    EXPECT_EQ(FormGTMain.LabelAnimInfo.Caption, std::string("0y, 0d, 1h   Forward"));
    EXPECT_FALSE(FormGTMain.Timer1.Enabled);
    Desktop.Advance(999);
    EXPECT_EQ(Desktop.Beeps, 0);
    Desktop.Advance(4001);
    EXPECT_EQ(Desktop.Beeps, 5);
    EXPECT_NEAR(state.CurrentJD, Begin + 5.0 / 24.0, 1e-9);
    EXPECT_EQ(state.OffsetDays, state.CurrentJD - state.SystemJD);
    EXPECT_EQ(FormGTMain.LabelTimeOffsetShow[3].Caption, std::string("0.208  Days"));
    EXPECT_EQ(state.BlinkPhase, True) << "five blinks";

    FormGTMain.CmdAnimStop.Click();
    EXPECT_FALSE(LabelsShown());
    const double Offset = state.OffsetDays;
    Desktop.Advance(3000);
    EXPECT_EQ(Desktop.Beeps, 5);
    EXPECT_EQ(state.OffsetDays, Offset);
    EXPECT_EQ(state.CurrentJD, state.SystemJD + Offset) << "the clock runs on from there";
}

TEST_F(Animation, AStepRecomputesEverythingAndKeepsTheSecondsShown) {
    Show(2026.0F, 3.0F, 1.0F);
    const float LocalSecond = state.LocalSecond;
    const float GreenwichSecond = state.GreenwichSecond;
    const std::vector<Color> MapBefore = FormGTMain.PictureGT.Picture.Pixels;
    Animate(0.0F, 30.0F, 0.1F);
    for (int Step = 0; Step < 5; ++Step) {
        Desktop.Advance(1000);
        EXPECT_EQ(state.LocalSecond, LocalSecond);
        EXPECT_EQ(state.GreenwichSecond, GreenwichSecond);
    }
    EXPECT_EQ(LocalDate(), "July 29, 2026");
    EXPECT_NEAR(state.SunDeclination, 18.7, 0.2);
    EXPECT_EQ(state.SeasonNorth, "Summer");
    EXPECT_EQ(state.SunriseHour, 5);
    EXPECT_NE(FormGTMain.PictureGT.Picture.Pixels, MapBefore);
}

TEST_F(Animation, YearsAreCountedOnTheCalendar) {
    Show(2024.0F, 2.0F, 29.0F);
    Animate(1.0F, 0.0F, 0.0F);
    Desktop.Advance(1000);
    EXPECT_EQ(LocalDate(), "March 1, 2025");
    Desktop.Advance(3000);
    EXPECT_EQ(LocalDate(), "March 1, 2028");
    EXPECT_EQ(state.LocalHour, 10.0F);
    EXPECT_EQ(state.LocalMinute, 30.0F);

    Show(-3.0F, 7.0F, 20.0F);
    for (float Year = -2.0F; Year <= 3.0F; ++Year) {
        Desktop.Advance(1000);
        EXPECT_EQ(state.LocalYear, Year);
        EXPECT_EQ(state.LocalMonth * 100.0F + state.LocalDay, 720.0F);
    }
    FormAnimation.OptionAnimOptionsFwdBack[1].Value = true;
    Animate(1.0F, 0.0F, 0.0F);  // a second start takes the new direction
    Desktop.Advance(4000);
    EXPECT_EQ(state.LocalYear, -1.0F);
    Animate(0.0F, 0.0F, 0.0F);
    const double Still = state.CurrentJD;
    Desktop.Advance(2000);
    EXPECT_EQ(state.CurrentJD, Still);
}

struct LongRun {
    const char* Name;
    float Years, Days;
    bool Forward;
    double Limit;
    const char* LastDate;  // the first instant past the limit stays on the panel
};

void PrintTo(const LongRun& Which, std::ostream* Out) { *Out << Which.Name; }

class LongAnimation : public Animation, public testing::WithParamInterface<LongRun> {
protected:
    LongAnimation() : Animation(640) {}  // the smallest map: a third of the time
};

TEST_P(LongAnimation, RunsTenThousandStepsOrUpToItsLimit) {
    const LongRun& R = GetParam();
    state.ShowSun = state.ShowMoon = state.ShowAnalemma = state.ShowCities = True;
    state.ShowMapGrid = state.ShowTimezones = state.ShowSundial = True;
    FormAnimation.OptionAnimOptionsFwdBack[R.Forward ? 0 : 1].Value = true;
    Animate(R.Years, R.Days, 0.0F);
    double Before = state.CurrentJD;
    for (int Step = 0; Step < 10000 && FormGTMain.Timer3.Enabled; ++Step) {
        FormGTMain_Timer3_Timer();
        if (!FormGTMain.Timer3.Enabled) break;
        const double Moved = state.CurrentJD - Before;
        ASSERT_NEAR(R.Forward ? Moved : -Moved, R.Years * 365.25 + R.Days, R.Years == 0.0F ? 1e-6 : 11.5)
            << LocalDate();
        Before = state.CurrentJD;
    }
    if (R.Limit == 0.0) {
        EXPECT_TRUE(Desktop.Messages.empty());
        return;
    }
    ASSERT_EQ(Desktop.Messages.size(), 1U);
    EXPECT_EQ(Desktop.Messages[0].Box.Title, "Gloamtide Year Limit Reached");
    EXPECT_EQ(state.CurrentJD, R.Limit);
    EXPECT_EQ(LocalDate(), R.LastDate);
    EXPECT_FALSE(FormGTMain.Timer1.Enabled || FormGTMain.Timer3.Enabled || LabelsShown());
    const int Beeps = Desktop.Beeps;
    Desktop.Advance(5000);
    EXPECT_EQ(Desktop.Beeps, Beeps);
}

INSTANTIATE_TEST_SUITE_P(Runs, LongAnimation,
                         testing::Values(LongRun{"DaysForward", 0.0F, 1.0F, true, 0.0, ""},
                                         LongRun{"DaysBackward", 0.0F, 1.0F, false, 0.0, ""},
                                         LongRun{"YearsForward", 1.0F, 0.0F, true, HighestJD, "June 1, 4001"},
                                         LongRun{"YearsBackward", 1.0F, 0.0F, false, LowestJD, "June 1, -4001"}),
                         [](const auto& Info) { return Info.param.Name; });

}  // namespace
}  // namespace gloamtide
