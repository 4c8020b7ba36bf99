// The formats of pictures and films, and what is written in one go.
#pragma once

#include <QImage>
#include <QString>
#include <optional>
#include <string>

namespace gloamtide {

enum class PictureFormat { Png, Jpeg, WebP, Gif, Mp4, WebM };

// The format that a file's name ends in; none where it is no format of pictures, or of films. A name without an ending,
// such as that of a device or "-", means PNG, or WebP for a film.
std::optional<PictureFormat> FormatOf(const QString& Path, bool Film);

// Puts a picture into a file in one step, or writes it through to a device or, as "-", to standard output.
//   Errors: throws FileFailure where the format takes no picture of this size or the file cannot be written
void WritePicture(const QImage& Picture, PictureFormat Format, const std::string& Path);

}  // namespace gloamtide
