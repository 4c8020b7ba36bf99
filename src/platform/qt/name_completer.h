// Offers the entries of a list that fit what is typed.
#pragma once

#include <QCompleter>
#include <QSortFilterProxyModel>

namespace gloamtide {

// Offers each entry of which a word begins as was typed, letter case and accents set aside, in the list's own order.
// None is chosen until the user goes to one: a text of one's own stays one.
class NameCompleter : public QCompleter {
public:
    NameCompleter(QAbstractItemModel& Entries, QObject& Parent);

    QStringList splitPath(const QString& Typed) const override;

private:
    class Filter : public QSortFilterProxyModel {
    public:
        void Follow(const QString& NewText);

    protected:
        bool filterAcceptsRow(int Row, const QModelIndex& Parent) const override;

    private:
        QString Wanted;
    };

    mutable Filter Fitting;  // follows the text where the completer asks how to take it apart
};

// A text as it is compared: without letter case and accents.
QString PlainLetters(const QString& Text);

}  // namespace gloamtide
