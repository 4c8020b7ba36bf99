// The almanac under the map.
#pragma once

namespace gloamtide {

// Writes the captions of the panel of the current screen class. A sunrise outside the day, or a sunset outside 0 to 24
// hours, leaves its label as it was. What is no number, or far out of any range, leaves its label blank.
//   Reads:  what SolarPosition, LunarPosition, SunriseSunset, UpdateDateFields and SeasonCountdown set; LocationName,
//           LocationLat, LocationLong, DaylightHours, ZoneText, OffsetDays, CurrentJD, ScreenClass
//   Sets:   LocationLatDegrees, LocationLatMinutes, LocationLongDegrees, LocationLongMinutes, MoonPhaseText; the
//           captions of the value labels
void UpdateInformationPanel();

// Fill the tables of names, indexed by month 1 to 12. The blank at the end of most entries belongs to it.
//   Sets:  MonthNames, MonthAbbreviations; MoonNames
void LoadMonthNames();
void LoadMoonNames();

}  // namespace gloamtide
