#include "platform/qt/help_window.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QScrollBar>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QTextBlock>
#include <QTextBrowser>
#include <QVBoxLayout>
#include <algorithm>

namespace gloamtide {
namespace {

constexpr int LongestExcerpt = 80;  // letters of a paragraph in the list of what was found

QLineEdit* MakeField(const QString& Name, const QString& Hint) {
    auto* Field = new QLineEdit;
    Field->setObjectName(Name);
    Field->setAccessibleName(Hint);
    Field->setPlaceholderText(Hint);
    Field->setClearButtonEnabled(true);
    return Field;
}

QWidget* Stack(QLineEdit* Field, QListWidget* List) {
    auto* Page = new QWidget;
    auto* Column = new QVBoxLayout(Page);
    Column->addWidget(Field);
    Column->addWidget(List);
    return Page;
}

}  // namespace

HelpWindow::HelpWindow(const QString& Html) : Text(new QTextBrowser) {
    setObjectName("HelpWindow");
    setWindowTitle("Gloamtide Help");
    Text->setObjectName("HelpText");
    Text->setAccessibleName("Help text");
    Text->document()->setDocumentMargin(16);
    Text->setHtml(Html);

    auto* Tabs = new QTabWidget;
    Tabs->setObjectName("HelpTabs");
    Tabs->addTab(MakeContents(), "&Contents");
    Tabs->addTab(MakeIndex(), "&Index");
    Tabs->addTab(MakeSearch(), "&Search");
    Tabs->setMinimumWidth(Tabs->tabBar()->sizeHint().width());
    auto* Halves = new QSplitter;
    Halves->addWidget(Tabs);
    Halves->addWidget(Text);
    Halves->setSizes({260, 620});
    setCentralWidget(Halves);
    resize(QSize(880, 640).boundedTo(screen()->availableSize() - QSize(16, 48)));  // with a frame round it
}

QListWidget* HelpWindow::MakeList(const QString& Name) {
    auto* List = new QListWidget;
    List->setObjectName(Name);
    List->setWordWrap(true);
    connect(List, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* Item) {
        if (Item != nullptr) GoTo(Item->data(Qt::UserRole).toInt());
    });
    return List;
}

void HelpWindow::AddPlace(QListWidget& List, const QString& Entry, int Position) {
    auto* Item = new QListWidgetItem(Entry, &List);
    Item->setData(Qt::UserRole, Position);
}

QWidget* HelpWindow::MakeContents() {
    auto* List = MakeList("HelpContents");
    List->setAccessibleName("Contents");
    for (QTextBlock Block = Text->document()->begin(); Block.isValid(); Block = Block.next()) {
        if (Block.blockFormat().headingLevel() > 0) AddPlace(*List, Block.text(), Block.position());
    }
    return List;
}

QWidget* HelpWindow::MakeIndex() {
    auto* List = MakeList("HelpIndex");
    List->setAccessibleName("Index");
    for (QTextBlock Block = Text->document()->begin(); Block.isValid(); Block = Block.next()) {
        for (auto Piece = Block.begin(); !Piece.atEnd(); ++Piece) {
            for (const QString& Name : Piece.fragment().charFormat().anchorNames()) {
                AddPlace(*List, Name, Block.position());
            }
        }
    }
    List->sortItems();
    auto* Field = MakeField("HelpIndexField", "Begin of an entry");
    connect(Field, &QLineEdit::textChanged, List, [List](const QString& Begin) {
        for (int Row = 0; Row < List->count(); ++Row) {
            if (!List->item(Row)->text().startsWith(Begin, Qt::CaseInsensitive)) continue;
            List->setCurrentRow(Row);
            return;
        }
    });
    return Stack(Field, List);
}

QWidget* HelpWindow::MakeSearch() {
    auto* List = MakeList("HelpFound");
    List->setAccessibleName("Found");
    auto* Field = MakeField("HelpSearchField", "Words to look for");
    connect(Field, &QLineEdit::textChanged, this, [this, List](const QString& Words) { Find(Words.trimmed(), *List); });
    return Stack(Field, List);
}

void HelpWindow::Find(const QString& Words, QListWidget& Found) {
    Found.clear();
    if (Words.isEmpty()) return;
    for (QTextBlock Block = Text->document()->begin(); Block.isValid(); Block = Block.next()) {
        const qsizetype Place = Block.text().indexOf(Words, 0, Qt::CaseInsensitive);
        if (Place < 0) continue;
        const QString Excerpt = Block.text().mid(std::max<qsizetype>(0, Place - LongestExcerpt / 3), LongestExcerpt);
        AddPlace(Found, Excerpt.trimmed(), Block.position() + static_cast<int>(Place));
    }
}

void HelpWindow::GoTo(int Position) {
    QTextCursor Place(Text->document());
    Place.setPosition(Position);
    Text->setTextCursor(Place);
    QScrollBar* Bar = Text->verticalScrollBar();
    Bar->setValue(Bar->value() + Text->cursorRect().top() - Text->fontMetrics().height());
}

void HelpWindow::keyPressEvent(QKeyEvent* Event) {
    if (Event->key() == Qt::Key_Escape) {
        close();
    } else {
        QMainWindow::keyPressEvent(Event);
    }
}

}  // namespace gloamtide
