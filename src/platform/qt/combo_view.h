// The widget of a combo box.
#pragma once

#include <QComboBox>
#include <QStringListModel>

#include "platform/combo_box.h"

namespace gloamtide {

class ComboView : public QComboBox {
public:
    ComboView(ComboBox& TheRecord, QWidget& Parent);

    void ShowRecord();  // entries, the selected one, the text

    void showEvent(QShowEvent* Event) override;
    void showPopup() override;

private:
    void ShowEntries();
    void ShowSelection();

    ComboBox& Record;
    QStringListModel Entries;
    std::vector<std::string> Shown;  // the same texts, as the record has them
};

}  // namespace gloamtide
