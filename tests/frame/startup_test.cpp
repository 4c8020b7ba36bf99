#include "frame/startup.h"

#include "forms/layout.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

const std::string FallbackPath = "Config File not found -- default configuration used";

class Startup : public ProgramTest {
protected:
    void ExpectDefaultsAfterOneMessage() {
        ASSERT_EQ(Desktop.Messages.size(), 1U);
        EXPECT_EQ(Desktop.Messages[0].Box.Text,
                  "Gloamtide Startup file (Startup.dat) or the configuration file it designates not found or corrupted "
                  "- default settings will be used.  Startup.dat must reside in the same directory as the Gloamtide "
                  "program.  You may proceed, changing the configuration as you prefer, and save it.  On subsequent "
                  "starts, Gloamtide will show the last-saved configuration.  For more, refer to \"Startup File\" in "
                  "the Help index.");
        EXPECT_EQ(
            std::tuple(Desktop.Messages[0].Box.Title, Desktop.Messages[0].Box.Icon, Desktop.Messages[0].BeepsBefore),
            std::tuple("File Not Found", MessageIcon::None, 2));
        EXPECT_EQ(FormGTMain.Caption, "Gloamtide (" + FallbackPath + ")");
        EXPECT_EQ(std::tuple(state.ConfigFilePath, state.ConfigSaved, state.OffsetDays, state.CurrentJD),
                  std::tuple(FallbackPath, False, 0.0, state.SystemJD));
        EXPECT_EQ(std::tuple(state.LocationName, state.LocationLat, state.LocationLong, state.ZoneHours),
                  std::tuple("Cleveland, Ohio", 41.598, -81.697F, 5.0F));
        EXPECT_EQ(std::tuple(state.AnimYears, state.AnimDays, state.AnimHours, state.AnimForward),
                  std::tuple(0.0F, 0.0F, 1.0F, True));
        EXPECT_EQ(state.DaylightHours | state.MapType | state.ShowMapGrid | state.ShowAnalemma | state.ShowCities |
                      state.ShowTimezones | state.ShowSun | state.ShowMoon | state.ShowSundial |
                      state.SundialLongitudeCorrection | state.SundialEOTCorrection | state.SundialDSTCorrection,
                  0);
    }
};

// Startup.dat and my.gtf, each perhaps missing; FormGTMain_Form_Load starts the program again.
TEST_F(Startup, WithoutAConfigurationTheDefaultsStandAfterTwoBeeps) {
    std::filesystem::create_directory("folder.gtf");
    const std::optional<std::string> None;
    const std::pair<std::optional<std::string>, std::optional<std::string>> Starts[] = {
        {None, None},
        {"", None},
        {"\"\"\r\n", None},
        {"\r\n", None},
        {"\"my.gtf\"\r\n", None},
        {"\"folder.gtf\"\r\n", None},
        {"\"/dev/null\"\r\n", None},
        {"\"my.gtf\"\r\n", ""},
        {"\"my.gtf\"\r\n", "far too short"},
    };
    Desktop.ScreenWidth = 640;
    StartProgram();
    for (const auto& [StartupText, Configuration] : Starts) {
        SCOPED_TRACE(StartupText.value_or("none"));
        if (StartupText) WriteFile("Startup.dat", *StartupText);
        if (Configuration) WriteFile("my.gtf", *Configuration);
        Desktop.Messages.clear();
        FormGTMain_Form_Load();
        ExpectDefaultsAfterOneMessage();
    }
    std::filesystem::remove("Startup.dat");
    std::filesystem::create_directory("Startup.dat");
    Desktop.Messages.clear();
    FormGTMain_Form_Load();
    ExpectDefaultsAfterOneMessage();
}

TEST_F(Startup, AnUnquotedPathEndsAtACommaOrTheLine) {
    Desktop.ScreenWidth = 640;
    Start();
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
    for (const auto& [Width, Class] :
         {std::pair(320, 0), std::pair(799, 0), std::pair(800, 1), std::pair(1023, 1), std::pair(1024, 2),
          std::pair(1279, 2), std::pair(1280, 3), std::pair(100000, 3)}) {
        Desktop.ScreenWidth = Width;
        MeasureScreen();
        LayOutMainWindow();
        EXPECT_EQ(state.ScreenClass, Class) << Width;
        EXPECT_EQ(FormGTMain.PictureGT.Left + FormGTMain.PictureGT.Width, state.ScreenWidthPx);
    }
}

TEST_F(Startup, TheProgramIsOnTheScreenWhenTheStartEnds) {
    Desktop.System = {2000, 3, 1, 20, 7, 35, 0, 0};
    Start();
    MainForm& F = FormGTMain;
    EXPECT_TRUE(F.Visible && !FormSplash.Loaded());
    EXPECT_EQ(state.AppDirectory, Folder.string());
    const Bitmap& Map = F.PictureGT.Picture;
    ASSERT_EQ(std::pair(Map.Width, Map.Height), std::pair(1182, 640));
    EXPECT_GT(GreenOf(Map.Row(620)[591]), GreenOf(Map.Row(620)[3]) + 50) << "light in the middle, dark at the edge";
    EXPECT_EQ((std::array<int, 4>{F.Timer1.Interval, F.Timer2.Interval, F.Timer3.Interval, F.Timer4.Interval}),
              (std::array<int, 4>{1000, 60000, 1000, 100}));
    EXPECT_TRUE(F.Timer1.Enabled && F.Timer2.Enabled && !F.Timer3.Enabled && !F.Timer4.Enabled);
    EXPECT_FALSE(F.CmdAnimStop.Visible || F.LabelAnimInfo.Visible || F.LabelAnimSteps.Visible ||
                 F.LabelWorking.Visible);
    EXPECT_EQ(F.LabelCity.Caption.Get() + F.LabelMouseLat.Caption.Get() + F.LabelMouseLong.Caption.Get(), "");
    EXPECT_EQ(F.LabelCity.ForeColor, RGB(255, 255, 0));
    EXPECT_EQ(F.LabelSundialMotto.Caption, "On this moment hangs eternity");  // day 2451624, the 24th of 36
    EXPECT_FALSE(FormConfigure.FrameSetGTDate.Visible);
}

}  // namespace
}  // namespace gloamtide
