#include "map/hour_ruler.h"

#include <cmath>

#include "astro/calendar.h"
#include "forms/form_gt_main.h"
#include "forms/form_pictures.h"
#include "state/number_pattern.h"
#include "state/numbers.h"
#include "state/state.h"

namespace gloamtide {

void DrawZoneHourRuler() {
    PictureSurface& Map = FormPictures.PictureNightSplit;
    Map.ForeColor = RGB(255, 255, 127);
    Map.TextRimmed = true;
    Map.FontName = state.ScreenClass == 3 ? "MS Sans Serif" : "MS Serif";
    Map.FontSize = state.ScreenClass == 3 ? 8.0 : 7.0;
    state.HourRulerHalfText = Single(Map.TextWidth("00") / 2.0);
    for (int Hour = 0; Hour < 24; ++Hour) {
        const double Column = (Hour + state.GreenwichMinute / 60.0) * state.MapWidth / 24.0;  // map pixels
        Map.CurrentX = state.MapWidth - Column + state.HourRulerHalfText;                     // X falls to the right
        Map.CurrentY = -66.0;
        Map.Print(FormatNumber(Hour, "00"));
    }
}

namespace {

// A row of the band, pixels from the top of the window.
struct BandRow {
    double Top;
    double Bottom;
};

void DrawBar(const BandRow& Row, float From, float To) {
    FormGTMain.PictureGTContainer.Line(From, Row.Top, To, Row.Bottom, RGB(225, 225, 127), LineForm::BoxFilled);
}

// The upper row is the date just east of the date line, the lower row the date just west of it.
void DrawBars() {
    PictureSurface& Band = FormGTMain.PictureGTContainer;
    const bool Large = state.ScreenClass == 3;
    const BandRow Upper = Large ? BandRow{6.0, 10.0} : BandRow{5.0, 8.0};
    const BandRow Lower = Large ? BandRow{17.0, 21.0} : BandRow{13.0, 16.0};
    const float L = Single(FormGTMain.PictureGT.Left);
    const float W = state.MapWidth;
    const float Minute = state.GreenwichMinute;
    // Bars reach one pixel beyond the map, or two when the map is not rotated at all.
    Band.Line(L, Upper.Top, L + W + 2.0F, Lower.Bottom, QBColor(0), LineForm::BoxFilled);

    // The date line is where the unrotated map has its left edge. The date changes at the western edge of the zone
    // whose clocks show 0 hours: half an hour of width left of its middle, on one side of the map or on the other.
    const float DateLine = L + 1.0F + W - Single(state.MapShift);
    if (Minute >= 0.0F && Minute <= 29.0F) {
        const float Midnight = Single((Minute / 60.0 + 23.5) / 24.0 * W + L + 1.0);
        DrawBar(Lower, L, DateLine);
        DrawBar(Upper, DateLine + 1.0F, Midnight);
        DrawBar(Lower, Midnight + 1.0F, L + 1.0F + W);
    } else if (Minute >= 30.0F && Minute <= 59.0F) {
        const float Midnight = Single((Minute / 60.0 - 0.5) / 24.0 * W + L + 1.0);
        DrawBar(Upper, L, Midnight);
        DrawBar(Lower, Midnight + 1.0F, DateLine);
        DrawBar(Upper, DateLine + 1.0F, L + 1.0F + W);
    }
}

std::string DateText(float Month, float Day, float Year) {
    constexpr float Farthest = 1e6F;  // years; a broken date has none within, or no month
    if (!(Month >= 1.0F && Month <= 12.0F && std::abs(Year) < Farthest)) return "";
    return state.MonthAbbreviations[static_cast<std::size_t>(Month)] + PlainNumber(Day) + ", " + PlainNumber(Year);
}

// The Greenwich date of an instant.
std::string DateOf(double JD) {
    state.WorkJD = JD;
    state.WorkZoneHours = 0.0F;
    state.WorkDaylightHours = 0;
    JulianToDate();
    return DateText(state.WorkMonth, state.WorkDay, state.WorkYear);
}

}  // namespace

void DrawDateBand() {
    DrawBars();
    const std::string Yesterday = DateOf(state.CurrentJD - 1.0);
    const std::string Today = DateText(state.GreenwichMonth, state.GreenwichDay, state.GreenwichYear);
    const std::string Tomorrow = DateOf(state.CurrentJD + 1.0);
    const bool Morning = state.GreenwichHour < 12.0F;
    FormGTMain.LabelEastOfIDLDate.Caption = Morning ? Yesterday : Today;
    FormGTMain.LabelWestOfIDLDate.Caption = Morning ? Today : Tomorrow;
}

}  // namespace gloamtide
