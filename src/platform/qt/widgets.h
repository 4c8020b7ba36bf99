// Makes the widgets of a form's controls.
#pragma once

#include <QWidget>
#include <memory>
#include <vector>

#include "platform/control.h"

namespace gloamtide {

using Watchers = std::vector<std::unique_ptr<ElementObserver>>;

// Makes a widget for each control in Holder, and for all that they hold, on Parent; each gets a watcher.
void MakeWidgets(const Container& Holder, QWidget& Parent, Watchers& Watching);

// Selects the text of a widget that one types into, so that typing replaces it.
void SelectText(QWidget& Widget);

}  // namespace gloamtide
