// What lies under the pointer.
#pragma once

namespace gloamtide {

// Shows latitude, longitude and, while cities are shown, the first city of the table within 0.4 degrees; over the mark
// of the Sun or the Moon, in a tool tip, where on the Earth it stands overhead.
//   X, Y: map units of the rotated map, so Y is the latitude
//   Sets: the captions of LabelMouseLat, LabelMouseLong and LabelCity; the tool tip of PictureGT
void FormGTMain_PictureGT_MouseMove(float X, float Y);

}  // namespace gloamtide
