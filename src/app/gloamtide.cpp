// Gloamtide, the desktop program.

#include <QApplication>
#include <QBuffer>
#include <QIcon>
#include <QImageReader>
#include <QPixmap>
#include <QStandardPaths>
#ifdef __GLIBC__
#include <malloc.h>
#endif

#include "app/command_line.h"
#include "app/film_dialog.h"
#include "app/screens.h"
#include "assets/assets.h"
#include "forms/form_gt_main.h"
#include "frame/startup.h"
#include "platform/qt/qt_host.h"

namespace {

using namespace gloamtide;

constexpr const char* Help =
    "Usage: gloamtide\n"
    "Shows the Earth in the light of the Sun, with an almanac and a sundial. Its help is in its Help menu.\n"
    "\n"
    "  --help, --version  print this help, or the version, and end\n";

// Pictures give their memory back to the desktop when they go, however large the largest was.
void KeepMemorySmall() {
#ifdef __GLIBC__
    mallopt(M_MMAP_THRESHOLD, 1 << 18);
#endif
}

// Read as what it is: a look at its bytes would load every plugin for other formats first.
QPixmap ProgramIcon() {
    const AssetBytes Icon = IconPng();
    QByteArray Bytes =
        QByteArray::fromRawData(reinterpret_cast<const char*>(Icon.data()), static_cast<qsizetype>(Icon.size()));
    QBuffer Buffer(&Bytes);
    QImageReader Reader(&Buffer, "png");
    Reader.setAutoDetectImageFormat(false);
    return QPixmap::fromImageReader(&Reader);
}

int ShowProgram() {
    QApplication::setWindowIcon(ProgramIcon());

    QtHost Desktop;
    const AssetBytes HelpText = HelpHtml();
    Desktop.HelpTexts["GT401.hlp"] =
        QString::fromUtf8(reinterpret_cast<const char*>(HelpText.data()), static_cast<qsizetype>(HelpText.size()));
    Desktop.KeepSettings(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                         "/gloamtide/gloamtide.ini");
    Desktop.ChooseScreen(ProgramScreens(), QtHost::LargestWindow());
    FormGTMain.MenuAnimationSubFilm.Click = ShowFilmDialog;
    StartProgram();
    return Desktop.Run();
}

}  // namespace

int main(int Count, char** Arguments) {
    try {
        QCommandLineParser Parser;
        ParseArguments(Parser, Count, Arguments);
        if (AnswersQuestion(Parser, Help)) return 0;
        if (!Parser.positionalArguments().isEmpty()) throw UsageError("takes no file; its File menu opens one");
    } catch (const UsageError& Error) {
        SayError("gloamtide", Error.what());
        return 2;
    }
    KeepMemorySmall();
    int OnlyName = 1;  // what else there was is answered
    QApplication Application(OnlyName, Arguments);
    QApplication::setApplicationName("Gloamtide");
    return ShowProgram();
}
