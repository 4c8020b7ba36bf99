// The Configure dialog: place, zone, daylight saving, date and time.
//
// The dialog works on its own controls; the state changes when OK is pressed. A place is picked by its city's name, or
// set in the lists of degrees and minutes; each change of them selects the zone of the place.
#pragma once

#include <cstddef>
#include <string>

namespace gloamtide {

// Joins the dialog's controls with their handlers, and the menu item that opens it.
void ConnectConfigure();

// Fills the lists that stay as they are: months, hours, minutes, degrees; and the days, for a month of 31.
void FillConfigureLists();

// Fills the list of degrees of latitude as far as the map reaches: 79 on the northern hemisphere, 69 on the southern.
void FillLatitudeDegrees();

// Opens the dialog with the place, the date and the time in force. Zone and the choice of the computer's date stay as
// they were when it last closed. What a list does not hold, which takes a configuration made by hand, comes up as the
// list's nearest entry.
//   Reads:  LocationName, LocationLat, LocationLong and their degrees and minutes, LocalYear to LocalMinute,
//           DaylightHours
//   Sets:   ConfigureArmed
void MenuConfigure_Click();

// What it does before it opens the dialog.
void ShowConfigurationInForce();

// Picks a city by its row in the table, 1 to CityCount, and its zone, whether its place was shown already or not.
void PickCity(std::size_t Row);

// Sets name, place and zone. A latitude beyond the map becomes the last one on it.
//   Latitude, Longitude: degrees, north and east positive; taken to the nearest minute
void PickPlace(const std::string& Name, double Latitude, double Longitude);

// Shows a place, degrees, north and east positive, in the lists of degrees and minutes. Where ConfigureArmed is True a
// change of them selects its zone.
void ShowPlaceInLists(float Latitude, float Longitude);

// The place and the zone that the dialog shows.
//   Sets:  LocationName, LocationLat, LocationLong; ZoneHours, ZoneText
void TakeListedPlace();
void TakeListedZone();

void FormConfigure_Form_Load();
void ComboCityName_Click();
void OptionSetLat_Click();
void OptionDateTime_Click();
void ComboSelDay_DropDown();

// Takes all over, brings almanac and map up to date and lets the clock run on from the chosen instant. A year out of
// range gets a message, and the dialog stays; name and place have been taken over by then.
//   Sets:  ConfigSaved, LocationName, LocationLat, LocationLong, LocalYear to LocalMinute, DaylightHours, ZoneHours,
//          ZoneText, CurrentJD, OffsetDays; the work fields but WorkSecond; all that a full recomputation sets
void CmdConfigureOK_Click();
void CmdConfigureCancel_Click();

}  // namespace gloamtide
