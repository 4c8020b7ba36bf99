#include "dialogs/animation_settings.h"

#include "tests/program_test.h"

namespace gloamtide {
namespace {

class AnimationSettings : public ProgramTest {
protected:
    AnimationSettings() {
        Desktop.ScreenWidth = 640;
        Start();
        state.ConfigFilePath = "my.gtf";
        state.ConfigSaved = True;
        FormGTMain.MenuAnimationSubOptions.Click();
    }

    void OK(const std::string& Years, const std::string& Days, const std::string& Hours) {
        F.TextStepYears.Text = Years;
        F.TextStepDays.Text = Days;
        F.TextStepHours.Text = Hours;
        F.CmdAnimOptionsOK.Click();
    }

    static std::string Info() { return FormGTMain.LabelAnimInfo.Caption; }

    AnimationForm& F = FormAnimation;
};

TEST_F(AnimationSettings, CoversTheMainWindow) {
    EXPECT_TRUE(F.Visible && FormGTMain.Visible && F.OptionAnimOptionsFwdBack[0].Value);
    const double Shown = state.CurrentJD;
    Desktop.Advance(2000);
    EXPECT_GT(state.CurrentJD, Shown) << "the clock runs on behind it";
    EXPECT_EQ(Desktop.InFront, nullptr);
    FormGTMain.MenuAnimationSubOptions.Click();
    EXPECT_EQ(Desktop.InFront, &F) << "chosen again it comes to the front";
}

TEST_F(AnimationSettings, OKTakesTheTextsAndKeepsThemInTheFile) {
    F.OptionAnimOptionsFwdBack[1].Value = true;
    OK("-12abc", "", "0.5 hours");
    EXPECT_EQ(std::tuple(state.AnimYears, state.AnimDays, state.AnimHours, state.AnimForward),
              std::tuple(-12.0F, 0.0F, 0.5F, False));
    EXPECT_EQ(Info(), "-12abcy, d, 0.5 hoursh   Backward");
    EXPECT_EQ(std::filesystem::file_size(Folder / "my.gtf"), 672U);
    EXPECT_TRUE(!F.Visible && state.ConfigSaved == True);
}

TEST_F(AnimationSettings, WhatCannotBeKeptIsToldAndStaysInForce) {
    state.ConfigFilePath = "nowhere/my.gtf";
    OK("1", "2", "3");
    ExpectMessages(
        {"Save Error (!): Can't save the animation settings. They stay in force until the program ends. "
         "nowhere/my.gtf: No such file or directory"});
    EXPECT_EQ(state.AnimDays, 2.0F);
    EXPECT_FALSE(F.Visible);
}

TEST_F(AnimationSettings, TheFirstTextOutOfRangeIsRefusedAndNothingTaken) {
    struct Refused {
        const char *Years, *Days, *Hours;
        const TextBox& Box;
        const char* Text;
    };
    const char* const YearText = "Year steps must be from -100 through +100: Please re-enter.";
    const char* const DayText = "Day steps must be from -365 through +365: Please re-enter.";
    const char* const HourText = "Hour steps must be from -24 through +24: Please re-enter.";
    for (const Refused& Each :
         {Refused{"100.01", "400", "", F.TextStepYears, YearText}, Refused{"-101", "0", "0", F.TextStepYears, YearText},
          Refused{"0.0", "0", "0", F.TextStepYears, YearText}, Refused{"1e999", "0", "0", F.TextStepYears, YearText},
          Refused{"100", "-365.5", "99", F.TextStepDays, DayText}, Refused{"5", "abc", "0", F.TextStepDays, DayText},
          Refused{"-100", "365", "24.1", F.TextStepHours, HourText},
          Refused{"5", "5", "nan", F.TextStepHours, HourText}}) {
        OK(Each.Years, Each.Days, Each.Hours);
        ExpectMessages({std::string("Input Out Of Range: ") + Each.Text});
        EXPECT_TRUE(F.Visible && Desktop.Focus == &Each.Box);
    }
    EXPECT_TRUE(state.AnimYears == 0.0F && state.AnimDays == 0.0F);
    EXPECT_FALSE(std::filesystem::exists(Folder / "my.gtf"));
    OK("-100", "+365", "-24");
    ExpectMessages({});  // the limits themselves pass
}

TEST_F(AnimationSettings, CancelKeepsTheDirectionThatTheNextStartTakes) {
    F.OptionAnimOptionsFwdBack[1].Value = true;
    F.Close();
    EXPECT_FALSE(F.Visible);
    EXPECT_EQ(state.AnimForward, True);
    FormGTMain.MenuAnimationSubStart.Click();
    EXPECT_LT(state.AnimStepDays, 0.0);
    EXPECT_EQ(Info(), "0y, 0d, 1h   Forward");
    FormGTMain.MenuAnimationSubOptions.Click();
    OK("0", "3", "0");
    EXPECT_EQ(Info(), "0y, 3d, 0h   Backward") << "at once";
    EXPECT_NEAR(state.AnimStepDays, -1.0 / 24.0, 1e-9) << "the step at the next start";
}

}  // namespace
}  // namespace gloamtide
