// What time and what date it is round the Earth.
#pragma once

namespace gloamtide {

// Prints the 24 standard hours across the map at 66 South, each on its meridian.
//   Reads:  GreenwichMinute, MapWidth, ScreenClass
//   Sets:   HourRulerHalfText
void DrawZoneHourRuler();

// Draws how far each of the two dates on the Earth reaches, in two rows above the map, and writes them at their left.
//   Reads:  GreenwichHour to GreenwichYear, CurrentJD, MapShift, MapWidth, ScreenClass, MonthAbbreviations
//   Sets:   the work fields of the calendar; the captions of LabelEastOfIDLDate and LabelWestOfIDLDate
void DrawDateBand();

}  // namespace gloamtide
