#include "frame/menus.h"

#include "tests/program_test.h"

namespace gloamtide {
namespace {

class Menus : public ProgramTest {
protected:
    Menus() { Start(); }
    MainForm& F = FormGTMain;
};

TEST_F(Menus, TheBarStandsAsUsersKnowIt) {
    std::string Bar;
    for (const Menu* Each : F.Menus) {
        Bar += Each->Caption.Get() + ":";
        for (const Menu* Item : Each->Items) Bar += Item->Separator ? "-" : " " + Item->Caption.Get();
        Bar += "\n";
    }
    EXPECT_EQ(Bar,
              "&File: &Open- &Save- Save&As- &Quit\n"
              "&Configure:\n"
              "&Show/Hide: &Sun- &Moon- &Analemma- &Cities- &Map Gridlines- &Time Zones- S&undial-\n"
              "&Map: &Natural- &Political-\n"
              "&Animation: &Settings- &Start- Sto&p\n"
              "&Help: Contents- &About Gloamtide\n"
              "&Quit:\n");
}

TEST_F(Menus, ShowHideItemsMirrorTheirFlags) {
    struct Item {
        Menu& Command;
        Boolean& Flag;
    };
    for (const Item& Each :
         {Item{F.MenuShowHideSubSun, state.ShowSun}, Item{F.MenuShowHideSubMoon, state.ShowMoon},
          Item{F.MenuShowHideSubAnalemma, state.ShowAnalemma}, Item{F.MenuShowHideSubCities, state.ShowCities},
          Item{F.MenuShowHideSubMapGrid, state.ShowMapGrid}, Item{F.MenuShowHideSubTimezones, state.ShowTimezones},
          Item{F.MenuShowHideSubSundial, state.ShowSundial}}) {
        SCOPED_TRACE(Each.Command.Name);
        const Bitmap Before = F.PictureGT.Picture;
        state.ConfigSaved = True;
        Each.Command.Click();
        EXPECT_EQ(Each.Flag, True);
        EXPECT_TRUE(Each.Command.Checked);
        EXPECT_EQ(state.ConfigSaved, False);
        Each.Command.Click();
        EXPECT_EQ(Each.Flag, False);
        EXPECT_FALSE(Each.Command.Checked);
        EXPECT_EQ(F.PictureGT.Picture.Pixels, Before.Pixels) << "twice leaves the picture as it was";
        Each.Flag = 7;  // a flag of a hand-made file that is neither
        Each.Command.Click();
        EXPECT_EQ(Each.Flag, True);
        Each.Command.Click();
    }
}

TEST_F(Menus, LoadedFlagsShowAtTheStart) {
    state.ShowMoon = state.ShowCities = True;
    state.MapType = 1;
    ShowChecks();
    EXPECT_TRUE(F.MenuShowHideSubMoon.Checked && F.MenuShowHideSubCities.Checked && F.MenuMapSubPolitical.Checked);
    EXPECT_FALSE(F.MenuShowHideSubSun.Checked || F.MenuMapSubNatural.Checked);
}

TEST_F(Menus, AMapTypeIsPreparedAtOnceAndBuiltATenthOfASecondLater) {
    EXPECT_TRUE(F.MenuMapSubNatural.Checked);
    const Bitmap Natural = F.PictureGT.Picture;
    F.MenuMapSubPolitical.Click();
    EXPECT_EQ(state.MapType, 1);
    EXPECT_TRUE(F.LabelWorking.Visible && F.MenuMapSubPolitical.Checked);
    EXPECT_FALSE(F.MenuMapSubNatural.Checked);
    EXPECT_EQ(F.PictureGT.Picture.Pixels, Natural.Pixels);
    Desktop.Advance(100);
    EXPECT_FALSE(F.LabelWorking.Visible);
    EXPECT_NE(F.PictureGT.Picture.Pixels, Natural.Pixels);
    F.MenuMapSubPolitical.Click();  // the type in force is built again
    EXPECT_TRUE(F.LabelWorking.Visible && F.Timer4.Enabled);
    Desktop.Advance(100);
    EXPECT_FALSE(F.LabelWorking.Visible || F.Timer4.Enabled);
}

TEST_F(Menus, HelpAsksForItsFile) {
    F.MenuHelpSubContents.Click();
    EXPECT_EQ(Desktop.HelpFiles, (std::vector<std::string>{"GT401.hlp"}));
}

TEST_F(Menus, AboutTakesTheMainWindowsPlaceWhileTheClockRunsOn) {
    F.MenuHelpSubAbout.Click();
    EXPECT_FALSE(F.Visible);
    EXPECT_TRUE(FormAbout.Visible);
    EXPECT_EQ(FormAbout.LabelAbout.Caption, "Gloamtide Version 4.01");
    const double Before = state.CurrentJD;
    Desktop.Advance(2000);
    EXPECT_GT(state.CurrentJD, Before);
    FormAbout.Close();  // the window's own close button does what OK does
    EXPECT_TRUE(F.Visible);
    EXPECT_FALSE(FormAbout.Visible);
    EXPECT_TRUE(FormAbout.Loaded());
}

TEST_F(Menus, BothQuitCommandsEndTheProgram) {
    F.MenuFileSubQuit.Click();
    EXPECT_TRUE(Desktop.Ended);
    Desktop.Ended = false;
    F.MenuQuit.Click();
    EXPECT_TRUE(Desktop.Ended);
}

}  // namespace
}  // namespace gloamtide
