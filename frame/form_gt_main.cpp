#include "frame/form_gt_main.h"

namespace gloamtide {

MainForm::MainForm() : Form("FormGTMain", 0.0, 0.0) {
    ScalePixels();
    PictureGTContainer.ScalePixels();
    PictureGTContainer.BackColor = RGB(0, 0, 0);
    PictureGT.ScalePixels();
    PictureGT.BackColor = RGB(0, 0, 0);
    PictureGT.BorderWidth = 2;

    DesignPanels();

    for (Label* Each : {&LabelEastOfIDLDate, &LabelWestOfIDLDate, &LabelZonehour}) {
        Each->ForeColor = RGB(255, 255, 128);
        Each->Size(96.0, 12.0);
    }
    LabelZonehour.Caption = "Standard Hour";
    CmdAnimStop.Caption = "Stop";
    CmdAnimStop.Size(48.0, 22.0);
    LabelAnimSteps.Caption = "Animation Steps:";
    LabelWorking.Caption = "Working...... Please wait";
    LabelWorking.Visible = false;
    LabelWorking.ForeColor = RGB(255, 255, 0);
    LabelWorking.TextAlignment = Alignment::Center;
    LabelWorking.Size(180.0, 20.0);
    LabelMouseLong.Caption = "Long";
    LabelMouseLat.Caption = "Lat";
    LabelCity.Caption = "City";
    for (Label* Each : {&LabelMouseLong, &LabelMouseLat, &LabelAnimSteps, &LabelAnimInfo}) Each->Width = 88.0;
    Timer4.Interval = 100;
}

}  // namespace gloamtide
