#include "tests/density.h"

#include <algorithm>

#include "forms/form_gt_main.h"
#include "forms/form_pictures.h"
#include "forms/layout.h"

namespace gloamtide {

void SetDensity(double Density) {
    FormGTMain.PictureSundial.Density = Density;
    FormGTMain.PictureGTContainer.Density = Density;
    FormGTMain.PictureGT.Density = Density;
}

void PaintPlainMap(Color Day) {
    MeasureScreen();
    ScaleMapPictures();
    FormPictures.PictureDay.Canvas();
    FormPictures.PictureDay.BackColor = Day;
    FormPictures.PictureNight.Canvas();
    FormPictures.PictureNight.BackColor = 0;
}

namespace {

struct Range {
    int Lowest = 255;
    int Highest = 0;
};

int Channel(Color Value, int Which) { return static_cast<int>(Value >> (8 * Which) & 255U); }

// Of the pixels that touch a square of nine squares, each Side pixels long, round square (X, Y).
Range RangeRound(const Bitmap& Picture, int X, int Y, int Side, int Which) {
    Range Found;
    for (int Row = std::max(0, (Y - 1) * Side); Row < std::min(Picture.Height, (Y + 2) * Side); ++Row) {
        for (int Column = std::max(0, (X - 1) * Side); Column < std::min(Picture.Width, (X + 2) * Side); ++Column) {
            const int Value = Channel(Picture.Row(Row)[Column], Which);
            Found = {std::min(Found.Lowest, Value), std::max(Found.Highest, Value)};
        }
    }
    return Found;
}

int MeanOf(const Bitmap& Picture, int X, int Y, int Side, int Which) {
    int Sum = 0;
    for (int Row = 0; Row < Side; ++Row) {
        for (int Column = 0; Column < Side; ++Column) {
            Sum += Channel(Picture.Row(Y * Side + Row)[X * Side + Column], Which);
        }
    }
    return Sum / (Side * Side);
}

}  // namespace

int PixelsApart(const Bitmap& Coarse, const Bitmap& Fine, int Density, int Levels) {
    if (Fine.Width != Coarse.Width * Density || Fine.Height != Coarse.Height * Density) return -1;
    const auto Within = [Levels](int Value, const Range& Allowed) {
        return Value >= Allowed.Lowest - Levels && Value <= Allowed.Highest + Levels;
    };
    int Apart = 0;
    for (int Pixel = 0; Pixel < Coarse.Width * Coarse.Height; ++Pixel) {
        const int X = Pixel % Coarse.Width;
        const int Y = Pixel / Coarse.Width;
        const auto Agrees = [&](int Which) {
            return Within(MeanOf(Fine, X, Y, Density, Which), RangeRound(Coarse, X, Y, 1, Which)) &&
                   Within(Channel(Coarse.Row(Y)[X], Which), RangeRound(Fine, X, Y, Density, Which));
        };
        Apart += Agrees(0) && Agrees(1) && Agrees(2) ? 0 : 1;
    }
    return Apart;
}

}  // namespace gloamtide
