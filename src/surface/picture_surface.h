// A picture box with drawing operations: a bitmap that keeps what is drawn, a user scale, exact pixels.
//
// A point belongs to the pixel that it lies in: column floor((x - x1) / (x2 - x1) * width), rows likewise from the
// top. Every operation takes any number: what lies outside the bitmap is not drawn, a coordinate that is not a finite
// number draws nothing, and no call takes longer than the bitmap is large.
#pragma once

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

    using PictureBox::PictureBox;

    // A line, both ends included; Box outlines the rectangle between the corners, BoxFilled fills it, edges included.
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

    // Shows a picture whole, taking the surface's size or part of it from the top left corner.
    void SetPicture(const Bitmap& Image);

private:
    struct PixelPoint;

    std::optional<PixelPoint> PixelAt(double X, double Y) const;
    void Dot(Bitmap& Target, int X, int Y, Color DotColor);
    void FillPixels(int FromX, int FromY, int ToX, int ToY, Color Filling);
    void Stroke(PixelPoint From, PixelPoint To, Color LineColor);
    void Ellipse(double X, double Y, double Radius, double Aspect, Color LineColor, bool Filled,
                 const std::function<bool(int, int)>& OnArc);
};

// Copies Width by Height pixels, whatever the user scales, clipped at both surfaces. A negative height takes the rows
// above Y and SourceY instead of those below, unflipped, a negative width the columns to the left likewise.
void BitBlt(PictureSurface& Destination, int X, int Y, int Width, int Height, PictureSurface& Source, int SourceX,
            int SourceY);

// The same with resizing: area-weighted along an axis that shrinks, bilinear along one that grows. A flat colour stays
// exactly that colour. Parts outside either surface are left out; a size below 1 does nothing.
void StretchBlt(PictureSurface& Destination, int X, int Y, int Width, int Height, PictureSurface& Source, int SourceX,
                int SourceY, int SourceWidth, int SourceHeight);

}  // namespace gloamtide
