#include "app/still_options.h"

#include "app/command_line.h"

namespace gloamtide {

const char* const StillHelp =
    "Usage: gloamtide-still [options] OUT.png\n"
    "Writes a picture of the Earth in the light of the Sun, as Gloamtide's main window shows it.\n"
    "\n"
    "  --config FILE          show this configuration; without it, the defaults\n"
    "  --at TIME              show this instant, Greenwich time, such as 2026-12-21T20:50:00Z;\n"
    "                         without it, the present\n"
    "  --screen-width PIXELS  lay out for a screen of this width, 320 to 32767; without it, 1280\n"
    "                         or, with --size, what suits the size\n"
    "  --scale SCALE          so many pixels for each one of the layout, 0.5 to 8; without it, 1\n"
    "  --size WIDTHxHEIGHT    a picture of this size, 64x64 to 16384x16384, as a window of it looks\n"
    "  --only-map             the map without menu bar, dates and almanac\n"
    "  --almanac              print the headings and values of the almanac, too\n"
    "  --help, --version      print this help, or the version, and end\n";

namespace {

// The value of an option; an empty text where it does not stand.
QString ValueOf(const QCommandLineParser& Parser, const QString& Name) {
    QString Value = Parser.value(Name);
    if (Parser.isSet(Name) && Value.isEmpty()) throw UsageError("--" + Name + " needs a value");
    return Value;
}

QDateTime TimeOf(const QString& Text) {
    // Date and time apart: the computer's own clock may skip the hour that both together name.
    const QDate Date = QDate::fromString(Text.section('T', 0, 0), "yyyy-MM-dd");
    const QTime Time = QTime::fromString(Text.section('T', 1), "HH:mm:ss'Z'");
    if (!Date.isValid() || !Time.isValid())
        throw UsageError("--at takes a time such as 2026-12-21T20:50:00Z, not " + Text);
    return {Date, Time, Qt::UTC};
}

// A text as a number of pixels; 0 where it is none from Least to Most.
int PixelsOf(const QString& Text, int Least, int Most) {
    const int Pixels = Text.toInt();
    return Pixels >= Least && Pixels <= Most ? Pixels : 0;
}

int WidthOf(const QString& Text) {
    const int Width = PixelsOf(Text, 320, 32767);
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
    const QSize Size(PixelsOf(Parts.value(0), 64, 16384), PixelsOf(Parts.value(1), 64, 16384));
    if (Parts.size() != 2 || Size.isEmpty()) {
        throw UsageError("--size takes a size such as 3840x2160, from 64x64 to 16384x16384, not " + Text);
    }
    return Size;
}

}  // namespace

void AddStillOptions(QCommandLineParser& Parser) {
    Parser.addOptions({{"config", "", "FILE"},
                       {"at", "", "TIME"},
                       {"screen-width", "", "PIXELS"},
                       {"scale", "", "SCALE"},
                       {"size", "", "SIZE"},
                       {"only-map", ""},
                       {"almanac", ""}});
}

StillOptions ReadStillOptions(const QCommandLineParser& Parser) {
    StillOptions Result;
    Result.Configuration = ToBytes(ValueOf(Parser, "config"));
    if (const QString Text = ValueOf(Parser, "at"); !Text.isEmpty()) Result.At = TimeOf(Text);
    if (const QString Text = ValueOf(Parser, "screen-width"); !Text.isEmpty()) Result.ScreenWidth = WidthOf(Text);
    if (const QString Text = ValueOf(Parser, "scale"); !Text.isEmpty()) Result.Scale = ScaleOf(Text);
    if (const QString Text = ValueOf(Parser, "size"); !Text.isEmpty()) Result.Size = SizeOf(Text);
    if (Parser.isSet("scale") && Parser.isSet("size")) throw UsageError("--scale and --size exclude each other");
    Result.OnlyMap = Parser.isSet("only-map");
    Result.Almanac = Parser.isSet("almanac");
    const QStringList Rest = Parser.positionalArguments();
    if (Rest.size() > 1) throw UsageError("more than one picture named");
    if (Rest.isEmpty() || Rest.constFirst().isEmpty()) throw UsageError("no picture to write is named");
    Result.Picture = ToBytes(Rest.constFirst());
    return Result;
}

}  // namespace gloamtide
