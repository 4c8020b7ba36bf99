// What stands under a name, for those who write files.
#pragma once

#include <sys/stat.h>

#include <filesystem>
#include <optional>
#include <string>

namespace gloamtide {

// Throws FileFailure: the path and what the error number means.
[[noreturn]] void FailOn(const std::filesystem::path& Path, int Error);

// The status of what stands under a name; none where there is nothing. Throws FileFailure where it cannot be told.
std::optional<struct stat> StatusOf(const std::filesystem::path& Path);

// The file that a path leads to through symbolic links, whether it exists or not. Throws FileFailure where they go in a
// circle.
std::filesystem::path EndOfLinks(const std::filesystem::path& Path);

}  // namespace gloamtide
