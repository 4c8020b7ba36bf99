// The Configure dialog: place, zone, daylight saving, date and time.
//
// The dialog works on its own controls; the state changes when OK is pressed. A place is picked by its city's name, or
// set in the lists of degrees and minutes; each change of them selects the zone of the place.
#pragma once

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

inline ConfigureForm FormConfigure;

// Joins the dialog's controls with their handlers, and the menu item that opens it.
void ConnectConfigure();

// Fills a list anew with the numbers from First to Last, each after a blank.
void FillNumbers(ComboBox& List, int First, int Last);

// Fills the list of degrees of latitude as far as the map reaches: 79 on the northern hemisphere, 69 on the southern.
void FillLatitudeDegrees();

// Opens the dialog with the place, the date and the time in force. Zone and the choice of the computer's date stay as
// they were when it last closed. What a list does not hold, which takes a configuration made by hand, comes up as the
// list's nearest entry.
//   Reads:  LocationName, LocationLat, LocationLong and their degrees and minutes, LocalYear to LocalMinute,
//           DaylightHours
//   Sets:   ConfigureArmed
void MenuConfigure_Click();

void FormConfigure_Form_Load();
void ComboCityName_Click();
void OptionSetLat_Click();
void OptionDateTime_Click();
void ComboSelDay_DropDown();

// Takes all over, brings almanac and map up to date and lets the clock run on from the chosen instant. A year out of
// range gets a message, and the dialog stays; name and place have been taken over by then.
//   Sets:  ConfigSaved, LocationName, LocationLat, LocationLong, LocalYear to LocalMinute, DaylightHours, ZoneHours,
//          ZoneText, CurrentJD, OffsetDays; the work fields but WorkSecond; all that a full recomputation sets
void CmdConfigureOK_Click();
void CmdConfigureCancel_Click();

}  // namespace gloamtide
