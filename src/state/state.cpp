#include "state/state.h"

namespace gloamtide {

SharedState::SharedState() = default;
SharedState::SharedState(const SharedState&) = default;
SharedState& SharedState::operator=(const SharedState&) = default;
SharedState::~SharedState() = default;

SharedState state;

}  // namespace gloamtide
