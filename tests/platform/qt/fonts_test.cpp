#include "platform/qt/fonts.h"

#include <gtest/gtest.h>

#include <QFontInfo>
#include <QStringList>
#include <algorithm>

namespace gloamtide {
namespace {

TEST(Fonts, CountTheirPointsAtNinetySixDotsToTheInch) {
    EXPECT_EQ(InstalledFont({"MS Serif", 6.0}).pixelSize(), 8);
    EXPECT_EQ(InstalledFont({"MS Sans Serif", 8.25}).pixelSize(), 11);
    EXPECT_EQ(InstalledFont({"MS Sans Serif", 9.75}).pixelSize(), 13);
    EXPECT_EQ(InstalledFont({"MS Serif", 0.0}).pixelSize(), 1);
    const QFont Slanted = InstalledFont({"MS Serif", 8.25, true, true});
    EXPECT_TRUE(Slanted.bold());
    EXPECT_TRUE(Slanted.italic());
}

TEST(Fonts, AreAnInstalledFamilyOfTheList) {
    const QFont Named = InstalledFont({"MS Serif", 6.0});
    EXPECT_TRUE(Named.families().contains(QFontInfo(Named).family())) << QFontInfo(Named).family().toStdString();
}

TEST(Fonts, AMaskIsATextOnItsTightBox) {
    const GlyphMask Small = RenderMask({"MS Serif", 6.0}, "00");
    const GlyphMask Large = RenderMask({"MS Sans Serif", 12.0}, "00");
    EXPECT_GT(Small.Width, 4);
    EXPECT_GE(Small.Height, 8);
    EXPECT_GT(Large.Width, Small.Width);
    EXPECT_EQ(Large.Coverage.size(), static_cast<std::size_t>(Large.Width * Large.Height));
    EXPECT_GT(*std::ranges::max_element(Large.Coverage), 200);
    const GlyphMask Blank = RenderMask({"MS Sans Serif", 12.0}, "  ");
    EXPECT_EQ(*std::ranges::max_element(Blank.Coverage), 0);
    EXPECT_EQ(RenderMask({}, "").Width, 0);
}

}  // namespace
}  // namespace gloamtide
