// The windows, their menus and their timers.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/control.h"

namespace gloamtide {

class Form;

class Timer : public Element {
public:
    Property<int> Interval{*this, 0};  // milliseconds
    Property<bool> Enabled{*this, false};
    Event Tick;

    Timer(Form& TheParent, std::string_view TheName);
};

// A menu of the bar, an item of a menu, or a separator. An ampersand in the caption marks the access key.
class Menu : public Element {
public:
    Property<std::string> Caption{*this};
    Property<bool> Checked{*this, false};
    const bool Separator;
    std::vector<Menu*> Items;
    Event Click;

    Menu(Form& TheParent, std::string_view TheName, std::string_view TheCaption);  // of the bar
    Menu(Menu& TheParent, std::string_view TheName, std::string_view TheCaption);  // an item
    Menu(Menu& TheParent, std::string_view TheName);                               // a separator
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
    Form(std::string_view TheName, double DesignWidth, double DesignHeight, bool IsBorderless = false);

    void Load();  // once, until it is unloaded: puts it among LoadedForms, then raises OnLoad
    void Show();  // loads it at need; one that is shown already comes to the front
    void Hide() { Visible = false; }
    void Unload();  // at most once: takes it from LoadedForms, then raises OnUnload
    void Close();   // the user closes the window: presses its Cancel button or, where it has none, unloads it
    bool Loaded() const;
};

// All forms that are loaded, the first loaded first.
extern std::vector<Form*> LoadedForms;

}  // namespace gloamtide
