#include "storage/new_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>
#include <random>
#include <string_view>
#include <utility>

namespace gloamtide {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view Prefix = ".gloamtide-";
constexpr std::string_view Suffix = ".tmp";
constexpr std::string_view Letters = "abcdefghijklmnopqrstuvwxyz0123456789";
constexpr std::size_t RandomLetters = 8;

fs::path FolderOf(const fs::path& Path) { return Path.has_parent_path() ? Path.parent_path() : "."; }

std::string RandomName() {
    std::random_device Random;
    std::string Name(Prefix);
    for (std::size_t Place = 0; Place < RandomLetters; ++Place) Name += Letters[Random() % Letters.size()];
    return Name.append(Suffix);
}

bool IsRandomName(std::string_view Name) {
    return Name.size() == Prefix.size() + RandomLetters + Suffix.size() && Name.starts_with(Prefix) &&
           Name.ends_with(Suffix) &&
           Name.substr(Prefix.size(), RandomLetters).find_first_not_of(Letters) == std::string_view::npos;
}

bool IsLeftover(int Descriptor) {
    constexpr std::time_t Young = 60;  // seconds
    struct stat Status {};
    return fstat(Descriptor, &Status) == 0 && S_ISREG(Status.st_mode) && std::time(nullptr) - Status.st_mtime > Young &&
           flock(Descriptor, LOCK_EX | LOCK_NB) == 0;
}

}  // namespace

OpenFile::~OpenFile() {
    if (Descriptor >= 0) close(Descriptor);
}

bool OpenFile::Write(const std::string& Bytes) const {
    std::size_t Done = 0;
    while (Done < Bytes.size()) {
        const ssize_t Written = write(Descriptor, Bytes.data() + Done, Bytes.size() - Done);
        if (Written < 0 && errno != EINTR) return false;
        if (Written > 0) Done += static_cast<std::size_t>(Written);
    }
    return true;
}

bool OpenFile::WriteAt(std::size_t Place, const std::string& Bytes) const {
    return pwrite(Descriptor, Bytes.data(), Bytes.size(), static_cast<off_t>(Place)) ==
           static_cast<ssize_t>(Bytes.size());
}

bool OpenFile::Reserve(std::size_t Length) const {
    const int Error = posix_fallocate(Descriptor, 0, static_cast<off_t>(Length));
    if (Error != ENOSPC && Error != EDQUOT && Error != EFBIG) return true;
    errno = Error;
    return false;
}

void OpenFile::TakePermissions(mode_t Mode) const {
    [[maybe_unused]] const int Ignored = fchmod(Descriptor, Mode & 0777U);
}

bool OpenFile::CutAt(std::size_t Length) const { return ftruncate(Descriptor, static_cast<off_t>(Length)) == 0; }

bool OpenFile::Flush() const {
    return fsync(Descriptor) == 0 || errno == EINVAL || errno == ENOSYS || errno == ENOTSUP || errno == EROFS;
}

NewFile::NewFile(const fs::path& TheTarget) : NewFile(TheTarget, FolderOf(TheTarget) / RandomName()) {}

NewFile::NewFile(fs::path TheTarget, fs::path TheName)
    : OpenFile(open(TheName.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666)),
      Target(std::move(TheTarget)),
      Name(std::move(TheName)) {
    if (IsOpen()) flock(Descriptor, LOCK_EX | LOCK_NB);  // nobody else knows the name yet
}

NewFile::~NewFile() {
    if (IsOpen() && !Name.empty()) unlink(Name.c_str());
}

bool NewFile::TakeAfter(const struct stat& Old) const {
    struct stat Own {};
    if (fstat(Descriptor, &Own) != 0) return false;
    const bool Same = Own.st_uid == Old.st_uid && Own.st_gid == Old.st_gid;
    if (!Same && fchown(Descriptor, Old.st_uid, Old.st_gid) != 0) return false;
    TakePermissions(Old.st_mode);
    return true;
}

bool NewFile::PutInPlace() {
    if (rename(Name.c_str(), Target.c_str()) != 0) return false;
    Name.clear();
    const OpenFile Folder(open(FolderOf(Target).c_str(), O_RDONLY | O_CLOEXEC));
    if (Folder.IsOpen()) Folder.Flush();  // the file itself is on the disk already
    return true;
}

void RemoveLeftovers(const fs::path& Target) {
    std::error_code Ignored;  // what cannot be looked at stays
    const fs::directory_iterator End;
    for (fs::directory_iterator Each(FolderOf(Target), Ignored); Each != End; Each.increment(Ignored)) {
        const fs::path& Path = Each->path();
        if (!IsRandomName(Path.filename().string())) continue;
        const int Descriptor = open(Path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
        const OpenFile Found(Descriptor);
        if (Found.IsOpen() && IsLeftover(Descriptor)) unlink(Path.c_str());
    }
}

}  // namespace gloamtide
