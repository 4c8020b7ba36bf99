#include "app/still_film.h"

#include <unistd.h>

#include <cstdio>

#include "app/command_line.h"
#include "app/film.h"
#include "app/progress.h"
#include "storage/files.h"

namespace gloamtide {

void MakeSureOf(const FilmOptions& Film) {
    constexpr std::int64_t Many = 100000;
    if (Film.Count <= Many || Film.Sure) return;
    const QString Pictures = QString("a film of %1 pictures").arg(Film.Count);
    if (isatty(STDIN_FILENO) == 0 || isatty(STDERR_FILENO) == 0) throw UsageError(Pictures + " takes --yes");
    std::fprintf(stderr, "%s: %s. Make it? [y/N] ", StillProgram, Pictures.toUtf8().constData());
    const int Answer = std::getchar();
    if (Answer != 'y' && Answer != 'Y') throw UsageError(Pictures + " is not made");
}

void MakeFilm(const StillOptions& Asked, StillPicture& Program) {
    const FilmOptions& Options = *Asked.Film;
    Progress Told(Options.Count, Asked.Progress || isatty(STDERR_FILENO) != 0);
    const Film Shown = {Options.Count, Options.Rate,
                        [&](std::int64_t Which) {
                            Program.Show(ReadingOf(After(*Asked.At, Options.Each, Which)));
                            QImage Picture = Program.Picture().convertToFormat(QImage::Format_ARGB32);
                            if (Picture.isNull()) throw FileFailure(Asked.Picture + ": the picture is too large");
                            return Picture;
                        },
                        [&](std::int64_t Done) { Told.Tell(Done); }};
    LongFile File(Asked.Picture);
    switch (Asked.Format) {
        case PictureFormat::Gif:
            WriteGif(Shown, File);
            break;
        case PictureFormat::Mp4:
            WriteMp4(Shown, File);
            break;
        case PictureFormat::WebM:
            WriteWebM(Shown, File);
            break;
        default:
            WriteWebP(Shown, File);
    }
    File.PutInPlace();
}

}  // namespace gloamtide
