#include "astro/solar.h"

#include <gtest/gtest.h>

#include <cmath>

#include "state/state.h"

namespace gloamtide {
namespace {

void PositionAt(double JD) {
    state = SharedState{};
    state.CurrentJD = JD;
    SolarPosition();
}

// Meeus, Astronomical Algorithms, examples 25.a and 28.b: 1992 October 13, 0h. The book's place is the apparent one.
TEST(Solar, MeeusOctober1992) {
    PositionAt(2448908.5);
    EXPECT_NEAR(state.MeanObliquity, 23.44023, 1e-5);
    EXPECT_NEAR(state.EarthEccentricity, 0.016711668, 2e-6);
    EXPECT_NEAR(std::fmod(state.SunTrueLongitude, 360.0) + 360.0, 199.90987, 1e-3);
    EXPECT_NEAR(state.SunDeclination, -7.78507, 0.005);
    EXPECT_NEAR(state.SunRightAscension, 13.225389F, 0.001);
    EXPECT_NEAR(state.EquationOfTime, 13.0 + 42.7 / 60.0, 0.05);
}

TEST(Solar, RightAscensionRunsThroughTheDayOnceAYear) {
    PositionAt(2451545.0);
    float Last = state.SunRightAscension;
    double Travelled = 0.0;
    for (double JD = 2451546.0; JD <= 2451545.0 + 365.0; JD += 1.0) {
        PositionAt(JD);
        ASSERT_TRUE(state.SunRightAscension >= 0.0F && state.SunRightAscension < 24.0F) << JD;
        const float Step = std::fmod(state.SunRightAscension - Last + 24.0F, 24.0F);
        ASSERT_NEAR(Step, 0.0657, 0.01) << JD;
        Travelled += Step;
        Last = state.SunRightAscension;
    }
    EXPECT_NEAR(Travelled, 24.0, 0.05);
}

}  // namespace
}  // namespace gloamtide
