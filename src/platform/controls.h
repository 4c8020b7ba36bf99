// The controls of the program's windows, as plain records. A host shows them; without one they work all the same.
//
// Properties are assigned and read like variables; the host, as observer, hears of each change. Events are called by
// the host when the user acts, or by a test that plays the user.
//
// Places and sizes count in the units of the container: twips (15 to the pixel) until it is given a scale of its own.
// What is kept is pixels, so a control stays where it was put when its container's scale changes later.
#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/bitmap.h"
#include "platform/property.h"

namespace gloamtide {

constexpr double TwipsPerPixel = 15.0;

class Container;
class Control;
class Element;
class Form;

// Hears what happens to elements; a host has one for each element that it shows.
class ElementObserver {
public:
    virtual ~ElementObserver() = default;
    virtual void ElementChanged(Element& Which) = 0;
    // Pixels Left to Right, Top to Bottom (both ends included) of a picture were drawn on.
    virtual void PictureDrawn(int /*Left*/, int /*Top*/, int /*Right*/, int /*Bottom*/) {}
};

// Something that the user does; the program sets the handler, the host calls it. Without a handler nothing happens.
class Event {
public:
    Event& operator=(std::function<void()> NewHandler) {
        Handler = std::move(NewHandler);
        return *this;
    }
    void operator()() const {
        if (Handler) Handler();
    }

private:
    std::function<void()> Handler;
};

// What all kinds have: a name, a place in the tree of a form, and an observer.
class Element : public PropertyOwner {
public:
    const std::string Name;
    ElementObserver* Observer = nullptr;

    explicit Element(std::string TheName) : Name(std::move(TheName)) {}
    void PropertyAssigned(const void* Which, bool Differs) override;
};

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

    Control(Container* TheParent, std::string TheName);

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

enum class Alignment { Left, Center };

// A line of text. One without a size of its own is as large as its text.
class Label : public Control {
public:
    Property<std::string> Caption{*this};
    Property<Alignment> TextAlignment{*this, Alignment::Left};
    Property<bool> Opaque{*this, false};  // the background filled with BackColor
    Property<bool> WordWrap{*this, false};

    using Control::Control;
    Label(Container& TheParent, std::string TheName) : Control(&TheParent, std::move(TheName)) {}
};

class TextBox : public Control {
public:
    Property<std::string> Text{*this};

    TextBox(Container& TheParent, std::string TheName) : Control(&TheParent, std::move(TheName)) {}
};

class CommandButton : public Control {
public:
    Property<std::string> Caption{*this};
    bool Default = false;  // pressed by the Enter key
    bool Cancel = false;   // pressed by the Escape key and by the window's own close button
    Event Click;

    CommandButton(Container& TheParent, std::string TheName) : Control(&TheParent, std::move(TheName)) {}
};

// One of several in its container, of which at most one is selected. Selecting one, by program or by the user, takes
// the selection from the others and raises Click.
class OptionButton : public Control {
public:
    Property<std::string> Caption{*this};
    Property<bool> Value{*this, false};
    Event Click;

    OptionButton(Container& TheParent, std::string TheName) : Control(&TheParent, std::move(TheName)) {}
    void PropertyAssigned(const void* Which, bool Differs) override;
};

class CheckBox : public Control {
public:
    Property<std::string> Caption{*this};
    Property<int> Value{*this, 0};  // 1 ticked, 0 not
    Event Click;

    CheckBox(Container& TheParent, std::string TheName) : Control(&TheParent, std::move(TheName)) {}
    void PropertyAssigned(const void* Which, bool Differs) override;
};

// A box with a caption round a group of controls.
class Frame : public Container {
public:
    Property<std::string> Caption{*this};

    Frame(Container& TheParent, std::string TheName) : Container(&TheParent, std::move(TheName)) {}
};

enum class ComboStyle {
    DropDownList,   // the user picks an entry
    DropDownCombo,  // the user picks an entry or types a text
};

// A drop-down list. Positions count from 0; ListIndex -1 means that no entry is selected.
class ComboBox : public Control {
public:
    const ComboStyle Style;
    const bool Sorted;                   // entries in the order of their texts, letter case set aside
    Property<int> ListIndex{*this, -1};  // a position beyond the list selects nothing; a new one raises Click
    Property<std::string> Text{*this};   // the selected entry, or what was typed
    int NewIndex = -1;                   // position of the entry added last
    Event Click;                         // an entry was selected
    Event DropDown;                      // the list is about to open

    ComboBox(Container& TheParent, std::string TheName, ComboStyle TheStyle, bool IsSorted = false)
        : Control(&TheParent, std::move(TheName)), Style(TheStyle), Sorted(IsSorted) {}

    void AddItem(const std::string& NewText);
    void Clear();  // the text of a typed-in list stays
    int ListCount() const { return static_cast<int>(Entries.size()); }
    const std::string& List(int Position) const { return Entries.at(static_cast<std::size_t>(Position)).Text; }
    int ItemData(int Position) const { return Entries.at(static_cast<std::size_t>(Position)).Data; }
    void SetItemData(int Position, int Data) { Entries.at(static_cast<std::size_t>(Position)).Data = Data; }

    void Pick(int Position);                // the user picks an entry, perhaps the selected one again
    void Type(const std::string& NewText);  // the user types into a DropDownCombo
    void PropertyAssigned(const void* Which, bool Differs) override;

private:
    struct Entry {
        std::string Text;
        int Data = 0;
    };
    std::vector<Entry> Entries;
};

// A picture that can hold controls. It gets its bitmap when it is first drawn on; until then it is all BackColor.
// Setting BackColor clears the picture to that colour.
class PictureBox : public Container {
public:
    Bitmap Picture;                                   // the inner area, or empty
    std::string Description;                          // what it shows, for a screen reader; set before it is loaded
    Property<int> BorderWidth{*this, 0};              // pixels
    std::function<void(float X, float Y)> MouseMove;  // the pointer, in user units

    PictureBox(Container& TheParent, std::string TheName) : Container(&TheParent, std::move(TheName)) {}

    double InnerWidth() const override { return Width.Pixels() - 2.0 * BorderWidth; }
    double InnerHeight() const override { return Height.Pixels() - 2.0 * BorderWidth; }
    Bitmap& Canvas();  // the bitmap, made at need
    void Drawn(int FromX, int FromY, int ToX, int ToY) const {
        if (Observer != nullptr) Observer->PictureDrawn(FromX, FromY, ToX, ToY);
    }
    void PointerMoved(double PixelX, double PixelY) const;  // pixels of the inner area
    void PropertyAssigned(const void* Which, bool Differs) override;
};

class Timer : public Element {
public:
    Property<int> Interval{*this, 0};  // milliseconds
    Property<bool> Enabled{*this, false};
    Event Tick;

    Timer(Form& TheParent, std::string TheName);
};

// A menu of the bar, an item of a menu, or a separator. An ampersand in the caption marks the access key.
class Menu : public Element {
public:
    Property<std::string> Caption{*this};
    Property<bool> Checked{*this, false};
    const bool Separator;
    std::vector<Menu*> Items;
    Event Click;

    Menu(Form& TheParent, std::string TheName, std::string TheCaption);  // of the bar
    Menu(Menu& TheParent, std::string TheName, std::string TheCaption);  // an item
    Menu(Menu& TheParent, std::string TheName);                          // a separator
};

// A window. All but borderless ones fill the screen when they are shown.
class Form : public Container {
public:
    Property<std::string> Caption{*this};
    const bool Borderless;
    std::vector<Menu*> Menus;
    std::vector<Timer*> Timers;
    Event OnLoad;
    Event OnUnload;

    // The design size of the inner area, in twips.
    Form(std::string TheName, double DesignWidth, double DesignHeight, bool IsBorderless = false);

    void Load();  // once, until it is unloaded: puts it among LoadedForms, then raises OnLoad
    void Show();  // loads it at need
    void Hide() { Visible = false; }
    void Unload();  // at most once: takes it from LoadedForms, then raises OnUnload
    void Close();   // the user closes the window: presses its Cancel button or, where it has none, unloads it
    bool Loaded() const;
};

// All forms that are loaded, the first loaded first.
inline std::vector<Form*> LoadedForms;

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
