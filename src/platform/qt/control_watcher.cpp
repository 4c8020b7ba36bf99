#include "platform/qt/control_watcher.h"

#include <QLabel>
#include <algorithm>

#include "platform/controls.h"
#include "platform/picture_box.h"
#include "platform/qt/fonts.h"
#include "platform/qt/marked.h"

namespace gloamtide {

QColor ToQColor(Color Value) { return {RedOf(Value), GreenOf(Value), BlueOf(Value)}; }

void SetRole(QWidget& Widget, QPalette::ColorRole Role, Color Value) {
    const QColor Wanted = ToQColor(Value);
    if (Widget.testAttribute(Qt::WA_SetPalette) && Widget.palette().color(Role) == Wanted) return;
    QPalette Palette = Widget.palette();
    Palette.setColor(Role, Wanted);
    Widget.setPalette(Palette);
}

ControlWatcher::ControlWatcher(Control& TheRecord, QWidget& TheWidget, const BoardScale& TheScale,
                               std::function<void()> TheShowKind)
    : Record(TheRecord), Widget(TheWidget), Scale(TheScale), ShowKind(std::move(TheShowKind)) {
    Widget.setObjectName(QString::fromStdString(Record.Name));
    ShownFont = Record.CurrentFont();
    SetScaledFont();
    Record.Observer = this;
    ControlWatcher::ElementChanged(Record);
    Following = QObject::connect(&Scale, &BoardScale::Changed, &Widget, [this] {
        SetScaledFont();
        Place();
    });
}

ControlWatcher::~ControlWatcher() {
    QObject::disconnect(Following);
    Record.Observer = nullptr;
}

void ControlWatcher::SetFont(double Factor, int Lowest) {
    if (auto* Grown = dynamic_cast<Marks*>(&Widget)) Grown->Growth = std::max(1.0, Factor);
    Widget.setFont(InstalledFont(ShownFont, Factor, Lowest));
}

void ControlWatcher::SetScaledFont() { SetFont(Scale.Factor(), Scale.LowestLetters()); }

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
    SetScaledFont();
}

void ControlWatcher::TakeNaturalSize() {
    if (dynamic_cast<Container*>(&Record) != nullptr) return;
    const auto IsFree = [](double Pixels, int LastNatural) { return Pixels == 0.0 || Pixels == LastNatural; };
    const bool WidthIsFree = IsFree(Record.Width.Pixels(), Natural.width());
    const bool HeightIsFree = IsFree(Record.Height.Pixels(), Natural.height());
    if (!WidthIsFree && !HeightIsFree) return;
    // The program reckons with sizes at scale 1, whatever the scale is.
    const bool Scaled = Widget.font() != InstalledFont(ShownFont);
    if (Scaled) SetFont(1.0, 1);
    Writing = true;
    if (WidthIsFree) {
        Natural.setWidth(Widget.sizeHint().width() - Widget.contentsMargins().left());
        Record.Width.SetPixels(Natural.width());
    }
    if (HeightIsFree) {
        const int Width = qRound(Record.Width.Pixels());
        Natural.setHeight(Widget.hasHeightForWidth() ? Widget.heightForWidth(Width) : Widget.sizeHint().height());
        Record.Height.SetPixels(Natural.height());
    }
    Writing = false;
    if (Scaled) SetScaledFont();
}

void ControlWatcher::Place() {
    const auto* Holder = dynamic_cast<const PictureBox*>(Record.Parent);
    const int Border = Holder == nullptr ? 0 : Holder->BorderWidth.Get();
    QRect Box = Scale.Box(Record.Left.Pixels() + Border, Record.Top.Pixels() + Border, Record.Width.Pixels(),
                          Record.Height.Pixels());
    QRect Inner;  // of the picture that holds it
    if (Holder != nullptr) Inner = Scale.Box(Border, Border, Holder->InnerWidth(), Holder->InnerHeight());
    const auto* Text = dynamic_cast<const Label*>(&Record);
    const bool Reaches = Text != nullptr && !Text->Opaque && !Text->WordWrap;
    if (Reaches && Widget.isVisible()) Box = RoomForLetters(Box, Inner);  // measured when there is something to see
    if (Border > 0) {  // what a picture holds stays off its border, and is whole where there is room
        Box.moveBottom(std::min(Box.bottom(), Inner.bottom()));
        Box &= Inner;
    }
    Widget.setGeometry(Box);
}

// A row can be lower than a line of its font, a label at a picture's right edge narrower than its text, and the ink of
// a first letter begin before its text does. Where that shows on nothing but letters the label reaches over: upward and
// downward, and to the left as far as the ink needs it. One that fits where it was placed stays there.
QRect ControlWatcher::RoomForLetters(QRect Box, const QRect& Inner) {
    auto& Text = dynamic_cast<QLabel&>(Widget);
    const QSize Needed = Text.sizeHint().expandedTo(Box.size());
    const int Missing = Needed.height() - Box.height();
    Box.adjust(0, -(Missing / 2), 0, Missing - Missing / 2);
    if (Record.Width.Pixels() == Natural.width()) Box.setWidth(Needed.width());  // letters do not grow evenly
    if (Inner.isEmpty()) return Box;
    const QRect Ink = Text.fontMetrics().tightBoundingRect(Text.text());
    const bool AtLeftEdge = Box.left() <= Inner.left() && Text.alignment().testFlag(Qt::AlignLeft);
    const int Overhang = AtLeftEdge ? std::max(0, -Ink.left()) : 0;
    Text.setContentsMargins(Overhang, 0, 0, 0);
    if (Box.right() < Inner.right() - Inner.left()) return Box;
    // Letters do not touch a border; at an open edge the last letter's soft rim may be cut.
    const int Last = Inner.right() + (Inner.left() > 0 ? 0 : 2);
    const int InkEnd = Box.left() + Overhang + Ink.right() + 1;
    if (InkEnd > Last) Box.translate(Last - InkEnd, 0);
    Box.setRight(std::min(Inner.right(), Box.left() + Needed.width() - 1));
    return Box;
}

}  // namespace gloamtide
