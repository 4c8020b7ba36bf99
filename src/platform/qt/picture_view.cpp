#include "platform/qt/picture_view.h"

#include <qdrawutil.h>

#include <QContextMenuEvent>
#include <QImage>
#include <QMenu>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <cmath>

#include "platform/qt/control_watcher.h"

namespace gloamtide {

PictureView::PictureView(PictureBox& TheRecord, QWidget& Parent, const BoardScale& TheScale)
    : QWidget(&Parent), Record(TheRecord), Scale(TheScale) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
}

QRect PictureView::InnerArea() const {
    const int Border = Scale.Place(Record.BorderWidth);
    return rect().adjusted(Border, Border, -Border, -Border);
}

bool PictureView::IsSharp() const { return std::abs(Record.Density - Scale.Factor() * devicePixelRatioF()) < 1e-6; }

// Many small drawings between two paintings grow one rectangle: a region of thousands of pieces would cost more.
void PictureView::Repaint(QRect Drawn) {
    const double ToWidget = Scale.Factor() / Record.Density;
    const QRectF Pixels(Drawn.x() * ToWidget, Drawn.y() * ToWidget, Drawn.width() * ToWidget,
                        Drawn.height() * ToWidget);
    const int Blur = ToWidget == 1.0 ? 0 : 1;  // pixels, by which stretching spreads a pixel
    const QRect Shown = Pixels.toAlignedRect().adjusted(-Blur, -Blur, Blur, Blur).translated(InnerArea().topLeft());
    if (Stale.contains(Shown)) return;
    Stale |= Shown;
    update(Stale);
}

void PictureView::paintEvent(QPaintEvent* Event) {
    Stale = QRect();
    QPainter Painter(this);
    const Bitmap& Picture = Record.Picture;
    const QRect Inner = InnerArea();
    if (Record.BorderWidth > 0) qDrawPlainRect(&Painter, rect(), Qt::darkGray, Scale.Place(Record.BorderWidth));
    Painter.setClipRect(Inner & Event->rect());
    QImage Image(reinterpret_cast<const uchar*>(Picture.Pixels.data()), Picture.Width, Picture.Height,
                 qsizetype{Picture.Width} * qsizetype{sizeof(Color)}, QImage::Format_RGBX8888);
    const double Ratio = IsSharp() ? devicePixelRatioF() : Record.Density / Scale.Factor();
    Image.setDevicePixelRatio(Ratio);
    const QSizeF Shown = Image.deviceIndependentSize();
    if (Shown.width() < Inner.width() || Shown.height() < Inner.height()) {
        Painter.fillRect(Inner, ToQColor(Record.BackColor));
    }
    Painter.setRenderHint(QPainter::SmoothPixmapTransform, !IsSharp());
    if (!Picture.Empty()) Painter.drawImage(Inner.topLeft(), Image);
}

QPointF PictureView::ProgramPlace(const QPointF& Place) const {
    return (Place - InnerArea().topLeft()) / Scale.Factor();
}

void PictureView::mouseMoveEvent(QMouseEvent* Event) {
    const QPointF Place = ProgramPlace(Event->position());
    Record.PointerMoved(Place.x(), Place.y());
}

void PictureView::mouseDoubleClickEvent(QMouseEvent* Event) {
    const QPointF Place = ProgramPlace(Event->position());
    if (Event->button() == Qt::LeftButton) Record.DoubleClicked(Place.x(), Place.y());
}

void PictureView::contextMenuEvent(QContextMenuEvent* Event) {
    const QPointF Place = ProgramPlace(Event->pos());
    const std::vector<MenuChoice> Choices = Record.ChoicesAt(Place.x(), Place.y());
    if (Choices.empty()) return;
    auto* Menu = new QMenu(this);
    Menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const MenuChoice& Each : Choices) Menu->addAction(QString::fromStdString(Each.Caption), Each.Pick);
    Menu->popup(Event->globalPos());
}

}  // namespace gloamtide
