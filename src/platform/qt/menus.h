// Makes the menu bar of a form.
#pragma once

#include <QMenuBar>

#include "platform/form.h"
#include "platform/qt/widgets.h"

namespace gloamtide {

void MakeMenus(const Form& Record, QMenuBar& Bar, Watchers& Watching);

}  // namespace gloamtide
