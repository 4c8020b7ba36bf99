#include "frame/menus.h"

#include "storage/configuration.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

class Menus : public ProgramTest {
protected:
    Menus() { Start(); }
    MainForm& F = FormGTMain;
};

TEST_F(Menus, ShowHideItemsMirrorTheirFlags) {
    const std::pair<Menu&, Boolean&> Items[] = {
        {F.MenuShowHideSubSun, state.ShowSun},           {F.MenuShowHideSubMoon, state.ShowMoon},
        {F.MenuShowHideSubAnalemma, state.ShowAnalemma}, {F.MenuShowHideSubCities, state.ShowCities},
        {F.MenuShowHideSubMapGrid, state.ShowMapGrid},   {F.MenuShowHideSubTimezones, state.ShowTimezones},
        {F.MenuShowHideSubSundial, state.ShowSundial}};
    const std::pair<Menu&, Boolean&> OwnItems[] = {{F.MenuShowHideSubTwilight, extras.TwilightShown},
                                                   {F.MenuShowHideSubTwilightLines, extras.TwilightLinesShown},
                                                   {F.MenuShowHideSubCityNames, extras.CityNamesShown}};
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
    for (const auto& [Command, Flag] : OwnItems) {
        SCOPED_TRACE(Command.Name);
        for (const Boolean New : {True, False}) {
            state.ConfigSaved = True;
            Command.Click();
            EXPECT_EQ(std::tuple(Flag, Command.Checked.Get(), state.ConfigSaved), std::tuple(New, New == True, True));
            EXPECT_EQ(F.PictureGT.Picture.Pixels != Before.Pixels, New == True);
            RenewProgram();
            Start();
            EXPECT_EQ(std::tuple(Flag, Command.Checked.Get()), std::tuple(New, New == True)) << "after a new start";
        }
    }
}

TEST_F(Menus, TheTerrainStandsInTheNaturalMapsPlace) {
    enum Map { Natural, Political, Terrain };  // as MapTypeShown counts them
    const Menu* const Items[] = {&F.MenuMapSubNatural, &F.MenuMapSubPolitical, &F.MenuMapSubTerrain};
    std::vector<Color> Pictures[3];
    const auto Expect = [&](Map Shown) {
        for (int Each = 0; Each < 3; ++Each) EXPECT_EQ(Items[Each]->Checked, Each == Shown) << Each;
        EXPECT_EQ(std::pair(state.MapType == 1, int{state.MapTypeShown}), std::pair(Shown == Political, int{Shown}));
        if (Pictures[Shown].empty()) Pictures[Shown] = F.PictureGT.Picture.Pixels;
        EXPECT_EQ(F.PictureGT.Picture.Pixels == Pictures[Shown], true) << Shown;
    };
    for (const Map Chosen : {Political, Terrain, Natural, Terrain}) {
        Items[Chosen]->Click();
        Desktop.Advance(100);
        Expect(Chosen);
        state.ConfigFilePath = std::to_string(Chosen) + ".gtf";
        SaveConfiguration();
    }
    EXPECT_NE(Pictures[Terrain], Pictures[Natural]) << "the soft edge";
    RenewProgram();
    Start();
    Expect(Terrain);
    for (const Map Opened : {Political, Terrain}) {
        Desktop.FileNames = {std::to_string(Opened) + ".gtf"};
        F.MenuFileSubOpen.Click();
        Expect(Opened);
    }
}

// What is built then is held by tests/map/stored_pictures_test.cpp.
TEST_F(Menus, AMapTypeIsPreparedAtOnceAndBuiltATenthOfASecondLater) {
    const std::vector<Color> Before = F.PictureGT.Picture.Pixels;
    for (const int Time : {1, 2}) {  // the type in force is built again
        state.ConfigSaved = True;
        F.MenuMapSubPolitical.Click();
        EXPECT_EQ(std::tuple(state.MapType, F.MenuMapSubNatural.Checked.Get(), F.MenuMapSubPolitical.Checked.Get()),
                  std::tuple(1, false, true));
        Desktop.Advance(99);
        EXPECT_TRUE(F.LabelWorking.Visible && (F.PictureGT.Picture.Pixels == Before) == (Time == 1));
        Desktop.Advance(1);
        EXPECT_FALSE(F.LabelWorking.Visible || F.Timer4.Enabled || F.PictureGT.Picture.Pixels == Before);
        EXPECT_EQ(state.ConfigSaved, False);
    }
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
