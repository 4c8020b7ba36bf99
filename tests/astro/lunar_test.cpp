#include "astro/lunar.h"

#include <gtest/gtest.h>

#include <cmath>

#include "astro/solar.h"
#include "panel/information_panel.h"
#include "state/state.h"

namespace gloamtide {
namespace {

class Lunar : public testing::Test {
protected:
    static void At(double JD) {
        state = SharedState{};
        state.MapWidth = 956;
        state.CurrentJD = JD;
        SolarPosition();
        LunarPosition();
    }

    static std::string PhaseText(float Hours, float Day, float Month) {
        LoadMoonNames();
        state.MoonElongationHours = Hours;
        state.LocalDay = Day;
        state.LocalMonth = Month;
        ChooseMoonPhaseText();
        return state.MoonPhaseText;
    }
};

TEST_F(Lunar, ElementsAtTheEpoch) {
    At(2451545.0);
    EXPECT_EQ(state.MoonMeanLongitude, 218.3164591);
    EXPECT_EQ(state.MoonMeanElongation, 297.8502042);
    EXPECT_EQ(state.MoonMeanAnomaly, 134.9634114);
    EXPECT_EQ(state.MoonArgumentOfLatitude, 93.2720993);
    EXPECT_NEAR(state.MoonEclipticLatitude, 5.1934, 1e-4);
    EXPECT_NEAR(state.MoonEclipticLongitude, 223.2814, 1e-4);
    EXPECT_NEAR(state.MoonDeclination, -10.8677F, 1e-4);
    EXPECT_NEAR(state.MoonRightAscension, 14.8278F, 1e-4);
    EXPECT_NEAR(state.MoonElongationHours, 20.07F, 0.01);
    EXPECT_NEAR(state.MoonAgeDays, 24.70F, 0.01);
    EXPECT_NEAR(state.MoonLitPercent, 24.15F, 0.01);
}

TEST_F(Lunar, NewAndFull) {
    At(2451550.26);
    EXPECT_NEAR(state.MoonElongationHours, 23.989F, 0.001);
    EXPECT_NEAR(state.MoonAgeDays, 29.5176F, 2e-4);
    EXPECT_NEAR(state.MoonLitPercent, 0.0002F, 1e-4);
    EXPECT_NEAR(state.MoonMapHour, 11.89F, 0.01);
    At(2451564.5);
    EXPECT_NEAR(state.MoonElongationHours, 11.81F, 0.01);
    EXPECT_NEAR(state.MoonLitPercent, 99.94F, 0.01);
}

struct MoonRow {
    double JD, RightAscension, Declination;
};

// Geocentric places by PyEphem (python3-ephem of Debian 12), and Meeus, example 47.a for 1992 April 12.
constexpr MoonRow Moons[] = {
    {2451550.259722, 19.1245, -20.8959}, {2460409.264583, 1.1850, 7.9167},    {2460600.976389, 1.4772, 11.0387},
    {2448724.5, 8.9792, 13.7684},        {2460564.754167, 17.1719, -27.9921},
};

TEST_F(Lunar, AgreesWithTheAlmanacToTheSizeOfTheLeftOutTerms) {
    for (const MoonRow& Row : Moons) {
        At(Row.JD);
        EXPECT_NEAR(state.MoonRightAscension, Row.RightAscension, 0.03) << Row.JD;
        EXPECT_NEAR(state.MoonDeclination, Row.Declination, 0.3) << Row.JD;
    }
}

TEST_F(Lunar, AMonthOfPlacesStaysInRange) {
    for (double JD = 2451545.0; JD < 2451575.0; JD += 0.05) {
        At(JD);
        ASSERT_TRUE(state.MoonRightAscension >= 0.0F && state.MoonRightAscension < 24.0F) << JD;
        ASSERT_TRUE(state.MoonElongationHours >= 0.0F && state.MoonElongationHours < 24.0F) << JD;
        ASSERT_TRUE(state.MoonMapHour >= 0.0F && state.MoonMapHour <= 24.0F) << JD;
        ASSERT_TRUE(state.MoonLitPercent >= 0.0F && state.MoonLitPercent <= 100.0F) << JD;
        ASSERT_LT(state.MoonAgeDays, 29.54F) << JD;
    }
}

TEST_F(Lunar, PhaseTextsAndTheirLimits) {
    struct Limit {
        float Hours;
        const char* At;
        const char* After;
    };
    constexpr Limit Limits[] = {
        {5.23F, "(Waxing)", "(1st Quarter)"},
        {6.77F, "(1st Quarter)", "(Gibbous)"},
        {11.459F, "(Gibbous)", "(Full -- Harvest Moon )"},
        {12.541F, "(Full -- Harvest Moon )", "(Gibbous)"},
        {17.23F, "(Gibbous)", "(3rd Quarter)"},
        {18.77F, "(3rd Quarter)", "(Waning)"},
        {23.459F, "(Waning)", "(New)"},
    };
    for (const Limit& Each : Limits) {
        EXPECT_EQ(PhaseText(Each.Hours, 12, 9), Each.At) << Each.Hours;
        EXPECT_EQ(PhaseText(std::nextafter(Each.Hours, 25.0F), 12, 9), Each.After) << Each.Hours;
    }
    EXPECT_EQ(PhaseText(0.541F, 12, 9), "(Waxing)");
    EXPECT_EQ(PhaseText(std::nextafter(0.541F, 0.0F), 12, 9), "(New)");
    EXPECT_EQ(PhaseText(12.0F, 28, 2), "(Full -- Snow Moon)");
    EXPECT_EQ(PhaseText(12.0F, 29, 2), "(2nd Full Moon of Month -- Blue Moon)");
    EXPECT_EQ(PhaseText(0.0F, 31, 7), "(2nd New Moon of Month -- Black Moon)");
    EXPECT_EQ(PhaseText(23.9F, 29, 7), "(2nd New Moon of Month -- Black Moon)");
    EXPECT_EQ(PhaseText(0.0F, 28, 7), "(New)");
}

TEST_F(Lunar, BrokenMomentsDoNoHarm) {
    for (const double JD : {1e300, -1e300, std::nan("")}) At(JD);
    PhaseText(std::nanf(""), std::nanf(""), std::nanf(""));
    PhaseText(12.0F, 1.0F, 1e30F);
    PhaseText(12.0F, 1.0F, -5.0F);
}

}  // namespace
}  // namespace gloamtide
