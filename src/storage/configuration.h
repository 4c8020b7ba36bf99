// The configuration file: 21 records of 48 bytes, each with one value at its start, low byte first.
#pragma once

#include <string>

namespace gloamtide {

// For the file dialogs.
constexpr const char* ConfigurationFilter = "Gloamtide Files (*.gtf)|*.gtf|All Files (*.*)|*.*";

// Every field that the file holds gets its default, and ConfigFilePath the sentence that says there is no file.
//   Sets:  the configuration's fields, ConfigFilePath, ConfigSaved (False)
void SetDefaultConfiguration();

// Reads the file named by ConfigOpenPath and shows its name in the main window's title. A file may end after its
// location name: what later records would hold reads as 0.
//   Sets:   the configuration's fields; not ConfigSaved, not ConfigFilePath
//   Errors: throws FileFailure where the file cannot be read, ends before or within the location name, or gives the
//           name more than 46 bytes; what was read before that stays in the state
void LoadConfiguration();

// The bytes of a file with the configuration in force.
std::string ConfigurationBytes();

// Writes the file named by ConfigFilePath and shows its name in the main window's title. A location name is cut at 46
// bytes of Windows-1252, a character that it lacks becomes "?", and the user is told so.
// What the file holds beyond its records stays.
//   Reads:  the configuration's fields, ConfigFilePath
//   Sets:   ConfigSaved (True)
//   Errors: throws FileFailure where the file cannot be written, or is far too large for a configuration; nothing has
//           changed then
void SaveConfiguration();

// Writes the animation settings into the file named by ConfigFilePath, and makes it where there is none. All else in
// the file stays as it is, and so do title and ConfigSaved.
//   Reads:  AnimYears, AnimDays, AnimHours, AnimForward, ConfigFilePath
//   Errors: throws FileFailure where the file cannot be read or written, or is far too large for a configuration
void SaveAnimationOptions();

// Reads the path of the configuration to open at the start from "Startup.dat" in the current directory: a quoted text,
// or one that ends at the first comma or the end of the line.
//   Sets:   ConfigFilePath
//   Errors: throws FileFailure where there is no such file or it holds no text
void ReadStartupFile();

// Writes ConfigFilePath to "Startup.dat", in the directory that was current at the start: in quotes or, where it has a
// quotation mark in it, without.
//   Reads:  ConfigFilePath, AppDirectory
//   Errors: throws FileFailure where the file cannot be written or cannot hold the path; the old one is untouched then
void WriteStartupFile();

// Whether a path can be written so that the next start reads it back. A line break can't, nor can a quotation mark
// beside a comma or at the beginning.
bool StartupFileCanHold(const std::string& Path);
constexpr const char* NoStartupPath = "Startup.dat can't hold this path, for its quotation mark or line break.";

// "Gloamtide (Path)" in the main window's title bar.
void ShowPathInTitle(const std::string& Path);

}  // namespace gloamtide
