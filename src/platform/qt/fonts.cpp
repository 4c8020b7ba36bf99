#include "platform/qt/fonts.h"

#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <algorithm>

namespace gloamtide {
namespace {

// The program's fonts are bitmap faces of old, clear down to 8 pixels. These outlines stay clear at such sizes and are
// narrow enough for the same columns; the first that is installed is taken.
const QStringList Families = {"DejaVu Sans Condensed", "Liberation Sans", "Noto Sans", "DejaVu Sans"};

}  // namespace

QFont InstalledFont(const Font& Named, double Scale, int Lowest) {
    QFont Result;
    Result.setFamilies(Families);
    Result.setStyleHint(QFont::SansSerif);
    Result.setPixelSize(std::max(Lowest, qRound(Named.Size * 96.0 / 72.0 * Scale)));
    Result.setBold(Named.Bold);
    Result.setItalic(Named.Italic);
    return Result;
}

GlyphMask RenderMask(const Font& Named, const std::string& Text) {
    const QFont Face = InstalledFont(Named);
    const QString Shown = QString::fromStdString(Text);
    const QFontMetrics Metrics(Face);
    const QSize Size(Metrics.horizontalAdvance(Shown), Metrics.height());
    GlyphMask Mask{Size.width(), Size.height(), {}};
    if (Size.isEmpty()) return Mask;

    QImage Image(Size, QImage::Format_Alpha8);
    Image.fill(Qt::transparent);
    QPainter Painter(&Image);
    Painter.setFont(Face);
    Painter.drawText(0, Metrics.ascent(), Shown);
    Painter.end();
    for (int Y = 0; Y < Mask.Height; ++Y) {
        const uchar* Row = Image.constScanLine(Y);
        Mask.Coverage.insert(Mask.Coverage.end(), Row, Row + Mask.Width);
    }
    return Mask;
}

}  // namespace gloamtide
