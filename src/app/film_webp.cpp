// A film as an animated WebP. The encoder keeps all that it wrote until its end, so each few pictures get one of their
// own, and their frames go over into the film's file.
//   Format: RIFF, chunks VP8X, ANIM, then ANMF for each frame; lengths and numbers low byte first
//           (https://developers.google.com/speed/webp/docs/riff_container)

#include <webp/encode.h>
#include <webp/mux.h>

#include <algorithm>
#include <limits>
#include <memory>

#include "app/film.h"
#include "storage/files.h"

namespace gloamtide {
namespace {

constexpr std::int64_t GroupSize = 30;  // pictures an encoder gets
constexpr int LongestSide = 16383;      // pixels
constexpr std::size_t HeaderSize = 12;  // "RIFF", length, "WEBP"
constexpr std::size_t FlagsPlace = 20;  // in the chunk VP8X, which comes first
constexpr float Quality = 80.0F;

using AnimationEncoder = std::unique_ptr<WebPAnimEncoder, decltype(&WebPAnimEncoderDelete)>;

[[noreturn]] void Refuse(const std::string& Why) { throw FileFailure("the film could not be made as WebP: " + Why); }

std::uint32_t NumberAt(const std::string& Bytes, std::size_t Place) {
    std::uint32_t Number = 0;
    for (std::size_t Each = 4; Each-- > 0;) Number = Number << 8U | static_cast<unsigned char>(Bytes[Place + Each]);
    return Number;
}

std::string LowByteFirst(std::uint64_t Number, std::size_t Length) {
    std::string Bytes;
    for (; Length > 0; --Length, Number >>= 8U) Bytes += static_cast<char>(Number & 255U);
    return Bytes;
}

// How long it is from one picture to another, milliseconds.
int TimeBetween(const Film& Shown, std::int64_t First, std::int64_t Last) {
    return static_cast<int>(Last * 1000 / Shown.Rate - First * 1000 / Shown.Rate);
}

// Pictures First up to Last, as a file of their own.
std::string EncodeGroup(const Film& Shown, std::int64_t First, std::int64_t Last) {
    WebPAnimEncoderOptions Options;
    WebPConfig Config;
    if (WebPAnimEncoderOptionsInit(&Options) == 0 || WebPConfigInit(&Config) == 0) Refuse("wrong version of libwebp");
    Options.kmax = 0;  // a group begins with a whole picture and needs no other
    Config.quality = Quality;
    AnimationEncoder Encoder(nullptr, &WebPAnimEncoderDelete);
    for (std::int64_t Which = First; Which < Last; ++Which) {
        QImage Picture = Shown.Picture(Which);
        if (Encoder == nullptr) Encoder.reset(WebPAnimEncoderNew(Picture.width(), Picture.height(), &Options));
        WebPPicture Frame;
        if (Encoder == nullptr || WebPPictureInit(&Frame) == 0) Refuse("no memory");
        Frame.use_argb = 1;
        Frame.width = Picture.width();
        Frame.height = Picture.height();
        Frame.argb = reinterpret_cast<std::uint32_t*>(Picture.bits());
        Frame.argb_stride = static_cast<int>(Picture.bytesPerLine() / 4);
        if (WebPAnimEncoderAdd(Encoder.get(), &Frame, TimeBetween(Shown, First, Which), &Config) == 0) {
            Refuse(WebPAnimEncoderGetError(Encoder.get()));
        }
        Shown.Tell(Which + 1);
    }
    WebPAnimEncoderAdd(Encoder.get(), nullptr, TimeBetween(Shown, First, Last), nullptr);
    WebPData Data;
    WebPDataInit(&Data);
    if (WebPAnimEncoderAssemble(Encoder.get(), &Data) == 0) Refuse(WebPAnimEncoderGetError(Encoder.get()));
    std::string Bytes(reinterpret_cast<const char*>(Data.bytes), Data.size);
    WebPDataClear(&Data);
    return Bytes;
}

// The frames of a group. Pictures that are all alike come as a still one, which becomes a frame of their length.
std::string FramesOf(const std::string& Group, const std::string& FrameHeader) {
    std::string Frames;
    for (std::size_t Place = HeaderSize; Place + 8 <= Group.size();) {
        const std::size_t Length = 8 + ((NumberAt(Group, Place + 4) + 1U) & ~1U);
        if (Group.compare(Place, 4, "ANMF") == 0) Frames += Group.substr(Place, Length);
        Place += Length;
    }
    if (!Frames.empty()) return Frames;
    const std::string Still = Group.substr(HeaderSize);
    return "ANMF" + LowByteFirst(FrameHeader.size() + Still.size(), 4) + FrameHeader + Still;
}

}  // namespace

void WriteWebP(const Film& Shown, LongFile& File) {
    const QSize Size = Shown.Picture(0).size();
    if (std::max(Size.width(), Size.height()) > LongestSide) Refuse("it has at most 16383 pixels each way");
    const auto Side = [](int Pixels) { return LowByteFirst(static_cast<std::uint64_t>(Pixels) - 1, 3); };
    const std::string Canvas = Side(Size.width()) + Side(Size.height());
    std::uint32_t Flags = 2;  // an animation; the groups tell whether their frames have transparent parts
    constexpr std::uint32_t NoBlending = 2;
    std::string Start = "VP8X" + LowByteFirst(10, 4) + LowByteFirst(Flags, 4) + Canvas;
    Start += "ANIM" + LowByteFirst(6, 4) + LowByteFirst(0xFF000000U, 4) + LowByteFirst(0, 2);  // black, without end
    std::uint64_t Length = 4 + Start.size();
    File.Append("RIFF" + LowByteFirst(0, 4) + "WEBP" + Start);
    for (std::int64_t First = 0; First < Shown.Count; First += GroupSize) {
        const std::int64_t Last = std::min(First + GroupSize, Shown.Count);
        const auto Duration = static_cast<std::uint64_t>(TimeBetween(Shown, First, Last));
        const std::string Whole = LowByteFirst(0, 6) + Canvas + LowByteFirst(Duration, 3) + LowByteFirst(NoBlending, 1);
        const std::string Group = EncodeGroup(Shown, First, Last);
        if (Group.compare(HeaderSize, 4, "VP8X") == 0) Flags |= NumberAt(Group, FlagsPlace);
        const std::string Frames = FramesOf(Group, Whole);
        File.Append(Frames);
        Length += Frames.size();
        if (Length > std::numeric_limits<std::uint32_t>::max()) Refuse("it has at most 4 gigabytes");
    }
    File.Overwrite(4, LowByteFirst(Length, 4));
    File.Overwrite(FlagsPlace, LowByteFirst(Flags, 4));
}

}  // namespace gloamtide
