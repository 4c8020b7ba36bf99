#include "storage/file_status.h"

#include <cerrno>
#include <system_error>

#include "storage/files.h"

namespace gloamtide {

namespace fs = std::filesystem;

void FailOn(const fs::path& Path, int Error) {
    throw FileFailure(Path.string() + ": " + std::generic_category().message(Error));
}

std::optional<struct stat> StatusOf(const fs::path& Path) {
    struct stat Status {};
    if (stat(Path.c_str(), &Status) == 0) return Status;
    if (errno == ENOENT) return std::nullopt;
    FailOn(Path, errno);
}

fs::path EndOfLinks(const fs::path& Path) {
    constexpr int MostLinks = 40;
    std::error_code Ignored;
    fs::path End = Path;
    for (int Links = 0; fs::is_symlink(fs::symlink_status(End, Ignored)); ++Links) {
        if (Links == MostLinks) FailOn(Path, ELOOP);
        End = End.parent_path() / fs::read_symlink(End, Ignored);
    }
    return End;
}

}  // namespace gloamtide
