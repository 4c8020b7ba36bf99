// The commands of the File menu, but for Quit.
#pragma once

namespace gloamtide {

// Asks for a configuration file and shows what it holds. After a file that is none it says so and asks again; Cancel
// then leaves all as it was.
//   Sets:  what LoadConfiguration, SelectZoneRow and RecomputeAlmanac set; ConfigOpenPath, ConfigFilePath; starts
//   Timer1
void MenuFileSubOpen_Click();

// Saves to ConfigFilePath. Where that fails the user hears which path and why.
void MenuFileSubSave_Click();

// Asks for a name and saves under it. Where that fails it says so and asks again; Cancel leaves ConfigFilePath alone.
//   Sets:  ConfigFilePath, what SaveConfiguration sets
void MenuFileSubSaveAs_Click();

}  // namespace gloamtide
