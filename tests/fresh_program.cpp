#include "tests/fresh_program.h"

#include <memory>

namespace gloamtide {

void RenewProgram() {
    const auto Renew = [](auto&... Forms) { ((std::destroy_at(&Forms), std::construct_at(&Forms)), ...); };
    LoadedForms.clear();
    Renew(FormPictures, FormGTMain, FormSplash, FormAbout, FormConfigure, FormAnimation, FormSundialOptions);
    state = SharedState{};
    extras = Extras{};
}

}  // namespace gloamtide
