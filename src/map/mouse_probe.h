// What lies under the pointer.
#pragma once

namespace gloamtide {

// Shows latitude, longitude and, while cities are shown, the first city of the table within 0.4 degrees.
//   X, Y: map units of the rotated map, so Y is the latitude
//   Sets: the captions of LabelMouseLat, LabelMouseLong and LabelCity
void FormGTMain_PictureGT_MouseMove(float X, float Y);

}  // namespace gloamtide
