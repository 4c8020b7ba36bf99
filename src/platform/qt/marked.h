// Widgets whose marks grow with the board.
#pragma once

#include <QWidget>

namespace gloamtide {

// The style draws the dot of an option, the tick of a check box and the arrow of a list in proportion to the dots per
// inch of the widget, which a widget with a growth has as many times more of.
struct Marks {
    double Growth = 1.0;  // taken over when the font is set
};

template <class Kind>
class Marked : public Kind, public Marks {
public:
    using Kind::Kind;

protected:
    int metric(QPaintDevice::PaintDeviceMetric Which) const override {
        const int Value = Kind::metric(Which);
        const bool IsDots = Which == QPaintDevice::PdmDpiX || Which == QPaintDevice::PdmDpiY;
        return IsDots ? qRound(Value * Growth) : Value;
    }
};

}  // namespace gloamtide
