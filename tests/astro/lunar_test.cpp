#include "astro/lunar.h"

#include <gtest/gtest.h>

#include "astro/solar.h"
#include "state/state.h"

namespace gloamtide {
namespace {

void At(double JD) {
    state = SharedState{};
    state.CurrentJD = JD;
    SolarPosition();
    LunarPosition();
}

struct MoonRow {
    double JD, RightAscension, Declination;
};

// Geocentric places by PyEphem (python3-ephem of Debian 12), and Meeus, example 47.a for 1992 April 12.
constexpr MoonRow Moons[] = {
    {2451550.259722, 19.1245, -20.8959}, {2460409.264583, 1.1850, 7.9167},    {2460600.976389, 1.4772, 11.0387},
    {2448724.5, 8.9792, 13.7684},        {2460564.754167, 17.1719, -27.9921},
};

TEST(Lunar, AgreesWithTheAlmanacToTheSizeOfTheLeftOutTerms) {
    for (const MoonRow& Row : Moons) {
        At(Row.JD);
        EXPECT_NEAR(state.MoonRightAscension, Row.RightAscension, 0.03) << Row.JD;
        EXPECT_NEAR(state.MoonDeclination, Row.Declination, 0.3) << Row.JD;
    }
}

TEST(Lunar, AMonthOfPlacesStaysInRange) {
    const auto WithinADay = [](float Hours) { return Hours >= 0.0F && Hours < 24.0F; };
    for (double JD = 2451545.0; JD < 2451575.0; JD += 0.05) {
        At(JD);
        ASSERT_TRUE(WithinADay(state.MoonRightAscension) && WithinADay(state.MoonElongationHours) &&
                    WithinADay(state.MoonMapHour))
            << JD;
        ASSERT_TRUE(state.MoonLitPercent >= 0.0F && state.MoonLitPercent <= 100.0F) << JD;
    }
}

}  // namespace
}  // namespace gloamtide
