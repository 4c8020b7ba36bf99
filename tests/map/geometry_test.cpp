#include "map/geometry.h"

#include <gtest/gtest.h>

namespace gloamtide {
namespace {

class Geometry : public testing::Test {
protected:
    Geometry() {
        state = SharedState{};
        SetMap(956, 510);
    }

    static void SetMap(std::int16_t Width, std::int16_t Height) {
        state.MapWidth = Width;
        state.MapHeight = Height;
    }

    static std::int32_t ShiftAt(float Hour, float Minute) {
        state.GreenwichHour = Hour;
        state.GreenwichMinute = Minute;
        RotateMap();
        return state.MapShift;
    }
};

TEST_F(Geometry, LongitudesAndXAreInverse) {
    EXPECT_EQ(LongitudeToMapX(180.0), 0.0);
    EXPECT_EQ(LongitudeToMapX(-180.0), 956.0);
    EXPECT_EQ(LongitudeToMapX(0.0F), 478.0F);
    EXPECT_EQ(MapXToLongitude(956.0), -180.0);
    for (double Longitude = -180.0; Longitude <= 180.0; Longitude += 0.37) {
        EXPECT_NEAR(MapXToLongitude(LongitudeToMapX(Longitude)), Longitude, 1e-12);
    }
}

TEST_F(Geometry, HoursAndLatitudes) {
    EXPECT_EQ(HourToMapX(0.0), 956.0);
    EXPECT_EQ(HourToMapX(12.0), 478.0);
    EXPECT_EQ(HourToMapX(24.0), 0.0);
    EXPECT_EQ(LatitudeToPixelY(80.0), 0.0);
    EXPECT_EQ(LatitudeToPixelY(40.0F), 136.0F);
    EXPECT_EQ(LatitudeToPixelY(-70.0), 510.0);
}

TEST_F(Geometry, TheMapTurnsWithGreenwichTime) {
    EXPECT_EQ(ShiftAt(0.0F, 0.0F), 478);
    EXPECT_EQ(ShiftAt(12.0F, 0.0F), 956) << "never 0";
    EXPECT_EQ(state.RotationHour, 0.0F);
    EXPECT_EQ(ShiftAt(18.0F, 0.0F), 717);
    EXPECT_EQ(ShiftAt(11.0F, 59.0F), 1);
    SetMap(580, 284);
    EXPECT_EQ(ShiftAt(11.0F, 59.0F), 0);
    EXPECT_EQ(ShiftAt(0.0F, 30.0F), 278) << "277.9";
}

TEST_F(Geometry, RotatedPlacesWrapOnceAndKeepTheEdge) {
    state.MapShift = 478;
    EXPECT_EQ(LongitudeToRotatedMapX(0.0), 956.0) << "the edge itself stays";
    EXPECT_EQ(LongitudeToRotatedMapX(-90.0), 239.0);
    EXPECT_EQ(LongitudeToRotatedMapX(180.0), 478.0);
    // The mean Sun's meridian stands in the middle at any time.
    for (int Hour = 0; Hour < 24; ++Hour) {
        ShiftAt(static_cast<float>(Hour), 0.0F);
        const double SunLongitude = (12.0 - Hour) * 15.0;
        EXPECT_NEAR(LongitudeToRotatedMapX(SunLongitude), 478.0, 1.0) << Hour;
    }
}

TEST_F(Geometry, BrokenTimesDoNoHarm) {
    EXPECT_EQ(ShiftAt(std::numeric_limits<float>::quiet_NaN(), 0.0F), 0);
    ShiftAt(std::numeric_limits<float>::infinity(), 0.0F);
    ShiftAt(1e30F, -1e30F);
}

}  // namespace
}  // namespace gloamtide
