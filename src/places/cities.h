// The 350 places that the program knows by name.
#pragma once

namespace gloamtide {

// Fills the city table of the shared state and the list of the Configure dialog.
//   Sets:  CityLongitude, CityLatitude, CityName, CityPeople (rows 1 to CityCount), CityCount
void BuildCityTable();

}  // namespace gloamtide
