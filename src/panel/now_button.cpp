#include "panel/now_button.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <tuple>

#include "astro/calendar.h"
#include "forms/form_gt_main.h"
#include "platform/translation.h"
#include "state/number_pattern.h"
#include "state/numbers.h"
#include "state/state.h"

namespace gloamtide {
namespace {

constexpr double SecondsADay = 86400.0;

// The same day and time so many years later on the location's calendar, to the second.
double YearsLater(double JD, double Years) {
    state.WorkJD = JD + 0.5 / SecondsADay;
    state.WorkZoneHours = state.ZoneHours;
    state.WorkDaylightHours = state.DaylightHours;
    JulianToDate();
    state.WorkYear = Single(state.WorkYear + Years);
    DateToJulian();
    return state.WorkJD;
}

double WholeYears(double From, double To) {
    const double Slack = 1.0 / SecondsADay;  // a sum of other terms may round up
    double Years = std::floor((To - From) / 365.25) + 1.0;
    while (Years > 0.0 && YearsLater(From, Years) > To + Slack) Years -= 1.0;
    return Years;
}

// The largest unit of a span of time and what the next one adds: "8 years 3 days", "5 hours".
std::string Span(double From, double To) {
    const double Years = WholeYears(From, To);
    const double Rest = std::max(0.0, To - (Years == 0.0 ? From : YearsLater(From, Years)));  // days
    const double Seconds = RoundHalfEven(Rest * SecondsADay);
    const std::tuple<double, const char*, const char*> Parts[] = {
        {Years, "%1 year", "%1 years"},
        {std::floor(Seconds / SecondsADay), "%1 day", "%1 days"},
        {std::fmod(std::floor(Seconds / 3600.0), 24.0), "%1 hour", "%1 hours"},
        {std::fmod(std::floor(Seconds / 60.0), 60.0), "%1 minute", "%1 minutes"},
        {std::fmod(Seconds, 60.0), "%1 second", "%1 seconds"}};
    std::string Text;
    for (const auto& [Count, One, Many] : Parts) {
        const bool Second = !Text.empty();
        if (Count > 0.0) {
            Text.append(Second ? " " : "").append(Tr(Count == 1.0 ? One : Many, {PlainNumber(Single(Count))}));
        }
        if (Second) break;
    }
    return Text;
}

std::string Difference() {
    constexpr double LargestSpan = 3e6;  // days, more than all the years that there are
    if (!(std::abs(state.OffsetDays) < LargestSpan)) return Tr("Far from the present");
    const double Shown = state.SystemJD + state.OffsetDays;
    return state.OffsetDays < 0.0 ? Tr("%1 in the past", {Span(Shown, state.SystemJD)})
                                  : Tr("%1 in the future", {Span(state.SystemJD, Shown)});
}

}  // namespace

void ShowNowButton() {
    const bool Shown = !(std::abs(state.OffsetDays) < 1.0 / SecondsADay);
    if (Shown) {
        const float SecondBefore = state.WorkSecond;
        FormGTMain.ButtonNow.ToolTipText = Difference();
        state.WorkSecond = SecondBefore;  // which the Configure dialog takes up
    }
    FormGTMain.ButtonNow.Visible = Shown;
}

}  // namespace gloamtide
