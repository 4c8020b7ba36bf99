#include "dialogs/animation_settings.h"

#include "tests/program_test.h"

namespace gloamtide {
namespace {

class AnimationSettings : public ProgramTest {
protected:
    AnimationSettings() {
        Start(640);
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
    for (const VectorRow& R : ReadVectors("refused_steps")) {
        SCOPED_TRACE(R.Where);
        OK(R.In.Texts["Years"], R.In.Texts["Days"], R.In.Texts["Hours"]);
        ExpectMessages({"Input Out Of Range: " + R.Out.Texts["Message"]});
        EXPECT_TRUE(F.Visible);
        EXPECT_EQ(Desktop.Focus->Name, R.Out.Texts["Focus"]);
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
