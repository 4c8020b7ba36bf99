#include "frame/startup.h"

#include <limits>

#include "clock/clock.h"
#include "forms/layout.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

const std::string FallbackPath = "Config File not found -- default configuration used";

// The 21 records, each a value of the given bytes; without a name the location is "Oslo".
std::string ConfigurationBytes(const std::string& Name = std::string("\4\0Oslo", 6)) {
    const std::string Yes("\xFF\xFF", 2);
    const std::string No("\0\0", 2);
    const std::string Records[21] = {
        std::string("\0\0\0\0\0\0\x24\x40", 8),  // 10.0 days
        std::string("\0\0\x80\xBF", 4),          // zone -1.0
        std::string("\1\0", 2),
        std::string("\1\0", 2),  // political
        Yes,
        No,
        Yes,
        No,
        Yes,
        No,
        std::string("\0\0\0\x40", 4),    // 2.0 years
        std::string("\0\0\x40\xC0", 4),  // -3.0 days
        std::string("\0\0\0\x3F", 4),    // 0.5 hours
        No,
        Name,
        std::string("\0\0\0\0\0\0\x4E\x40", 8),  // 60.0 north
        std::string("\0\0\x2C\x41", 4),          // 10.75 east
        No,
        Yes,
        No,
        Yes,
    };
    std::string Bytes;
    for (const std::string& Record : Records) {
        Bytes += Record;
        Bytes.resize((Bytes.size() + 47) / 48 * 48, '\x55');  // padding without meaning
    }
    return Bytes;
}

class Startup : public ProgramTest {
protected:
    void ExpectDefaultsAfterOneMessage() {
        ASSERT_EQ(Desktop.Messages.size(), 1U);
        EXPECT_EQ(Desktop.Messages[0].Box.Title, "File Not Found");
        EXPECT_EQ(Desktop.Messages[0].Box.Icon, MessageIcon::None);
        EXPECT_EQ(Desktop.Messages[0].BeepsBefore, 2);
        EXPECT_EQ(Desktop.Messages[0].Box.Text,
                  "Gloamtide Startup file (Startup.dat) or the configuration file it designates not found or corrupted "
                  "- default settings will be used.  Startup.dat must reside in the same directory as the Gloamtide "
                  "program.  You may proceed, changing the configuration as you prefer, and save it.  On subsequent "
                  "starts, Gloamtide will show the last-saved configuration.  For more, refer to \"Startup File\" in "
                  "the Help index.");
        EXPECT_EQ(FormGTMain.Caption, "Gloamtide (" + FallbackPath + ")");
        EXPECT_EQ(state.ConfigFilePath, FallbackPath);
        EXPECT_EQ(state.LocationName, "Cleveland, Ohio");
        EXPECT_EQ(state.LocationLat, 41.598);
        EXPECT_EQ(state.LocationLong, -81.697F);
        EXPECT_EQ(state.ZoneHours, 5.0F);
        EXPECT_EQ(state.OffsetDays, 0.0);
        EXPECT_EQ(state.CurrentJD, state.SystemJD);
        EXPECT_EQ(state.AnimForward, True);
        EXPECT_EQ(state.ShowSun, False);
        EXPECT_EQ(state.ConfigSaved, False);
    }
};

TEST_F(Startup, WithoutStartupFileTheDefaultsStandAfterTwoBeeps) {
    StartProgram();
    ExpectDefaultsAfterOneMessage();
    EXPECT_TRUE(FormGTMain.Visible);
    EXPECT_FALSE(FormSplash.Loaded());
    EXPECT_EQ(state.AppDirectory, Folder.string());
}

struct BadStart {
    const char* Name;
    const char* StartupText;    // null: none
    const char* Configuration;  // null: none
};

void PrintTo(const BadStart& Start, std::ostream* Out) { *Out << Start.Name; }

class BadStartup : public Startup, public testing::WithParamInterface<BadStart> {};

TEST_P(BadStartup, FallsBack) {
    if (GetParam().StartupText != nullptr) WriteFile("Startup.dat", GetParam().StartupText);
    if (GetParam().Configuration != nullptr) WriteFile("my.gtf", GetParam().Configuration);
    std::filesystem::create_directory(Folder / "folder.gtf");
    StartProgram();
    ExpectDefaultsAfterOneMessage();
}

INSTANTIATE_TEST_SUITE_P(Files, BadStartup,
                         testing::Values(BadStart{"Empty", "", nullptr}, BadStart{"NamesNothing", "\"\"\r\n", nullptr},
                                         BadStart{"BlankLine", "\r\n", nullptr},
                                         BadStart{"NamesNoFile", "\"my.gtf\"\r\n", nullptr},
                                         BadStart{"NamesAnEmptyFile", "\"my.gtf\"\r\n", ""},
                                         BadStart{"NamesAFolder", "\"folder.gtf\"\r\n", nullptr},
                                         BadStart{"NamesADevice", "\"/dev/null\"\r\n", nullptr},
                                         BadStart{"EndsBeforeTheName", "\"my.gtf\"\r\n", "far too short"}),
                         [](const auto& Info) { return Info.param.Name; });

TEST_F(Startup, AStartupFileThatIsAFolderFallsBack) {
    std::filesystem::create_directory(Folder / "Startup.dat");
    StartProgram();
    ExpectDefaultsAfterOneMessage();
}

TEST_F(Startup, ReadsTheNamedConfiguration) {
    WriteFile("my.gtf", ConfigurationBytes());
    WriteFile("Startup.dat", "\"my.gtf\"\r\n");
    StartProgram();
    EXPECT_TRUE(Desktop.Messages.empty());
    EXPECT_EQ(FormGTMain.Caption, "Gloamtide (my.gtf)");
    EXPECT_EQ(state.ConfigSaved, True);
    EXPECT_EQ(state.OffsetDays, 10.0);
    EXPECT_EQ(state.CurrentJD, state.SystemJD + 10.0);
    EXPECT_EQ(state.ZoneHours, -1.0F);
    EXPECT_EQ(state.DaylightHours, 1);
    EXPECT_EQ(state.MapType, 1);
    EXPECT_EQ(state.ShowMapGrid, True);
    EXPECT_EQ(state.ShowAnalemma, False);
    EXPECT_EQ(state.ShowCities, True);
    EXPECT_EQ(state.ShowTimezones, False);
    EXPECT_EQ(state.ShowSun, True);
    EXPECT_EQ(state.ShowMoon, False);
    EXPECT_EQ(state.AnimYears, 2.0F);
    EXPECT_EQ(state.AnimDays, -3.0F);
    EXPECT_EQ(state.AnimHours, 0.5F);
    EXPECT_EQ(state.AnimForward, False);
    EXPECT_EQ(state.LocationName, "Oslo");
    EXPECT_EQ(state.LocationLat, 60.0);
    EXPECT_EQ(state.LocationLong, 10.75F);
    EXPECT_EQ(state.ShowSundial, False);
    EXPECT_EQ(state.SundialLongitudeCorrection, True);
    EXPECT_EQ(state.SundialEOTCorrection, False);
    EXPECT_EQ(state.SundialDSTCorrection, True);
}

TEST_F(Startup, AnUnquotedPathEndsAtACommaOrTheLine) {
    WriteFile("my.gtf", ConfigurationBytes());
    for (const char* Text : {"my.gtf", "my.gtf,more", "my.gtf\r\nmore", "\"my.gtf", "\"my.gtf\",more"}) {
        WriteFile("Startup.dat", Text);
        FormGTMain_Form_Load();
        EXPECT_EQ(state.ConfigFilePath, "my.gtf") << Text;
    }
    EXPECT_TRUE(Desktop.Messages.empty());
}

TEST_F(Startup, LocationNamesOf46BytesAndOneMore) {
    state.StartupSource = ConfigurationSource::NamedFile;
    state.ConfigFilePath = "my.gtf";
    const std::string Name = "Z\xFCrich, 20 \x80" + std::string(34, '.');
    WriteFile("my.gtf", ConfigurationBytes(std::string("\x2E\0", 2) + Name));
    StartProgram();
    EXPECT_EQ(state.LocationName, "Z\xC3\xBCrich, 20 \xE2\x82\xAC" + std::string(34, '.'));
    WriteFile("my.gtf", ConfigurationBytes(std::string("\x2F\0", 2) + Name));
    FormGTMain_Form_Load();
    ExpectDefaultsAfterOneMessage();
}

TEST_F(Startup, AFileMayEndAfterItsName) {
    state.StartupSource = ConfigurationSource::NamedFile;
    state.ConfigFilePath = "my.gtf";
    WriteFile("my.gtf", ConfigurationBytes().substr(0, 672 + 2 + 4));
    StartProgram();
    EXPECT_TRUE(Desktop.Messages.empty());
    EXPECT_EQ(state.LocationName, "Oslo");
    EXPECT_EQ(state.LocationLat, 0.0);
    WriteFile("my.gtf", ConfigurationBytes().substr(0, 672 + 2 + 3));
    state.ConfigFilePath = "my.gtf";
    FormGTMain_Form_Load();
    ExpectDefaultsAfterOneMessage();
}

TEST_F(Startup, TheScreenSelectsClassAndMap) {
    struct Screen {
        int Width, Class, MapWidth, MapHeight;
    };
    constexpr Screen Screens[] = {
        {320, 0, 580, 284},  {640, 0, 580, 284},  {799, 0, 580, 284},   {800, 1, 740, 380},   {1023, 1, 740, 380},
        {1024, 2, 956, 510}, {1279, 2, 956, 510}, {1280, 3, 1182, 640}, {7680, 3, 1182, 640}, {100000, 3, 1182, 640}};
    for (const Screen& S : Screens) {
        SCOPED_TRACE(S.Width);
        Desktop.ScreenWidth = S.Width;
        MeasureScreen();
        LayOutMainWindow();
        EXPECT_EQ(state.ScreenClass, S.Class);
        EXPECT_EQ(state.MapWidth, S.MapWidth);
        EXPECT_EQ(state.MapHeight, S.MapHeight);
        EXPECT_EQ(FormGTMain.PictureGT.Width, S.MapWidth + 4);
        EXPECT_EQ(FormGTMain.PictureGT.Left + FormGTMain.PictureGT.Width, state.ScreenWidthPx);
        EXPECT_EQ(FormPictures.PictureTZmask.Width, 956);
    }
    EXPECT_NEAR(FormGTMain.PictureGTContainer.Height, 640 + 1.4 * 196, 1e-9);
}

TEST_F(Startup, TheMapIsOnTheScreenWhenTheStartEnds) {
    Desktop.System = {2000, 3, 1, 20, 7, 35, 0, 0};
    Start();
    const Bitmap& Map = FormGTMain.PictureGT.Picture;
    ASSERT_EQ(Map.Width, 1182);
    ASSERT_EQ(Map.Height, 640);
    const int Dark = BlueOf(Map.Row(620)[3]) + GreenOf(Map.Row(620)[3]);
    const int Light = BlueOf(Map.Row(620)[591]) + GreenOf(Map.Row(620)[591]);
    EXPECT_GT(Light, Dark + 100);
    EXPECT_TRUE(FormGTMain.Timer1.Enabled && FormGTMain.Timer2.Enabled);
    EXPECT_FALSE(FormGTMain.Timer3.Enabled || FormGTMain.Timer4.Enabled);
    EXPECT_EQ(FormGTMain.Timer1.Interval, 1000);
    EXPECT_EQ(FormGTMain.Timer2.Interval, 60000);
    EXPECT_EQ(FormGTMain.Timer4.Interval, 100);
    EXPECT_FALSE(FormGTMain.CmdAnimStop.Visible || FormGTMain.LabelAnimInfo.Visible);
    EXPECT_EQ(FormGTMain.LabelCity.Caption, "");
    EXPECT_EQ(FormGTMain.LabelCity.ForeColor, RGB(255, 255, 0));
}

TEST_F(Startup, AnyReadingOfTheSystemClockWillDo) {
    const std::int16_t Low = std::numeric_limits<std::int16_t>::min();
    const std::int16_t High = std::numeric_limits<std::int16_t>::max();
    for (const DateTime& Odd : {DateTime{1601, 1, 1, 1, 0, 0, 0, 0}, DateTime{30827, 12, 31, 0, 23, 59, 59, 999},
                                DateTime{0, 0, 0, 0, 0, 0, 0, 0}, DateTime{Low, Low, Low, Low, Low, Low, Low, Low},
                                DateTime{High, High, High, High, High, High, High, High}}) {
        Desktop.System = Odd;
        FormGTMain_Form_Load();
        FormGTMain_Timer1_Timer();
        FormGTMain_Timer2_Timer();
    }
}

TEST_F(Startup, EveryWayOutEndsOnce) {
    Start();
    FormGTMain.Close();
    EXPECT_TRUE(Desktop.Ended);
    EXPECT_EQ(state.ExitInProgress, True);
    EXPECT_TRUE(LoadedForms.empty());
}

TEST_F(Startup, QuitUnloadsAllForms) {
    Start();
    ExitProgram();
    EXPECT_TRUE(Desktop.Ended);
    EXPECT_TRUE(LoadedForms.empty());
    EXPECT_FALSE(FormGTMain.Visible);
}

}  // namespace
}  // namespace gloamtide
