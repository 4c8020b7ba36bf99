#include "tests/density.h"

#include "assets/assets.h"
#include "astro/degrees.h"
#include "map/fine_pictures.h"
#include "map/stored_pictures.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

constexpr Color Day = RGB(255, 255, 255);

const Bitmap& Shown() { return FormGTMain.PictureGT.Picture; }

using MapDensity = ProgramTest;

// Day at a place of the map, in pixels of the program, from the Sun's altitude: a degree of longitude is added to
// either side, and polar day ends 0.26 degrees short of midnight. Beyond the start of polar night nothing is lit.
struct ExactDay {
    double Declination, ShiftPixels;

    bool At(double X, double Y) const {
        const double Latitude = 80.0 - Y * 150.0 / state.MapHeight;
        if (Declination <= 0.0 ? Latitude > Declination + 90.0 : Latitude < Declination - 90.0) return false;
        const double Angle = std::abs((X + ShiftPixels) * 360.0 / state.MapWidth - 180.0);
        const double HalfArc = -TanDeg(Declination) * TanDeg(Latitude);
        return Angle <= 1.0 + std::acos(std::clamp(HalfArc, -0.99999, 1.0)) * 180.0 / Pi;
    }
};

// A lit pixel has day within half a device pixel of its middle, a dark one night: so no edge is a pixel off.
int PixelsAstray(const ExactDay& Exact, double Density) {
    int Astray = 0;
    for (int Y = 0; Y < Shown().Height; ++Y) {
        for (int X = 0; X < Shown().Width; ++X) {
            const bool Lit = Shown().Row(Y)[X] == Day;
            const auto Agrees = [&](double AsideX, double AsideY) {
                return Exact.At((X + 0.5 + AsideX) / Density, (Y + 0.5 + AsideY) / Density) == Lit;
            };
            const bool Near = Agrees(0, 0) || Agrees(0.5, 0) || Agrees(-0.5, 0) || Agrees(0, 0.5) || Agrees(0, -0.5);
            Astray += Near ? 0 : 1;
        }
    }
    return Astray;
}

TEST_F(MapDensity, TheTerminatorIsTheExactCurveToADevicePixel) {
    FormPictures.OnLoad = [] {};
    Desktop.ScreenWidth = 800;
    state.GreenwichHour = 12.0F;
    for (const double Density : {1.25, 2.0, 3.0}) {
        SetDensity(Density);
        PaintPlainMap(Day);
        for (const ExactDay& Sun : {ExactDay{23.4393, 0.0}, {-23.4393, 7.5}, {12.0, -8.25}, {-0.3, 3.0}, {0.02, 0.0}}) {
            state.SunDeclination = Sun.Declination;
            state.TanSunDeclination = TanDeg(Sun.Declination);
            state.EquationOfTimeMapShift = static_cast<float>(Sun.ShiftPixels);
            RedrawMap();
            EXPECT_EQ(PixelsAstray(Sun, Density), 0) << Sun.Declination << " at density " << Density;
        }
    }
}

TEST_F(MapDensity, TheMapIsTheSameOnlyFinerAndComesBack) {
    Desktop.ScreenWidth = 640;
    Desktop.System = {2024, 4, 1, 8, 18, 21, 0, 0};
    Start();
    state.ShowSun = state.ShowMoon = state.ShowAnalemma = state.ShowCities = state.ShowMapGrid = state.ShowTimezones =
        state.ShowSundial = True;
    state.LocationLat = 41.0;
    RedrawMap();
    RedrawMap();  // the second shadow of a dial starts from the last hour line of the first
    const Bitmap Map = Shown();
    const Bitmap Dial = FormGTMain.PictureSundial.Picture;
    const Bitmap Band = FormGTMain.PictureGTContainer.Picture;
    const float Ruler = state.HourRulerHalfText;
    for (const int Density : {2, 3}) {
        SetDensity(Density);
        // The two stretch the stored picture by other ways, and at density 1 the terminator goes in steps.
        EXPECT_LE(static_cast<unsigned>(PixelsApart(Map, Shown(), Density, 12)), 40U) << Density;
        EXPECT_LE(static_cast<unsigned>(PixelsApart(Dial, FormGTMain.PictureSundial.Picture, Density, 0)), 2U);
        EXPECT_EQ(PixelsApart(Band, FormGTMain.PictureGTContainer.Picture, Density, 0), 0);
        EXPECT_EQ(state.HourRulerHalfText, Ruler);
    }
    for (const double Density : {1.15, 1.25, 1.0}) {
        SetDensity(Density);
        const Bitmap First = Shown();
        const Bitmap FirstDial = FormGTMain.PictureSundial.Picture;
        RedrawMap();
        EXPECT_EQ(Shown().Pixels, First.Pixels) << Density;
        EXPECT_EQ(FormGTMain.PictureSundial.Picture.Pixels, FirstDial.Pixels) << Density;
    }
    EXPECT_EQ(Shown().Pixels, Map.Pixels);
}

TEST_F(MapDensity, BeforeTheStartThereIsNothingToFollow) {
    FollowDensity();
    EXPECT_EQ(state.MapTypeShown, -1);
    SetDensity(1.5);
    Desktop.ScreenWidth = 640;
    Start();
    EXPECT_EQ(Shown().Width, 870);
}

// Decodes the fine assets to pictures of a test.
struct DecodingHost : HeadlessHost {
    Bitmap Natural, Political, Sea;
    int Decoded = 0;

    Bitmap DecodePicture(std::span<const unsigned char> Bytes) override {
        ++Decoded;
        if (Bytes.data() == SeaFinePng().data()) return Sea;
        return Bytes.data() == NaturalFineWebp().data() ? Natural : Political;
    }
};

TEST(FinePictures, MakeSeaAndNightWhereTheMapIsLargerThanTheStoredOnes) {
    RenewProgram();
    DecodingHost Desktop;
    Desktop.ScreenWidth = 640;
    Desktop.Natural = Bitmap(1500, 625, RGB(100, 20, 200));
    Desktop.Political = Bitmap(1500, 625, RGB(40, 250, 90));
    Desktop.Sea = Bitmap(1500, 625, 0);
    for (int Y = 0; Y < 625; ++Y) std::fill(Desktop.Sea.Row(Y) + 750, Desktop.Sea.Row(Y) + 1500, RGB(255, 255, 255));
    state.StartupSource = ConfigurationSource::Defaults;
    StartProgram();
    state.ShowCities = state.ShowTimezones = False;
    SetDensity(1.5);
    EXPECT_EQ(Desktop.Decoded, 0) << "870 pixels need no finer pictures";

    const auto ExpectColours = [](Color Land, Color Sea, Color NightLand, Color NightSea) {
        const PicturesForm& F = FormPictures;
        for (const auto& [Picture, Left, Right] :
             {std::tuple(&F.PictureDay, Land, Sea), {&F.PictureNight, NightLand, NightSea}}) {
            for (int X = 0; X < Picture->Picture.Width; ++X) {
                ASSERT_EQ(Picture->Picture.Row(300)[X], X < Picture->Picture.Width / 2 ? Left : Right) << X;
            }
        }
    };
    for (const double Density : {2.0, 2.5}) {
        SetDensity(Density);
        ExpectColours(RGB(100, 20, 200), DaySea, RGB(70, 0, 170), RGB(0, 10, 54));
    }
    EXPECT_EQ(Desktop.Decoded, 2) << "once each";
    const auto Reset = [](std::int16_t Type) {
        state.MapType = Type;
        ResetMapPictures();
        RedrawMap();
    };
    Reset(1);
    ExpectColours(RGB(40, 250, 90), DaySea, RGB(0, 200, 40), RGB(0, 0, 3));

    Desktop.Sea = Bitmap(3, 3, 0);  // fits no map: the stored pictures serve
    const auto Flat = FormPictures.PictureDay.Picture.Pixels;
    Reset(1);
    EXPECT_EQ(FormPictures.PictureDay.Picture.Pixels.size(), Flat.size());
    EXPECT_NE(FormPictures.PictureDay.Picture.Pixels, Flat);
}

}  // namespace
}  // namespace gloamtide
