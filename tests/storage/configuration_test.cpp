#include "storage/configuration.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <bit>
#include <csignal>
#include <ctime>
#include <iterator>
#include <random>

#include "storage/files.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

std::string Stored(const fs::path& Path) {
    std::ifstream File(Path, std::ios::binary);
    return {std::istreambuf_iterator<char>(File), {}};
}

struct Value {
    std::size_t Offset;
    std::string Bytes;
};

std::string WithValues(std::string Bytes, std::initializer_list<Value> Values) {
    for (const Value& Each : Values) Bytes.replace(Each.Offset, Each.Bytes.size(), Each.Bytes);
    return Bytes;
}

// All that a file says of the defaults: what is not 0.
std::string DefaultBytes() {
    return WithValues(std::string(1008, '\0'), {{48, "\0\0\xA0\x40"s},
                                                {576, "\0\0\x80\x3F"s},
                                                {624, "\xFF\xFF"},
                                                {672, "\x0F\0Cleveland, Ohio"s},
                                                {720, "\x06\x81\x95\x43\x8B\xCC\x44\x40"},
                                                {768, "\xDD\x64\xA3\xC2"}});
}

struct ShortField {
    std::size_t Offset;
    std::int16_t& Field;
};

const ShortField ShortFields[] = {{96, state.DaylightHours},
                                  {144, state.MapType},
                                  {192, state.ShowMapGrid},
                                  {240, state.ShowAnalemma},
                                  {288, state.ShowCities},
                                  {336, state.ShowTimezones},
                                  {384, state.ShowSun},
                                  {432, state.ShowMoon},
                                  {624, state.AnimForward},
                                  {816, state.ShowSundial},
                                  {864, state.SundialLongitudeCorrection},
                                  {912, state.SundialEOTCorrection},
                                  {960, state.SundialDSTCorrection}};

// A value in every record that no other has, numbers that are none among them.
void SetOddConfiguration() {
    const auto Single = [](std::uint32_t Bits) { return std::bit_cast<float>(Bits); };
    for (const ShortField& Each : ShortFields) Each.Field = static_cast<std::int16_t>(Each.Offset);
    state.OffsetDays = std::bit_cast<double>(std::uint64_t{0x7FF0'0000'0000'1234});  // signalling
    state.ZoneHours = -0.0F;
    state.AnimYears = Single(0x7F80'0001);  // signalling
    state.AnimDays = Single(0xFFC0'1234);
    state.AnimHours = Single(0x0000'0001);  // the smallest there is
    state.LocationName = "Zürich, €";
    state.LocationLat = std::bit_cast<double>(std::uint64_t{0xFFF8'0000'0000'5678});
    state.LocationLong = Single(0xFF80'0000);  // minus infinity
}

const std::string OddAnimation[] = {"\x01\0\x80\x7F"s, "\x34\x12\xC0\xFF", "\x01\0\0\0"s, "\x70\x02"};

std::string WithOddAnimation(std::string Bytes) {
    return WithValues(std::move(Bytes),
                      {{480, OddAnimation[0]}, {528, OddAnimation[1]}, {576, OddAnimation[2]}, {624, OddAnimation[3]}});
}

std::string OddBytes() {
    std::string Bytes(1008, '\0');
    for (const auto& [Offset, Field] : ShortFields) {
        Bytes[Offset] = static_cast<char>(Offset % 256);
        Bytes[Offset + 1] = static_cast<char>(Offset / 256);
    }
    return WithValues(WithOddAnimation(Bytes), {{0, "\x34\x12\0\0\0\0\xF0\x7F"s},
                                                {48, "\0\0\0\x80"s},
                                                {672, "\x09\0Z\xFCrich, \x80"s},
                                                {720, "\x78\x56\0\0\0\0\xF8\xFF"s},
                                                {768, "\0\0\x80\xFF"s}});
}

class Configuration : public ProgramTest {
protected:
    Configuration() {
        SetDefaultConfiguration();
        state.AppDirectory = Folder.string();
        state.ConfigFilePath = "my.gtf";
        FormGTMain.Caption = "before";
    }

    static void ExpectFailure(void (*Routine)(), const std::string& Path, const std::string& Reason) {
        state.ConfigFilePath = Path;
        try {
            Routine();
            ADD_FAILURE() << Path;
        } catch (const FileFailure& Failure) {
            EXPECT_EQ(Failure.what(), Path + ": " + Reason);
        }
    }

    // Names of the current directory's files: what a test did not make is left over.
    static std::size_t FileCount() { return std::distance(fs::directory_iterator("."), fs::directory_iterator()); }
};

TEST_F(Configuration, TheDefaultsToTheByte) {
    SaveConfiguration();
    EXPECT_EQ(Stored("my.gtf"), DefaultBytes());
    EXPECT_EQ(FormGTMain.Caption, "Gloamtide (my.gtf)");
    EXPECT_EQ(state.ConfigSaved, True);
    EXPECT_TRUE(Desktop.Messages.empty());
}

TEST_F(Configuration, EveryFieldKeepsItsRecordAndItsBits) {
    SetOddConfiguration();
    SaveConfiguration();
    EXPECT_EQ(Stored("my.gtf"), OddBytes());
    SetDefaultConfiguration();
    state.ConfigOpenPath = "my.gtf";
    LoadConfiguration();
    EXPECT_EQ(state.ConfigSaved, False);
    EXPECT_NE(state.ConfigFilePath, "my.gtf");
    state.ConfigFilePath = "again.gtf";
    SaveConfiguration();
    EXPECT_EQ(Stored("again.gtf"), OddBytes());
}

TEST_F(Configuration, ANameIsCutAt46BytesOfTheCodePageAndTheUserIsTold) {
    struct Case {
        std::string Name, StoredBytes;
        bool Told;
    };
    const std::string Dots(45, '.');
    for (const Case& Each : {Case{Dots + "ü", Dots + "\xFC", false}, Case{Dots + "ü!", Dots + "\xFC", true},
                             Case{"Łódź", "?\xF3"s + "d?", true}, Case{"", "", false}, Case{"?", "?", false}}) {
        SCOPED_TRACE(Each.Name);
        Desktop.Messages.clear();
        state.LocationName = Each.Name;
        SaveConfiguration();
        const std::string Length{static_cast<char>(Each.StoredBytes.size()), '\0'};
        EXPECT_EQ(Stored("my.gtf"),
                  WithValues(DefaultBytes(), {{672, std::string(48, '\0')}, {672, Length + Each.StoredBytes}}));
        EXPECT_EQ(state.LocationName, Each.Name);
        EXPECT_EQ(state.ConfigSaved, True);
        ASSERT_EQ(Desktop.Messages.size(), Each.Told ? 1U : 0U);
        if (!Each.Told) continue;
        EXPECT_EQ(Desktop.Messages[0].BeepsBefore, 2);
        EXPECT_EQ(Desktop.Messages[0].Box.Icon, MessageIcon::Exclamation);
        state.ConfigOpenPath = "my.gtf";
        LoadConfiguration();
        EXPECT_NE(Desktop.Messages[0].Box.Text.find('"' + state.LocationName + '"'), std::string::npos);
    }
}

TEST_F(Configuration, AnimationSettingsGoIntoTheirRecordsAlone) {
    SetOddConfiguration();
    SaveAnimationOptions();
    EXPECT_EQ(Stored("my.gtf"), WithOddAnimation(std::string(672, '\0'))) << "a new file holds them alone";
    for (const std::size_t Length : {2000U, 1008U, 674U, 626U, 600U, 100U, 0U}) {
        const std::string Old(Length, '\x55');
        WriteFile("my.gtf", Old);
        SaveAnimationOptions();
        std::string Grown = Old;
        if (Length < 672) Grown.resize(672);
        EXPECT_EQ(Stored("my.gtf"), WithOddAnimation(Grown)) << Length;
    }
    EXPECT_EQ(FormGTMain.Caption, "before");
    EXPECT_EQ(state.ConfigSaved, False);
    WriteFile("huge", std::string((1U << 20U) + 1, '\x55'));
    ExpectFailure(SaveAnimationOptions, "huge", "no configuration file");
    EXPECT_EQ(fs::file_size("huge"), (1U << 20U) + 1);
}

TEST_F(Configuration, AFileMayEndAnywhereAfterItsName) {
    state.ConfigOpenPath = "my.gtf";
    for (std::size_t Length = 0; Length < 1100; ++Length) {
        SCOPED_TRACE(Length);
        SetDefaultConfiguration();
        FormGTMain.Caption = "before";
        std::string Bytes = OddBytes() + std::string(92, '\x55');
        Bytes.resize(Length);
        WriteFile("my.gtf", Bytes);
        if (Length < 672 + 2 + 9) {
            EXPECT_THROW(LoadConfiguration(), FileFailure);
            EXPECT_EQ(FormGTMain.Caption, "before");
        } else {
            LoadConfiguration();
            EXPECT_EQ(state.LocationName, "Zürich, €");
        }
        for (const auto& [Offset, Field] : ShortFields) {
            if (Offset < 672 || Length >= 683) {  // read in order, until the name's failure
                EXPECT_EQ(Field, Length > Offset + 1 ? Offset : Length > Offset ? Offset % 256 : 0);
            }
        }
    }
}

TEST_F(Configuration, LinksStayLinksAndPermissionsStay) {
    fs::create_directories("links/inner");
    fs::create_directory("real");
    WriteFile("real/my.gtf", "old");
    fs::permissions("real/my.gtf", fs::perms{0640});
    fs::create_symlink(Folder / "real/my.gtf", "links/absolute");
    fs::create_symlink("../../real/my.gtf", "links/inner/relative");
    fs::create_symlink("inner/relative", "links/chain");
    fs::create_symlink("../real/new.gtf", "links/dangling");
    for (const char* Link : {"links/absolute", "links/inner/relative", "links/chain", "links/dangling"}) {
        SCOPED_TRACE(Link);
        WriteFile("real/my.gtf", "old");
        state.ConfigFilePath = Link;
        SaveConfiguration();
        EXPECT_TRUE(fs::is_symlink(Link));
        EXPECT_EQ(Stored(fs::canonical(Link)), DefaultBytes());
        EXPECT_EQ(fs::status("real/my.gtf").permissions(), fs::perms{0640});
    }
    EXPECT_TRUE(fs::is_regular_file("real/new.gtf"));
    fs::create_symlink("links/loop", "loop");
    fs::create_symlink("../loop", "links/loop");
    ExpectFailure(SaveConfiguration, "loop", "Too many levels of symbolic links");
}

TEST_F(Configuration, WhatCannotBeWrittenStaysAndLeavesNothingBehind) {
    WriteFile("my.gtf", "old");
    WriteFile("protected", "old");
    fs::permissions("protected", fs::perms{0444});
    fs::create_directory("folder");
    const std::size_t Before = FileCount();
    const std::string Long(300, 'x');
    for (void (*Routine)() : {SaveConfiguration, SaveAnimationOptions}) {
        ExpectFailure(Routine, "missing/my.gtf", "No such file or directory");
        ExpectFailure(Routine, "folder", "not a regular file");
        ExpectFailure(Routine, "/dev/null", "not a regular file");
        ExpectFailure(Routine, "my.gtf/inner", "Not a directory");
        ExpectFailure(Routine, "", "No such file or directory");
        ExpectFailure(Routine, Long, "File name too long");
        if (geteuid() != 0) ExpectFailure(Routine, "protected", "Permission denied");  // root may write all
        EXPECT_EQ(FileCount(), Before);
        EXPECT_EQ(Stored("my.gtf") + Stored("protected"), "oldold");
    }
    EXPECT_EQ(FormGTMain.Caption, "before");
    EXPECT_EQ(state.ConfigSaved, False);
    EXPECT_TRUE(fs::is_empty("folder"));
}

TEST_F(Configuration, AFullDiskLeavesTheOldFile) {
    WriteFile("my.gtf", "old");
    rlimit Limit{};
    getrlimit(RLIMIT_FSIZE, &Limit);
    const auto Handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit Small{500, Limit.rlim_max};  // bytes: the write stops half way
    setrlimit(RLIMIT_FSIZE, &Small);
    EXPECT_THROW(SaveConfiguration(), FileFailure);
    setrlimit(RLIMIT_FSIZE, &Limit);
    std::signal(SIGXFSZ, Handler);
    EXPECT_EQ(Stored("my.gtf"), "old");
    EXPECT_EQ(FileCount(), 1U);
}

TEST_F(Configuration, TheStartupFileComesBackAsItWasWritten) {
    const std::string Path = "/a folder/Zürich, \xE6\x9D\xB1.gtf";
    state.ConfigFilePath = Path;
    WriteStartupFile();
    EXPECT_EQ(Stored("Startup.dat"), '"' + Path + "\"\r\n");
    state.ConfigFilePath = "";
    ReadStartupFile();
    EXPECT_EQ(state.ConfigFilePath, Path);
    fs::remove("Startup.dat");
    EXPECT_THROW(ReadStartupFile(), FileFailure);
    state.AppDirectory = "missing";
    EXPECT_THROW(WriteStartupFile(), FileFailure);
}

// Saves one configuration and the other in turn until it is killed; a byte in the pipe for every save.
[[noreturn]] void SaveInTurn(int Pipe) {
    void (*const Settings[])() = {SetDefaultConfiguration, SetOddConfiguration};
    try {
        for (std::size_t Turn = 0;; ++Turn) {
            Settings[Turn % 2]();
            state.ConfigFilePath = "my.gtf";
            SaveConfiguration();
            if (write(Pipe, "", 1) != 1) _exit(1);
        }
    } catch (...) {
        _exit(1);
    }
}

// Starts a process that saves, kills it some time after its first save, and returns how often it saved.
int SavesUntilKilled(long Nanoseconds) {
    int Pipe[2];
    if (pipe(Pipe) != 0) return 0;
    const pid_t Child = fork();
    if (Child == 0) SaveInTurn(Pipe[1]);
    close(Pipe[1]);
    char Byte = 0;
    int Saves = static_cast<int>(read(Pipe[0], &Byte, 1));
    const timespec Pause{0, Nanoseconds};  // only picks the moment
    nanosleep(&Pause, nullptr);
    kill(Child, SIGKILL);
    int Status = 0;
    waitpid(Child, &Status, 0);
    EXPECT_TRUE(WIFSIGNALED(Status));
    while (read(Pipe[0], &Byte, 1) == 1) ++Saves;
    close(Pipe[0]);
    return Saves;
}

// Between its making and its renaming the new file stands beside the old one: a process killed there can't remove it.
TEST_F(Configuration, AKilledProcessLeavesTheOldOrTheNewFileWhole) {
    std::mt19937 Random(6);
    std::size_t Kills = 0;
    for (int Saves = 0; Saves < 500; ++Kills) {
        const int More = SavesUntilKilled(static_cast<long>(Random() % 2'000'000));
        ASSERT_GT(More, 0);
        Saves += More;
        const std::string Bytes = Stored("my.gtf");
        ASSERT_TRUE(Bytes == DefaultBytes() || Bytes == OddBytes()) << Bytes.size() << " bytes after " << Saves;
    }
    EXPECT_LE(FileCount(), 1 + Kills);
}

}  // namespace
}  // namespace gloamtide
