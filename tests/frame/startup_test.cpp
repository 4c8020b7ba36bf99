#include "frame/startup.h"

#include "tests/program_test.h"

namespace gloamtide {
namespace {

const std::string FallbackPath = "Config File not found -- default configuration used";

class Startup : public ProgramTest {
protected:
    void ExpectDefaultsAfterOneMessage() {
        ExpectMessages(
            {"File Not Found: Gloamtide Startup file (Startup.dat) or the configuration file it designates not found "
             "or corrupted - default settings will be used.  Startup.dat must reside in the same directory as the "
             "Gloamtide program.  You may proceed, changing the configuration as you prefer, and save it.  On "
             "subsequent starts, Gloamtide will show the last-saved configuration.  For more, refer to \"Startup "
             "File\" in the Help index."});
        EXPECT_EQ(FormGTMain.Caption, "Gloamtide (" + FallbackPath + ")");
        EXPECT_EQ(std::tuple(state.ConfigFilePath, state.ConfigSaved, state.CurrentJD, state.LocationName),
                  std::tuple(FallbackPath, False, state.SystemJD, "Cleveland, Ohio"));
        VectorValues Defaults = ReadVectors("vectors/configuration").front().In;  // but for the name
        Defaults.Texts.clear();
        Defaults.ExpectInState();
    }
};

// Startup.dat and my.gtf, perhaps missing; FormGTMain_Form_Load starts the program again.
TEST_F(Startup, WithoutAConfigurationTheDefaultsStandAfterTwoBeeps) {
    std::filesystem::create_directory("folder.gtf");
    Desktop.ScreenWidth = 640;
    StartProgram();
    ExpectDefaultsAfterOneMessage();
    for (const char* Text : {"", "\"\"\r\n", "\r\n", "\"folder.gtf\"\r\n", "\"/dev/null\"\r\n", "\"my.gtf\"\r\n"}) {
        SCOPED_TRACE(Text);
        WriteFile("Startup.dat", Text);
        FormGTMain_Form_Load();
        ExpectDefaultsAfterOneMessage();
    }
    for (const char* Configuration : {"", "far too short"}) {
        WriteFile("my.gtf", Configuration);
        FormGTMain_Form_Load();
        ExpectDefaultsAfterOneMessage();
    }
    std::filesystem::remove("Startup.dat");
    std::filesystem::create_directory("Startup.dat");
    FormGTMain_Form_Load();
    ExpectDefaultsAfterOneMessage();
}

TEST_F(Startup, AnUnquotedPathEndsAtACommaOrTheLine) {
    Start(640);  // what is shown then, and which timers run, is held by tests/data/windows.txt
    EXPECT_TRUE(FormGTMain.Visible && !FormSplash.Loaded());
    FormGTMain.MenuFileSubSave.Click();
    std::filesystem::rename(FallbackPath, "my.gtf");
    state.StartupSource = ConfigurationSource::StartupFile;
    for (const char* Text : {"my.gtf", "my.gtf,more", "my.gtf\r\nmore", "\"my.gtf", "\"my.gtf\",more"}) {
        WriteFile("Startup.dat", Text);
        state.ConfigSaved = False;
        FormGTMain_Form_Load();
        EXPECT_EQ(std::tuple(state.ConfigFilePath, state.ConfigSaved), std::tuple("my.gtf", True)) << Text;
    }
    EXPECT_TRUE(Desktop.Messages.empty());
}

TEST_F(Startup, TheScreenSelectsItsClass) {
    const std::pair<int, int> Classes[] = {{320, 0},  {799, 0},  {800, 1},  {1023, 1},
                                           {1024, 2}, {1279, 2}, {1280, 3}, {100000, 3}};
    for (const auto& [Width, Class] : Classes) {
        Desktop.ScreenWidth = Width;
        MeasureScreen();
        EXPECT_EQ(state.ScreenClass, Class) << Width;
    }
}

}  // namespace
}  // namespace gloamtide
