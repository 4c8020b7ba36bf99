// Finding one's place on the map itself.
#pragma once

#include <vector>

#include "platform/picture_box.h"

namespace gloamtide {

// Joins the map's double click and its context menu with their handlers.
void ConnectPlaceOnMap();

// Opens the Configure dialog with the place: the nearest city within 8 pixels, else the point itself, named by its
// degrees and minutes. Nothing is taken over before OK.
//   X, Y: map units of the rotated map, so Y is the latitude
void FormGTMain_PictureGT_DoubleClick(float X, float Y);

// The same as a choice and, at a city, another that goes there at once; the instant that is shown stays.
std::vector<MenuChoice> FormGTMain_PictureGT_ContextMenu(float X, float Y);

}  // namespace gloamtide
