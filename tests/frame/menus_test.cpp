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
    const auto Checks = [&] {
        return std::tuple(F.MenuMapSubNatural.Checked.Get(), F.MenuMapSubPolitical.Checked.Get(),
                          F.MenuMapSubTerrain.Checked.Get(), state.MapType, state.MapTypeShown);
    };
    const auto Natural = std::tuple(true, false, false, 0, 0);
    const auto Political = std::tuple(false, true, false, 1, 1);
    const auto Terrain = std::tuple(false, false, true, 0, 2);
    const auto Choose = [&](Menu& Item) {
        Item.Click();
        Desktop.Advance(100);
    };
    EXPECT_EQ(Checks(), Natural);
    Choose(F.MenuMapSubPolitical);
    state.ConfigFilePath = "political.gtf";
    SaveConfiguration();
    const std::vector<Color> Hard = F.PictureGT.Picture.Pixels;
    Choose(F.MenuMapSubTerrain);
    EXPECT_EQ(Checks(), Terrain);
    RenewProgram();
    Start();
    EXPECT_EQ(Checks(), Terrain) << "after a new start";
    Desktop.FileNames = {"political.gtf"};
    F.MenuFileSubOpen.Click();
    EXPECT_EQ(Checks(), Political);
    EXPECT_EQ(F.PictureGT.Picture.Pixels, Hard) << "without the soft edge";
    Choose(F.MenuMapSubTerrain);
    EXPECT_NE(F.PictureGT.Picture.Pixels, Hard);
    Choose(F.MenuMapSubNatural);
    EXPECT_EQ(Checks(), Natural);
    EXPECT_EQ(Desktop.Settings["map/terrain"], "false");
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
