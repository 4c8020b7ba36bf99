#include "dialogs/animation_settings.h"

#include "tests/program_test.h"

namespace gloamtide {
namespace {

class AnimationSettings : public ProgramTest {
protected:
    AnimationSettings() {
        Start();
        state.ConfigFilePath = "my.gtf";
        FormGTMain.MenuAnimationSubOptions.Click();
    }

    void OK(const std::string& Years, const std::string& Days, const std::string& Hours) {
        F.TextStepYears.Text = Years;
        F.TextStepDays.Text = Days;
        F.TextStepHours.Text = Hours;
        F.CmdAnimOptionsOK.Click();
    }

    AnimationForm& F = FormAnimation;
};

TEST_F(AnimationSettings, CoversTheMainWindowAndShowsTheSettings) {
    EXPECT_TRUE(F.Visible);
    EXPECT_TRUE(FormGTMain.Visible);
    EXPECT_EQ(F.TextStepYears.Text, std::string("0"));
    EXPECT_EQ(F.TextStepHours.Text, std::string("1"));
    EXPECT_TRUE(F.OptionAnimOptionsFwdBack[0].Value);
    const double Shown = state.CurrentJD;
    Desktop.Advance(2000);
    EXPECT_GT(state.CurrentJD, Shown) << "the clock runs on behind it";
}

TEST_F(AnimationSettings, OKTakesTheTextsAndKeepsThemInTheFile) {
    state.ConfigSaved = True;
    F.OptionAnimOptionsFwdBack[1].Value = true;
    OK("-12abc", "", "0.5 hours");
    EXPECT_EQ(state.AnimYears, -12.0F);
    EXPECT_EQ(state.AnimDays, 0.0F);
    EXPECT_EQ(state.AnimHours, 0.5F);
    EXPECT_EQ(state.AnimForward, False);
    EXPECT_EQ(FormGTMain.LabelAnimInfo.Caption, std::string("-12abcy, d, 0.5 hoursh   Backward"));
    EXPECT_EQ(std::filesystem::file_size(Folder / "my.gtf"), 672U);
    EXPECT_EQ(state.ConfigSaved, True);
    EXPECT_FALSE(F.Visible);
}

TEST_F(AnimationSettings, WhatCannotBeKeptIsToldAndStaysInForce) {
    state.ConfigFilePath = "nowhere/my.gtf";
    OK("1", "2", "3");
    ASSERT_EQ(Desktop.Messages.size(), 1U);
    EXPECT_NE(Desktop.Messages[0].Box.Text.find("nowhere/my.gtf: No such file"), std::string::npos)
        << Desktop.Messages[0].Box.Text;
    EXPECT_EQ(Desktop.Messages[0].BeepsBefore, 2);
    EXPECT_EQ(state.AnimDays, 2.0F);
    EXPECT_FALSE(F.Visible);
}

TEST_F(AnimationSettings, TheFirstTextOutOfRangeIsRefusedAndNothingTaken) {
    struct Refused {
        const char *Years, *Days, *Hours;
        const TextBox* Box;
        const char* Text;
    };
    const Refused All[] = {
        {"100.01", "400", "", &F.TextStepYears, "Year steps must be from -100 through +100: Please re-enter."},
        {"-101", "0", "0", &F.TextStepYears, "Year steps must be from -100 through +100: Please re-enter."},
        {"0.0", "0", "0", &F.TextStepYears, "Year steps must be from -100 through +100: Please re-enter."},
        {"1e999", "0", "0", &F.TextStepYears, "Year steps must be from -100 through +100: Please re-enter."},
        {"100", "-365.5", "99", &F.TextStepDays, "Day steps must be from -365 through +365: Please re-enter."},
        {"5", "abc", "0", &F.TextStepDays, "Day steps must be from -365 through +365: Please re-enter."},
        {"-100", "365", "24.1", &F.TextStepHours, "Hour steps must be from -24 through +24: Please re-enter."},
        {"5", "5", "nan", &F.TextStepHours, "Hour steps must be from -24 through +24: Please re-enter."},
    };
    for (const Refused& Each : All) {
        Desktop.Messages.clear();
        OK(Each.Years, Each.Days, Each.Hours);
        ASSERT_EQ(Desktop.Messages.size(), 1U) << Each.Years;
        EXPECT_EQ(Desktop.Messages[0].Box.Title, "Input Out Of Range");
        EXPECT_EQ(Desktop.Messages[0].Box.Text, Each.Text);
        EXPECT_EQ(Desktop.Messages[0].Box.Icon, MessageIcon::None);
        EXPECT_EQ(Desktop.Messages[0].BeepsBefore, 2);
        EXPECT_EQ(Desktop.Focus, Each.Box);
        EXPECT_TRUE(F.Visible);
    }
    EXPECT_EQ(state.AnimYears, 0.0F);
    EXPECT_EQ(state.AnimDays, 0.0F);
    EXPECT_FALSE(std::filesystem::exists(Folder / "my.gtf"));
    Desktop.Messages.clear();
    OK("-100", "+365", "-24");
    EXPECT_TRUE(Desktop.Messages.empty());
}

TEST_F(AnimationSettings, CancelKeepsTheDirectionThatTheNextStartTakes) {
    F.OptionAnimOptionsFwdBack[1].Value = true;
    F.Close();
    EXPECT_FALSE(F.Visible);
    EXPECT_EQ(state.AnimForward, True);
    FormGTMain.MenuAnimationSubStart.Click();
    EXPECT_LT(state.AnimStepDays, 0.0);
    EXPECT_EQ(FormGTMain.LabelAnimInfo.Caption, std::string("0y, 0d, 1h   Forward"));
    FormGTMain.MenuAnimationSubOptions.Click();
    OK("0", "3", "0");
    EXPECT_EQ(FormGTMain.LabelAnimInfo.Caption, std::string("0y, 3d, 0h   Backward")) << "at once";
    EXPECT_NEAR(state.AnimStepDays, -1.0 / 24.0, 1e-9) << "the step at the next start";
}

}  // namespace
}  // namespace gloamtide
