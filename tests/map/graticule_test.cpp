#include "map/graticule.h"

#include <cmath>

#include "map/day_night.h"
#include "map/geometry.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

class Graticule : public ProgramTest {
protected:
    Graticule() {
        Desktop.ScreenWidth = 1024;
        Desktop.System = {2026, 6, 1, 1, 12, 0, 0, 0};
        Start();
    }

    static int CountOf(const Bitmap& Picture, Color Wanted) {
        return static_cast<int>(std::count(Picture.Pixels.begin(), Picture.Pixels.end(), Wanted));
    }

    static const Bitmap& Map() { return FormGTMain.PictureGT.Picture; }
};

TEST_F(Graticule, CitiesStandInTheFourPicturesThatShowThem) {
    PicturesForm& F = FormPictures;
    const Color Yellow = RGB(255, 255, 0);
    for (const Boolean Zones : {False, True}) {
        state.ShowTimezones = Zones;
        state.ShowCities = True;
        RedrawMap();
        for (const PictureSurface* With : {Zones == True ? &F.PictureTZCitiesDay : &F.PictureCitiesDay,
                                           Zones == True ? &F.PictureTZCitiesNight : &F.PictureCitiesNight}) {
            EXPECT_GT(CountOf(With->Picture, Yellow), 1200) << "350 marks of five pixels, some on top of others";
            EXPECT_EQ(With->Point(LongitudeToMapX(-81.67F), 41.47F), static_cast<long>(Yellow)) << "Cleveland";
        }
        state.ShowCities = False;
        RedrawMap();
        for (const PictureSurface* Without : {&F.PictureDay, &F.PictureNight, &F.PictureTZDay, &F.PictureTZNight}) {
            EXPECT_EQ(CountOf(Without->Picture, Yellow), 0);
        }
    }
}

TEST_F(Graticule, TheGridHasParallelsMeridiansAndDottedCircles) {
    state.ShowMapGrid = True;
    RedrawMap();
    const Color Grey = RGB(128, 128, 128);
    const auto GreyInRow = [&](double Latitude) {
        const Color* Row = Map().Row(static_cast<int>((80.0 - Latitude) * 3.4));
        return std::count(Row, Row + Map().Width, Grey);
    };
    for (const double Latitude : {-60.0, -40.0, -20.0, 0.0, 20.0, 40.0, 60.0}) {
        EXPECT_EQ(GreyInRow(Latitude), 956) << Latitude;
    }
    for (const double Circle : {23.4393, -23.4393, 66.5607, -66.5607}) {
        EXPECT_NEAR(static_cast<double>(GreyInRow(Circle)), 956 / 3 + 24 * 2 / 3, 8) << Circle;
    }
    EXPECT_NEAR(static_cast<double>(GreyInRow(50.0)), 24, 1) << "the meridians";
    const double X = LongitudeToRotatedMapX(-75.0);
    EXPECT_EQ(FormGTMain.PictureGT.Point(X, 50.0), static_cast<long>(Grey));
}

TEST_F(Graticule, TheLocationBlinksGreyAndWhiteAndARedrawRemovesIt) {
    const auto AtLocation = [] {
        return FormGTMain.PictureGT.Point(LongitudeToRotatedMapX(state.LocationLong), state.LocationLat);
    };
    const long Bare = AtLocation();
    Desktop.Advance(1000);
    EXPECT_EQ(AtLocation(), static_cast<long>(RGB(128, 128, 128))) << "the first is grey";
    Desktop.Advance(1000);
    EXPECT_EQ(AtLocation(), static_cast<long>(RGB(255, 255, 255)));
    EXPECT_EQ(state.BlinkPhase, False);
    RedrawMap();
    EXPECT_EQ(AtLocation(), Bare);
}

TEST_F(Graticule, LocationsBeyondTheMapDrawNothing) {
    const Bitmap Before = Map();
    for (const double Latitude : {-75.0, 85.0, 1e300, std::nan("")}) {
        state.LocationLat = Latitude;
        BlinkLocationMarker();
    }
    state.LocationLat = 0.0;
    for (const float Longitude : {1e9F, -1e30F, std::nanf("")}) {
        state.LocationLong = Longitude;
        BlinkLocationMarker();
    }
    EXPECT_EQ(Map().Pixels, Before.Pixels);
}

}  // namespace
}  // namespace gloamtide
