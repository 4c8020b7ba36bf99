#include "surface/picture_surface.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <utility>

#include "platform/host.h"
#include "state/numbers.h"
#include "surface/lettering.h"

namespace gloamtide {

Color QBColor(int Index) {
    static constexpr std::array<Color, 16> Palette = {
        RGB(0, 0, 0),     RGB(0, 0, 128),     RGB(0, 128, 0),     RGB(0, 128, 128),   RGB(128, 0, 0), RGB(128, 0, 128),
        RGB(128, 128, 0), RGB(192, 192, 192), RGB(128, 128, 128), RGB(0, 0, 255),     RGB(0, 255, 0), RGB(0, 255, 255),
        RGB(255, 0, 0),   RGB(255, 0, 255),   RGB(255, 255, 0),   RGB(255, 255, 255),
    };
    return Index >= 0 && Index < 16 ? Palette[static_cast<std::size_t>(Index)] : RGB(0, 0, 0);
}

// A position in whole device pixels, at most FarthestPixel from the origin; perhaps outside the bitmap.
struct PictureSurface::PixelPoint {
    int X = 0;
    int Y = 0;
};

namespace {

constexpr double FarthestPixel = 536870912.0;  // 2 to the 29th: products of two distances fit 64 bits
constexpr double DotPeriod = 3.0;              // pixels from one dot of a dotted line to the next
constexpr int WidestPen = 32;                  // device pixels

int PixelOf(double Place) { return ToInt32(std::floor(std::clamp(Place, -FarthestPixel, FarthestPixel))); }

}  // namespace

std::optional<PictureSurface::PixelPoint> PictureSurface::PixelAt(double X, double Y) const {
    const double PixelX = ScaleX.ToPixels(X) * Density;
    const double PixelY = ScaleY.ToPixels(Y) * Density;
    if (!std::isfinite(PixelX) || !std::isfinite(PixelY)) return std::nullopt;
    return PixelPoint{PixelOf(PixelX), PixelOf(PixelY)};
}

// The last device pixel of what begins with this pixel and is one pixel long.
int PictureSurface::LastPixel(double Pixel) const {
    if (Density == 1.0) return PixelOf(Pixel);  // the sum could round up
    return std::max(PixelOf((Pixel + 1.0) * Density) - 1, PixelOf(Pixel * Density));
}

int PictureSurface::PenOf(int Pixels) const {
    return ToInt32(std::clamp(std::round(Pixels * Density), 1.0, static_cast<double>(WidestPen)));
}

void PictureSurface::FillPixels(int FromX, int FromY, int ToX, int ToY, Color Filling) {
    Bitmap& Target = Canvas();
    FromX = std::max(FromX, 0);
    FromY = std::max(FromY, 0);
    ToX = std::min(ToX, Target.Width - 1);
    ToY = std::min(ToY, Target.Height - 1);
    if (FromX > ToX || FromY > ToY) return;
    for (int Y = FromY; Y <= ToY; ++Y) std::fill(Target.Row(Y) + FromX, Target.Row(Y) + ToX + 1, Filling);
    Drawn(FromX, FromY, ToX, ToY);
}

// Pens of an even width reach one device pixel farther to the right and down.
void PictureSurface::Dot(Bitmap& Target, PixelPoint Place, int Pen, Color DotColor) {
    if (Pen > 1) {
        const int FromX = Place.X - (Pen - 1) / 2;
        const int FromY = Place.Y - (Pen - 1) / 2;
        FillPixels(FromX, FromY, FromX + Pen - 1, FromY + Pen - 1, DotColor);
    } else if (Place.X >= 0 && Place.Y >= 0 && Place.X < Target.Width && Place.Y < Target.Height) {
        Target.Row(Place.Y)[Place.X] = DotColor;
        Drawn(Place.X, Place.Y, Place.X, Place.Y);
    }
}

// Goes along the longer axis, only where the bitmap is, and reckons the other coordinate afresh at each pixel: so a
// line looks the same however much of it is clipped, and in whichever direction it is drawn.
void PictureSurface::Stroke(PixelPoint From, PixelPoint To, Color LineColor) {
    Bitmap& Target = Canvas();
    const int Pen = PenOf(DrawWidth);
    const bool Steep = std::abs(To.Y - From.Y) > std::abs(To.X - From.X);
    if (Steep ? From.Y > To.Y : From.X > To.X) std::swap(From, To);
    const std::int64_t Start = Steep ? From.Y : From.X;
    const std::int64_t Length = (Steep ? To.Y : To.X) - Start;
    const std::int64_t OtherStart = Steep ? From.X : From.Y;
    const std::int64_t Rise = (Steep ? To.X : To.Y) - OtherStart;
    if (Rise == 0 && DrawStyle == DrawStyles::Solid) {
        const int Before = (Pen - 1) / 2;
        const int After = Pen - 1 - Before;
        FillPixels(From.X - Before, From.Y - Before, To.X + After, To.Y + After, LineColor);
        return;
    }
    const std::int64_t Edge = Steep ? Target.Height : Target.Width;
    const std::int64_t First = std::max<std::int64_t>(0, -WidestPen - Start);
    const std::int64_t Last = std::min(Length, Edge - 1 + WidestPen - Start);
    // Other is the nearest whole number, halves upward, to OtherStart + Step * Rise / Length; Rest what is left over.
    const std::int64_t Divisor = 2 * std::max<std::int64_t>(Length, 1);
    const std::int64_t Doubled = 2 * First * Rise + Length;
    std::int64_t Other = OtherStart + Doubled / Divisor - (Doubled % Divisor < 0 ? 1 : 0);
    std::int64_t Rest = Doubled - (Other - OtherStart) * Divisor - 2 * Rise;
    const double Period = DrawStyle == DrawStyles::Dotted ? DotPeriod * Density : 1.0;
    double NextDot = std::ceil(static_cast<double>(First) / Period);
    for (std::int64_t Step = First; Step <= Last; ++Step) {
        Rest += 2 * Rise;
        if (Rest >= Divisor) {
            Rest -= Divisor;
            ++Other;
        } else if (Rest < 0) {
            Rest += Divisor;
            --Other;
        }
        if (static_cast<double>(Step) < NextDot * Period) continue;
        ++NextDot;
        const int Along = static_cast<int>(Start + Step);
        const int Across = static_cast<int>(Other);
        Dot(Target, Steep ? PixelPoint{Across, Along} : PixelPoint{Along, Across}, Pen, LineColor);
    }
}

void PictureSurface::Line(double X1, double Y1, double X2, double Y2, Color LineColor, LineForm Form) {
    CurrentX = X2;
    CurrentY = Y2;
    const auto From = PixelAt(X1, Y1);
    const auto To = PixelAt(X2, Y2);
    if (!From || !To) return;
    switch (Form) {
        case LineForm::Plain:
            Stroke(*From, *To, LineColor);
            break;
        case LineForm::Box:
            Stroke(*From, {To->X, From->Y}, LineColor);
            Stroke({To->X, From->Y}, *To, LineColor);
            Stroke(*To, {From->X, To->Y}, LineColor);
            Stroke({From->X, To->Y}, *From, LineColor);
            break;
        case LineForm::BoxFilled:
            FillPixels(std::min(From->X, To->X), std::min(From->Y, To->Y),
                       LastPixel(std::max(ScaleX.ToPixels(X1), ScaleX.ToPixels(X2))),
                       LastPixel(std::max(ScaleY.ToPixels(Y1), ScaleY.ToPixels(Y2))), LineColor);
            break;
    }
}

void PictureSurface::LineTo(double X, double Y, Color LineColor) { Line(CurrentX, CurrentY, X, Y, LineColor); }

void PictureSurface::PSet(double X, double Y, Color DotColor) {
    CurrentX = X;
    CurrentY = Y;
    if (const auto Place = PixelAt(X, Y)) Dot(Canvas(), *Place, PenOf(DrawWidth), DotColor);
}

void PictureSurface::PSetStep(double StepX, double StepY, Color DotColor) {
    PSet(CurrentX + StepX, CurrentY + StepY, DotColor);
}

namespace {

// The largest column of an ellipse, half-axes A and B, in a row above or below its centre, or -1.
int HalfWidth(double A, double B, int Row) {
    const double Rest = 1.0 - static_cast<double>(Row) * Row / (B * B + B);
    return Rest > 0.0 ? ToInt32(std::ceil(std::sqrt(Rest * (A * A + A)))) - 1 : -1;
}

}  // namespace

// The shape is all pixels whose distances from the centre pixel obey x*x / (a*a + a) + y*y / (b*b + b) < 1, half-axes a
// and b in pixels: round, without single pixels sticking out, and symmetrical about the centre pixel. The outline's pen
// goes along the half-axes, so half of it lies outside; what it leaves of the shape is smaller by the pen.
void PictureSurface::Ellipse(double X, double Y, double Radius, double Aspect, Color LineColor, bool Filled,
                             const std::function<bool(int, int)>& OnArc) {
    CurrentX = X;
    CurrentY = Y;
    const auto Centre = PixelAt(X, Y);
    const double Longer = ScaleX.LengthToPixels(Radius);
    if (!Centre || !std::isfinite(Longer) || !(Aspect > 0.0)) return;
    const int Pen = PenOf(1);
    if (Longer < 1.0) {
        if (OnArc(0, 0)) Dot(Canvas(), *Centre, Pen, LineColor);
        return;
    }
    const int Before = (Pen - 1) / 2;
    const auto HalfAxis = [&](double Pixels) { return std::min(Pixels * Density + Before, FarthestPixel); };
    const double A = HalfAxis(Aspect > 1.0 ? Longer / Aspect : Longer);
    const double B = HalfAxis(Aspect < 1.0 ? Longer * Aspect : Longer);
    const double InnerA = std::max(A - (Pen - 1), 0.0);
    const double InnerB = std::max(B - (Pen - 1), 0.0);
    const Bitmap& Target = Canvas();
    const int Reach = ToInt32(std::floor(std::sqrt(B * B + B)));
    const int FirstRow = std::max(-Reach, -Centre->Y);
    const int LastRow = std::min(Reach, Target.Height - 1 - Centre->Y);
    for (int Row = FirstRow; Row <= LastRow; ++Row) {
        const int RowY = Centre->Y + Row;
        const auto Outline = [&](int FromX, int ToX) {
            for (int Each = std::max(FromX, 0); Each <= std::min(ToX, Target.Width - 1); ++Each) {
                if (OnArc(Each - Centre->X, Row)) FillPixels(Each, RowY, Each, RowY, LineColor);
            }
        };
        const int Outer = HalfWidth(A, B, std::abs(Row));
        if (Outer < 0) continue;
        // Where the row's outline begins.
        const int Inner = std::min(HalfWidth(InnerA, InnerB, std::abs(Row) + 1) + 1, std::max(Outer - (Pen - 1), 0));
        if (Filled) FillPixels(Centre->X - Outer, RowY, Centre->X + Outer, RowY, FillColor);
        Outline(Centre->X - Outer, Centre->X - Inner);
        Outline(Centre->X + Inner, Centre->X + Outer);
    }
}

void PictureSurface::Circle(double X, double Y, double Radius, Color LineColor, double Aspect) {
    Ellipse(X, Y, Radius, Aspect, LineColor, FillStyle == FillStyles::Solid, [](int, int) { return true; });
}

void PictureSurface::Arc(double X, double Y, double Radius, Color LineColor, double Start, double End) {
    Ellipse(X, Y, Radius, 1.0, LineColor, false, [=](int Column, int Row) {
        double Angle = std::atan2(-Row, Column);
        if (Angle < 0.0) Angle += 2.0 * std::acos(-1.0);
        return Start <= End ? Start <= Angle && Angle <= End : Start <= Angle || Angle <= End;
    });
}

long PictureSurface::Point(double X, double Y) const {
    const auto Place = PixelAt(X, Y);
    const bool Inside = Place && Place->X >= 0 && Place->Y >= 0 && Place->X < std::lround(InnerWidth() * Density) &&
                        Place->Y < std::lround(InnerHeight() * Density);
    if (!Inside) return -1;
    const bool Blank = Place->X >= Picture.Width || Place->Y >= Picture.Height;
    return static_cast<long>(Blank ? BackColor.Get() : Picture.Row(Place->Y)[Place->X]);
}

void PictureSurface::Print(const std::string& Text) {
    const GlyphMask Mask = host->RenderText(CurrentFont(), Text, Density);
    if (const auto Place = PixelAt(CurrentX, CurrentY)) {
        const int Rim = TextRimmed ? PenOf(1) : 0;
        Bitmap& Target = Canvas();
        LayText(Target, Mask, Place->X, Place->Y, ForeColor, Rim);
        const int FromX = std::max(0, Place->X - Rim);
        const int FromY = std::max(0, Place->Y - Rim);
        const int ToX = std::min(Target.Width, Place->X + Mask.Width + Rim) - 1;
        const int ToY = std::min(Target.Height, Place->Y + Mask.Height + Rim) - 1;
        if (FromX <= ToX && FromY <= ToY) Drawn(FromX, FromY, ToX, ToY);
    }
    CurrentX = ScaleX.Origin;
    CurrentY += Mask.Height / Density * ScaleY.Units / ScaleY.Pixels;
}

double PictureSurface::TextWidth(const std::string& Text) const {
    return ScaleX.LengthToUnits(host->RenderText(CurrentFont(), Text, 1.0).Width);
}

double PictureSurface::TextHeight(const std::string& Text) const {
    return ScaleY.LengthToUnits(host->RenderText(CurrentFont(), Text, 1.0).Height);
}

void PictureSurface::SetPicture(const Bitmap& Image) {
    Bitmap& Target = Canvas();
    const int Columns = std::min(Target.Width, Image.Width);
    const int Rows = std::min(Target.Height, Image.Height);
    if (&Image == &Target) return;
    for (int Y = 0; Y < Rows; ++Y) {
        std::memcpy(Target.Row(Y), Image.Row(Y), static_cast<std::size_t>(Columns) * sizeof(Color));
    }
    if (Columns > 0 && Rows > 0) Drawn(0, 0, Columns - 1, Rows - 1);
}

void PictureSurface::TakePicture(Bitmap Image) {
    if (!FitsCanvas(Image)) {
        SetPicture(Image);
        return;
    }
    Picture = std::move(Image);
    if (!Picture.Empty()) Drawn(0, 0, Picture.Width - 1, Picture.Height - 1);
}

}  // namespace gloamtide
