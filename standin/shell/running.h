// The state of a unit as the commands that make it again.
//
// Each object has one spelling. Lines come in the order of the references, so that each names only
// what is there; what the first state of a chip has and this one lacks goes at the end. What no
// command makes is a comment: nothing is left out in silence.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "standin/model/state.h"
#include "standin/text/port_text.h"

namespace standin {

// `names` are those of the unit that reads the lines.
std::vector<std::string> running_lines(const SavedState &saved, const PortNames &names);

// Whether a field counts what happened, and is no setting: counters, clocks, what a scan found.
bool is_measured(std::string_view kind, std::string_view field);

}  // namespace standin
