#include "storage/settings.h"

#include "state/extras.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

using Settings = ProgramTest;

TEST_F(Settings, TheAlmanacStaysHiddenAndTheBoardEndsUnderTheMap) {
    const std::pair<const char*, Boolean> Kept[] = {{"", True}, {"maybe", True}, {"true", True}, {"false", False}};
    for (const auto& [Text, Shown] : Kept) {
        Desktop.Settings = {{"show/almanac", Text}};
        RenewProgram();
        Start();
        EXPECT_EQ(std::tuple(extras.AlmanacShown, FormGTMain.MenuShowHideSubAlmanac.Checked.Get()),
                  std::tuple(Shown, Shown == True))
            << Text;
    }
    const double Lowest = FormGTMain.BoardHeight;
    EXPECT_GE(Lowest, FormGTMain.PictureGT.Top + FormGTMain.PictureGT.Height);
    EXPECT_FALSE(FormGTMain.PictureGTData[3].Visible);
    state.ConfigSaved = True;
    FormGTMain.MenuShowHideSubAlmanac.Click();
    EXPECT_EQ(Desktop.Settings["show/almanac"], "true");
    EXPECT_TRUE(FormGTMain.PictureGTData[3].Visible && FormGTMain.MenuShowHideSubAlmanac.Checked);
    EXPECT_EQ(FormGTMain.BoardHeight.Get(), BoardOf(3).Height);
    EXPECT_GE(FormGTMain.BoardHeight, FormGTMain.PictureGTData[3].Top + FormGTMain.PictureGTData[3].Height);
    EXPECT_EQ(state.ConfigSaved, True) << "no matter of the configuration";
}

}  // namespace
}  // namespace gloamtide
