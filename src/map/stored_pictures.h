// The five stored pictures and the cached maps made from them.
#pragma once

namespace gloamtide {

// Puts the stored pictures and the zone mask on their surfaces of FormPictures.
void FormPictures_Form_Load();

// Brings the cached pictures back to the plain map of the current type.
//   Reads:  MapType (0 natural, 1 political; with any other it does nothing)
//   Sets:   MapTypeShown; the ten work pictures of FormPictures
void ResetMapPictures();

// Makes the cached pictures anew, with their city marks and zone lines, after a change of the map type.
//   Reads:  MapType
void RebuildMapPictures();

// Draws the map anew at the density that FormGTMain.PictureGT was given. The dial and the container have densities of
// their own, to be set before. Does nothing before the first redraw.
void FollowDensity();

}  // namespace gloamtide
