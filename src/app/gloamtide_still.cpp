// gloamtide-still: pictures, films and data of what the main window shows, made without a display.

#include <fcntl.h>
#include <unistd.h>

#include <QApplication>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <system_error>

#include "app/almanac_data.h"
#include "app/command_line.h"
#include "app/progress.h"
#include "app/still_film.h"
#include "app/still_options.h"
#include "app/still_picture.h"
#include "storage/files.h"

namespace {

using namespace gloamtide;

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
        if (Kind == QtFatalMsg) SayError(StillProgram, Text.toStdString());
    });
}

void PrintData(const StillOptions& Asked, StillPicture& Program) {
    if (Asked.Almanac) Print(AlmanacText());
    if (!Asked.Json) return;
    const std::int64_t Count = Asked.Film ? Asked.Film->Count : 1;
    for (std::int64_t Each = 0; Each < Count; ++Each) {
        if (Asked.Film) Program.ShowAlmanac(ReadingOf(After(*Asked.At, Asked.Film->Each, Each)));
        Print(AlmanacJson(Asked.Film.has_value()));
    }
}

void Make(const StillOptions& Asked) {
    StillPicture Program(Asked);
    if (!Asked.Picture.empty()) {
        if (Asked.Film) {
            MakeFilm(Asked, Program);
        } else {
            WritePicture(Program.Picture(), Asked.Format, Asked.Picture);
        }
    }
    PrintData(Asked, Program);
}

}  // namespace

int main(int Count, char** Arguments) {
    std::signal(SIGPIPE, SIG_IGN);  // a reader that leaves is an error like any other
    FillStandardStreams();
    SetUpQt();
    try {
        QCommandLineParser Parser;
        AddStillOptions(Parser);
        ParseArguments(Parser, Count, Arguments);
        if (AnswersQuestion(Parser, StillHelp)) return 0;
        const StillOptions Asked = ReadStillOptions(Parser);
        if (Asked.Film && !Asked.Picture.empty()) MakeSureOf(*Asked.Film);
        qputenv("QT_SCALE_FACTOR", QByteArray::number(Asked.Scale));
        int OnlyName = 1;  // the other arguments are not for Qt
        const QApplication Application(OnlyName, Arguments);
        Make(Asked);
        return 0;
    } catch (const UsageError& Error) {
        SayError(StillProgram, Error.what());
        return 2;
    } catch (const FileFailure& Failure) {
        SayError(StillProgram, Failure.what());
        return 1;
    } catch (const Interruption& Caught) {
        std::raise(Caught.Signal);  // so that a shell knows
        return 1;
    }
}
