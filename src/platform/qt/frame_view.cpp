#include "platform/qt/frame_view.h"

#include <qdrawutil.h>

#include <QPainter>

namespace gloamtide {
namespace {

constexpr int CaptionIndent = 8;  // pixels
constexpr int CaptionMargin = 3;  // pixels, between the line's ends and the caption

}  // namespace

void FrameView::paintEvent(QPaintEvent*) {
    QPainter Painter(this);
    const QFontMetrics Metrics = fontMetrics();
    const int LineTop = title().isEmpty() ? 0 : Metrics.height() / 2;
    qDrawShadeRect(&Painter, rect().adjusted(0, LineTop, 0, 0), palette(), true);
    if (title().isEmpty()) return;
    const int Width = Metrics.size(Qt::TextShowMnemonic, title()).width();
    const QRect Caption(CaptionIndent, 0, Width, Metrics.height());
    Painter.fillRect(Caption.adjusted(-CaptionMargin, 0, CaptionMargin, 0), palette().window());
    Painter.setPen(palette().color(QPalette::WindowText));
    Painter.drawText(Caption, Qt::TextShowMnemonic, title());
}

}  // namespace gloamtide
