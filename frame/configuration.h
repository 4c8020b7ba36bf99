// The configuration file: 21 records of 48 bytes, each with one value at its start, low byte first.
#pragma once

#include <string>

namespace gloamtide {

// Every field that the file holds gets its default, and ConfigFilePath the sentence that says there is no file.
//   Sets:  the configuration's fields, ConfigFilePath, ConfigSaved (False)
void SetDefaultConfiguration();

// Reads the file named by ConfigOpenPath and shows its name in the main window's title. A file may end after its
// location name: what later records would hold reads as 0.
//   Sets:   the configuration's fields; not ConfigSaved, not ConfigFilePath
//   Errors: throws FileFailure where the file cannot be read, ends before or within the location name, or gives the
//           name more than 46 bytes; what was read before that stays in the state
void LoadConfiguration();

// Reads the path of the configuration to open at the start from "Startup.dat" in the current directory: a quoted text,
// or one that ends at the first comma or the end of the line.
//   Sets:   ConfigFilePath
//   Errors: throws FileFailure where there is no such file or it holds no text
void ReadStartupFile();

// "Gloamtide (Path)" in the main window's title bar.
void ShowPathInTitle(const std::string& Path);

}  // namespace gloamtide
