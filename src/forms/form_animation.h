// The window of the animation's settings: the step and its direction.
#pragma once

#include "platform/controls.h"
#include "platform/form.h"
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

extern AnimationForm FormAnimation;

}  // namespace gloamtide
