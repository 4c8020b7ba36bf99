// Fresh ground for a test of the whole program, and its windows and state.
#pragma once

#include "forms/form_about.h"
#include "forms/form_animation.h"
#include "forms/form_configure.h"
#include "forms/form_gt_main.h"
#include "forms/form_pictures.h"
#include "forms/form_splash.h"
#include "forms/form_sundial_options.h"
#include "state/extras.h"
#include "state/state.h"

namespace gloamtide {

// Windows as they are designed, none of them loaded, and a state that nothing has happened to.
void RenewProgram();

}  // namespace gloamtide
