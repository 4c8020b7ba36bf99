#include "map/zone_lines.h"

#include <cmath>

#include "map/day_night.h"
#include "map/geometry.h"
#include "surface/stored_bitmap.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

class ZoneLines : public ProgramTest {
protected:
    ZoneLines() {
        Desktop.ScreenWidth = 1024;
        Start();
    }

    // The lines of a table, each its points.
    template <class Table>
    static std::vector<std::vector<MapPoint>> LinesOf(const Table& Points, int& Rows) {
        std::vector<std::vector<MapPoint>> Lines;
        for (Rows = 1; Points.at(static_cast<std::size_t>(Rows)).Longitude != 8888.0F; ++Rows) {
            const MapPoint& Point = Points.at(static_cast<std::size_t>(Rows));
            if (Point.Longitude == 9999.0F) {
                EXPECT_EQ(Point.Latitude, 9999.0F);
                Lines.emplace_back();
            } else {
                Lines.at(Lines.size() - 1).push_back(Point);
            }
        }
        return Lines;
    }

    static bool IsPoint(const MapPoint& Point, float Longitude, float Latitude) {
        return Point.Longitude == Longitude && Point.Latitude == Latitude;
    }
};

TEST_F(ZoneLines, TheTablesHaveTheirRowsAndLines) {
    int Rows = 0;
    const auto Zones = LinesOf(state.ZoneLinePoints, Rows);
    EXPECT_EQ(Rows, 1139);
    EXPECT_EQ(Zones.size(), 54U);
    const auto& P = state.ZoneLinePoints;
    EXPECT_TRUE(IsPoint(P[1], 9999, 9999) && IsPoint(P[2], 37.5F, 80) && IsPoint(P[3], 37.5F, 69.118F));
    EXPECT_TRUE(IsPoint(P[4], 32.625F, 69.118F) && IsPoint(P[5], 31.125F, 69.706F) && IsPoint(P[6], 30, 68.824F));
    EXPECT_TRUE(IsPoint(P[1136], 19.1F, -33.5F) && IsPoint(P[1137], 22.5F, -33.3F) && IsPoint(P[1138], 22.5F, -70));
    int Loops = 0;
    for (const auto& Line : Zones) {
        ASSERT_GE(Line.size(), 2U);
        const MapPoint& First = Line.front();
        const MapPoint& Last = Line.back();
        if (!IsPoint(First, Last.Longitude, Last.Latitude)) continue;
        ++Loops;
        EXPECT_EQ(Line.size(), 5U);
        EXPECT_TRUE(IsPoint(First, 91.5F, 14.118F));
    }
    EXPECT_EQ(Loops, 1);
    EXPECT_EQ(LinesOf(state.DateLinePoints, Rows).size(), 3U);
    EXPECT_EQ(Rows, 18);
}

TEST_F(ZoneLines, VerticesLieOnTheGridAndNoLineCrossesTheEdge) {
    int Rows = 0;
    int OffGrid = 0;
    for (const auto& Line : LinesOf(state.ZoneLinePoints, Rows)) {
        for (std::size_t Place = 0; Place < Line.size(); ++Place) {
            const MapPoint& Point = Line[Place];
            EXPECT_LE(std::abs(Point.Longitude), 180.0F);
            EXPECT_TRUE(Point.Latitude <= 80.0F && Point.Latitude >= -70.0F);
            const double Column = (Point.Longitude + 180.0) / 0.375;
            const double Row = (80.0 - Point.Latitude) / (150.0 / 510.0);
            const bool OnGrid =
                std::abs(Column - std::round(Column)) < 0.003 && std::abs(Row - std::round(Row)) < 0.003;
            OffGrid += OnGrid ? 0 : 1;
            if (Place == 0) continue;
            EXPECT_LT(std::abs(Point.Longitude - Line[Place - 1].Longitude), 180.0F);
        }
    }
    EXPECT_EQ(OffGrid, 2) << "the two points south of Africa";
}

// Walks the lines and looks at the mask on both sides, wherever one of the sides is land on the map.
TEST_F(ZoneLines, LinesPartTheZonesOfTheMask) {
    const PicturesForm& F = FormPictures;
    const Bitmap Political = DecodeBmp(PoliticalDayBmp());
    const auto IsLand = [&](double Longitude, double Latitude) {
        const long Colour = Political.Row(
            std::clamp(static_cast<int>((80.0 - Latitude) * 3.4), 0,
                       509))[std::clamp(static_cast<int>((Longitude + 180.0) / 0.375), 0, 959)];
        return Colour != static_cast<long>(RGB(0, 119, 225));
    };
    const auto ZoneAt = [&](double Longitude, double Latitude) {
        return F.PictureTZmask.Point((180.0 - Longitude) * 956.0 / 360.0, Latitude) & 255;
    };
    int Samples = 0;
    int Agreeing = 0;
    int Rows = 0;
    for (const auto& Line : LinesOf(state.ZoneLinePoints, Rows)) {
        for (std::size_t Place = 1; Place < Line.size(); ++Place) {
            const double X = Line[Place - 1].Longitude;
            const double Y = Line[Place - 1].Latitude;
            const double Dx = Line[Place].Longitude - X;
            const double Dy = Line[Place].Latitude - Y;
            const double Length = std::hypot(Dx, Dy);
            const double AsideX = Dy / Length * 0.5;  // degrees: a little over one pixel
            const double AsideY = -Dx / Length * 0.5;
            for (double Step = 0.05; Step < Length; Step += 0.1) {
                const double MidX = X + Dx * Step / Length;
                const double MidY = Y + Dy * Step / Length;
                if (!IsLand(MidX + AsideX, MidY + AsideY) && !IsLand(MidX - AsideX, MidY - AsideY)) continue;
                ++Samples;
                Agreeing += ZoneAt(MidX + AsideX, MidY + AsideY) != ZoneAt(MidX - AsideX, MidY - AsideY) ? 1 : 0;
            }
        }
    }
    EXPECT_GT(Samples, 10000);
    EXPECT_GE(Agreeing, 0.95 * Samples) << Agreeing << " of " << Samples;
    RecordProperty("agreeing", Agreeing);
    RecordProperty("samples", Samples);
}

TEST_F(ZoneLines, LinesAreDrawnInTheirColoursWhereZonesAreShown) {
    PicturesForm& F = FormPictures;
    const auto Has = [](const PictureSurface& Surface, Color Wanted) {
        return std::count(Surface.Picture.Pixels.begin(), Surface.Picture.Pixels.end(), Wanted) > 100;
    };
    state.ShowTimezones = True;
    state.ShowCities = True;
    RedrawMap();
    EXPECT_TRUE(Has(F.PictureTZCitiesDay, RGB(160, 160, 160)) && Has(F.PictureTZCitiesNight, RGB(210, 160, 80)));
    state.ShowCities = False;
    RedrawMap();
    EXPECT_TRUE(Has(F.PictureTZDay, RGB(160, 160, 160)) && Has(F.PictureTZDay, RGB(255, 80, 80)));
    EXPECT_TRUE(Has(F.PictureTZNight, RGB(130, 130, 130)) && Has(F.PictureTZNight, RGB(210, 160, 80)));
    EXPECT_FALSE(Has(F.PictureDay, RGB(255, 80, 80)));
    EXPECT_EQ(F.PictureTZDay.Point(LongitudeToMapX(-172.5F), -30.0), static_cast<long>(RGB(255, 80, 80)));
    EXPECT_EQ(F.PictureTZDay.Point(LongitudeToMapX(37.5F), 75.0), static_cast<long>(RGB(160, 160, 160)));
}

}  // namespace
}  // namespace gloamtide
