// How often a call may have changed what rules match, in any switch. REQUIRES: the model's lock.
#pragma once
#include <cstdint>

namespace standin {

std::uint64_t rule_changes();
void note_rule_change();

}  // namespace standin
