// The main window: the map, the almanac's panels under it, and the timers.
#pragma once

#include "frame/picture_surface.h"

namespace gloamtide {

struct MainForm : Form {
    MainForm();

    PictureSurface PictureGTContainer{*this, "PictureGTContainer"};
    PictureSurface PictureGT{PictureGTContainer, "PictureGT"};                           // the map
    ControlArray<PictureSurface, 4> PictureGTData{PictureGTContainer, "PictureGTData"};  // a panel for each ScreenClass

    // On the map.
    CommandButton CmdAnimStop{PictureGT, "CmdAnimStop"};
    Label LabelAnimSteps{PictureGT, "LabelAnimSteps"};
    Label LabelAnimInfo{PictureGT, "LabelAnimInfo"};
    Label LabelWorking{PictureGT, "LabelWorking"};
    Label LabelMouseLong{PictureGT, "LabelMouseLong"};
    Label LabelMouseLat{PictureGT, "LabelMouseLat"};
    Label LabelCity{PictureGT, "LabelCity"};

    Timer Timer1{*this, "Timer1"};  // the clock
    Timer Timer2{*this, "Timer2"};  // the map, once a minute
    Timer Timer3{*this, "Timer3"};  // the animation
    Timer Timer4{*this, "Timer4"};  // the rebuild after a change of map type
};

inline MainForm FormGTMain;

}  // namespace gloamtide
