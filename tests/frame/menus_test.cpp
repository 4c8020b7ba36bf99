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
    const std::pair<Menu&, Boolean&> Items[] = {
        {F.MenuShowHideSubSun, state.ShowSun},           {F.MenuShowHideSubMoon, state.ShowMoon},
        {F.MenuShowHideSubAnalemma, state.ShowAnalemma}, {F.MenuShowHideSubCities, state.ShowCities},
        {F.MenuShowHideSubMapGrid, state.ShowMapGrid},   {F.MenuShowHideSubTimezones, state.ShowTimezones},
        {F.MenuShowHideSubSundial, state.ShowSundial}};
    const Bitmap Before = F.PictureGT.Picture;
    for (const auto& [Command, Flag] : Items) {
        SCOPED_TRACE(Command.Name);
        for (const Boolean Old : {False, True, Boolean{7}}) {  // 7: of a hand-made file, neither
            Flag = Old;
            state.ConfigSaved = True;
            Command.Click();
            const Boolean New = Old == True ? False : True;
            EXPECT_EQ(std::tuple(Flag, Command.Checked.Get(), state.ConfigSaved), std::tuple(New, New == True, False));
            EXPECT_EQ(F.PictureGT.Picture.Pixels != Before.Pixels || F.PictureSundial.Visible, New == True);
        }
        Command.Click();
    }
}

TEST_F(Menus, AMapTypeIsPreparedAtOnceAndBuiltATenthOfASecondLater) {
    F.MenuShowHideSubCities.Click();
    F.MenuShowHideSubTimezones.Click();
    const auto Pictures = [this] {
        std::vector<std::vector<Color>> Result;
        for (const PictureSurface* Each :
             {&FormPictures.PictureTZCitiesDay, &FormPictures.PictureTZCitiesNight, &F.PictureGT}) {
            Result.push_back(Each->Picture.Pixels);
        }
        return Result;
    };
    const auto Natural = Pictures();
    const auto Checks = [this] {
        return std::pair(F.MenuMapSubNatural.Checked.Get(), F.MenuMapSubPolitical.Checked.Get());
    };
    EXPECT_EQ(Checks(), std::pair(true, false));
    state.ConfigSaved = True;
    F.MenuMapSubPolitical.Click();
    EXPECT_EQ(std::tuple(state.MapType, Checks(), F.LabelWorking.Visible.Get()),
              std::tuple(1, std::pair(false, true), true));
    Desktop.Advance(99);
    EXPECT_EQ(Pictures(), Natural);
    Desktop.Advance(1);
    EXPECT_FALSE(F.LabelWorking.Visible || F.Timer4.Enabled);
    EXPECT_EQ(state.ConfigSaved, False);
    const auto Political = Pictures();
    for (std::size_t Each = 0; Each < Natural.size(); ++Each) EXPECT_NE(Political[Each], Natural[Each]) << Each;
    F.MenuMapSubNatural.Click();
    Desktop.Advance(100);
    EXPECT_EQ(Pictures(), Natural) << "cities and zones too";
    F.MenuMapSubNatural.Click();  // the type in force is built again
    EXPECT_TRUE(F.LabelWorking.Visible && F.Timer4.Enabled);
}

TEST_F(Menus, HelpAndAboutOpenWhileTheClockRunsOn) {
    F.MenuHelpSubContents.Click();
    EXPECT_EQ(Desktop.HelpFiles, (std::vector<std::string>{"GT401.hlp"}));
    F.MenuHelpSubAbout.Click();
    EXPECT_TRUE(FormAbout.Visible && !F.Visible);
    EXPECT_EQ(FormAbout.LabelAbout.Caption, "Gloamtide Version 4.01");
    const double Before = state.CurrentJD;
    Desktop.Advance(2000);
    EXPECT_GT(state.CurrentJD, Before);
    FormAbout.Close();  // the window's own close button does what OK does
    EXPECT_TRUE(F.Visible && !FormAbout.Visible && FormAbout.Loaded());
}

}  // namespace
}  // namespace gloamtide
