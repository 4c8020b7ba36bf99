// What the command line of gloamtide-still asks for.
#pragma once

#include <QCommandLineParser>
#include <QDateTime>
#include <QSize>
#include <optional>
#include <string>

namespace gloamtide {

struct StillOptions {
    std::string Configuration;  // path, or empty for the defaults
    QDateTime At = QDateTime::currentDateTimeUtc();
    std::optional<int> ScreenWidth;  // of the screen to lay out for, pixels
    double Scale = 1.0;              // device pixels for each of the program's
    QSize Size;                      // of the picture, or empty: as the screen's width and the scale give it
    bool OnlyMap = false;
    bool Almanac = false;
    std::string Picture;  // path
};

extern const char* const StillHelp;

void AddStillOptions(QCommandLineParser& Parser);

//   Errors: throws UsageError where a value is none of its option's, or where what is to be written is not named
StillOptions ReadStillOptions(const QCommandLineParser& Parser);

}  // namespace gloamtide
