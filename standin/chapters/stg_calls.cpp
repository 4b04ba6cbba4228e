// The calls of the spanning tree group chapter.
#include "sdk/bcm/stg.h"
#include "standin/model/loans.h"
#include "standin/model/model.h"
#include "standin/model/switch.h"

using namespace standin;

namespace {

int create(Vlans &vlans, bcm_stg_t stg) {
    if (!within(stg, kFirstStg, kLastStg)) return BCM_E_PARAM;
    if (vlans.find_stg(stg) != nullptr) return BCM_E_EXISTS;
    if (vlans.stgs.size() >= table_capacity("stg", kStgCapacity)) return BCM_E_FULL;
    vlans.stgs[stg];
    return BCM_E_NONE;
}

// VLANs that lose their group go to the default group.
void leave(Vlans &vlans, bcm_stg_t stg) {
    for (auto &[vid, vlan] : vlans.vlans)
        if (vlan.stg == stg) vlan.stg = vlans.default_stg;
}

template <class Body>
int on_stg(const char *function, int unit, bcm_stg_t stg, Body &&body) {
    return on_switch(function, unit, [&](Switch &chip) {
        return chip.vlans.find_stg(stg) == nullptr ? BCM_E_NOT_FOUND : body(chip.vlans);
    });
}

}  // namespace

extern "C" {

int bcm_stg_init(int unit) { return bcm_stg_clear(unit); }

// All groups but the default one.
int bcm_stg_clear(int unit) {
    return on_switch(__func__, unit, [](Switch &chip) {
        Vlans &all = chip.vlans;
        std::erase_if(all.stgs, [&](const auto &one) { return one.first != all.default_stg; });
        for (auto &[vid, vlan] : all.vlans) vlan.stg = all.default_stg;
        return BCM_E_NONE;
    });
}

int bcm_stg_create(int unit, bcm_stg_t *stg_ptr) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        if (stg_ptr == nullptr) return BCM_E_PARAM;
        const bcm_stg_t stg = chip.vlans.free_stg();
        if (stg < 0) return BCM_E_FULL;
        const int status = create(chip.vlans, stg);
        if (status == BCM_E_NONE) *stg_ptr = stg;
        return status;
    });
}

int bcm_stg_create_id(int unit, bcm_stg_t stg) {
    return on_switch(__func__, unit, [&](Switch &chip) { return create(chip.vlans, stg); });
}

int bcm_stg_destroy(int unit, bcm_stg_t stg) {
    return on_stg(__func__, unit, stg, [&](Vlans &all) {
        if (stg == all.default_stg) return BCM_E_BADID;
        leave(all, stg);
        all.stgs.erase(stg);
        return BCM_E_NONE;
    });
}

int bcm_stg_default_set(int unit, bcm_stg_t stg) {
    return on_stg(__func__, unit, stg, [&](Vlans &all) {
        all.default_stg = stg;
        return BCM_E_NONE;
    });
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
    return on_stg(__func__, unit, stg, [&](Vlans &all) {
        Vlan *const vlan = all.find(vid);
        if (vlan == nullptr) return BCM_E_NOT_FOUND;
        vlan->stg = stg;
        return BCM_E_NONE;
    });
}

int bcm_stg_vlan_remove(int unit, bcm_stg_t stg, bcm_vlan_t vid) {
    return on_stg(__func__, unit, stg, [&](Vlans &all) {
        Vlan *const vlan = all.find(vid);
        if (vlan == nullptr || vlan->stg != stg) return BCM_E_NOT_FOUND;
        vlan->stg = all.default_stg;
        return BCM_E_NONE;
    });
}

int bcm_stg_vlan_remove_all(int unit, bcm_stg_t stg) {
    return on_stg(__func__, unit, stg, [&](Vlans &all) {
        leave(all, stg);
        return BCM_E_NONE;
    });
}

int bcm_stg_vlan_list(int unit, bcm_stg_t stg, bcm_vlan_t **list, int *count) {
    return on_stg(__func__, unit, stg, [&](Vlans &all) {
        std::vector<bcm_vlan_t> vids;
        for (const auto &[vid, vlan] : all.vlans)
            if (vlan.stg == stg) vids.push_back(vid);
        return give_list(vids, list, count);
    });
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
