// The shared state: one flat set of fields that lives as long as the process. All routines read and write it.
//
// Widths are part of the meaning: a value stored as single (float) is rounded there, and what stands between stores is
// reckoned in double. Each group names the file that owns what its fields mean.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/date_time.h"

namespace gloamtide {

using Boolean = std::int16_t;
constexpr Boolean True = -1;
constexpr Boolean False = 0;

// Where the configuration comes from at the start.
enum class ConfigurationSource {
    StartupFile,  // the file that "Startup.dat" names
    NamedFile,    // the file that ConfigFilePath names already
    Defaults,     // none
};

// A vertex of a line on the map, or a marker.
struct MapPoint {
    float Longitude = 0.0F;  // degrees, east positive; 9999: a new line starts at the next row; 8888: end of the table
    float Latitude = 0.0F;   // degrees, north positive
};

struct SharedState {
    // Defined in one file, since each is long.
    SharedState();
    SharedState(const SharedState&);
    SharedState& operator=(const SharedState&);
    ~SharedState();

    // clock/clock: the instant shown
    double CurrentJD = 0.0;          // days, Julian date at Greenwich; every date on the screen follows from it
    double SystemJD = 0.0;           // days, the system clock at its last reading, whole seconds
    double OffsetDays = 0.0;         // days, CurrentJD - SystemJD; 0 shows the present
    float ZoneHours = 5.0F;          // hours, WEST of Greenwich positive
    std::int16_t DaylightHours = 0;  // hours of daylight-saving advance, 0 or 1
    float LocalYear = 0.0F;          // CurrentJD on the location's clock; the year astronomical: 0, -1 before 1
    float LocalMonth = 0.0F;         // 1 to 12
    float LocalDay = 0.0F;           // 1 to 31
    float LocalHour = 0.0F;          // 0 to 23
    float LocalMinute = 0.0F;        // 0 to 59
    float LocalSecond = 0.0F;        // 0 to 59
    float GreenwichYear = 0.0F;      // CurrentJD on the Greenwich clock, ranges as above
    float GreenwichMonth = 0.0F;
    float GreenwichDay = 0.0F;
    float GreenwichHour = 0.0F;
    float GreenwichMinute = 0.0F;
    float GreenwichSecond = 0.0F;
    DateTime SystemTimeBuffer;   // last reading of the system clock, Greenwich time
    Boolean BlinkPhase = False;  // True: the location marker's next disc is white

    // astro/calendar: work area of DateToJulian and JulianToDate
    float WorkYear = 0.0F;  // astronomical year; with a fraction while an animation steps by part of a year
    float WorkMonth = 0.0F;
    float WorkDay = 0.0F;
    float WorkHour = 0.0F;
    float WorkMinute = 0.0F;
    float WorkSecond = 0.0F;
    float WorkZoneHours = 0.0F;          // hours, west positive; 0: the fields are Greenwich time
    std::int16_t WorkDaylightHours = 0;  // 0 or 1
    double WorkJD = 0.0;                 // days, always Greenwich

    // clock/animation
    float AnimYears = 0.0F;             // years a step, -100 to 100
    float AnimDays = 0.0F;              // days a step, -365 to 365
    float AnimHours = 1.0F;             // hours a step, -24 to 24
    Boolean AnimForward = True;         // True forward in time
    double AnimStepYears = 0.0;         // signed step of the running animation
    double AnimStepDays = 0.0;          // the same, hours included
    std::int16_t SavedLocalSecond = 0;  // seconds shown before the step
    std::int16_t SavedGreenwichSecond = 0;

    // frame/startup: the location
    std::string LocationName;   // UTF-8; at most 46 characters fit the configuration file
    double LocationLat = 0.0;   // degrees, north positive
    float LocationLong = 0.0F;  // degrees, east positive

    // frame/menus: what the map shows
    std::int16_t MapType = 0;  // 0 natural, 1 political
    Boolean ShowMapGrid = False;
    Boolean ShowAnalemma = False;
    Boolean ShowCities = False;
    Boolean ShowTimezones = False;
    Boolean ShowSun = False;
    Boolean ShowMoon = False;
    Boolean ShowSundial = False;

    // storage/configuration
    std::string ConfigFilePath;      // the current configuration file, or the sentence that says there is none
    std::string ConfigOpenPath;      // what LoadConfiguration reads
    std::string AppDirectory;        // current directory at the start, home of "Startup.dat"
    Boolean ConfigSaved = False;     // False while there are changes that no file holds
    Boolean ExitInProgress = False;  // True once the exit sequence has run
    ConfigurationSource StartupSource = ConfigurationSource::StartupFile;

    // forms/layout: the screen, fixed at the start
    std::int16_t ScreenWidthPx = 0;  // pixels
    std::int16_t ScreenClass = 0;    // 0 to 3, selects every size of the interface
    std::int16_t MapWidth = 0;       // pixels
    std::int16_t MapHeight = 0;      // pixels
    float CityMarkerRadius = 0.0F;   // map units, that is pixels
    float MarkerRadiusX = 0.0F;      // map units
    float MarkerRadiusY = 0.0F;      // degrees of latitude

    // astro/solar: set by SolarPosition. Angles are not reduced to 0..360
    double JulianCenturies = 0.0;      // T, Julian centuries from 2451545.0
    double JulianCenturies2 = 0.0;     // T squared
    double JulianCenturies3 = 0.0;     // T cubed
    double MeanObliquity = 0.0;        // degrees
    double SunMeanAnomaly = 0.0;       // degrees
    double SunEquationOfCentre = 0.0;  // degrees
    double SunMeanLongitude = 0.0;     // degrees
    double SunTrueLongitude = 0.0;     // degrees
    double EarthEccentricity = 0.0;
    double SunDeclination = 0.0;  // degrees, north positive, about -23.44 to 23.44
    double TanSunDeclination = 0.0;
    float SunRightAscension = 0.0F;       // hours, 0 up to 24
    float EquationOfTime = 0.0F;          // minutes, positive when the Sun is ahead of the clock
    float EquationOfTimeMapShift = 0.0F;  // map units

    // astro/sunrise: set by SunriseSunset
    Boolean SunNoRiseSet = False;  // True: the Sun neither rises nor sets, and only SunNoRiseSetText counts
    std::string SunNoRiseSetText;
    std::int16_t SunriseHour = 0;  // local hours, 0 to 23, outside that far from the zone's meridian
    std::int16_t SunriseMinute = 0;
    std::int16_t SunsetHour = 0;  // 24 after local midnight
    std::int16_t SunsetMinute = 0;
    float SunriseChangeSeconds = 0.0F;  // change since yesterday, never negative
    std::string SunriseChangeText;      // later or earlier, with the panel's closing parenthesis
    float SunsetChangeSeconds = 0.0F;
    std::string SunsetChangeText;

    // astro/lunar: set by LunarPosition. Angles are not reduced to 0..360
    double MoonMeanLongitude = 0.0;       // degrees
    double MoonMeanElongation = 0.0;      // degrees
    double MoonMeanAnomaly = 0.0;         // degrees
    double MoonArgumentOfLatitude = 0.0;  // degrees
    double MoonEclipticLongitude = 0.0;   // degrees
    double MoonEclipticLatitude = 0.0;    // degrees
    float MoonDeclination = 0.0F;         // degrees, north positive
    float MoonRightAscension = 0.0F;      // hours, 0 up to 24
    float MoonElongationHours = 0.0F;     // right ascension less the Sun's, 0 up to 24; measures the phase
    float MoonMapHour = 0.0F;             // hours, 0 to 24, for HourToMapX
    float MoonAgeDays = 0.0F;             // days of the synodic month
    float MoonLitPercent = 0.0F;          // 0 to 100
    std::string MoonPhaseText;            // chosen by UpdateInformationPanel

    // astro/seasons: set by SeasonCountdown
    std::string SeasonNorth;
    std::string SeasonSouth;
    float SeasonDaysLeft = 0.0F;  // days to the next equinox or solstice

    // panel/information_panel: tables indexed by month 1 to 12, and the location in whole degrees and minutes
    std::array<std::string, 13> MonthNames;
    std::array<std::string, 13> MonthAbbreviations;
    std::array<std::string, 13> MoonNames;
    std::int16_t LocationLatDegrees = 0;
    std::int16_t LocationLatMinutes = 0;
    std::int16_t LocationLongDegrees = 0;
    std::int16_t LocationLongMinutes = 0;

    // map/stored_pictures
    std::int16_t MapTypeShown = -1;  // the MapType that the cached pictures were made for; 2: terrain

    // map/geometry: set at the start of each redraw
    float RotationHour = 0.0F;  // hours, 0 up to 24
    std::int32_t MapShift = 0;  // pixels, 0 to MapWidth

    // map/day_night: working state of the day strips
    float StripStartLatitude = 0.0F;  // degrees, north positive
    float StripLatitude = 0.0F;       // degrees, north positive
    float StripHeight = 0.0F;         // pixels, negative reaches upward
    float StripTop = 0.0F;            // pixels from the top
    float DayHalfWidth = 0.0F;        // degrees of longitude
    float StripLeftX = 0.0F;          // pixels from the left
    float StripRightX = 0.0F;         // pixels from the left

    // map/zone_lines: rows from 1
    std::array<MapPoint, 1201> ZoneLinePoints;
    std::array<MapPoint, 21> DateLinePoints;

    // map/hour_ruler
    float HourRulerHalfText = 0.0F;  // half the width of "00", map units

    // sundial/dial
    float SundialDayColor = 0.0F;
    float SundialShadowColor = 0.0F;
    float SundialLineColor = 0.0F;
    float SundialGnomonColor = 0.0F;
    float LongitudeCorrectionMinutes = 0.0F;  // minutes from the nearest multiple of 15 degrees, -30 up to 30
    float SundialHour = 0.0F;                 // hours, apparent solar time; the line's hour while lines are drawn
    std::int16_t GnomonBaseY = 0;             // dial units, the dial's centre
    float GnomonLength = 0.0F;                // dial units
    float GnomonThickness = 0.0F;             // dial units
    float GnomonHeight = 0.0F;                // dial units, never negative
    double HourLineHourAngle = 0.0;           // degrees
    float HourLineAngle = 0.0F;               // degrees clockwise from the dial's top
    float HourLineOffset = 0.0F;              // dial units, the gnomon's side; lasts from one drawing to the next
    float HourLineEndX = 0.0F;                // dial units
    float HourLineEndY = 0.0F;                // dial units
    std::int16_t FirstDialHour = 0;           // hours that get a line
    std::int16_t LastDialHour = 0;
    double SolarHourAngle = 0.0;  // degrees, 0 at solar noon, 0 up to 360
    double SinSunAltitude = 0.0;
    double SunAltitude = 0.0;  // degrees
    double SunAzimuth = 0.0;   // degrees clockwise from the dial's top, direction of the shadow

    // dialogs/sundial_options and sundial/mottos
    Boolean SundialLongitudeCorrection = False;
    Boolean SundialEOTCorrection = False;
    Boolean SundialDSTCorrection = False;
    std::array<std::string, 37> Mottos;

    // places/cities: rows from 1
    std::array<float, 401> CityLongitude{};  // degrees, east positive
    std::array<float, 401> CityLatitude{};   // degrees, north positive
    std::array<std::string, 401> CityName;
    std::array<float, 401> CityPeople{};  // thousands; 0: a smaller town
    std::int16_t CityCount = 0;

    // places/zones: rows from 0
    std::array<float, 32> ZoneHoursTable{};  // hours, west positive
    std::array<std::string, 32> ZoneShortName;
    std::string ZoneText;        // short name of the zone in force
    float MaskLongitude = 0.0F;  // degrees, the point sampled in the zone mask
    float MaskLatitude = 0.0F;   // degrees
    float MaskCode = 0.0F;       // 0 to 255

    // dialogs/configure
    Boolean ConfigureArmed = False;  // False while the program fills the dialog: its location handlers do nothing
};

extern SharedState state;

}  // namespace gloamtide
