// The button that leads back to the present.
#pragma once

namespace gloamtide {

// Shows the button while the shown instant is not the present, with a tool tip that tells by how much, such as "8 years
// 3 days in the past". Less than a second is none.
//   Reads:  OffsetDays, SystemJD, ZoneHours, DaylightHours
//   Sets:   FormGTMain.ButtonNow; the work fields of the calendar, but not WorkSecond
void ShowNowButton();

}  // namespace gloamtide
