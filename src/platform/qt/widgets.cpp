#include "platform/qt/widgets.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "platform/controls.h"
#include "platform/qt/combo_view.h"
#include "platform/qt/control_watcher.h"
#include "platform/qt/frame_view.h"
#include "platform/qt/marked.h"
#include "platform/qt/picture_view.h"
#include "platform/qt/rimmed_label.h"

namespace gloamtide {
namespace {

// A caption as it is spoken: without the marks of the access keys.
QString Spoken(const QString& Caption) { return QString(Caption).remove('&'); }

void SetAccessibleName(QWidget& Widget, const QString& Name) {
    if (Widget.accessibleName() != Name) Widget.setAccessibleName(Name);
}

// What a screen reader calls a control without a caption: the label that leads to it, made before it in its container.
QString NameByHeading(const Control& Field) {
    QString Heading;
    for (const Control* Sibling : Field.Parent->Children) {
        if (Sibling == &Field) break;
        if (const auto* Text = dynamic_cast<const Label*>(Sibling)) Heading = QString::fromStdString(Text->Caption);
    }
    return Heading;
}

// The same for a group: the label that it begins with, or the one before it.
QString NameOfGroup(const Frame& Group) {
    const auto* Title = Group.Children.empty() ? nullptr : dynamic_cast<const Label*>(Group.Children.front());
    const Control* Next = Group.Children.size() < 2 ? nullptr : Group.Children[1];
    const bool OfAField =
        dynamic_cast<const TextBox*>(Next) != nullptr || dynamic_cast<const ComboBox*>(Next) != nullptr;
    return Title == nullptr || OfAField ? NameByHeading(Group) : QString::fromStdString(Title->Caption);
}

void Watch(Control& Record, QWidget& Widget, Watchers& Watching, std::function<void()> ShowKind) {
    Watching.All.push_back(std::make_unique<ControlWatcher>(Record, Widget, Watching.Scale, std::move(ShowKind)));
}

void MakeLabel(Label& Record, QWidget& Parent, Watchers& Watching) {
    auto* Widget = new RimmedLabel(Record, Parent);
    Widget->setTextFormat(Qt::PlainText);
    Widget->setMouseTracking(true);  // handed on to the picture under it
    Watch(Record, *Widget, Watching, [&Record, Widget] {
        const QString Text = QString::fromStdString(Record.Caption);
        Widget->setText(Text);
        SetAccessibleName(*Widget, Text);
        Widget->setAlignment((Record.TextAlignment == Alignment::Center ? Qt::AlignHCenter : Qt::AlignLeft) |
                             Qt::AlignVCenter);
        Widget->setWordWrap(Record.WordWrap);
        SetRole(*Widget, QPalette::WindowText, Record.ForeColor);
        Widget->setAutoFillBackground(Record.Opaque);
        if (Record.Opaque) SetRole(*Widget, QPalette::Window, Record.BackColor);
    });
    QObject::connect(Widget, &RimmedLabel::Shown, Widget, [&Record] {
        if (Record.Observer != nullptr) Record.Observer->ElementChanged(Record);  // its place follows from its letters
    });
}

void MakeTextBox(TextBox& Record, QWidget& Parent, Watchers& Watching) {
    auto* Widget = new QLineEdit(&Parent);
    QObject::connect(Widget, &QLineEdit::textEdited, Widget,
                     [&Record](const QString& Text) { Record.Text = Text.toStdString(); });
    SetAccessibleName(*Widget, NameByHeading(Record));
    Watch(Record, *Widget, Watching, [&Record, Widget] {
        const QString Text = QString::fromStdString(Record.Text);
        if (Widget->text() != Text) Widget->setText(Text);
    });
}

void MakeCommandButton(CommandButton& Record, QWidget& Parent, Watchers& Watching) {
    auto* Widget = new QPushButton(&Parent);
    Widget->setAutoDefault(true);  // the Enter key presses the button that has the focus
    QObject::connect(Widget, &QPushButton::clicked, Widget, [&Record] { Record.Click(); });
    Watch(Record, *Widget, Watching, [&Record, Widget] {
        const QString Caption = QString::fromStdString(Record.Caption);
        if (Widget->text() != Caption) Widget->setText(Caption);
        SetAccessibleName(*Widget, Spoken(Caption));
    });
}

// Of a group the Tab key comes to the selected option alone.
void TakeTab(QRadioButton& Selected) {
    for (auto* Each : Selected.parentWidget()->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly)) {
        Each->setFocusPolicy(Each == &Selected ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

void ShowOption(const OptionButton& Record, QRadioButton& Widget) {
    const QString Caption = QString::fromStdString(Record.Caption);
    if (Widget.text() != Caption) Widget.setText(Caption);
    SetAccessibleName(Widget, Spoken(Caption));
    SetRole(Widget, QPalette::WindowText, Record.ForeColor);
    if (Record.Value) TakeTab(Widget);
    if (Widget.isChecked() == Record.Value) return;
    Widget.setAutoExclusive(Record.Value);  // an exclusive one cannot be switched off, except by a neighbour
    Widget.setChecked(Record.Value);
    Widget.setAutoExclusive(true);
}

void MakeOptionButton(OptionButton& Record, QWidget& Parent, Watchers& Watching) {
    auto* Widget = new Marked<QRadioButton>(&Parent);
    QObject::connect(Widget, &QRadioButton::clicked, Widget, [&Record, Widget] {
        Record.Value = true;
        ShowOption(Record, *Widget);  // also where the program took the choice back
    });
    Watch(Record, *Widget, Watching, [&Record, Widget] { ShowOption(Record, *Widget); });
}

void MakeCheckBox(CheckBox& Record, QWidget& Parent, Watchers& Watching) {
    auto* Widget = new Marked<QCheckBox>(&Parent);
    const auto Show = [&Record, Widget] {
        const QString Caption = QString::fromStdString(Record.Caption);
        if (Widget->text() != Caption) Widget->setText(Caption);
        SetAccessibleName(*Widget, Spoken(Caption));
        SetRole(*Widget, QPalette::WindowText, Record.ForeColor);
        Widget->setChecked(Record.Value == 1);
    };
    QObject::connect(Widget, &QCheckBox::clicked, Widget, [&Record, Show](bool Ticked) {
        Record.Value = Ticked ? 1 : 0;
        Show();
    });
    Watch(Record, *Widget, Watching, Show);
}

void MakeComboBox(ComboBox& Record, QWidget& Parent, Watchers& Watching) {
    auto* Widget = new ComboView(Record, Parent);
    SetAccessibleName(*Widget, NameByHeading(Record));
    Watch(Record, *Widget, Watching, [Widget] { Widget->ShowRecord(); });
}

void MakeFrame(Frame& Record, QWidget& Parent, Watchers& Watching) {
    auto* Widget = new FrameView(&Parent);
    Widget->setAutoFillBackground(true);
    Watch(Record, *Widget, Watching, [&Record, Widget] {
        const QString Caption = QString::fromStdString(Record.Caption);
        if (Widget->title() != Caption) Widget->setTitle(Caption);
        SetAccessibleName(*Widget, Caption.isEmpty() ? NameOfGroup(Record) : Spoken(Caption));
        SetRole(*Widget, QPalette::WindowText, Record.ForeColor);
        SetRole(*Widget, QPalette::Window, Record.BackColor);
    });
    MakeWidgets(Record, *Widget, Watching);
}

// A picture box hears, besides, what is drawn.
class PictureWatcher : public ControlWatcher {
public:
    PictureWatcher(PictureBox& Picture, PictureView& TheWidget, const BoardScale& TheScale)
        : ControlWatcher(Picture, TheWidget, TheScale,
                         [&Picture, &TheWidget] {
                             SetRole(TheWidget, QPalette::Window, Picture.BackColor);
                             TheWidget.update();
                         }),
          Widget(TheWidget) {}

    void PictureDrawn(int Left, int Top, int Right, int Bottom) override {
        Widget.Repaint(QRect(QPoint(Left, Top), QPoint(Right, Bottom)));
    }

private:
    PictureView& Widget;
};

void MakePictureBox(PictureBox& Record, QWidget& Parent, Watchers& Watching) {
    auto* Widget = new PictureView(Record, Parent, Watching.Scale);
    SetAccessibleName(*Widget, QString::fromStdString(Record.Description));
    Watching.All.push_back(std::make_unique<PictureWatcher>(Record, *Widget, Watching.Scale));
    MakeWidgets(Record, *Widget, Watching);
}

// Tries Make on Record, if that is of Make's kind.
template <class Kind>
bool MakeIf(Control& Record, void (*Make)(Kind&, QWidget&, Watchers&), QWidget& Parent, Watchers& Watching) {
    auto* OfKind = dynamic_cast<Kind*>(&Record);
    if (OfKind != nullptr) Make(*OfKind, Parent, Watching);
    return OfKind != nullptr;
}

}  // namespace

void SelectText(QWidget& Widget) {
    auto* Field = qobject_cast<QLineEdit*>(&Widget);
    if (const auto* List = qobject_cast<QComboBox*>(&Widget); List != nullptr) Field = List->lineEdit();
    if (Field != nullptr) Field->selectAll();
}

void MakeWidgets(const Container& Holder, QWidget& Parent, Watchers& Watching) {
    for (Control* Record : Holder.Children) {
        const auto Makes = [&](auto Make) { return MakeIf(*Record, Make, Parent, Watching); };
        Makes(MakeLabel) || Makes(MakeTextBox) || Makes(MakeCommandButton) || Makes(MakeOptionButton) ||
            Makes(MakeCheckBox) || Makes(MakeComboBox) || Makes(MakeFrame) || Makes(MakePictureBox);
    }
}

}  // namespace gloamtide
