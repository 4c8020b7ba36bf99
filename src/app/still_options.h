// What the command line of gloamtide-still asks for.
#pragma once

#include <QCommandLineParser>
#include <QDateTime>
#include <string>

namespace gloamtide {

struct StillOptions {
    std::string Configuration;  // path, or empty for the defaults
    QDateTime At = QDateTime::currentDateTimeUtc();
    int ScreenWidth = 1280;  // pixels
    bool Almanac = false;
    std::string Picture;  // path
};

extern const char* const StillHelp;

void AddStillOptions(QCommandLineParser& Parser);

//   Errors: throws UsageError where a value is none of its option's, or where what is to be written is not named
StillOptions ReadStillOptions(const QCommandLineParser& Parser);

}  // namespace gloamtide
