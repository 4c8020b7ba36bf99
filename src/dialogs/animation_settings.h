// The dialog of the animation's settings: the step and its direction.
#pragma once

#include "surface/picture_surface.h"

namespace gloamtide {

struct AnimationForm : Form {
    AnimationForm();

    PictureSurface PictureAnimationOptions{*this, "PictureAnimationOptions"};
    Label LabelAnimSettings{PictureAnimationOptions, "LabelAnimSettings"};
    Frame FrameAnimOptionsStepInc{PictureAnimationOptions, "FrameAnimOptionsStepInc"};
    Label LabelStepYears{FrameAnimOptionsStepInc, "LabelStepYears"};
    TextBox TextStepYears{FrameAnimOptionsStepInc, "TextStepYears"};
    Label LabelStepDays{FrameAnimOptionsStepInc, "LabelStepDays"};
    TextBox TextStepDays{FrameAnimOptionsStepInc, "TextStepDays"};
    Label LabelStepHours{FrameAnimOptionsStepInc, "LabelStepHours"};
    TextBox TextStepHours{FrameAnimOptionsStepInc, "TextStepHours"};
    Frame FrameAnimOptionsFwdBack{PictureAnimationOptions, "FrameAnimOptionsFwdBack"};
    ControlArray<OptionButton, 2> OptionAnimOptionsFwdBack{FrameAnimOptionsFwdBack, "OptionAnimOptionsFwdBack"};
    CommandButton CmdAnimOptionsOK{PictureAnimationOptions, "CmdAnimOptionsOK"};
    CommandButton CmdAnimOptionsCancel{PictureAnimationOptions, "CmdAnimOptionsCancel"};
};

inline AnimationForm FormAnimation;

// Shows the settings in the dialog and in the label on the map.
//   Reads:  AnimYears, AnimDays, AnimHours, AnimForward
void ShowAnimationSettings();

void FormAnimation_Form_Load();
void MenuAnimationSubOptions_Click();

// Takes the settings over and keeps them in the configuration file at once; a text out of its range gets a message and
// nothing is taken over. A running animation goes on with its step.
//   Sets:  AnimYears, AnimDays, AnimHours, AnimForward
void CmdAnimOptionsOK_Click();
void CmdAnimOptionsCancel_Click();

}  // namespace gloamtide
