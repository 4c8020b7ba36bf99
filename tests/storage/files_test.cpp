#include "storage/files.h"

#include <fcntl.h>
#include <grp.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <future>
#include <iostream>

#include "tests/program_test.h"

namespace {

int FlushError = 0;  // what the system's own, which seldom fail, shall fail with
int ModeError = 0;

}  // namespace

extern "C" int fsync(int File) {
    errno = FlushError;
    return FlushError != 0 ? -1 : static_cast<int>(syscall(SYS_fsync, File));
}

extern "C" int fchmod(int File, mode_t Mode) noexcept {
    errno = ModeError;
    return ModeError != 0 ? -1 : static_cast<int>(syscall(SYS_fchmod, File, Mode));
}

namespace gloamtide {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

class Files : public ProgramTest {
protected:
    static long CountIn(const char* Path) { return std::distance(fs::directory_iterator(Path), {}); }
};

enum class Who { User, Stranger, Root };

uid_t NumberOf(Who Which) {
    const uid_t User = geteuid() == 0 ? 54321 : geteuid();
    return Which == Who::Root ? 0 : Which == Who::User ? User : User + 1;
}

struct Save {
    const char* Name;
    const char* Message = "";   // nothing where it succeeds
    const char* After = "new";  // what the file holds then
    bool Replaced = true;       // by a new file; otherwise written in place
    mode_t Mode = 0640;
    Who Owner = Who::User, Group = Who::User;
    mode_t FolderMode = 0755;
    Who FolderOwner = Who::User;
    bool OtherName = false;
    rlim_t Limit = RLIM_INFINITY;       // bytes of a file
    int FlushFails = 0, ModeFails = 0;  // with this error
    Who Saver = Who::User;

    bool TakesRoot() const {
        return Owner != Who::User || Group != Who::User || FolderOwner != Who::User || Saver != Who::User;
    }

    void SetUp() const {
        fs::create_directory("folder");
        std::ofstream("folder/my.gtf") << "older";
        if (OtherName) fs::create_hard_link("folder/my.gtf", "folder/other");
        EXPECT_EQ(chown("folder", NumberOf(FolderOwner), NumberOf(FolderOwner)), 0);
        EXPECT_EQ(chown("folder/my.gtf", NumberOf(Owner), NumberOf(Group)), 0);
        EXPECT_EQ(chmod("folder/my.gtf", Mode) | chmod("folder", FolderMode), 0);
    }

    [[noreturn]] void InAProcessOfItsOwn() const {
        const uid_t User = NumberOf(Saver);
        if (geteuid() != User && (setgroups(0, nullptr) | setgid(User) | setuid(User)) != 0) _exit(2);
        umask(022);
        std::signal(SIGXFSZ, SIG_DFL);
        rlimit Size{};
        getrlimit(RLIMIT_FSIZE, &Size);
        const rlimit Small{Limit, Size.rlim_max};
        setrlimit(RLIMIT_FSIZE, &Small);
        FlushError = FlushFails;
        ModeError = ModeFails;
        std::string Told;
        try {
            WriteFile("folder/my.gtf", "new");
        } catch (const FileFailure& Failure) {
            Told = Failure.what();
        }
        setrlimit(RLIMIT_FSIZE, &Size);
        std::cerr << Told;
        _exit(Told.empty() ? 0 : 1);
    }
};

const char* const Full = "my.gtf: File too large";
const char* const Broken = "my.gtf: Input/output error";

const Save Saves[] = {
    {.Name = "as usual"},
    {.Name = "by root, with bits that run it as its owner", .Mode = 06755, .Saver = Who::Root},
    {.Name = "a group that the user is not in", .Replaced = false, .Mode = 0660, .Group = Who::Stranger},
    {.Name = "a stranger's", .Replaced = false, .Mode = 0666, .Owner = Who::Stranger},
    {.Name = "a stranger's, among strangers",
     .Replaced = false,
     .Mode = 0666,
     .Owner = Who::Stranger,
     .FolderMode = 01777,
     .FolderOwner = Who::Stranger},
    {.Name = "protected", .Message = "my.gtf: Permission denied", .After = "older", .Replaced = false, .Mode = 0444},
    {.Name = "in a protected folder", .Replaced = false, .FolderMode = 0555},
    {.Name = "with another name", .Replaced = false, .OtherName = true},
    {.Name = "a full disk", .Message = Full, .After = "older", .Replaced = false, .Limit = 0},
    {.Name = "a disk that fills up", .Message = Full, .After = "older", .Replaced = false, .Limit = 2},
    {.Name = "full, other name", .Message = Full, .After = "older", .Replaced = false, .OtherName = true, .Limit = 0},
    {.Name = "a disk that knows no flush", .FlushFails = EINVAL},
    {.Name = "a disk that knows no permissions", .Mode = 0644, .ModeFails = EPERM},
    {.Name = "a broken disk", .Message = Broken, .After = "older", .Replaced = false, .FlushFails = EIO},
    {.Name = "broken, other name", .Message = Broken, .Replaced = false, .OtherName = true, .FlushFails = EIO},
};

TEST_F(Files, ASaveKeepsOwnersPermissionsAndNamesAndLeavesNothingBehind) {
    fs::permissions(Folder, fs::perms{0755});
    for (const Save& S : Saves) {
        if (S.TakesRoot() && geteuid() != 0) continue;  // none but root can set it up
        SCOPED_TRACE(S.Name);
        S.SetUp();
        struct stat Before {};
        struct stat After {};
        stat("folder/my.gtf", &Before);
        EXPECT_EXIT(S.InAProcessOfItsOwn(), testing::ExitedWithCode(*S.Message == '\0' ? 0 : 1), S.Message);
        stat("folder/my.gtf", &After);
        EXPECT_EQ(std::tuple(After.st_uid, After.st_gid, After.st_mode & 07777, After.st_ino != Before.st_ino),
                  std::tuple(NumberOf(S.Owner), NumberOf(S.Group), S.Mode & 0777, S.Replaced));
        EXPECT_EQ(ReadFile(S.OtherName ? "folder/other" : "folder/my.gtf", 99), S.After);
        EXPECT_EQ(CountIn("folder"), S.OtherName ? 2 : 1);
        fs::permissions("folder", fs::perms{0755});
        fs::remove_all("folder");
    }
}

// As in two containers with one folder: the process number does not tell them apart.
TEST_F(Files, TwoOfTheSameProcessNumberSaveAtOnce) {
    const auto TextOf = [](char Letter) { return std::string(Letter == 'a' ? 1008 : 5000, Letter); };
    const auto SaveOften = [&](char Letter) {
        for (int Time = 0; Time < 100; ++Time) gloamtide::WriteFile("my.gtf", TextOf(Letter));
    };
    gloamtide::WriteFile("my.gtf", TextOf('a'));
    auto One = std::async(std::launch::async, SaveOften, 'a');
    auto Other = std::async(std::launch::async, SaveOften, 'b');
    while (One.wait_for(0s) != std::future_status::ready || Other.wait_for(0s) != std::future_status::ready) {
        const std::string Kept = ReadFile("my.gtf", 9999);
        ASSERT_EQ(Kept, TextOf(Kept.at(0)));
    }
    One.get();  // throws what it met
    Other.get();
    EXPECT_EQ(CountIn("."), 1);
}

TEST_F(Files, ASaveRemovesWhatKilledSavesLeft) {
    const std::vector<VectorRow> Found = ReadVectors("leftovers");
    for (const VectorRow& R : Found) {
        WriteFile(R.In.Texts["Name"], "old");
        const std::chrono::seconds Age(R.In.Whole("Seconds"));
        fs::last_write_time(R.In.Texts["Name"], fs::file_time_type::clock::now() - Age);
    }
    mkfifo(".gloamtide-nofile12.tmp", 0600);  // nor does the save wait for its other end
    const int Locked = open(".gloamtide-locked12.tmp", O_RDONLY);
    ASSERT_EQ(flock(Locked, LOCK_SH), 0);
    gloamtide::WriteFile("my.gtf", "new");
    close(Locked);
    for (const VectorRow& R : Found) EXPECT_EQ(fs::exists(R.In.Texts["Name"]), R.Out["Stays"] == -1.0) << R.Where;
    EXPECT_TRUE(fs::exists(".gloamtide-nofile12.tmp"));
}

}  // namespace
}  // namespace gloamtide
