#include "frame/file_commands.h"

#include "tests/program_test.h"

namespace gloamtide {
namespace {

namespace fs = std::filesystem;

std::string Stored(const std::string& Path) { return ReadFile(Path, 2000); }

class FileCommands : public ProgramTest {
protected:
    FileCommands() {
        SetDefaultConfiguration();
        Save("cleveland.gtf");
        state.MapType = 1;
        Save("political.gtf");
        ReadVectors("kathmandu").front().In.PutIntoState();
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

    static void ExpectDialogs(const std::vector<FileDialog>& Shown, const std::vector<std::string>& Offered) {
        std::vector<std::string> Names;
        for (const FileDialog& Each : Shown) {
            EXPECT_EQ(Each.Filter, "Gloamtide Files (*.gtf)|*.gtf|All Files (*.*)|*.*");
            Names.push_back(Each.FileName);
        }
        EXPECT_EQ(Names, Offered);
    }

    // The checked items of the menus.
    std::string Checked() const {
        std::string Captions;
        for (const Menu* Each : F.Menus) {
            for (const Menu* Item : Each->Items) Captions += Item->Checked ? " " + Item->Caption.Get() : "";
        }
        return Captions;
    }

    MainForm& F = FormGTMain;
};

TEST_F(FileCommands, OpenShowsAllThatTheFileHolds) {
    const std::vector<Color> Natural = F.PictureGT.Picture.Pixels;
    Desktop.System = {2026, 6, 2, 2, 0, 0, 0, 0};
    F.Timer1.Enabled = false;  // frozen at the limit of the years
    state.CurrentJD = 3182395.5;
    Open("kathmandu.gtf");
    EXPECT_TRUE(Desktop.Messages.empty());
    ExpectDialogs(Desktop.OpenDialogs, {""});
    EXPECT_EQ(std::tuple(state.ConfigFilePath, F.Caption.Get(), state.ConfigSaved),
              std::tuple("kathmandu.gtf", "Gloamtide (kathmandu.gtf)", False));
    EXPECT_EQ(std::tuple(state.ZoneText, FormConfigure.ComboSelTZ.ListIndex.Get()), std::tuple("GMT + 5:45", 22));
    EXPECT_EQ(Checked(), " &Sun &Cities S&undial Al&manac &Political");
    EXPECT_EQ(F.LabelAnimInfo.Caption, "2y, -3d, " + FormAnimation.TextStepHours.Text.Get() + "h   Backward");
    EXPECT_EQ(FormAnimation.TextStepYears.Text.Get() + FormAnimation.TextStepDays.Text.Get(), "2-3");
    EXPECT_TRUE(FormAnimation.OptionAnimOptionsFwdBack[1].Value && !FormAnimation.OptionAnimOptionsFwdBack[0].Value);
    EXPECT_EQ(std::tuple(state.SystemJD, state.CurrentJD), std::tuple(2461193.5, 2461203.5));  // 2026 June 2 and 12
    EXPECT_NEAR(state.SunDeclination, 23.1, 0.1);  // Astronomical Almanac, middle of June
    EXPECT_EQ(F.LabelLocNameShow[state.ScreenClass].Caption, "Kathmandu");
    Desktop.Advance(1000);
    EXPECT_GT(state.CurrentJD, 2461203.5) << "the clock runs again";
    state.ConfigSaved = True;
    Desktop.System = {2026, 6, 1, 1, 12, 0, 0, 0};
    Open("cleveland.gtf");
    EXPECT_EQ(std::tuple(Checked(), F.LabelAnimInfo.Caption.Get(), state.OffsetDays, state.ConfigSaved),
              std::tuple(" Al&manac &Natural", "0y, 0d, 1h   Forward", 0.0, True));
    EXPECT_EQ(F.PictureGT.Picture.Pixels, Natural);
    Open("political.gtf");
    EXPECT_NE(F.PictureGT.Picture.Pixels, Natural);
}

TEST_F(FileCommands, OpenAsksAgainUntilAFileIsOneOfItsOwn) {
    Desktop.FileNames = {"folder", "missing.gtf", "short.gtf", "name.gtf", "/dev/null", "kathmandu.gtf", "unasked"};
    F.MenuFileSubOpen.Click();
    ExpectMessages({5, "File Invalid (!): Designated file improperly formatted."});
    ExpectDialogs(Desktop.OpenDialogs, {"", "", "", "", "", ""});
    EXPECT_EQ(std::tuple(state.ConfigFilePath, state.LocationName), std::tuple("kathmandu.gtf", "Kathmandu"));
}

// What a file that is none has given already is put back, too: a save afterwards holds nothing of it.
TEST_F(FileCommands, CancelInOpenChangesNothing) {
    const Bitmap Map = F.PictureGT.Picture;
    F.Timer1.Enabled = false;
    for (const bool AfterBadFile : {false, true}) {
        if (AfterBadFile) Desktop.FileNames = {"name.gtf"};
        F.MenuFileSubOpen.Click();
        EXPECT_EQ(std::exchange(Desktop.Messages, {}).size(), AfterBadFile ? 1U : 0U);
        EXPECT_EQ(std::tuple(Checked(), state.ConfigSaved, F.Timer1.Enabled.Get()),
                  std::tuple(" Al&manac &Natural", False, false));
        EXPECT_EQ(F.PictureGT.Picture.Pixels, Map.Pixels);
    }
    F.MenuFileSubSave.Click();
    EXPECT_EQ(Stored("mine.gtf"), Stored("cleveland.gtf"));
}

TEST_F(FileCommands, SaveTakesTheNameInForceAndNamesWhatFails) {
    F.MenuFileSubSave.Click();
    EXPECT_EQ(Stored("mine.gtf"), Stored("cleveland.gtf"));
    EXPECT_EQ(state.ConfigSaved, True);
    state.ConfigSaved = False;
    state.ConfigFilePath = "missing/mine.gtf";
    F.MenuFileSubSave.Click();
    ExpectMessages({"Save Error (!): Can't save the configuration. missing/mine.gtf: No such file or directory"});
    EXPECT_EQ(state.ConfigSaved, False);
    SetDefaultConfiguration();  // the sentence that there is no file is a name like any other
    F.MenuFileSubSave.Click();
    EXPECT_TRUE(fs::exists("Config File not found -- default configuration used"));
    EXPECT_TRUE(Desktop.SaveDialogs.empty());
    ExpectMessages({});
}

TEST_F(FileCommands, SaveAsAsksUntilTheNameWillDo) {
    const std::string Path = state.ConfigFilePath;
    Desktop.FileNames = {"folder", "new.gtf", "unasked"};
    F.MenuFileSubSaveAs.Click();
    ExpectMessages({"Save-As Error (!): Error - can't save file."});
    ExpectDialogs(Desktop.SaveDialogs, {Path, "folder"});
    EXPECT_EQ(Stored("new.gtf"), Stored("cleveland.gtf"));
    const auto Names = [this] { return std::tuple(state.ConfigFilePath, F.Caption.Get(), state.ConfigSaved); };
    EXPECT_EQ(Names(), std::tuple("new.gtf", "Gloamtide (new.gtf)", True));
    state.ConfigSaved = False;
    Desktop.FileNames = {"missing/new.gtf", std::nullopt};
    F.MenuFileSubSaveAs.Click();
    EXPECT_EQ(Names(), std::tuple("new.gtf", "Gloamtide (new.gtf)", False)) << "Cancel leaves all as it was";
}

// What Startup.dat holds then, or nothing where no line of it can.
TEST_F(FileCommands, ASavedPathComesBackAtTheNextStartOrTheUserIsTold) {
    const std::pair<std::string, std::string> Paths[] = {
        {"a.gtf", "\"a.gtf\""}, {"a,b.gtf", "\"a,b.gtf\""}, {"a\"b.gtf", "a\"b.gtf"}, {"a\"", "a\""},
        {"\"a\".gtf", ""},      {"a\",b.gtf", ""},          {"a\nb.gtf", ""},         {"a\rb.gtf", ""}};
    for (const auto& [Path, Line] : Paths) {
        state.ConfigFilePath = Path;
        F.MenuFileSubSave.Click();
        EXPECT_EQ(std::pair(fs::exists(Path), state.ConfigSaved), std::pair(true, True));
        if (Line.empty()) {
            ExpectMessages(
                {"Saved, But Not For The Next Start (!): The configuration is saved, but the next start will not "
                 "find it: " +
                 Path + "\n" + NoStartupPath});
            EXPECT_THROW(WriteStartupFile(), FileFailure);
            continue;
        }
        ExpectMessages({});
        WriteStartupFile();
        EXPECT_EQ(Stored("Startup.dat"), Line + "\r\n");
        state.ConfigFilePath = "";
        ReadStartupFile();
        EXPECT_EQ(state.ConfigFilePath, Path);
    }
}

// Both Quit commands and the window's own button lead here.
TEST_F(FileCommands, ExitWithNothingToSaveWritesTheStartupFileWhereTheProgramStarted) {
    state.ConfigSaved = True;
    fs::current_path("folder");
    F.MenuQuit.Click();
    ExpectMessages({});
    EXPECT_TRUE(Desktop.Ended && LoadedForms.empty() && Desktop.SaveDialogs.empty() && !F.Visible);
    EXPECT_EQ(state.ExitInProgress, True);
    EXPECT_EQ(Stored("../Startup.dat"), '"' + (Folder / "mine.gtf").string() + "\"\r\n");
    EXPECT_TRUE(fs::is_empty("../folder") && !fs::exists("../mine.gtf"));
}

TEST_F(FileCommands, ExitAsksOnceAndNoKeepsTheOldName) {
    F.Close();
    ExpectMessages({"Save Configuration? (?): Present Configuration not saved, do you wish to save it?"});
    EXPECT_TRUE(Desktop.Ended && LoadedForms.empty() && Desktop.SaveDialogs.empty() && !fs::exists("mine.gtf"));
    EXPECT_EQ(Stored("Startup.dat"), '"' + state.ConfigFilePath + "\"\r\n");
}

TEST_F(FileCommands, ASecondStartComesUpWhereTheFirstEnded) {
    const std::string Path = (Folder / "Zürich, 東.gtf").string();
    Open("kathmandu.gtf");
    state.ConfigSaved = False;
    Desktop.Answers = {MessageAnswer::Yes};
    Desktop.FileNames = {"folder", Path, "unasked"};
    F.MenuFileSubQuit.Click();
    ExpectMessages({"Save Configuration? (?): Present Configuration not saved, do you wish to save it?",
                    "Save File Error (!): Error - Invalid Filename.\nfolder: not a regular file"});
    ExpectDialogs(Desktop.SaveDialogs, {"", ""});
    EXPECT_EQ(Stored(Path), Stored("kathmandu.gtf"));
    EXPECT_TRUE(Desktop.Ended);
    const double Before = state.CurrentJD;
    state = SharedState{};
    StartProgram();
    ExpectMessages({});
    EXPECT_EQ(std::tuple(state.LocationName, state.CurrentJD, F.Caption.Get()),
              std::tuple("Kathmandu", Before, "Gloamtide (" + Path + ")"));
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
    ExpectMessages({2, "Save File Error (!): Error - Invalid Filename.\n" + (Folder / "removed/Startup.dat").string() +
                           ": No such file or directory"});
    ExpectDialogs(Desktop.SaveDialogs, {"", ""});
    EXPECT_TRUE(fs::exists("new.gtf") && Desktop.Ended);
}

}  // namespace
}  // namespace gloamtide
