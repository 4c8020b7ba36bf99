#include "platform/qt/fonts.h"

#include <gtest/gtest.h>

#include <QFontMetrics>
#include <QRect>

namespace gloamtide {
namespace {

TEST(Fonts, CountTheirPointsAtNinetySixDotsToTheInch) {
    const std::pair<double, int> PointsAndPixels[] = {{6.0, 8}, {8.25, 11}, {9.75, 13}, {12.0, 16}, {0.0, 1}};
    for (const auto& [Points, Pixels] : PointsAndPixels) {
        const QFont Bold = InstalledFont({"MS Serif", Points, true, false});
        const QFont Slanted = InstalledFont({"MS Serif", Points, false, true});
        EXPECT_EQ(std::tuple(Bold.pixelSize(), Bold.bold(), Bold.italic()), std::tuple(Pixels, true, false));
        EXPECT_EQ(std::pair(Slanted.bold(), Slanted.italic()), std::pair(false, true));
    }
}

// The ink of a mask has to be where the font's own measures say.
TEST(Fonts, AMaskHoldsAllOfItsTextOnItsBaseLine) {
    for (const double Points : {6.0, 12.0, 48.0}) {
        const GlyphMask Mask = RenderMask({"MS Serif", Points}, "12gH");
        ASSERT_EQ(Mask.Coverage.size(), static_cast<std::size_t>(Mask.Width * Mask.Height));
        QRect Ink;
        for (int Place = 0; Place < Mask.Width * Mask.Height; ++Place) {
            const QRect Pixel(Place % Mask.Width, Place / Mask.Width, 1, 1);
            if (Mask.Coverage[static_cast<std::size_t>(Place)] > 100) Ink |= Pixel;
        }
        const QFontMetrics Metrics(InstalledFont({"MS Serif", Points}));
        const QRect Wanted = Metrics.tightBoundingRect("12gH").translated(0, Metrics.ascent());
        const QRect One(-1, -1, 3, 3);
        EXPECT_TRUE(One.contains(Ink.topLeft() - Wanted.topLeft())) << Points;
        EXPECT_TRUE(One.contains(Ink.bottomRight() - Wanted.bottomRight())) << Points;
    }
    for (const std::uint8_t Each : RenderMask({}, "  ").Coverage) EXPECT_EQ(Each, 0);
    EXPECT_EQ(RenderMask({}, "").Width, 0);
}

}  // namespace
}  // namespace gloamtide
