#include "map/mouse_probe.h"

#include <cmath>

#include "map/geometry.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

class Probe : public ProgramTest {
protected:
    Probe() {
        Desktop.ScreenWidth = 1280;
        Desktop.System = {2026, 6, 1, 1, 17, 20, 0, 0};
        Start();
        state.ShowCities = True;
    }

    static void PointAt(double Longitude, double Latitude) {
        const double X = LongitudeToRotatedMapX(Longitude);
        FormGTMain.PictureGT.MouseMove(static_cast<float>(X), static_cast<float>(Latitude));
    }

    Label& Lat = FormGTMain.LabelMouseLat;
    Label& Long = FormGTMain.LabelMouseLong;
    Label& City = FormGTMain.LabelCity;
};

TEST_F(Probe, TellsPlaceAndCity) {
    PointAt(-81.67, 41.47);
    EXPECT_EQ(Lat.Caption, "Lat: 41d 28m  North");
    EXPECT_EQ(Long.Caption, "Long: 81d 40m  West");
    EXPECT_EQ(City.Caption, "Cleveland, OH, USA");
    PointAt(139.77, -35.68);
    EXPECT_EQ(Lat.Caption, "Lat: 35d 41m  South");
    EXPECT_EQ(Long.Caption, "Long: 139d 46m  East");
    EXPECT_EQ(City.Caption, "");
    PointAt(10.0, 29.9999);
    EXPECT_EQ(Lat.Caption, "Lat: 30d 00m  North") << "sixty minutes are a degree";
    PointAt(10.0, 0.0);
    EXPECT_EQ(Lat.Caption, "Lat: 0d 0m");
    state.ShowCities = False;
    PointAt(-81.67, 41.47);
    EXPECT_EQ(City.Caption, "");
}

TEST_F(Probe, TheFirstCityOfTheTableWins) {
    PointAt(96.1, 16.8);  // Rangoon stands twice, as of Burma and of Myanmar
    EXPECT_EQ(City.Caption, "Rangoon, Burma");
    PointAt(96.0, 17.2);
    EXPECT_EQ(City.Caption, "Rangoon, Myanmar") << "the other lies 0.42 degrees away";
}

TEST_F(Probe, UndoesEveryRotation) {
    for (int Shift = 0; Shift <= 1182; Shift += 197) {
        state.MapShift = Shift;
        for (double Longitude = -179.75; Longitude < 180.0; Longitude += 7.5) {
            PointAt(Longitude, 10.0);
            const std::string Side = Longitude < 0.0 ? "m  West" : "m  East";
            const std::string Degrees = std::to_string(static_cast<int>(std::abs(Longitude)));
            EXPECT_EQ(Long.Caption.Get().substr(0, 6 + Degrees.size() + 1), "Long: " + Degrees + "d") << Longitude;
            EXPECT_EQ(Long.Caption.Get().substr(Long.Caption.Get().size() - Side.size()), Side) << Longitude;
        }
    }
}

// Over the whole map: the first city in the order of the table whose box of 0.8 degrees holds the pointer.
TEST_F(Probe, FindsTheCityThatAPlainReadingFinds) {
    for (int Column = 0; Column < 1182; Column += 3) {
        for (int Row = 0; Row < 640; Row += 2) {
            const float X = static_cast<float>(1182 - Column);
            const float Y = static_cast<float>(80.0 - Row * 150.0 / 640.0);
            FormGTMain_PictureGT_MouseMove(X, Y);
            double Longitude = (Column + state.MapShift) * 360.0 / 1182.0 - 180.0;
            if (Longitude >= 180.0) Longitude -= 360.0;
            std::string Expected;
            bool OnAnEdge = false;  // of a city's box, where single precision decides
            for (std::size_t Each = 350; Each >= 1; --Each) {
                const double East = std::abs(state.CityLongitude[Each] - Longitude);
                const double North = std::abs(state.CityLatitude[Each] - Y);
                if (East < 0.4 && North < 0.4) Expected = state.CityName[Each];
                OnAnEdge = OnAnEdge || std::abs(East - 0.4) < 1e-4 || std::abs(North - 0.4) < 1e-4;
            }
            if (OnAnEdge) continue;
            ASSERT_EQ(City.Caption, Expected) << Column << ", " << Row;
        }
    }
}

TEST_F(Probe, PositionsOutsideDoNoHarm) {
    for (const float Odd : {-1e9F, 1e30F, std::nanf(""), -5.0F, 5000.0F}) {
        FormGTMain_PictureGT_MouseMove(Odd, 10.0F);
        FormGTMain_PictureGT_MouseMove(10.0F, Odd);
    }
}

}  // namespace
}  // namespace gloamtide
