#include "app/almanac_data.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>
#include <cmath>
#include <cstdio>
#include <limits>

#include "app/instant.h"
#include "astro/subpoint.h"
#include "clock/clock.h"
#include "forms/form_gt_main.h"
#include "state/state.h"

namespace gloamtide {

std::string AlmanacText() {
    constexpr int ValueColumn = 25;
    const PictureSurface& Panel = FormGTMain.PictureGTData[static_cast<std::size_t>(state.ScreenClass)];
    QString Text;
    for (const Control* Each : Panel.Children) {
        const QString Caption = QString::fromStdString(dynamic_cast<const Label&>(*Each).Caption);
        if (QString::fromStdString(Each->Name).contains("Show(")) {
            Text += " " + Caption;
        } else {
            Text += (Text.isEmpty() ? "" : "\n") + Caption.leftJustified(ValueColumn);
        }
    }
    return (Text + "\n").toStdString();
}

namespace {

QJsonValue Number(double Value, int Decimals = 4) {
    if (!std::isfinite(Value)) return QJsonValue::Null;  // of a configuration made by hand
    const double Unit = std::pow(10.0, Decimals);
    const double Rounded = std::round(Value * Unit) / Unit;
    return Rounded == 0.0 ? 0.0 : Rounded;  // no -0
}

constexpr double None = std::numeric_limits<double>::quiet_NaN();

// Only a configuration made by hand has a place that is not on the Earth.
bool IsOnEarth(const EarthPoint& Point) {
    return std::abs(Point.Latitude) <= 90.0 && std::abs(Point.Longitude) <= 180.0;
}

QJsonObject Place(const EarthPoint& Point) {
    const EarthPoint Told = IsOnEarth(Point) ? Point : EarthPoint{None, None};
    return {{"latitude_degrees", Number(Told.Latitude)}, {"longitude_degrees", Number(Told.Longitude)}};
}

// The nearest whole second; null where it is none of the calendar's, as only a configuration made by hand has it.
QJsonValue TimeText(double JD, const char* Zone) {
    if (!(JD > LowestJD - 2.0 && JD < HighestJD + 2.0)) return QJsonValue::Null;
    return QString::fromStdString(IsoText(ReadingOf(std::llround((JD + 0.5) * 86400.0)))) + Zone;
}

QJsonObject Location() {
    const double HoursEast = static_cast<double>(state.DaylightHours) - state.ZoneHours;
    QJsonObject Result = Place({state.LocationLat, state.LocationLong});
    Result["name"] = QString::fromStdString(state.LocationName);
    Result["zone"] = QString::fromStdString(state.ZoneText);
    Result["daylight_saving"] = state.DaylightHours == 1;
    Result["utc_offset_hours"] = Number(HoursEast);
    Result["local_time"] = TimeText(state.CurrentJD + HoursEast / 24.0, "");
    return Result;
}

QJsonObject SunObject() {
    const EarthPoint Overhead = SunOverhead();
    const SkyPoint Sky =
        IsOnEarth({state.LocationLat, state.LocationLong}) ? SkyPointOf(Overhead) : SkyPoint{None, None};
    return {{"declination_degrees", Number(state.SunDeclination)},
            {"right_ascension_hours", Number(state.SunRightAscension)},
            {"equation_of_time_minutes", Number(state.EquationOfTime)},
            {"overhead", Place(Overhead)},
            {"altitude_degrees", Number(Sky.Altitude, 3)},
            {"azimuth_degrees", Number(Sky.Azimuth, 3)}};
}

// Local time of day, also where it falls on the day before or after.
QJsonObject RiseOrSet(int Hour, int Minute, double Seconds, const std::string& Change) {
    if (state.SunNoRiseSet == True) return {{"local_time", QJsonValue::Null}, {"change_seconds", QJsonValue::Null}};
    char Text[16];
    std::snprintf(Text, sizeof Text, "%02d:%02d", (Hour % 24 + 24) % 24, Minute);
    const bool Later = Change.find("Later") != std::string::npos;
    return {{"local_time", Text}, {"change_seconds", Number(Later ? Seconds : -Seconds, 1)}};
}

QJsonObject MoonObject() {
    QString Phase = QString::fromStdString(state.MoonPhaseText);
    Phase.remove('(').remove(')');
    return {{"declination_degrees", Number(state.MoonDeclination)},
            {"right_ascension_hours", Number(state.MoonRightAscension)},
            {"overhead", Place(MoonOverhead())},
            {"age_days", Number(state.MoonAgeDays, 2)},
            {"lit_percent", Number(state.MoonLitPercent, 1)},
            {"phase", Phase.trimmed()}};
}

QString NextSeason(const std::string& Season) {
    const QStringList Seasons = {"Spring", "Summer", "Autumn", "Winter"};
    return Seasons[(Seasons.indexOf(QString::fromStdString(Season)) + 1) % 4];
}

QJsonObject SeasonObject() {
    const QJsonObject Next = {{"north", NextSeason(state.SeasonNorth)},
                              {"south", NextSeason(state.SeasonSouth)},
                              {"days_left", Number(state.SeasonDaysLeft)}};
    return {{"north", QString::fromStdString(state.SeasonNorth)},
            {"south", QString::fromStdString(state.SeasonSouth)},
            {"next", Next}};
}

}  // namespace

std::string AlmanacJson(bool OneLine) {
    const QJsonObject Object = {
        {"instant", TimeText(state.CurrentJD, "Z")},
        {"julian_date", Number(state.CurrentJD, 5)},
        {"location", Location()},
        {"sun", SunObject()},
        {"sunrise",
         RiseOrSet(state.SunriseHour, state.SunriseMinute, state.SunriseChangeSeconds, state.SunriseChangeText)},
        {"sunset", RiseOrSet(state.SunsetHour, state.SunsetMinute, state.SunsetChangeSeconds, state.SunsetChangeText)},
        {"moon", MoonObject()},
        {"season", SeasonObject()}};
    const QByteArray Text = QJsonDocument(Object).toJson(OneLine ? QJsonDocument::Compact : QJsonDocument::Indented);
    return Text.toStdString() + (OneLine ? "\n" : "");
}

}  // namespace gloamtide
