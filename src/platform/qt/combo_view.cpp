#include "platform/qt/combo_view.h"

#include <QLineEdit>
#include <QSignalBlocker>

namespace gloamtide {

ComboView::ComboView(ComboBox& TheRecord, QWidget& Parent) : QComboBox(&Parent), Record(TheRecord) {
    setModel(&Entries);
    setMaxVisibleItems(16);
    connect(this, &QComboBox::activated, this, [this](int Position) {
        Record.Pick(Position);
        ShowRecord();  // also where the record kept what it had
    });
    if (Record.Style != ComboStyle::DropDownCombo) return;

    setEditable(true);
    setCompleter(nullptr);
    // A typed text stays a typed text, even if there is an entry like it: only picking picks.
    disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
    disconnect(lineEdit(), &QLineEdit::returnPressed, this, nullptr);
    connect(lineEdit(), &QLineEdit::textEdited, this, [this](const QString& Text) { Record.Type(Text.toStdString()); });
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

}  // namespace gloamtide
