#include "places/principal_city.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <sstream>
#include <string_view>

#include "storage/files.h"

namespace gloamtide {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view Database = "/usr/share/zoneinfo/";

// The zone of a file of the database, empty for another file.
std::string ZoneOfFile(const std::string& Path) {
    const std::size_t Place = Path.find("/zoneinfo/");
    return Place == std::string::npos ? "" : Path.substr(Place + std::string_view("/zoneinfo/").size());
}

std::string TextOf(const std::string& Path) {
    constexpr std::size_t LargestTable = 1U << 20U;  // bytes
    try {
        return ReadFile(Path, LargestTable);
    } catch (const FileFailure&) {
        return "";
    }
}

// Degrees of a coordinate such as +5230, +404251 or -0740023: its sign, so many digits of degrees, two of minutes and,
// maybe, two of seconds.
std::optional<double> Degrees(std::string_view Text, std::size_t DegreeDigits) {
    const std::size_t Digits = Text.size() - 1;
    const bool Fits = !Text.empty() && (Text[0] == '+' || Text[0] == '-') &&
                      (Digits == DegreeDigits + 2 || Digits == DegreeDigits + 4) &&
                      std::all_of(Text.begin() + 1, Text.end(), [](unsigned char Each) { return std::isdigit(Each); });
    if (!Fits) return std::nullopt;
    const auto Number = [&](std::size_t From, std::size_t Count) { return std::stoi(std::string(Text, From, Count)); };
    const double Seconds = Digits == DegreeDigits + 4 ? Number(DegreeDigits + 3, 2) : 0.0;
    const double Magnitude = Number(1, DegreeDigits) + Number(DegreeDigits + 1, 2) / 60.0 + Seconds / 3600.0;
    return Text[0] == '-' ? -Magnitude : Magnitude;
}

// "New York" of "America/New_York".
std::string CityOf(const std::string& Zone) {
    std::string Name = Zone.substr(Zone.rfind('/') + 1);
    std::replace(Name.begin(), Name.end(), '_', ' ');
    return Name;
}

// A row: countries, coordinates of the principal city, zone and, maybe, a comment, parted by tabs.
std::optional<PrincipalCity> FindInTable(const std::string& Zone, const std::string& Path) {
    std::istringstream Table(TextOf(Path));
    for (std::string Row; std::getline(Table, Row);) {
        std::istringstream Fields(Row);
        std::string Countries;
        std::string Coordinates;
        std::string Name;
        Fields >> Countries >> Coordinates >> Name;
        if (Name != Zone || Countries.starts_with('#')) continue;
        const std::size_t Second = std::min(Coordinates.find_first_of("+-", 1), Coordinates.size());
        const auto Latitude = Degrees(std::string_view(Coordinates).substr(0, Second), 2);
        const auto Longitude = Degrees(std::string_view(Coordinates).substr(Second), 3);
        if (Latitude && Longitude) return PrincipalCity{CityOf(Name), *Latitude, *Longitude};
    }
    return std::nullopt;
}

}  // namespace

std::string ComputerZone(const char* TZ, const std::string& Root) {
    std::string Named = TZ == nullptr ? "" : TZ;
    if (Named.starts_with(':')) Named.erase(0, 1);
    if (!Named.empty()) return Named.starts_with('/') ? ZoneOfFile(Named) : Named;
    std::error_code Ignored;  // no link leads nowhere
    std::string Linked = ZoneOfFile(fs::read_symlink(Root + "/etc/localtime", Ignored).string());
    if (!Linked.empty()) return Linked;
    const std::string Line = TextOf(Root + "/etc/timezone");
    return Line.substr(0, Line.find_first_of(" \t\r\n"));
}

std::optional<PrincipalCity> FindPrincipalCity(const std::string& Zone, const std::string& Root) {
    const std::string Folder = Root + std::string(Database);
    std::error_code Ignored;  // a zone that is no file has no other name
    const std::string Other = ZoneOfFile(fs::canonical(Folder + Zone, Ignored).string());
    for (const std::string& Name : {Zone, Other}) {
        for (const char* Table : {"zone1970.tab", "zone.tab"}) {
            if (auto Found = FindInTable(Name, Folder + Table)) return Found;
        }
    }
    return std::nullopt;
}

}  // namespace gloamtide
