#include "places/zones.h"

#include <cmath>
#include <limits>
#include <map>
#include <sstream>

#include "tests/golden.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

class Zones : public ProgramTest {
protected:
    Zones() { Start(); }
};

TEST_F(Zones, Table) {
    ComboBox& List = FormConfigure.ComboSelTZ;
    std::map<int, std::string> Codes;  // red values of the mask, by row; -1: those of no zone
    for (int Code = 0; Code < 256; ++Code) {
        FormPictures.PictureTZmask.BackColor = RGB(Code, 100, 200);
        List.ListIndex = -1;
        ZoneFromLocation();
        Codes[List.ListIndex] += ' ' + std::to_string(Code);
    }
    std::ostringstream Text;
    for (int Row = 0; Row < 32; ++Row) {
        const auto Place = static_cast<std::size_t>(Row);
        Text << state.ZoneHoursTable[Place] << " | " << state.ZoneShortName[Place] << " | " << List.List(Row)
             << " | mask" << Codes[Row] << "\n";
        state.ZoneHours = state.ZoneHoursTable[Place];
        SelectZoneRow();
        EXPECT_EQ(List.ListIndex, Row);
        EXPECT_EQ(state.ZoneText, state.ZoneShortName[Place]);
    }
    ExpectGoldenText("zones.txt", Text.str());
}

TEST_F(Zones, HoursOfNoRowTellThemselvesBesideTheNearestRow) {
    const float Infinity = std::numeric_limits<float>::infinity();
    for (const auto& [Hours, Row, Text] : {std::tuple(-5.3333F, 21, "GMT + 5:20"),
                                           {4.4F, 8, "GMT - 4:24"},
                                           {-14.0F, 31, "GMT + 14:00"},
                                           {0.999999F, 12, "GMT - 1:00"},
                                           {-0.25F, 13, "GMT + 0:15"},
                                           {std::nanf(""), 13, ""},
                                           {Infinity, 0, ""}}) {
        state.ZoneHours = Hours;
        SelectZoneRow();
        EXPECT_EQ(FormConfigure.ComboSelTZ.ListIndex, Row) << Hours;
        EXPECT_EQ(state.ZoneText, Text);
    }
}

}  // namespace
}  // namespace gloamtide
