// The animation: once a second the shown instant jumps by a fixed step.
#pragma once

namespace gloamtide {

// Joins the animation's commands and its timer with their handlers.
void ConnectAnimation();

// Starts the animation in the direction that the settings dialog shows; the first step comes a second later.
//   Reads:  AnimYears, AnimDays, AnimHours, the dialog's option buttons
//   Sets:   AnimStepYears, AnimStepDays
void MenuAnimationSubStart_Click();

// Hands the instant back to the clock, which runs on from where the animation stands.
void MenuAnimationSubStop_Click();

// One step. Years are counted on the calendar: the local month, day, hour and minute stay. At the limits of the years
// the animation and the clock stop, with a message.
//   Reads:  AnimStepYears, AnimStepDays, SystemJD, the location and its clock
//   Sets:   CurrentJD, OffsetDays, SavedLocalSecond, SavedGreenwichSecond; all that a full recomputation sets
void FormGTMain_Timer3_Timer();

}  // namespace gloamtide
