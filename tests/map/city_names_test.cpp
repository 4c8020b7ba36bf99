#include "map/city_names.h"

#include <algorithm>

#include "map/geometry.h"
#include "tests/density.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

using CityNames = ProgramTest;

// Letters are boxes here: names that cover one another or an edge would leave a part of a box.
TEST_F(CityNames, AreWholeHoweverTheMapIsTurned) {
    Desktop.ScreenWidth = 1280;
    Start();
    state.ShowCities = True;
    PictureSurface& Map = FormPictures.PictureNightSplit;
    const auto Count = [&Map](Color Value) {
        return std::count(Map.Picture.Pixels.begin(), Map.Picture.Pixels.end(), Value);
    };
    for (const auto& [Density, Letter, Least] : {std::tuple(1.0, 5 * 11, 200), {3.0, 9 * 18, 600}}) {
        SetDensity(Density);
        for (state.MapShift = 0; state.MapShift <= state.MapWidth; state.MapShift += 59) {
            SCOPED_TRACE(std::to_string(state.MapShift) + " at density " + std::to_string(Density));
            Map.Canvas();
            Map.BackColor = 0;
            Map.FillColor = QBColor(14);
            Map.FillStyle = FillStyles::Solid;
            for (std::size_t City = 1; City <= 350; ++City) {
                Map.Circle(LongitudeToRotatedMapX(state.CityLongitude[City]), state.CityLatitude[City],
                           state.CityMarkerRadius, QBColor(14));
            }
            const auto Marks = Count(QBColor(14));
            DrawCityNames();
            EXPECT_EQ(Count(QBColor(14)), Marks) << "a name covers a mark";
            const auto White = Count(RGB(255, 255, 255));
            EXPECT_EQ(White % Letter, 0) << "a name is cut";
            EXPECT_TRUE(White / Letter > Least && White / Letter < 2 * Least) << White / Letter;
        }
    }
}

}  // namespace
}  // namespace gloamtide
