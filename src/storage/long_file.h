// A file that is too long to be held in memory.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "storage/new_file.h"

namespace gloamtide {

// Written aside and put in place when it is whole: a file that is not leaves nothing behind. What is there and is no
// regular file, or "-", which is standard output, gets the bytes when they are all there.
class LongFile {
public:
    //   Errors: each throws FileFailure where it cannot be written
    explicit LongFile(std::string ThePath);
    ~LongFile();

    const std::filesystem::path& ScratchPath() const;  // where it is written; others may write there, too
    void Append(const std::string& Bytes);
    void Overwrite(std::size_t Place, const std::string& Bytes);
    void PutInPlace();

private:
    void CopyOut() const;

    std::string Path;
    std::unique_ptr<NewFile> Scratch;
    bool Beside = false;  // the file that it shall replace
};

}  // namespace gloamtide
