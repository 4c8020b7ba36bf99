#include "astro/calendar.h"

#include <gtest/gtest.h>

#include "state/state.h"

namespace gloamtide {
namespace {

// A day that never was is among those of tests/data/almanac.txt, a February 31 in tests/dialogs/configure_test.cpp.
TEST(Calendar, EveryDayOfEightThousandYearsThereAndBack) {
    state = SharedState{};
    float LastDay = 31.0F;
    for (double JD = 260058.0; JD < 3182396.0; JD += 1.0) {  // noons
        state.WorkJD = JD;
        JulianToDate();
        const float Day = state.WorkDay;
        const bool Next = Day == LastDay + 1.0F || Day == 1.0F || (Day == 15.0F && LastDay == 4.0F && JD == 2299161.0);
        ASSERT_TRUE(Next) << "day " << Day << " after day " << LastDay << " at " << JD;
        LastDay = Day;
        DateToJulian();
        ASSERT_EQ(state.WorkJD, JD);
    }
}

}  // namespace
}  // namespace gloamtide
