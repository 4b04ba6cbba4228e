// The calls of the MAC chapter that mean many entries at once. The deletes take dynamic entries
// only, unless the static bit (0x20) is set in their flags.
#include <functional>

#include "sdk/bcm/l2.h"
#include "standin/chapters/l2_select.h"

using namespace standin;

namespace {

// What of an entry a call names; it has to be there.
using Wanted = std::function<int(Switch &)>;

template <class Pick>
int delete_picked(const char *function, int unit, std::uint32_t flags, Pick &&pick,
                  const Wanted &check = {}) {
    return on_switch(function, unit, [&](Switch &chip) {
        if (check)
            if (const int status = check(chip); status != BCM_E_NONE) return status;
        erase_rows(chip, kL2Deleted, [&](const L2Row &row) {
            return (!row.is_static() || (flags & kL2Static) != 0) && pick(row.entry);
        });
        return int{BCM_E_NONE};
    });
}

Wanted vlan_is_there(bcm_vlan_t vid) {
    return [vid](Switch &chip) {
        return check_names(chip, {{Use::kMacVlan, object(ObjectKind::kVlan, vid)}});
    };
}

// A destination: a port of a module, or a gport.
Wanted port_is_there(bcm_module_t module, bcm_port_t port) {
    return [module, port](Switch &chip) {
        bcm_l2_addr_t entry{};
        entry.modid = module;
        entry.port = port;
        if (const int status = settle_destination(entry); status != BCM_E_NONE) return status;
        Names names = names_of(entry);
        names.erase(names.begin());  // its VLAN
        return check_names(chip, names);
    };
}

Wanted both(Wanted one, Wanted other) {
    return [one = std::move(one), other = std::move(other)](Switch &chip) {
        const int status = one(chip);
        return status != BCM_E_NONE ? status : other(chip);
    };
}

bool has_mac(const bcm_l2_addr_t &entry, const bcm_mac_t mac) {
    return mac != nullptr && l2_key(entry.mac, 0) == l2_key(mac, 0);
}

// A destination in the fields of an entry: a trunk if there is one, else a port of a module.
bcm_l2_addr_t destination(bcm_module_t module, bcm_port_t port, bcm_trunk_t trunk) {
    bcm_l2_addr_t entry{};
    entry.modid = module;
    entry.port = port;
    if (trunk >= 0) {
        entry.flags = kL2Trunk;
        entry.tgid = trunk;
    }
    return entry;
}

void point_at(bcm_l2_addr_t &entry, const bcm_l2_addr_t &target) {
    const std::uint32_t kinds = kL2BlackHole | kL2Trunk;
    entry.flags = (entry.flags & ~kinds) | (target.flags & kinds);
    entry.port = target.port;
    entry.modid = target.modid;
    entry.tgid = target.tgid;
}

int replace_matches(Switch &chip, L2Match match, bcm_l2_addr_t target) {
    if (int status = settle_destination(match.pattern); status != BCM_E_NONE) return status;
    if (int status = settle_destination(target); status != BCM_E_NONE) return status;
    Names destinations = names_of(target);
    destinations.erase(destinations.begin());  // the VLAN is each row's own
    if (int status = check_names(chip, destinations); status != BCM_E_NONE) return status;
    L2Table::Cursor cursor;
    while (L2Row *const row = chip.l2.table.next(cursor)) {
        if (!match(row->entry)) continue;
        bcm_l2_addr_t moved = row->entry;
        point_at(moved, target);
        note_l2(chip.events, row->entry, kL2Deleted);
        chip.references.unlink(mac_object(moved), names_of(row->entry));
        chip.references.link(mac_object(moved), names_of(moved));
        chip.l2.table.put(moved, kL2Capacity);
        note_l2(chip.events, moved, kL2Added);
    }
    return BCM_E_NONE;
}

int matched_walk(const char *function, int unit, std::uint32_t flags, const bcm_l2_addr_t *pattern,
                 const bcm_l2_addr_t *mask, bcm_l2_traverse_cb visit, void *user_data) {
    L2Match match{flags, {}, full_l2_mask()};
    if (pattern != nullptr) match.pattern = *pattern;
    if (mask != nullptr) match.mask = *mask;
    const bool needs_pattern = (flags & (kMatchMac | kMatchVlan | kMatchDestination)) != 0;
    const bool bad = visit == nullptr || (needs_pattern && pattern == nullptr) ||
                     settle_destination(match.pattern) != BCM_E_NONE;
    if (bad) return on_l2(function, unit, [](L2Chapter &) { return BCM_E_PARAM; });
    return walk_l2(function, unit, match,
                   [&](bcm_l2_addr_t &entry) { return visit(unit, &entry, user_data); });
}

}  // namespace

extern "C" {

int bcm_l2_addr_delete_by_mac(int unit, bcm_mac_t mac, uint32 flags) {
    return delete_picked(__func__, unit, flags,
                         [&](const bcm_l2_addr_t &entry) { return has_mac(entry, mac); });
}

int bcm_l2_addr_delete_by_mac_port(int unit, bcm_mac_t mac, bcm_module_t mod, bcm_port_t port,
                                   uint32 flags) {
    return delete_picked(
        __func__, unit, flags,
        [&](const bcm_l2_addr_t &entry) {
            return has_mac(entry, mac) && points_at(entry, mod, port);
        },
        port_is_there(mod, port));
}

int bcm_l2_addr_delete_by_vlan(int unit, bcm_vlan_t vid, uint32 flags) {
    return delete_picked(
        __func__, unit, flags, [&](const bcm_l2_addr_t &entry) { return entry.vid == vid; },
        vlan_is_there(vid));
}

int bcm_l2_addr_delete_by_port(int unit, bcm_module_t mod, bcm_port_t port, uint32 flags) {
    return delete_picked(
        __func__, unit, flags,
        [&](const bcm_l2_addr_t &entry) { return points_at(entry, mod, port); },
        port_is_there(mod, port));
}

int bcm_l2_addr_delete_by_vlan_port(int unit, bcm_vlan_t vid, bcm_module_t mod, bcm_port_t port,
                                    uint32 flags) {
    return delete_picked(
        __func__, unit, flags,
        [&](const bcm_l2_addr_t &entry) { return entry.vid == vid && points_at(entry, mod, port); },
        both(vlan_is_there(vid), port_is_there(mod, port)));
}

int bcm_l2_addr_delete_by_trunk(int unit, bcm_trunk_t tid, uint32 flags) {
    return delete_picked(
        __func__, unit, flags,
        [&](const bcm_l2_addr_t &entry) { return points_at(entry, 0, kTrunkGport.of(tid)); },
        port_is_there(0, kTrunkGport.of(tid)));
}

int bcm_l2_addr_delete_by_vlan_trunk(int unit, bcm_vlan_t vid, bcm_trunk_t tid, uint32 flags) {
    return delete_picked(
        __func__, unit, flags,
        [&](const bcm_l2_addr_t &entry) {
            return entry.vid == vid && points_at(entry, 0, kTrunkGport.of(tid));
        },
        both(vlan_is_there(vid), port_is_there(0, kTrunkGport.of(tid))));
}

// Each VLAN with the gport at the same place of the other array.
int bcm_l2_addr_delete_by_vlan_gport_multi(int unit, uint32 flags, int count, bcm_vlan_t *vid_arr,
                                           bcm_gport_t *gport_arr) {
    if (count < 0 || (count > 0 && (vid_arr == nullptr || gport_arr == nullptr)))
        return on_l2(__func__, unit, [](L2Chapter &) { return BCM_E_PARAM; });
    return delete_picked(__func__, unit, flags, [&](const bcm_l2_addr_t &entry) {
        for (int i = 0; i < count; ++i)
            if (entry.vid == vid_arr[i] && points_at(entry, 0, gport_arr[i])) return true;
        return false;
    });
}

// No two addresses share a place in this table.
int bcm_l2_conflict_get(int unit, bcm_l2_addr_t *addr, bcm_l2_addr_t *, int cf_max, int *cf_count) {
    return on_l2(__func__, unit, [&](L2Chapter &) {
        return addr == nullptr || cf_max < 0 ? BCM_E_PARAM : give(cf_count, 0);
    });
}

int bcm_l2_replace(int unit, uint32 flags, bcm_l2_addr_t *match_addr, bcm_module_t new_module,
                   bcm_port_t new_port, bcm_trunk_t new_trunk) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        return match_addr == nullptr
                   ? BCM_E_PARAM
                   : replace_matches(chip, {flags, *match_addr, full_l2_mask()},
                                     destination(new_module, new_port, new_trunk));
    });
}

int bcm_l2_matched_traverse(int unit, uint32 flags, bcm_l2_addr_t *match_addr,
                            bcm_l2_traverse_cb trav_fn, void *user_data) {
    return matched_walk(__func__, unit, flags, match_addr, nullptr, trav_fn, user_data);
}

int bcm_l2_match_masked_traverse(int unit, uint32 flags, bcm_l2_addr_t *match_addr,
                                 bcm_l2_addr_t *mask_addr, bcm_l2_traverse_cb trav_fn,
                                 void *user_data) {
    return matched_walk(__func__, unit, flags, match_addr, mask_addr, trav_fn, user_data);
}

int bcm_l2_replace_match(int unit, uint32 flags, bcm_l2_addr_t *match_addr,
                         bcm_l2_addr_t *mask_addr, bcm_l2_addr_t *replace_addr,
                         bcm_l2_addr_t *replace_mask_addr) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        if (match_addr == nullptr || replace_addr == nullptr) return BCM_E_PARAM;
        // Only the destination can be replaced: address and VLAN are the key of a row.
        if (replace_mask_addr != nullptr &&
            (l2_key(replace_mask_addr->mac, replace_mask_addr->vid) != 0)) {
            return BCM_E_UNAVAIL;
        }
        const L2Match match{flags, *match_addr, mask_addr != nullptr ? *mask_addr : full_l2_mask()};
        return replace_matches(chip, match, *replace_addr);
    });
}

}  // extern "C"
