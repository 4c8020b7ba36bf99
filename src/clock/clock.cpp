#include "clock/clock.h"

#include "astro/calendar.h"
#include "astro/lunar.h"
#include "astro/solar.h"
#include "forms/form_gt_main.h"
#include "map/day_night.h"
#include "map/graticule.h"
#include "map/stored_pictures.h"
#include "panel/information_panel.h"
#include "platform/host.h"
#include "state/state.h"

namespace gloamtide {

void ReadSystemClock() {
    state.SystemTimeBuffer = host->SystemTime();
    const DateTime& Now = state.SystemTimeBuffer;
    state.WorkMonth = Now.Month;
    state.WorkDay = Now.Day;
    state.WorkYear = Now.Year;
    state.WorkHour = Now.Hour;
    state.WorkMinute = Now.Minute;
    state.WorkSecond = Now.Second;
    state.WorkDaylightHours = 0;
    state.WorkZoneHours = 0.0F;
    DateToJulian();
    state.SystemJD = state.WorkJD;
}

void UpdateDateFields() {
    state.WorkJD = state.CurrentJD;
    state.WorkZoneHours = state.ZoneHours;
    state.WorkDaylightHours = state.DaylightHours;
    JulianToDate();
    state.LocalYear = state.WorkYear;
    state.LocalMonth = state.WorkMonth;
    state.LocalDay = state.WorkDay;
    state.LocalHour = state.WorkHour;
    state.LocalMinute = state.WorkMinute;
    state.LocalSecond = state.WorkSecond;

    state.WorkJD = state.CurrentJD;
    state.WorkZoneHours = 0.0F;
    state.WorkDaylightHours = 0;
    JulianToDate();
    state.GreenwichYear = state.WorkYear;
    state.GreenwichMonth = state.WorkMonth;
    state.GreenwichDay = state.WorkDay;
    state.GreenwichHour = state.WorkHour;
    state.GreenwichMinute = state.WorkMinute;
    state.GreenwichSecond = state.WorkSecond;
}

void ShowYearLimitMessage() {
    host->ShowMessage({"Gloamtide Year Limit Reached",
                       "The Gloamtide year has passed out of its range of -4000 to +4000. Please use the Configure or "
                       "File/Open Menu to restore the year to within the valid range.  The Map Display and Almanac "
                       "Panel will remain frozen until the year is valid.",
                       MessageIcon::Exclamation});
}

// Kept: the limit is tested after the panel was written, so the panel shows the first instant past it.
void FormGTMain_Timer1_Timer() {
    ReadSystemClock();
    state.CurrentJD = state.OffsetDays + state.SystemJD;
    UpdateDateFields();
    UpdateInformationPanel();
    if (state.CurrentJD >= HighestJD) {
        state.CurrentJD = HighestJD;
        FormGTMain.Timer1.Enabled = false;
        host->Beep();
        ShowYearLimitMessage();
    }
    BlinkLocationMarker();
}

void FormGTMain_Timer2_Timer() {
    SolarPosition();
    LunarPosition();
    RedrawMap();
}

void FormGTMain_Timer4_Timer() {
    ResetMapPictures();
    state.ConfigSaved = False;
    RedrawMap();
    FormGTMain.LabelWorking.Visible = false;
    FormGTMain.Timer4.Enabled = false;
}

}  // namespace gloamtide
