#include "platform/qt/picture_view.h"

#include <qdrawutil.h>

#include <QImage>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QtMath>

#include "platform/qt/control_watcher.h"

namespace gloamtide {

PictureView::PictureView(PictureBox& TheRecord, QWidget& Parent) : QWidget(&Parent), Record(TheRecord) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
}

QRect PictureView::InnerArea() const {
    const int Border = Record.BorderWidth;
    return rect().adjusted(Border, Border, -Border, -Border);
}

// Many small drawings between two paintings grow one rectangle: a region of thousands of pieces would cost more.
void PictureView::Repaint(QRect Drawn) {
    Stale |= Drawn.translated(Record.BorderWidth, Record.BorderWidth);
    update(Stale);
}

void PictureView::paintEvent(QPaintEvent* Event) {
    Stale = QRect();
    QPainter Painter(this);
    const Bitmap& Picture = Record.Picture;
    const QRect Inner = InnerArea();
    if (Record.BorderWidth > 0) qDrawPlainRect(&Painter, rect(), Qt::darkGray, Record.BorderWidth);
    Painter.setClipRect(Inner & Event->rect());
    if (Picture.Width < Inner.width() || Picture.Height < Inner.height()) {
        Painter.fillRect(Inner, ToQColor(Record.BackColor));
    }
    if (Picture.Empty()) return;
    const QImage Image(reinterpret_cast<const uchar*>(Picture.Pixels.data()), Picture.Width, Picture.Height,
                       qsizetype{Picture.Width} * qsizetype{sizeof(Color)}, QImage::Format_RGBX8888);
    // At twice or three times the density a pixel becomes a square; in between it has to be smoothed.
    const bool WholePixels = devicePixelRatioF() == qFloor(devicePixelRatioF());
    Painter.setRenderHint(QPainter::SmoothPixmapTransform, !WholePixels);
    Painter.drawImage(Inner.topLeft(), Image);
}

void PictureView::mouseMoveEvent(QMouseEvent* Event) {
    const QPointF Place = Event->position() - InnerArea().topLeft();
    Record.PointerMoved(Place.x(), Place.y());
}

}  // namespace gloamtide
