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
    "  --almanac              print the headings and values of the almanac, too\n"
    "  --help, --version      print this help, or the version, and end\n";

namespace {

// The value of an option; an empty text where it does not stand.
QString ValueOf(const QCommandLineParser& Parser, const QString& Name) {
    const QString Value = Parser.value(Name);
    if (Parser.isSet(Name) && Value.isEmpty()) throw UsageError("--" + Name + " needs a value");
    return Value;
}

QDateTime TimeOf(const QString& Text) {
    QDateTime Result = QDateTime::fromString(Text, "yyyy-MM-dd'T'HH:mm:ss'Z'");
    if (!Result.isValid()) throw UsageError("--at takes a time such as 2026-12-21T20:50:00Z, not " + Text);
    Result.setTimeSpec(Qt::UTC);
    return Result;
}

int WidthOf(const QString& Text) {
    constexpr int Narrowest = 320;  // pixels
    constexpr int Widest = 32767;
    bool IsNumber = false;
    const int Width = Text.toInt(&IsNumber);
    if (IsNumber && Width >= Narrowest && Width <= Widest) return Width;
    throw UsageError(QString("--screen-width takes %1 to %2 pixels, not ").arg(Narrowest).arg(Widest) + Text);
}

}  // namespace

void AddStillOptions(QCommandLineParser& Parser) {
    Parser.addOptions({{"config", "", "FILE"}, {"at", "", "TIME"}, {"screen-width", "", "PIXELS"}, {"almanac", ""}});
}

StillOptions ReadStillOptions(const QCommandLineParser& Parser) {
    StillOptions Result;
    Result.Configuration = ToBytes(ValueOf(Parser, "config"));
    if (const QString Text = ValueOf(Parser, "at"); !Text.isEmpty()) Result.At = TimeOf(Text);
    if (const QString Text = ValueOf(Parser, "screen-width"); !Text.isEmpty()) Result.ScreenWidth = WidthOf(Text);
    Result.Almanac = Parser.isSet("almanac");
    const QStringList Rest = Parser.positionalArguments();
    if (Rest.size() > 1) throw UsageError("more than one picture named");
    if (Rest.isEmpty() || Rest.constFirst().isEmpty()) throw UsageError("no picture to write is named");
    Result.Picture = ToBytes(Rest.constFirst());
    return Result;
}

}  // namespace gloamtide
