#include "forms/layout.h"

#include <algorithm>

#include "tests/program_test.h"

namespace gloamtide {
namespace {

class Layout : public ProgramTest, public testing::WithParamInterface<int> {
protected:
    // Pixels of a control on its container.
    struct Box {
        double Left, Top, Right, Bottom;
    };
    static Box BoxOf(const Control& Which) {
        const double Left = Which.Left.Pixels();
        const double Top = Which.Top.Pixels();
        return {Left, Top, Left + Which.Width.Pixels(), Top + Which.Height.Pixels()};
    }
    // By more than one pixel: rows of the third panel share one between them, where no letter reaches.
    static bool Overlap(const Box& A, const Box& B) {
        return A.Left + 1.0 < B.Right && B.Left + 1.0 < A.Right && A.Top + 1.0 < B.Bottom && B.Top + 1.0 < A.Bottom;
    }
};

TEST_P(Layout, EverythingHasRoomAndNothingOverlaps) {
    Desktop.ScreenWidth = GetParam();
    Start();
    MainForm& F = FormGTMain;
    const auto Class = static_cast<std::size_t>(state.ScreenClass);
    const PictureSurface& Panel = F.PictureGTData[Class];
    ASSERT_EQ(Panel.Children.size(), 37U);
    for (const Control* Each : Panel.Children) {
        const Box Place = BoxOf(*Each);
        EXPECT_TRUE(Place.Left >= 0.0 && Place.Right <= Panel.Width.Pixels() + 1e-9) << Each->Name;
        EXPECT_TRUE(Place.Top >= 0.0 && Place.Bottom <= Panel.Height.Pixels() + 1e-9) << Each->Name;
        for (const Control* Other : Panel.Children) {
            EXPECT_FALSE(Other != Each && Overlap(Place, BoxOf(*Other))) << Each->Name << " and " << Other->Name;
        }
    }
    const Box Map = BoxOf(F.PictureGT);
    EXPECT_EQ(Map.Right, GetParam());
    EXPECT_FALSE(Overlap(Map, BoxOf(Panel)));
    EXPECT_LE(BoxOf(Panel).Right, GetParam());
    EXPECT_LE(BoxOf(Panel).Bottom, F.PictureGTContainer.Height.Pixels());
    for (const Control* Each : F.PictureGT.Children) {
        const Box Place = BoxOf(*Each);
        EXPECT_TRUE(Place.Left >= 0.0 && Place.Top >= 0.0) << Each->Name;
        EXPECT_TRUE(Place.Right <= F.PictureGT.Width && Place.Bottom <= F.PictureGT.Height) << Each->Name;
    }
    EXPECT_FALSE(Overlap(BoxOf(F.LabelCity), BoxOf(F.LabelMouseLat)));
    EXPECT_FALSE(Overlap(BoxOf(F.LabelAnimInfo), BoxOf(F.CmdAnimStop)));
}

INSTANTIATE_TEST_SUITE_P(Screens, Layout, testing::Values(640, 800, 1024, 1280, 1920));

TEST_F(Layout, StatedPlacesOfTheLargestClass) {
    Desktop.ScreenWidth = 1280;
    Start();
    MainForm& F = FormGTMain;
    EXPECT_EQ(F.PictureGT.Top.Pixels(), 32.0);
    EXPECT_EQ(F.PictureGT.Left.Pixels(), 1280.0 - 1186.0);
    EXPECT_EQ(F.PictureGTData[3].Left.Pixels(), 250.0);
    EXPECT_NEAR(F.PictureGTData[3].Top.Pixels(), 32.0 + 1.01 * 644.0, 1e-9);
    EXPECT_EQ(F.LabelZonehour.Top.Pixels(), 655.0);
    EXPECT_EQ(F.LabelWestOfIDLDate.Top.Pixels(), 14.0);
    EXPECT_EQ(F.LabelMouseLong.Width.Pixels(), 110.0);
    EXPECT_EQ(F.LabelMouseLong.Left.Pixels(), 1186.0 - 110.0);
    EXPECT_NEAR(F.LabelMouseLong.Top.Pixels(), 644.0 - 2.7 * 16.0, 1e-9);
    EXPECT_EQ(F.LabelGTLocalDateShow[3].Left.Pixels(), 2835.0 / 15.0);
    EXPECT_EQ(F.LabelPhaseOfMoonShow[3].Top.Pixels(), 2505.0 / 15.0);
    EXPECT_EQ(state.MarkerRadiusX, 7.0F);
    EXPECT_EQ(state.MarkerRadiusY, 2.25F);
    EXPECT_EQ(state.CityMarkerRadius, 1.0F);
}

TEST_F(Layout, DialogsStandInThousandthsOfTheirDesignSize) {
    Desktop.ScreenWidth = 1024;
    Start();
    FormGTMain.MenuHelpSubAbout.Click();
    EXPECT_NEAR(FormAbout.FrameAbout.Left.Pixels(), 0.8 * 6810.0 / 15.0, 1e-9);
    EXPECT_NEAR(FormAbout.FrameAbout.Top.Pixels(), 0.4 * 5220.0 / 15.0, 1e-9);
}

}  // namespace
}  // namespace gloamtide
