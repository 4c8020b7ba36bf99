// The Configure dialog: place, zone, daylight saving, date and time.
#pragma once

#include "frame/picture_surface.h"

namespace gloamtide {

struct ConfigureForm : Form {
    ConfigureForm() : Form("FormConfigure", 9285.0, 6645.0) {}

    PictureSurface PictureConfigureGT{*this, "PictureConfigureGT"};

    Frame FrameSetGTDT{PictureConfigureGT, "FrameSetGTDT"};
    Frame FrameSetGTDate{FrameSetGTDT, "FrameSetGTDate"};

    Frame FrameSetLocation{PictureConfigureGT, "FrameSetLocation"};
    ComboBox ComboCityName{FrameSetLocation, "ComboCityName", ComboStyle::DropDownCombo, true};
    Frame FrameSetLat{FrameSetLocation, "FrameSetLat"};
    ControlArray<OptionButton, 2> OptionSetLat{FrameSetLat, "OptionSetLat"};  // North, South
    ComboBox ComboSetLatDeg{FrameSetLat, "ComboSetLatDeg", ComboStyle::DropDownList};
    ComboBox ComboSetLatMin{FrameSetLat, "ComboSetLatMin", ComboStyle::DropDownList};
    Frame FrameSetLong{FrameSetLocation, "FrameSetLong"};
    ControlArray<OptionButton, 2> OptionSetLong{FrameSetLong, "OptionSetLong"};  // East, West
    ComboBox ComboSetLongDeg{FrameSetLong, "ComboSetLongDeg", ComboStyle::DropDownList};
    ComboBox ComboSetLongMin{FrameSetLong, "ComboSetLongMin", ComboStyle::DropDownList};

    ComboBox ComboSelTZ{PictureConfigureGT, "ComboSelTZ", ComboStyle::DropDownList};
};

inline ConfigureForm FormConfigure;

}  // namespace gloamtide
