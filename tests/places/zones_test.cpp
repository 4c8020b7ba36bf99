#include "places/zones.h"

#include "tests/program_test.h"

namespace gloamtide {
namespace {

using Zones = ProgramTest;

TEST_F(Zones, Table) {
    Start();
    ComboBox& List = FormConfigure.ComboSelTZ;
    FormPictures.PictureTZmask.Canvas();
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
    Start();
    for (const VectorRow& R : ReadVectors("zones_of_no_row")) {
        SCOPED_TRACE(R.Where);
        R.In.PutIntoState();
        SelectZoneRow();
        R.Expect({{"Row", FormConfigure.ComboSelTZ.ListIndex}});
        R.Out.ExpectInState();
    }
}

}  // namespace
}  // namespace gloamtide
