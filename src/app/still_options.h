// What the command line of gloamtide-still asks for.
#pragma once

#include <QCommandLineParser>
#include <QSize>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/instant.h"
#include "app/picture_file.h"
#include "state/state.h"

namespace gloamtide {

enum class MapChoice { Natural, Political, Terrain };

// From the instant of the options to another.
struct FilmOptions {
    Instant Until = 0;
    Step Each;
    std::int64_t Count = 1;  // of pictures
    int Rate = 12;           // pictures a second
    bool Sure = false;       // however many they are
};

struct StillOptions {
    std::string Configuration;  // path, or empty for the defaults
    std::optional<Instant> At;  // without it, the present at the configuration's distance
    std::optional<FilmOptions> Film;
    std::optional<int> ScreenWidth;  // of the screen to lay out for, pixels
    double Scale = 1.0;              // device pixels for each of the program's
    QSize Size;                      // of the picture, or empty: as the screen's width and the scale give it
    bool OnlyMap = false;
    std::optional<MapChoice> Map;
    std::vector<std::pair<Boolean*, Boolean>> Shown;  // flags of the state and of the extras with their values
    QString Place;                                    // or empty
    bool Almanac = false;
    bool Json = false;
    bool Progress = false;  // also where standard error is no terminal
    std::string Picture;    // path, "-" for standard output, or empty: none
    PictureFormat Format = PictureFormat::Png;
};

extern const char* const StillHelp;

void AddStillOptions(QCommandLineParser& Parser);

//   Errors: throws UsageError where a value is none of its option's, where options do not go together, or where nothing
//           is asked for
StillOptions ReadStillOptions(const QCommandLineParser& Parser);

}  // namespace gloamtide
