// The configuration of a user who has none yet.
#pragma once

#include <string>

namespace gloamtide {

constexpr const char* FirstConfiguration = "home.gtf";

// Shows the present at the principal city of a time zone, with Sun, Moon and cities; the zone is the mask's, and
// daylight saving is on where the clock is an hour ahead of it. Where the city cannot be told the place stays the
// default one. Call it when the program has started.
//   Zone, Root:    as in places/principal_city.h
//   SecondsEast:   by which the clock is ahead of Greenwich now
//   Sets:          the configuration's fields
//   Gives whether the city was found
bool SetFirstConfiguration(const std::string& Zone, int SecondsEast, const std::string& Root = "");

// Writes it into the current folder, and the "Startup.dat" that names it. A file of its name that is there already
// stays as it is, and is named.
//   Errors: throws FileFailure where one of them cannot be written
void WriteFirstConfiguration();

}  // namespace gloamtide
