#include "platform/qt/form_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QWindow>
#include <algorithm>

#include "platform/controls.h"
#include "platform/picture_box.h"
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

// Those of a container that the program redraws at any density.
void CollectPictures(const Container& Holder, std::vector<PictureBox*>& Found) {
    for (Control* Child : Holder.Children) {
        auto* Picture = dynamic_cast<PictureBox*>(Child);
        if (Picture != nullptr && Picture->DensityChanged) Found.push_back(Picture);
        if (const auto* Inner = dynamic_cast<const Container*>(Child); Inner != nullptr) CollectPictures(*Inner, Found);
    }
}

constexpr int RestAfter = 100;       // milliseconds without a change of size
constexpr int LookAgainAfter = 200;  // milliseconds, whether the uncovered menu bar is still wanted

}  // namespace

class FormWindow::FormWatcher : public ElementObserver {
public:
    explicit FormWatcher(FormWindow& TheWindow) : Window(TheWindow) { Window.Record.Observer = this; }
    ~FormWatcher() override { Window.Record.Observer = nullptr; }
    FormWatcher(const FormWatcher&) = delete;
    FormWatcher& operator=(const FormWatcher&) = delete;

    void ElementChanged(Element&) override { Window.FollowRecord(); }

private:
    FormWindow& Window;
};

FormWindow::FormWindow(Form& TheForm, std::function<void(FormWindow&)> ThePresent, TickGate& Gate)
    : Record(TheForm),
      Present(std::move(ThePresent)),
      Stage(new QWidget),
      Board(new QWidget(Stage)),
      UpperEdge(new QWidget(Stage)) {
    setObjectName(QString::fromStdString(Record.Name));
    if (Record.Borderless) setWindowFlag(Qt::FramelessWindowHint);
    setMinimumSize(480, 320);
    setCentralWidget(Stage);
    Board->setObjectName("Board");
    if (FindButton(Record, &CommandButton::Default) == nullptr) Board->setFocusPolicy(Qt::ClickFocus);
    Stage->setAutoFillBackground(true);
    Stage->installEventFilter(this);

    MakeWidgets(Record, *Board, Watching);
    if (!Record.Menus.empty()) {
        MakeMenus(Record, *menuBar(), Watching);
        addActions(menuBar()->actions());
        for (const QAction* Each : menuBar()->actions()) {
            if (Each->menu() != nullptr) addActions(Each->menu()->actions());  // keys work under a covered bar, too
        }
    }
    UpperEdge->setObjectName("UpperEdge");
    UpperEdge->installEventFilter(this);
    UpperEdge->hide();
    for (Timer* Each : Record.Timers) Watching.All.push_back(std::make_unique<TimerDriver>(*Each, Gate));
    Watching.All.push_back(std::make_unique<FormWatcher>(*this));
    Rest.setSingleShot(true);
    Rest.setInterval(RestAfter);
    connect(&Rest, &QTimer::timeout, this, &FormWindow::SharpenPictures);
    Uncovered.setInterval(LookAgainAfter);
    connect(&Uncovered, &QTimer::timeout, this, &FormWindow::CoverMenuBarAgain);
    FollowRecord();
}

void FormWindow::LetGo() {
    Rest.stop();
    Watching.All.clear();
    hide();
}

void FormWindow::FollowRecord() {
    SetRole(*Stage, QPalette::Window, Record.BackColor);
    // Doubled, a place mark of the title bar stands for itself.
    setWindowTitle(QString::fromStdString(Record.Caption).replace("[*]", "[*][*]"));
    setAccessibleName(windowTitle());
    FitBoard();
    if (isVisible() && isFullScreen() != Record.FullScreen) {
        setWindowState(windowState() ^ Qt::WindowFullScreen);
    }
    if (isHidden() == Record.Visible) ShowOrHide();
}

void FormWindow::ShowOrHide() {
    if (!Record.Visible) {
        if (QWidget* Last = focusWidget(); Last != nullptr) Last->clearFocus();
        hide();
        return;
    }
    Present(*this);
    raise();
    activateWindow();
    if (FindButton(Record, &CommandButton::Default) == nullptr) {
        Board->setFocus();
        return;
    }
    // A dialog starts at its first field each time, and shows it.
    setAttribute(Qt::WA_KeyboardFocusChange);
    focusNextChild();
    if (QWidget* First = focusWidget(); First != nullptr) SelectText(*First);
}

// --- The board

void FormWindow::Expect(const QSize& TheRoom) {
    Expected = TheRoom;
    FitBoard();
}

void FormWindow::FixScale(double Factor) {
    FixedScale = Factor;
    FitBoard();
    SharpenPictures();
}

QSizeF FormWindow::BoardSize() const {
    if (Record.BoardWidth > 0.0 && Record.BoardHeight > 0.0) return {Record.BoardWidth, Record.BoardHeight};
    QSizeF Size(1.0, 1.0);
    for (const Control* Each : Record.Children) {
        if (!Each->Visible) continue;
        Size =
            Size.expandedTo({Each->Left.Pixels() + Each->Width.Pixels(), Each->Top.Pixels() + Each->Height.Pixels()});
    }
    return Size;
}

QSizeF FormWindow::Room() const {
    if (testAttribute(Qt::WA_WState_Created)) return Stage->size();
    if (Expected.isEmpty()) return {};
    const int BarHeight = Record.Menus.empty() ? 0 : menuWidget()->sizeHint().height();
    return {1.0 * Expected.width(), 1.0 * Expected.height() - BarHeight};
}

void FormWindow::FitBoard() {
    const QSizeF Size = BoardSize();
    const QSizeF Space = Room();
    if (Space.isEmpty() && !FixedScale) return;
    BoardScale& Scale = Watching.Scale;
    // From a screen of 1280 by 720 on all can be read; in a smaller window all is whole.
    const bool Roomy = !FixedScale && Space.width() >= 1280 && Space.height() >= 600;
    Scale.SetFactor(FixedScale.value_or(ScaleToFit(Size, Space)), Roomy ? 9 : 1);
    const QSize Shown(Scale.Place(Size.width()), Scale.Place(Size.height()));
    const QSize Around = FixedScale ? QSize() : (Space.toSize() - Shown) / 2;
    Board->setGeometry(QRect(QPoint(std::max(0, Around.width()), std::max(0, Around.height())), Shown));
    UpperEdge->setGeometry(0, 0, Stage->width(), 2);
    if (isVisible()) {
        Rest.start();
    } else {
        SharpenPictures();
    }
}

void FormWindow::SharpenPictures() {
    std::vector<PictureBox*> Pictures;
    CollectPictures(Record, Pictures);
    for (PictureBox* Each : Pictures) Each->Density = Watching.Scale.Factor() * devicePixelRatioF();
}

// --- Events

void FormWindow::showEvent(QShowEvent* Event) {
    QMainWindow::showEvent(Event);
    connect(windowHandle(), &QWindow::screenChanged, &Rest, qOverload<>(&QTimer::start), Qt::UniqueConnection);
}

void FormWindow::changeEvent(QEvent* Event) {
    QMainWindow::changeEvent(Event);
    if (Event->type() != QEvent::WindowStateChange || !isVisible()) return;
    Record.FullScreen = isFullScreen();
    ArrangeMenuBar();
}

bool FormWindow::eventFilter(QObject* Watched, QEvent* Event) {
    if (Watched == Stage && Event->type() == QEvent::Resize) FitBoard();
    if (Watched == UpperEdge && Event->type() == QEvent::Enter) UncoverMenuBar();
    return QMainWindow::eventFilter(Watched, Event);
}

// The program decides whether the window closes.
void FormWindow::closeEvent(QCloseEvent* Event) {
    Event->ignore();
    Record.Close();
}

bool FormWindow::PressKeyOfForm(const QKeyEvent& Event) {
    const Qt::KeyboardModifiers Modifiers = Event.modifiers() & ~Qt::KeypadModifier;
    const QKeySequence Key(QKeyCombination(Modifiers, static_cast<Qt::Key>(Event.key())));
    const auto Found = Record.Keys.find(Key.toString(QKeySequence::PortableText).toStdString());
    if (Found == Record.Keys.end()) return false;
    // Held down, a key repeats itself, maybe faster than it can be followed: what had waited meanwhile is left out.
    const bool Again = Event.isAutoRepeat() && (Following || Event.key() == Qt::Key_Space);
    if (Again) return true;
    Found->second();
    Following = true;
    QTimer::singleShot(0, this, [this] { Following = false; });
    return true;
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
    } else if (Escape && Record.FullScreen) {
        Record.FullScreen = false;
    } else if (!PressKeyOfForm(*Event)) {
        if (Event->key() == Qt::Key_Alt && isFullScreen()) UncoverMenuBar();
        QMainWindow::keyPressEvent(Event);
    }
}

// --- The menu bar in full screen

void FormWindow::ArrangeMenuBar() {
    if (Record.Menus.empty()) return;
    QMenuBar* Bar = findChild<QMenuBar*>();
    const bool Covered = isFullScreen();
    layout()->setMenuBar(Covered ? nullptr : Bar);
    Bar->setVisible(!Covered);
    UpperEdge->setVisible(Covered);
    UpperEdge->raise();
    if (!Covered) Uncovered.stop();
}

void FormWindow::UncoverMenuBar() {
    QMenuBar* Bar = findChild<QMenuBar*>();
    if (Bar == nullptr || Bar->isVisible()) return;
    Bar->setGeometry(0, 0, width(), Bar->sizeHint().height());
    Bar->show();
    Bar->raise();
    Uncovered.start();
}

void FormWindow::CoverMenuBarAgain() {
    QMenuBar* Bar = findChild<QMenuBar*>();
    const bool Wanted = QApplication::activePopupWidget() != nullptr || Bar->activeAction() != nullptr ||
                        Bar->geometry().contains(mapFromGlobal(QCursor::pos())) ||
                        QGuiApplication::queryKeyboardModifiers().testFlag(Qt::AltModifier);
    if (Wanted) return;
    Bar->hide();
    Uncovered.stop();
}

}  // namespace gloamtide
