#include "astro/seasons.h"

#include <gtest/gtest.h>

#include "state/state.h"

namespace gloamtide {
namespace {

float DaysLeft(float Year, double JD) {
    state = SharedState{};
    state.LocalYear = Year;
    state.CurrentJD = JD;
    SeasonCountdown();
    return state.SeasonDaysLeft;
}

// Meeus, Astronomical Algorithms, table 27.E; the sine terms that the program leaves out are a quarter of an hour.
TEST(Seasons, AgreesWithTheTable) {
    EXPECT_NEAR(DaysLeft(1996.0F, 2450162.8), 0.036, 0.02);  // 1996 March 20, 8h 04m 07s Dynamical Time
    EXPECT_NEAR(DaysLeft(2005.0F, 2453542.7), 0.083, 0.02);  // 2005 June 21, 6h 47m 12s
}

TEST(Seasons, TheNextIsNeverPastAndNeverFar) {
    for (float Year = -4000.0F; Year <= 4000.0F; Year += 37.0F) {
        for (double Day = 0.0; Day < 366.0; Day += 5.0) {
            const float Left = DaysLeft(Year, 1721057.5 + 365.25 * Year + Day);
            ASSERT_TRUE(Left >= 0.0F && Left < 125.0F) << Left << " in " << Year;
        }
    }
}

}  // namespace
}  // namespace gloamtide
