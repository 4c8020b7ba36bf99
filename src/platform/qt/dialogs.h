// Message boxes and file dialogs.
#pragma once

#include <QWidget>

#include "platform/host.h"

namespace gloamtide {

// Each waits for the user's answer. Parent: the window that it belongs to, or null.
MessageAnswer AskMessage(const MessageBox& Message, QWidget* Parent);
std::optional<std::string> AskOpenFile(const FileDialog& Dialog, QWidget* Parent);
std::optional<std::string> AskSaveFile(const FileDialog& Dialog, QWidget* Parent);

// A filter like "Text (*.txt)|*.txt|All Files|*.*" as Qt has it: "Text (*.txt);;All Files (*)".
QString QtFilter(const std::string& Filter);

}  // namespace gloamtide
