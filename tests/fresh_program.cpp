#include "tests/fresh_program.h"

#include <memory>

namespace gloamtide {
namespace {

template <class T>
void Renew(T& Form) {
    std::destroy_at(&Form);
    std::construct_at(&Form);
}

}  // namespace

void RenewProgram() {
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
