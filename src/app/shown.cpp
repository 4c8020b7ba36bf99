#include "app/shown.h"

#include "state/extras.h"

namespace gloamtide {

const std::vector<ShownThing>& ShownThings() {
    static const std::vector<ShownThing> Things = {
        {"sun", state.ShowSun},
        {"moon", state.ShowMoon},
        {"analemma", state.ShowAnalemma},
        {"cities", state.ShowCities},
        {"city-names", extras.CityNamesShown},
        {"grid", state.ShowMapGrid},
        {"timezones", state.ShowTimezones},
        {"sundial", state.ShowSundial},
        {"twilight", extras.TwilightShown},
        {"twilight-lines", extras.TwilightLinesShown},
    };
    return Things;
}

}  // namespace gloamtide
