#include "storage/configuration.h"

#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

#include <bit>
#include <csignal>
#include <ctime>
#include <random>

#include "storage/code_page.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

namespace fs = std::filesystem;

// Every field in turn with bits that no other has, some of them of numbers that are none.
void SetOddConfiguration() {
    static const VectorRow Odd = ReadVectors("odd_configuration").front();
    Odd.In.PutIntoState();
    state.OffsetDays = std::bit_cast<double>(std::uint64_t{0x7FF0'0000'0000'1234});  // signalling
    state.AnimYears = std::bit_cast<float>(0x7F80'0001U);                            // the same
}

// Where the records stand in the file, and what their numbers become, is the matter of tests/vectors_test.cpp.
class Configuration : public ProgramTest {
protected:
    Configuration() {
        state.AppDirectory = Folder.string();
        SetOddConfiguration();
        Odd = SavedBytes();
        SetDefaultConfiguration();
        Default = SavedBytes();
        state.ConfigFilePath = "my.gtf";
        state.ConfigSaved = False;
        FormGTMain.Caption = "before";
    }

    // The file of the state as it is.
    static std::string SavedBytes() {
        state.ConfigFilePath = "bytes.gtf";
        SaveConfiguration();
        std::string Bytes = ReadFile("bytes.gtf", 2000);
        fs::remove("bytes.gtf");
        return Bytes;
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

    std::string Default, Odd;  // files of 1008 bytes
};

// What the file lacks is 0; it is read in order until the name's failure.
TEST_F(Configuration, AFileMayEndAnywhereAfterItsName) {
    constexpr std::size_t Name = 672;
    state.ConfigOpenPath = "my.gtf";
    for (std::size_t Length = 0; Length < 1100; ++Length) {
        if (Length % 48 > 8 && (Length < Name || Length > Name + 20)) continue;  // between the fields
        SCOPED_TRACE(Length);
        SetDefaultConfiguration();
        FormGTMain.Caption = "before";
        std::string Bytes = Odd + std::string(92, '\x55');
        Bytes.resize(Length);
        WriteFile("my.gtf", Bytes);
        Bytes.resize(1008);
        if (Length < Name + 2 + 9) {
            EXPECT_THROW(LoadConfiguration(), FileFailure);
            EXPECT_EQ(FormGTMain.Caption, "before");
            EXPECT_EQ(SavedBytes(), Bytes.substr(0, Name) + Default.substr(Name));
        } else {
            LoadConfiguration();
            EXPECT_EQ(FormGTMain.Caption, "Gloamtide (my.gtf)");
            EXPECT_EQ(SavedBytes(), Bytes);
        }
    }
    EXPECT_EQ(std::bit_cast<std::uint32_t>(state.AnimYears), 0x7F80'0001U);
    EXPECT_EQ(state.LocationName, "Zürich, €");
}

TEST_F(Configuration, ANameIsCutAt46BytesOfTheCodePageAndTheUserIsTold) {
    const std::string Dots(45, '.');
    const std::pair<std::string, std::string> Names[] = {
        {Dots + "ü", Dots + "ü"}, {Dots + "ü!", Dots + "ü"}, {"Łódź", "?ód?"}, {"", ""}};
    for (const auto& [Name, Kept] : Names) {
        const std::string Stored = ToCodePage(Kept);
        SCOPED_TRACE(Name);
        state.LocationName = Name;
        Desktop.Messages.clear();
        const std::string Bytes = SavedBytes();
        EXPECT_EQ(Bytes.substr(672, 2 + Stored.size()), std::string({static_cast<char>(Stored.size()), '\0'}) + Stored);
        EXPECT_EQ(Bytes.substr(720), Default.substr(720));
        EXPECT_EQ(std::pair(state.LocationName, state.ConfigSaved), std::pair(Name, True));
        ASSERT_EQ(Desktop.Messages.size(), Name == Kept ? 0U : 1U);
        if (Name == Kept) continue;
        EXPECT_EQ(Desktop.Messages[0].BeepsBefore, 2);
        EXPECT_NE(Desktop.Messages[0].Box.Text.find('"' + Kept + '"'), std::string::npos);
    }
}

TEST_F(Configuration, ASaveChangesItsRecordsAlone) {
    SetOddConfiguration();
    for (const std::size_t Length : {2000U, 1008U, 674U, 626U, 600U, 100U, 0U}) {
        std::string Expected(Length, '\x55');
        WriteFile("my.gtf", Expected);
        SaveAnimationOptions();
        if (Length < 672) Expected.resize(672);
        for (const std::size_t Offset : {480U, 528U, 576U, 624U}) {
            const std::size_t Size = Offset == 624 ? 2 : 4;
            Expected.replace(Offset, Size, Odd, Offset, Size);
        }
        EXPECT_EQ(ReadFile("my.gtf", 3000), Expected) << Length;
        EXPECT_EQ(std::pair(FormGTMain.Caption.Get(), state.ConfigSaved), std::pair(std::string("before"), False));
        SaveConfiguration();
        EXPECT_EQ(ReadFile("my.gtf", 3000), Odd + Expected.substr(std::min(Expected.size(), Odd.size()))) << Length;
        FormGTMain.Caption = "before";
        state.ConfigSaved = False;
    }
    for (const std::size_t Length : {1U << 20U, (1U << 20U) + 1}) {
        const std::string Huge(Length, '\x55');
        WriteFile("huge", Huge);
        for (void (*Routine)() : {SaveAnimationOptions, SaveConfiguration}) {
            state.ConfigFilePath = "huge";
            if (Length == 1U << 20U)
                Routine();
            else
                ExpectFailure(Routine, "huge", "too large for a configuration file");
        }
        EXPECT_EQ(fs::file_size("huge"), Length);
    }
}

TEST_F(Configuration, LinksStayLinks) {
    fs::create_directories("links/inner");
    fs::create_directory("real");
    WriteFile("real/my.gtf", "old");
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
        EXPECT_EQ(ReadFile(Link, 2000), Default);
    }
    EXPECT_TRUE(fs::is_regular_file("real/new.gtf"));
    fs::create_symlink("links/loop", "loop");
    fs::create_symlink("../loop", "links/loop");
    ExpectFailure(SaveConfiguration, "loop", "Too many levels of symbolic links");
}

TEST_F(Configuration, WhatCannotBeWrittenStaysAndLeavesNothingBehind) {
    WriteFile("my.gtf", "old");
    fs::create_directory("folder");
    const std::size_t Before = FileCount();
    for (void (*Routine)() : {SaveConfiguration, SaveAnimationOptions}) {
        for (const char* Path : {"missing/my.gtf", ""}) ExpectFailure(Routine, Path, "No such file or directory");
        for (const char* Path : {"folder", "/dev/null"}) ExpectFailure(Routine, Path, "not a regular file");
        ExpectFailure(Routine, "my.gtf/inner", "Not a directory");
        ExpectFailure(Routine, std::string(300, 'x'), "File name too long");
        EXPECT_EQ(FileCount(), Before);
        EXPECT_EQ(ReadFile("my.gtf", 2000), "old");
    }
    EXPECT_EQ(std::pair(FormGTMain.Caption.Get(), state.ConfigSaved), std::pair(std::string("before"), False));
    EXPECT_TRUE(fs::is_empty("folder"));
}

// Saves one configuration and the other in turn until it is killed.
[[noreturn]] void SaveInTurn() try {
    for (bool IsOdd = false;; IsOdd = !IsOdd) {
        IsOdd ? SetOddConfiguration() : SetDefaultConfiguration();
        state.ConfigFilePath = "my.gtf";
        SaveConfiguration();
    }
} catch (...) {
    _exit(1);
}

// Between its making and its renaming the new file stands beside the old one: a process killed there can't remove it.
TEST_F(Configuration, AKilledProcessLeavesTheOldOrTheNewFileWhole) {
    std::mt19937 Random(6);
    constexpr std::size_t Kills = 200;
    for (std::size_t Kill = 0; Kill < Kills; ++Kill) {
        fs::remove("my.gtf");
        const pid_t Child = fork();
        if (Child == 0) SaveInTurn();
        int Status = 0;
        while (!fs::exists("my.gtf") && waitpid(Child, &Status, WNOHANG) == 0) sched_yield();
        const timespec Pause{0, static_cast<long>(Random() % 2'000'000)};  // nanoseconds; only picks the moment
        nanosleep(&Pause, nullptr);
        kill(Child, SIGKILL);
        waitpid(Child, &Status, 0);
        ASSERT_TRUE(WIFSIGNALED(Status));
        const std::string Bytes = ReadFile("my.gtf", 2000);
        ASSERT_TRUE(Bytes == Default || Bytes == Odd) << Bytes.size() << " bytes";
    }
    EXPECT_LE(FileCount(), 1 + Kills);
    for (const auto& Each : fs::directory_iterator(".")) {
        fs::last_write_time(Each, fs::file_time_type::clock::now() - std::chrono::minutes(2));
    }
    SaveConfiguration();
    EXPECT_EQ(FileCount(), 1U) << "the next save removes what they left";
}

}  // namespace
}  // namespace gloamtide
