#include "map/hour_ruler.h"

#include <cmath>

#include "tests/program_test.h"

namespace gloamtide {
namespace {

using Ruler = ProgramTest;

TEST_F(Ruler, BrokenTimesDrawNoBars) {
    Desktop.ScreenWidth = 640;
    Start();
    const Bitmap& Band = FormGTMain.PictureGTContainer.Picture;
    for (const float Odd : {std::nanf(""), -1.0F, 60.0F, 29.5F, 1e30F}) {
        state.GreenwichMinute = Odd;
        state.GreenwichMonth = Odd;
        DrawZoneHourRuler();
        DrawDateBand();
        EXPECT_EQ(std::count(Band.Pixels.begin(), Band.Pixels.end(), RGB(225, 225, 127)), 0) << Odd;
    }
}

}  // namespace
}  // namespace gloamtide
