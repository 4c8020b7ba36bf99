#include "map/stored_pictures.h"

#include <map>
#include <set>

#include "assets/assets.h"
#include "forms/layout.h"
#include "map/geometry.h"
#include "surface/stored_bitmap.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

struct MapPair {
    Bitmap Day, Night;
    Color NightSea;
    int Darkening;  // levels of each channel of the land
};

constexpr Color DaySea = RGB(0, 119, 225);

TEST(StoredPictures, HaveTheStatedForm) {
    for (const AssetBytes Bytes :
         {NaturalDayBmp(), NaturalNightBmp(), PoliticalDayBmp(), PoliticalNightBmp(), ZoneMaskBmp()}) {
        ASSERT_EQ(Bytes.size(), 490678U);
        EXPECT_EQ(std::string(Bytes.begin(), Bytes.begin() + 2), "BM");
        EXPECT_EQ(Bytes[10] | Bytes[11] << 8, 1078);
        EXPECT_EQ(Bytes[14], 40);
        EXPECT_EQ(Bytes[28], 8);
        const Bitmap Picture = DecodeBmp(Bytes);
        EXPECT_EQ(Picture.Width, StoredWidth);
        EXPECT_EQ(Picture.Height, StoredHeight);
    }
}

TEST(StoredPictures, TheSeaIsFlatAndTheNightIsTheDayDarkened) {
    const MapPair Pairs[] = {
        {DecodeBmp(NaturalDayBmp()), DecodeBmp(NaturalNightBmp()), RGB(0, 10, 54), 30},
        {DecodeBmp(PoliticalDayBmp()), DecodeBmp(PoliticalNightBmp()), RGB(0, 0, 3), 50},
    };
    for (const MapPair& Pair : Pairs) {
        SCOPED_TRACE(Pair.Darkening);
        const auto Darker = [&](int Level) { return std::max(0, Level - Pair.Darkening); };
        int SeaPixels = 0;
        for (std::size_t Pixel = 0; Pixel < Pair.Day.Pixels.size(); ++Pixel) {
            const Color Lit = Pair.Day.Pixels[Pixel];
            const Color Expected =
                Lit == DaySea ? Pair.NightSea : RGB(Darker(RedOf(Lit)), Darker(GreenOf(Lit)), Darker(BlueOf(Lit)));
            ASSERT_EQ(Pair.Night.Pixels[Pixel], Expected) << Pixel;
            SeaPixels += Lit == DaySea ? 1 : 0;
        }
        const double SeaShare = SeaPixels / static_cast<double>(Pair.Day.Pixels.size());
        EXPECT_GT(SeaShare, 0.60);  // of this flat map, poles cut off
        EXPECT_LT(SeaShare, 0.72);
    }
}

TEST(StoredPictures, LandAndSeaLieWhereTheyBelong) {
    const auto IsSea = [](const Bitmap& Map, double Longitude, double Latitude) {
        return Map.Row(static_cast<int>((80.0 - Latitude) * 3.4))[static_cast<int>((Longitude + 180.0) / 0.375)] ==
               DaySea;
    };
    for (const Bitmap& Map : {DecodeBmp(NaturalDayBmp()), DecodeBmp(PoliticalDayBmp())}) {
        for (const auto& [Longitude, Latitude] :
             {std::pair(-98.0, 39.0), std::pair(25.0, 0.0), std::pair(134.0, -25.0), std::pair(100.0, 60.0),
              std::pair(-42.0, 72.0), std::pair(-60.0, -10.0)}) {
            EXPECT_FALSE(IsSea(Map, Longitude, Latitude)) << Longitude;
        }
        for (const auto& [Longitude, Latitude] :
             {std::pair(-150.0, 0.0), std::pair(-30.0, 30.0), std::pair(80.0, -20.0), std::pair(18.0, 35.0),
              std::pair(179.9, -55.0), std::pair(-90.0, 25.0)}) {
            EXPECT_TRUE(IsSea(Map, Longitude, Latitude)) << Longitude;
        }
    }
}

TEST(StoredPictures, TheMaskHoldsEveryZoneButNewfoundland) {
    const std::set<int> Codes = {240, 110, 100, 90,  80,  70,  60,  50,  40,  30,  20,  10,  0,   230, 220, 210,
                                 205, 200, 195, 190, 185, 182, 180, 175, 170, 160, 150, 145, 140, 130, 120};
    const Bitmap Mask = DecodeBmp(ZoneMaskBmp());
    std::set<Color> Colours;
    std::set<int> Found;
    for (int Y = 0; Y < Mask.Height; ++Y) {
        for (int X = 0; X < 956; ++X) {
            Colours.insert(Mask.Row(Y)[X]);
            Found.insert(RedOf(Mask.Row(Y)[X]));
        }
    }
    EXPECT_EQ(Found, Codes);
    EXPECT_EQ(Colours.size(), 31U);
}

class CachedPictures : public ProgramTest {};

TEST_F(CachedPictures, TakeTheMapTypeAndKeepTheSeaFlat) {
    FormPictures.OnLoad = FormPictures_Form_Load;
    Desktop.ScreenWidth = 1280;
    MeasureScreen();
    PicturesForm& F = FormPictures;
    for (std::int16_t Type = 0; Type < 2; ++Type) {
        state.MapType = Type;
        ResetMapPictures();
        const Color Sea = F.PictureNight.Picture.Row(300)[100];
        EXPECT_EQ(Sea, Type == 0 ? RGB(0, 10, 54) : RGB(0, 0, 3));
        EXPECT_EQ(F.PictureDay.Picture.Row(300)[100], DaySea);
        state.ShowCities = True;  // whose table is empty here
        EXPECT_EQ(ShownMapPictures().Day.Picture.Pixels, F.PictureDay.Picture.Pixels);
        EXPECT_EQ(&ShownMapPictures().Night, &F.PictureCitiesNight);
        state.ShowCities = False;
        EXPECT_EQ(&ShownMapPictures().Day, &F.PictureDay);
        EXPECT_TRUE(F.PictureCitiesDay.Picture.Empty()) << "what is not shown goes";
    }
    const Bitmap Before = F.PictureDay.Picture;
    state.MapType = 2;  // no such map: nothing changes
    ResetMapPictures();
    EXPECT_EQ(F.PictureDay.Picture.Pixels, Before.Pixels);
}

}  // namespace
}  // namespace gloamtide
