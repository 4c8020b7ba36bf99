#include "forms/form_about.h"

namespace gloamtide {

AboutForm FormAbout;

AboutForm::AboutForm() : Form("FormAbout", 6810.0, 5220.0) {
    Caption = "About Gloamtide";
    FrameAbout.Size(4500.0, 2700.0);
    Image1.Description = "Gloamtide's icon";
    LabelAbout.Caption = "Gloamtide Version 4.01";
    LabelAbout.FontSize = 12.0;
    LabelAbout.TextAlignment = Alignment::Center;
    LabelAbout.Move(150.0, 1440.0);
    LabelAbout.Size(4200.0, 360.0);
    CmdAboutOK.Caption = "OK";
    CmdAboutOK.Default = true;
    CmdAboutOK.Cancel = true;
    CmdAboutOK.Move(1650.0, 2040.0);
    CmdAboutOK.Size(1200.0, 420.0);
}

}  // namespace gloamtide
