#include "frame/configuration.h"

#include <bit>
#include <cstdint>
#include <string>

#include "frame/code_page.h"
#include "frame/files.h"
#include "frame/form_gt_main.h"
#include "frame/state.h"

namespace gloamtide {
namespace {

constexpr std::size_t RecordLength = 48;
constexpr std::size_t RecordCount = 21;
constexpr std::size_t LongestName = RecordLength - 2;  // bytes, beside the length itself

// Reads the records of a file one after the other.
class RecordReader {
public:
    explicit RecordReader(const std::string& Path)
        : FilePath(Path), Bytes(ReadFile(Path, RecordLength * RecordCount)), Length(Bytes.size()) {
        Bytes.resize(RecordLength * RecordCount);
    }

    double Double() { return std::bit_cast<double>(Number(8)); }
    float Single() { return std::bit_cast<float>(static_cast<std::uint32_t>(Number(4))); }
    std::int16_t Int16() { return static_cast<std::int16_t>(Number(2)); }

    std::string Text() {
        const std::size_t Start = Next + 2;
        const std::size_t TextLength = Number(2);
        if (TextLength > LongestName || Start + TextLength > Length)
            throw FileFailure("bad location name: " + FilePath);
        return FromCodePage(Bytes.substr(Start, TextLength));
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
    state.OffsetDays = File.Double();
    state.ZoneHours = File.Single();
    state.DaylightHours = File.Int16();
    state.MapType = File.Int16();
    state.ShowMapGrid = File.Int16();
    state.ShowAnalemma = File.Int16();
    state.ShowCities = File.Int16();
    state.ShowTimezones = File.Int16();
    state.ShowSun = File.Int16();
    state.ShowMoon = File.Int16();
    state.AnimYears = File.Single();
    state.AnimDays = File.Single();
    state.AnimHours = File.Single();
    state.AnimForward = File.Int16();
    state.LocationName = File.Text();
    state.LocationLat = File.Double();
    state.LocationLong = File.Single();
    state.ShowSundial = File.Int16();
    state.SundialLongitudeCorrection = File.Int16();
    state.SundialEOTCorrection = File.Int16();
    state.SundialDSTCorrection = File.Int16();
    ShowPathInTitle(state.ConfigOpenPath);
}

void ReadStartupFile() {
    constexpr std::size_t LongestLine = 32767;  // bytes
    const std::string Text = ReadFile("Startup.dat", LongestLine);
    if (Text.empty()) throw FileFailure("empty: Startup.dat");
    const bool Quoted = Text.front() == '"';
    const std::size_t Start = Quoted ? 1 : 0;
    const std::size_t End = Text.find_first_of(Quoted ? "\"" : ",\r\n", Start);
    state.ConfigFilePath = Text.substr(Start, End == std::string::npos ? End : End - Start);
}

void ShowPathInTitle(const std::string& Path) { FormGTMain.Caption = "Gloamtide (" + Path + ")"; }

}  // namespace gloamtide
