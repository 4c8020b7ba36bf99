// Calendar dates and Julian dates: Julian calendar up to 1582 October 4, Gregorian from 1582 October 15.
#pragma once

namespace gloamtide {

// The Julian date of a calendar date.
//   Reads:  WorkYear to WorkSecond, WorkZoneHours, WorkDaylightHours
//   Sets:   WorkJD; January and February leave WorkYear and WorkMonth as months 13 and 14 of the year before
//   Good:   years -4000 to 4000; a day beyond its month's end runs on into the next
//   Source: Meeus, Astronomical Algorithms, chapter 7
void DateToJulian();

// The calendar date of a Julian date. Hours, minutes and seconds are cut off, never rounded, so that a date may come
// back one second lower than it went into DateToJulian.
//   Reads:  WorkJD, WorkZoneHours, WorkDaylightHours
//   Sets:   WorkYear to WorkSecond
void JulianToDate();

}  // namespace gloamtide
