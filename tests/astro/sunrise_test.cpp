#include "astro/sunrise.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "astro/solar.h"
#include "state/state.h"

namespace gloamtide {
namespace {

class Sunrise : public testing::Test {
protected:
    static void At(double JD, double Lat, float Long, float ZoneHours, std::int16_t DaylightHours) {
        state = SharedState{};
        state.CurrentJD = JD;
        state.LocationLat = Lat;
        state.LocationLong = Long;
        state.ZoneHours = ZoneHours;
        state.DaylightHours = DaylightHours;
        SunriseSunset();
    }
};

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

TEST_F(Sunrise, AgreesWithTheAlmanac) {
    for (const AlmanacRow& Row : Almanac) {
        SCOPED_TRACE(Row.Place);
        At(Row.JD, Row.Lat, Row.Long, Row.ZoneHours, Row.DaylightHours);
        const int Tolerance = std::abs(Row.Lat) > 50.0 ? 3 : 2;  // minutes
        ASSERT_EQ(state.SunNoRiseSet, False);
        EXPECT_NEAR(state.SunriseHour * 60 + state.SunriseMinute, Row.Rise / 100 * 60 + Row.Rise % 100, Tolerance);
        EXPECT_NEAR(state.SunsetHour * 60 + state.SunsetMinute, Row.Set / 100 * 60 + Row.Set % 100, Tolerance);
    }
}

TEST_F(Sunrise, WorkedDay) {
    At(2451717.5, 40.0, -75.0F, 5.0F, 1);
    EXPECT_EQ(state.SunriseHour, 5);
    EXPECT_EQ(state.SunriseMinute, 31);
    EXPECT_EQ(state.SunsetHour, 20);
    EXPECT_EQ(state.SunsetMinute, 32);
    EXPECT_NEAR(state.SunriseChangeSeconds, 13.0F, 0.6);
    EXPECT_NEAR(state.SunsetChangeSeconds, 13.0F, 0.6);
    EXPECT_EQ(state.SunriseChangeText, " Sec Later Than Yesterday)");
    EXPECT_EQ(state.SunsetChangeText, " Sec Later Than Yesterday)");
    At(2451801.5, 40.0, -75.0F, 5.0F, 1);  // September: later up, earlier down
    EXPECT_EQ(state.SunriseChangeText, " Sec Later Than Yesterday)");
    EXPECT_EQ(state.SunsetChangeText, " Sec Earlier Than Yesterday)");
    EXPECT_NEAR(state.SunsetChangeSeconds, 97.0F, 6.0);
}

TEST_F(Sunrise, PolarDayAndNightKeepTheOldTimes) {
    At(2451717.5, 40.0, -75.0F, 5.0F, 1);
    state.LocationLat = 70.0;
    state.LocationLong = 20.0F;
    state.ZoneHours = -1.0F;
    SunriseSunset();
    EXPECT_EQ(state.SunNoRiseSet, True);
    EXPECT_EQ(state.SunNoRiseSetText, "24 hour day");
    EXPECT_EQ(state.SunriseHour, 5);
    state.CurrentJD = 2451900.5;
    SunriseSunset();
    EXPECT_EQ(state.SunNoRiseSetText, "24 hour night");
    state.LocationLat = -70.0;
    SunriseSunset();
    EXPECT_EQ(state.SunNoRiseSetText, "24 hour day");
    state.LocationLat = 0.0;
    SunriseSunset();
    EXPECT_EQ(state.SunNoRiseSet, False);
}

TEST_F(Sunrise, ASunsetAfterMidnightHasHour24) {
    At(2451717.5, 64.13, -21.65F, 0.0F, 0);  // Reykjavik, west of its zone's meridian
    EXPECT_EQ(state.SunNoRiseSet, False);
    EXPECT_EQ(state.SunsetHour, 24);
}

TEST_F(Sunrise, TheDayIsThatOfStandardTime) {
    // 0:30 by a daylight-saving clock is still yesterday: the same times as an hour earlier.
    At(2451717.5 + (5.0 - 0.5) / 24.0, 40.0, -75.0F, 5.0F, 1);
    const float Change = state.SunsetChangeSeconds;
    At(2451717.5 + (5.0 - 1.5) / 24.0, 40.0, -75.0F, 5.0F, 1);
    EXPECT_EQ(state.SunsetChangeSeconds, Change);
    At(2451717.5 + (5.0 + 0.5) / 24.0, 40.0, -75.0F, 5.0F, 1);
    EXPECT_NE(state.SunsetChangeSeconds, Change);
}

TEST_F(Sunrise, BrokenPlacesAndDatesDoNoHarm) {
    const double Infinity = std::numeric_limits<double>::infinity();
    for (const double Odd : {90.0, -90.0, 1e9, Infinity, -Infinity, std::nan("")}) {
        At(2451717.5, Odd, 20.0F, -1.0F, 0);
        At(Odd, 40.0, 20.0F, -1.0F, 0);
        At(2451717.5, 40.0, static_cast<float>(Odd), static_cast<float>(Odd), 32767);
    }
}

TEST_F(Sunrise, TheSubsolarPointIsThatOfSolarPosition) {
    state = SharedState{};
    for (double JD = 2451545.0; JD < 2451910.0; JD += 10.0) {
        state.CurrentJD = JD;
        SolarPosition();
        const SubsolarPoint Point = SubsolarPointAt(JD);
        EXPECT_NEAR(Point.Declination, state.SunDeclination, 1e-5);
        EXPECT_NEAR(Point.EquationOfTime * 60.0F, state.EquationOfTime, 1e-4);
    }
}

}  // namespace
}  // namespace gloamtide
