// What the program showed when somebody last looked at it and found it right, kept in tests/data/: it has to show the
// same again, to the pixel and to the letter.
//
// A difference leaves what is shown now, and for a picture where it differs, in the folder golden/ of the folder that
// the tests were started in. With GLOAMTIDE_TAKE_GOLDEN=1 in the environment the tests store what is shown now and are
// skipped.
#pragma once

#include <filesystem>
#include <string>

#include "platform/picture_box.h"

namespace gloamtide {

std::filesystem::path GoldenFile(const std::string& Name);  // in tests/data/
void ExpectGoldenText(const std::string& Name, const std::string& Actual);
void ExpectGoldenPicture(const std::string& Name, const Bitmap& Actual);

// A picture box as a user sees it, with the visible labels, buttons and picture boxes on it. Letters are the host's.
Bitmap Painted(const PictureBox& Box);

// Puts one picture on another, clipped.
void Lay(Bitmap& On, const Bitmap& Piece, int Left, int Top);

}  // namespace gloamtide
