#include "astro/sunrise.h"

#include <cmath>

#include "astro/degrees.h"
#include "astro/solar.h"
#include "state/numbers.h"
#include "state/state.h"

namespace gloamtide {
namespace {

float DeclinationOf(const SolarSeries& Sun) {
    return Single(ArcSinDeg(SinDeg(Sun.TrueLongitude) * SinDeg(Sun.Obliquity)));
}

// The Sun at noon, Universal Time, of a Julian day number.
struct DaySun {
    float Declination;         // degrees
    double EquationOfTimeMin;  // minutes, not rounded to single
};

DaySun SunOfDay(double DayNumber) {
    const SolarSeries Sun = SolarElements((DayNumber - 2451545.0) / 36525.0);
    return {DeclinationOf(Sun), (720.0 / Pi) * Sun.EquationOfTime};
}

// Local decimal hours, not reduced to 0..24.
struct RiseAndSet {
    double Rise;
    double Set;
};

RiseAndSet TimesOf(const DaySun& Sun) {
    const double Phi = state.LocationLat;
    // The cosine of 90.833 degrees: refraction and the Sun's half width.
    const double HourAngle =
        ArcCosDeg(-0.014538 / (CosDeg(Phi) * CosDeg(Sun.Declination)) - TanDeg(Phi) * TanDeg(Sun.Declination));
    const double Longitude = state.LocationLong;
    // 720 minutes are noon, 4 minutes a degree.
    const auto LocalHours = [&](double Angle) {
        return ((720.0 + 4.0 * (Angle - Longitude) - Sun.EquationOfTimeMin) / 60.0) - state.ZoneHours +
               state.DaylightHours;
    };
    return {LocalHours(-HourAngle), LocalHours(HourAngle)};
}

void SplitTime(double Hours, std::int16_t& Hour, std::int16_t& Minute) {
    const double WholeHours = std::floor(Hours);
    const double Minutes = std::floor(0.5 + 60.0 * (Hours - WholeHours));
    Hour = ToInt16(Minutes == 60.0 ? WholeHours + 1.0 : WholeHours);
    Minute = ToInt16(Minutes == 60.0 ? 0.0 : Minutes);
}

void TellChange(double Difference, float& Seconds, std::string& Text) {
    Text = Difference > 0.0 ? " Sec Later Than Yesterday)" : " Sec Earlier Than Yesterday)";
    Seconds = Single(3600.0 * std::abs(Difference));
}

}  // namespace

void SunriseSunset() {
    // The daylight-saving hour does not enter: in its first hour a day still has yesterday's number.
    const double DayNumber = std::floor(state.CurrentJD - state.ZoneHours / 24.0 + 0.5);
    state.SunNoRiseSet = False;
    const DaySun Today = SunOfDay(DayNumber);
    const double P = TanDeg(state.LocationLat) * TanDeg(Today.Declination);
    if (P >= 1.0 || P <= -1.0) {
        state.SunNoRiseSet = True;
        state.SunNoRiseSetText = P >= 1.0 ? "24 hour day" : "24 hour night";
        return;
    }
    const RiseAndSet Times = TimesOf(Today);
    SplitTime(Times.Rise, state.SunriseHour, state.SunriseMinute);
    SplitTime(Times.Set, state.SunsetHour, state.SunsetMinute);
    const RiseAndSet Before = TimesOf(SunOfDay(DayNumber - 1.0));
    TellChange(Times.Rise - Before.Rise, state.SunriseChangeSeconds, state.SunriseChangeText);
    TellChange(Times.Set - Before.Set, state.SunsetChangeSeconds, state.SunsetChangeText);
}

SubsolarPoint SubsolarPointAt(double JD) {
    const SolarSeries Sun = SolarElements((JD - 2451545.0) / 36525.0);
    return {DeclinationOf(Sun), Single((12.0 / Pi) * Sun.EquationOfTime)};
}

}  // namespace gloamtide
