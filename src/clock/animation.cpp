#include "clock/animation.h"

#include "astro/calendar.h"
#include "astro/lunar.h"
#include "astro/seasons.h"
#include "astro/solar.h"
#include "astro/sunrise.h"
#include "clock/clock.h"
#include "clock/recomputation.h"
#include "forms/form_animation.h"
#include "forms/form_gt_main.h"
#include "map/day_night.h"
#include "map/graticule.h"
#include "panel/information_panel.h"
#include "platform/host.h"
#include "state/numbers.h"
#include "state/state.h"

namespace gloamtide {
namespace {

void ShowAnimationLabels(bool Shown) {
    FormGTMain.LabelAnimInfo.Visible = Shown;
    FormGTMain.LabelAnimSteps.Visible = Shown;
    FormGTMain.CmdAnimStop.Visible = Shown;
}

void StepYears(double Years) {
    state.WorkJD = state.CurrentJD;
    state.WorkZoneHours = state.ZoneHours;
    state.WorkDaylightHours = state.DaylightHours;
    JulianToDate();
    state.WorkYear = Single(state.WorkYear + Years);
    DateToJulian();
    state.CurrentJD = state.WorkJD;
}

void FreezeAtLimit() {
    state.CurrentJD = state.CurrentJD >= HighestJD ? HighestJD : LowestJD;
    FormGTMain.Timer3.Enabled = false;
    FormGTMain.Timer1.Enabled = false;
    ShowAnimationLabels(false);
    host->Beep();
    ShowYearLimitMessage();
}

void Step(double Days, double Years) {
    state.SavedLocalSecond = ToInt16(state.LocalSecond);
    state.SavedGreenwichSecond = ToInt16(state.GreenwichSecond);
    state.CurrentJD = Days + state.CurrentJD;
    if (Years != 0.0) StepYears(Years);
    state.OffsetDays = state.CurrentJD - state.SystemJD;

    SolarPosition();
    LunarPosition();
    UpdateDateFields();
    SunriseSunset();
    state.LocalSecond = state.SavedLocalSecond;
    state.GreenwichSecond = state.SavedGreenwichSecond;
    SeasonCountdown();
    UpdateInformationPanel();
    RedrawMap();
    BlinkLocationMarker();
}

// Kept: after a step, so picture and panel show the first instant past the limit.
void StopAtLimit() {
    if (state.CurrentJD >= HighestJD || state.CurrentJD <= LowestJD) FreezeAtLimit();
}

void StartOrStop() { FormGTMain.Timer3.Enabled ? MenuAnimationSubStop_Click() : MenuAnimationSubStart_Click(); }

void ConnectKeys() {
    struct KeyStep {
        const char* Later;
        const char* Earlier;
        double Days;
        double Years;
    };
    constexpr KeyStep Steps[] = {{"Right", "Left", 1.0 / 24.0, 0.0},
                                 {"Shift+Right", "Shift+Left", 1.0, 0.0},
                                 {"Ctrl+Right", "Ctrl+Left", 30.0, 0.0},
                                 {"PgDown", "PgUp", 0.0, 1.0}};
    for (const KeyStep& Each : Steps) {
        FormGTMain.Keys[Each.Later] = [Each] { StepByHand(Each.Days, Each.Years); };
        FormGTMain.Keys[Each.Earlier] = [Each] { StepByHand(-Each.Days, -Each.Years); };
    }
    FormGTMain.Keys["Home"] = MenuAnimationSubNow_Click;
    FormGTMain.Keys["Space"] = StartOrStop;
}

}  // namespace

void ConnectAnimation() {
    MainForm& Main = FormGTMain;
    Main.MenuAnimationSubStart.Click = MenuAnimationSubStart_Click;
    Main.MenuAnimationSubStop.Click = MenuAnimationSubStop_Click;
    Main.CmdAnimStop.Click = MenuAnimationSubStop_Click;
    Main.MenuAnimationSubNow.Click = MenuAnimationSubNow_Click;
    Main.ButtonNow.Click = MenuAnimationSubNow_Click;
    Main.Timer3.Tick = FormGTMain_Timer3_Timer;
    ConnectKeys();
}

void MenuAnimationSubStart_Click() {
    const double Direction = FormAnimation.OptionAnimOptionsFwdBack[0].Value ? 1.0 : -1.0;
    state.AnimStepDays = Direction * (state.AnimHours / 24.0 + state.AnimDays);
    state.AnimStepYears = Direction * state.AnimYears;
    FormGTMain.Timer1.Enabled = false;
    FormGTMain.Timer3.Enabled = true;
    ShowAnimationLabels(true);
}

void MenuAnimationSubStop_Click() {
    FormGTMain.Timer3.Enabled = false;
    FormGTMain.Timer1.Enabled = true;
    ShowAnimationLabels(false);
}

void MenuAnimationSubNow_Click() {
    MenuAnimationSubStop_Click();
    ReadSystemClock();
    state.OffsetDays = 0.0;
    state.CurrentJD = state.SystemJD;
    state.ConfigSaved = False;
    RecomputeAlmanac();
    RedrawMap();
}

void FormGTMain_Timer3_Timer() {
    Step(state.AnimStepDays, state.AnimStepYears);
    host->Beep();
    StopAtLimit();
}

void StepByHand(double Days, double Years) {
    constexpr double HalfASecond = 0.5 / 86400.0;  // so that the calendar, which cuts seconds, loses none
    Step(Years == 0.0 ? Days : Days + HalfASecond, Years);
    if (!FormGTMain.Timer3.Enabled) FormGTMain.Timer1.Enabled = true;  // also where a limit had stopped it
    StopAtLimit();
}

}  // namespace gloamtide
