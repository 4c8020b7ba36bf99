#include "platform/control.h"

namespace gloamtide {

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

Control::Control(Container* TheParent, std::string_view TheName) : Element(TheName), Parent(TheParent) {
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

}  // namespace gloamtide
