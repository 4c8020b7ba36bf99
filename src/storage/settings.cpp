#include "storage/settings.h"

#include "platform/host.h"
#include "state/extras.h"

namespace gloamtide {
namespace {

struct Setting {
    const char* Name;
    Boolean& Flag;
};

const Setting Settings[] = {
    {"show/almanac", extras.AlmanacShown},      {"map/terrain", extras.TerrainShown},
    {"show/twilight", extras.TwilightShown},    {"show/twilight-lines", extras.TwilightLinesShown},
    {"show/city-names", extras.CityNamesShown},
};

}  // namespace

void LoadExtras() {
    extras = Extras{};
    for (const Setting& Each : Settings) {
        const std::string Kept = host->ReadSetting(Each.Name);
        if (Kept == "true" || Kept == "false") Each.Flag = Kept == "true" ? True : False;
    }
}

void SaveExtras() {
    for (const Setting& Each : Settings) host->WriteSetting(Each.Name, Each.Flag == True ? "true" : "false");
}

}  // namespace gloamtide
