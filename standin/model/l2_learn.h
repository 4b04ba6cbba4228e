// Entries of the MAC table that come and go with all that hangs on them: references, watchers,
// learn limits.
#pragma once
#include "standin/model/l2_chapter.h"

namespace standin {

struct Switch;

// Adds an entry or moves it, and notes `event`. The destination has its settled form. BCM_E_PARAM,
// BCM_E_PORT, BCM_E_NOT_FOUND, BCM_E_FULL.
int put_l2_entry(Switch &chip, const bcm_l2_addr_t &entry, int event);

// A packet came from the station of a dynamic entry: it is learned, moves, or is heard again.
// BCM_E_DISABLED: the table is frozen, or a static entry stands. BCM_E_RESOURCE: a limit is
// reached. Else as above.
int learn_entry(Switch &chip, const bcm_l2_addr_t &entry);

}  // namespace standin
