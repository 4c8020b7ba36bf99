#include "frame/files.h"

#include <filesystem>
#include <fstream>

namespace gloamtide {

std::string ReadFile(const std::string& Path, std::size_t AtMost) {
    std::error_code Ignored;  // whatever the reason, the file is not one to read from
    if (!std::filesystem::is_regular_file(Path, Ignored)) throw FileFailure("not a file: " + Path);
    std::ifstream File(Path, std::ios::binary);
    std::string Bytes(AtMost, '\0');
    File.read(Bytes.data(), static_cast<std::streamsize>(AtMost));
    if (!File.is_open() || File.bad() || (File.fail() && !File.eof())) throw FileFailure("cannot read: " + Path);
    Bytes.resize(static_cast<std::size_t>(File.gcount()));
    return Bytes;
}

}  // namespace gloamtide
