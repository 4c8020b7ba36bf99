#include "forms/messages.h"
#include "frame/startup.h"
#include "state/state.h"
#include "storage/configuration.h"
#include "storage/files.h"

namespace gloamtide {
namespace {

void UnloadAllForms() {
    while (!LoadedForms.empty()) LoadedForms.back()->Unload();
}

bool UserWantsToSave() {
    return ShowAfterTwoBeeps({"Save Configuration?", "Present Configuration not saved, do you wish to save it?",
                              MessageIcon::Question, MessageButtons::YesNo}) == MessageAnswer::Yes;
}

// Kept: whatever cannot be written, "Startup.dat" too, leads to the Save dialog, and Cancel there ends without either.
void KeepConfiguration() {
    bool Saving = state.ConfigSaved != True && UserWantsToSave();
    for (;;) {
        try {
            if (Saving) {
                const auto Path = host->ShowSaveDialog({ConfigurationFilter, ""});
                if (!Path) return;
                state.ConfigFilePath = *Path;
                SaveConfiguration();
            }
            WriteStartupFile();
            return;
        } catch (const FileFailure& Failure) {
            ShowAfterTwoBeeps({"Save File Error", std::string("Error - Invalid Filename.\n") + Failure.what(),
                               MessageIcon::Exclamation});
            Saving = true;
        }
    }
}

}  // namespace

void FormGTMain_Form_Unload() {
    UnloadAllForms();
    if (state.ExitInProgress == False) ExitProgram();
}

void ExitProgram() {
    KeepConfiguration();
    state.ExitInProgress = True;
    UnloadAllForms();
    host->EndProcess();
}

}  // namespace gloamtide
