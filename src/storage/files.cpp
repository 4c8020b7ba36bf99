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

#include "storage/file_status.h"
#include "storage/new_file.h"

namespace gloamtide {
namespace {

namespace fs = std::filesystem;

void RequireRegular(const fs::path& Path, const struct stat& Status) {
    if (!S_ISREG(Status.st_mode)) throw FileFailure(Path.string() + ": not a regular file");
}

// Over the old bytes, so that the file keeps its owner and all its names.
void WriteInPlace(const fs::path& Path, const std::string& Bytes, const struct stat& Old) {
    const OpenFile File(open(Path.c_str(), O_WRONLY | O_CLOEXEC));
    const bool Done =
        File.IsOpen() && File.Reserve(Bytes.size()) && File.Write(Bytes) && File.CutAt(Bytes.size()) && File.Flush();
    if (!Done) FailOn(Path, errno);
    File.TakePermissions(Old.st_mode);
}

// Puts a new file in the place of the old one, if there is one. False where that cannot be done but the old file can
// still be written: where no file can be made beside it or take its name, or cannot be given to its owner.
bool Replace(const fs::path& Path, const std::string& Bytes, const std::optional<struct stat>& Old) {
    NewFile New(Path);
    if (New.IsOpen() && (!Old || New.TakeAfter(*Old))) {
        if (!New.Write(Bytes) || !New.Flush()) FailOn(Path, errno);
        if (New.PutInPlace()) return true;
    }
    if (!Old) FailOn(Path, errno);
    return false;
}

}  // namespace

std::string ReadFile(const std::string& Path, std::size_t AtMost) {
    const auto Status = StatusOf(Path);
    if (!Status) FailOn(Path, ENOENT);
    RequireRegular(Path, *Status);
    std::ifstream File(Path, std::ios::binary);
    if (!File.is_open()) FailOn(Path, errno);
    std::string Bytes(AtMost, '\0');
    File.read(Bytes.data(), static_cast<std::streamsize>(AtMost));
    if (File.bad() || (File.fail() && !File.eof())) FailOn(Path, EIO);
    Bytes.resize(static_cast<std::size_t>(File.gcount()));
    return Bytes;
}

void WriteFile(const std::string& Path, const std::string& Bytes) {
    std::signal(SIGXFSZ, SIG_IGN);  // a limit on the size of files is an error like any other
    const fs::path Target = EndOfLinks(Path);
    const auto Old = StatusOf(Target);
    if (Old) {
        RequireRegular(Target, *Old);
        if (access(Target.c_str(), W_OK) != 0) FailOn(Target, errno);  // a write-protected file stays as it is
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
    if (!Device.IsOpen() || !Device.Write(Bytes)) FailOn(Path, errno);
}

void WriteStandardOutput(const std::string& Bytes) {
    std::signal(SIGPIPE, SIG_IGN);
    const OpenFile Output(dup(STDOUT_FILENO));
    if (!Output.IsOpen() || !Output.Write(Bytes)) FailOn("standard output", errno);
}

}  // namespace gloamtide
