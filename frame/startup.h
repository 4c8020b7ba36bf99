// The start of the program, from its first window to the first picture, and the ways out of it.
#pragma once

namespace gloamtide {

// Joins the events of all windows with their handlers and opens the first window. The host must be set. Where the
// configuration comes from stands in state.StartupSource.
void StartProgram();

// Unloads every form, the last loaded first, and ends the process.
//   Sets:  ExitInProgress
void ExitProgram();

void FormSplash_Form_Load();
void FormGTMain_Form_Load();
void FormGTMain_Form_Unload();

}  // namespace gloamtide
