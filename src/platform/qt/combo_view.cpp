#include "platform/qt/combo_view.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <utility>

#include "platform/qt/name_completer.h"

namespace gloamtide {

ComboView::ComboView(ComboBox& TheRecord, QWidget& Parent) : Marked(&Parent), Record(TheRecord) {
    setModel(&Entries);
    setMaxVisibleItems(16);
    view()->installEventFilter(this);
    connect(this, &QComboBox::activated, this, [this](int Position) {
        Typed = false;
        Record.Pick(Position);
        ShowRecord();  // also where the record kept what it had
    });
    if (Record.Style != ComboStyle::DropDownCombo) return;

    setEditable(true);
    setCompleter(new NameCompleter(Entries, *this));
    // Qt's own way would add what was typed to the list.
    disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
    disconnect(lineEdit(), &QLineEdit::returnPressed, this, nullptr);
    connect(lineEdit(), &QLineEdit::textEdited, this, [this](const QString& Text) {
        Record.Type(Text.toStdString());
        Typed = true;
    });
    connect(lineEdit(), &QLineEdit::returnPressed, this, [this] {
        if (!completer()->popup()->isVisible()) TakeTyped();  // else Enter takes what is chosen there
    });
}

// What was typed is an entry of that name, if there is one, else a text of the user's own.
void ComboView::TakeTyped() {
    if (!std::exchange(Typed, false)) return;
    const QString Name = PlainLetters(lineEdit()->text());
    for (int Position = 0; Position < count(); ++Position) {
        if (PlainLetters(itemText(Position)) != Name) continue;
        Record.Pick(Position);
        ShowRecord();
        return;
    }
    Record.Type(lineEdit()->text().toStdString());
}

void ComboView::ShowRecord() {
    if (!isVisible()) return;  // lists are filled entry by entry: what nobody sees waits for showEvent
    const QSignalBlocker Blocker(this);
    ShowEntries();
    ShowSelection();
}

void ComboView::ShowEntries() {
    const auto Count = static_cast<std::size_t>(Record.ListCount());
    std::vector<std::string> Wanted;
    Wanted.reserve(Count);
    for (int Position = 0; Position < Record.ListCount(); ++Position) Wanted.push_back(Record.List(Position));
    if (Wanted == Shown) return;
    Shown = std::move(Wanted);
    QStringList Texts;
    for (const std::string& Text : Shown) Texts.append(QString::fromStdString(Text));
    Entries.setStringList(Texts);
}

void ComboView::ShowSelection() {
    const QString Text = QString::fromStdString(Record.Text);
    const int Cursor = lineEdit() == nullptr ? 0 : lineEdit()->cursorPosition();
    if (currentIndex() != Record.ListIndex) setCurrentIndex(Record.ListIndex);
    if (lineEdit() == nullptr || lineEdit()->text() == Text) return;
    lineEdit()->setText(Text);
    lineEdit()->setCursorPosition(Cursor);
}

void ComboView::showEvent(QShowEvent* Event) {
    ShowRecord();
    QComboBox::showEvent(Event);
}

void ComboView::showPopup() {
    Record.DropDown();
    QComboBox::showPopup();
}

void ComboView::focusOutEvent(QFocusEvent* Event) {
    QComboBox::focusOutEvent(Event);
    if (Event->reason() != Qt::PopupFocusReason && Event->reason() != Qt::ActiveWindowFocusReason) TakeTyped();
}

int ComboView::NumberTyped(const QKeyEvent& Event) {
    constexpr qint64 Pause = 1000;  // milliseconds, after which another number begins
    const QString Digit = Event.text();
    const bool IsDigit = Digit.size() == 1 && Digit[0].isDigit();
    if (!IsDigit || !SinceDigit.isValid() || SinceDigit.hasExpired(Pause)) Digits.clear();
    if (!IsDigit || isEditable()) return -1;
    SinceDigit.start();
    for (const QString& Number : {Digits + Digit, Digit}) {
        Digits = Number;
        for (int Position = 0; Position < count(); ++Position) {
            bool IsNumber = false;
            if (itemText(Position).trimmed().toInt(&IsNumber) == Number.toInt() && IsNumber) return Position;
        }
    }
    return -1;
}

void ComboView::keyPressEvent(QKeyEvent* Event) {
    const int Position = NumberTyped(*Event);
    if (Position < 0) return QComboBox::keyPressEvent(Event);
    if (Position == currentIndex()) return;
    setCurrentIndex(Position);
    emit activated(Position);
}

bool ComboView::eventFilter(QObject* Watched, QEvent* Event) {
    if (Watched == view() && Event->type() == QEvent::KeyPress) {
        const int Position = NumberTyped(*static_cast<QKeyEvent*>(Event));
        if (Position >= 0) {
            view()->setCurrentIndex(Entries.index(Position));
            return true;
        }
    }
    return QComboBox::eventFilter(Watched, Event);
}

}  // namespace gloamtide
