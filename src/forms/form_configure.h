// The Configure dialog's window.
#pragma once

#include "platform/combo_box.h"
#include "platform/controls.h"
#include "platform/form.h"
#include "surface/picture_surface.h"

namespace gloamtide {

struct ConfigureForm : Form {
    ConfigureForm();

    PictureSurface PictureConfigureGT{*this, "PictureConfigureGT"};

    Frame FrameSetLocation{PictureConfigureGT, "FrameSetLocation"};
    Label LabelSetLocation1{FrameSetLocation, "LabelSetLocation1"};
    Label LabelSetLocation2{FrameSetLocation, "LabelSetLocation2"};
    Label LabelLocationName{FrameSetLocation, "LabelLocationName"};
    ComboBox ComboCityName{FrameSetLocation, "ComboCityName", ComboStyle::DropDownCombo, true};
    Frame FrameSetLat{FrameSetLocation, "FrameSetLat"};
    Label LabelSetLatitude{FrameSetLat, "LabelSetLatitude"};
    ControlArray<OptionButton, 2> OptionSetLat{FrameSetLat, "OptionSetLat"};  // North, South
    Label LabelSetLatDegrees{FrameSetLat, "LabelSetLatDegrees"};
    ComboBox ComboSetLatDeg{FrameSetLat, "ComboSetLatDeg", ComboStyle::DropDownList};
    Label LabelSetLatMinutes{FrameSetLat, "LabelSetLatMinutes"};
    ComboBox ComboSetLatMin{FrameSetLat, "ComboSetLatMin", ComboStyle::DropDownList};
    Frame FrameSetLong{FrameSetLocation, "FrameSetLong"};
    Label LabelSetLongitude{FrameSetLong, "LabelSetLongitude"};
    ControlArray<OptionButton, 2> OptionSetLong{FrameSetLong, "OptionSetLong"};  // East, West
    Label LabelSetLongDegrees{FrameSetLong, "LabelSetLongDegrees"};
    ComboBox ComboSetLongDeg{FrameSetLong, "ComboSetLongDeg", ComboStyle::DropDownList};
    Label LabelSetLongMinutes{FrameSetLong, "LabelSetLongMinutes"};
    ComboBox ComboSetLongMin{FrameSetLong, "ComboSetLongMin", ComboStyle::DropDownList};

    Frame FrameSetGTDT{PictureConfigureGT, "FrameSetGTDT"};
    Label LabelChGTDate{FrameSetGTDT, "LabelChGTDate"};
    Frame FrameOptionSysNew{FrameSetGTDT, "FrameOptionSysNew"};
    ControlArray<OptionButton, 2> OptionDateTime{FrameOptionSysNew, "OptionDateTime"};  // the computer's, a new one
    Frame FrameOptionSDTDST{FrameSetGTDT, "FrameOptionSDTDST"};
    ControlArray<OptionButton, 2> OptionDaylightSavings{FrameOptionSDTDST, "OptionDaylightSavings"};  // off, on
    Frame FrameSetGTDate{FrameSetGTDT, "FrameSetGTDate"};
    Label LabelSelMonth{FrameSetGTDate, "LabelSelMonth"};
    ComboBox ComboSelMonth{FrameSetGTDate, "ComboSelMonth", ComboStyle::DropDownList};
    Label LabelSelDay{FrameSetGTDate, "LabelSelDay"};
    ComboBox ComboSelDay{FrameSetGTDate, "ComboSelDay", ComboStyle::DropDownList};
    Label LabelSelYear{FrameSetGTDate, "LabelSelYear"};
    TextBox TextSelYear{FrameSetGTDate, "TextSelYear"};
    Label LabelSelHour{FrameSetGTDate, "LabelSelHour"};
    ComboBox ComboSelHour{FrameSetGTDate, "ComboSelHour", ComboStyle::DropDownList};
    Label LabelSelMin{FrameSetGTDate, "LabelSelMin"};
    ComboBox ComboSelMinute{FrameSetGTDate, "ComboSelMinute", ComboStyle::DropDownList};

    Label LabelSelTimezone{PictureConfigureGT, "LabelSelTimezone"};
    ComboBox ComboSelTZ{PictureConfigureGT, "ComboSelTZ", ComboStyle::DropDownList};
    CommandButton CmdConfigureOK{PictureConfigureGT, "CmdConfigureOK"};
    CommandButton CmdConfigureCancel{PictureConfigureGT, "CmdConfigureCancel"};

private:
    void DesignLocation();
    void DesignDate();
};

extern ConfigureForm FormConfigure;

}  // namespace gloamtide
