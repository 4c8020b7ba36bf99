#include "sundial/dial.h"

#include "astro/solar.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

using Dial = ProgramTest;

TEST_F(Dial, OfManyPlaces) {
    Start(1280);
    const PictureSurface& Picture = FormGTMain.PictureSundial;
    const int Width = static_cast<int>(Picture.Width.Pixels());
    const int Height = static_cast<int>(Picture.Height.Pixels());
    Bitmap Sheet(4 * Width, 4 * Height, 0);
    int Number = 0;
    for (const VectorRow& Place : ReadVectors("dials")) {
        Place.In.PutIntoState();
        SolarPosition();
        UpdateDateFields();
        DrawSundial();
        Lay(Sheet, Painted(Picture), Number % 4 * Width, Number / 4 * Height);
        ++Number;
    }
    ExpectGoldenPicture("dials", Sheet);
}

}  // namespace
}  // namespace gloamtide
