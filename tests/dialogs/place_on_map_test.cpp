#include "dialogs/place_on_map.h"

#include "tests/program_test.h"

namespace gloamtide {
namespace {

class PlaceOnMap : public ProgramTest {
protected:
    PlaceOnMap() { Start(); }

    // X of a longitude, and so many map pixels east of it.
    static float At(double Longitude, double East = 0.0) {
        return static_cast<float>(LongitudeToRotatedMapX(Longitude) - East);
    }

    static std::string Choices(float X, double Y) {
        std::string Text;
        for (const MenuChoice& Each : FormGTMain.PictureGT.ContextMenu(X, static_cast<float>(Y)))
            Text += Each.Caption + "|";
        return Text;
    }

    ConfigureForm& F = FormConfigure;
};

TEST_F(PlaceOnMap, ADoubleClickOpensConfigureWithThePlace) {
    const std::tuple<double, double, const char*, int> Rows[] = {
        {-40.51, -120.26, "40d 31m South, 120d 16m West", -8},
        {0.004, 0.004, "0d 00m North, 0d 00m East", 1},
        {61.9999, 99.9999, "62d 00m North, 100d 00m East", 7},
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
    constexpr double Longitude = -21.65;
    constexpr double Latitude = 64.13;
    for (const int Hour : {0, 8, 21}) {
        Desktop.System.Hour = static_cast<std::int16_t>(Hour);
        FormGTMain.MenuAnimationSubNow.Click();
        for (const double Pixels : {7.9, -7.9, 8.1, -8.1}) {
            const char* Expected =
                std::abs(Pixels) < 8.0 ? "Set Location Here...|Show Reykjavik, Iceland|" : "Set Location Here...|";
            EXPECT_EQ(Choices(At(Longitude, Pixels), Latitude), Expected) << Pixels;
            EXPECT_EQ(Choices(At(Longitude), Latitude + Pixels * 150.0 / state.MapHeight), Expected) << Pixels;
        }
    }
}

TEST_F(PlaceOnMap, ShowGoesToTheNearestCityAtOnceAndKeepsTheInstant) {
    state.OffsetDays = 100.0;
    Desktop.Advance(1000);
    const double Before = state.CurrentJD;
    const std::vector<MenuChoice> Offered = FormGTMain.PictureGT.ContextMenu(At(139.75), 35.68F);
    Offered.at(1).Pick();
    EXPECT_EQ(std::tuple(state.LocationName, state.ZoneHours, state.ZoneText, state.CurrentJD, state.ConfigSaved),
              std::tuple("Tokyo, Japan", -9.0F, "GMT + 9:00", Before, False));
    EXPECT_EQ(FormGTMain.LabelGTLocalTimeShow[3].Caption.Get().substr(0, 5), "21:00");
    EXPECT_TRUE(FormGTMain.Visible && !F.Visible);
    Offered.at(0).Pick();
    EXPECT_TRUE(F.Visible);
}

}  // namespace
}  // namespace gloamtide
