#include "forms/form_gt_main.h"

#include <string>

namespace gloamtide {

MainForm FormGTMain;

MainForm::MainForm() : Form("FormGTMain", 0.0, 0.0) {
    ScalePixels();
    PictureGTContainer.ScalePixels();
    PictureGTContainer.BackColor = RGB(0, 0, 0);
    PictureGTContainer.LowestRow = 24.0;  // of the date band, above the map
    PictureGT.ScalePixels();
    PictureGT.BackColor = RGB(0, 0, 0);
    PictureGT.BorderWidth = 2;
    PictureGT.Description = "World map";
    PictureGTContainer.Description = "World map and almanac";

    MenuFileSubOpen.Shortcut = "Ctrl+O";
    MenuFileSubSave.Shortcut = "Ctrl+S";
    MenuFileSubSaveAs.Shortcut = "Ctrl+Shift+S";
    MenuFileSubQuit.Shortcut = "Ctrl+Q";
    MenuConfigure.Shortcut = "Ctrl+,";
    MenuShowHideSubFullScreen.Shortcut = "F11";
    MenuAnimationSubNow.Shortcut = "Ctrl+N";
    MenuHelpSubContents.Shortcut = "F1";
    DesignPanels();
    DesignSundial();

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
    for (Label* Each : {&LabelMouseLong, &LabelMouseLat, &LabelAnimInfo}) Each->Width = 88.0;
    Timer4.Interval = 100;
}

void MainForm::DesignSundial() {
    PictureSundial.BackColor = RGB(255, 224, 192);
    PictureSundial.Visible = false;
    PictureSundial.Description = "Sundial";
    for (int Hour = 0; Hour < 24; ++Hour) {
        Label& Number = LabelHour[static_cast<std::size_t>(Hour)];
        Number.Caption = std::to_string(Hour % 12 == 0 ? 12 : Hour % 12);
        Number.FontName = "MS Serif";
        Number.FontSize = 6.0;
        Number.Visible = false;
    }
    LabelTwilightNight.Caption = "Twilight or Night";
    LabelTwilightNight.ForeColor = RGB(255, 255, 255);
    LabelTwilightNight.BackColor = RGB(0, 64, 0);
    LabelTwilightNight.Opaque = true;
    LabelTwilightNight.TextAlignment = Alignment::Center;
    LabelTwilightNight.FontName = "MS Serif";
    LabelTwilightNight.FontSize = 6.75;
    LabelTwilightNight.Size(1275.0, 195.0);
    LabelSundialMotto.Caption = "Carpe Diem";
    LabelSundialMotto.TextAlignment = Alignment::Center;
    LabelSundialMotto.WordWrap = true;
    LabelSundialMotto.FontName = "MS Serif";
    LabelSundialMotto.FontBold = true;
    LabelSundialMotto.FontItalic = true;
    CommandSDOptions.Caption = "Options";
    CommandSDOptions.FontName = "MS Serif";
    CommandSDOptions.FontSize = 6.75;
    CommandSDOptions.Size(690.0, 255.0);
}

}  // namespace gloamtide
