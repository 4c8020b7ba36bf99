// A film as its encoders see it: pictures of one size, one after the other.
#pragma once

#include <QImage>
#include <cstdint>
#include <functional>

#include "storage/long_file.h"

namespace gloamtide {

struct Film {
    std::int64_t Count = 0;                             // of pictures
    int Rate = 12;                                      // pictures a second
    std::function<QImage(std::int64_t Which)> Picture;  // ARGB32, opaque
    std::function<void(std::int64_t Done)> Tell;        // how many pictures are written
};

// Each writes the whole film, one picture after the other; none keeps more than a few.
//   Errors: throws FileFailure where the format does not take it or it cannot be written
void WriteWebP(const Film& Shown, LongFile& File);
void WriteGif(const Film& Shown, LongFile& File);
void WriteMp4(const Film& Shown, const LongFile& File);   // by ffmpeg
void WriteWebM(const Film& Shown, const LongFile& File);  // by ffmpeg

}  // namespace gloamtide
