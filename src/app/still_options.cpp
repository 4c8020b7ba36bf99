#include "app/still_options.h"

#include <QDateTime>
#include <QRegularExpression>
#include <algorithm>

#include "app/command_line.h"
#include "app/shown.h"
#include "platform/qt/qt_host.h"
#include "state/numbers.h"

namespace gloamtide {

const char* const StillHelp =
    "Usage: gloamtide-still [options] [OUT]\n"
    "Makes a picture, a film or data of the Earth in the light of the Sun.\n"
    "OUT is a .png, .jpg or .webp, for a film a .webp, .gif, .mp4 or .webm, or - for\n"
    "standard output. With --almanac or --json it may be left out.\n"
    "\n"
    "When\n"
    "  --at TIME              this instant, Greenwich time, as 2026-12-21T20:50:00Z;\n"
    "                         without it, the present\n"
    "  --until TIME           a film, or the data, from --at to this instant\n"
    "  --step LENGTH          between two pictures: 90s, 15min, 1h, 1d, 1y\n"
    "  --rate N               pictures a second, 1 to 60; without it, 12\n"
    "  --yes                  a film of more than 100000 pictures, too\n"
    "  --progress             tell how far a film is, also without a terminal\n"
    "What\n"
    "  --config FILE          show this configuration; without it, the defaults\n"
    "  --place NAME           the location: a city of the list\n"
    "  --place LAT,LONG       or degrees, north and east positive\n"
    "  --map MAP              natural, political or terrain\n"
    "  --show LIST            of sun,moon,analemma,cities,city-names,grid,timezones,\n"
    "  --hide LIST            sundial,twilight,twilight-lines\n"
    "  --only-map             no menu bar, dates and almanac\n"
    "How large\n"
    "  --size WIDTHxHEIGHT    this size, 64x64 to 16384x16384, as a window of it looks\n"
    "  --screen-width PIXELS  lay out for a screen this wide, 320 to 32767; without\n"
    "                         it, 1280 or, with --size, what suits the size\n"
    "  --scale SCALE          pixels for each one of the layout, 0.5 to 8\n"
    "Data\n"
    "  --almanac              print the almanac as text\n"
    "  --json                 print it as a JSON object, or one a line\n"
    "  --help, --version      print this help, or the version, and end\n";

namespace {

// The value of an option; an empty text where it does not stand.
QString ValueOf(const QCommandLineParser& Parser, const QString& Name) {
    QString Value = Parser.value(Name);
    if (Parser.isSet(Name) && Value.isEmpty()) throw UsageError("--" + Name + " needs a value");
    return Value;
}

Instant TimeOf(const QString& Option, const QString& Text) {
    // Date and time apart: the computer's own clock may skip the hour that both together name.
    const QDate Date = QDate::fromString(Text.section('T', 0, 0), "yyyy-MM-dd");
    const QTime Time = QTime::fromString(Text.section('T', 1), "HH:mm:ss'Z'");
    if (!Date.isValid() || !Time.isValid())
        throw UsageError(Option + " takes a time such as 2026-12-21T20:50:00Z, not " + Text);
    return InstantOf(ToDateTime({Date, Time, Qt::UTC}));
}

// A text as a whole number; 0 where it is none from Least to Most.
int NumberOf(const QString& Text, int Least, int Most) {
    const int Number = Text.toInt();
    return Number >= Least && Number <= Most ? Number : 0;
}

int WidthOf(const QString& Text) {
    const int Width = NumberOf(Text, 320, 32767);
    if (Width == 0) throw UsageError("--screen-width takes 320 to 32767 pixels, not " + Text);
    return Width;
}

double ScaleOf(const QString& Text) {
    bool IsNumber = false;
    const double Scale = Text.toDouble(&IsNumber);
    if (!IsNumber || !(Scale >= 0.5 && Scale <= 8.0)) throw UsageError("--scale takes 0.5 to 8, not " + Text);
    return Scale;
}

QSize SizeOf(const QString& Text) {
    const QStringList Parts = Text.split('x');
    const QSize Size(NumberOf(Parts.value(0), 64, 16384), NumberOf(Parts.value(1), 64, 16384));
    if (Parts.size() != 2 || Size.isEmpty()) {
        throw UsageError("--size takes a size such as 3840x2160, from 64x64 to 16384x16384, not " + Text);
    }
    return Size;
}

Step StepOf(const QString& Text) {
    static const QRegularExpression Length("^([0-9]{1,9})(s|min|h|d|y)$");
    const QRegularExpressionMatch Found = Length.match(Text);
    const int Number = Found.captured(1).toInt();
    const QString Unit = Found.captured(2);
    if (Number == 0 || (Unit == "y" && Number > 8000)) {
        throw UsageError("--step takes a length such as 90s, 15min, 1h, 1d or 1y, not " + Text);
    }
    if (Unit == "y") return {0, Number};
    const int Seconds = Unit == "s" ? 1 : Unit == "min" ? 60 : Unit == "h" ? 3600 : 86400;
    return {std::int64_t{Seconds} * Number, 0};
}

int RateOf(const QString& Text) {
    const int Rate = NumberOf(Text, 1, 60);
    if (Rate == 0) throw UsageError("--rate takes 1 to 60 pictures a second, not " + Text);
    return Rate;
}

MapChoice MapOf(const QString& Text) {
    const QStringList Names = {"natural", "political", "terrain"};
    if (!Names.contains(Text)) throw UsageError("--map takes natural, political or terrain, not " + Text);
    return static_cast<MapChoice>(Names.indexOf(Text));
}

void AddShown(StillOptions& Result, const QString& List, Boolean Value) {
    if (List.isEmpty()) return;
    QStringList Known;
    for (const ShownThing& Each : ShownThings()) Known.append(Each.Name);
    for (const QString& Name : List.split(',')) {
        const qsizetype Place = Known.indexOf(Name);
        if (Place < 0) {
            const char* const Option = Value == True ? "--show" : "--hide";
            throw UsageError(QString("%1 takes names of %2, not %3").arg(Option, Known.join(','), Name));
        }
        Boolean* const Flag = &ShownThings()[static_cast<std::size_t>(Place)].Flag;
        const bool Twice = std::ranges::any_of(Result.Shown, [&](const auto& Each) { return Each.first == Flag; });
        if (Twice) throw UsageError(Name + " is to be shown or hidden more than once");
        Result.Shown.emplace_back(Flag, Value);
    }
}

void Exclude(const QCommandLineParser& Parser, const char* One, const char* Other) {
    if (Parser.isSet(One) && Parser.isSet(Other)) {
        throw UsageError(QString("--%1 and --%2 exclude each other").arg(One, Other));
    }
}

std::optional<FilmOptions> FilmOf(const QCommandLineParser& Parser, StillOptions& Result) {
    for (const char* Each : {"step", "rate", "yes", "progress"}) {
        if (Parser.isSet(Each) && !Parser.isSet("until")) throw UsageError(QString("--%1 goes with --until").arg(Each));
    }
    const QString Until = ValueOf(Parser, "until");
    if (Until.isEmpty()) return std::nullopt;
    Exclude(Parser, "until", "almanac");
    FilmOptions Film;
    Film.Until = TimeOf("--until", Until);
    if (!Result.At) Result.At = InstantOf(ToDateTime(QDateTime::currentDateTimeUtc()));
    const Instant End = InstantOf({4001, 1, 0, 1, 0, 0, 0, 0});
    if (std::max(*Result.At, Film.Until) >= End) throw UsageError("a film ends with the year 4000");
    if (Film.Until < *Result.At) throw UsageError("--until " + Until + " is before the film begins");
    if (!Parser.isSet("step")) throw UsageError("--until needs a --step");
    Film.Each = StepOf(ValueOf(Parser, "step"));
    Film.Count = CountInstants(*Result.At, Film.Until, Film.Each);
    if (const QString Text = ValueOf(Parser, "rate"); !Text.isEmpty()) Film.Rate = RateOf(Text);
    Film.Sure = Parser.isSet("yes");
    return Film;
}

void ReadOut(const QStringList& Rest, StillOptions& Result) {
    if (Rest.size() > 1) throw UsageError("more than one picture named");
    if (Rest.isEmpty() || Rest.constFirst().isEmpty()) {
        if (Result.Almanac || Result.Json) return;
        throw UsageError("no picture to write is named");
    }
    const bool Film = Result.Film.has_value();
    const auto Format = FormatOf(Rest.constFirst(), Film);
    if (!Format) {
        throw UsageError(
            (Film ? "a film is a .webp, .gif, .mp4 or .webm, not " : "a picture is a .png, .jpg or .webp, not ") +
            Rest.constFirst());
    }
    Result.Format = *Format;
    Result.Picture = ToBytes(Rest.constFirst());
    if (Result.Picture == "-" && (Result.Almanac || Result.Json)) {
        throw UsageError("picture and almanac cannot both go to standard output");
    }
}

}  // namespace

void AddStillOptions(QCommandLineParser& Parser) {
    for (const char* Each :
         {"config", "at", "until", "step", "rate", "place", "map", "show", "hide", "screen-width", "scale", "size"}) {
        Parser.addOption({Each, "", "VALUE"});
    }
    for (const char* Each : {"only-map", "almanac", "json", "yes", "progress"}) Parser.addOption({Each, ""});
}

StillOptions ReadStillOptions(const QCommandLineParser& Parser) {
    StillOptions Result;
    Result.Configuration = ToBytes(ValueOf(Parser, "config"));
    if (const QString Text = ValueOf(Parser, "at"); !Text.isEmpty()) Result.At = TimeOf("--at", Text);
    if (const QString Text = ValueOf(Parser, "screen-width"); !Text.isEmpty()) Result.ScreenWidth = WidthOf(Text);
    if (const QString Text = ValueOf(Parser, "scale"); !Text.isEmpty()) Result.Scale = ScaleOf(Text);
    if (const QString Text = ValueOf(Parser, "size"); !Text.isEmpty()) Result.Size = SizeOf(Text);
    if (const QString Text = ValueOf(Parser, "map"); !Text.isEmpty()) Result.Map = MapOf(Text);
    AddShown(Result, ValueOf(Parser, "show"), True);
    AddShown(Result, ValueOf(Parser, "hide"), False);
    Result.Place = QString::fromUtf8(ToBytes(ValueOf(Parser, "place")).c_str());
    Exclude(Parser, "scale", "size");
    Exclude(Parser, "almanac", "json");
    Result.OnlyMap = Parser.isSet("only-map");
    Result.Almanac = Parser.isSet("almanac");
    Result.Json = Parser.isSet("json");
    Result.Progress = Parser.isSet("progress");
    Result.Film = FilmOf(Parser, Result);
    ReadOut(Parser.positionalArguments(), Result);
    return Result;
}

}  // namespace gloamtide
