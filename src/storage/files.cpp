#include "storage/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <optional>
#include <system_error>
#include <utility>

namespace gloamtide {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void Fail(const fs::path& Path, int Error) {
    throw FileFailure(Path.string() + ": " + std::generic_category().message(Error));
}

// The status of a regular file; none where there is no file of that name.
std::optional<struct stat> StatusOf(const fs::path& Path) {
    struct stat Status {};
    if (stat(Path.c_str(), &Status) != 0) {
        if (errno == ENOENT) return std::nullopt;
        Fail(Path, errno);
    }
    if (!S_ISREG(Status.st_mode)) throw FileFailure(Path.string() + ": not a regular file");
    return Status;
}

// The file that a path leads to through symbolic links, whether it exists or not.
fs::path EndOfLinks(const fs::path& Path) {
    constexpr int MostLinks = 40;
    std::error_code Ignored;
    fs::path End = Path;
    for (int Links = 0; fs::is_symlink(fs::symlink_status(End, Ignored)); ++Links) {
        if (Links == MostLinks) Fail(Path, ELOOP);
        End = End.parent_path() / fs::read_symlink(End, Ignored);
    }
    return End;
}

// A new file beside the one that it shall replace. What is not put in its place is removed again.
class Replacement {
public:
    explicit Replacement(fs::path TheTarget) : Target(std::move(TheTarget)) {
        if (Descriptor < 0) Fail(Target, errno);
    }
    ~Replacement() {
        if (Descriptor >= 0) close(Descriptor);
        if (!InPlace) unlink(Temporary.c_str());
    }
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    void KeepPermissions(mode_t Mode) { Check(fchmod(Descriptor, Mode)); }

    void Write(const std::string& Bytes) {
        std::size_t Done = 0;
        while (Done < Bytes.size()) {
            const ssize_t Written = write(Descriptor, Bytes.data() + Done, Bytes.size() - Done);
            if (Written >= 0) {
                Done += static_cast<std::size_t>(Written);
            } else if (errno != EINTR) {
                Fail(Target, errno);
            }
        }
    }

    void PutInPlace() {
        Check(fsync(Descriptor));
        Check(close(std::exchange(Descriptor, -1)));
        Check(rename(Temporary.c_str(), Target.c_str()));
        InPlace = true;
        const int Folder = open(FolderOf(Target).c_str(), O_RDONLY | O_CLOEXEC);
        if (Folder < 0) return;
        fsync(Folder);  // not every file system can; the file itself is on disk
        close(Folder);
    }

private:
    static int MakeFile(const fs::path& Path) {
        unlink(Path.c_str());  // left by a process of this number that was killed
        return open(Path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    }

    static fs::path FolderOf(const fs::path& Path) { return Path.has_parent_path() ? Path.parent_path() : "."; }

    void Check(int Result) const {
        if (Result != 0) Fail(Target, errno);
    }

    fs::path Target;
    fs::path Temporary = FolderOf(Target) / (".gloamtide-" + std::to_string(getpid()));
    int Descriptor = MakeFile(Temporary);
    bool InPlace = false;
};

}  // namespace

std::string ReadFile(const std::string& Path, std::size_t AtMost) {
    if (!StatusOf(Path)) Fail(Path, ENOENT);
    std::ifstream File(Path, std::ios::binary);
    if (!File.is_open()) Fail(Path, errno);
    std::string Bytes(AtMost, '\0');
    File.read(Bytes.data(), static_cast<std::streamsize>(AtMost));
    if (File.bad() || (File.fail() && !File.eof())) Fail(Path, EIO);
    Bytes.resize(static_cast<std::size_t>(File.gcount()));
    return Bytes;
}

void WriteFile(const std::string& Path, const std::string& Bytes) {
    const fs::path Target = EndOfLinks(Path);
    const std::optional<struct stat> Old = StatusOf(Target);
    if (Old && access(Target.c_str(), W_OK) != 0) Fail(Target, errno);  // a write-protected file stays as it is
    Replacement New(Target);
    if (Old) New.KeepPermissions(Old->st_mode & 07777U);
    New.Write(Bytes);
    New.PutInPlace();
}

}  // namespace gloamtide
