// The windows, their menus and their timers.
#pragma once

#include <functional>
#include <map>
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
    std::string Shortcut;  // a key such as "F11", set before the menu is shown
    const bool Separator;
    std::vector<Menu*> Items;
    Event Click;

    Menu(Form& TheParent, std::string_view TheName, std::string_view TheCaption);  // of the bar
    Menu(Menu& TheParent, std::string_view TheName, std::string_view TheCaption);  // an item
    Menu(Menu& TheParent, std::string_view TheName);                               // a separator
};

// A small button at the right end of a form's menu bar; a form has one at most.
class BarButton : public Element {
public:
    Property<std::string> Caption{*this};
    Property<std::string> ToolTipText{*this};
    Property<bool> Visible{*this, false};
    Event Click;

    BarButton(Form& TheParent, std::string_view TheName, std::string_view TheCaption);
};

// A window. What it holds stands on a board, which the host shows as large as the window allows, in its middle.
class Form : public Container {
public:
    Property<std::string> Caption{*this};
    Property<double> BoardWidth{*this, 0.0};  // pixels; 0: as far as what it holds
    Property<double> BoardHeight{*this, 0.0};
    Property<bool> FullScreen{*this, false};  // set by the program, and by the host where the user changes it
    Event FullScreenChanged;
    const bool Borderless;
    std::vector<Menu*> Menus;
    BarButton* ButtonOfBar = nullptr;
    std::map<std::string, std::function<void()>> Keys;  // what a key such as "Shift+Left" does where no control uses it
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
    void PropertyAssigned(const void* Which, bool Differs) override;
};

// All forms that are loaded, the first loaded first.
extern std::vector<Form*> LoadedForms;

}  // namespace gloamtide
