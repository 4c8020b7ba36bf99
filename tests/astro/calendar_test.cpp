#include "astro/calendar.h"

#include <gtest/gtest.h>

#include "state/state.h"

namespace gloamtide {
namespace {

void SetDate(float Year, float Month, float Day, float Hour = 0.0F, float Minute = 0.0F, float Second = 0.0F) {
    state.WorkYear = Year;
    state.WorkMonth = Month;
    state.WorkDay = Day;
    state.WorkHour = Hour;
    state.WorkMinute = Minute;
    state.WorkSecond = Second;
}

class Calendar : public testing::Test {
protected:
    Calendar() { state = SharedState{}; }
};

struct KnownDate {
    float Year, Month, Day, Hour;
    double JD;
};

// Meeus, Astronomical Algorithms, chapter 7, and counting from his rows.
constexpr KnownDate KnownDates[] = {
    {-4712, 1, 1, 12, 0.0},      {-4000, 1, 1, 0, 260057.5},  {-1, 1, 1, 0, 1720692.5},    {0, 1, 1, 0, 1721057.5},
    {1, 1, 1, 0, 1721423.5},     {837, 4, 10, 0, 2026871.5},  {1582, 10, 4, 0, 2299159.5}, {1582, 10, 15, 0, 2299160.5},
    {1600, 2, 29, 0, 2305506.5}, {1900, 2, 28, 0, 2415078.5}, {1900, 3, 1, 0, 2415079.5},  {1987, 6, 19, 12, 2446966.0},
    {2000, 1, 1, 12, 2451545.0}, {4001, 1, 1, 0, 3182395.5},
};

TEST_F(Calendar, KnownDatesBothWays) {
    for (const KnownDate& Row : KnownDates) {
        SCOPED_TRACE(Row.JD);
        SetDate(Row.Year, Row.Month, Row.Day, Row.Hour);
        DateToJulian();
        EXPECT_EQ(state.WorkJD, Row.JD);
        JulianToDate();
        EXPECT_EQ(state.WorkYear, Row.Year);
        EXPECT_EQ(state.WorkMonth, Row.Month);
        EXPECT_EQ(state.WorkDay, Row.Day);
        EXPECT_EQ(state.WorkHour, Row.Hour);
        EXPECT_EQ(state.WorkMinute, 0.0F);
        EXPECT_EQ(state.WorkSecond, 0.0F);
    }
}

TEST_F(Calendar, EveryDayOfEightThousandYearsThereAndBack) {
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

TEST_F(Calendar, TheTenDatesThatNeverWereCountOnTheJulianCalendar) {
    SetDate(1582, 10, 10);
    DateToJulian();
    EXPECT_EQ(state.WorkJD, 2299165.5);
    JulianToDate();
    EXPECT_EQ(state.WorkMonth, 10.0F);
    EXPECT_EQ(state.WorkDay, 20.0F);
}

TEST_F(Calendar, ZoneAndDaylightSavingTellWhatClockTheFieldsAreReadOn) {
    SetDate(2000, 1, 1, 7);
    state.WorkZoneHours = 5.0F;
    DateToJulian();
    EXPECT_EQ(state.WorkJD, 2451545.0);
    SetDate(2000, 1, 1, 8);
    state.WorkDaylightHours = 1;
    DateToJulian();
    EXPECT_EQ(state.WorkJD, 2451545.0);

    state.WorkJD = 2451545.0 + 0.5 / 86400.0;  // half a second on, so that nothing is cut off
    JulianToDate();
    EXPECT_EQ(state.WorkDay, 1.0F);
    EXPECT_EQ(state.WorkHour, 8.0F);
    state.WorkZoneHours = -11.0F;
    state.WorkDaylightHours = 0;
    JulianToDate();
    EXPECT_EQ(state.WorkDay, 1.0F);
    EXPECT_EQ(state.WorkHour, 23.0F);
    state.WorkZoneHours = -12.0F;
    JulianToDate();
    EXPECT_EQ(state.WorkDay, 2.0F);
    EXPECT_EQ(state.WorkHour, 0.0F);
}

TEST_F(Calendar, DaysBeyondTheMonthRunOn) {
    SetDate(2001, 2, 31);
    DateToJulian();
    JulianToDate();
    EXPECT_EQ(state.WorkMonth, 3.0F);
    EXPECT_EQ(state.WorkDay, 3.0F);
}

TEST_F(Calendar, SecondsAreCutOffNeverRounded) {
    int Lower = 0;
    for (int Second = 0; Second < 3600; ++Second) {
        SetDate(2026, 6, 1, 12, static_cast<float>(Second / 60), static_cast<float>(Second % 60));
        DateToJulian();
        JulianToDate();
        const int Back = static_cast<int>(state.WorkMinute) * 60 + static_cast<int>(state.WorkSecond) +
                         3600 * (static_cast<int>(state.WorkHour) - 12);
        ASSERT_TRUE(Back == Second || Back == Second - 1) << Second;
        Lower += Back < Second ? 1 : 0;
    }
    EXPECT_GT(Lower, 1000);  // about every second time, since the fraction of the Julian date is limited
    EXPECT_LT(Lower, 2600);
}

}  // namespace
}  // namespace gloamtide
