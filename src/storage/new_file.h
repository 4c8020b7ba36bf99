// A file on its way into the place of another.
#pragma once

#include <sys/stat.h>

#include <cstddef>
#include <filesystem>
#include <string>

namespace gloamtide {

// An open descriptor, closed at the end. Its operations are false where they fail; errno tells why.
class OpenFile {
public:
    explicit OpenFile(int TheDescriptor) : Descriptor(TheDescriptor) {}
    ~OpenFile();
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    bool IsOpen() const { return Descriptor >= 0; }
    bool Reserve(std::size_t Length) const;  // true, too, on a file system that knows no such thing
    bool Write(const std::string& Bytes) const;
    bool WriteAt(std::size_t Place, const std::string& Bytes) const;  // over bytes that are there
    bool CutAt(std::size_t Length) const;
    void TakePermissions(mode_t Mode) const;  // but for the bits that run a file as its owner; where there are any
    bool Flush() const;                       // to the disk; true, too, on a file system that knows no such thing

protected:
    const int Descriptor;
};

// A file of a name that nobody has, in the folder of the one that it shall replace. Removed again unless it was put in
// its place. Locked as long as it lives: what is found unlocked later was left by a process that was killed.
class NewFile : public OpenFile {
public:
    explicit NewFile(const std::filesystem::path& TheTarget);
    ~NewFile();

    const std::filesystem::path& Path() const { return Name; }  // until it is put in place

    // Owner, group and permissions of the old file, but for the bits that run a file as its owner. False where it
    // cannot be given to owner and group.
    bool TakeAfter(const struct stat& Old) const;
    bool PutInPlace();

private:
    NewFile(std::filesystem::path TheTarget, std::filesystem::path TheName);

    std::filesystem::path Target;
    std::filesystem::path Name;
};

// Removes from the folder of Target what killed saves left there more than a minute ago.
void RemoveLeftovers(const std::filesystem::path& Target);

}  // namespace gloamtide
