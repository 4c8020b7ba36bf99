// A line of text for the day.
#pragma once

namespace gloamtide {

// Fills the table; places 10, 20 and 36 stay empty.
//   Sets:  Mottos
void LoadMottos();

// Puts the motto of the day, which changes at 0h Greenwich, on the dial. It stands for the whole run.
//   Reads:  SystemJD, Mottos
void ChooseMotto();

}  // namespace gloamtide
