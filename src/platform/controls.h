// The plain controls of the program's windows, as records. A host shows them; without one they work all the same.
//
// Properties are assigned and read like variables; the host, as observer, hears of each change. Events are called by
// the host when the user acts, or by a test that plays the user.
#pragma once

#include <string>
#include <string_view>

#include "platform/control.h"

namespace gloamtide {

enum class Alignment { Left, Center };

// A line of text. One without a size of its own is as large as its text.
class Label : public Control {
public:
    Property<std::string> Caption{*this};
    Property<Alignment> TextAlignment{*this, Alignment::Left};
    Property<bool> Opaque{*this, false};  // the background filled with BackColor
    Property<bool> WordWrap{*this, false};

    Label(Container& TheParent, std::string_view TheName);
};

class TextBox : public Control {
public:
    Property<std::string> Text{*this};

    TextBox(Container& TheParent, std::string_view TheName);
};

class CommandButton : public Control {
public:
    Property<std::string> Caption{*this};
    bool Default = false;  // pressed by the Enter key
    bool Cancel = false;   // pressed by the Escape key and by the window's own close button
    Event Click;

    CommandButton(Container& TheParent, std::string_view TheName);
};

// One of several in its container, of which at most one is selected. Selecting one, by program or by the user, takes
// the selection from the others and raises Click.
class OptionButton : public Control {
public:
    Property<std::string> Caption{*this};
    Property<bool> Value{*this, false};
    Event Click;

    OptionButton(Container& TheParent, std::string_view TheName);
    void PropertyAssigned(const void* Which, bool Differs) override;
};

class CheckBox : public Control {
public:
    Property<std::string> Caption{*this};
    Property<int> Value{*this, 0};  // 1 ticked, 0 not
    Event Click;

    CheckBox(Container& TheParent, std::string_view TheName);
    void PropertyAssigned(const void* Which, bool Differs) override;
};

// A box with a caption round a group of controls.
class Frame : public Container {
public:
    Property<std::string> Caption{*this};

    Frame(Container& TheParent, std::string_view TheName);
};

}  // namespace gloamtide
