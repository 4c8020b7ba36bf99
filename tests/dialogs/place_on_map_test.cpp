#include "dialogs/place_on_map.h"

#include <algorithm>
#include <cmath>

#include "map/geometry.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

class PlaceOnMap : public ProgramTest {
protected:
    PlaceOnMap() { Start(); }

    // X of a longitude, and so many map pixels east of it.
    static float At(double Longitude, double East = 0.0) {
        double X = LongitudeToRotatedMapX(Longitude) - East;
        if (X < 0.0) X += state.MapWidth;
        return static_cast<float>(X);
    }

    static std::vector<std::string> Captions(float X, float Y) {
        std::vector<std::string> Found;
        for (const MenuChoice& Each : FormGTMain.PictureGT.ContextMenu(X, Y)) Found.push_back(Each.Caption);
        return Found;
    }

    ConfigureForm& F = FormConfigure;
};

TEST_F(PlaceOnMap, ADoubleClickOpensConfigureWithThePlace) {
    struct Row {
        double Latitude, Longitude;
        const char* Name;
        int Zone;  // hours east
    };
    state.ConfigSaved = True;
    for (const Row& R : {Row{-40.51, -120.26, "40d 31m South, 120d 16m West", -8},
                         {0.004, 0.004, "0d 00m North, 0d 00m East", 1},
                         {61.9999, 99.9999, "62d 00m North, 100d 00m East", 7},
                         {79.999, -179.999, "79d 59m North, 179d 59m West", -12},
                         {-69.999, 179.999, "69d 59m South, 179d 59m East", 12}}) {
        SCOPED_TRACE(R.Name);
        FormGTMain.PictureGT.DoubleClick(At(R.Longitude), static_cast<float>(R.Latitude));
        EXPECT_TRUE(F.Visible && !FormGTMain.Visible);
        EXPECT_EQ(F.ComboCityName.Text, R.Name);
        const double Latitude = F.ComboSetLatDeg.ListIndex + F.ComboSetLatMin.ListIndex / 60.0;
        EXPECT_NEAR(F.OptionSetLat[1].Value ? -Latitude : Latitude, R.Latitude, 0.02);
        EXPECT_EQ(state.ZoneHoursTable[static_cast<std::size_t>(F.ComboSelTZ.ListIndex)], static_cast<float>(-R.Zone));
        F.CmdConfigureCancel.Click();
        EXPECT_EQ(std::tuple(state.LocationName, state.ZoneHours, state.ConfigSaved),
                  std::tuple("Cleveland, Ohio", 5.0F, True));
    }
}

TEST_F(PlaceOnMap, TheNearestCityWithinEightPixelsIsMeant) {
    const auto Find = [](const std::string& Name) {
        return static_cast<std::size_t>(std::ranges::find(state.CityName, Name) - state.CityName.begin());
    };
    for (const char* Name : {"Perth, Australia", "Reykjavik, Iceland"}) {
        const std::size_t City = Find(Name);
        for (const int Hour : {0, 8, 21}) {  // the map is turned
            Desktop.System.Hour = static_cast<std::int16_t>(Hour);
            FormGTMain.MenuAnimationSubNow.Click();
            for (const auto& [Pixels, Near] : {std::pair(7.9, true), {-7.9, true}, {8.1, false}, {-8.1, false}}) {
                const float Y = state.CityLatitude[City];
                const float X = At(state.CityLongitude[City], Pixels);
                const std::vector<std::string> Expected = {"Set Location Here...", std::string("Show ") + Name};
                EXPECT_EQ(Captions(X, Y).size() > 1 && Captions(X, Y) == Expected, Near) << Name << Pixels;
                const float Below = Y - static_cast<float>(Pixels * 150.0 / state.MapHeight);
                EXPECT_EQ(Captions(At(state.CityLongitude[City]), Below) == Expected, Near) << Name << Pixels;
            }
        }
    }
}

TEST_F(PlaceOnMap, ShowGoesToTheCityAtOnceAndKeepsTheInstant) {
    state.OffsetDays = 100.0;
    Desktop.Advance(1000);
    const double Before = state.CurrentJD;
    FormGTMain.PictureGT.ContextMenu(At(139.75), 35.68F).at(1).Pick();
    EXPECT_TRUE(FormGTMain.Visible && !F.Visible);
    EXPECT_EQ(std::tuple(state.LocationName, state.ZoneHours, state.ZoneText, state.CurrentJD, state.ConfigSaved),
              std::tuple("Tokyo, Japan", -9.0F, "GMT + 9:00", Before, False));
    EXPECT_EQ(FormGTMain.LabelLocNameShow[3].Caption, "Tokyo, Japan");
    EXPECT_EQ(FormGTMain.LabelGTLocalTimeShow[3].Caption.Get().substr(0, 5), "21:00");
    FormGTMain.PictureGT.ContextMenu(At(139.75), 35.68F).at(0).Pick();
    EXPECT_TRUE(F.Visible);
}

}  // namespace
}  // namespace gloamtide
