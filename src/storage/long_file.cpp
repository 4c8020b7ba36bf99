#include "storage/long_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <fstream>
#include <utility>

#include "storage/file_status.h"
#include "storage/files.h"

namespace gloamtide {
namespace {

namespace fs = std::filesystem;

// Whether a new file can take the place of what stands under a name.
bool CanBeReplaced(const std::optional<struct stat>& Old) {
    return !Old || (S_ISREG(Old->st_mode) && Old->st_nlink == 1);
}

}  // namespace

LongFile::LongFile(std::string ThePath) : Path(std::move(ThePath)) {
    std::signal(SIGXFSZ, SIG_IGN);  // a limit on the size of files is an error like any other
    std::signal(SIGPIPE, SIG_IGN);
    if (Path != "-") {
        const fs::path Target = EndOfLinks(Path);
        const auto Old = StatusOf(Target);
        if (Old && access(Target.c_str(), W_OK) != 0) FailOn(Target, errno);
        if (Old && S_ISDIR(Old->st_mode)) FailOn(Target, EISDIR);
        if (CanBeReplaced(Old)) {
            RemoveLeftovers(Target);
            Scratch = std::make_unique<NewFile>(Target);
            Beside = Scratch->IsOpen() && (!Old || Scratch->TakeAfter(*Old));
            if (!Beside && !Old) FailOn(Target, errno);
        }
    }
    if (!Beside) Scratch = std::make_unique<NewFile>(fs::temp_directory_path() / "film");
    if (!Scratch->IsOpen()) FailOn(fs::temp_directory_path(), errno);
}

LongFile::~LongFile() = default;

const fs::path& LongFile::ScratchPath() const { return Scratch->Path(); }

void LongFile::Append(const std::string& Bytes) {
    if (!Scratch->Write(Bytes)) FailOn(Path, errno);
}

void LongFile::Overwrite(std::size_t Place, const std::string& Bytes) {
    if (!Scratch->WriteAt(Place, Bytes)) FailOn(Path, errno);
}

void LongFile::PutInPlace() {
    if (!Beside) return CopyOut();
    if (!Scratch->Flush() || !Scratch->PutInPlace()) FailOn(Path, errno);
}

void LongFile::CopyOut() const {
    constexpr std::size_t BlockSize = 1U << 20U;
    const OpenFile To(Path == "-" ? dup(STDOUT_FILENO) : open(Path.c_str(), O_WRONLY | O_CLOEXEC));
    const std::size_t Length = fs::file_size(ScratchPath());
    const bool Regular = Path != "-" && fs::is_regular_file(Path);
    if (!To.IsOpen() || (Regular && !To.Reserve(Length))) FailOn(Path, errno);
    std::ifstream From(ScratchPath(), std::ios::binary);
    std::string Block(BlockSize, '\0');
    while (From.read(Block.data(), BlockSize), From.gcount() > 0) {
        if (!To.Write(Block.substr(0, static_cast<std::size_t>(From.gcount())))) FailOn(Path, errno);
    }
    if (Regular && !To.CutAt(Length)) FailOn(Path, errno);
}

}  // namespace gloamtide
