#include "forms/form_animation.h"

namespace gloamtide {

AnimationForm FormAnimation;

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

}  // namespace gloamtide
