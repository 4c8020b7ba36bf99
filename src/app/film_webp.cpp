// A film as an animated WebP. libwebp encodes each picture; its own encoder of animations would keep all of them in
// memory until the end, and takes what changes slowly, as twilight does, for unchanged.
//   Format: RIFF, chunks VP8X, ANIM, then ANMF for each frame; lengths and numbers low byte first
//           (https://developers.google.com/speed/webp/docs/riff_container)

#include <webp/encode.h>

#include <QRegion>
#include <algorithm>
#include <cstring>
#include <limits>

#include "app/film.h"
#include "storage/files.h"

namespace gloamtide {
namespace {

constexpr int LongestSide = 16383;      // pixels
constexpr int BlockSize = 16;           // pixels that WebP codes together, each way
constexpr std::size_t HeaderSize = 12;  // "RIFF", length, "WEBP"
constexpr float Quality = 80.0F;
constexpr std::uint64_t LongestFrame = 0xFFFFFF;  // milliseconds

[[noreturn]] void Refuse(const std::string& Why) { throw FileFailure("the film could not be made as WebP: " + Why); }

std::string LowByteFirst(std::uint64_t Number, std::size_t Length) {
    std::string Bytes;
    for (; Length > 0; --Length, Number >>= 8U) Bytes += static_cast<char>(Number & 255U);
    return Bytes;
}

std::string Less1(int Pixels) { return LowByteFirst(static_cast<std::uint64_t>(Pixels) - 1, 3); }

// The chunks of a picture in the format of its own.
std::string ChunksOf(QImage Picture) {
    WebPConfig Config;
    WebPPicture Frame;
    if (WebPConfigPreset(&Config, WEBP_PRESET_DEFAULT, Quality) == 0 || WebPPictureInit(&Frame) == 0) {
        Refuse("wrong version of libwebp");
    }
    Config.exact = 1;  // transparent pixels keep their colours
    Frame.use_argb = 1;
    Frame.width = Picture.width();
    Frame.height = Picture.height();
    Frame.argb = reinterpret_cast<std::uint32_t*>(Picture.bits());
    Frame.argb_stride = static_cast<int>(Picture.bytesPerLine() / 4);
    std::string Bytes;
    Frame.custom_ptr = &Bytes;
    Frame.writer = [](const std::uint8_t* Data, std::size_t Size, const WebPPicture* Of) {
        static_cast<std::string*>(Of->custom_ptr)->append(reinterpret_cast<const char*>(Data), Size);
        return 1;
    };
    const bool Done = WebPEncode(&Config, &Frame) != 0;
    WebPPictureFree(&Frame);
    if (!Done) Refuse("error " + std::to_string(Frame.error_code) + " of libwebp");
    constexpr std::size_t ExtendedSize = 18;  // of a chunk that tells nothing here
    return Bytes.substr(HeaderSize + (Bytes.compare(HeaderSize, 4, "VP8X") == 0 ? ExtendedSize : 0));
}

bool SameBlock(const QImage& One, const QImage& Other, const QRect& Block) {
    for (int Y = Block.top(); Y <= Block.bottom(); ++Y) {
        const auto Offset = static_cast<std::ptrdiff_t>(Block.left()) * 4;
        const auto Length = static_cast<std::size_t>(Block.width()) * 4;
        if (std::memcmp(One.constScanLine(Y) + Offset, Other.constScanLine(Y) + Offset, Length) != 0) return false;
    }
    return true;
}

// What is to be laid over the picture before: the blocks that changed, the others transparent.
struct FilmFrame {
    QRect Area;  // empty where nothing changed
    QImage Blocks;
};

// Runs through the blocks of a picture.
template <class Function>
void ForEachBlock(const QRect& Picture, Function Do) {
    for (int Top = 0; Top < Picture.height(); Top += BlockSize) {
        for (int Left = 0; Left < Picture.width(); Left += BlockSize) {
            Do(QRect(Left, Top, BlockSize, BlockSize) & Picture);
        }
    }
}

FilmFrame FrameOver(const QImage& Before, const QImage& Picture) {
    // A block that changed takes its neighbours along, whose colours reach over its edges as WebP codes them.
    QRegion Changed;
    QRegion Coded;
    ForEachBlock(Picture.rect(), [&](const QRect& Block) {
        if (SameBlock(Before, Picture, Block)) return;
        Changed += Block;
        Coded += Block.adjusted(-BlockSize, -BlockSize, BlockSize, BlockSize);
    });
    const QRect Area = Changed.boundingRect();
    FilmFrame Result{Area, Picture.copy(Area)};
    ForEachBlock(Picture.rect(), [&](const QRect& Block) {
        if (!Block.intersects(Area) || Changed.intersects(Block)) return;
        const QRgb Mask = Coded.intersects(Block) ? RGB_MASK : 0;
        const QRect Inside = Block.translated(-Area.topLeft());
        for (int Y = Inside.top(); Y <= Inside.bottom(); ++Y) {
            auto* const Row = reinterpret_cast<QRgb*>(Result.Blocks.scanLine(Y)) + Inside.left();
            std::for_each(Row, Row + Inside.width(), [Mask](QRgb& Pixel) { Pixel &= Mask; });
        }
    });
    return Result;
}

// The instant that a picture begins at, milliseconds.
std::uint64_t StartOf(const Film& Shown, std::int64_t Which) {
    return static_cast<std::uint64_t>(Which * 1000 / Shown.Rate);
}

// Writes frame by frame: how long one stands is known when the next comes.
class WebPWriter {
public:
    WebPWriter(LongFile& TheFile, const QSize& Size) : File(TheFile) {
        if (std::max(Size.width(), Size.height()) > LongestSide) {
            Refuse("it has at most " + std::to_string(LongestSide) + " pixels each way");
        }
        constexpr std::uint32_t AnimatedWithTransparency = 0x12;
        Append("RIFF" + LowByteFirst(0, 4) + "WEBP");
        Append("VP8X" + LowByteFirst(10, 4) + LowByteFirst(AnimatedWithTransparency, 4) + Less1(Size.width()) +
               Less1(Size.height()));
        Append("ANIM" + LowByteFirst(6, 4) + LowByteFirst(0xFF000000U, 4) + LowByteFirst(0, 2));  // black, endless
    }

    void Begin(const FilmFrame& New, std::uint64_t Start) {
        End(Start);
        Place = LowByteFirst(static_cast<std::uint64_t>(New.Area.x()) / 2, 3) +
                LowByteFirst(static_cast<std::uint64_t>(New.Area.y()) / 2, 3) + Less1(New.Area.width()) +
                Less1(New.Area.height());
        Chunks = ChunksOf(New.Blocks);
        Began = Start;
    }

    // The frame that stands ends here.
    void End(std::uint64_t Now) {
        if (Chunks.empty()) return;
        const std::string Head = Place + LowByteFirst(std::min(Now - Began, LongestFrame), 3) + LowByteFirst(0, 1);
        Append("ANMF" + LowByteFirst(Head.size() + Chunks.size(), 4) + Head + Chunks);
    }

    void Close() {
        if (Length > std::numeric_limits<std::uint32_t>::max()) Refuse("it has at most 4 gigabytes");
        File.Overwrite(4, LowByteFirst(Length - 8, 4));
    }

private:
    void Append(const std::string& Bytes) {
        File.Append(Bytes);
        Length += Bytes.size();
    }

    LongFile& File;
    std::uint64_t Length = 0;  // bytes written
    std::uint64_t Began = 0;   // the frame that stands, milliseconds
    std::string Place;
    std::string Chunks;
};

}  // namespace

void WriteWebP(const Film& Shown, LongFile& File) {
    QImage Before = Shown.Picture(0);
    WebPWriter Writer(File, Before.size());
    Writer.Begin({Before.rect(), Before}, 0);
    Shown.Tell(1);
    for (std::int64_t Which = 1; Which < Shown.Count; ++Which) {
        const QImage Picture = Shown.Picture(Which);
        const FilmFrame New = FrameOver(Before, Picture);
        if (!New.Area.isEmpty()) Writer.Begin(New, StartOf(Shown, Which));
        Before = Picture;
        Shown.Tell(Which + 1);
    }
    Writer.End(StartOf(Shown, Shown.Count));
    Writer.Close();
}

}  // namespace gloamtide
