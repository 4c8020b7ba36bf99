// Fresh ground for a test of the whole program.
#pragma once

#include <memory>

#include "clock/form_animation.h"
#include "frame/form_gt_main.h"
#include "frame/form_pictures.h"
#include "frame/small_dialogs.h"
#include "frame/state.h"
#include "places/form_configure.h"
#include "sundial/form_sundial_options.h"

namespace gloamtide {

template <class T>
void Renew(T& Form) {
    std::destroy_at(&Form);
    std::construct_at(&Form);
}

// Windows as they are designed, none of them loaded, and a state that nothing has happened to.
inline void RenewProgram() {
    LoadedForms.clear();
    Renew(FormPictures);
    Renew(FormGTMain);
    Renew(FormSplash);
    Renew(FormAbout);
    Renew(FormConfigure);
    Renew(FormAnimation);
    Renew(FormSundialOptions);
    state = SharedState{};
}

}  // namespace gloamtide
