#include "platform/qt/form_window.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollArea>

#include "platform/controls.h"
#include "platform/qt/control_watcher.h"
#include "platform/qt/menus.h"
#include "platform/qt/widgets.h"

namespace gloamtide {
namespace {

CommandButton* FindButton(const Container& Holder, bool CommandButton::*Key) {
    for (Control* Child : Holder.Children) {
        if (auto* Button = dynamic_cast<CommandButton*>(Child); Button != nullptr && Button->*Key) return Button;
        if (auto* Inner = dynamic_cast<Container*>(Child); Inner != nullptr) {
            if (CommandButton* Found = FindButton(*Inner, Key); Found != nullptr) return Found;
        }
    }
    return nullptr;
}

}  // namespace

class FormWindow::FormWatcher : public ElementObserver {
public:
    explicit FormWatcher(FormWindow& TheWindow) : Window(TheWindow) { Window.Record.Observer = this; }
    ~FormWatcher() override { Window.Record.Observer = nullptr; }
    FormWatcher(const FormWatcher&) = delete;
    FormWatcher& operator=(const FormWatcher&) = delete;

    void ElementChanged(Element&) override { Window.Show(); }

private:
    FormWindow& Window;
};

FormWindow::FormWindow(Form& TheForm, std::function<void(QWidget&)> TheFillScreen, TickGate& Gate)
    : Record(TheForm), FillScreen(std::move(TheFillScreen)), Board(new QWidget) {
    setObjectName(QString::fromStdString(Record.Name));
    if (Record.Borderless) setWindowFlag(Qt::FramelessWindowHint);
    auto* Scroller = new QScrollArea(this);
    Scroller->setFrameShape(QFrame::NoFrame);
    Scroller->setFocusPolicy(Qt::NoFocus);
    Scroller->setWidgetResizable(true);
    Scroller->setWidget(Board);
    setCentralWidget(Scroller);
    Board->setAutoFillBackground(true);

    MakeWidgets(Record, *Board, Watching);
    for (QObject* Child : Board->children()) Child->installEventFilter(this);
    FitBoard();
    if (!Record.Menus.empty()) MakeMenus(Record, *menuBar(), Watching);
    for (Timer* Each : Record.Timers) Watching.push_back(std::make_unique<TimerDriver>(*Each, Gate));
    Watching.push_back(std::make_unique<FormWatcher>(*this));
    Show();
}

void FormWindow::LetGo() {
    Watching.clear();
    hide();
}

void FormWindow::Show() {
    SetRole(*Board, QPalette::Window, Record.BackColor);
    // Doubled, a place mark of the title bar stands for itself.
    setWindowTitle(QString::fromStdString(Record.Caption).replace("[*]", "[*][*]"));
    setAccessibleName(windowTitle());
    if (isHidden() != Record.Visible) return;
    if (Record.Visible) {
        FillScreen(*this);
        raise();
        activateWindow();
        if (FindButton(Record, &CommandButton::Default) == nullptr) {
            Board->setFocus();  // the keys that scroll arrive where they scroll
            return;
        }
        // A dialog starts at its first field each time, and shows it.
        setAttribute(Qt::WA_KeyboardFocusChange);
        focusNextChild();
        if (QWidget* First = focusWidget(); First != nullptr) SelectText(*First);
    } else {
        if (QWidget* Last = focusWidget(); Last != nullptr) Last->clearFocus();
        hide();
    }
}

void FormWindow::FitBoard() {
    const QRect Taken = Board->childrenRegion().boundingRect();
    Board->setMinimumSize(Taken.right() + 1, Taken.bottom() + 1);
}

bool FormWindow::eventFilter(QObject* Watched, QEvent* Event) {
    switch (Event->type()) {
        case QEvent::Move:
        case QEvent::Resize:
        case QEvent::ShowToParent:
        case QEvent::HideToParent:
            FitBoard();
            break;
        default:
            break;
    }
    return QMainWindow::eventFilter(Watched, Event);
}

// The program decides whether the window closes.
void FormWindow::closeEvent(QCloseEvent* Event) {
    Event->ignore();
    Record.Close();
}

// Only keys that the focused widget has no use for come here.
void FormWindow::keyPressEvent(QKeyEvent* Event) {
    const bool Enter = Event->key() == Qt::Key_Return || Event->key() == Qt::Key_Enter;
    const bool Escape = Event->key() == Qt::Key_Escape;
    const CommandButton* Button = nullptr;
    if (Enter) Button = FindButton(Record, &CommandButton::Default);
    if (Escape) Button = FindButton(Record, &CommandButton::Cancel);
    auto* Widget = Button == nullptr ? nullptr : Board->findChild<QPushButton*>(QString::fromStdString(Button->Name));
    if (Widget != nullptr && Widget->isVisible()) {
        Widget->click();
    } else {
        QMainWindow::keyPressEvent(Event);
    }
}

}  // namespace gloamtide
