// The widget of a label.
#pragma once

#include <QLabel>

#include "platform/controls.h"
#include "platform/picture_box.h"

namespace gloamtide {

// A label whose letters, if they are light, have a dark rim where the picture that they stand on is light.
class RimmedLabel : public QLabel {
    Q_OBJECT

public:
    RimmedLabel(const Label& TheRecord, QWidget& Parent)
        : QLabel(&Parent), Record(TheRecord), Ground(dynamic_cast<const PictureBox*>(TheRecord.Parent)) {}

signals:
    void Shown();

protected:
    void paintEvent(QPaintEvent* Event) override;
    void showEvent(QShowEvent*) override { emit Shown(); }

private:
    Color GroundAt(const QPointF& Place) const;
    QImage Letters(const QSize& DevicePixels) const;
    void PaintRim();

    const Label& Record;
    const PictureBox* const Ground;  // null where it stands on something else
};

}  // namespace gloamtide
