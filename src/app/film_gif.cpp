// A film as an animated GIF, through giflib. One palette for all pictures keeps what does not change from flickering.

#include <gif_lib.h>

#include <algorithm>
#include <array>
#include <exception>
#include <memory>
#include <span>
#include <utility>
#include <vector>

#include "app/film.h"
#include "storage/files.h"

namespace gloamtide {
namespace {

constexpr int Colors = 256;
constexpr GifPixelType Unchanged = 255;  // not a colour: what the picture before left there
constexpr unsigned Kept = 6;             // bits of a channel that choose a colour of the palette

[[noreturn]] void RefuseGif(int Error) {
    const char* const Text = GifErrorString(Error);
    throw FileFailure(std::string("the film could not be made as GIF: ") + (Text == nullptr ? "no memory" : Text));
}

// The palette of some pictures spread over the film: of its days and its nights.
std::array<GifColorType, Colors> PaletteOf(const Film& Shown) {
    constexpr std::int64_t Samples = 8;
    std::vector<GifByteType> Red;
    std::vector<GifByteType> Green;
    std::vector<GifByteType> Blue;
    for (std::int64_t Each = 0; Each < std::min(Samples, Shown.Count); ++Each) {
        const QImage Picture = Shown.Picture(Each * Shown.Count / Samples % Shown.Count).scaledToWidth(480);
        for (int Y = 0; Y < Picture.height(); ++Y) {
            const auto* Row = reinterpret_cast<const QRgb*>(Picture.constScanLine(Y));
            for (int X = 0; X < Picture.width(); ++X) {
                Red.push_back(static_cast<GifByteType>(qRed(Row[X])));
                Green.push_back(static_cast<GifByteType>(qGreen(Row[X])));
                Blue.push_back(static_cast<GifByteType>(qBlue(Row[X])));
            }
        }
    }
    std::array<GifColorType, Colors> Palette{};
    std::vector<GifByteType> Chosen(Red.size());
    int Count = Unchanged;
    if (GifQuantizeBuffer(static_cast<unsigned>(Red.size()), 1, &Count, Red.data(), Green.data(), Blue.data(),
                          Chosen.data(), Palette.data()) == GIF_ERROR) {
        RefuseGif(0);
    }
    // Its colours have five bits a channel: the means of what they were chosen for have eight.
    const auto Mean = [&](const std::vector<GifByteType>& Channel, GifByteType GifColorType::*Part) {
        std::array<std::pair<std::uint64_t, std::uint64_t>, Colors> Sums{};
        for (std::size_t Pixel = 0; Pixel < Chosen.size(); ++Pixel) {
            auto& [Sum, Number] = Sums[Chosen[Pixel]];
            Sum += Channel[Pixel];
            ++Number;
        }
        for (std::size_t Each = 0; Each < Colors; ++Each) {
            const auto& [Sum, Number] = Sums[Each];
            if (Number > 0) Palette[Each].*Part = static_cast<GifByteType>((Sum + Number / 2) / Number);
        }
    };
    Mean(Red, &GifColorType::Red);
    Mean(Green, &GifColorType::Green);
    Mean(Blue, &GifColorType::Blue);
    return Palette;
}

// The nearest colour of a palette for each colour, by the upper bits of its channels.
class NearestColors {
public:
    explicit NearestColors(const std::array<GifColorType, Colors>& Palette) : Table(std::size_t{1} << 3 * Kept) {
        constexpr unsigned Levels = 1U << Kept;
        constexpr unsigned Step = 256U / Levels;
        for (unsigned Place = 0; Place < Table.size(); ++Place) {
            const auto Middle = [&](unsigned Channel) {
                return static_cast<int>((Place >> Channel * Kept) % Levels * Step + Step / 2);
            };
            const auto Distance = [&](const GifColorType& Each) {
                const int Red = Each.Red - Middle(2);
                const int Green = Each.Green - Middle(1);
                const int Blue = Each.Blue - Middle(0);
                return 2 * Red * Red + 4 * Green * Green + 3 * Blue * Blue;
            };
            const auto Real = std::span(Palette).first<Unchanged>();
            Table[Place] = static_cast<GifPixelType>(std::ranges::min_element(Real, {}, Distance) - Real.begin());
        }
    }

    GifPixelType Of(QRgb Color) const {
        constexpr unsigned Dropped = 8 - Kept;
        const auto Upper = [](int Channel) { return static_cast<unsigned>(Channel) >> Dropped; };
        return Table[Upper(qRed(Color)) << 2 * Kept | Upper(qGreen(Color)) << Kept | Upper(qBlue(Color))];
    }

private:
    std::vector<GifPixelType> Table;
};

// No exception passes through giflib.
struct GifOutput {
    LongFile& File;
    std::exception_ptr Failure;
};

int Put(GifFileType* Gif, const GifByteType* Bytes, int Length) {
    auto& Output = *static_cast<GifOutput*>(Gif->UserData);
    try {
        Output.File.Append({reinterpret_cast<const char*>(Bytes), static_cast<std::size_t>(Length)});
        return Length;
    } catch (const FileFailure&) {
        Output.Failure = std::current_exception();
        return 0;
    }
}

using GifFile = std::unique_ptr<GifFileType, void (*)(GifFileType*)>;
using ColorMap = std::unique_ptr<ColorMapObject, decltype(&GifFreeMapObject)>;

void Require(const GifFile& Gif, int Result) {
    const auto& Output = *static_cast<const GifOutput*>(Gif->UserData);
    if (Output.Failure) std::rethrow_exception(Output.Failure);
    if (Result == GIF_ERROR) RefuseGif(Gif->Error);
}

// How long a picture stands, hundredths of a second; over the film none is lost.
int DelayOf(const Film& Shown, std::int64_t Which) {
    return static_cast<int>((Which + 1) * 100 / Shown.Rate - Which * 100 / Shown.Rate);
}

void PutStart(const GifFile& Gif, const QSize& Size, const std::array<GifColorType, Colors>& Palette) {
    const ColorMap Map(GifMakeMapObject(Colors, Palette.data()), &GifFreeMapObject);
    if (Map == nullptr) RefuseGif(0);
    EGifSetGifVersion(Gif.get(), true);
    Require(Gif, EGifPutScreenDesc(Gif.get(), Size.width(), Size.height(), 8, 0, Map.get()));
    constexpr GifByteType Endless[] = {1, 0, 0};
    Require(Gif, EGifPutExtensionLeader(Gif.get(), APPLICATION_EXT_FUNC_CODE));
    Require(Gif, EGifPutExtensionBlock(Gif.get(), 11, "NETSCAPE2.0"));
    Require(Gif, EGifPutExtensionBlock(Gif.get(), sizeof Endless, Endless));
    Require(Gif, EGifPutExtensionTrailer(Gif.get()));
}

// Before: the picture as it stands, in colours of the palette.
void PutPicture(const GifFile& Gif, const QImage& Picture, int Delay, const NearestColors& Nearest,
                std::vector<GifPixelType>& Before) {
    const GraphicsControlBlock Control = {DISPOSE_DO_NOT, false, Delay, Unchanged};
    std::array<GifByteType, 4> Bytes{};
    EGifGCBToExtension(&Control, Bytes.data());
    Require(Gif, EGifPutExtension(Gif.get(), GRAPHICS_EXT_FUNC_CODE, Bytes.size(), Bytes.data()));
    Require(Gif, EGifPutImageDesc(Gif.get(), 0, 0, Picture.width(), Picture.height(), false, nullptr));
    std::vector<GifPixelType> Line(static_cast<std::size_t>(Picture.width()));
    auto Old = Before.begin();
    for (int Y = 0; Y < Picture.height(); ++Y) {
        const auto* Row = reinterpret_cast<const QRgb*>(Picture.constScanLine(Y));
        for (GifPixelType& Pixel : Line) {
            const GifPixelType New = Nearest.Of(*Row++);
            Pixel = New == *Old ? Unchanged : New;
            *Old++ = New;
        }
        Require(Gif, EGifPutLine(Gif.get(), Line.data(), Picture.width()));
    }
}

}  // namespace

void WriteGif(const Film& Shown, LongFile& File) {
    const auto Palette = PaletteOf(Shown);
    const NearestColors Nearest(Palette);
    int Error = 0;
    GifOutput Output{File, nullptr};
    GifFile Gif(EGifOpen(&Output, Put, &Error), [](GifFileType* Each) { EGifCloseFile(Each, nullptr); });
    if (Gif == nullptr) RefuseGif(Error);
    std::vector<GifPixelType> Before;
    for (std::int64_t Which = 0; Which < Shown.Count; ++Which) {
        const QImage Picture = Shown.Picture(Which);
        if (Which == 0) {
            PutStart(Gif, Picture.size(), Palette);
            Before.assign(static_cast<std::size_t>(Picture.width()) * static_cast<std::size_t>(Picture.height()),
                          Unchanged);
        }
        PutPicture(Gif, Picture, DelayOf(Shown, Which), Nearest, Before);
        Shown.Tell(Which + 1);
    }
    EGifCloseFile(Gif.release(), &Error);
    if (Output.Failure) std::rethrow_exception(Output.Failure);
}

}  // namespace gloamtide
