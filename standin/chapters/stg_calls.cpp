// The calls of the spanning tree group chapter.
#include "sdk/bcm/stg.h"
#include "standin/model/loans.h"
#include "standin/model/tables.h"

using namespace standin;

namespace {

constexpr Numbering<bcm_stg_t> kNumbers{"stg", kStgCapacity, kFirstStg, kLastStg};

int create(const char *function, int unit, bool given, bcm_stg_t *stg) {
    return on_switch(function, unit, [&](Switch &chip) {
        int status = BCM_E_NONE;
        new_entry(chip.vlans.stgs, kNumbers, given, stg, status);
        return status;
    });
}

// All groups but the default one; VLANs that lose their group go there.
int clear_groups(Switch &chip) {
    for (auto at = chip.vlans.stgs.begin(); at != chip.vlans.stgs.end();) {
        const bcm_stg_t stg = at++->first;
        if (stg == chip.vlans.default_stg) continue;
        chip.references.dissolve(chip, object(ObjectKind::kStg, stg));
        chip.vlans.stgs.erase(stg);
    }
    return BCM_E_NONE;
}

template <class Body>
int on_stg(const char *function, int unit, bcm_stg_t stg, Body &&body) {
    return on_switch(function, unit, [&](Switch &chip) {
        return chip.vlans.find_stg(stg) == nullptr ? missing(stg) : body(chip);
    });
}

// The VLANs of a group, ascending.
std::vector<bcm_vlan_t> vlans_in(const Switch &chip, bcm_stg_t stg) {
    std::vector<bcm_vlan_t> vids;
    chip.references.each_user(
        object(ObjectKind::kStg, stg), Use::kVlanStg,
        [&](const Object &vlan) { vids.push_back(static_cast<bcm_vlan_t>(vlan.number)); });
    return vids;
}

int move_vlan(Switch &chip, bcm_vlan_t vid, bcm_stg_t stg) {
    Vlan *const vlan = chip.vlans.find(vid);
    if (vlan == nullptr) return missing(vid);
    return change(chip, object(ObjectKind::kVlan, vid), *vlan,
                  [&](Vlan &one) { return give(&one.stg, stg); });
}

}  // namespace

extern "C" {

int bcm_stg_init(int unit) { return bcm_stg_clear(unit); }

// All groups but the default one.
int bcm_stg_clear(int unit) { return on_switch(__func__, unit, clear_groups); }

int bcm_stg_create(int unit, bcm_stg_t *stg_ptr) { return create(__func__, unit, false, stg_ptr); }

int bcm_stg_create_id(int unit, bcm_stg_t stg) { return create(__func__, unit, true, &stg); }

int bcm_stg_destroy(int unit, bcm_stg_t stg) {
    return on_stg(__func__, unit, stg, [&](Switch &chip) {
        if (stg == chip.vlans.default_stg)
            return refused(BCM_E_BADID, "group " + std::to_string(stg) + " is the default");
        chip.references.dissolve(chip, object(ObjectKind::kStg, stg));
        chip.vlans.stgs.erase(stg);
        return BCM_E_NONE;
    });
}

int bcm_stg_default_set(int unit, bcm_stg_t stg) {
    return on_stg(__func__, unit, stg,
                  [&](Switch &chip) { return give(&chip.vlans.default_stg, stg); });
}

int bcm_stg_default_get(int unit, bcm_stg_t *stg_ptr) {
    return on_switch(__func__, unit,
                     [&](Switch &chip) { return give(stg_ptr, chip.vlans.default_stg); });
}

int bcm_stg_count_get(int unit, int *max_stg) {
    return on_switch(__func__, unit,
                     [&](Switch &) { return give(max_stg, static_cast<int>(kStgCapacity)); });
}

int bcm_stg_list(int unit, bcm_stg_t **list, int *count) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        std::vector<bcm_stg_t> ids;
        for (const auto &[id, stg] : chip.vlans.stgs) ids.push_back(id);
        return give_list(ids, list, count);
    });
}

int bcm_stg_list_destroy(int unit, bcm_stg_t *list, int count) {
    return on_switch(__func__, unit, [&](Switch &) { return take_back(list, count); });
}

int bcm_stg_vlan_add(int unit, bcm_stg_t stg, bcm_vlan_t vid) {
    return on_stg(__func__, unit, stg, [&](Switch &chip) { return move_vlan(chip, vid, stg); });
}

int bcm_stg_vlan_remove(int unit, bcm_stg_t stg, bcm_vlan_t vid) {
    return on_stg(__func__, unit, stg, [&](Switch &chip) {
        const Vlan *const vlan = chip.vlans.find(vid);
        if (vlan == nullptr || vlan->stg != stg) return missing(vid);
        return move_vlan(chip, vid, chip.vlans.default_stg);
    });
}

int bcm_stg_vlan_remove_all(int unit, bcm_stg_t stg) {
    return on_stg(__func__, unit, stg, [&](Switch &chip) {
        for (const bcm_vlan_t vid : vlans_in(chip, stg))
            move_vlan(chip, vid, chip.vlans.default_stg);
        return BCM_E_NONE;
    });
}

int bcm_stg_vlan_list(int unit, bcm_stg_t stg, bcm_vlan_t **list, int *count) {
    return on_stg(__func__, unit, stg,
                  [&](Switch &chip) { return give_list(vlans_in(chip, stg), list, count); });
}

int bcm_stg_vlan_list_destroy(int unit, bcm_vlan_t *list, int count) {
    return on_switch(__func__, unit, [&](Switch &) { return take_back(list, count); });
}

int bcm_stg_stp_set(int unit, bcm_stg_t stg, bcm_port_t port, int stp_state) {
    return on_switch(__func__, unit,
                     [&](Switch &chip) { return set_stp(chip.vlans, stg, port, stp_state); });
}

int bcm_stg_stp_get(int unit, bcm_stg_t stg, bcm_port_t port, int *stp_state) {
    return on_switch(__func__, unit,
                     [&](Switch &chip) { return get_stp(chip.vlans, stg, port, stp_state); });
}

}  // extern "C"
