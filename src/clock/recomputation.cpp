#include "clock/recomputation.h"

#include "astro/lunar.h"
#include "astro/seasons.h"
#include "astro/solar.h"
#include "astro/sunrise.h"
#include "clock/clock.h"
#include "panel/information_panel.h"

namespace gloamtide {

void RecomputeAlmanac() {
    SolarPosition();
    LunarPosition();
    SunriseSunset();
    UpdateDateFields();
    SeasonCountdown();
    UpdateInformationPanel();
}

}  // namespace gloamtide
