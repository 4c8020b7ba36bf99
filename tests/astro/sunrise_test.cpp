#include "astro/sunrise.h"

#include <gtest/gtest.h>

#include <cmath>

#include "state/state.h"

namespace gloamtide {
namespace {

void At(double JD, double Lat, float Long, float ZoneHours, std::int16_t DaylightHours) {
    state = SharedState{};
    state.CurrentJD = JD;
    state.LocationLat = Lat;
    state.LocationLong = Long;
    state.ZoneHours = ZoneHours;
    state.DaylightHours = DaylightHours;
    SunriseSunset();
}

struct AlmanacRow {
    const char* Place;
    double Lat;
    float Long, ZoneHours;
    std::int16_t DaylightHours;
    double JD;      // about local noon
    int Rise, Set;  // local clock, hours * 100 + minutes
};

// Rise and set as almanacs print them (upper limb, 34' of refraction); made with PyEphem, python3-ephem of Debian 12:
// Observer.horizon "-0:50", pressure 0, use_center.
constexpr AlmanacRow Almanac[] = {
    {"London, June", 51.5, -0.12F, 0.0F, 1, 2460481.958, 443, 2121},
    {"London, December", 51.5, -0.12F, 0.0F, 0, 2460666.0, 804, 1554},
    {"New York, June", 40.71, -74.01F, 5.0F, 1, 2460482.167, 525, 2031},
    {"New York, December", 40.71, -74.01F, 5.0F, 0, 2460666.208, 717, 1632},
    {"Sydney, June", -33.87, 151.21F, -10.0F, 0, 2460482.583, 700, 1654},
    {"Sydney, December", -33.87, 151.21F, -10.0F, 1, 2460665.542, 541, 2006},
    {"Tokyo, June", 35.68, 139.77F, -9.0F, 0, 2460482.625, 425, 1900},
    {"Cape Town, December", -33.92, 18.42F, -2.0F, 0, 2460665.917, 532, 1957},
    {"Paris, March", 48.86, 2.35F, -1.0F, 0, 2460389.958, 653, 1904},
    {"Quito, September", -0.22, -78.51F, 5.0F, 0, 2460576.208, 603, 1810},
    {"Helsinki, June", 60.17, 24.94F, -2.0F, 1, 2460481.875, 354, 2250},
    {"Helsinki, December", 60.17, 24.94F, -2.0F, 0, 2460665.917, 924, 1513},
    {"Oslo, June", 59.91, 10.75F, -1.0F, 1, 2460481.917, 354, 2244},
};

TEST(Sunrise, AgreesWithTheAlmanac) {
    for (const AlmanacRow& Row : Almanac) {
        SCOPED_TRACE(Row.Place);
        At(Row.JD, Row.Lat, Row.Long, Row.ZoneHours, Row.DaylightHours);
        const int Tolerance = std::abs(Row.Lat) > 50.0 ? 3 : 2;  // minutes
        ASSERT_EQ(state.SunNoRiseSet, False);
        EXPECT_NEAR(state.SunriseHour * 60 + state.SunriseMinute, Row.Rise / 100 * 60 + Row.Rise % 100, Tolerance);
        EXPECT_NEAR(state.SunsetHour * 60 + state.SunsetMinute, Row.Set / 100 * 60 + Row.Set % 100, Tolerance);
    }
}

TEST(Sunrise, PolarDayAndNightKeepTheOldTimes) {
    At(2451717.5, 40.0, -75.0F, 5.0F, 1);
    const auto Times = std::pair(state.SunriseHour, state.SunsetMinute);
    for (const auto& [Latitude, JD, Text] :
         {std::tuple(70.0, 2451717.5, "24 hour day"), std::tuple(70.0, 2451900.5, "24 hour night"),
          std::tuple(-70.0, 2451900.5, "24 hour day")}) {
        state.LocationLat = Latitude;
        state.CurrentJD = JD;
        SunriseSunset();
        EXPECT_EQ(std::pair(state.SunNoRiseSet, state.SunNoRiseSetText), std::pair(True, std::string(Text)));
        EXPECT_EQ(std::pair(state.SunriseHour, state.SunsetMinute), Times);
    }
    state.LocationLat = 0.0;
    SunriseSunset();
    EXPECT_EQ(state.SunNoRiseSet, False);
}

}  // namespace
}  // namespace gloamtide
