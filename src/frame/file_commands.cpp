#include "frame/file_commands.h"

#include "clock/clock.h"
#include "clock/recomputation.h"
#include "dialogs/animation_settings.h"
#include "forms/form_gt_main.h"
#include "forms/messages.h"
#include "frame/menus.h"
#include "map/day_night.h"
#include "map/stored_pictures.h"
#include "places/zones.h"
#include "state/state.h"
#include "storage/configuration.h"
#include "storage/files.h"

namespace gloamtide {
namespace {

void OpenConfiguration(const std::string& Path) {
    state.ConfigOpenPath = Path;
    LoadConfiguration();
    state.ConfigFilePath = state.ConfigOpenPath;
    SelectZoneRow();
    ShowChecks();
    if (state.MapType != state.MapTypeShown) ResetMapPictures();
    ShowAnimationSettings();
    ReadSystemClock();
    state.CurrentJD = state.OffsetDays + state.SystemJD;
    RecomputeAlmanac();
    RedrawMap();
    FormGTMain.Timer1.Enabled = true;
}

void SaveAndTell() {
    SaveConfiguration();
    if (StartupFileCanHold(state.ConfigFilePath)) return;
    ShowAfterTwoBeeps({"Saved, But Not For The Next Start",
                       "The configuration is saved, but the next start will not find it: " + state.ConfigFilePath +
                           "\n" + NoStartupPath,
                       MessageIcon::Exclamation});
}

}  // namespace

void MenuFileSubOpen_Click() {
    const SharedState Before = state;  // a file that is none may have been taken over in part
    while (const auto Path = host->ShowOpenDialog({ConfigurationFilter, ""})) {
        try {
            OpenConfiguration(*Path);
            return;
        } catch (const FileFailure&) {
            ShowAfterTwoBeeps({"File Invalid", "Designated file improperly formatted.", MessageIcon::Exclamation});
        }
    }
    state = Before;
}

void MenuFileSubSave_Click() {
    try {
        SaveAndTell();
    } catch (const FileFailure& Failure) {
        ShowAfterTwoBeeps(
            {"Save Error", std::string("Can't save the configuration. ") + Failure.what(), MessageIcon::Exclamation});
    }
}

void MenuFileSubSaveAs_Click() {
    const std::string PathBefore = state.ConfigFilePath;
    while (const auto Path = host->ShowSaveDialog({ConfigurationFilter, state.ConfigFilePath})) {
        try {
            state.ConfigFilePath = *Path;
            SaveAndTell();
            return;
        } catch (const FileFailure&) {
            ShowAfterTwoBeeps({"Save-As Error", "Error - can't save file.", MessageIcon::Exclamation});
        }
    }
    state.ConfigFilePath = PathBefore;
}

}  // namespace gloamtide
