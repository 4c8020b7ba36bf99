#include "clock/animation.h"

#include "astro/calendar.h"
#include "astro/lunar.h"
#include "astro/seasons.h"
#include "astro/solar.h"
#include "astro/sunrise.h"
#include "clock/clock.h"
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

void StepYears() {
    state.WorkJD = state.CurrentJD;
    state.WorkZoneHours = state.ZoneHours;
    state.WorkDaylightHours = state.DaylightHours;
    JulianToDate();
    state.WorkYear = Single(state.WorkYear + state.AnimStepYears);
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

}  // namespace

void ConnectAnimation() {
    MainForm& Main = FormGTMain;
    Main.MenuAnimationSubStart.Click = MenuAnimationSubStart_Click;
    Main.MenuAnimationSubStop.Click = MenuAnimationSubStop_Click;
    Main.CmdAnimStop.Click = MenuAnimationSubStop_Click;
    Main.Timer3.Tick = FormGTMain_Timer3_Timer;
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

// Kept: sunrise and sunset are reckoned from the new date here, everywhere else from the one before. The limits are
// tested last, so picture and panel show the first instant past them.
void FormGTMain_Timer3_Timer() {
    state.SavedLocalSecond = ToInt16(state.LocalSecond);
    state.SavedGreenwichSecond = ToInt16(state.GreenwichSecond);
    state.CurrentJD = state.AnimStepDays + state.CurrentJD;
    if (state.AnimStepYears != 0.0) StepYears();
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
    host->Beep();
    if (state.CurrentJD >= HighestJD || state.CurrentJD <= LowestJD) FreezeAtLimit();
}

}  // namespace gloamtide
