#include "app/picture_file.h"

#include <QBuffer>
#include <QFileInfo>

#include "storage/files.h"

namespace gloamtide {

std::optional<PictureFormat> FormatOf(const QString& Path, bool Film) {
    struct Ending {
        const char* Text;
        PictureFormat Format;
        bool OfPictures, OfFilms;
    };
    constexpr Ending Endings[] = {
        {"", PictureFormat::Png, true, false},      {"", PictureFormat::WebP, false, true},
        {"png", PictureFormat::Png, true, false},   {"jpg", PictureFormat::Jpeg, true, false},
        {"jpeg", PictureFormat::Jpeg, true, false}, {"webp", PictureFormat::WebP, true, true},
        {"gif", PictureFormat::Gif, false, true},   {"mp4", PictureFormat::Mp4, false, true},
        {"webm", PictureFormat::WebM, false, true},
    };
    const QString Text = QFileInfo(Path).suffix().toLower();
    for (const Ending& Each : Endings) {
        if (Text == Each.Text && (Film ? Each.OfFilms : Each.OfPictures)) return Each.Format;
    }
    return std::nullopt;
}

void WritePicture(const QImage& Picture, PictureFormat Format, const std::string& Path) {
    struct Encoder {
        const char* Name;
        int Quality;  // PNG: how little it is compressed
        int Longest;  // side, pixels
    };
    const Encoder Used = Format == PictureFormat::Png    ? Encoder{"PNG", 85, 32767}
                         : Format == PictureFormat::Jpeg ? Encoder{"JPEG", 90, 65500}
                                                         : Encoder{"WebP", 90, 16383};
    const int Side = std::max(Picture.width(), Picture.height());
    if (Side > Used.Longest) {
        throw FileFailure(Path + ": " + Used.Name + " has no pictures of more than " + std::to_string(Used.Longest) +
                          " pixels each way");
    }
    QBuffer Encoded;
    Encoded.open(QIODevice::WriteOnly);
    if (!Picture.save(&Encoded, Used.Name, Used.Quality)) {
        throw FileFailure(Path + ": the picture could not be made as " + Used.Name);
    }
    const std::string Bytes = Encoded.data().toStdString();
    if (Path == "-") {
        WriteStandardOutput(Bytes);
    } else {
        WriteFileOrDevice(Path, Bytes);
    }
}

}  // namespace gloamtide
