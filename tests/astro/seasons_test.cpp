#include "astro/seasons.h"

#include <gtest/gtest.h>

#include <cmath>

#include "state/state.h"

namespace gloamtide {
namespace {

class Seasons : public testing::Test {
protected:
    static void At(float Year, double JD) {
        state = SharedState{};
        state.LocalYear = Year;
        state.CurrentJD = JD;
        SeasonCountdown();
    }
};

TEST_F(Seasons, TheYear2000) {
    struct Row {
        double JD;
        const char *North, *South;
        double DaysLeft;
    };
    constexpr Row Rows[] = {
        {2451623.8, "Winter", "Summer", 0.01007}, {2451623.9, "Spring", "Autumn", 92.66798},
        {2451716.5, "Spring", "Autumn", 0.06798}, {2451716.6, "Summer", "Winter", 93.61756},
        {2451810.2, "Summer", "Winter", 0.01756}, {2451810.3, "Autumn", "Spring", 89.75983},
        {2451900.0, "Autumn", "Spring", 0.05983}, {2451900.1, "Winter", "Summer", 88.95245},
    };
    for (const Row& R : Rows) {
        SCOPED_TRACE(R.JD);
        At(2000.0F, R.JD);
        EXPECT_EQ(state.SeasonNorth, R.North);
        EXPECT_EQ(state.SeasonSouth, R.South);
        EXPECT_NEAR(state.SeasonDaysLeft, R.DaysLeft, 2e-5);
    }
}

TEST_F(Seasons, TheCountdownRunsOnOverNewYear) {
    At(2000.0F, 2451910.4);
    const float Before = state.SeasonDaysLeft;
    At(2001.0F, 2451910.6);
    EXPECT_EQ(state.SeasonNorth, "Winter");
    EXPECT_NEAR(Before - state.SeasonDaysLeft, 0.2, 1e-4);
}

// Meeus, Astronomical Algorithms, table 27.E; the sine terms that the program leaves out are a quarter of an hour.
TEST_F(Seasons, AgreesWithTheTable) {
    At(1996.0F, 2450162.8);  // 1996 March 20, 8h 04m 07s Dynamical Time
    EXPECT_NEAR(state.SeasonDaysLeft + 2450162.8, 2450162.836, 0.02);
    At(2005.0F, 2453542.7);  // 2005 June 21, 6h 47m 12s
    EXPECT_NEAR(state.SeasonDaysLeft + 2453542.7, 2453542.783, 0.02);
}

TEST_F(Seasons, FarAndBrokenYears) {
    At(0.0F, 1721139.0);
    EXPECT_EQ(state.SeasonNorth, "Winter");
    EXPECT_NEAR(state.SeasonDaysLeft, 0.2855, 1e-4);
    for (float Year = -4000.0F; Year <= 4000.0F; Year += 37.0F) {
        for (double Day = 0.0; Day < 366.0; Day += 5.0) {
            At(Year, 1721057.5 + 365.25 * Year + Day);
            ASSERT_GE(state.SeasonDaysLeft, 0.0F) << Year;
            ASSERT_LT(state.SeasonDaysLeft, 125.0F) << Year;
        }
    }
    At(std::nanf(""), std::nan(""));
    EXPECT_EQ(state.SeasonNorth, "Winter");
}

}  // namespace
}  // namespace gloamtide
