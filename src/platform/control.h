// What has a place in a window, and what holds such things.
//
// Places and sizes count in the units of the container: twips (15 to the pixel) until it is given a scale of its own.
// What is kept is pixels, so a control stays where it was put when its container's scale changes later.
#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/bitmap.h"
#include "platform/element.h"

namespace gloamtide {

constexpr double TwipsPerPixel = 15.0;

class Container;
class Control;

struct Font {
    std::string Name = "MS Sans Serif";
    double Size = 8.25;  // points
    bool Bold = false;
    bool Italic = false;

    friend bool operator==(const Font&, const Font&) = default;
};

// Left, Top, Width or Height of a control: read and written in its container's units, kept in pixels.
class Measure {
public:
    enum class Kind { Left, Top, Width, Height };

    Measure(Control& TheOwner, Kind TheKind) : Owner(TheOwner), Which(TheKind) {}
    Measure(const Measure&) = delete;
    Measure& operator=(const Measure& Other) { return *this = static_cast<double>(Other); }
    Measure& operator=(double Units);
    operator double() const;

    double Pixels() const { return Value; }
    void SetPixels(double NewValue);

private:
    Control& Owner;
    Kind Which;
    double Value = 0.0;  // pixels from the container's inner corner, or pixels of size
};

// Whatever has a place in a window.
class Control : public Element {
public:
    Container* const Parent;  // null for a form

    Property<bool> Visible{*this, true};
    Property<Color> ForeColor{*this, RGB(0, 0, 0)};
    Property<Color> BackColor{*this, RGB(192, 192, 192)};
    Property<std::string> FontName{*this, "MS Sans Serif"};
    Property<double> FontSize{*this, 8.25};  // points
    Property<bool> FontBold{*this, false};
    Property<bool> FontItalic{*this, false};
    Property<std::string> ToolTipText{*this};
    Measure Left{*this, Measure::Kind::Left};
    Measure Top{*this, Measure::Kind::Top};
    Measure Width{*this, Measure::Kind::Width};
    Measure Height{*this, Measure::Kind::Height};

    Control(Container* TheParent, std::string_view TheName);

    Font CurrentFont() const { return {FontName, FontSize, FontBold, FontItalic}; }
    void Move(double NewLeft, double NewTop);
    void Size(double NewWidth, double NewHeight);
};

// The user units of one axis: from Origin on, Units of them take up Pixels. Multiplied before divided, so that whole
// pixels come out whole.
struct ScaleAxis {
    double Origin = 0.0;
    double Units = TwipsPerPixel;  // below 0 on a mirrored axis
    double Pixels = 1.0;

    double ToPixels(double Place) const { return (Place - Origin) * Pixels / Units; }
    double ToUnits(double Pixel) const { return Pixel * Units / Pixels + Origin; }
    double LengthToPixels(double Length) const { return std::abs(Length * Pixels / Units); }
    double LengthToUnits(double Length) const { return std::abs(Length * Units / Pixels); }
};

// A control that holds others, in the order in which they were made, which is the order of the Tab key too.
class Container : public Control {
public:
    std::vector<Control*> Children;
    ScaleAxis ScaleX;
    ScaleAxis ScaleY;

    using Control::Control;

    // Gives the inner area the corners (X1, Y1) at the top left and (X2, Y2) at the bottom right. Does nothing where
    // that leaves no scale: equal or infinite corners, or no inner area.
    void Scale(double X1, double Y1, double X2, double Y2);
    void ScalePixels();                     // one unit is one pixel, from the top left corner
    void SetScaleWidth(double NewWidth);    // user units across the inner area, from 0 at its left edge
    void SetScaleHeight(double NewHeight);  // the same downward
    double ScaleWidth() const;              // user units across the inner area; below 0 on a mirrored scale
    double ScaleHeight() const;

    virtual double InnerWidth() const { return Width.Pixels(); }  // pixels within the border
    virtual double InnerHeight() const { return Height.Pixels(); }
};

// Count controls of one kind, named "Name(0)", "Name(1)" and so on. Parents is one container for all or an array
// with one for each; More are further arguments of each control's making.
template <class T, std::size_t Count>
class ControlArray {
public:
    template <class Parents, class... More>
    ControlArray(Parents& TheParents, const std::string& Name, const More&... Arguments)
        : ControlArray(TheParents, Name, std::make_index_sequence<Count>(), Arguments...) {}

    T& operator[](std::size_t Index) { return Items.at(Index); }
    const T& operator[](std::size_t Index) const { return Items.at(Index); }
    auto begin() { return Items.begin(); }
    auto end() { return Items.end(); }
    static constexpr std::size_t size() { return Count; }

private:
    template <class Parents, std::size_t... Index, class... More>
    ControlArray(Parents& TheParents, const std::string& Name, std::index_sequence<Index...>, const More&... Arguments)
        : Items{{T(ParentAt(TheParents, Index), Name + "(" + std::to_string(Index) + ")", Arguments...)...}} {}

    template <class Parents>
    static auto& ParentAt(Parents& TheParents, std::size_t Index) {
        if constexpr (requires { TheParents[Index]; }) {
            return TheParents[Index];
        } else {
            return TheParents;
        }
    }

    std::array<T, Count> Items;
};

}  // namespace gloamtide
