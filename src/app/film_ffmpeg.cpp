// A film as MP4 or WebM: ffmpeg, where it is installed, gets the pictures through a pipe.

#include <QProcess>
#include <QStandardPaths>

#include "app/film.h"
#include "storage/files.h"

namespace gloamtide {
namespace {

// The lines that ffmpeg leaves where it fails; the last says the most.
[[noreturn]] void RefuseFilm(QProcess& Ffmpeg) {
    Ffmpeg.waitForFinished();
    const QStringList Lines = QString::fromUtf8(Ffmpeg.readAllStandardError()).split('\n', Qt::SkipEmptyParts);
    throw FileFailure("ffmpeg could not make the film" +
                      (Lines.isEmpty() ? "" : ": " + Lines.constLast().toStdString()));
}

QStringList ArgumentsFor(const Film& Shown, const QSize& Size, const QStringList& Coding, const LongFile& File) {
    QStringList Arguments = {"-loglevel", "error", "-nostdin", "-y"};
    Arguments << "-f"
              << "rawvideo"
              << "-pixel_format"
              << "bgr0";
    Arguments << "-video_size" << QString("%1x%2").arg(Size.width()).arg(Size.height());
    Arguments << "-framerate" << QString::number(Shown.Rate) << "-i"
              << "pipe:0";
    Arguments << Coding;
    return Arguments << "file:" + QString::fromStdString(File.ScratchPath().string());
}

void WriteByFfmpeg(const Film& Shown, const LongFile& File, const QStringList& Coding) {
    const QString Program = QStandardPaths::findExecutable("ffmpeg");
    if (Program.isEmpty()) throw FileFailure("MP4 and WebM take ffmpeg; install the package ffmpeg, or make a .webp");
    QProcess Ffmpeg;
    Ffmpeg.start(Program, ArgumentsFor(Shown, Shown.Picture(0).size(), Coding, File));
    if (!Ffmpeg.waitForStarted()) RefuseFilm(Ffmpeg);
    for (std::int64_t Which = 0; Which < Shown.Count; ++Which) {
        const QImage Picture = Shown.Picture(Which);
        Ffmpeg.write(reinterpret_cast<const char*>(Picture.constBits()), Picture.sizeInBytes());
        while (Ffmpeg.bytesToWrite() > 0) {
            if (!Ffmpeg.waitForBytesWritten(-1)) RefuseFilm(Ffmpeg);
        }
        Shown.Tell(Which + 1);
    }
    Ffmpeg.closeWriteChannel();
    Ffmpeg.waitForFinished(-1);
    if (Ffmpeg.exitStatus() != QProcess::NormalExit || Ffmpeg.exitCode() != 0) RefuseFilm(Ffmpeg);
}

// Both as screens of high definition have them; MP4 in whole pairs of pixels.
const QString ToVideoColors = "scale=out_color_matrix=bt709:out_range=tv";
const QStringList ColorTags = {"-colorspace", "bt709", "-color_primaries", "bt709",
                               "-color_trc",  "bt709", "-color_range",     "tv"};

}  // namespace

void WriteMp4(const Film& Shown, const LongFile& File) {
    WriteByFfmpeg(Shown, File,
                  QStringList{"-vf", ToVideoColors + ",pad=ceil(iw/2)*2:ceil(ih/2)*2", "-c:v", "libx264", "-pix_fmt",
                              "yuv420p", "-crf", "18", "-movflags", "+faststart", "-f", "mp4"} +
                      ColorTags);
}

void WriteWebM(const Film& Shown, const LongFile& File) {
    WriteByFfmpeg(Shown, File,
                  QStringList{"-vf", ToVideoColors, "-c:v", "libvpx-vp9", "-pix_fmt", "yuv444p", "-crf", "24", "-b:v",
                              "0", "-row-mt", "1", "-cpu-used", "4", "-f", "webm"} +
                      ColorTags);
}

}  // namespace gloamtide
