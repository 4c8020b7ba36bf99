// Whole small files.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>

namespace gloamtide {

// A file that cannot be read or that does not hold what it should; its text says which file and why.
struct FileFailure : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// The bytes of a regular file, AtMost of them. Throws FileFailure where there is none or it cannot be read.
std::string ReadFile(const std::string& Path, std::size_t AtMost);

}  // namespace gloamtide
