// Whole small files.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

namespace gloamtide {

// A file that cannot be read or written or that does not hold what it should; its text says which file and why.
struct FileFailure : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// The bytes of a regular file, AtMost of them. Throws FileFailure where there is none or it cannot be read.
std::string ReadFile(const std::string& Path, std::size_t AtMost);

// Replaces a regular file by one with these bytes, or makes it. Written beside the old one, flushed to disk and put in
// its place in one step: whatever happens meanwhile, the file is the old or the new one, whole. A symbolic link stays
// one; owner, group and permissions stay, but for the bits that run a file as its owner. A file that has other names,
// or that no new one can replace so, is written in place. Throws FileFailure where it cannot be written; an old file
// that was to be replaced is untouched then.
void WriteFile(const std::string& Path, const std::string& Bytes);

// The same, but what is there and is no regular file, a device or a pipe, is written to instead of being refused.
void WriteFileOrDevice(const std::string& Path, const std::string& Bytes);

// Throws FileFailure where they cannot all be written, also where the reader has left.
void WriteStandardOutput(const std::string& Bytes);

}  // namespace gloamtide
