// What a picture of gloamtide-still shows: the program's main window, or the map on it, at an instant.
#pragma once

#include <QImage>

#include "app/still_host.h"

namespace gloamtide {

// The program on a desktop without a screen.
class StillPicture {
public:
    // Starts the program as the options ask.
    //   Errors: throws FileFailure where the configuration cannot be read, UsageError where the place is none
    explicit StillPicture(const StillOptions& TheAsked);

    // Goes to another instant, in the almanac, or in the map, too.
    void ShowAlmanac(const DateTime& Reading);
    void Show(const DateTime& Reading);

    QImage Picture();  // as it is shown now

private:
    QImage MapAlone();

    const StillOptions& Asked;
    StillHost Desktop;
};

}  // namespace gloamtide
