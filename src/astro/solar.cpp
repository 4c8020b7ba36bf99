#include "astro/solar.h"

#include "astro/degrees.h"
#include "state/numbers.h"
#include "state/state.h"

namespace gloamtide {

SolarSeries SolarElements(double Centuries) {
    const double T = Centuries;
    const double T2 = T * T;
    const double T3 = T2 * T;
    SolarSeries S{};
    S.Obliquity = 23.0 + 26.0 / 60.0 + 21.448 / 3600.0 - (46.815 / 3600.0) * T - (0.00059 / 3600.0) * T2 +
                  (0.001813 / 3600.0) * T3;
    S.MeanAnomaly = 357.5291 + 35999.0503 * T - 0.0001559 * T2 - 0.00000048 * T3;
    const double M = S.MeanAnomaly;
    S.EquationOfCentre = (1.9146 - 0.004817 * T - 0.000014 * T2) * SinDeg(M) +
                         (0.019993 - 0.000101 * T) * SinDeg(2.0 * M) + 0.00029 * SinDeg(3.0 * M);
    S.MeanLongitude = 280.46645 + 36000.76983 * T + 0.0003032 * T2;
    S.TrueLongitude = S.MeanLongitude + S.EquationOfCentre;
    S.Eccentricity = 0.016708617 - 0.000042037 * T - 0.0000001236 * T2;
    const double L0 = S.MeanLongitude;
    const double e = S.Eccentricity;
    const double TanHalf = TanDeg(S.Obliquity / 2.0);
    const double y = TanHalf * TanHalf;
    S.Y = y;
    S.EquationOfTime = y * SinDeg(2.0 * L0) - 2.0 * e * SinDeg(M) + 4.0 * e * y * SinDeg(M) * CosDeg(2.0 * L0) -
                       (y * y / 2.0) * SinDeg(4.0 * L0) - 1.25 * (e * e) * SinDeg(2.0 * M);
    return S;
}

float RightAscensionHours(double Y, double X) {
    float Hours = Single(ArcTanDeg(Y / X) / 15.0);
    if (X < 0.0) Hours += 12.0F;
    if (Hours < 0.0F) Hours += 24.0F;
    return Hours;
}

void SolarPosition() {
    const double T = (state.CurrentJD - 2451545.0) / 36525.0;
    state.JulianCenturies = T;
    state.JulianCenturies2 = T * T;
    state.JulianCenturies3 = T * T * T;

    const SolarSeries Sun = SolarElements(T);
    state.MeanObliquity = Sun.Obliquity;
    state.SunMeanAnomaly = Sun.MeanAnomaly;
    state.SunEquationOfCentre = Sun.EquationOfCentre;
    state.SunMeanLongitude = Sun.MeanLongitude;
    state.SunTrueLongitude = Sun.TrueLongitude;
    state.EarthEccentricity = Sun.Eccentricity;

    state.SunDeclination = ArcSinDeg(SinDeg(Sun.TrueLongitude) * SinDeg(Sun.Obliquity));
    state.TanSunDeclination = TanDeg(state.SunDeclination);
    state.SunRightAscension =
        RightAscensionHours(CosDeg(Sun.Obliquity) * SinDeg(Sun.TrueLongitude), CosDeg(Sun.TrueLongitude));
    state.EquationOfTime = Single((720.0 / Pi) * Sun.EquationOfTime);
    state.EquationOfTimeMapShift = Single((state.EquationOfTime / 1440.0) * state.MapWidth);
}

}  // namespace gloamtide
