#include "dialogs/animation_settings.h"

#include <array>
#include <cmath>

#include "forms/form_animation.h"
#include "forms/form_gt_main.h"
#include "forms/layout.h"
#include "forms/messages.h"
#include "map/day_night.h"
#include "state/number_pattern.h"
#include "state/numbers.h"
#include "state/state.h"
#include "storage/configuration.h"
#include "storage/files.h"

namespace gloamtide {
namespace {

struct StepText {
    TextBox& Box;
    double Limit;
    float& Setting;
    const char* Refusal;
};

std::array<StepText, 3> StepTexts() {
    AnimationForm& F = FormAnimation;
    return {{{F.TextStepYears, 100.0, state.AnimYears, "Year steps must be from -100 through +100: Please re-enter."},
             {F.TextStepDays, 365.0, state.AnimDays, "Day steps must be from -365 through +365: Please re-enter."},
             {F.TextStepHours, 24.0, state.AnimHours, "Hour steps must be from -24 through +24: Please re-enter."}}};
}

bool InRange(const std::string& Text, double Limit) {
    const double Value = LeadingNumber(Text);
    if (Value == 0.0) return Text.empty() || Text == "0";
    return Value >= -Limit && Value <= Limit;
}

// The three texts stand in the caption as they were typed. Steps that no dialog accepts come from a file made by hand.
void ShowAnimationInfo() {
    constexpr float Widest = 10000.0F;
    for (const StepText& Each : StepTexts()) {
        if (std::abs(Each.Setting) < Widest) continue;
        FormGTMain.LabelAnimInfo.Caption = "";
        return;
    }
    const AnimationForm& F = FormAnimation;
    FormGTMain.LabelAnimInfo.Caption = F.TextStepYears.Text.Get() + "y, " + F.TextStepDays.Text.Get() + "d, " +
                                       F.TextStepHours.Text.Get() +
                                       (state.AnimForward == True ? "h   Forward" : "h   Backward");
}

void KeepSettings() {
    try {
        SaveAnimationOptions();
    } catch (const FileFailure& Failure) {
        ShowAfterTwoBeeps(
            {"Save Error",
             std::string("Can't save the animation settings. They stay in force until the program ends. ") +
                 Failure.what(),
             MessageIcon::Exclamation});
    }
}

}  // namespace

void ConnectAnimationSettings() {
    FormGTMain.MenuAnimationSubOptions.Click = MenuAnimationSubOptions_Click;
    FormAnimation.OnLoad = FormAnimation_Form_Load;
    FormAnimation.CmdAnimOptionsOK.Click = CmdAnimOptionsOK_Click;
    FormAnimation.CmdAnimOptionsCancel.Click = CmdAnimOptionsCancel_Click;
}

void ShowAnimationSettings() {
    for (const StepText& Each : StepTexts()) Each.Box.Text = PlainNumber(Each.Setting);
    FormAnimation.OptionAnimOptionsFwdBack[state.AnimForward == True ? 0 : 1].Value = true;
    ShowAnimationInfo();
}

void FormAnimation_Form_Load() {
    PlaceOnForm(FormAnimation, FormAnimation.PictureAnimationOptions,
                {{620, 320}, {900, 500}, {1300, 800}, {1760, 1100}});
}

void MenuAnimationSubOptions_Click() { FormAnimation.Show(); }

void CmdAnimOptionsOK_Click() {
    for (const StepText& Each : StepTexts()) {
        if (InRange(Each.Box.Text, Each.Limit)) continue;
        ShowAfterTwoBeeps({"Input Out Of Range", Each.Refusal});
        host->SetFocus(Each.Box);
        return;
    }
    for (const StepText& Each : StepTexts()) Each.Setting = Single(LeadingNumber(Each.Box.Text.Get()));
    state.AnimForward = FormAnimation.OptionAnimOptionsFwdBack[0].Value ? True : False;
    ShowAnimationInfo();
    KeepSettings();
    FormAnimation.Hide();
}

void CmdAnimOptionsCancel_Click() {
    FormAnimation.Hide();
    RedrawMap();
}

}  // namespace gloamtide
