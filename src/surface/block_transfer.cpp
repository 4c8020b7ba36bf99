// BitBlt and StretchBlt of surface/picture_surface.h.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <vector>

#include "surface/linear_light.h"
#include "surface/picture_surface.h"

namespace gloamtide {
namespace {

// One axis of a copy: where it starts in both surfaces and how long it is. 64 bits, so that no argument overflows.
struct CopyAxis {
    std::int64_t To;
    std::int64_t From;
    std::int64_t Length;

    // Turns a negative length round and cuts off what lies outside either surface.
    CopyAxis(std::int64_t TheTo, std::int64_t TheFrom, std::int64_t TheLength, int ToSize, int FromSize)
        : To(TheTo), From(TheFrom), Length(TheLength) {
        if (Length < 0) {
            To += Length;
            From += Length;
            Length = -Length;
        }
        const std::int64_t Before = std::max<std::int64_t>({0, -To, -From});
        To += Before;
        From += Before;
        Length = std::min({Length - Before, ToSize - To, FromSize - From});
    }
};

// Device pixels from Start on.
struct Extent {
    std::int64_t Start;
    std::int64_t Length;
};

// What some of a surface's pixels take up. Extents that meet in pixels meet here, and the whole is the whole.
Extent DeviceExtent(const PictureSurface& Surface, double Start, double Length) {
    const auto At = [&](double Pixel) { return std::int64_t{std::llround(Pixel * Surface.Density)}; };
    return {At(Start), At(Start + Length) - At(Start)};
}

}  // namespace

void BitBlt(PictureSurface& Destination, int X, int Y, int Width, int Height, PictureSurface& Source, int SourceX,
            int SourceY) {
    const Extent Columns = DeviceExtent(Destination, X, Width);
    const Extent Rows = DeviceExtent(Destination, Y, Height);
    BitBltDevice(Destination, Columns.Start, Rows.Start, Columns.Length, Rows.Length, Source,
                 DeviceExtent(Source, SourceX, 0.0).Start, DeviceExtent(Source, SourceY, 0.0).Start);
}

void BitBltDevice(PictureSurface& Destination, std::int64_t X, std::int64_t Y, std::int64_t Width, std::int64_t Height,
                  PictureSurface& Source, std::int64_t SourceX, std::int64_t SourceY) {
    Bitmap& To = Destination.Canvas();
    Bitmap& From = Source.Canvas();
    const CopyAxis Columns(X, SourceX, Width, To.Width, From.Width);
    const CopyAxis Rows(Y, SourceY, Height, To.Height, From.Height);
    if (Columns.Length <= 0 || Rows.Length <= 0) return;
    // A picture moved within itself must not overrun itself; else the plain copy, which the sanitizers have a fast one
    // of.
    const bool Within = &To == &From;
    const auto Copy = Within ? std::memmove : std::memcpy;
    const bool Upward = Within && Rows.To > Rows.From;
    for (std::int64_t Step = 0; Step < Rows.Length; ++Step) {
        const std::int64_t Row = Upward ? Rows.Length - 1 - Step : Step;
        Copy(To.Row(static_cast<int>(Rows.To + Row)) + Columns.To,
             From.Row(static_cast<int>(Rows.From + Row)) + Columns.From,
             static_cast<std::size_t>(Columns.Length) * sizeof(Color));
    }
    Destination.Drawn(static_cast<int>(Columns.To), static_cast<int>(Rows.To),
                      static_cast<int>(Columns.To + Columns.Length - 1), static_cast<int>(Rows.To + Rows.Length - 1));
}

int TurnedColumns(const PictureSurface& Source, int Shift) {
    return std::clamp(static_cast<int>(std::lround(Shift * Source.Density)), 0, Source.Picture.Width);
}

void BitBltTurned(PictureSurface& Destination, std::int64_t X, std::int64_t Y, std::int64_t Width, std::int64_t Height,
                  PictureSurface& Source, int Shift) {
    const std::int64_t Seam = Source.Canvas().Width - TurnedColumns(Source, Shift);
    const auto Copy = [&](std::int64_t From, std::int64_t To, std::int64_t SourceX) {
        if (From < To) BitBltDevice(Destination, From, Y, To - From, Height, Source, SourceX, Y);
    };
    Copy(X, std::min(X + Width, Seam), X + Source.Picture.Width - Seam);
    Copy(std::max(X, Seam), X + Width, std::max(X, Seam) - Seam);
}

namespace {

constexpr std::uint32_t Unity = 65536;  // the sum of the weights of one pixel

// What one pixel of the destination takes from the source: neighbouring pixels from First on, each with its weight.
struct Mix {
    int First = 0;
    std::vector<std::uint32_t> Weights;  // sum Unity; none: nothing of the source lies here
};

// Whole weights in the proportion of the given shares, with the exact sum, so that a flat colour stays flat.
Mix MixOf(int First, const std::vector<double>& Shares) {
    Mix Result{First, {}};
    double Total = 0.0;
    for (const double Share : Shares) Total += Share;
    if (!(Total > 0.0)) return Result;
    std::uint32_t Rest = Unity;
    for (const double Share : Shares) {
        const auto Weight = std::min(Rest, static_cast<std::uint32_t>(Share / Total * Unity + 0.5));
        Result.Weights.push_back(Weight);
        Rest -= Weight;
    }
    *std::max_element(Result.Weights.begin(), Result.Weights.end()) += Rest;
    return Result;
}

// Shrinking: the pixel covers a stretch of the source, each source pixel counts by how much of it is covered.
Mix Covered(double From, double To, int Lowest, int Beyond) {
    const double First = std::max(std::floor(From), static_cast<double>(Lowest));
    const double Last = std::min(std::ceil(To), static_cast<double>(Beyond));
    std::vector<double> Shares;
    for (double Place = First; Place < Last; Place += 1.0) {
        Shares.push_back(std::max(0.0, std::min(To, Place + 1.0) - std::max(From, Place)));
    }
    return Shares.empty() ? Mix{} : MixOf(static_cast<int>(First), Shares);
}

// Enlarging: the pixel's centre lies between the centres of two source pixels, or beyond the outermost one.
Mix Between(double Centre, int Lowest, int Beyond) {
    const double Left = std::floor(Centre - 0.5);
    if (Left < Lowest) return Left + 1.0 < Lowest || Lowest >= Beyond ? Mix{} : MixOf(Lowest, {1.0});
    if (Left + 1.0 >= Beyond) return Left >= Beyond ? Mix{} : MixOf(static_cast<int>(Left), {1.0});
    const double Right = Centre - 0.5 - Left;
    return MixOf(static_cast<int>(Left), {1.0 - Right, Right});
}

// The mixes of those destination pixels along an axis that lie inside the destination, from pixel FirstInside on.
struct StretchAxis {
    int FirstInside;
    std::vector<Mix> Mixes;

    StretchAxis(Extent To, int ToSize, Extent From, int FromSize)
        : FirstInside(static_cast<int>(std::clamp<std::int64_t>(To.Start, 0, ToSize))) {
        const std::int64_t End = std::min<std::int64_t>(To.Start + To.Length, ToSize);
        const int Lowest = static_cast<int>(std::clamp<std::int64_t>(From.Start, 0, FromSize));
        const int Beyond = static_cast<int>(std::clamp<std::int64_t>(From.Start + From.Length, 0, FromSize));
        const auto SourcePlace = [=](double Step) {
            return static_cast<double>(From.Start) +
                   Step * static_cast<double>(From.Length) / static_cast<double>(To.Length);
        };
        for (std::int64_t Place = FirstInside; Place < End; ++Place) {
            const double Step = static_cast<double>(Place - To.Start);
            Mixes.push_back(From.Length >= To.Length
                                ? Covered(SourcePlace(Step), SourcePlace(Step + 1.0), Lowest, Beyond)
                                : Between(SourcePlace(Step + 0.5), Lowest, Beyond));
        }
    }
};

// What is averaged: the levels as they are, or the light that they stand for. Both count to 65535.
struct StoredLevels {
    static std::uint32_t Of(Color Level) { return Level << 8U; }
    static Color LevelOf(std::uint32_t Sum) { return Sum >> 8U; }
    static constexpr std::uint32_t Half = 1U << 7U;  // what rounds to the nearest
};

struct LightOfLevels {
    const LinearLight& Tables = LinearLightTables();
    std::uint32_t Of(Color Level) const { return Tables.Light[Level]; }
    Color LevelOf(std::uint32_t Sum) const { return Tables.Level[Sum]; }
    static constexpr std::uint32_t Half = 0;
};

// A row between the two passes: red, green, blue of each pixel in turn, 0 to 65535.
using WideRow = std::vector<std::uint16_t>;

template <class Averaged>
WideRow StretchedRow(const Color* Row, const StretchAxis& Columns, const Averaged& Value) {
    WideRow Result(3 * Columns.Mixes.size());
    std::uint16_t* To = Result.data();
    for (const Mix& Each : Columns.Mixes) {
        std::uint64_t RedAndBlue = 0;  // in one product: their sums stay within 32 bits
        std::uint32_t Green = 0;
        const Color* From = Row + Each.First;
        for (const std::uint32_t Weight : Each.Weights) {
            const Color Pixel = *From++;
            RedAndBlue += Weight * (Value.Of(Pixel & 255U) | std::uint64_t{Value.Of(Pixel >> 16U & 255U)} << 32U);
            Green += Weight * Value.Of(Pixel >> 8U & 255U);
        }
        *To++ = static_cast<std::uint16_t>(RedAndBlue >> 16U);
        *To++ = static_cast<std::uint16_t>(Green >> 16U);
        *To++ = static_cast<std::uint16_t>(RedAndBlue >> 48U);
    }
    return Result;
}

// Red, green, blue of each pixel in turn, times 2 to the 16th.
using SumRow = std::vector<std::uint32_t>;

// Both factors have 16 bits, so that the compiler multiplies many at once; all of the weight is only a shift.
void AddWeighted(SumRow& Sums, const WideRow& Wide, std::uint32_t Weight) {
    if (Weight == Unity) {
        std::transform(Sums.begin(), Sums.end(), Wide.begin(), Sums.begin(),
                       [](std::uint32_t Sum, std::uint16_t Each) { return Sum + (std::uint32_t{Each} << 16U); });
    } else {
        const auto Share = static_cast<std::uint16_t>(Weight);
        std::transform(Sums.begin(), Sums.end(), Wide.begin(), Sums.begin(),
                       [=](std::uint32_t Sum, std::uint16_t Each) { return Sum + std::uint32_t{Share} * Each; });
    }
}

template <class Averaged>
void StoreRow(const SumRow& Sums, const StretchAxis& Columns, Color* Target, const Averaged& Value) {
    for (std::size_t Column = 0; Column < Columns.Mixes.size(); ++Column) {
        if (Columns.Mixes[Column].Weights.empty()) continue;
        const std::uint32_t* Pixel = &Sums[3 * Column];
        Target[Column] = Value.LevelOf(Pixel[0] >> 16U) | Value.LevelOf(Pixel[1] >> 16U) << 8U |
                         Value.LevelOf(Pixel[2] >> 16U) << 16U;
    }
}

template <class Averaged>
void StretchRows(Bitmap& To, const Bitmap& From, const StretchAxis& Columns, const StretchAxis& Rows,
                 const Averaged& Value) {
    std::vector<WideRow> Stretched(static_cast<std::size_t>(From.Height));
    std::size_t Passed = 0;  // the rows of the source that no further row needs: they give their memory back
    SumRow Sums(3 * Columns.Mixes.size());
    for (std::size_t Row = 0; Row < Rows.Mixes.size(); ++Row) {
        const Mix& Vertical = Rows.Mixes[Row];
        if (Vertical.Weights.empty()) continue;
        for (; Passed < static_cast<std::size_t>(Vertical.First); ++Passed) Stretched[Passed] = WideRow();
        std::fill(Sums.begin(), Sums.end(), Averaged::Half << 16U);
        for (std::size_t Step = 0; Step < Vertical.Weights.size(); ++Step) {
            const std::size_t Needed = static_cast<std::size_t>(Vertical.First) + Step;
            WideRow& Wide = Stretched[Needed];
            if (Wide.empty()) Wide = StretchedRow(From.Row(static_cast<int>(Needed)), Columns, Value);
            AddWeighted(Sums, Wide, Vertical.Weights[Step]);
        }
        StoreRow(Sums, Columns, To.Row(Rows.FirstInside + static_cast<int>(Row)) + Columns.FirstInside, Value);
    }
}

}  // namespace

void StretchBlt(PictureSurface& Destination, int X, int Y, int Width, int Height, PictureSurface& Source, int SourceX,
                int SourceY, int SourceWidth, int SourceHeight, Averaging Averaged) {
    if (Width < 1 || Height < 1 || SourceWidth < 1 || SourceHeight < 1) return;
    Bitmap& To = Destination.Canvas();
    const Bitmap From = &Source == &Destination ? Source.Canvas() : Bitmap();
    const Bitmap& FromPixels = &Source == &Destination ? From : Source.Canvas();
    const StretchAxis Columns(DeviceExtent(Destination, X, Width), To.Width, DeviceExtent(Source, SourceX, SourceWidth),
                              FromPixels.Width);
    const StretchAxis Rows(DeviceExtent(Destination, Y, Height), To.Height, DeviceExtent(Source, SourceY, SourceHeight),
                           FromPixels.Height);
    if (Averaged == Averaging::Levels) {
        StretchRows(To, FromPixels, Columns, Rows, StoredLevels());
    } else {
        StretchRows(To, FromPixels, Columns, Rows, LightOfLevels());
    }
    if (!Columns.Mixes.empty() && !Rows.Mixes.empty()) {
        Destination.Drawn(Columns.FirstInside, Rows.FirstInside,
                          Columns.FirstInside + static_cast<int>(Columns.Mixes.size()) - 1,
                          Rows.FirstInside + static_cast<int>(Rows.Mixes.size()) - 1);
    }
}

}  // namespace gloamtide
