// What a PHY says of itself.
#pragma once
#include "sdk/soc/phy_types.h"
#include "standin/phy/phy.h"

namespace standin {

// Fills the record of the PHY of `port`. The name is a new text of `new char[]`, but for a record
// that has that name already.
// REQUIRES: `info.phy_name` is null or a text.
void fill_info(const Phy &phy, int port, soc_phy_info_t &info);

}  // namespace standin
