// The borders of the time zones and the International Date Line.
#pragma once

namespace gloamtide {

// Fills the tables of points, always with the same values.
//   Sets:  ZoneLinePoints (1139 rows from 1, 54 lines), DateLinePoints (18 rows from 1, 3 lines)
void LoadZoneLines();

// Draws both into the cached pictures that show zones, as far as they exist, in the map's unrotated position.
//   Sets:  ZoneLinePoints, DateLinePoints
void DrawTimeZoneLines();

}  // namespace gloamtide
