#include "dialogs/sundial_options.h"

#include "forms/form_gt_main.h"
#include "forms/form_sundial_options.h"
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

void LeaveSundialOptions() {
    FormSundialOptions.Hide();
    FormGTMain.Show();
    host->SetFocus(FormGTMain.PictureSundial);
    RedrawMap();
}

}  // namespace

void ConnectSundialOptions() {
    FormGTMain.CommandSDOptions.Click = CommandSDOptions_Click;
    FormSundialOptions.OnLoad = FormSundialOptions_Form_Load;
    FormSundialOptions.CommandSDOptionsOK.Click = CommandSDOptionsOK_Click;
    FormSundialOptions.CommandSDOptionsCancel.Click = CommandSDOptionsCancel_Click;
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
    LeaveSundialOptions();
}

void CommandSDOptionsCancel_Click() {
    ShowFlags();
    LeaveSundialOptions();
}

}  // namespace gloamtide
