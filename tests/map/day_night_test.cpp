#include "map/day_night.h"

#include <cmath>
#include <limits>
#include <sstream>

#include "astro/degrees.h"
#include "clock/clock.h"
#include "forms/layout.h"
#include "map/geometry.h"
#include "map/stored_pictures.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

constexpr Color Day = RGB(255, 255, 255);
constexpr Color Night = RGB(0, 0, 3);

// A map whose day picture is white and whose night picture is dark, unless a test draws on them.
class DayNight : public ProgramTest {
protected:
    void SetMap(int ScreenWidth) {
        Desktop.ScreenWidth = ScreenWidth;
        FormPictures.OnLoad = [] {};
        MeasureScreen();
        ScaleMapPictures();
        FormPictures.PictureDay.BackColor = Day;
        FormPictures.PictureNight.BackColor = Night;
        FormPictures.PictureDay.Canvas();
        FormPictures.PictureNight.Canvas();
        state.GreenwichHour = 12.0F;
    }

    static void SetSun(double Declination, float ShiftPixels) {
        state.SunDeclination = Declination;
        state.TanSunDeclination = TanDeg(Declination);
        state.EquationOfTimeMapShift = ShiftPixels;
    }

    static void StripAt(float Latitude) {
        state.StripLatitude = Latitude;
        state.StripHeight = 2.0F;
        BlitDayStrip();
    }

    static std::string LitColumns(int Row) {
        const Bitmap& Map = FormGTMain.PictureGT.Picture;
        std::ostringstream Ends;
        bool Lit = false;
        for (int X = 0; X <= Map.Width; ++X) {
            const bool Now = X < Map.Width && Map.Row(Row)[X] == Day;
            if (Now != Lit) Ends << ' ' << (Now ? X : X - 1);
            Lit = Now;
        }
        return Ends.str();
    }
};

TEST_F(DayNight, WorkedStrips) {
    SetMap(1024);
    struct Row {
        double Declination;
        float Latitude, ShiftPixels, HalfWidth, Top, Left, Right;
    };
    constexpr Row Rows[] = {
        {23.4393, 40.0F, 0.0F, 112.3334F, 136.0F, 179.69F, 776.31F},
        {-23.4393, 40.0F, 0.0F, 69.6666F, 136.0F, 293.00F, 663.00F},
        {0.0, 40.0F, 0.0F, 91.0F, 136.0F, 236.34F, 719.66F},
        {-23.4393, -68.0F, 6.0F, 180.7438F, 503.2F, -7.98F, 951.98F},
    };
    for (const Row& R : Rows) {
        SCOPED_TRACE(R.Declination);
        SetSun(R.Declination, R.ShiftPixels);
        StripAt(R.Latitude);
        EXPECT_NEAR(state.DayHalfWidth, R.HalfWidth, 5e-5);
        EXPECT_NEAR(state.StripTop, R.Top, 1e-4);
        EXPECT_NEAR(state.StripLeftX, R.Left, 0.006);
        EXPECT_NEAR(state.StripRightX, R.Right, 0.006);
    }
}

// Every seventh row of all map sizes under seven Suns, against a reckoning of its own (tools/lit_columns.py).
TEST_F(DayNight, LitColumnsToThePixel) {
    std::ifstream Table(std::filesystem::path(GLOAMTIDE_TEST_DATA) / "map/lit_columns.txt");
    int Cases = 0;
    int Rows = 0;
    for (std::string Line; std::getline(Table, Line);) {
        std::istringstream Fields(Line);
        std::string First;
        Fields >> First;
        if (First == "case") {
            int Width = 0;
            double Declination = 0.0;
            float Minutes = 0.0F;
            ASSERT_TRUE(Fields >> Width >> Declination >> Minutes);
            SetMap(Width == 580 ? 640 : Width == 740 ? 800 : Width == 956 ? 1024 : 1280);
            SetSun(Declination, static_cast<float>(Minutes / 1440.0 * Width));
            RedrawMap();
            ++Cases;
        } else if (First != "#") {
            std::string Expected;
            std::getline(Fields, Expected);
            ASSERT_EQ(LitColumns(std::stoi(First)), Expected) << "row " << First << " of case " << Cases;
            ++Rows;
        }
    }
    EXPECT_EQ(Cases, 28);
    EXPECT_EQ(Rows, 7 * (41 + 55 + 73 + 92));
}

TEST_F(DayNight, PolarDayReachesTheEdgesAndPolarNightStaysDark) {
    SetMap(1280);
    SetSun(-23.4393, 0.0F);
    RedrawMap();
    EXPECT_EQ(LitColumns(0), "");  // 80 North
    EXPECT_EQ(LitColumns(639), " 0 1181");
    SetSun(23.4393, 0.0F);
    RedrawMap();
    EXPECT_EQ(LitColumns(0), " 0 1181");
    EXPECT_EQ(LitColumns(639), "");
}

TEST_F(DayNight, TheMapIsRotatedSoThatTheMeanSunStandsInTheMiddle) {
    SetMap(1024);
    SetSun(0.0, 0.0F);
    FormPictures.PictureDay.Line(LongitudeToMapX(-75.0), 80.0, LongitudeToMapX(-75.0), -70.0, RGB(255, 0, 0));
    state.GreenwichHour = 17.0F;  // noon of 75 West
    RedrawMap();
    EXPECT_EQ(state.MapShift, 757);
    EXPECT_EQ(FormGTMain.PictureGT.Picture.Row(200)[477], RGB(255, 0, 0));
    for (const float Hour : {0.0F, 11.0F, 12.0F, 23.0F}) {  // no column is lost at any rotation
        state.GreenwichHour = Hour;
        FormPictures.PictureNight.BackColor = Day;
        FormPictures.PictureDay.BackColor = Day;
        RedrawMap();
        EXPECT_EQ(LitColumns(300), " 0 955") << Hour;
    }
}

TEST_F(DayNight, TheOverlayFlagsSelectTheCachedPair) {
    SetMap(640);
    SetSun(0.0, 0.0F);
    PicturesForm& F = FormPictures;
    F.PictureCitiesDay.BackColor = F.PictureTZDay.BackColor = F.PictureTZCitiesDay.BackColor = 0;
    struct Choice {
        Boolean Cities, Timezones;
        PictureSurface *DaySource, *NightSource;
    };
    const Choice Choices[] = {{False, False, &F.PictureDay, &F.PictureNight},
                              {True, False, &F.PictureCitiesDay, &F.PictureCitiesNight},
                              {False, True, &F.PictureTZDay, &F.PictureTZNight},
                              {True, True, &F.PictureTZCitiesDay, &F.PictureTZCitiesNight}};
    Color Shade = 1;
    for (const Choice& C : Choices) {
        state.ShowCities = C.Cities;
        state.ShowTimezones = C.Timezones;
        for (const auto& [Source, X] : {std::pair(C.DaySource, 290), std::pair(C.NightSource, 5)}) {
            Source->Canvas();
            Source->BackColor = ++Shade;
            RedrawMap();
            EXPECT_EQ(FormGTMain.PictureGT.Picture.Row(150)[X], Shade);
        }
    }
}

TEST_F(DayNight, BrokenSunsDoNoHarm) {
    SetMap(640);
    const double Infinity = std::numeric_limits<double>::infinity();
    for (const double Declination : {std::nan(""), Infinity, -Infinity, 1e300, -1e300, 89.9, -89.9}) {
        SetSun(Declination, static_cast<float>(Declination));
        RedrawMap();
    }
}

}  // namespace
}  // namespace gloamtide
