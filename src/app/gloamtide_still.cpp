// gloamtide-still: a picture of the main window, made without a display.

#include <QApplication>
#include <QCommandLineParser>
#include <QDateTime>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QPixmap>
#include <QSaveFile>
#include <QTextStream>
#include <algorithm>
#include <stdexcept>

#include "forms/form_gt_main.h"
#include "frame/startup.h"
#include "platform/qt/qt_host.h"
#include "state/state.h"

namespace {

using namespace gloamtide;

constexpr int NarrowestScreen = 320;  // pixels
constexpr int WidestScreen = 32767;   // pixels
constexpr int HighestScreen = 1080;   // pixels; screens are three quarters as high as wide up to this
const QString TimeFormat = "yyyy-MM-dd'T'HH:mm:ss'Z'";

// What the command line asks for.
struct Wanted {
    QString Configuration;  // path, or empty for the defaults
    QDateTime At = QDateTime::currentDateTimeUtc();
    int ScreenWidth = 1280;  // pixels
    bool Almanac = false;
    QString Picture;  // path
};

struct UsageError : std::runtime_error {
    explicit UsageError(const QString& Text) : std::runtime_error(Text.toStdString()) {}
};

// The value of an option that may stand once; an empty text where it does not stand.
QString ValueOf(const QCommandLineParser& Parser, const QString& Name) {
    if (Parser.optionNames().count(Name) > 1) throw UsageError("--" + Name + " stands more than once");
    if (!Parser.isSet(Name)) return {};
    QString Value = Parser.value(Name);
    if (Value.isEmpty() && Name != "almanac") throw UsageError("--" + Name + " needs a value");
    return Value;
}

Wanted ReadCommandLine(const QStringList& Arguments) {
    QCommandLineParser Parser;
    Parser.addOptions({{"config", "", "FILE"}, {"at", "", "TIME"}, {"screen-width", "", "PIXELS"}, {"almanac", ""}});
    if (!Parser.parse(Arguments)) throw UsageError(Parser.errorText());

    Wanted Result;
    Result.Configuration = ValueOf(Parser, "config");
    const QFileInfo File(Result.Configuration);
    if (!Result.Configuration.isEmpty() && !(File.isFile() && File.isReadable())) {
        throw UsageError("--config: cannot read " + Result.Configuration);
    }
    if (const QString Text = ValueOf(Parser, "at"); !Text.isEmpty()) {
        Result.At = QDateTime::fromString(Text, TimeFormat);
        if (!Result.At.isValid()) throw UsageError("--at takes a time such as 2026-11-22T12:00:00Z, not " + Text);
        Result.At.setTimeSpec(Qt::UTC);
    }
    if (const QString Text = ValueOf(Parser, "screen-width"); !Text.isEmpty()) {
        bool IsNumber = false;
        Result.ScreenWidth = Text.toInt(&IsNumber);
        if (!IsNumber || Result.ScreenWidth < NarrowestScreen || Result.ScreenWidth > WidestScreen) {
            throw UsageError(QString("--screen-width takes %1 to %2 pixels, not %3")
                                 .arg(NarrowestScreen)
                                 .arg(WidestScreen)
                                 .arg(Text));
        }
    }
    ValueOf(Parser, "almanac");
    Result.Almanac = Parser.isSet("almanac");
    const QStringList Rest = Parser.positionalArguments();
    if (Rest.size() > 1) throw UsageError("more than one picture named");
    if (Rest.isEmpty() || Rest.constFirst().isEmpty()) throw UsageError("no picture to write is named");
    Result.Picture = Rest.constFirst();
    return Result;
}

// A desktop with a screen and a clock as asked for, whose messages go to standard error.
class StillHost : public QtHost {
public:
    explicit StillHost(const Wanted& TheWanted) : Asked(TheWanted) {}

    double ScreenWidthTwips() override { return Asked.ScreenWidth * TwipsPerPixel; }
    double ScreenHeightTwips() override { return ScreenHeight() * TwipsPerPixel; }
    DateTime SystemTime() override { return ToDateTime(Asked.At); }
    DateTime LocalTime() override { return ToDateTime(Asked.At); }
    void Beep() override {}

    MessageAnswer ShowMessage(const MessageBox& Message) override {
        QTextStream(stderr) << "gloamtide-still: " << QString::fromStdString(Message.Title + ": " + Message.Text)
                            << '\n';
        return Message.Buttons == MessageButtons::OK ? MessageAnswer::OK : MessageAnswer::No;
    }

    // Of all windows only the pictured one is made.
    void FormLoaded(Form& Which) override {
        if (&Which == &FormGTMain) QtHost::FormLoaded(Which);
    }
    void FormUnloaded(Form& Which) override {
        if (&Which == &FormGTMain) QtHost::FormUnloaded(Which);
    }

    void FillScreen(QWidget& Window) override {
        Window.resize(Asked.ScreenWidth, ScreenHeight());
        Window.show();
    }

private:
    int ScreenHeight() const { return std::min(Asked.ScreenWidth * 3 / 4, HighestScreen); }

    const Wanted& Asked;
};

bool WritePicture(const QPixmap& Picture, const QString& Path) {
    QSaveFile File(Path);
    return File.open(QIODevice::WriteOnly) && Picture.save(&File, "PNG", 85) && File.commit();
}

// Each heading of the shown panel with the values that follow it.
void PrintAlmanac() {
    QTextStream Out(stdout);
    const PictureSurface& Panel = FormGTMain.PictureGTData[static_cast<std::size_t>(state.ScreenClass)];
    QString Line;
    const auto Finish = [&] {
        if (!Line.isEmpty()) Out << Line << '\n';
    };
    for (const Control* Each : Panel.Children) {
        const QString Caption = QString::fromStdString(dynamic_cast<const Label&>(*Each).Caption);
        if (QString::fromStdString(Each->Name).contains("Show(")) {
            Line += " " + Caption;
        } else {
            Finish();
            Line = Caption.leftJustified(25);
        }
    }
    Finish();
}

void SayError(const QString& Text) { QTextStream(stderr) << "gloamtide-still: " << Text << '\n'; }

}  // namespace

int main(int Count, char** Arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The same picture everywhere, whatever the user's own screen is like.
    for (const char* Density : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_FONT_DPI"}) qunsetenv(Density);
    QLoggingCategory::setFilterRules("default.warning=false");  // what that platform cannot do nobody misses here
    const QApplication Application(Count, Arguments);
    Wanted Asked;
    try {
        Asked = ReadCommandLine(QApplication::arguments());
    } catch (const UsageError& Error) {
        SayError(Error.what());
        return 2;
    }
    StillHost Desktop(Asked);
    state.StartupSource =
        Asked.Configuration.isEmpty() ? ConfigurationSource::Defaults : ConfigurationSource::NamedFile;
    state.ConfigFilePath = Asked.Configuration.toStdString();
    StartProgram();
    if (!WritePicture(Desktop.WindowOf(FormGTMain)->grab(), Asked.Picture)) {
        SayError("cannot write " + Asked.Picture);
        return 1;
    }
    if (Asked.Almanac) PrintAlmanac();
    return 0;
}
