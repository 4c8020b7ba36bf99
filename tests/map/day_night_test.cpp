#include "map/day_night.h"

#include "map/stored_pictures.h"
#include "places/zones.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

using DayNight = ProgramTest;

// A board of scenes.txt, map and almanac.
void ShowScene(const VectorValues& Scene) {
    Scene.PutIntoState();
    if (state.MapType != state.MapTypeShown) ResetMapPictures();
    SelectZoneRow();
    ReadSystemClock();
    state.OffsetDays = 0.5 / 86400.0;  // away from the cut of the seconds
    state.CurrentJD = state.SystemJD + state.OffsetDays;
    RecomputeAlmanac();
    RedrawMap();
}

TEST_F(DayNight, ScenesAreAsTheyWereAndStaySo) {
    for (const VectorRow& R : ReadVectors("scenes")) {
        const auto Whole = [&R](const char* Name) { return static_cast<std::int16_t>(R.In.Whole(Name)); };
        const std::string& Name = R.In.Texts["Picture"];
        Desktop.System = {Whole("Year"),   Whole("Month"),  0, Whole("Day"), Whole("Hour"),
                          Whole("Minute"), Whole("Second"), 0};
        if (std::exchange(Desktop.ScreenWidth, Whole("ScreenWidth")) != Whole("ScreenWidth") || LoadedForms.empty()) {
            RenewProgram();
            Start();
        }
        ShowScene(R.In);
        RedrawMap();  // the second shadow of a dial starts from the last hour line of the first
        const Bitmap Map = Painted(FormGTMain.PictureGTContainer);
        FormGTMain_Timer1_Timer();  // draws the location
        ExpectGoldenPicture(Name, Painted(FormGTMain.PictureGTContainer));
        RedrawMap();
        EXPECT_EQ(Painted(FormGTMain.PictureGTContainer).Pixels, Map.Pixels) << Name << ", redrawn";
    }
}

}  // namespace
}  // namespace gloamtide
