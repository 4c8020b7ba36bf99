#include "map/hour_ruler.h"

#include <cmath>

#include "clock/clock.h"
#include "map/day_night.h"
#include "tests/program_test.h"

namespace gloamtide {
namespace {

class Ruler : public ProgramTest {
protected:
    void StartAt(std::int16_t Hour, std::int16_t Minute, int ScreenWidth = 1024) {
        Desktop.ScreenWidth = ScreenWidth;
        Desktop.System = {2026, 12, 4, 31, Hour, Minute, 0, 500};
        Start();
        FormGTMain_Timer1_Timer();         // reads the clock, also where the program runs already
        state.CurrentJD += 0.5 / 86400.0;  // away from the cut of the seconds
        UpdateDateFields();
        RedrawMap();
    }

    // The lit stretches of a row of the band, in pixels from the map's left edge.
    static std::string Lit(int Row) {
        const Bitmap& Band = FormGTMain.PictureGTContainer.Canvas();
        std::string Text;
        bool Was = false;
        for (int X = 0; X < Band.Width; ++X) {
            const bool Now = Band.Row(Row)[X] == RGB(225, 225, 127);
            const int Column = X - static_cast<int>(FormGTMain.PictureGT.Left.Pixels());
            if (Now && !Was) Text += std::to_string(Column) + "-";
            if (!Now && Was) Text += std::to_string(Column - 1) + " ";
            Was = Now;
        }
        return Text;
    }
};

TEST_F(Ruler, DatesOnBothSidesOfTheDateLine) {
    StartAt(11, 30);
    EXPECT_EQ(FormGTMain.LabelEastOfIDLDate.Caption, "Dec 30, 2026");
    EXPECT_EQ(FormGTMain.LabelWestOfIDLDate.Caption, "Dec 31, 2026");
    state.CurrentJD += 1.0 / 24.0;
    UpdateDateFields();
    RedrawMap();
    EXPECT_EQ(FormGTMain.LabelEastOfIDLDate.Caption, "Dec 31, 2026");
    EXPECT_EQ(FormGTMain.LabelWestOfIDLDate.Caption, "Jan 1, 2027");
}

// Map of 956 pixels: the date line at 957 - MapShift, midnight half an hour of width left of its zone's middle.
TEST_F(Ruler, BarsReachToTheDateLineAndToMidnight) {
    StartAt(0, 0);
    EXPECT_EQ(Lit(14), "0-479 938-957 ");
    EXPECT_EQ(Lit(6), "480-937 ");
    StartAt(0, 29);
    EXPECT_EQ(Lit(14), "0-498 957-957 ");
    EXPECT_EQ(Lit(6), "499-956 ");
    StartAt(0, 30);
    EXPECT_EQ(Lit(6), "0-1 500-957 ");
    EXPECT_EQ(Lit(14), "2-499 ");
    StartAt(12, 0);
    EXPECT_EQ(Lit(14), "0-1 938-957 ");
    EXPECT_EQ(Lit(6), "2-937 ");
}

TEST_F(Ruler, TheLargestClassHasItsOwnRows) {
    StartAt(6, 10, 1280);
    EXPECT_NE(Lit(6), "");
    EXPECT_EQ(Lit(6), Lit(10));
    EXPECT_EQ(Lit(5), "");
    EXPECT_EQ(Lit(11), "");
    EXPECT_NE(Lit(17), "");
    EXPECT_EQ(Lit(17), Lit(21));
}

TEST_F(Ruler, NoBarStaysBehindInADay) {
    StartAt(0, 0, 640);
    for (int Minute = 0; Minute < 1440; Minute += 7) {
        state.CurrentJD += 7.0 / 1440.0;
        UpdateDateFields();
        RedrawMap();
        const Bitmap& Band = FormGTMain.PictureGTContainer.Picture;
        for (int X = Band.Width - 584; X < Band.Width; ++X) {
            const bool Both = Band.Row(6)[X] == RGB(225, 225, 127) && Band.Row(14)[X] == RGB(225, 225, 127);
            ASSERT_FALSE(Both) << "column " << X << " has two dates at minute " << Minute;
        }
    }
}

TEST_F(Ruler, HoursStandCentredOnTheirColumns) {
    StartAt(3, 30, 1280);
    state.ShowTimezones = True;
    FormPictures.PictureNightSplit.BackColor = 0;
    DrawZoneHourRuler();
    const Bitmap& Map = FormPictures.PictureNightSplit.Picture;
    const int Row = static_cast<int>((80.0 + 66.0) / 150.0 * 640.0) + 2;
    for (int Hour = 0; Hour < 24; ++Hour) {  // the headless host's letters are full boxes, five pixels wide
        const double Column = (Hour + 0.5) * 1182.0 / 24.0;
        int First = static_cast<int>(Column) - 20;
        while (Map.Row(Row)[First] == 0) ++First;
        int Last = First;
        while (Map.Row(Row)[Last + 1] != 0) ++Last;
        EXPECT_NEAR((First + Last + 1) / 2.0, Column, 1.0) << Hour;
    }
    RedrawMap();
    EXPECT_TRUE(FormGTMain.LabelZonehour.Visible);
    state.ShowTimezones = False;
    RedrawMap();
    EXPECT_FALSE(FormGTMain.LabelZonehour.Visible);
}

TEST_F(Ruler, BrokenTimesDrawNoBars) {
    StartAt(0, 0);
    for (const float Odd : {std::nanf(""), -1.0F, 60.0F, 29.5F, 1e30F}) {
        state.GreenwichMinute = Odd;
        state.GreenwichMonth = Odd;
        DrawZoneHourRuler();
        DrawDateBand();
        EXPECT_EQ(Lit(6), "");
        EXPECT_EQ(Lit(14), "");
    }
}

}  // namespace
}  // namespace gloamtide
