// The widget of a frame.
#pragma once

#include <QGroupBox>

namespace gloamtide {

// An engraved line round the whole frame, broken by the caption: the style's own box would leave the top to the
// caption, where the program has controls.
class FrameView : public QGroupBox {
public:
    using QGroupBox::QGroupBox;

protected:
    void paintEvent(QPaintEvent* Event) override;
};

}  // namespace gloamtide
