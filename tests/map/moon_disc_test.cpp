#include "map/moon_disc.h"

#include <cmath>

#include "forms/layout.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

constexpr Color Lit = RGB(255, 240, 190);
constexpr Color Dark = RGB(128, 128, 128);

class MoonDisc : public ProgramTest {
protected:
    void SetScreen(int Width) {
        Desktop.ScreenWidth = Width;
        FormPictures.OnLoad = [] {};
        MeasureScreen();
        LayOutMainWindow();
        ScaleMapPictures();
    }

    // How many pixels are lit left and right of the disc's middle, and how many are dark.
    struct Look {
        int Left = 0, Right = 0, Dark = 0;
    };

    static Look Draw(float Elongation) {
        PictureSurface& Map = FormPictures.PictureNightSplit;
        Map.BackColor = 0;
        state.MoonElongationHours = Elongation;
        state.MoonMapHour = 6.0F;
        state.MoonDeclination = 10.0F;
        DrawMoonDisc();
        const int Middle = state.MapWidth / 4;
        Look Result;
        for (int Y = 0; Y < Map.Picture.Height; ++Y) {
            for (int X = 0; X < Map.Picture.Width; ++X) {
                const Color Pixel = Map.Picture.Row(Y)[X];
                if (Pixel == Lit) (X < Middle ? Result.Left : Result.Right) += X == Middle ? 0 : 1;
                Result.Dark += Pixel == gloamtide::Dark ? 1 : 0;
            }
        }
        return Result;
    }
};

TEST_F(MoonDisc, GrowsOnTheLeftAndShrinksOnTheRight) {
    for (const int Width : {640, 800, 1024, 1280}) {
        SCOPED_TRACE(Width);
        SetScreen(Width);
        const Look New = Draw(0.5F);
        EXPECT_EQ(New.Left + New.Right, 0);
        EXPECT_GT(New.Dark, 60);
        const Look Full = Draw(12.0F);
        EXPECT_EQ(Full.Dark, 0);
        EXPECT_EQ(Full.Left, Full.Right);

        int Last = 0;
        for (const float Hour : {1.0F, 4.0F, 6.0F, 8.0F, 10.0F, 12.0F}) {  // waxing
            const Look Now = Draw(Hour);
            EXPECT_GE(Now.Left + Now.Right, Last) << Hour;
            EXPECT_GE(Now.Left, Now.Right) << Hour;
            Last = Now.Left + Now.Right;
        }
        for (const float Hour : {14.0F, 16.0F, 18.0F, 20.0F, 22.0F}) {  // waning
            const Look Now = Draw(Hour);
            EXPECT_LE(Now.Left + Now.Right, Last) << Hour;
            EXPECT_GE(Now.Right, Now.Left) << Hour;
            Last = Now.Left + Now.Right;
        }
        EXPECT_EQ(Draw(23.8F).Left, 0);
    }
}

TEST_F(MoonDisc, LimitsBelongToTheRowBeforeThem) {
    SetScreen(1280);
    const auto Same = [](float A, float B) {
        const Look First = Draw(A);
        const Look Second = Draw(B);
        return First.Left == Second.Left && First.Right == Second.Right && First.Dark == Second.Dark;
    };
    for (const float Limit : {2.2F, 5.23F, 6.77F, 9.07F, 11.459F, 12.541F, 14.93F, 17.23F, 18.77F, 21.8F, 23.459F}) {
        EXPECT_TRUE(Same(Limit, std::nextafter(Limit, 0.0F))) << Limit;
        EXPECT_FALSE(Same(Limit, std::nextafter(Limit, 30.0F))) << Limit;
    }
    EXPECT_FALSE(Same(0.541F, std::nextafter(0.541F, 0.0F)));
}

TEST_F(MoonDisc, AtTheEdgesItIsCutOff) {
    SetScreen(800);
    for (const float Hour : {0.0F, 24.0F, std::nanf(""), 1e30F}) {
        state.MoonMapHour = Hour;
        state.MoonElongationHours = Hour;
        state.MoonDeclination = 89.0F;
        DrawMoonDisc();
    }
}

}  // namespace
}  // namespace gloamtide
