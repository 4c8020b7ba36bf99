// How the Configure dialog is laid out: the place on the left, date and time on the right, the zone under both.

#include "forms/form_configure.h"

namespace gloamtide {
namespace {

// Twips.
constexpr double Margin = 150.0;
constexpr double ColumnWidth = 4410.0;
constexpr double ColumnHeight = 4980.0;
constexpr double RightColumn = 4725.0;
constexpr double BoxLeft = 180.0;  // of the boxes within a column
constexpr double BoxWidth = ColumnWidth - 2.0 * BoxLeft;
constexpr double LineHeight = 360.0;

void PlaceBox(Control& Box, double Left, double Top, double Width, double Height) {
    Box.Move(Left, Top);
    Box.Size(Width, Height);
}

void PlaceTitle(Label& Title, const char* Caption, double Top) {
    Title.Caption = Caption;
    Title.TextAlignment = Alignment::Center;
    PlaceBox(Title, BoxLeft, Top, BoxWidth, 270.0);
}

// A heading, and the list or text box under it.
void PlaceField(Label& Heading, const char* Caption, Control& Field, double Left, double Top, double Width) {
    Heading.Caption = Caption;
    Heading.Move(Left, Top);
    PlaceBox(Field, Left, Top + 270.0, Width, LineHeight);
}

// Two options, one under the other.
void PlaceOptions(ControlArray<OptionButton, 2>& Options, const char* First, const char* Second, double Top,
                  double Width) {
    Options[0].Caption = First;
    Options[1].Caption = Second;
    PlaceBox(Options[0], 150.0, Top, Width, 330.0);
    PlaceBox(Options[1], 150.0, Top + 375.0, Width, 330.0);
}

struct CoordinateControls {
    Frame& Box;
    Label& Title;
    ControlArray<OptionButton, 2>& Halves;
    Label& DegreesHeading;
    ComboBox& Degrees;
    Label& MinutesHeading;
    ComboBox& Minutes;
};

void PlaceCoordinate(const CoordinateControls& C, const char* Caption, const char* First, const char* Second,
                     double Top) {
    PlaceBox(C.Box, BoxLeft, Top, BoxWidth, 1320.0);
    C.Title.Caption = Caption;
    C.Title.FontBold = true;
    C.Title.Move(150.0, 120.0);
    PlaceOptions(C.Halves, First, Second, 450.0, 1050.0);
    PlaceField(C.DegreesHeading, "Degrees", C.Degrees, 1500.0, 345.0, 1050.0);
    PlaceField(C.MinutesHeading, "Minutes", C.Minutes, 2775.0, 345.0, 1050.0);
}

}  // namespace

ConfigureForm FormConfigure;

ConfigureForm::ConfigureForm() : Form("FormConfigure", 9285.0, 6645.0) {
    Caption = "Gloamtide - Configure";
    PictureConfigureGT.Description = "Place, date and time";
    PictureConfigureGT.BackColor = RGB(128, 128, 128);
    PictureConfigureGT.Size(9285.0, 6645.0);
    DesignLocation();
    DesignDate();

    LabelSelTimezone.Caption = "Time Zone:";
    LabelSelTimezone.FontBold = true;
    LabelSelTimezone.ForeColor = RGB(255, 255, 255);
    LabelSelTimezone.Move(Margin, 5370.0);
    LabelSelTimezone.Height = 270.0;
    ComboSelTZ.FontSize = 7.5;  // so that its longest entry has room
    PlaceBox(ComboSelTZ, 1275.0, 5325.0, RightColumn + ColumnWidth - 1275.0, LineHeight);
    CmdConfigureOK.Caption = "OK";
    CmdConfigureOK.Default = true;
    PlaceBox(CmdConfigureOK, 3255.0, 5985.0, 1275.0, 420.0);
    CmdConfigureCancel.Caption = "Cancel";
    CmdConfigureCancel.Cancel = true;
    PlaceBox(CmdConfigureCancel, 4755.0, 5985.0, 1275.0, 420.0);
}

void ConfigureForm::DesignLocation() {
    PlaceBox(FrameSetLocation, Margin, Margin, ColumnWidth, ColumnHeight);
    PlaceTitle(LabelSetLocation1, "Set Gloamtide Location", 150.0);
    LabelSetLocation1.FontBold = true;
    PlaceTitle(LabelSetLocation2, "(Use drop-down list or enter your own)", 450.0);
    PlaceField(LabelLocationName, "Location Name", ComboCityName, BoxLeft, 1050.0, BoxWidth);
    PlaceCoordinate({FrameSetLat, LabelSetLatitude, OptionSetLat, LabelSetLatDegrees, ComboSetLatDeg,
                     LabelSetLatMinutes, ComboSetLatMin},
                    "Latitude", "North", "South", 1995.0);
    PlaceCoordinate({FrameSetLong, LabelSetLongitude, OptionSetLong, LabelSetLongDegrees, ComboSetLongDeg,
                     LabelSetLongMinutes, ComboSetLongMin},
                    "Longitude", "East", "West", 3480.0);
}

void ConfigureForm::DesignDate() {
    PlaceBox(FrameSetGTDT, RightColumn, Margin, ColumnWidth, ColumnHeight);
    PlaceTitle(LabelChGTDate, "Set Gloamtide Date and Time ", 150.0);
    LabelChGTDate.FontBold = true;
    PlaceBox(FrameOptionSysNew, BoxLeft, 540.0, BoxWidth, 1005.0);
    PlaceOptions(OptionDateTime, "Set to System Date/Time", "Set New Date/Time", 135.0, 3600.0);
    OptionDateTime[0].Value = true;
    PlaceBox(FrameOptionSDTDST, BoxLeft, 1725.0, BoxWidth, 1005.0);
    PlaceOptions(OptionDaylightSavings, "Standard Time", "Daylight Savings Time", 135.0, 3600.0);
    OptionDaylightSavings[0].Value = true;
    PlaceBox(FrameSetGTDate, BoxLeft, 2910.0, BoxWidth, 1890.0);
    PlaceField(LabelSelMonth, "Select Month", ComboSelMonth, 150.0, 150.0, 1500.0);
    PlaceField(LabelSelDay, "Select Day", ComboSelDay, 1755.0, 150.0, 900.0);
    PlaceField(LabelSelYear, "Select Year", TextSelYear, 2760.0, 150.0, 1140.0);
    PlaceField(LabelSelHour, "Select Hour", ComboSelHour, 150.0, 1005.0, 1500.0);
    PlaceField(LabelSelMin, "Select Minute", ComboSelMinute, 1755.0, 1005.0, 1500.0);
}

}  // namespace gloamtide
