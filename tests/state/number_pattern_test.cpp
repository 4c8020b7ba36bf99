#include "state/number_pattern.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace gloamtide {
namespace {

TEST(NumberPattern, DigitsThatAreAlwaysAndSometimesShown) {
    struct Row {
        double Value;
        const char *Pattern, *Text;
    };
    constexpr Row Rows[] = {
        {0.0, "#0", "0"},
        {7.0, "#0", "7"},
        {123.0, "#0", "123"},
        {7.0, "00", "07"},
        {123.0, "00", "123"},
        {-7.0, "00", "-07"},
        {2026.0, "###0", "2026"},
        {-4000.0, "###0", "-4000"},
        {45.0, "##0", "45"},
        {99.96, "##0.0", "100.0"},
        {0.04, "##0.0", "0.0"},
        {-3.3, "#0.00", "-3.30"},
        {24.704, "#0.00", "24.70"},
        {0.0, "#0.00", "0.00"},
        {-23.0332, "#0.00", "-23.03"},
        {2451545.0, "0000000.00000", "2451545.00000"},
        {260057.5, "0000000.00000", "0260057.50000"},
        {0.0, "#######0.0##", "0.0"},
        {365.25, "#######0.0##", "365.25"},
        {-1.5, "#######0.0##", "-1.5"},
        {2.0004, "#######0.0##", "2.0"},
        {2.0006, "#######0.0##", "2.001"},
        {1e9, "#######0.0##", "1000000000.0"},
        {12.99, "#0", "13"},
        {-0.004, "#0.00", "-0.00"},
    };
    for (const Row& R : Rows) EXPECT_EQ(FormatNumber(R.Value, R.Pattern), R.Text) << R.Value << ' ' << R.Pattern;
}

TEST(NumberPattern, JustBelowAndAboveATie) {
    EXPECT_EQ(FormatNumber(std::nextafter(0.125, 0.0), "0.00"), "0.12");
    EXPECT_EQ(FormatNumber(std::nextafter(0.125, 1.0), "0.00"), "0.13");
    const std::string Tie = FormatNumber(0.125, "0.00");
    EXPECT_TRUE(Tie == "0.12" || Tie == "0.13");
    EXPECT_EQ(FormatNumber(0.15F, "0.0"), "0.2") << "the single nearest to 0.15 lies above it";
}

TEST(NumberPattern, NumbersOfAnySize) {
    EXPECT_EQ(FormatNumber(std::numeric_limits<double>::max(), "0.00000").size(), 309U + 6U);
    EXPECT_EQ(FormatNumber(std::numeric_limits<double>::lowest(), "#").size(), 310U);
    EXPECT_EQ(FormatNumber(std::nan(""), "#0"), "");
    EXPECT_EQ(FormatNumber(-std::numeric_limits<double>::infinity(), "#0"), "");
}

TEST(NumberPattern, PlainNumbers) {
    EXPECT_EQ(PlainNumber(1.0F), "1");
    EXPECT_EQ(PlainNumber(0.5F), "0.5");
    EXPECT_EQ(PlainNumber(-4000.0F), "-4000");
    EXPECT_EQ(PlainNumber(0.1F), "0.1");
}

}  // namespace
}  // namespace gloamtide
