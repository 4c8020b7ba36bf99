#include "state/number_pattern.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace gloamtide {
namespace {

TEST(NumberPattern, EdgesOfRoundingAndOfNumbers) {
    struct Row {
        double Value;
        const char *Pattern, *Text;
    };
    const Row Rows[] = {
        {0.125, "0.00", "0.12"},  // an exact tie
        {std::nextafter(0.125, 1.0), "0.00", "0.13"},
        {0.15F, "0.0", "0.2"},  // the single nearest to 0.15 lies above it
        {99.96, "##0.0", "100.0"},
        {-0.004, "#0.00", "-0.00"},
        {-7.0, "00", "-07"},
        {1e9, "#######0.0##", "1000000000.0"},
        {std::nan(""), "#0", ""},
        {-std::numeric_limits<double>::infinity(), "#0", ""},
    };
    for (const Row& R : Rows) EXPECT_EQ(FormatNumber(R.Value, R.Pattern), R.Text) << R.Value << ' ' << R.Pattern;
    EXPECT_EQ(FormatNumber(std::numeric_limits<double>::max(), "0.00000").size(), 309U + 6U);
}

}  // namespace
}  // namespace gloamtide
