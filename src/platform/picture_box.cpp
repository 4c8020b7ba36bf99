#include "platform/picture_box.h"

#include <algorithm>
#include <cmath>

namespace gloamtide {
namespace {

float Single(double Value) { return static_cast<float>(Value); }

}  // namespace

PictureBox::PictureBox(Container& TheParent, std::string_view TheName) : Container(&TheParent, TheName) {}

Bitmap& PictureBox::Canvas() {
    if (!FitsCanvas(Picture)) Picture.Renew(CanvasWidth(), CanvasHeight(), BackColor);
    return Picture;
}

bool PictureBox::FitsCanvas(const Bitmap& Image) const {
    return Image.Width == CanvasWidth() && Image.Height == CanvasHeight();
}

int PictureBox::CanvasWidth() const { return std::max(0, static_cast<int>(std::lround(InnerWidth() * Density))); }

int PictureBox::CanvasHeight() const {
    return std::max(0, static_cast<int>(std::lround(std::min(InnerHeight(), LowestRow + 1.0) * Density)));
}

void PictureBox::PointerMoved(double PixelX, double PixelY) const {
    if (MouseMove) MouseMove(Single(ScaleX.ToUnits(PixelX)), Single(ScaleY.ToUnits(PixelY)));
}

void PictureBox::DoubleClicked(double PixelX, double PixelY) const {
    if (DoubleClick) DoubleClick(Single(ScaleX.ToUnits(PixelX)), Single(ScaleY.ToUnits(PixelY)));
}

std::vector<MenuChoice> PictureBox::ChoicesAt(double PixelX, double PixelY) const {
    if (!ContextMenu) return {};
    return ContextMenu(Single(ScaleX.ToUnits(PixelX)), Single(ScaleY.ToUnits(PixelY)));
}

void PictureBox::PropertyAssigned(const void* Which, bool Differs) {
    if (Which == &BackColor && !Picture.Empty()) {
        std::fill(Picture.Pixels.begin(), Picture.Pixels.end(), BackColor.Get());
        Drawn(0, 0, Picture.Width - 1, Picture.Height - 1);
    }
    if (Which == &Density && !(Density >= LowestDensity && Density <= HighestDensity)) {
        Density = LastDensity;
        return;
    }
    Container::PropertyAssigned(Which, Differs);
    if (Density != LastDensity) {
        LastDensity = Density;
        DensityChanged();
    }
}

}  // namespace gloamtide
