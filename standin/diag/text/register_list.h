// From a reference to registers to their addresses.
#pragma once

#include <vector>

#include "sdk/soc/reg_types.h"
#include "standin/diag/text/identifier_text.h"

namespace standin::diag {

// Records that a list made by soc_regaddrlist_alloc has room for; parse_symbolic_reference never
// fills in more.
inline constexpr std::size_t kRegisterListRoom = 64;

// One record for each port and index of the reference, in that order. BCM_E_FULL for more than
// `limit` of them; BCM_E_NOT_FOUND where the unit has no such register, port or index.
int register_addresses(int unit, const RegisterRef &ref, std::size_t limit,
                       std::vector<soc_regaddrinfo_t> &list);

}  // namespace standin::diag
