// The widget of a combo box.
#pragma once

#include <QComboBox>
#include <QElapsedTimer>
#include <QStringListModel>

#include "platform/combo_box.h"
#include "platform/qt/marked.h"

namespace gloamtide {

// Where texts are typed, the list offers the entries that fit, and a text that is an entry picks it when the user goes
// on. A list of numbers answers typed digits.
class ComboView : public Marked<QComboBox> {
public:
    ComboView(ComboBox& TheRecord, QWidget& Parent);

    void ShowRecord();  // entries, the selected one, the text

    void showEvent(QShowEvent* Event) override;
    void showPopup() override;

protected:
    void focusOutEvent(QFocusEvent* Event) override;
    void keyPressEvent(QKeyEvent* Event) override;
    bool eventFilter(QObject* Watched, QEvent* Event) override;

private:
    void ShowEntries();
    void ShowSelection();
    void TakeTyped();

    // The entry of the number that is typed digit by digit, with or without zeros before it; -1 where there is none.
    int NumberTyped(const QKeyEvent& Event);

    ComboBox& Record;
    QStringListModel Entries;
    bool Typed = false;              // what the field shows was typed, and not taken yet
    QString Digits;                  // of a number so far
    QElapsedTimer SinceDigit;        // the last one
    std::vector<std::string> Shown;  // the same texts, as the record has them
};

}  // namespace gloamtide
