#include "places/cities.h"

#include <cmath>
#include <sstream>

#include "forms/layout.h"
#include "map/stored_pictures.h"
#include "state/numbers.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

class Cities : public ProgramTest {
protected:
    Cities() { BuildCityTable(); }

    // A coordinate as the Configure dialog holds it: whole degrees and minutes.
    static float InMinutes(float Coordinate) {
        const double Magnitude = std::abs(Coordinate);
        const double Degrees = std::floor(Magnitude);
        const double Minutes = std::floor((Magnitude + 0.005 - Degrees) * 60.0);
        return std::copysign(Single(Minutes / 60.0 + Degrees), Coordinate);
    }
};

TEST_F(Cities, TheTableStands) {
    EXPECT_EQ(state.CityCount, 350);
    EXPECT_EQ(state.CityName[1], "Kabul, Afghanistan");
    EXPECT_EQ(state.CityLatitude[1], 34.58F);
    EXPECT_EQ(state.CityName[75], state.CityName[74]);
    EXPECT_EQ(state.CityName[176], "Stockholm Sweden");
    EXPECT_EQ(state.CityName[265], "Cleveland, OH, USA");
    EXPECT_EQ(state.CityLongitude[265], -81.67F);
    EXPECT_EQ(state.CityName[350], "Yellowknife, Canada");
    EXPECT_EQ(state.CityLatitude[350], 49.25F);
    EXPECT_EQ(state.CityName[351], "");
    const auto [South, North] = std::minmax_element(&state.CityLatitude[1], &state.CityLatitude[351]);
    EXPECT_EQ(*South, -53.17F);
    EXPECT_EQ(*North, 70.63F);
}

// tests/places/city_zones.txt tells each city's zone from the world's zone data, not from the mask.
TEST_F(Cities, EachLandsOnItsOwnZone) {
    FormPictures.OnLoad = FormPictures_Form_Load;
    MeasureScreen();
    ScaleMapPictures();
    std::ifstream Table(std::filesystem::path(GLOAMTIDE_TEST_DATA) / "places/city_zones.txt");
    int Rows = 0;
    for (std::string Line; std::getline(Table, Line);) {
        std::istringstream Fields(Line);
        std::size_t Row = 0;
        long Code = 0;
        if (!(Fields >> Row >> Code)) continue;
        ASSERT_EQ(Row, static_cast<std::size_t>(++Rows));
        const float Longitude = InMinutes(state.CityLongitude.at(Row));
        const float Latitude = InMinutes(state.CityLatitude.at(Row));
        const float X = Single((180.0 - Longitude) * 956.0 / 360.0);
        EXPECT_EQ(FormPictures.PictureTZmask.Point(X, Latitude) & 255, Code) << Line;
    }
    EXPECT_EQ(Rows, 350);
}

}  // namespace
}  // namespace gloamtide
