#include "storage/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <optional>
#include <system_error>

#include "storage/new_file.h"

namespace gloamtide {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void Fail(const fs::path& Path, int Error) {
    throw FileFailure(Path.string() + ": " + std::generic_category().message(Error));
}

// The status of what stands under a name; none where there is nothing.
std::optional<struct stat> StatusOf(const fs::path& Path) {
    struct stat Status {};
    if (stat(Path.c_str(), &Status) == 0) return Status;
    if (errno == ENOENT) return std::nullopt;
    Fail(Path, errno);
}

void RequireRegular(const fs::path& Path, const struct stat& Status) {
    if (!S_ISREG(Status.st_mode)) throw FileFailure(Path.string() + ": not a regular file");
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

// Over the old bytes, so that the file keeps its owner and all its names.
void WriteInPlace(const fs::path& Path, const std::string& Bytes, const struct stat& Old) {
    const OpenFile File(open(Path.c_str(), O_WRONLY | O_CLOEXEC));
    const bool Done =
        File.IsOpen() && File.Reserve(Bytes.size()) && File.Write(Bytes) && File.CutAt(Bytes.size()) && File.Flush();
    if (!Done) Fail(Path, errno);
    File.TakePermissions(Old.st_mode);
}

// Puts a new file in the place of the old one, if there is one. False where that cannot be done but the old file can
// still be written: where no file can be made beside it or take its name, or cannot be given to its owner.
bool Replace(const fs::path& Path, const std::string& Bytes, const std::optional<struct stat>& Old) {
    NewFile New(Path);
    if (New.IsOpen() && (!Old || New.TakeAfter(*Old))) {
        if (!New.Write(Bytes) || !New.Flush()) Fail(Path, errno);
        if (New.PutInPlace()) return true;
    }
    if (!Old) Fail(Path, errno);
    return false;
}

}  // namespace

std::string ReadFile(const std::string& Path, std::size_t AtMost) {
    const auto Status = StatusOf(Path);
    if (!Status) Fail(Path, ENOENT);
    RequireRegular(Path, *Status);
    std::ifstream File(Path, std::ios::binary);
    if (!File.is_open()) Fail(Path, errno);
    std::string Bytes(AtMost, '\0');
    File.read(Bytes.data(), static_cast<std::streamsize>(AtMost));
    if (File.bad() || (File.fail() && !File.eof())) Fail(Path, EIO);
    Bytes.resize(static_cast<std::size_t>(File.gcount()));
    return Bytes;
}

void WriteFile(const std::string& Path, const std::string& Bytes) {
    std::signal(SIGXFSZ, SIG_IGN);  // a limit on the size of files is an error like any other
    const fs::path Target = EndOfLinks(Path);
    const auto Old = StatusOf(Target);
    if (Old) {
        RequireRegular(Target, *Old);
        if (access(Target.c_str(), W_OK) != 0) Fail(Target, errno);  // a write-protected file stays as it is
    }
    RemoveLeftovers(Target);
    const bool HasOtherNames = Old && Old->st_nlink > 1;
    if (HasOtherNames || !Replace(Target, Bytes, Old)) WriteInPlace(Target, Bytes, *Old);
}

void WriteFileOrDevice(const std::string& Path, const std::string& Bytes) {
    const auto Old = StatusOf(Path);
    if (!Old || S_ISREG(Old->st_mode)) return WriteFile(Path, Bytes);
    std::signal(SIGPIPE, SIG_IGN);  // a reader that leaves is an error too
    const OpenFile Device(open(Path.c_str(), O_WRONLY | O_CLOEXEC));
    if (!Device.IsOpen() || !Device.Write(Bytes)) Fail(Path, errno);
}

}  // namespace gloamtide
