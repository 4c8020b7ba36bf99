#include "storage/configuration.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <filesystem>
#include <string>
#include <utility>

#include "forms/form_gt_main.h"
#include "forms/messages.h"
#include "state/state.h"
#include "storage/code_page.h"
#include "storage/files.h"

namespace gloamtide {
namespace {

constexpr const char* StartupFile = "Startup.dat";
constexpr std::size_t LongestLine = 32767;  // bytes, of that file
constexpr std::size_t RecordLength = 48;
constexpr std::size_t RecordCount = 21;
constexpr std::size_t LongestName = RecordLength - 2;  // bytes, beside the length itself

std::string StoredName(const std::string& Name) { return ToCodePage(Name).substr(0, LongestName); }

// Takes the fields of the state, in the order of the records, from the bytes of a file.
class RecordReader {
public:
    explicit RecordReader(const std::string& Path)
        : FilePath(Path), Bytes(ReadFile(Path, RecordLength * RecordCount)), Length(Bytes.size()) {
        Bytes.resize(RecordLength * RecordCount);
    }

    void operator()(double& Field) { Field = std::bit_cast<double>(Number(8)); }
    void operator()(float& Field) { Field = std::bit_cast<float>(static_cast<std::uint32_t>(Number(4))); }
    void operator()(std::int16_t& Field) { Field = static_cast<std::int16_t>(Number(2)); }

    void operator()(std::string& Field) {
        const std::size_t Start = Next + 2;
        const std::size_t TextLength = Number(2);
        if (TextLength > LongestName || Start + TextLength > Length)
            throw FileFailure(FilePath + ": not a configuration file");
        Field = FromCodePage(Bytes.substr(Start, TextLength));
    }

private:
    // The first Size bytes of the next record.
    std::uint64_t Number(std::size_t Size) {
        std::uint64_t Value = 0;
        for (std::size_t Byte = Size; Byte-- > 0;) Value = Value << 8U | static_cast<unsigned char>(Bytes[Next + Byte]);
        Next += RecordLength;
        return Value;
    }

    std::string FilePath;
    std::string Bytes;   // padded to full length
    std::size_t Length;  // as stored
    std::size_t Next = 0;
};

// Puts the fields of the state into the bytes of a file, from one record on.
class RecordWriter {
public:
    std::string Bytes;

    explicit RecordWriter(std::string OldBytes = "", std::size_t FirstRecord = 1)
        : Bytes(std::move(OldBytes)), Next((FirstRecord - 1) * RecordLength) {}

    void operator()(double Field) { Number(std::bit_cast<std::uint64_t>(Field), 8); }
    void operator()(float Field) { Number(std::bit_cast<std::uint32_t>(Field), 4); }
    void operator()(std::int16_t Field) { Number(static_cast<std::uint16_t>(Field), 2); }

    void operator()(const std::string& Field) {
        const std::string Name = StoredName(Field);
        const std::size_t Start = Next + 2;
        Number(Name.size(), 2);
        Bytes.replace(Start, Name.size(), Name);
    }

private:
    // The first Size bytes of the next record; its others stay, or are 0 where the file grows.
    void Number(std::uint64_t Value, std::size_t Size) {
        if (Bytes.size() < Next + RecordLength) Bytes.resize(Next + RecordLength);
        for (std::size_t Byte = 0; Byte < Size; ++Byte) Bytes[Next + Byte] = static_cast<char>(Value >> 8U * Byte);
        Next += RecordLength;
    }

    std::size_t Next;
};

constexpr std::size_t FirstAnimationRecord = 11;

template <class Records>
void AnimationRecords(Records& Next) {
    Next(state.AnimYears);
    Next(state.AnimDays);
    Next(state.AnimHours);
    Next(state.AnimForward);
}

template <class Records>
void AllRecords(Records& Next) {
    Next(state.OffsetDays);
    Next(state.ZoneHours);
    Next(state.DaylightHours);
    Next(state.MapType);
    Next(state.ShowMapGrid);
    Next(state.ShowAnalemma);
    Next(state.ShowCities);
    Next(state.ShowTimezones);
    Next(state.ShowSun);
    Next(state.ShowMoon);
    AnimationRecords(Next);
    Next(state.LocationName);
    Next(state.LocationLat);
    Next(state.LocationLong);
    Next(state.ShowSundial);
    Next(state.SundialLongitudeCorrection);
    Next(state.SundialEOTCorrection);
    Next(state.SundialDSTCorrection);
}

// What the file holds before it is written, so that nothing beyond the records gets lost.
std::string BytesBefore(const std::string& Path) {
    constexpr std::size_t LargestFile = 1U << 20U;  // bytes; anything larger is something else
    std::error_code Ignored;                        // what cannot be looked at cannot be written either
    std::string Bytes = std::filesystem::exists(Path, Ignored) ? ReadFile(Path, LargestFile + 1) : "";
    if (Bytes.size() > LargestFile) throw FileFailure(Path + ": too large for a configuration file");
    return Bytes;
}

void TellStoredName() {
    const std::string Name = FromCodePage(StoredName(state.LocationName));
    if (Name == state.LocationName) return;
    ShowAfterTwoBeeps({"Location Name Changed",
                       "A configuration file holds a location name of at most 46 characters, each of the Western "
                       "character set (Windows-1252). The name was saved as \"" +
                           Name + "\".",
                       MessageIcon::Exclamation});
}

}  // namespace

void SetDefaultConfiguration() {
    state.ConfigFilePath = "Config File not found -- default configuration used";
    state.OffsetDays = 0.0;
    state.ZoneHours = 5.0F;
    state.DaylightHours = 0;
    state.MapType = 0;
    state.ShowMapGrid = state.ShowAnalemma = state.ShowCities = state.ShowTimezones = False;
    state.ShowSun = state.ShowMoon = state.ShowSundial = False;
    state.SundialLongitudeCorrection = state.SundialEOTCorrection = state.SundialDSTCorrection = False;
    state.AnimYears = 0.0F;
    state.AnimDays = 0.0F;
    state.AnimHours = 1.0F;
    state.AnimForward = True;
    state.LocationName = "Cleveland, Ohio";
    state.LocationLat = 41.598;
    state.LocationLong = -81.697F;
    state.ConfigSaved = False;
}

void LoadConfiguration() {
    RecordReader File(state.ConfigOpenPath);
    AllRecords(File);
    ShowPathInTitle(state.ConfigOpenPath);
}

std::string ConfigurationBytes() {
    RecordWriter File;
    AllRecords(File);
    return File.Bytes;
}

void SaveConfiguration() {
    const std::string OldBytes = BytesBefore(state.ConfigFilePath);
    const std::string Bytes = ConfigurationBytes();
    WriteFile(state.ConfigFilePath, Bytes + OldBytes.substr(std::min(OldBytes.size(), Bytes.size())));
    ShowPathInTitle(state.ConfigFilePath);
    state.ConfigSaved = True;
    TellStoredName();
}

void SaveAnimationOptions() {
    RecordWriter File(BytesBefore(state.ConfigFilePath), FirstAnimationRecord);
    AnimationRecords(File);
    WriteFile(state.ConfigFilePath, File.Bytes);
}

void ReadStartupFile() {
    const std::string Text = ReadFile(StartupFile, LongestLine);
    if (Text.empty()) throw FileFailure(std::string(StartupFile) + ": empty");
    const bool Quoted = Text.front() == '"';
    const std::size_t Start = Quoted ? 1 : 0;
    const std::size_t End = Text.find_first_of(Quoted ? "\"" : ",\r\n", Start);
    state.ConfigFilePath = Text.substr(Start, End == std::string::npos ? End : End - Start);
}

namespace {

// In quotes where that can be; where the path has a quotation mark, bare. Empty where no line can hold it.
std::string StartupLine(const std::string& Path) {
    const auto Has = [&Path](const char* Letters) { return Path.find_first_of(Letters) != std::string::npos; };
    if (Path.size() > LongestLine - 2 || Has("\r\n")) return "";
    if (!Has("\"")) return '"' + Path + '"';
    return Path.front() == '"' || Has(",") ? "" : Path;
}

}  // namespace

bool StartupFileCanHold(const std::string& Path) { return !StartupLine(Path).empty(); }

void WriteStartupFile() {
    const std::string Line = StartupLine(state.ConfigFilePath);
    if (Line.empty()) throw FileFailure(state.ConfigFilePath + ": " + NoStartupPath);
    WriteFile((std::filesystem::path(state.AppDirectory) / StartupFile).string(), Line + "\r\n");
}

void ShowPathInTitle(const std::string& Path) { FormGTMain.Caption = "Gloamtide (" + Path + ")"; }

}  // namespace gloamtide
