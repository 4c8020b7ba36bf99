#include "tests/vectors.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iomanip>
#include <sstream>
#include <stdexcept>
#include <variant>

#include "state/state.h"

namespace gloamtide {
namespace {

using Field = std::variant<double*, float*, std::int16_t*, std::int32_t*, std::string*>;

template <class... Types>
Columns<Field> NamedFields(const char* TheirNames, Types&... Each) {
    std::istringstream Names(TheirNames);  // state.One, state.Other
    std::string Name;
    Columns<Field> Result;
    ((Names >> Name, Result.emplace(Name.substr(6, Name.find(',') - 6), &Each)), ...);
    return Result;
}

#define FIELDS(...) NamedFields(#__VA_ARGS__, __VA_ARGS__)
const Columns<Field> Fields = FIELDS(
    state.AnimDays, state.AnimForward, state.AnimHours, state.AnimStepDays, state.AnimStepYears, state.AnimYears,
    state.CurrentJD, state.DayHalfWidth, state.DaylightHours, state.EarthEccentricity, state.EquationOfTime,
    state.EquationOfTimeMapShift, state.FirstDialHour, state.GnomonBaseY, state.GnomonHeight, state.GnomonLength,
    state.GreenwichDay, state.GreenwichHour, state.GreenwichMinute, state.GreenwichMonth, state.GreenwichSecond,
    state.GreenwichYear, state.HourLineAngle, state.HourLineEndX, state.HourLineEndY, state.HourLineHourAngle,
    state.HourLineOffset, state.JulianCenturies, state.JulianCenturies2, state.JulianCenturies3, state.LastDialHour,
    state.LocalDay, state.LocalHour, state.LocalMinute, state.LocalMonth, state.LocalSecond, state.LocalYear,
    state.LocationLat, state.LocationLatDegrees, state.LocationLatMinutes, state.LocationLong,
    state.LocationLongDegrees, state.LocationLongMinutes, state.LocationName, state.LongitudeCorrectionMinutes,
    state.MapHeight, state.MapShift, state.MapType, state.MapWidth, state.MaskLatitude, state.MaskLongitude,
    state.MeanObliquity, state.MoonAgeDays, state.MoonArgumentOfLatitude, state.MoonDeclination,
    state.MoonEclipticLatitude, state.MoonEclipticLongitude, state.MoonElongationHours, state.MoonLitPercent,
    state.MoonMapHour, state.MoonMeanAnomaly, state.MoonMeanElongation, state.MoonMeanLongitude, state.MoonPhaseText,
    state.MoonRightAscension, state.OffsetDays, state.RotationHour, state.ScreenClass, state.SeasonDaysLeft,
    state.SeasonNorth, state.SeasonSouth, state.ShowAnalemma, state.ShowCities, state.ShowMapGrid, state.ShowMoon,
    state.ShowSun, state.ShowSundial, state.ShowTimezones, state.SinSunAltitude, state.SolarHourAngle,
    state.StripHeight, state.StripLatitude, state.StripLeftX, state.StripRightX, state.StripTop, state.SunAltitude,
    state.SunAzimuth, state.SunDeclination, state.SunEquationOfCentre, state.SunMeanAnomaly, state.SunMeanLongitude,
    state.SunNoRiseSet, state.SunNoRiseSetText, state.SunRightAscension, state.SunTrueLongitude,
    state.SundialDSTCorrection, state.SundialEOTCorrection, state.SundialLongitudeCorrection,
    state.SunriseChangeSeconds, state.SunriseChangeText, state.SunriseHour, state.SunriseMinute,
    state.SunsetChangeSeconds, state.SunsetChangeText, state.SunsetHour, state.SunsetMinute, state.TanSunDeclination,
    state.WorkDay, state.WorkDaylightHours, state.WorkHour, state.WorkJD, state.WorkMinute, state.WorkMonth,
    state.WorkSecond, state.WorkYear, state.WorkZoneHours, state.ZoneHours, state.ZoneText);
#undef FIELDS

struct Column {
    bool Input;
    std::string Name;  // Number, "Text" or (Some Numbers)*n
};

std::vector<Column> ReadHeader(std::istream& File) {
    std::string Line;
    std::getline(File, Line);
    std::istringstream Header(Line.substr(1));
    std::vector<Column> Result;
    for (std::string Word; Header >> Word;) {
        const std::size_t Colon = Word.find(':');
        if (Colon == std::string::npos) {
            Result.back().Name += ' ' + Word;
        } else {
            Result.push_back({Word.starts_with("in:"), Word.substr(Colon + 1)});
        }
    }
    return Result;
}

void ReadNumber(std::istream& Line, const std::string& Name, VectorValues& Values) {
    std::string Number;
    Line >> Number;
    Values.Numbers.emplace(Name, std::stod(Number));  // "nan" and "inf" too
}

void ReadRow(std::istream& Line, const std::vector<Column>& Header, VectorRow& Row) {
    for (const auto& [Input, Name] : Header) {
        VectorValues& Side = Input ? Row.In : Row.Out;
        if (Name[0] == '"') {
            Line >> std::quoted(Side.Texts.emplace(Name.substr(1, Name.size() - 2), "").first->second);
        } else if (Name[0] == '(') {
            Row.Groups.resize(static_cast<std::size_t>(Row.Out["n"]));
            for (VectorValues& Each : Row.Groups) {
                std::istringstream Members(Name.substr(1, Name.find(')') - 1));
                for (std::string Member; Members >> Member;) ReadNumber(Line, Member, Each);
            }
        } else {
            ReadNumber(Line, Name, Side);
        }
    }
    if (!Line || Line.peek() != EOF) throw std::runtime_error(Row.Where + " has not the columns of its table");
}

// Step: what two neighbours of the type differ by, of their size, and a little more.
void ExpectClose(const std::string& Name, double Value, double Expected, double Step = 1e-11) {
    static const std::map<std::string, double> Tolerances = {{"MoonElongationHours", 4e-6},
                                                             {"MoonMapHour", 4e-6},
                                                             {"SunriseChangeSeconds", 0.005},
                                                             {"SunsetChangeSeconds", 0.005}};
    const auto Own = Tolerances.find(Name);
    EXPECT_NEAR(Value, Expected, Own != Tolerances.end() ? Own->second : Step * std::abs(Expected)) << Name;
}

}  // namespace

void VectorValues::PutIntoState() const {
    for (const auto& [Name, Number] : Numbers) {
        const auto Put = [Value = Number](auto* Where) {
            using Type = std::remove_pointer_t<decltype(Where)>;
            if constexpr (std::is_arithmetic_v<Type>) *Where = static_cast<Type>(Value);
        };
        if (Fields.contains(Name)) std::visit(Put, Fields[Name]);
    }
    for (const auto& [Name, Text] : Texts) {
        if (Fields.contains(Name)) *std::get<std::string*>(Fields[Name]) = Text;
    }
}

void VectorValues::ExpectInState() const {
    for (const auto& [Name, Value] : Numbers) {
        const auto ExpectOne = [&Name = Name, Expected = Value](const auto* Where) {
            using Type = std::remove_cv_t<std::remove_pointer_t<decltype(Where)>>;
            constexpr bool IsSingle = std::is_same_v<Type, float>;
            const double Step = IsSingle ? 4e-7 : 1e-11;
            if constexpr (std::is_arithmetic_v<Type>) ExpectClose(Name, *Where, Expected, Step);
        };
        if (Fields.contains(Name)) std::visit(ExpectOne, Fields[Name]);
    }
    for (const auto& [Name, Text] : Texts) {
        EXPECT_EQ(Fields.contains(Name) ? *std::get<std::string*>(Fields[Name]) : Text, Text) << Name;
    }
}

void VectorRow::Expect(std::initializer_list<std::pair<const char*, double>> Results) const {
    for (const auto& [Name, Result] : Results) ExpectClose(Name, Result, Out[Name]);
}

std::vector<VectorRow> ReadVectors(const std::string& Table) {
    std::ifstream File(GLOAMTIDE_TEST_DATA "/data/" + Table + ".txt");
    const std::vector<Column> Header = ReadHeader(File);
    std::vector<VectorRow> Rows;
    int Number = 1;
    for (std::string Text; ++Number, std::getline(File, Text);) {
        if (Text.starts_with('#')) continue;
        Rows.push_back({Table + ":" + std::to_string(Number), {}, {}, {}});
        std::istringstream Line(Text);
        ReadRow(Line, Header, Rows.back());
    }
    if (Rows.empty()) throw std::runtime_error(Table + " has no rows");
    return Rows;
}

}  // namespace gloamtide
