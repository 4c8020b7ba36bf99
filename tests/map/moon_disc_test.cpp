#include "map/moon_disc.h"

#include "tests/program_test.h"

namespace gloamtide {
namespace {

using MoonDisc = ProgramTest;

// A row for each class of screen; in it each recipe twice, at the lowest and at the highest elongation that it is for.
TEST_F(MoonDisc, OfEveryPhase) {
    constexpr float Limits[] = {2.2F,   5.23F,  6.77F,  9.07F, 11.459F, 12.541F,
                                14.93F, 17.23F, 18.77F, 21.8F, 23.459F, 23.9F};
    std::vector<float> Hours = {0.0F, std::nextafter(0.541F, 0.0F), 0.541F};
    for (const float Limit : Limits) Hours.insert(Hours.end(), {Limit, std::nextafter(Limit, 24.0F)});
    Hours.push_back(std::nanf(""));
    constexpr int Tile = 20;  // pixels
    Bitmap Sheet(Tile * static_cast<int>(Hours.size()), Tile * 4, 0);
    FormPictures.OnLoad = [] {};
    int Row = 0;
    for (const int Width : {640, 800, 1024, 1280}) {
        Desktop.ScreenWidth = Width;
        MeasureScreen();
        LayOutMainWindow();
        ScaleMapPictures();
        PictureSurface& Map = FormPictures.PictureNightSplit;
        state.MoonMapHour = 12.0F;
        state.MoonDeclination = Single(80.0 - Tile / 2.0 * 150.0 / state.MapHeight);
        for (std::size_t Column = 0; Column < Hours.size(); ++Column) {
            Map.BackColor = 0;
            state.MoonElongationHours = Hours[Column];
            DrawMoonDisc();
            Bitmap Disc(Tile, Tile, 0);
            Lay(Disc, Map.Canvas(), Tile / 2 - state.MapWidth / 2, 0);
            Lay(Sheet, Disc, Tile * static_cast<int>(Column), Tile * Row);
        }
        ++Row;
    }
    ExpectGoldenPicture("moon-phases", Sheet);
}

}  // namespace
}  // namespace gloamtide
