// The almanac of the instant in force, for people and for programs.
#pragma once

#include <string>

namespace gloamtide {

// Each heading of the shown panel with the values that follow it, in UTF-8.
std::string AlmanacText();

// A JSON object on one line, or on many for people to read, as docs/almanac.schema.json describes it.
//   Reads:  all that a full recomputation sets; sets the work fields of the calendar
std::string AlmanacJson(bool OneLine);

}  // namespace gloamtide
