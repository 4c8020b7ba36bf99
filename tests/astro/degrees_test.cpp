#include "astro/degrees.h"

#include <gtest/gtest.h>

namespace gloamtide {
namespace {

TEST(Degrees, CommonAngles) {
    EXPECT_NEAR(SinDeg(30.0), 0.5, 1e-10);
    EXPECT_NEAR(CosDeg(60.0), 0.5, 1e-10);
    EXPECT_NEAR(TanDeg(45.0), 1.0, 1e-10);
    EXPECT_NEAR(ArcTanDeg(1.0), 45.0, 1e-8);
    EXPECT_NEAR(ArcSinDeg(0.5), 30.0, 1e-8);
    EXPECT_NEAR(ArcCosDeg(0.5), 60.0, 1e-8);
    EXPECT_NEAR(ArcCosDeg(-0.5), 120.0, 1e-8);
}

TEST(Degrees, TheTangentOfARightAngleIsHugeAndNegative) {
    EXPECT_LT(TanDeg(90.0), -1e9);
    EXPECT_LT(TanDeg(270.0), -1e9);
}

TEST(Degrees, ArcCosDegClampsInPlace) {
    for (const double Beyond : {1.0, 1.5}) {
        double X = Beyond;
        EXPECT_NEAR(ArcCosDeg(X), 0.2562, 5e-5);
        EXPECT_EQ(X, 0.99999);
    }
    for (const double Beyond : {-1.0, -7.0}) {
        double X = Beyond;
        EXPECT_NEAR(ArcCosDeg(X), 179.7438, 5e-5);
        EXPECT_EQ(X, -0.99999);
    }
    double Inside = 0.999995;
    EXPECT_LT(ArcCosDeg(Inside), 0.2562);
    EXPECT_EQ(Inside, 0.999995);
}

}  // namespace
}  // namespace gloamtide
