// The program's texts in the user's language.
#pragma once

#include <string>
#include <vector>

namespace gloamtide {

// An English text as the host has it, itself where it has no other. The arguments stand where it says %1 to %9.
std::string Tr(const char* English, const std::vector<std::string>& Arguments = {});

}  // namespace gloamtide
