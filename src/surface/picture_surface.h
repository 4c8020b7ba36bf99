// A picture box with drawing operations: a bitmap that keeps what is drawn, a user scale, exact pixels.
//
// A point belongs to the pixel that it lies in: column floor((x - x1) / (x2 - x1) * width), rows likewise from the
// top. Every operation takes any number: what lies outside the bitmap is not drawn, a coordinate that is not a finite
// number draws nothing, and no call takes longer than the bitmap is large.
//
// Whatever the density, coordinates and sizes count in user units or in the program's pixels. They become device
// pixels at the last step: column floor(pixel * density). A dot is a square of the density's size, a pen is as many
// device pixels wide as its width times the density rounds to, at least one.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "platform/picture_box.h"

namespace gloamtide {

// The classic palette of 16 colours; an index outside 0 to 15 gives black.
Color QBColor(int Index);

enum class DrawStyles { Solid = 0, Dotted = 2 };
enum class FillStyles { Solid = 0, Transparent = 1 };
enum class LineForm { Plain, Box, BoxFilled };

class PictureSurface : public PictureBox {
public:
    double CurrentX = 0.0;  // user units; each drawing call moves the current point to where it ended
    double CurrentY = 0.0;
    int DrawWidth = 1;  // pixels
    DrawStyles DrawStyle = DrawStyles::Solid;
    FillStyles FillStyle = FillStyles::Transparent;
    Color FillColor = RGB(0, 0, 0);
    bool TextRimmed = false;  // Print gives letters a dark rim where the ground is light

    using PictureBox::PictureBox;

    // A line, both ends included; Box outlines the rectangle between the corners, BoxFilled fills it, edges included:
    // boxes of which one begins a pixel after the other ends meet at every density.
    void Line(double X1, double Y1, double X2, double Y2, Color LineColor, LineForm Form = LineForm::Plain);
    void LineTo(double X, double Y, Color LineColor);  // from the current point

    void PSet(double X, double Y, Color DotColor);
    void PSetStep(double StepX, double StepY, Color DotColor);  // from the current point

    // Outline in LineColor, the inside in FillColor where FillStyle is solid. Radius: user X units, its sign set
    // aside; below one pixel it draws a dot. Aspect: the vertical half-axis divided by the horizontal one; the larger
    // half-axis is the radius. The current point ends at the centre.
    void Circle(double X, double Y, double Radius, Color LineColor, double Aspect = 1.0);
    // The part of the outline from angle Start counter-clockwise to End, radians, 0 to the right of the screen.
    void Arc(double X, double Y, double Radius, Color LineColor, double Start, double End);

    long Point(double X, double Y) const;  // the colour there, -1 outside the surface

    // Text in ForeColor and the surface's font, the current point at its top left, the background untouched; the
    // current point ends at the left edge, one line lower.
    void Print(const std::string& Text);
    double TextWidth(const std::string& Text) const;   // user units
    double TextHeight(const std::string& Text) const;  // user units

    // Shows a picture whole, device pixel for device pixel: as much of it as the surface holds, from the top left.
    void SetPicture(const Bitmap& Image);
    // The same, but where the sizes agree the image becomes the surface's own: nothing is copied.
    void TakePicture(Bitmap Image);

private:
    struct PixelPoint;

    std::optional<PixelPoint> PixelAt(double X, double Y) const;
    int LastPixel(double Pixel) const;
    int PenOf(int Pixels) const;
    void Dot(Bitmap& Target, PixelPoint Place, int Pen, Color DotColor);
    void FillPixels(int FromX, int FromY, int ToX, int ToY, Color Filling);
    void Stroke(PixelPoint From, PixelPoint To, Color LineColor);
    void Ellipse(double X, double Y, double Radius, double Aspect, Color LineColor, bool Filled,
                 const std::function<bool(int, int)>& OnArc);
};

// Copies Width by Height pixels, whatever the user scales, clipped at both surfaces. A negative height takes the rows
// above Y and SourceY instead of those below, unflipped, a negative width the columns to the left likewise.
void BitBlt(PictureSurface& Destination, int X, int Y, int Width, int Height, PictureSurface& Source, int SourceX,
            int SourceY);

// The same in device pixels.
void BitBltDevice(PictureSurface& Destination, std::int64_t X, std::int64_t Y, std::int64_t Width, std::int64_t Height,
                  PictureSurface& Source, std::int64_t SourceX, std::int64_t SourceY);

// Copies a part of a picture of the same size and density as if that were turned: column p gets column p + Shift of
// Source, modulo the width. X to Height: device pixels, a negative height as in BitBlt, a negative width copies
// nothing. Shift: pixels, 0 to the width; rounded to device pixels once, so that no seam shows.
void BitBltTurned(PictureSurface& Destination, std::int64_t X, std::int64_t Y, std::int64_t Width, std::int64_t Height,
                  PictureSurface& Source, int Shift);
int TurnedColumns(const PictureSurface& Source, int Shift);  // that shift in device pixels

enum class Averaging { Levels, Light };  // of the colours as they are written, or of the light that they stand for

// BitBlt with resizing: area-weighted along an axis that shrinks, bilinear along one that grows. A flat colour stays
// exactly that colour. Parts outside either surface are left out; a size below 1 does nothing.
void StretchBlt(PictureSurface& Destination, int X, int Y, int Width, int Height, PictureSurface& Source, int SourceX,
                int SourceY, int SourceWidth, int SourceHeight, Averaging Averaged = Averaging::Levels);

}  // namespace gloamtide
