// The program's own settings, kept by the host between runs.
#pragma once

namespace gloamtide {

// What was never kept, or is nothing that was kept, has its default.
//   Sets:   extras
void LoadExtras();

//   Reads:  extras
void SaveExtras();

}  // namespace gloamtide
