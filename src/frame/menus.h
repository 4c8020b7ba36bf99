// The commands of the menu bar that have no dialog of their own.
#pragma once

namespace gloamtide {

// Joins the items of the menus Show/Hide and Map, and the help, with their commands.
void ConnectMenus();

// Gives each Show/Hide item and map type item a check exactly where its flag says so, and the labels on the map their
// colour.
//   Reads:  the Show flags, MapType
void ShowChecks();

// The almanac is the program's own: it leaves ConfigSaved alone.
//   Sets:  AlmanacShown of the extras
void MenuShowHideSubAlmanac_Click();

// The map type commands only prepare the rebuild; Timer4 does it a tenth of a second later, so that the user sees
// LabelWorking meanwhile. The type in force is rebuilt again. Terrain stands in the natural map's place.
//   Sets:  MapType; TerrainShown of the extras
void MenuMapSubNatural_Click();
void MenuMapSubPolitical_Click();
void MenuMapSubTerrain_Click();

// Asks the host for the help file; where there is none nothing happens.
void MenuHelpSubContents_Click();

}  // namespace gloamtide
