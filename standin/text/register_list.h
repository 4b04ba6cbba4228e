// From a reference to registers to their addresses.
#pragma once

#include <vector>

#include "sdk/soc/reg_types.h"
#include "standin/text/identifier_text.h"

namespace standin {

// One record for each port and index of the reference, in that order. BCM_E_FULL for more than
// `limit` of them; BCM_E_NOT_FOUND where the unit has no such register, port or index.
int register_addresses(int unit, const RegisterRef &ref, std::size_t limit,
                       std::vector<soc_regaddrinfo_t> &list);

}  // namespace standin
