// The dialog that turns the sundial's hour lines.
#pragma once

namespace gloamtide {

// Joins the dialog's controls with their handlers, and the button that opens it.
void ConnectSundialOptions();

void FormSundialOptions_Form_Load();
void CommandSDOptions_Click();
void CommandSDOptionsOK_Click();
void CommandSDOptionsCancel_Click();

}  // namespace gloamtide
