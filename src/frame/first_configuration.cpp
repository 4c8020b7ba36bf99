#include "frame/first_configuration.h"

#include <cmath>
#include <filesystem>

#include "astro/degrees.h"
#include "dialogs/configure.h"
#include "places/principal_city.h"
#include "state/state.h"
#include "storage/configuration.h"

namespace gloamtide {
namespace {

// The city's row in the table: the first of its name within about 150 km. 0 where there is none.
std::size_t RowOf(const PrincipalCity& City) {
    constexpr double Reach = 1.5;  // degrees
    const double Narrowing = CosDeg(City.Latitude);
    for (std::size_t Row = 1; Row <= static_cast<std::size_t>(state.CityCount); ++Row) {
        if (state.CityName[Row].starts_with(City.Name + ",") &&
            std::abs(state.CityLatitude[Row] - City.Latitude) < Reach &&
            std::abs(state.CityLongitude[Row] - City.Longitude) * Narrowing < Reach) {
            return Row;
        }
    }
    return 0;
}

bool OnTheMap(const PrincipalCity& City) { return City.Latitude < 80.0 && City.Latitude > -70.0; }

}  // namespace

bool SetFirstConfiguration(const std::string& Zone, int SecondsEast, const std::string& Root) {
    SetDefaultConfiguration();
    state.ShowSun = state.ShowMoon = state.ShowCities = True;
    const auto City = FindPrincipalCity(Zone, Root);
    if (!City || !OnTheMap(*City)) return false;
    ShowConfigurationInForce();
    if (const std::size_t Row = RowOf(*City); Row > 0) {
        PickCity(Row);
    } else {
        PickPlace(City->Name, City->Latitude, City->Longitude);
    }
    TakeListedPlace();
    TakeListedZone();
    state.DaylightHours = std::lround(SecondsEast + state.ZoneHours * 3600.0) == 3600 ? 1 : 0;
    return true;
}

void WriteFirstConfiguration() {
    const std::filesystem::path Path = std::filesystem::path(state.AppDirectory) / FirstConfiguration;
    state.ConfigFilePath = Path.string();
    std::error_code Ignored;  // what cannot be looked at cannot be written either
    if (!std::filesystem::exists(Path, Ignored)) SaveConfiguration();
    WriteStartupFile();
}

}  // namespace gloamtide
