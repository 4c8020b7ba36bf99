// The film of gloamtide-still.
#pragma once

#include "app/still_picture.h"

namespace gloamtide {

// Asks, where somebody can answer, whether a film of very many pictures is meant.
//   Errors: throws UsageError where it is not
void MakeSureOf(const FilmOptions& Film);

// Makes the film and puts it in its place.
//   Errors: throws FileFailure where it cannot be written, Interruption where its user does not want it any longer;
//           there is no part of it then
void MakeFilm(const StillOptions& Asked, StillPicture& Program);

}  // namespace gloamtide
