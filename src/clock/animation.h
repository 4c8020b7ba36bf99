// The ways through time: the animation, by which the shown instant jumps a fixed step once a second; steps by hand; and
// the way back to the present.
#pragma once

namespace gloamtide {

// Joins the animation's commands, its timer and the keys with their handlers.
void ConnectAnimation();

// Starts the animation in the direction that the settings dialog shows; the first step comes a second later.
//   Reads:  AnimYears, AnimDays, AnimHours, the dialog's option buttons
//   Sets:   AnimStepYears, AnimStepDays
void MenuAnimationSubStart_Click();

// Hands the instant back to the clock, which runs on from where the animation stands.
void MenuAnimationSubStop_Click();

// Leads back to the present: stops the animation, and the clock shows the system's time.
//   Sets:   OffsetDays (0), CurrentJD, SystemJD, ConfigSaved (False); all that a full recomputation sets
void MenuAnimationSubNow_Click();

// One step. Years are counted on the calendar: the local month, day, hour and minute stay. At the limits of the years
// the animation and the clock stop, with a message.
//   Reads:  AnimStepYears, AnimStepDays, SystemJD, the location and its clock
//   Sets:   CurrentJD, OffsetDays, SavedLocalSecond, SavedGreenwichSecond; all that a full recomputation sets
void FormGTMain_Timer3_Timer();

// One such step by a key: Left and Right an hour, with Shift a day, with Ctrl 30 days, Page Up and Down a year, each
// the first earlier, the second later. It leaves the animation's own step alone, and within the limits the clock runs.
void StepByHand(double Days, double Years);

}  // namespace gloamtide
