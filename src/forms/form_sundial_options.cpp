#include "forms/form_sundial_options.h"

namespace gloamtide {

SundialOptionsForm FormSundialOptions;

SundialOptionsForm::SundialOptionsForm() : Form("FormSundialOptions", 3885.0, 2325.0) {
    Caption = "Sundial Options";
    PictureSundialOptions.Description = "Sundial options";
    PictureSundialOptions.BackColor = RGB(192, 192, 192);
    PictureSundialOptions.Size(3885.0, 2700.0);
    LabelSundialOptions.Caption = "Set Sundial Options";
    LabelSundialOptions.FontBold = true;
    LabelSundialOptions.TextAlignment = Alignment::Center;
    LabelSundialOptions.Move(150.0, 120.0);
    LabelSundialOptions.Size(3585.0, 300.0);
    FrameSundialOptions.Move(150.0, 450.0);
    FrameSundialOptions.Size(3585.0, 1500.0);
    CheckSundialLongitudeCorrection.Caption = "Include Longitude Correction";
    CheckSundialEOTCorrection.Caption = "Include Equation of Time Correction";
    CheckSundialDSTCorrection.Caption = "Include Daylight Savings Correction";
    double Row = 180.0;
    for (CheckBox* Each : {&CheckSundialLongitudeCorrection, &CheckSundialEOTCorrection, &CheckSundialDSTCorrection}) {
        Each->Move(180.0, Row);
        Each->Size(3300.0, 330.0);
        Row += 405.0;
    }
    CommandSDOptionsOK.Caption = "OK";
    CommandSDOptionsOK.Default = true;
    CommandSDOptionsOK.Move(600.0, 2130.0);
    CommandSDOptionsOK.Size(1200.0, 390.0);
    CommandSDOptionsCancel.Caption = "Cancel";
    CommandSDOptionsCancel.Cancel = true;
    CommandSDOptionsCancel.Move(2085.0, 2130.0);
    CommandSDOptionsCancel.Size(1200.0, 390.0);
}

}  // namespace gloamtide
