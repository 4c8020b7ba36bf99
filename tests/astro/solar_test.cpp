#include "astro/solar.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "state/state.h"

namespace gloamtide {
namespace {

class Solar : public testing::Test {
protected:
    static void PositionAt(double JD) {
        state = SharedState{};
        state.MapWidth = 956;
        state.CurrentJD = JD;
        SolarPosition();
    }
};

TEST_F(Solar, ElementsAtTheEpoch) {
    PositionAt(2451545.0);
    EXPECT_EQ(state.JulianCenturies, 0.0);
    EXPECT_NEAR(state.MeanObliquity, 23.4392911, 5e-8);
    EXPECT_EQ(state.SunMeanAnomaly, 357.5291);
    EXPECT_EQ(state.SunMeanLongitude, 280.46645);
    EXPECT_NEAR(state.SunEquationOfCentre, -0.0843, 1e-4);
    EXPECT_NEAR(state.SunTrueLongitude, 280.3821, 1e-4);
    EXPECT_NEAR(state.SunDeclination, -23.0332, 1e-4);
    EXPECT_NEAR(state.SunRightAscension, 18.7529F, 1e-4);
    EXPECT_NEAR(state.EquationOfTime, -3.30F, 0.01);
}

// Meeus, Astronomical Algorithms, examples 25.a and 28.b: 1992 October 13, 0h. The book's place is the apparent one.
TEST_F(Solar, MeeusOctober1992) {
    PositionAt(2448908.5);
    EXPECT_NEAR(state.MeanObliquity, 23.44023, 1e-5);
    EXPECT_NEAR(state.EarthEccentricity, 0.016711668, 2e-6);
    EXPECT_NEAR(std::fmod(state.SunTrueLongitude, 360.0) + 360.0, 199.90987, 1e-3);
    EXPECT_NEAR(state.SunDeclination, -7.78507, 0.005);
    EXPECT_NEAR(state.SunRightAscension, 13.225389F, 0.001);
    EXPECT_NEAR(state.EquationOfTime, 13.0 + 42.7 / 60.0, 0.05);
}

TEST_F(Solar, NearTheJuneSolstice) {
    PositionAt(2451717.0);
    EXPECT_NEAR(state.SunDeclination, 23.4386, 1e-4);
    EXPECT_NEAR(state.EquationOfTime, -1.83F, 0.01);
    EXPECT_NEAR(state.TanSunDeclination, std::tan(23.4386 * std::acos(-1.0) / 180.0), 1e-5);
    EXPECT_FLOAT_EQ(state.EquationOfTimeMapShift, state.EquationOfTime / 1440.0F * 956.0F);
}

TEST_F(Solar, RightAscensionRunsThroughTheDayOnceAYear) {
    double Travelled = 0.0;
    PositionAt(2451545.0);
    float Last = state.SunRightAscension;
    for (double JD = 2451546.0; JD <= 2451545.0 + 365.0; JD += 1.0) {
        PositionAt(JD);
        ASSERT_GE(state.SunRightAscension, 0.0F);
        ASSERT_LT(state.SunRightAscension, 24.0F);
        const float Step = state.SunRightAscension - Last;
        ASSERT_NEAR(Step < 0.0F ? Step + 24.0F : Step, 0.0657, 0.01) << JD;
        Travelled += Step < 0.0F ? Step + 24.0F : Step;
        Last = state.SunRightAscension;
    }
    EXPECT_NEAR(Travelled, 24.0, 0.05);
}

TEST_F(Solar, FarAndBrokenDatesDoNoHarm) {
    for (const double JD : {260057.5, 3182395.5}) {
        PositionAt(JD);
        EXPECT_LT(std::abs(state.SunDeclination), 24.2) << JD;
    }
    for (const double JD : {1e300, -1e300, std::numeric_limits<double>::infinity(), std::nan("")}) PositionAt(JD);
}

}  // namespace
}  // namespace gloamtide
