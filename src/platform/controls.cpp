#include "platform/controls.h"

namespace gloamtide {

Label::Label(Container& TheParent, std::string_view TheName) : Control(&TheParent, TheName) {}
TextBox::TextBox(Container& TheParent, std::string_view TheName) : Control(&TheParent, TheName) {}
CommandButton::CommandButton(Container& TheParent, std::string_view TheName) : Control(&TheParent, TheName) {}
OptionButton::OptionButton(Container& TheParent, std::string_view TheName) : Control(&TheParent, TheName) {}
CheckBox::CheckBox(Container& TheParent, std::string_view TheName) : Control(&TheParent, TheName) {}
Frame::Frame(Container& TheParent, std::string_view TheName) : Container(&TheParent, TheName) {}

void OptionButton::PropertyAssigned(const void* Which, bool Differs) {
    Control::PropertyAssigned(Which, Differs);
    if (Which != &Value || !Differs || !Value) return;
    for (Control* Sibling : Parent->Children) {
        auto* Other = dynamic_cast<OptionButton*>(Sibling);
        if (Other != nullptr && Other != this) Other->Value = false;
    }
    Click();
}

void CheckBox::PropertyAssigned(const void* Which, bool Differs) {
    Control::PropertyAssigned(Which, Differs);
    if (Which == &Value && Differs) Click();
}

}  // namespace gloamtide
