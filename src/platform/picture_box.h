// A picture with pixels of its own.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/control.h"

namespace gloamtide {

// A picture that can hold controls. It gets its bitmap when it is first drawn on; until then it is all BackColor.
// Setting BackColor clears the picture to that colour.
class PictureBox : public Container {
public:
    Bitmap Picture;                                   // the inner area, or empty
    std::string Description;                          // what it shows, for a screen reader; set before it is loaded
    Property<int> BorderWidth{*this, 0};              // pixels
    Property<double> Density{*this, 1.0};             // device pixels for each of the program's
    Event DensityChanged;
    std::function<void(float X, float Y)> MouseMove;  // the pointer, in user units

    PictureBox(Container& TheParent, std::string_view TheName);

    double InnerWidth() const override { return Width.Pixels() - 2.0 * BorderWidth; }
    double InnerHeight() const override { return Height.Pixels() - 2.0 * BorderWidth; }
    Bitmap& Canvas();  // the bitmap, made at need
    void Drawn(int FromX, int FromY, int ToX, int ToY) const {
        if (Observer != nullptr) Observer->PictureDrawn(FromX, FromY, ToX, ToY);
    }
    void PointerMoved(double PixelX, double PixelY) const;  // pixels of the inner area
    void PropertyAssigned(const void* Which, bool Differs) override;
};

}  // namespace gloamtide
