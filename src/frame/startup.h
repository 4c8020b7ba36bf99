// The start of the program, from its first window to the first picture, and the ways out of it.
#pragma once

#include "platform/element.h"

namespace gloamtide {

// Joins the events of all windows with their handlers and opens the first window. The host must be set. Where the
// configuration comes from stands in state.StartupSource.
//   Errors: throws FileFailure where that is a named file that cannot be read or is no configuration
void StartProgram();

// Raised at the start when the configuration is read and nothing of it is shown yet: who starts the program may show
// something else than it says.
inline Event ConfigurationRead;

// Asks whether to save what no file holds yet, writes "Startup.dat", unloads every form, the last loaded first, and
// ends the process. What cannot be written leads to another Save dialog; Cancel there ends without saving.
//   Reads:  ConfigSaved
//   Sets:   ExitInProgress; what SaveConfiguration sets
void ExitProgram();

void FormSplash_Form_Load();
void FormGTMain_Form_Load();
void FormGTMain_Form_Unload();

}  // namespace gloamtide
