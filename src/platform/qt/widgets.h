// Makes the widgets of a form's controls.
#pragma once

#include <QWidget>
#include <memory>
#include <vector>

#include "platform/control.h"
#include "platform/qt/board.h"

namespace gloamtide {

// The watchers of a window's records, and the scale at which they show them.
struct Watchers {
    BoardScale Scale;
    std::vector<std::unique_ptr<ElementObserver>> All;
};

// Makes a widget for each control in Holder, and for all that they hold, on Parent; each gets a watcher.
void MakeWidgets(const Container& Holder, QWidget& Parent, Watchers& Watching);

// Selects the text of a widget that one types into, so that typing replaces it.
void SelectText(QWidget& Widget);

}  // namespace gloamtide
