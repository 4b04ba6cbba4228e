// Which rows of the MAC table a call means, and what it does to them.
#pragma once
#include <functional>

#include "standin/model/l2_chapter.h"
#include "standin/model/model.h"
#include "standin/model/switch.h"

namespace standin {

// Bits of the match flags of the replace and matched traverse calls: what of the pattern counts.
// None of the first three means every entry. Static entries are left out unless the last is set.
constexpr std::uint32_t kMatchMac = 0x1;
constexpr std::uint32_t kMatchVlan = 0x2;
constexpr std::uint32_t kMatchDestination = 0x4;
constexpr std::uint32_t kMatchStatic = 0x8;

// A pattern of entries. A set bit in `mask` is a bit that has to agree.
struct L2Match {
    std::uint32_t flags = 0;
    bcm_l2_addr_t pattern{};
    bcm_l2_addr_t mask{};

    bool operator()(const bcm_l2_addr_t &entry) const;
};

// A mask whose bits are all set.
bcm_l2_addr_t full_l2_mask();

// Whether `entry` points at this port, given as a local number, a number on another module, or a
// gport of either kind or of a trunk.
bool points_at(const bcm_l2_addr_t &entry, int modid, int port);

// Brings the destination of a caller's entry into one form: a gport in `port` becomes the local
// number, or the trunk and its flag. BCM_E_PARAM, BCM_E_PORT: it names no destination.
int settle_destination(bcm_l2_addr_t &entry);

// Takes a row out of the table and notes an event.
inline void erase_row(Switch &chip, L2Row &row, int event) {
    chip.references.unlink(mac_object(row.entry), names_of(row.entry));
    note_l2(chip.events, row.entry, event);
    chip.l2.table.erase(row);
}

// The same with the rows that `pick` names.
template <class Pick>
void erase_rows(Switch &chip, int event, Pick &&pick) {
    L2Table::Cursor cursor;
    while (L2Row *const row = chip.l2.table.next(cursor))
        if (pick(*row)) erase_row(chip, *row, event);
}

template <class Body>
int on_l2(const char *function, int unit, Body &&body) {
    return on_switch(function, unit, [&](Switch &chip) { return body(chip.l2); });
}

// Calls `visit` for a copy of each entry that `match` names, without the lock, so that it may
// change the table. A negative answer ends the walk and is its status.
int walk_l2(const char *function, int unit, const L2Match &match,
            const std::function<int(bcm_l2_addr_t &)> &visit);

}  // namespace standin
