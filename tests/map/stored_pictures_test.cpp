#include "map/stored_pictures.h"

#include <set>

#include "assets/assets.h"
#include "surface/stored_bitmap.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

TEST(StoredPictures, TheNightIsTheDayDarkenedAndTheSeaIsFlat) {
    constexpr Color DaySea = RGB(0, 119, 225);
    struct Pair {
        AssetBytes Day, Night;
        Color NightSea;
        int Darkening;  // levels of each channel of the land
    };
    for (const Pair& P : {Pair{NaturalDayBmp(), NaturalNightBmp(), RGB(0, 10, 54), 30},
                          Pair{PoliticalDayBmp(), PoliticalNightBmp(), RGB(0, 0, 3), 50}}) {
        const Bitmap Day = DecodeBmp(P.Day);
        const Bitmap Night = DecodeBmp(P.Night);
        const auto Darker = [&](int Level) { return std::max(0, Level - P.Darkening); };
        for (std::size_t Pixel = 0; Pixel < Day.Pixels.size(); ++Pixel) {
            const Color Lit = Day.Pixels[Pixel];
            const Color Dark = RGB(Darker(RedOf(Lit)), Darker(GreenOf(Lit)), Darker(BlueOf(Lit)));
            ASSERT_EQ(Night.Pixels[Pixel], Lit == DaySea ? P.NightSea : Dark) << Pixel;
        }
        const auto Share = std::count(Day.Pixels.begin(), Day.Pixels.end(), DaySea) * 100 / std::ssize(Day.Pixels);
        EXPECT_TRUE(Share >= 60 && Share < 72) << Share << " percent of the map, without the poles";
    }
}

using CachedPictures = ProgramTest;

// There and back by the Map menu; each of the eight cached pictures has its own content.
TEST_F(CachedPictures, ComeBackWithTheMapType) {
    Start(640);
    const auto Cached = [] {
        std::vector<std::vector<Color>> Pictures;
        for (const int Shown : {3, 2, 1, 0}) {
            state.ShowCities = (Shown & 1) != 0 ? True : False;
            state.ShowTimezones = (Shown & 2) != 0 ? True : False;
            const MapPictures Pair = ShownMapPictures();
            Pictures.insert(Pictures.end(), {Pair.Day.Picture.Pixels, Pair.Night.Picture.Pixels});
        }
        EXPECT_TRUE(FormPictures.PictureTZDay.Picture.Empty()) << "what is not shown goes";
        Pictures.push_back(FormGTMain.PictureGT.Picture.Pixels);
        return Pictures;
    };
    const auto Choose = [&](Menu& Item) {
        Item.Click();
        Desktop.Advance(100);
    };
    const auto Natural = Cached();
    EXPECT_EQ(std::set(Natural.begin(), Natural.end()).size(), Natural.size());
    Choose(FormGTMain.MenuMapSubPolitical);
    const auto Political = Cached();
    for (std::size_t Each = 0; Each < Natural.size(); ++Each) EXPECT_NE(Political[Each], Natural[Each]) << Each;
    Choose(FormGTMain.MenuMapSubNatural);
    EXPECT_EQ(Cached(), Natural);
    state.MapType = 2;  // no such map: nothing changes
    ResetMapPictures();
    EXPECT_EQ(Cached(), Natural);
}

}  // namespace
}  // namespace gloamtide
