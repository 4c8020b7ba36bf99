#include "frame/startup.h"

#include <filesystem>

#include "clock/animation.h"
#include "clock/clock.h"
#include "clock/recomputation.h"
#include "dialogs/about_and_splash.h"
#include "dialogs/animation_settings.h"
#include "dialogs/configure.h"
#include "dialogs/place_on_map.h"
#include "dialogs/sundial_options.h"
#include "forms/form_animation.h"
#include "forms/form_configure.h"
#include "forms/form_gt_main.h"
#include "forms/form_splash.h"
#include "forms/layout.h"
#include "forms/messages.h"
#include "frame/file_commands.h"
#include "frame/menus.h"
#include "map/day_night.h"
#include "map/mouse_probe.h"
#include "map/stored_pictures.h"
#include "map/zone_lines.h"
#include "panel/information_panel.h"
#include "places/cities.h"
#include "places/zones.h"
#include "state/state.h"
#include "storage/configuration.h"
#include "storage/files.h"
#include "storage/settings.h"
#include "sundial/mottos.h"

namespace gloamtide {
namespace {

void ConnectHandlers() {
    FormSplash.OnLoad = FormSplash_Form_Load;
    FormGTMain.OnLoad = FormGTMain_Form_Load;
    FormGTMain.OnUnload = FormGTMain_Form_Unload;
    FormGTMain.MenuFileSubOpen.Click = MenuFileSubOpen_Click;
    FormGTMain.MenuFileSubSave.Click = MenuFileSubSave_Click;
    FormGTMain.MenuFileSubSaveAs.Click = MenuFileSubSaveAs_Click;
    FormGTMain.MenuFileSubQuit.Click = ExitProgram;
    FormGTMain.MenuQuit.Click = ExitProgram;
    for (PictureSurface* Each : {&FormGTMain.PictureGTContainer, &FormGTMain.PictureGT, &FormGTMain.PictureSundial}) {
        Each->DensityChanged = FollowDensity;
    }
    FormGTMain.PictureGT.MouseMove = FormGTMain_PictureGT_MouseMove;
    ConnectMenus();
    ConnectConfigure();
    ConnectPlaceOnMap();
    ConnectAnimation();
    ConnectAnimationSettings();
    ConnectSundialOptions();
    ConnectAbout();
    FormGTMain.Timer1.Tick = FormGTMain_Timer1_Timer;
    FormGTMain.Timer2.Tick = FormGTMain_Timer2_Timer;
    FormGTMain.Timer4.Tick = FormGTMain_Timer4_Timer;
}

void ReadStartupConfiguration() {
    if (state.StartupSource == ConfigurationSource::StartupFile) ReadStartupFile();
    state.ConfigOpenPath = state.ConfigFilePath;
    LoadConfiguration();
    state.ConfigSaved = True;
}

void FallBackToDefaults() {
    ShowAfterTwoBeeps({"File Not Found",
                       "Gloamtide Startup file (Startup.dat) or the configuration file it designates not found or "
                       "corrupted - default settings will be used.  Startup.dat must reside in the same directory as "
                       "the Gloamtide program.  You may proceed, changing the configuration as you prefer, and save "
                       "it.  On subsequent starts, Gloamtide will show the last-saved configuration.  For more, refer "
                       "to \"Startup File\" in the Help index."});
    SetDefaultConfiguration();
}

void FindConfiguration() {
    std::error_code Ignored;  // a current directory that was removed has no name
    state.AppDirectory = std::filesystem::current_path(Ignored).string();
    if (state.StartupSource == ConfigurationSource::Defaults) {
        SetDefaultConfiguration();
        return;
    }
    try {
        ReadStartupConfiguration();
    } catch (const FileFailure&) {
        if (state.StartupSource == ConfigurationSource::NamedFile) throw;
        FallBackToDefaults();
    }
}

void StartTimers() {
    FormGTMain.Timer1.Interval = 1000;
    FormGTMain.Timer1.Enabled = true;
    FormGTMain.Timer2.Interval = 60000;
    FormGTMain.Timer2.Enabled = true;
    FormGTMain.Timer3.Interval = 1000;
}

}  // namespace

void StartProgram() {
    ConnectHandlers();
    LoadExtras();
    FormSplash.Load();
}

void FormSplash_Form_Load() {
    PlaceSplash();
    FormSplash.Show();
    host->ProcessPendingEvents();
    FormGTMain.Load();
    FormGTMain.Show();
    FormSplash.Unload();
}

void FormGTMain_Form_Load() {
    // The configuration, and what the window shows of it.
    FindConfiguration();
    ConfigurationRead();
    ShowPathInTitle(state.ConfigFilePath);
    ShowChecks();
    FormAnimation.Load();
    ShowAnimationSettings();
    state.ExitInProgress = False;

    // The screen and its pictures.
    MeasureScreen();
    ResetMapPictures();
    LayOutMainWindow();
    FormGTMain.LabelMouseLat.Caption = "";
    FormGTMain.LabelMouseLong.Caption = "";
    FormGTMain.LabelCity.Caption = "";
    FormConfigure.Load();
    FormConfigure.FrameSetGTDate.Visible = false;
    FormGTMain.LabelAnimInfo.Visible = false;
    FormGTMain.LabelAnimSteps.Visible = false;
    FormGTMain.CmdAnimStop.Visible = false;

    // The tables.
    BuildZoneTable();
    FillConfigureLists();
    BuildCityTable();
    LoadMonthNames();
    LoadMoonNames();
    LoadMottos();
    ScaleMapPictures();
    LoadZoneLines();

    // The instant, all that follows from it, and the clock.
    ReadSystemClock();
    ChooseMotto();
    state.CurrentJD = state.SystemJD + state.OffsetDays;
    RecomputeAlmanac();
    RedrawMap();
    StartTimers();
}

}  // namespace gloamtide
