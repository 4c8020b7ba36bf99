#include "platform/qt/rimmed_label.h"

#include <QImage>
#include <QPainter>
#include <algorithm>

#include "platform/qt/picture_view.h"
#include "platform/rim.h"

namespace gloamtide {

// The picture's colour under a place of this widget.
Color RimmedLabel::GroundAt(const QPointF& Place) const {
    const QRect Inner = dynamic_cast<const PictureView&>(*parentWidget()).InnerArea();
    const Bitmap& Picture = Ground->Picture;
    const QPointF On = (mapToParent(Place) - Inner.topLeft()) * Picture.Width / std::max(1, Inner.width());
    const int X = static_cast<int>(On.x());
    const int Y = static_cast<int>(On.y());
    const bool Inside = X >= 0 && Y >= 0 && X < Picture.Width && Y < Picture.Height;
    return Inside ? Picture.Row(Y)[X] : Ground->BackColor.Get();
}

// How strongly the letters, spread by their rim, cover each device pixel.
QImage RimmedLabel::Letters(const QSize& DevicePixels) const {
    QImage Mask(DevicePixels, QImage::Format_Alpha8);
    Mask.setDevicePixelRatio(devicePixelRatioF());
    Mask.fill(Qt::transparent);
    QPainter Painter(&Mask);
    Painter.setFont(font());
    const double Reach = std::max(1.0, font().pixelSize() / 13.0);
    for (const QPointF& Aside : {QPointF(-1, 0), QPointF(1, 0), QPointF(0, -1), QPointF(0, 1), QPointF(-0.7, -0.7),
                                 QPointF(0.7, -0.7), QPointF(-0.7, 0.7), QPointF(0.7, 0.7)}) {
        const int Flags = static_cast<int>(alignment()) | (wordWrap() ? Qt::TextWordWrap : 0);
        Painter.drawText(QRectF(contentsRect()).translated(Aside * Reach), Flags, text());
    }
    return Mask;
}

void RimmedLabel::PaintRim() {
    const QSize DevicePixels = size() * devicePixelRatioF();
    const QImage Mask = Letters(DevicePixels);
    QImage Rim(DevicePixels, QImage::Format_ARGB32);
    Rim.setDevicePixelRatio(devicePixelRatioF());
    for (int Y = 0; Y < Rim.height(); ++Y) {
        const uchar* Coverage = Mask.constScanLine(Y);
        auto* Row = reinterpret_cast<QRgb*>(Rim.scanLine(Y));
        for (int X = 0; X < Rim.width(); ++X) {
            const int Needed = RimNeededOn(GroundAt(QPointF(X, Y) / devicePixelRatioF()));
            Row[X] = qRgba(RedOf(RimColor), GreenOf(RimColor), BlueOf(RimColor), Coverage[X] * Needed / 255);
        }
    }
    QPainter(this).drawImage(0, 0, Rim);
}

void RimmedLabel::paintEvent(QPaintEvent* Event) {
    const bool OnPicture = Ground != nullptr && !Ground->Picture.Empty() && !Record.Opaque;
    if (OnPicture && RimNeededOn(Record.ForeColor) > 0) PaintRim();
    QLabel::paintEvent(Event);
}

}  // namespace gloamtide
