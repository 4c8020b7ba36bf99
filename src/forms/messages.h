// How the program speaks to the user.
#pragma once

#include "platform/host.h"

namespace gloamtide {

// Messages come after two beeps, but for the year limit's.
inline MessageAnswer ShowAfterTwoBeeps(const MessageBox& Message) {
    host->Beep();
    host->Beep();
    return host->ShowMessage(Message);
}

}  // namespace gloamtide
