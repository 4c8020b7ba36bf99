#include "dialogs/sundial_options.h"

#include "forms/form_gt_main.h"
#include "forms/layout.h"
#include "map/day_night.h"
#include "platform/host.h"
#include "state/state.h"

namespace gloamtide {
namespace {

struct Option {
    CheckBox& Box;
    Boolean& Flag;
};

std::array<Option, 3> Options() {
    SundialOptionsForm& F = FormSundialOptions;
    return {{{F.CheckSundialLongitudeCorrection, state.SundialLongitudeCorrection},
             {F.CheckSundialEOTCorrection, state.SundialEOTCorrection},
             {F.CheckSundialDSTCorrection, state.SundialDSTCorrection}}};
}

void ShowFlags() {
    for (const Option& Each : Options()) Each.Box.Value = Each.Flag == True ? 1 : 0;
}

void Leave() {
    FormSundialOptions.Hide();
    FormGTMain.Show();
    host->SetFocus(FormGTMain.PictureSundial);
    RedrawMap();
}

}  // namespace

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

void FormSundialOptions_Form_Load() {
    PlaceOnForm(FormSundialOptions, FormSundialOptions.PictureSundialOptions,
                {{760, 500}, {1080, 960}, {1500, 1200}, {2020, 1700}});
}

void CommandSDOptions_Click() {
    ShowFlags();
    FormSundialOptions.Show();
    FormGTMain.Hide();
}

void CommandSDOptionsOK_Click() {
    state.ConfigSaved = False;
    for (const Option& Each : Options()) Each.Flag = Each.Box.Value == 1 ? True : False;
    Leave();
}

void CommandSDOptionsCancel_Click() {
    ShowFlags();
    Leave();
}

}  // namespace gloamtide
