#include "sundial/dial.h"

#include <algorithm>
#include <cmath>

#include "astro/degrees.h"
#include "forms/form_gt_main.h"
#include "state/numbers.h"
#include "state/state.h"

namespace gloamtide {
namespace {

double LatitudeMagnitude() { return std::abs(state.LocationLat); }
bool NearEquator() { return LatitudeMagnitude() < 10.0; }
Color ColorOf(float Field) { return static_cast<Color>(ToInt32(Field)); }

// An hour as an angle from noon, 0 to 360.
double HourAngle(float Hour) {
    double Angle = Hour * 15.0 - 180.0;
    if (Angle < 0.0) Angle += 360.0;
    if (Angle > 360.0) Angle -= 360.0;
    return Angle;
}

// The field's store is single, but what follows reckons in double.
void SetUpDial() {
    state.SundialDayColor = 12640511.0F;
    state.SundialLineColor = 0.0F;
    state.SundialGnomonColor = 0.0F;
    state.SundialShadowColor = 8421504.0F;
    const double Zones = (state.LocationLong + 187.5) / 15.0;
    state.LongitudeCorrectionMinutes = Single(60.0 * (Zones - std::floor(Zones)) - 30.0);
    state.GnomonThickness = 16.0F;
    state.SundialHour = Single(
        (static_cast<double>(state.EquationOfTime) + state.LocalMinute + state.LongitudeCorrectionMinutes) / 60.0 +
        (static_cast<double>(state.LocalHour) - state.DaylightHours));
    // Near the equator a far centre fans out the lines that would crowd along the noon line.
    state.GnomonBaseY = NearEquator() ? -3000 : 0;
    state.GnomonLength = NearEquator() ? 3800.0F : 800.0F;
    state.GnomonHeight = Single(std::abs(state.GnomonLength * TanDeg(state.LocationLat)));
}

void ChooseHours() {
    struct Span {
        double Below;  // degrees of latitude
        std::int16_t First, Last;
    };
    constexpr Span Spans[] = {{10.0, 7, 17}, {40.0, 4, 20}, {53.0, 3, 21}, {60.0, 2, 22}};
    const double Latitude = LatitudeMagnitude();
    const auto* const Found = std::find_if(std::begin(Spans), std::end(Spans),
                                           [Latitude](const Span& Each) { return Latitude < Each.Below; });
    state.FirstDialHour = Found == std::end(Spans) ? std::int16_t{0} : Found->First;
    state.LastDialHour = Found == std::end(Spans) ? std::int16_t{23} : Found->Last;
}

void DrawHourLine() {
    PictureSurface& Dial = FormGTMain.PictureSundial;
    const Color Ink = ColorOf(state.SundialLineColor);
    const double EndX = static_cast<double>(state.HourLineEndX) + state.HourLineOffset;
    if (!NearEquator()) {
        Dial.Line(state.HourLineEndX / 100.0 + state.HourLineOffset, state.HourLineEndY / 100.0, EndX,
                  state.HourLineEndY, Ink);
        return;
    }
    double Rise = static_cast<double>(state.HourLineEndY) - state.GnomonBaseY;
    if (std::abs(Rise) < 0.01) Rise = 0.01;
    const double StartX = state.HourLineOffset + (-500.0 - state.GnomonBaseY) * state.HourLineEndX / Rise;
    Dial.Line(StartX, -500.0, EndX, state.HourLineEndY, Ink);
}

// Where an hour line ends and where its number stands, for a quarter of the dial.
void EndLine(double TrialX, double TrialY, double SideX, double SideY, double LabelX, double LabelY, double SideLabelX,
             double SideLabelY) {
    state.HourLineEndX = Single(TrialX);
    state.HourLineEndY = Single(TrialY);
    const bool OnSide = std::abs(state.HourLineEndX) > 1000.0F;
    if (OnSide) {
        state.HourLineEndX = Single(SideX);
        state.HourLineEndY = Single(SideY);
    }
    const int Hour = ToInt16(state.SundialHour);
    if (Hour < 0 || Hour > 23) return;
    FormGTMain.LabelHour[static_cast<std::size_t>(Hour)].Move(state.HourLineEndX + (OnSide ? SideLabelX : LabelX),
                                                              state.HourLineEndY + (OnSide ? SideLabelY : LabelY));
}

}  // namespace

void ComputeHourLineAngle() {
    const double Daylight = state.SundialDSTCorrection == True ? state.DaylightHours * -15.0 : 0.0;
    const double Equation = state.SundialEOTCorrection == True ? state.EquationOfTime / 4.0 : 0.0;
    const double Longitude = state.SundialLongitudeCorrection == True ? state.LongitudeCorrectionMinutes / 4.0 : 0.0;
    state.HourLineHourAngle = HourAngle(state.SundialHour);
    double Angle = state.HourLineHourAngle + Equation + Daylight + Longitude;
    if (Angle < 0.0) Angle += 360.0;
    if (Angle > 360.0) Angle -= 360.0;
    // At exactly 90 and 270 degrees the tangent is huge and negative; see Pi.
    state.HourLineAngle = Single(ArcTanDeg(SinDeg(LatitudeMagnitude()) * TanDeg(Angle)));
    if (Angle >= 90.0 && Angle < 270.0) state.HourLineAngle += 180.0F;
    if (Angle >= 270.0 && Angle <= 360.0) state.HourLineAngle += 360.0F;
    if (state.LocationLat < 0.0) state.HourLineAngle = 360.0F - state.HourLineAngle;
    state.HourLineOffset = state.HourLineAngle > 180.0F ? -state.GnomonThickness / 2.0F : state.GnomonThickness / 2.0F;
}

void PlaceHourLine() {
    ComputeHourLineAngle();
    const double a = state.HourLineAngle;
    const double Base = state.GnomonBaseY;
    const double b = std::abs(Base);
    if (a >= 0.0 && a <= 89.9999F) {
        EndLine((b + 1000.0) * TanDeg(a), 1000.0, 1000.0, Base + 1000.0 * TanDeg(90.0 - a), -15.0, 100.0, 15.0, 50.0);
    } else if (a >= 90.0 && a <= 179.9999F) {
        EndLine((b + 500.0) * TanDeg(180.0 - a), -500.0, 1000.0, Base - 1000.0 * TanDeg(a - 90.0), -15.0, 0.0, 15.0,
                50.0);
    } else if (a >= 180.0 && a <= 270.0) {
        EndLine(-(b + 500.0) * TanDeg(a - 180.0), -500.0, -1000.0, Base - 1000.0 * TanDeg(270.0 - a), -15.0, 0.0, -80.0,
                20.0);
    } else if (a >= 270.0001F && a <= 360.0) {
        EndLine(-(b + 1000.0) * TanDeg(360.0 - a), 1000.0, -1000.0, Base + 1000.0 * TanDeg(a - 270.0), -25.0, 100.0,
                -80.0, 50.0);
    }
}

void DrawSundialShadow() {
    MainForm& F = FormGTMain;
    const double Lat = state.LocationLat;
    const double Declination = state.SunDeclination;
    state.SolarHourAngle = HourAngle(state.SundialHour);
    const double H = state.SolarHourAngle;
    state.SinSunAltitude = SinDeg(Lat) * SinDeg(Declination) + CosDeg(H) * CosDeg(Lat) * CosDeg(Declination);
    const bool Day = state.SinSunAltitude > 0.0026;  // the sine of 0.15 degrees
    F.PictureSundial.BackColor = ColorOf(Day ? state.SundialDayColor : state.SundialShadowColor);
    F.LabelTwilightNight.Visible = !Day;
    F.LabelSundialMotto.Visible = Day;
    if (!Day) return;

    state.SunAltitude = ArcSinDeg(state.SinSunAltitude);
    const double Length = std::abs(CosDeg(state.SunAltitude) * state.GnomonHeight / state.SinSunAltitude);
    double D = SinDeg(Lat) * CosDeg(H) - CosDeg(Lat) * TanDeg(Declination);
    if (std::abs(D) < 0.001) D = 0.001;
    state.SunAzimuth = ArcTanDeg(SinDeg(H) / D);
    if (state.SunAzimuth < 0.0 && H < 180.0) state.SunAzimuth += 180.0;
    if (state.SunAzimuth >= 0.0 && H >= 180.0) state.SunAzimuth -= 180.0;
    if (Lat < 0.0) state.SunAzimuth += 180.0;

    const float Side = state.SunAzimuth > 180.0 ? -state.GnomonThickness / 2.0F : state.GnomonThickness / 2.0F;
    constexpr double Farthest = 300000.0;  // dial units
    // Kept: the offset is the one that the last hour line of the previous drawing left.
    const float TipX =
        Single(std::clamp(state.HourLineOffset + Length * SinDeg(state.SunAzimuth), -Farthest, Farthest));
    const double Top = state.GnomonBaseY + static_cast<double>(state.GnomonLength);
    const float TipY = Single(std::clamp(Top + Length * CosDeg(state.SunAzimuth), -Farthest, Farthest));
    F.PictureSundial.DrawWidth = 1;
    for (int Y = state.GnomonBaseY; Y <= ToInt32(Top); Y += 5) {
        F.PictureSundial.Line(TipX, TipY, Side, Y, ColorOf(state.SundialShadowColor));
    }
}

void DrawSundial() {
    MainForm& F = FormGTMain;
    PictureSurface& Dial = F.PictureSundial;
    SetUpDial();
    Dial.BackColor = ColorOf(state.SundialDayColor);
    for (Label& Hour : F.LabelHour) Hour.Visible = false;
    F.LabelTwilightNight.Visible = false;
    F.LabelSundialMotto.Visible = false;
    Dial.Scale(-1100.0, 1100.0, 1100.0, -600.0);
    Dial.DrawStyle = DrawStyles::Solid;
    DrawSundialShadow();

    Dial.DrawWidth = 2;
    Dial.Line(-1000.0, 1000.0, 1000.0, -500.0, ColorOf(state.SundialLineColor), LineForm::Box);
    const double HalfThickness = state.GnomonThickness / 2.0;
    Dial.Line(-HalfThickness, state.GnomonBaseY, HalfThickness,
              static_cast<float>(state.GnomonBaseY) + state.GnomonLength, ColorOf(state.SundialGnomonColor),
              LineForm::BoxFilled);

    ChooseHours();
    Dial.DrawWidth = 1;
    for (state.SundialHour = state.FirstDialHour; state.SundialHour <= static_cast<float>(state.LastDialHour);
         state.SundialHour += 1.0F) {
        PlaceHourLine();
        F.LabelHour[static_cast<std::size_t>(state.SundialHour)].Visible = true;
        DrawHourLine();
    }
}

}  // namespace gloamtide
