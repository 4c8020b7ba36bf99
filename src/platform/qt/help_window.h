// The help text in a window of its own, with contents, index and search.
#pragma once

#include <QMainWindow>

class QListWidget;
class QTextBrowser;

namespace gloamtide {

// Shows a text in HTML. Its headings make the contents; the names of its anchors make the index.
class HelpWindow : public QMainWindow {
public:
    explicit HelpWindow(const QString& Html);

protected:
    void keyPressEvent(QKeyEvent* Event) override;

private:
    QWidget* MakeContents();
    QWidget* MakeIndex();
    QWidget* MakeSearch();

    // A list whose entries lead to places of the text.
    QListWidget* MakeList(const QString& Name);
    static void AddPlace(QListWidget& List, const QString& Entry, int Position);
    void GoTo(int Position);
    void Find(const QString& Words, QListWidget& Found);

    QTextBrowser* Text;
};

}  // namespace gloamtide
