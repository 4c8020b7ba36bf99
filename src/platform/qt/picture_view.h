// The widget of a picture box.
#pragma once

#include <QWidget>

#include "platform/picture_box.h"
#include "platform/qt/board.h"

namespace gloamtide {

// Paints the record's bitmap straight from its memory and tells the record where the pointer moves and clicks. A bitmap
// of another density than the screen has is stretched over the same place. Its meta-object lets it be found among other
// widgets.
class PictureView : public QWidget {
    Q_OBJECT

public:
    PictureView(PictureBox& TheRecord, QWidget& Parent, const BoardScale& TheScale);

    QRect InnerArea() const;  // within the border

    // Pixels of the bitmap that are to be painted anew.
    void Repaint(QRect Drawn);

protected:
    void paintEvent(QPaintEvent* Event) override;
    void mouseMoveEvent(QMouseEvent* Event) override;
    void mouseDoubleClickEvent(QMouseEvent* Event) override;
    void contextMenuEvent(QContextMenuEvent* Event) override;

private:
    // Whether the bitmap has a pixel for each of the screen's; else it is stretched.
    bool IsSharp() const;

    QPointF ProgramPlace(const QPointF& Place) const;  // of the inner area, in the program's pixels

    PictureBox& Record;
    const BoardScale& Scale;
    QRect Stale;  // all that was drawn since the last painting
};

}  // namespace gloamtide
