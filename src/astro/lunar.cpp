#include "astro/lunar.h"

#include <algorithm>

#include "astro/degrees.h"
#include "astro/solar.h"
#include "state/numbers.h"
#include "state/state.h"

namespace gloamtide {

void LunarPosition() {
    const double T = state.JulianCenturies;
    const double T2 = state.JulianCenturies2;
    const double T3 = state.JulianCenturies3;
    // Kept: 477198.9 in the mean anomaly, where later printings of the source have 477198.8.
    state.MoonMeanLongitude = 218.3164591 + 481267.88134236 * T - 0.0013268 * T2 + T3 / 538841.0;
    state.MoonMeanElongation = 297.8502042 + 445267.1115168 * T - 0.00163 * T2 + T3 / 545868.0;
    state.MoonMeanAnomaly = 134.9634114 + 477198.9676313 * T + 0.008997 * T2 + T3 / 69699.0;
    state.MoonArgumentOfLatitude = 93.2720993 + 483202.0175273 * T - 0.0034029 * T2 - T3 / 3526000.0;
    const double D = state.MoonMeanElongation;
    const double M = state.SunMeanAnomaly;
    const double Mm = state.MoonMeanAnomaly;
    const double F = state.MoonArgumentOfLatitude;
    const double E = 1.0 - 0.002516 * T - 0.0000074 * T2;  // the Earth's orbit grows rounder

    state.MoonEclipticLatitude = 0.280602 * SinDeg(Mm + F) + 5.128122 * SinDeg(F) + 0.277693 * SinDeg(Mm - F) +
                                 0.173237 * SinDeg(2.0 * D - F) + 0.055413 * SinDeg(2.0 * D - Mm + F) +
                                 0.046271 * SinDeg(2.0 * D - Mm - F);
    state.MoonEclipticLongitude = state.MoonMeanLongitude + 6.288774 * SinDeg(Mm) + 1.274027 * SinDeg(2.0 * D - Mm) +
                                  0.658314 * SinDeg(2.0 * D) + 0.213618 * SinDeg(2.0 * Mm) - 0.185116 * E * SinDeg(M) -
                                  0.114332 * SinDeg(2.0 * F);

    const double Lambda = state.MoonEclipticLongitude;
    const double Beta = state.MoonEclipticLatitude;
    const double Epsilon = state.MeanObliquity;
    state.MoonDeclination =
        Single(ArcSinDeg(SinDeg(Beta) * CosDeg(Epsilon) + CosDeg(Beta) * SinDeg(Epsilon) * SinDeg(Lambda)));
    state.MoonRightAscension =
        RightAscensionHours(SinDeg(Lambda) * CosDeg(Epsilon) - TanDeg(Beta) * SinDeg(Epsilon), CosDeg(Lambda));

    // Kept: the equation of time is added here, where the Sun's marker subtracts it.
    state.MoonMapHour = state.MoonRightAscension - state.SunRightAscension + 12.0F + state.EquationOfTime / 60.0F;
    if (state.MoonMapHour > 24.0F) state.MoonMapHour -= 24.0F;
    if (state.MoonMapHour < 0.0F) state.MoonMapHour += 24.0F;

    state.MoonElongationHours = state.MoonRightAscension - state.SunRightAscension;
    if (state.MoonElongationHours < 0.0F) state.MoonElongationHours += 24.0F;
    state.MoonAgeDays = Single(state.MoonElongationHours * 29.530589 / 24.0);
    const float Angle = state.MoonElongationHours * 360.0F / 24.0F;
    state.MoonLitPercent = Single(100.0 * (1.0 - CosDeg(Angle)) / 2.0);
}

namespace {

// Between new and full moon, and after.
const char* PhaseBetween(float ElongationHours) {
    if (ElongationHours <= 5.23F) return "(Waxing)";
    if (ElongationHours <= 6.77F) return "(1st Quarter)";
    if (ElongationHours <= 17.23F) return "(Gibbous)";
    if (ElongationHours <= 18.77F) return "(3rd Quarter)";
    return "(Waning)";
}

}  // namespace

void ChooseMoonPhaseText() {
    const float H = state.MoonElongationHours;
    const bool LateInMonth = state.LocalDay >= 29.0F;  // Kept: no search for the month's first full or new moon
    if (H < 0.541F || H > 23.459F) {
        state.MoonPhaseText = LateInMonth ? "(2nd New Moon of Month -- Black Moon)" : "(New)";
    } else if (H > 11.459F && H <= 12.541F) {
        const int Month = std::clamp<int>(ToInt16(state.LocalMonth), 1, 12);  // a broken date has no month
        state.MoonPhaseText = LateInMonth ? "(2nd Full Moon of Month -- Blue Moon)"
                                          : "(Full -- " + state.MoonNames[static_cast<std::size_t>(Month)] + ")";
    } else {
        state.MoonPhaseText = PhaseBetween(H);
    }
}

}  // namespace gloamtide
