#include "frame/form_gt_main.h"

namespace gloamtide {

MainForm::MainForm() : Form("FormGTMain", 0.0, 0.0) {
    ScalePixels();
    PictureGTContainer.ScalePixels();
    PictureGTContainer.BackColor = RGB(0, 0, 0);
    PictureGT.ScalePixels();
    PictureGT.BackColor = RGB(0, 0, 0);
    PictureGT.BorderWidth = 2;

    constexpr double PanelSizes[4][2] = {{8295, 1425}, {9615, 1830}, {10695, 2220}, {12975, 2940}};  // twips
    for (std::size_t Class = 0; Class < 4; ++Class) {
        PictureGTData[Class].BackColor = RGB(0, 0, 0);
        PictureGTData[Class].Visible = false;
        PictureGTData[Class].Size(PanelSizes[Class][0] / TwipsPerPixel, PanelSizes[Class][1] / TwipsPerPixel);
    }
    CmdAnimStop.Caption = "Stop";
    LabelAnimSteps.Caption = "Animation Steps:";
    LabelWorking.Caption = "Working...... Please wait";
    LabelWorking.Visible = false;
    LabelWorking.ForeColor = RGB(255, 255, 0);
    LabelMouseLong.Caption = "Long";
    LabelMouseLat.Caption = "Lat";
    LabelCity.Caption = "City";
    Timer4.Interval = 100;
}

}  // namespace gloamtide
