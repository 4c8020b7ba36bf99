#include "frame/menus.h"

#include <array>

#include "forms/form_gt_main.h"
#include "forms/layout.h"
#include "map/day_night.h"
#include "platform/host.h"
#include "state/extras.h"
#include "state/state.h"
#include "storage/settings.h"

namespace gloamtide {
namespace {

struct ShowHideItem {
    Menu& Item;
    Boolean& Flag;
};

std::array<ShowHideItem, 7> ShowHideItems() {
    MainForm& F = FormGTMain;
    return {{{F.MenuShowHideSubSun, state.ShowSun},
             {F.MenuShowHideSubMoon, state.ShowMoon},
             {F.MenuShowHideSubAnalemma, state.ShowAnalemma},
             {F.MenuShowHideSubCities, state.ShowCities},
             {F.MenuShowHideSubMapGrid, state.ShowMapGrid},
             {F.MenuShowHideSubTimezones, state.ShowTimezones},
             {F.MenuShowHideSubSundial, state.ShowSundial}}};
}

// The program's own, which no configuration file holds.
std::array<ShowHideItem, 3> OwnItems() {
    MainForm& F = FormGTMain;
    return {{{F.MenuShowHideSubTwilight, extras.TwilightShown},
             {F.MenuShowHideSubTwilightLines, extras.TwilightLinesShown},
             {F.MenuShowHideSubCityNames, extras.CityNamesShown}}};
}

void ShowOrHide(const ShowHideItem& Command) {
    Command.Flag = Command.Flag == True ? False : True;
    Command.Item.Checked = Command.Flag == True;
    RedrawMap();
}

void CheckMapType() {
    MainForm& F = FormGTMain;
    F.MenuMapSubNatural.Checked = state.MapType == 0 && extras.TerrainShown == False;
    F.MenuMapSubTerrain.Checked = state.MapType == 0 && extras.TerrainShown == True;
    F.MenuMapSubPolitical.Checked = state.MapType == 1;
    for (Label* Each : {&F.LabelMouseLat, &F.LabelMouseLong, &F.LabelAnimInfo, &F.LabelAnimSteps, &F.LabelCity}) {
        Each->ForeColor = QBColor(14);
    }
}

void ChangeMapType(std::int16_t NewType, Boolean Terrain) {
    state.MapType = NewType;
    extras.TerrainShown = Terrain;
    SaveExtras();
    FormGTMain.LabelWorking.Visible = true;
    CheckMapType();
    FormGTMain.Timer4.Enabled = true;
}

}  // namespace

void ConnectMenus() {
    for (const ShowHideItem& Command : ShowHideItems()) {
        Command.Item.Click = [Command] {
            state.ConfigSaved = False;
            ShowOrHide(Command);
        };
    }
    for (const ShowHideItem& Command : OwnItems()) {
        Command.Item.Click = [Command] {
            ShowOrHide(Command);
            SaveExtras();
        };
    }
    FormGTMain.MenuShowHideSubAlmanac.Click = MenuShowHideSubAlmanac_Click;
    FormGTMain.MenuShowHideSubFullScreen.Click = [] { FormGTMain.FullScreen = !FormGTMain.FullScreen; };
    FormGTMain.FullScreenChanged = [] { FormGTMain.MenuShowHideSubFullScreen.Checked = FormGTMain.FullScreen; };
    FormGTMain.MenuMapSubNatural.Click = MenuMapSubNatural_Click;
    FormGTMain.MenuMapSubPolitical.Click = MenuMapSubPolitical_Click;
    FormGTMain.MenuMapSubTerrain.Click = MenuMapSubTerrain_Click;
    FormGTMain.MenuHelpSubContents.Click = MenuHelpSubContents_Click;
}

void ShowChecks() {
    for (const ShowHideItem& Command : ShowHideItems()) Command.Item.Checked = Command.Flag == True;
    for (const ShowHideItem& Command : OwnItems()) Command.Item.Checked = Command.Flag == True;
    FormGTMain.MenuShowHideSubAlmanac.Checked = extras.AlmanacShown == True;
    CheckMapType();
}

void MenuShowHideSubAlmanac_Click() {
    extras.AlmanacShown = extras.AlmanacShown == True ? False : True;
    FormGTMain.MenuShowHideSubAlmanac.Checked = extras.AlmanacShown == True;
    ShowAlmanac();
    SaveExtras();
}

void MenuMapSubNatural_Click() { ChangeMapType(0, False); }
void MenuMapSubPolitical_Click() { ChangeMapType(1, False); }
void MenuMapSubTerrain_Click() { ChangeMapType(0, True); }
void MenuHelpSubContents_Click() { host->ShowHelp("GT401.hlp"); }

}  // namespace gloamtide
