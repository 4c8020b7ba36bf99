// The instant that the program shows, and the timers of the main window.
#pragma once

namespace gloamtide {

// The range of dates: the instant stays above LowestJD and below HighestJD.
constexpr double LowestJD = 260057.5;    // -4000 January 1, 0h
constexpr double HighestJD = 3182395.5;  // 4001 January 1, 0h

// Reads the system clock, whole seconds.
//   Sets:  SystemTimeBuffer, SystemJD; the work fields of the calendar
void ReadSystemClock();

// Brings the local and the Greenwich date fields up to date.
//   Reads:  CurrentJD, ZoneHours, DaylightHours
//   Sets:   LocalYear to LocalSecond, GreenwichYear to GreenwichSecond; the work fields of the calendar
void UpdateDateFields();

// Tells the user that the year has left its range.
void ShowYearLimitMessage();

// Every second, every minute, and once after a change of the map type.
void FormGTMain_Timer1_Timer();
void FormGTMain_Timer2_Timer();
void FormGTMain_Timer4_Timer();

}  // namespace gloamtide
