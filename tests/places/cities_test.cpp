#include "places/cities.h"

#include "tests/program_test.h"

namespace gloamtide {
namespace {

using Cities = ProgramTest;

TEST_F(Cities, Table) {
    Start();
    std::ostringstream Text;
    for (std::size_t Row = 1; Row <= static_cast<std::size_t>(state.CityCount); ++Row) {
        Text << Row << " | " << state.CityName[Row] << " | " << state.CityLongitude[Row] << " | "
             << state.CityLatitude[Row] << "\n";
    }
    ExpectGoldenText("cities.txt", Text.str());
}

// Each city is picked by its user, as the list has it. tests/places/city_zones.txt tells its zone's red value from the
// world's zone data, not from the mask.
TEST_F(Cities, EachLandsOnItsOwnZone) {
    Start();
    std::ifstream Table(std::filesystem::path(GLOAMTIDE_TEST_DATA) / "places/city_zones.txt");
    std::map<int, std::pair<float, std::string>> Zones;  // by row
    for (std::string Line; std::getline(Table, Line);) {
        std::istringstream Fields(Line);
        int Row = 0;
        float Code = 0.0F;
        if (Fields >> Row >> Code) Zones[Row] = {Code, Line};
    }
    ConfigureForm& F = FormConfigure;
    FormGTMain.MenuConfigure.Click();
    for (int Position = 0; Position < 350; ++Position) {
        F.ComboCityName.Pick(Position);
        const auto Row = static_cast<std::size_t>(F.ComboCityName.ItemData(Position));
        const auto& [Code, Line] = Zones.at(F.ComboCityName.ItemData(Position));
        EXPECT_EQ(F.OptionSetLat[1].Value, state.CityLatitude[Row] < 0.0F) << Line;
        EXPECT_EQ(F.OptionSetLong[1].Value, state.CityLongitude[Row] < 0.0F) << Line;
        EXPECT_EQ(state.MaskCode, Code) << Line;
        EXPECT_NE(Line.find(F.ComboCityName.Text), std::string::npos) << Line;
    }
}

}  // namespace
}  // namespace gloamtide
