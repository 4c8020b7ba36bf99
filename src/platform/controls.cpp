#include "platform/controls.h"

#include <algorithm>
#include <cctype>
#include <cmath>

#include "platform/host.h"

namespace gloamtide {

void Element::PropertyAssigned(const void*, bool Differs) {
    if (Differs && Observer != nullptr) Observer->ElementChanged(*this);
}

// --- Measure

namespace {

bool IsHorizontal(Measure::Kind Which) { return Which == Measure::Kind::Left || Which == Measure::Kind::Width; }
bool IsPlace(Measure::Kind Which) { return Which == Measure::Kind::Left || Which == Measure::Kind::Top; }

// A form has no container; its own size counts in twips.
ScaleAxis AxisOf(const Control& Owner, Measure::Kind Which) {
    if (Owner.Parent == nullptr) return {};
    return IsHorizontal(Which) ? Owner.Parent->ScaleX : Owner.Parent->ScaleY;
}

}  // namespace

Measure& Measure::operator=(double Units) {
    const ScaleAxis Axis = AxisOf(Owner, Which);
    SetPixels(IsPlace(Which) ? Axis.ToPixels(Units) : Axis.LengthToPixels(Units));
    return *this;
}

Measure::operator double() const {
    const ScaleAxis Axis = AxisOf(Owner, Which);
    return IsPlace(Which) ? Axis.ToUnits(Value) : Axis.LengthToUnits(Value);
}

void Measure::SetPixels(double NewValue) {
    const bool Differs = Value != NewValue;
    Value = NewValue;
    Owner.PropertyAssigned(this, Differs);
}

// --- Control and Container

Control::Control(Container* TheParent, std::string TheName) : Element(std::move(TheName)), Parent(TheParent) {
    if (Parent != nullptr) Parent->Children.push_back(this);
}

void Control::Move(double NewLeft, double NewTop) {
    Left = NewLeft;
    Top = NewTop;
}

void Control::Size(double NewWidth, double NewHeight) {
    Width = NewWidth;
    Height = NewHeight;
}

namespace {

void SetAxis(ScaleAxis& Axis, double Origin, double Units, double Pixels) {
    const bool Usable = std::isfinite(Origin) && std::isfinite(Units) && Units != 0.0 && Pixels > 0.0;
    if (Usable) Axis = {Origin, Units, Pixels};
}

}  // namespace

void Container::Scale(double X1, double Y1, double X2, double Y2) {
    SetAxis(ScaleX, X1, X2 - X1, InnerWidth());
    SetAxis(ScaleY, Y1, Y2 - Y1, InnerHeight());
}

void Container::ScalePixels() { ScaleX = ScaleY = {0.0, 1.0, 1.0}; }
void Container::SetScaleWidth(double NewWidth) { SetAxis(ScaleX, 0.0, NewWidth, InnerWidth()); }
void Container::SetScaleHeight(double NewHeight) { SetAxis(ScaleY, 0.0, NewHeight, InnerHeight()); }
double Container::ScaleWidth() const { return InnerWidth() * ScaleX.Units / ScaleX.Pixels; }
double Container::ScaleHeight() const { return InnerHeight() * ScaleY.Units / ScaleY.Pixels; }

// --- OptionButton, CheckBox

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

// --- ComboBox

namespace {

bool ComesBefore(const std::string& First, const std::string& Second) {
    const auto Lower = [](char Letter) { return std::tolower(static_cast<unsigned char>(Letter)); };
    return std::lexicographical_compare(First.begin(), First.end(), Second.begin(), Second.end(),
                                        [&](char A, char B) { return Lower(A) < Lower(B); });
}

}  // namespace

void ComboBox::AddItem(const std::string& NewText) {
    auto Place = Entries.end();
    if (Sorted) {
        Place = std::upper_bound(
            Entries.begin(), Entries.end(), NewText,
            [](const std::string& Added, const Entry& There) { return ComesBefore(Added, There.Text); });
    }
    NewIndex = static_cast<int>(Place - Entries.begin());
    Entries.insert(Place, Entry{NewText, 0});
    Element::PropertyAssigned(&Entries, true);
}

void ComboBox::Clear() {
    Entries.clear();
    NewIndex = -1;
    ListIndex = -1;
    if (Style == ComboStyle::DropDownList) Text = "";
    Element::PropertyAssigned(&Entries, true);
}

void ComboBox::Pick(int Position) {
    if (Position == ListIndex && Position >= 0) {
        Text = List(Position);
        Click();
    } else {
        ListIndex = Position;
    }
}

void ComboBox::Type(const std::string& NewText) {
    ListIndex = -1;
    Text = NewText;
}

void ComboBox::PropertyAssigned(const void* Which, bool Differs) {
    if (Which == &ListIndex && ListIndex != -1) {
        if (ListIndex < 0 || ListIndex >= ListCount()) {
            ListIndex = -1;
            return;
        }
        if (Differs) Text = List(ListIndex);
    }
    Control::PropertyAssigned(Which, Differs);
    if (Which == &ListIndex && Differs && ListIndex >= 0) Click();
}

// --- PictureBox

Bitmap& PictureBox::Canvas() {
    const int PixelWidth = std::max(0, static_cast<int>(std::lround(InnerWidth())));
    const int PixelHeight = std::max(0, static_cast<int>(std::lround(InnerHeight())));
    if (Picture.Width != PixelWidth || Picture.Height != PixelHeight) {
        Picture = Bitmap(PixelWidth, PixelHeight, BackColor);
    }
    return Picture;
}

void PictureBox::PointerMoved(double PixelX, double PixelY) const {
    if (!MouseMove) return;
    MouseMove(static_cast<float>(ScaleX.ToUnits(PixelX)), static_cast<float>(ScaleY.ToUnits(PixelY)));
}

void PictureBox::PropertyAssigned(const void* Which, bool Differs) {
    if (Which == &BackColor && !Picture.Empty()) {
        std::fill(Picture.Pixels.begin(), Picture.Pixels.end(), BackColor.Get());
        Drawn(0, 0, Picture.Width - 1, Picture.Height - 1);
    }
    Container::PropertyAssigned(Which, Differs);
}

// --- Timer and Menu

Timer::Timer(Form& TheParent, std::string TheName) : Element(std::move(TheName)) { TheParent.Timers.push_back(this); }

Menu::Menu(Form& TheParent, std::string TheName, std::string TheCaption)
    : Element(std::move(TheName)), Caption(*this, std::move(TheCaption)), Separator(false) {
    TheParent.Menus.push_back(this);
}

Menu::Menu(Menu& TheParent, std::string TheName, std::string TheCaption)
    : Element(std::move(TheName)), Caption(*this, std::move(TheCaption)), Separator(false) {
    TheParent.Items.push_back(this);
}

Menu::Menu(Menu& TheParent, std::string TheName) : Element(std::move(TheName)), Separator(true) {
    TheParent.Items.push_back(this);
}

// --- Form

Form::Form(std::string TheName, double DesignWidth, double DesignHeight, bool IsBorderless)
    : Container(nullptr, std::move(TheName)), Borderless(IsBorderless) {
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

void Form::Show() {
    Load();
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
