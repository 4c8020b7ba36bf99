// A picture with pixels of its own.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/control.h"

namespace gloamtide {

// A Density outside this range, or that is no number, is not taken.
constexpr double LowestDensity = 0.25;
constexpr double HighestDensity = 8.0;

// What a context menu offers: a caption, and what picking it does.
struct MenuChoice {
    std::string Caption;
    std::function<void()> Pick;
};

// A picture that can hold controls. It gets its bitmap when it is first drawn on; until then it is all BackColor.
// Setting BackColor clears the picture to that colour. Sizes, places and scales count in pixels as everywhere; only
// the bitmap is finer: drawn on after Density was set to another value, it begins anew.
class PictureBox : public Container {
public:
    Bitmap Picture;                                   // the inner area down to LowestRow in device pixels, or empty
    std::string Description;                          // what it shows, for a screen reader; set before it is loaded
    Property<int> BorderWidth{*this, 0};              // pixels
    double LowestRow = 1e9;                           // pixels from the top; below, nothing is ever drawn
    Property<double> Density{*this, 1.0};             // device pixels for each pixel each way; see LowestDensity
    Event DensityChanged;                             // raised when Density was set to another value
    std::function<void(float X, float Y)> MouseMove;  // the pointer, in user units
    std::function<void(float X, float Y)> DoubleClick;
    std::function<std::vector<MenuChoice>(float X, float Y)> ContextMenu;

    PictureBox(Container& TheParent, std::string_view TheName);

    double InnerWidth() const override { return Width.Pixels() - 2.0 * BorderWidth; }
    double InnerHeight() const override { return Height.Pixels() - 2.0 * BorderWidth; }
    Bitmap& Canvas();  // the bitmap, made at need
    bool FitsCanvas(const Bitmap& Image) const;
    // Device pixels From to To, both ends included, were drawn on.
    void Drawn(int FromX, int FromY, int ToX, int ToY) const {
        if (Observer != nullptr) Observer->PictureDrawn(FromX, FromY, ToX, ToY);
    }
    // Places in pixels of the inner area.
    void PointerMoved(double PixelX, double PixelY) const;
    void DoubleClicked(double PixelX, double PixelY) const;
    std::vector<MenuChoice> ChoicesAt(double PixelX, double PixelY) const;
    void PropertyAssigned(const void* Which, bool Differs) override;

private:
    int CanvasWidth() const;
    int CanvasHeight() const;

    double LastDensity = 1.0;  // the last that was taken
};

}  // namespace gloamtide
