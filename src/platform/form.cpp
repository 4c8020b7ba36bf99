#include "platform/form.h"

#include <algorithm>

#include "platform/controls.h"
#include "platform/host.h"

namespace gloamtide {

Timer::Timer(Form& TheParent, std::string_view TheName) : Element(TheName) { TheParent.Timers.push_back(this); }

Menu::Menu(Form& TheParent, std::string_view TheName, std::string_view TheCaption)
    : Element(TheName), Caption(*this, std::string(TheCaption)), Separator(false) {
    TheParent.Menus.push_back(this);
}

Menu::Menu(Menu& TheParent, std::string_view TheName, std::string_view TheCaption)
    : Element(TheName), Caption(*this, std::string(TheCaption)), Separator(false) {
    TheParent.Items.push_back(this);
}

Menu::Menu(Menu& TheParent, std::string_view TheName) : Element(TheName), Separator(true) {
    TheParent.Items.push_back(this);
}

BarButton::BarButton(Form& TheParent, std::string_view TheName, std::string_view TheCaption)
    : Element(TheName), Caption(*this, std::string(TheCaption)) {
    TheParent.ButtonOfBar = this;
}

std::vector<Form*> LoadedForms;

Form::Form(std::string_view TheName, double DesignWidth, double DesignHeight, bool IsBorderless)
    : Container(nullptr, TheName), Borderless(IsBorderless) {
    Visible = false;
    BackColor = RGB(0, 0, 0);
    Size(DesignWidth, DesignHeight);
}

bool Form::Loaded() const { return std::find(LoadedForms.begin(), LoadedForms.end(), this) != LoadedForms.end(); }

void Form::Load() {
    if (Loaded()) return;
    LoadedForms.push_back(this);
    host->FormLoaded(*this);
    OnLoad();
}

void Form::PropertyAssigned(const void* Which, bool Differs) {
    Container::PropertyAssigned(Which, Differs);
    if (Which == &FullScreen && Differs) FullScreenChanged();
}

void Form::Show() {
    Load();
    if (Visible) host->BringToFront(*this);
    Visible = true;
}

void Form::Unload() {
    if (!Loaded()) return;
    std::erase(LoadedForms, this);
    OnUnload();
    Visible = false;
    host->FormUnloaded(*this);
}

namespace {

CommandButton* CancelButtonOf(const Container& Holder) {
    for (Control* Child : Holder.Children) {
        if (auto* Button = dynamic_cast<CommandButton*>(Child); Button != nullptr && Button->Cancel) return Button;
        if (auto* Inner = dynamic_cast<Container*>(Child); Inner != nullptr) {
            if (CommandButton* Found = CancelButtonOf(*Inner); Found != nullptr) return Found;
        }
    }
    return nullptr;
}

}  // namespace

void Form::Close() {
    if (CommandButton* Button = CancelButtonOf(*this); Button != nullptr) {
        Button->Click();
    } else {
        Unload();
    }
}

}  // namespace gloamtide
