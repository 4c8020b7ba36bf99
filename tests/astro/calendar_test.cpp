#include "astro/calendar.h"

#include <gtest/gtest.h>

#include "state/state.h"

namespace gloamtide {
namespace {

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

// Among them the ten that never were, which count on the Julian calendar.
TEST(Calendar, DatesThatDoNotExistRunOn) {
    for (const auto& [Year, Month, Day, RealMonth, RealDay] :
         {std::array{1582.0F, 10.0F, 10.0F, 10.0F, 20.0F}, std::array{2001.0F, 2.0F, 31.0F, 3.0F, 3.0F}}) {
        state = SharedState{};
        state.WorkYear = Year;
        state.WorkMonth = Month;
        state.WorkDay = Day;
        DateToJulian();
        JulianToDate();
        EXPECT_EQ(std::pair(state.WorkMonth, state.WorkDay), std::pair(RealMonth, RealDay)) << Year;
    }
}

}  // namespace
}  // namespace gloamtide
