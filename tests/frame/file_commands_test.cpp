#include "frame/file_commands.h"

#include "storage/configuration.h"
#include "storage/files.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

namespace fs = std::filesystem;

std::string Stored(const fs::path& Path) { return ReadFile(Path.string(), 2000); }

class FileCommands : public ProgramTest {
protected:
    FileCommands() {
        SetDefaultConfiguration();
        Save("cleveland.gtf");
        state.MapType = 1;
        Save("political.gtf");
        state.OffsetDays = 10.0;
        state.ZoneHours = -5.75F;
        state.ShowSun = state.ShowCities = state.ShowSundial = True;
        state.ShowMoon = 7;  // made by hand: neither
        state.AnimYears = 2.0F;
        state.AnimDays = -3.0F;
        state.AnimHours = 0.5F;
        state.AnimForward = False;
        state.LocationName = "Kathmandu";
        state.LocationLat = 27.7;
        state.LocationLong = 85.3F;
        Save("kathmandu.gtf");
        fs::create_directory("folder");
        WriteFile("short.gtf", Stored("kathmandu.gtf").substr(0, 600));
        std::string Bytes = Stored("kathmandu.gtf");
        Bytes[672] = 47;
        WriteFile("name.gtf", Bytes);
        Start();
        state.ConfigFilePath = (Folder / "mine.gtf").string();
    }

    static void Save(const char* Path) {
        state.ConfigFilePath = Path;
        SaveConfiguration();
    }

    void Open(const char* Path) {
        Desktop.FileNames = {Path};
        F.MenuFileSubOpen.Click();
    }

    void ExpectMessages(std::size_t Count, const std::string& Title, const std::string& Text) const {
        ASSERT_EQ(Desktop.Messages.size(), Count);
        for (const auto& Each : Desktop.Messages) {
            EXPECT_EQ(Each.BeepsBefore, 2);
            EXPECT_EQ(Each.Box.Title, Title);
            EXPECT_EQ(Each.Box.Text, Text);
            EXPECT_EQ(Each.Box.Icon, MessageIcon::Exclamation);
            EXPECT_EQ(Each.Box.Buttons, MessageButtons::OK);
        }
    }

    static void ExpectDialogs(const std::vector<FileDialog>& Shown, const std::vector<std::string>& Offered) {
        std::vector<std::string> Names;
        for (const FileDialog& Each : Shown) {
            EXPECT_EQ(Each.Filter, "Gloamtide Files (*.gtf)|*.gtf|All Files (*.*)|*.*");
            Names.push_back(Each.FileName);
        }
        EXPECT_EQ(Names, Offered);
    }

    MainForm& F = FormGTMain;
};

TEST_F(FileCommands, OpenShowsAllThatTheFileHolds) {
    Desktop.System = {2026, 6, 2, 2, 0, 0, 0, 0};
    F.Timer1.Enabled = false;  // frozen at the limit of the years
    state.CurrentJD = 3182395.5;
    state.ConfigSaved = False;
    Open("kathmandu.gtf");
    EXPECT_TRUE(Desktop.Messages.empty());
    ExpectDialogs(Desktop.OpenDialogs, {""});
    EXPECT_EQ(state.ConfigOpenPath, "kathmandu.gtf");
    EXPECT_EQ(state.ConfigFilePath, "kathmandu.gtf");
    EXPECT_EQ(state.ConfigSaved, False);
    EXPECT_EQ(F.Caption, "Gloamtide (kathmandu.gtf)");
    EXPECT_EQ(state.ZoneText, "GMT + 5:45");
    EXPECT_EQ(FormConfigure.ComboSelTZ.ListIndex, 22);
    EXPECT_TRUE(F.MenuShowHideSubSun.Checked && F.MenuShowHideSubCities.Checked && F.MenuShowHideSubSundial.Checked);
    EXPECT_FALSE(F.MenuShowHideSubMoon.Checked || F.MenuShowHideSubAnalemma.Checked ||
                 F.MenuShowHideSubMapGrid.Checked || F.MenuShowHideSubTimezones.Checked);
    EXPECT_TRUE(F.MenuMapSubPolitical.Checked && !F.MenuMapSubNatural.Checked);
    EXPECT_EQ(FormAnimation.TextStepYears.Text, "2");
    EXPECT_EQ(FormAnimation.TextStepDays.Text, "-3");
    EXPECT_TRUE(FormAnimation.OptionAnimOptionsFwdBack[1].Value && !FormAnimation.OptionAnimOptionsFwdBack[0].Value);
    EXPECT_EQ(F.LabelAnimInfo.Caption, "2y, -3d, " + FormAnimation.TextStepHours.Text.Get() + "h   Backward");
    EXPECT_EQ(state.SystemJD, 2461193.5);  // 2026 June 2, 0h
    EXPECT_EQ(state.CurrentJD, 2461203.5);
    EXPECT_EQ(state.GreenwichDay, 12);
    EXPECT_NEAR(state.SunDeclination, 23.1, 0.1);  // Astronomical Almanac, middle of June
    EXPECT_EQ(F.LabelLocNameShow[state.ScreenClass].Caption, "Kathmandu");
    EXPECT_TRUE(F.Timer1.Enabled);
    Desktop.Advance(1000);
    EXPECT_GT(state.CurrentJD, 2461203.5) << "the clock runs again";
    Open("cleveland.gtf");
    EXPECT_FALSE(F.MenuShowHideSubSun.Checked || F.MenuShowHideSubCities.Checked || F.MenuShowHideSubSundial.Checked);
    EXPECT_EQ(F.LabelAnimInfo.Caption, "0y, 0d, 1h   Forward");
    EXPECT_EQ(state.OffsetDays, 0.0);
    state.ConfigSaved = True;
    Open("kathmandu.gtf");
    EXPECT_EQ(state.ConfigSaved, True);
}

TEST_F(FileCommands, OpenBuildsTheMapOfTheFilesType) {
    const Bitmap Natural = F.PictureGT.Picture;
    Open("political.gtf");
    EXPECT_NE(F.PictureGT.Picture.Pixels, Natural.Pixels);
    EXPECT_FALSE(F.Timer4.Enabled);
    Open("cleveland.gtf");
    EXPECT_EQ(F.PictureGT.Picture.Pixels, Natural.Pixels);
}

TEST_F(FileCommands, OpenAsksAgainUntilAFileIsOneOfItsOwn) {
    Desktop.FileNames = {"folder", "missing.gtf", "short.gtf", "name.gtf", "/dev/null", "kathmandu.gtf", "unasked"};
    F.MenuFileSubOpen.Click();
    ExpectMessages(5, "File Invalid", "Designated file improperly formatted.");
    ExpectDialogs(Desktop.OpenDialogs, {"", "", "", "", "", ""});
    EXPECT_EQ(state.ConfigFilePath, "kathmandu.gtf");
    EXPECT_EQ(state.LocationName, "Kathmandu");
}

TEST_F(FileCommands, CancelInOpenChangesNothingButWhatABadFileHeld) {
    const Bitmap Map = F.PictureGT.Picture;
    const std::string Path = state.ConfigFilePath;
    const std::string Title = F.Caption;
    F.Timer1.Enabled = false;
    for (const bool AfterBadFile : {false, true}) {
        if (AfterBadFile) Desktop.FileNames = {"name.gtf"};
        F.MenuFileSubOpen.Click();
        EXPECT_EQ(Desktop.Messages.size(), AfterBadFile ? 1U : 0U);
        EXPECT_EQ(state.OffsetDays, AfterBadFile ? 10.0 : 0.0);
        EXPECT_EQ(state.LocationName, "Cleveland, Ohio");
        EXPECT_EQ(state.ConfigFilePath, Path);
        EXPECT_EQ(F.Caption, Title);
        EXPECT_EQ(F.PictureGT.Picture.Pixels, Map.Pixels);
        EXPECT_FALSE(F.Timer1.Enabled || F.MenuShowHideSubSun.Checked);
    }
}

TEST_F(FileCommands, SaveTakesTheNameInForceAndNamesWhatFails) {
    F.MenuFileSubSave.Click();
    EXPECT_EQ(Stored("mine.gtf"), Stored("cleveland.gtf"));
    EXPECT_EQ(state.ConfigSaved, True);
    state.ConfigSaved = False;
    state.ConfigFilePath = "missing/mine.gtf";
    F.MenuFileSubSave.Click();
    ExpectMessages(1, "Save Error", "Can't save the configuration. missing/mine.gtf: No such file or directory");
    EXPECT_EQ(state.ConfigSaved, False);
    SetDefaultConfiguration();  // the sentence that there is no file is a name like any other
    F.MenuFileSubSave.Click();
    EXPECT_TRUE(fs::exists("Config File not found -- default configuration used"));
    EXPECT_TRUE(Desktop.SaveDialogs.empty());
    EXPECT_EQ(Desktop.Messages.size(), 1U);
}

TEST_F(FileCommands, SaveAsAsksUntilTheNameWillDo) {
    const std::string Path = state.ConfigFilePath;
    Desktop.FileNames = {"folder", "new.gtf", "unasked"};
    F.MenuFileSubSaveAs.Click();
    ExpectMessages(1, "Save-As Error", "Error - can't save file.");
    ExpectDialogs(Desktop.SaveDialogs, {Path, "folder"});
    EXPECT_EQ(Stored("new.gtf"), Stored("cleveland.gtf"));
    EXPECT_EQ(state.ConfigFilePath, "new.gtf");
    EXPECT_EQ(F.Caption, "Gloamtide (new.gtf)");
    EXPECT_EQ(state.ConfigSaved, True);
    state.ConfigSaved = False;
    Desktop.FileNames = {"missing/new.gtf", std::nullopt};
    F.MenuFileSubSaveAs.Click();
    EXPECT_EQ(state.ConfigFilePath, "new.gtf") << "Cancel, after a failure too, leaves all as it was";
    EXPECT_EQ(F.Caption, "Gloamtide (new.gtf)");
    EXPECT_EQ(state.ConfigSaved, False);
}

TEST_F(FileCommands, ExitWithNothingToSaveWritesTheStartupFileWhereTheProgramStarted) {
    state.ConfigSaved = True;
    fs::current_path("folder");
    F.MenuQuit.Click();
    EXPECT_TRUE(Desktop.Ended && Desktop.Messages.empty() && Desktop.SaveDialogs.empty());
    EXPECT_EQ(Stored(Folder / "Startup.dat"), '"' + (Folder / "mine.gtf").string() + "\"\r\n");
    EXPECT_TRUE(fs::is_empty(Folder / "folder"));
    EXPECT_FALSE(fs::exists(Folder / "mine.gtf"));
}

TEST_F(FileCommands, ExitAsksOnceAndNoKeepsTheOldName) {
    F.Close();
    ASSERT_EQ(Desktop.Messages.size(), 1U);
    EXPECT_EQ(Desktop.Messages[0].BeepsBefore, 2);
    EXPECT_EQ(Desktop.Messages[0].Box.Title, "Save Configuration?");
    EXPECT_EQ(Desktop.Messages[0].Box.Text, "Present Configuration not saved, do you wish to save it?");
    EXPECT_EQ(Desktop.Messages[0].Box.Icon, MessageIcon::Question);
    EXPECT_EQ(Desktop.Messages[0].Box.Buttons, MessageButtons::YesNo);
    EXPECT_TRUE(Desktop.Ended && Desktop.SaveDialogs.empty());
    EXPECT_EQ(Stored("Startup.dat"), '"' + state.ConfigFilePath + "\"\r\n");
    EXPECT_FALSE(fs::exists("mine.gtf"));
}

TEST_F(FileCommands, ASecondStartComesUpWhereTheFirstEnded) {
    Open("kathmandu.gtf");
    state.ConfigSaved = False;
    Desktop.Answers = {MessageAnswer::Yes};
    Desktop.FileNames = {"folder", (Folder / "new.gtf").string(), "unasked"};
    F.MenuFileSubQuit.Click();
    ASSERT_EQ(Desktop.Messages.size(), 2U) << "the question, and the folder's";
    EXPECT_EQ(Desktop.Messages[1].Box.Title, "Save File Error");
    EXPECT_EQ(Desktop.Messages[1].Box.Text, "Error - Invalid Filename.");
    EXPECT_EQ(Desktop.Messages[1].BeepsBefore, 2);
    ExpectDialogs(Desktop.SaveDialogs, {"", ""});
    EXPECT_EQ(Stored("new.gtf"), Stored("kathmandu.gtf"));
    EXPECT_TRUE(Desktop.Ended);
    const double Before = state.CurrentJD;
    state = SharedState{};
    StartProgram();
    EXPECT_EQ(Desktop.Messages.size(), 2U);
    EXPECT_EQ(state.LocationName, "Kathmandu");
    EXPECT_EQ(state.CurrentJD, Before);
    EXPECT_EQ(F.Caption, "Gloamtide (" + (Folder / "new.gtf").string() + ")");
}

TEST_F(FileCommands, CancelAtExitEndsWithNothingWritten) {
    Desktop.Answers = {MessageAnswer::Yes};
    ExitProgram();
    EXPECT_TRUE(Desktop.Ended && LoadedForms.empty());
    EXPECT_EQ(Desktop.SaveDialogs.size(), 1U);
    EXPECT_FALSE(fs::exists("Startup.dat") || fs::exists("mine.gtf"));
}

TEST_F(FileCommands, AStartupFileThatCannotBeWrittenLeadsToTheSaveDialog) {
    state.ConfigSaved = True;
    state.AppDirectory = (Folder / "removed").string();
    Desktop.FileNames = {(Folder / "new.gtf").string(), std::nullopt};
    ExitProgram();
    ExpectMessages(2, "Save File Error", "Error - Invalid Filename.");
    ExpectDialogs(Desktop.SaveDialogs, {"", ""});
    EXPECT_TRUE(fs::exists("new.gtf") && Desktop.Ended);
}

}  // namespace
}  // namespace gloamtide
