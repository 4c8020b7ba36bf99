// The 32 time zones, and the zone mask that tells which of them a point of the Earth lies in.
#pragma once

namespace gloamtide {

// Fills the zone table and the list of the Configure dialog, then selects the row in force.
//   Sets:  ZoneHoursTable, ZoneShortName; ComboSelTZ; what SelectZoneRow sets
void BuildZoneTable();

// Selects the row whose hours are exactly ZoneHours. Where there is none, which takes a configuration made by hand,
// the list shows the nearest row, and the text tells the offset itself.
//   Reads:  ZoneHours
//   Sets:   ComboSelTZ.ListIndex, ZoneText
void SelectZoneRow();

// Selects the zone of the place that the Configure dialog's lists show; a colour of the mask that is no zone's leaves
// the list alone. ZoneHours and ZoneText follow only when the dialog is accepted.
//   Sets:  MaskLongitude, MaskLatitude, MaskCode; ComboSelTZ.ListIndex
void ZoneFromLocation();

}  // namespace gloamtide
