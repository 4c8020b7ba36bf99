// Fresh ground for a test of the whole program.
#pragma once

#include <memory>

#include "dialogs/animation_settings.h"
#include "dialogs/configure.h"
#include "dialogs/small_dialogs.h"
#include "dialogs/sundial_options.h"
#include "forms/form_gt_main.h"
#include "forms/form_pictures.h"
#include "state/state.h"

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
