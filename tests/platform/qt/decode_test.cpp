#include <gtest/gtest.h>

#include "assets/assets.h"
#include "map/fine_pictures.h"
#include "platform/qt/qt_host.h"

namespace gloamtide {
namespace {

TEST(Decoding, TheFineMapsAndTheirSeaFit) {
    QtHost Desktop;
    const Bitmap Sea = Desktop.DecodePicture(SeaFinePng());
    ASSERT_EQ(Sea.Width, 4096);
    ASSERT_EQ(Sea.Height, 1707);
    Bitmap Natural = Desktop.DecodePicture(NaturalFineWebp());
    const Bitmap Political = Desktop.DecodePicture(PoliticalFineWebp());  // without loss, sea and all
    ASSERT_EQ(Natural.Pixels.size(), Sea.Pixels.size());
    ASSERT_EQ(Political.Pixels.size(), Sea.Pixels.size());
    PaintSea(Natural, Sea);
    int Apart = 0;
    for (std::size_t Pixel = 0; Pixel < Sea.Pixels.size(); ++Pixel) {
        const bool IsSea = Sea.Pixels[Pixel] != 0;
        Apart += (Political.Pixels[Pixel] == DaySea) == IsSea && (Natural.Pixels[Pixel] == DaySea) == IsSea ? 0 : 1;
    }
    EXPECT_EQ(Apart, 0);
    for (const AssetBytes Terrain : {TerrainDayWebp(), TerrainNightWebp()}) {
        EXPECT_EQ(Desktop.DecodePicture(Terrain).Pixels.size(), Sea.Pixels.size());
    }
    EXPECT_TRUE(Desktop.DecodePicture(SeaFinePng().first(100)).Empty());
    EXPECT_TRUE(Desktop.DecodePicture({}).Empty());
}

}  // namespace
}  // namespace gloamtide
