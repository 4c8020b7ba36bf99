#include "platform/element.h"

namespace gloamtide {

void Element::PropertyAssigned(const void*, bool Differs) {
    if (Differs && Observer != nullptr) Observer->ElementChanged(*this);
}

}  // namespace gloamtide
