// The window of a form.
#pragma once

#include <QMainWindow>
#include <functional>

#include "platform/qt/ticks.h"
#include "platform/qt/widgets.h"

namespace gloamtide {

// A main window with the form's menus and controls. Where the screen is smaller than what they take up, it scrolls.
class FormWindow : public QMainWindow {
public:
    // TheFillScreen shows the window all over the screen.
    FormWindow(Form& TheForm, std::function<void(QWidget&)> TheFillScreen, TickGate& Gate);

    // Parts from the records: nothing that they do shows any more, and no timer ticks.
    void LetGo();

protected:
    void closeEvent(QCloseEvent* Event) override;
    void keyPressEvent(QKeyEvent* Event) override;
    bool eventFilter(QObject* Watched, QEvent* Event) override;

private:
    class FormWatcher;

    void Show();
    void FitBoard();

    Form& Record;
    std::function<void(QWidget&)> FillScreen;
    QWidget* Board;  // holds the controls
    Watchers Watching;
};

}  // namespace gloamtide
