#include "places/zones.h"

#include <cmath>
#include <limits>

#include "dialogs/configure.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

class Zones : public ProgramTest {
protected:
    Zones() { Start(); }

    static int RowAt(double Longitude, double Latitude) {
        const auto Show = [](double Value, ControlArray<OptionButton, 2>& Side, ComboBox& Degrees, ComboBox& Minutes) {
            Side[Value < 0.0 ? 1 : 0].Value = true;
            const double Magnitude = std::abs(Value) + 0.005;
            Degrees.ListIndex = static_cast<int>(Magnitude);
            Minutes.ListIndex = static_cast<int>((Magnitude - std::floor(Magnitude)) * 60.0);
        };
        ConfigureForm& F = FormConfigure;
        Show(Longitude, F.OptionSetLong, F.ComboSetLongDeg, F.ComboSetLongMin);
        Show(Latitude, F.OptionSetLat, F.ComboSetLatDeg, F.ComboSetLatMin);
        ZoneFromLocation();
        return F.ComboSelTZ.ListIndex;
    }
};

TEST_F(Zones, TheTableAndTheListsStand) {
    EXPECT_EQ(FormConfigure.ComboSelTZ.ListCount(), 32);
    EXPECT_EQ(FormConfigure.ComboSelTZ.List(9), "GMT - 3:30  Newfoundland");
    EXPECT_EQ(state.ZoneHoursTable[22], -5.75F);
    EXPECT_EQ(state.ZoneShortName[13], "GMT + 0");
    for (std::size_t Row = 1; Row < 32; ++Row) EXPECT_LT(state.ZoneHoursTable[Row], state.ZoneHoursTable[Row - 1]);
    EXPECT_EQ(FormConfigure.ComboSetLongDeg.ListCount(), 180);
    EXPECT_EQ(FormConfigure.ComboSetLatMin.List(7), " 7");
}

TEST_F(Zones, HoursSelectTheirRowAndText) {
    EXPECT_EQ(FormConfigure.ComboSelTZ.ListIndex, 7);
    EXPECT_EQ(state.ZoneText, "GMT - 5:00");
    for (std::size_t Row = 0; Row < 32; ++Row) {
        state.ZoneHours = state.ZoneHoursTable[Row];
        SelectZoneRow();
        EXPECT_EQ(FormConfigure.ComboSelTZ.ListIndex, static_cast<int>(Row));
        EXPECT_EQ(state.ZoneText, state.ZoneShortName[Row]);
    }
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

TEST_F(Zones, PlacesFindTheirZoneOnTheMask) {
    EXPECT_EQ(RowAt(-81.67, 41.47), 7) << "Cleveland";
    EXPECT_EQ(state.MaskCode, 50.0F);
    EXPECT_EQ(RowAt(0.0, 51.48), 13) << "London";
    EXPECT_EQ(RowAt(85.2, 27.7), 22) << "Kathmandu";
    EXPECT_EQ(RowAt(133.88, -23.8), 28) << "Alice Springs";
    EXPECT_EQ(RowAt(-52.67, 47.55), 8) << "St John's";
    EXPECT_EQ(RowAt(-179.0, 40.0), 0) << "just east of the date line";
    EXPECT_EQ(state.ZoneHours, 5.0F) << "what is in force changes only when the dialog is accepted";
    EXPECT_EQ(state.ZoneText, "GMT - 5:00");
}

TEST_F(Zones, AColourOfNoZoneLeavesTheListAlone) {
    FormConfigure.ComboSelTZ.ListIndex = 4;
    FormPictures.PictureTZmask.BackColor = RGB(7, 100, 200);
    EXPECT_EQ(RowAt(10.0, 50.0), 4);
    EXPECT_EQ(state.MaskCode, 7.0F);
    FormConfigure.ComboSetLatDeg.AddItem("beyond the mask");
    EXPECT_EQ(RowAt(10.0, 80.5), 4);
    EXPECT_EQ(state.MaskCode, 255.0F);
}

}  // namespace
}  // namespace gloamtide
