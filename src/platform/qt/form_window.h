// The window of a form.
#pragma once

#include <QMainWindow>
#include <QTimer>
#include <functional>
#include <optional>

#include "platform/qt/ticks.h"
#include "platform/qt/widgets.h"

namespace gloamtide {

// A main window with the form's menus, and its controls on a board in the middle, as large as the window allows. While
// the window changes its size the board follows, its pictures stretched; when it rests they get the screen's density.
class FormWindow : public QMainWindow {
public:
    // ThePresent shows the window on the desktop.
    FormWindow(Form& TheForm, std::function<void(FormWindow&)> ThePresent, TickGate& Gate);

    const Form& ShownForm() const { return Record; }

    // The room for menu bar and board that the window will have when it is shown; so nothing is drawn twice.
    void Expect(const QSize& Room);

    // The board stays at this scale, in the upper left corner, whatever the window's size.
    void FixScale(double Factor);

    // Parts from the records: nothing that they do shows any more, and no timer ticks.
    void LetGo();

protected:
    void closeEvent(QCloseEvent* Event) override;
    void keyPressEvent(QKeyEvent* Event) override;
    void changeEvent(QEvent* Event) override;
    void showEvent(QShowEvent* Event) override;
    bool eventFilter(QObject* Watched, QEvent* Event) override;

private:
    class FormWatcher;

    void FollowRecord();
    void ShowOrHide();
    QSizeF BoardSize() const;
    QSizeF Room() const;  // for the board
    void FitBoard();
    void SharpenPictures();

    // Whether the form has a use for the key.
    bool PressKeyOfForm(const QKeyEvent& Event);

    // In full screen the menu bar lies over the board's upper edge, and only while it is asked for.
    void ArrangeMenuBar();
    void UncoverMenuBar();
    void CoverMenuBarAgain();

    Form& Record;
    std::function<void(FormWindow&)> Present;
    QWidget* Stage;      // all of the window but the menu bar
    QWidget* Board;      // holds the controls
    QWidget* UpperEdge;  // where the pointer asks for the menu bar
    std::optional<double> FixedScale;
    QSize Expected;
    bool Following = false;  // a key of the form was done, and what waited meanwhile is not looked at yet
    QTimer Rest;             // until the window's size counts as settled
    QTimer Uncovered;        // while the menu bar shows in full screen
    Watchers Watching;
};

}  // namespace gloamtide
