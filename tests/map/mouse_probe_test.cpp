#include "map/mouse_probe.h"

#include "map/geometry.h"
#include "state/numbers.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

using Probe = ProgramTest;

// Over the whole map: the first city in the order of the table whose box of 0.8 degrees holds the pointer.
TEST_F(Probe, FindsTheCityThatAPlainReadingFinds) {
    Desktop.ScreenWidth = 1280;
    Desktop.System = {2026, 6, 1, 1, 17, 20, 0, 0};
    Start();
    state.ShowCities = True;
    for (int Column = 0; Column < 1182; Column += 3) {
        for (int Row = 0; Row < 640; Row += 2) {
            const float Y = static_cast<float>(80.0 - Row * 150.0 / 640.0);
            FormGTMain_PictureGT_MouseMove(static_cast<float>(1182 - Column), Y);
            double Longitude = (Column + state.MapShift) * 360.0 / 1182.0 - 180.0;
            if (Longitude >= 180.0) Longitude -= 360.0;
            std::string Expected;
            bool OnAnEdge = false;  // of a city's box, where single precision decides
            for (std::size_t Each = 350; Each >= 1; --Each) {
                const double East = std::abs(state.CityLongitude[Each] - Longitude);
                const double North = std::abs(state.CityLatitude[Each] - Y);
                if (East < 0.4 && North < 0.4) Expected = state.CityName[Each];
                OnAnEdge = OnAnEdge || std::abs(East - 0.4) < 1e-4 || std::abs(North - 0.4) < 1e-4;
            }
            if (OnAnEdge) continue;
            ASSERT_EQ(FormGTMain.LabelCity.Caption, Expected) << Column << ", " << Row;
        }
    }
}

// The places of tests/data/published_subpoints.txt, but the Moon's 0.04 degrees beside it, as the program has it.
TEST_F(Probe, TellsWhereSunAndMoonStandOverhead) {
    Desktop.ScreenWidth = 1280;
    Desktop.System = {2026, 12, 1, 21, 20, 50, 0, 0};
    Start();
    const auto& Tip = FormGTMain.PictureGT.ToolTipText.Get();
    const auto Point = [](float Hour, double Latitude, float Aside) {
        FormGTMain_PictureGT_MouseMove(HourToMapX(Hour) + Aside, Single(Latitude));
    };
    for (const Boolean Shown : {True, False}) {
        state.ShowSun = state.ShowMoon = Shown;
        Point(12.0F - state.EquationOfTime / 60.0F, state.SunDeclination, 5.0F);
        EXPECT_EQ(Tip, Shown == True ? "Sun overhead 23.4 S, 132.9 W" : "");
        Point(state.MoonMapHour, state.MoonDeclination, 0.0F);
        EXPECT_EQ(Tip, Shown == True ? "Moon, 91 % lit, overhead 24.9 N, 12.7 E" : "");
        Point(state.MoonMapHour, state.MoonDeclination, 12.0F);
        EXPECT_EQ(Tip, "");
    }
}

}  // namespace
}  // namespace gloamtide
