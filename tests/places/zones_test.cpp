#include "places/zones.h"

#include <cmath>
#include <limits>
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
    std::ostringstream Text;
    for (std::size_t Row = 0; Row < state.ZoneHoursTable.size(); ++Row) {
        Text << state.ZoneHoursTable[Row] << " | " << state.ZoneShortName[Row] << " | "
             << FormConfigure.ComboSelTZ.List(static_cast<int>(Row)) << " | mask";
        for (int Code = 0; Code < 256; ++Code) {
            FormPictures.PictureTZmask.BackColor = RGB(Code, 100, 200);
            FormConfigure.ComboSelTZ.ListIndex = Row == 0 ? 1 : 0;  // where a colour of no zone leaves it
            ZoneFromLocation();
            if (FormConfigure.ComboSelTZ.ListIndex == static_cast<int>(Row)) Text << ' ' << Code;
        }
        Text << "\n";
        state.ZoneHours = state.ZoneHoursTable[Row];
        SelectZoneRow();
        EXPECT_EQ(FormConfigure.ComboSelTZ.ListIndex, static_cast<int>(Row));
        EXPECT_EQ(state.ZoneText, state.ZoneShortName[Row]);
    }
    ExpectGoldenText("zones.txt", Text.str());
}

TEST_F(Zones, HoursOfNoRowTellThemselvesBesideTheNearestRow) {
    struct Odd {
        float Hours;
        int Row;
        const char* Text;
    };
    const float Infinity = std::numeric_limits<float>::infinity();
    for (const Odd& Each : {Odd{-5.3333F, 21, "GMT + 5:20"}, Odd{4.4F, 8, "GMT - 4:24"}, Odd{-14.0F, 31, "GMT + 14:00"},
                            Odd{0.999999F, 12, "GMT - 1:00"}, Odd{-0.25F, 13, "GMT + 0:15"}, Odd{std::nanf(""), 13, ""},
                            Odd{Infinity, 0, ""}}) {
        state.ZoneHours = Each.Hours;
        SelectZoneRow();
        EXPECT_EQ(FormConfigure.ComboSelTZ.ListIndex, Each.Row) << Each.Hours;
        EXPECT_EQ(state.ZoneText, Each.Text);
    }
}

}  // namespace
}  // namespace gloamtide
