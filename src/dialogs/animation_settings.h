// The dialog of the animation's settings: the step and its direction.
#pragma once

namespace gloamtide {

// Joins the dialog's controls with their handlers, and the menu item that opens it.
void ConnectAnimationSettings();

// Shows the settings in the dialog and in the label on the map.
//   Reads:  AnimYears, AnimDays, AnimHours, AnimForward
void ShowAnimationSettings();

void FormAnimation_Form_Load();
void MenuAnimationSubOptions_Click();

// Takes the settings over and keeps them in the configuration file at once; a text out of its range gets a message and
// nothing is taken over. A running animation goes on with its step.
//   Sets:  AnimYears, AnimDays, AnimHours, AnimForward
void CmdAnimOptionsOK_Click();
void CmdAnimOptionsCancel_Click();

}  // namespace gloamtide
