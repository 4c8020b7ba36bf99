// gloamtide-still: a picture of the main window, made without a display.

#include <fcntl.h>
#include <unistd.h>

#include <QApplication>
#include <QBuffer>
#include <QPainter>
#include <QPixmap>
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <system_error>

#include "app/command_line.h"
#include "app/screens.h"
#include "app/still_options.h"
#include "forms/form_gt_main.h"
#include "forms/layout.h"
#include "frame/startup.h"
#include "platform/qt/picture_view.h"
#include "platform/qt/qt_host.h"
#include "state/state.h"
#include "storage/files.h"

namespace {

using namespace gloamtide;

constexpr const char* Program = "gloamtide-still";
constexpr int DefaultWidth = 1280;  // of the screen, pixels

// A desktop with a screen and a clock as asked for, whose messages go to standard error.
class StillHost : public QtHost {
public:
    explicit StillHost(const StillOptions& TheAsked) : Asked(TheAsked) {}

    double ScreenWidthTwips() override {
        const bool ByTheSize = !Asked.ScreenWidth && !Asked.Size.isEmpty();
        return ByTheSize ? QtHost::ScreenWidthTwips() : Asked.ScreenWidth.value_or(DefaultWidth) * TwipsPerPixel;
    }
    double ScreenHeightTwips() override { return WindowSize().height() * TwipsPerPixel; }
    DateTime SystemTime() override { return ToDateTime(Asked.At); }
    DateTime LocalTime() override { return ToDateTime(Asked.At); }
    void Beep() override {}

    MessageAnswer ShowMessage(const MessageBox& Message) override {
        SayError(Program, Message.Title + ": " + Message.Text);
        return Message.Buttons == MessageButtons::OK ? MessageAnswer::OK : MessageAnswer::No;
    }

    // Of all windows only the pictured one is made.
    void FormLoaded(Form& Which) override {
        if (&Which == &FormGTMain) QtHost::FormLoaded(Which);
    }
    void FormUnloaded(Form& Which) override {
        if (&Which == &FormGTMain) QtHost::FormUnloaded(Which);
    }

    // A picture of a given size is that of a window; without one the layout stands pixel for pixel.
    void Prepare(FormWindow& Window) override {
        if (Asked.Size.isEmpty() || Asked.OnlyMap) {
            Window.FixScale(1.0);
        } else {
            Window.Expect(Asked.Size);
        }
    }
    void Present(FormWindow& Window) override {
        Window.resize(WindowSize());
        Window.show();
    }

private:
    // Screens are three quarters as high as wide up to 1080.
    QSize WindowSize() const {
        const int Width = Asked.ScreenWidth.value_or(DefaultWidth);
        return Asked.Size.isEmpty() ? QSize(Width, std::min(Width * 3 / 4, 1080)) : Asked.Size;
    }

    const StillOptions& Asked;
};

// The map alone, in the middle of a picture of the given size or, where that is empty, with nothing round it.
QPixmap MapAlone(FormWindow& Window, const QSize& Size) {
    if (!Size.isEmpty()) {
        Window.FixScale(std::min(1.0 * Size.width() / state.MapWidth, 1.0 * Size.height() / state.MapHeight));
    }
    auto* Map = Window.findChild<PictureView*>("PictureGT");
    QPixmap Shown = Map->grab(Map->InnerArea());
    if (Size.isEmpty()) return Shown;
    QPixmap Result(Size);
    Result.fill(Qt::black);
    QPainter(&Result).drawPixmap((Size.width() - Shown.width()) / 2, (Size.height() - Shown.height()) / 2, Shown);
    return Result;
}

// The screens as the choice of one for a picture of the map alone needs them: with the map for the board.
std::vector<ProgramScreen> MapScreens() {
    std::vector<ProgramScreen> Screens = ProgramScreens();
    for (ProgramScreen& Each : Screens) {
        const BoardSize Map = MapSizeOf(ScreenClassOf(Each.Width));
        Each.Board = {Map.Width, Map.Height};
    }
    return Screens;
}

void WritePicture(const QPixmap& Picture, const std::string& Path) {
    QBuffer Encoded;
    Encoded.open(QIODevice::WriteOnly);
    if (!Picture.save(&Encoded, "PNG", 85)) throw FileFailure(Path + ": the picture is too large");
    WriteFileOrDevice(Path, Encoded.data().toStdString());
}

// Each heading of the shown panel with the values that follow it, in UTF-8.
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

void Print(const std::string& Text) {
    if (std::fputs(Text.c_str(), stdout) >= 0 && std::fflush(stdout) == 0) return;
    throw FileFailure("cannot print the almanac: " + std::generic_category().message(errno));
}

// What is opened later must not take the number of a standard stream that the caller closed.
void FillStandardStreams() {
    while (true) {
        const int Descriptor = open("/dev/null", O_RDONLY);
        if (Descriptor > STDERR_FILENO) close(Descriptor);
        if (Descriptor < 0 || Descriptor > STDERR_FILENO) return;
    }
}

// The same picture everywhere, whatever the user's own screen is like, and no word of Qt's own.
void SetUpQt() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    for (const char* Density : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_FONT_DPI", "QT_USE_PHYSICAL_DPI"}) {
        qunsetenv(Density);
    }
    qInstallMessageHandler([](QtMsgType Kind, const QMessageLogContext&, const QString& Text) {
        if (Kind == QtFatalMsg) SayError(Program, Text.toStdString());
    });
}

void MakePicture(const StillOptions& Asked) {
    StillHost Desktop(Asked);
    state.StartupSource = Asked.Configuration.empty() ? ConfigurationSource::Defaults : ConfigurationSource::NamedFile;
    state.ConfigFilePath = Asked.Configuration;
    if (!Asked.Size.isEmpty()) Desktop.ChooseScreen(Asked.OnlyMap ? MapScreens() : ProgramScreens(), Asked.Size);
    StartProgram();
    FormWindow& Window = *Desktop.WindowOf(FormGTMain);
    WritePicture(Asked.OnlyMap ? MapAlone(Window, Asked.Size) : Window.grab(), Asked.Picture);
    if (Asked.Almanac) Print(AlmanacText());
}

}  // namespace

int main(int Count, char** Arguments) {
    FillStandardStreams();
    SetUpQt();
    try {
        QCommandLineParser Parser;
        AddStillOptions(Parser);
        ParseArguments(Parser, Count, Arguments);
        if (AnswersQuestion(Parser, StillHelp)) return 0;
        const StillOptions Asked = ReadStillOptions(Parser);
        qputenv("QT_SCALE_FACTOR", QByteArray::number(Asked.Scale));
        int OnlyName = 1;  // the other arguments are not for Qt
        const QApplication Application(OnlyName, Arguments);
        MakePicture(Asked);
        return 0;
    } catch (const UsageError& Error) {
        SayError(Program, Error.what());
        return 2;
    } catch (const FileFailure& Failure) {
        SayError(Program, Failure.what());
        return 1;
    }
}
