#include "platform/qt/name_completer.h"

#include <algorithm>

namespace gloamtide {

QString PlainLetters(const QString& Text) {
    QString Plain = Text.normalized(QString::NormalizationForm_KD).toCaseFolded();
    Plain.removeIf([](QChar Letter) { return Letter.category() == QChar::Mark_NonSpacing; });
    return Plain.simplified();
}

NameCompleter::NameCompleter(QAbstractItemModel& Entries, QObject& Parent) : QCompleter(&Parent) {
    Fitting.setSourceModel(&Entries);
    setModel(&Fitting);
    setMaxVisibleItems(12);
}

// The entries are chosen here, so that Qt takes all that are left.
QStringList NameCompleter::splitPath(const QString& Typed) const {
    Fitting.Follow(Typed);
    return {QString()};
}

void NameCompleter::Filter::Follow(const QString& NewText) {
    Wanted = PlainLetters(NewText);
    invalidateFilter();
}

bool NameCompleter::Filter::filterAcceptsRow(int Row, const QModelIndex& Parent) const {
    const QString Entry = PlainLetters(sourceModel()->index(Row, 0, Parent).data().toString());
    for (qsizetype Found = Entry.indexOf(Wanted); Found >= 0; Found = Entry.indexOf(Wanted, Found + 1)) {
        if (Found == 0 || !Entry[Found - 1].isLetterOrNumber()) return true;
    }
    return false;
}

}  // namespace gloamtide
