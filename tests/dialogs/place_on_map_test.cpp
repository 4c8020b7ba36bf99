#include "dialogs/place_on_map.h"

#include "tests/program_test.h"

namespace gloamtide {
namespace {

class PlaceOnMap : public ProgramTest {
protected:
    PlaceOnMap() { Start(); }

    // X of a longitude, and so many map pixels east of it, perhaps round the map's edge.
    static float At(double Longitude, double East = 0.0) {
        const double X = LongitudeToRotatedMapX(Longitude) - East;
        return Single(X - std::floor(X / state.MapWidth) * state.MapWidth);
    }

    static std::string LastChoice(float X, double Y) {
        return FormGTMain.PictureGT.ContextMenu(X, Single(Y)).back().Caption;
    }

    ConfigureForm& F = FormConfigure;
};

TEST_F(PlaceOnMap, ADoubleClickOpensConfigureWithThePlace) {
    const std::tuple<double, double, const char*, int> Rows[] = {
        {-40.51, -120.26, "40d 31m South, 120d 16m West", -8},
        {0.004, 0.004, "0d 00m North, 0d 00m East", 1},
        {79.999, -179.999, "79d 59m North, 179d 59m West", -12},
        {-69.999, 179.999, "69d 59m South, 179d 59m East", 12}};
    for (const auto& [Latitude, Longitude, Name, HoursEast] : Rows) {
        FormGTMain.PictureGT.DoubleClick(At(Longitude), static_cast<float>(Latitude));
        EXPECT_TRUE(F.Visible && !FormGTMain.Visible);
        EXPECT_EQ(F.ComboCityName.Text, Name);
        EXPECT_EQ(state.ZoneHoursTable[static_cast<std::size_t>(F.ComboSelTZ.ListIndex)], -HoursEast) << Name;
        F.CmdConfigureCancel.Click();
        EXPECT_EQ(std::tuple(state.LocationName, state.ZoneHours), std::tuple("Cleveland, Ohio", 5.0F));
    }
}

TEST_F(PlaceOnMap, ACityWithinEightPixelsIsMeantWhicheverWayTheMapIsTurned) {
    for (const auto& [Hour, Minute] : {std::pair(1, 26), {8, 0}, {21, 0}}) {  // first with Iceland at the edge
        Desktop.System.Hour = static_cast<std::int16_t>(Hour);
        Desktop.System.Minute = static_cast<std::int16_t>(Minute);
        FormGTMain.MenuAnimationSubNow.Click();
        for (const double Pixels : {7.9, -7.9, 8.1, -8.1}) {
            const char* Expected = std::abs(Pixels) < 8.0 ? "Show Reykjavik, Iceland" : "Set Location Here...";
            EXPECT_EQ(LastChoice(At(-21.65, Pixels), 64.13), Expected) << Pixels;
            EXPECT_EQ(LastChoice(At(-21.65), 64.13 + Pixels * 150.0 / state.MapHeight), Expected) << Pixels;
        }
    }
}

// Nagoya and Osaka are within reach of each other.
TEST_F(PlaceOnMap, ShowGoesToTheNearestCityAtOnceAndKeepsTheInstant) {
    state.OffsetDays = 100.30003;  // with seconds of its own
    Desktop.Advance(1000);
    EXPECT_EQ(state.WorkSecond, state.GreenwichSecond) << "the Configure dialog takes it up";
    EXPECT_EQ(LastChoice(At(136.93), 35.12), "Show Nagoya, Japan");
    const double Before = state.CurrentJD;
    const std::vector<MenuChoice> Offered = FormGTMain.PictureGT.ContextMenu(At(135.5), 34.53F);
    Offered.at(1).Pick();
    EXPECT_EQ(std::tuple(state.LocationName, state.ZoneHours, FormGTMain.LabelTimezoneShow[3].Caption.Get(),
                         state.CurrentJD, state.ConfigSaved),
              std::tuple("Osaka, Japan", -9.0F, "GMT + 9:00", Before, False));
    EXPECT_TRUE(FormGTMain.Visible && !F.Visible);
    Offered.at(0).Pick();
    EXPECT_TRUE(F.Visible && F.ComboCityName.Text == std::string("Osaka, Japan"));
}

}  // namespace
}  // namespace gloamtide
