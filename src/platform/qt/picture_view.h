// The widget of a picture box.
#pragma once

#include <QWidget>

#include "platform/picture_box.h"

namespace gloamtide {

// Paints the record's bitmap straight from its memory and tells the record where the pointer moves.
class PictureView : public QWidget {
    Q_OBJECT  // found among other widgets by its kind

public:
    PictureView(PictureBox& TheRecord, QWidget& Parent);

    // Pixels of the bitmap that are to be painted anew.
    void Repaint(QRect Drawn);

protected:
    void paintEvent(QPaintEvent* Event) override;
    void mouseMoveEvent(QMouseEvent* Event) override;

private:
    QRect InnerArea() const;

    PictureBox& Record;
    QRect Stale;  // all that was drawn since the last painting
};

}  // namespace gloamtide
