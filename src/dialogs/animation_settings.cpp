#include "dialogs/animation_settings.h"

#include <array>

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

// The three texts stand in the caption as they were typed.
void ShowAnimationInfo() {
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

AnimationForm::AnimationForm() : Form("FormAnimation", 4365.0, 3765.0) {
    Caption = "Gloamtide - Configure Animation";
    PictureAnimationOptions.Description = "Animation settings";
    PictureAnimationOptions.BackColor = RGB(192, 192, 192);
    PictureAnimationOptions.Size(4365.0, 3765.0);
    LabelAnimSettings.Caption = "Animation Settings";
    LabelAnimSettings.FontBold = true;
    LabelAnimSettings.TextAlignment = Alignment::Center;
    LabelAnimSettings.Move(150.0, 120.0);
    LabelAnimSettings.Size(4065.0, 300.0);

    FrameAnimOptionsStepInc.Move(150.0, 480.0);
    FrameAnimOptionsStepInc.Size(4065.0, 1080.0);
    LabelStepYears.Caption = "Years";
    LabelStepDays.Caption = "Days";
    LabelStepHours.Caption = "Hours";
    double Column = 180.0;
    for (const auto& [Heading, Box] : {std::pair(&LabelStepYears, &TextStepYears),
                                       {&LabelStepDays, &TextStepDays},
                                       {&LabelStepHours, &TextStepHours}}) {
        Heading->Move(Column, 180.0);
        Box->Move(Column, 465.0);
        Box->Size(1125.0, 360.0);
        Column += 1290.0;
    }

    FrameAnimOptionsFwdBack.Move(150.0, 1680.0);
    FrameAnimOptionsFwdBack.Size(4065.0, 1110.0);
    OptionAnimOptionsFwdBack[0].Caption = "Move Forward In Time";
    OptionAnimOptionsFwdBack[1].Caption = "Move Backward In Time";
    double Row = 180.0;
    for (OptionButton& Each : OptionAnimOptionsFwdBack) {
        Each.Move(180.0, Row);
        Each.Size(3705.0, 330.0);
        Row += 420.0;
    }

    CmdAnimOptionsOK.Caption = "OK";
    CmdAnimOptionsOK.Default = true;
    CmdAnimOptionsOK.Move(840.0, 3075.0);
    CmdAnimOptionsOK.Size(1200.0, 390.0);
    CmdAnimOptionsCancel.Caption = "Cancel";
    CmdAnimOptionsCancel.Cancel = true;
    CmdAnimOptionsCancel.Move(2325.0, 3075.0);
    CmdAnimOptionsCancel.Size(1200.0, 390.0);
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
