#include "platform/qt/control_watcher.h"

#include <QLabel>
#include <algorithm>

#include "platform/controls.h"
#include "platform/picture_box.h"
#include "platform/qt/fonts.h"

namespace gloamtide {

QColor ToQColor(Color Value) { return {RedOf(Value), GreenOf(Value), BlueOf(Value)}; }

void SetRole(QWidget& Widget, QPalette::ColorRole Role, Color Value) {
    const QColor Wanted = ToQColor(Value);
    if (Widget.testAttribute(Qt::WA_SetPalette) && Widget.palette().color(Role) == Wanted) return;
    QPalette Palette = Widget.palette();
    Palette.setColor(Role, Wanted);
    Widget.setPalette(Palette);
}

ControlWatcher::ControlWatcher(Control& TheRecord, QWidget& TheWidget, std::function<void()> TheShowKind)
    : Record(TheRecord), Widget(TheWidget), ShowKind(std::move(TheShowKind)) {
    Widget.setObjectName(QString::fromStdString(Record.Name));
    ShownFont = Record.CurrentFont();
    Widget.setFont(InstalledFont(ShownFont));
    Record.Observer = this;
    ControlWatcher::ElementChanged(Record);
}

void ControlWatcher::ElementChanged(Element&) {
    if (Writing) return;
    ShowFont();
    const QString Tip = QString::fromStdString(Record.ToolTipText);
    if (Widget.toolTip() != Tip) Widget.setToolTip(Tip);
    ShowKind();
    TakeNaturalSize();
    Place();
    if (Widget.isHidden() == Record.Visible) Widget.setVisible(Record.Visible);
}

void ControlWatcher::ShowFont() {
    if (Record.CurrentFont() == ShownFont) return;
    ShownFont = Record.CurrentFont();
    Widget.setFont(InstalledFont(ShownFont));
}

void ControlWatcher::TakeNaturalSize() {
    if (dynamic_cast<Container*>(&Record) != nullptr) return;
    const auto IsFree = [](double Pixels, int LastNatural) { return Pixels == 0.0 || Pixels == LastNatural; };
    Writing = true;
    if (IsFree(Record.Width.Pixels(), Natural.width())) {
        Natural.setWidth(Widget.sizeHint().width() - Widget.contentsMargins().left());
        Record.Width.SetPixels(Natural.width());
    }
    if (IsFree(Record.Height.Pixels(), Natural.height())) {
        const int Width = qRound(Record.Width.Pixels());
        Natural.setHeight(Widget.hasHeightForWidth() ? Widget.heightForWidth(Width) : Widget.sizeHint().height());
        Record.Height.SetPixels(Natural.height());
    }
    Writing = false;
}

void ControlWatcher::Place() {
    const auto* Holder = dynamic_cast<const PictureBox*>(Record.Parent);
    const int Border = Holder == nullptr ? 0 : Holder->BorderWidth.Get();
    QRect Box(qRound(Record.Left.Pixels()) + Border, qRound(Record.Top.Pixels()) + Border,
              qRound(Record.Width.Pixels()), qRound(Record.Height.Pixels()));
    const auto* Text = dynamic_cast<const Label*>(&Record);
    if (Text != nullptr && !Text->Opaque && !Text->WordWrap) Box = RoomForLetters(Box, Holder != nullptr, Border);
    if (Border > 0) {  // what a picture holds stays off its border, and is whole where there is room
        const QRect Inner(Border, Border, qRound(Record.Parent->InnerWidth()), qRound(Record.Parent->InnerHeight()));
        Box.moveBottom(std::min(Box.bottom(), Inner.bottom()));
        Box &= Inner;
    }
    Widget.setGeometry(Box);
}

// A row can be lower than a line of its font, a label at a picture's right edge narrower than its text, and the ink of
// a first letter begin before its text does. Where that shows on nothing but letters the label reaches over: upward and
// downward, and to the left as far as the ink needs it. One that fits where it was placed stays there.
QRect ControlWatcher::RoomForLetters(QRect Box, bool OnPicture, int Border) {
    auto& Text = dynamic_cast<QLabel&>(Widget);
    const QSize Needed = Text.sizeHint().expandedTo(Box.size());
    const int Missing = Needed.height() - Box.height();
    Box.adjust(0, -(Missing / 2), 0, Missing - Missing / 2);
    if (!OnPicture) return Box;
    const QRect Ink = Text.fontMetrics().tightBoundingRect(Text.text());
    const bool AtLeftEdge = Box.left() <= Border && Text.alignment().testFlag(Qt::AlignLeft);
    const int Overhang = AtLeftEdge ? std::max(0, -Ink.left()) : 0;
    Text.setContentsMargins(Overhang, 0, 0, 0);
    const int Edge = qRound(Record.Parent->InnerWidth()) + Border;
    if (Box.left() + Box.width() < Edge - Border) return Box;
    // Letters do not touch a border; at an open edge the last letter's soft rim may be cut.
    const int Last = Border > 0 ? Edge - 1 : Edge + 1;
    const int InkEnd = Box.left() + Overhang + Ink.right() + 1;
    if (InkEnd > Last) Box.translate(Last - InkEnd, 0);
    Box.setRight(std::min(Edge, Box.left() + Needed.width()) - 1);
    return Box;
}

}  // namespace gloamtide
