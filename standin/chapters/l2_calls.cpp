// The calls of the MAC chapter that work on single entries, and its timers, limits and watchers.
#include <algorithm>
#include <cstring>

#include "sdk/bcm/l2.h"
#include "standin/chapters/hooks.h"
#include "standin/chapters/l2_select.h"
#include "standin/chapters/registration.h"
#include "standin/model/l2_learn.h"
#include "standin/model/tables.h"

using namespace standin;

namespace {

int put_entry(Switch &chip, bcm_l2_addr_t entry, int event) {
    if (const int status = settle_destination(entry); status != BCM_E_NONE) return status;
    return put_l2_entry(chip, entry, event);
}

int delete_entry(Switch &chip, const bcm_mac_t mac, bcm_vlan_t vid) {
    L2Row *const row = chip.l2.table.find(mac, vid);
    if (row == nullptr) return missing(vid);
    erase_row(chip, *row, kL2Deleted);
    return BCM_E_NONE;
}

int clear_all(Switch &chip) {
    erase_rows(chip, kL2Deleted, [](const L2Row &) { return true; });
    return BCM_E_NONE;
}

void clear_limits(Switch &chip) {
    for (const auto &[scope, limit] : chip.l2.limits)
        chip.references.unlink(limit_object(scope), names_of(scope));
    chip.l2.limits.clear();
}

// What a learn limit counts; a scope without a bit, or with two, is none.
bool scope_of(const bcm_l2_learn_limit_t &limit, L2Scope &scope) {
    scope.scope = limit.flags & (kLimitSystem | kLimitVlan | kLimitPort | kLimitTrunk);
    switch (scope.scope) {
        case kLimitSystem:
            scope.number = 0;
            return true;
        case kLimitVlan:
            scope.number = limit.vlan;
            return true;
        case kLimitPort:
            scope.number = local_port(limit.port) < 0 ? limit.port : local_port(limit.port);
            return true;
        case kLimitTrunk:
            scope.number = limit.trunk;
            return true;
        default:
            return false;
    }
}

// Why a packet does not come in through the port that it arrived on; null if it does.
const char *why_not_from(Switch &chip, const bcm_l2_addr_t &entry) {
    const int number = (entry.flags & (kL2Trunk | kL2BlackHole)) != 0 ? -1 : local_port(entry.port);
    if (number < 0 || entry.modid != 0) return nullptr;
    const Port &port = *chip.ports.find(number);
    const Vlan &vlan = *chip.vlans.find(entry.vid);
    const int stp = chip.vlans.find_stg(vlan.stg)->state[static_cast<std::size_t>(number)];
    if (port.enable == 0) return "the port is disabled";
    if (port.discard == BCM_PORT_DISCARD_ALL || port.discard == BCM_PORT_DISCARD_TAG ||
        port.discard == BCM_PORT_DISCARD_INGRESS)
        return "the port discards tagged packets";
    if (port.ifilter != 0 && !has_port(vlan.members, number))
        return "the port filters, and is no member of the VLAN";
    if (stp != BCM_STG_STP_LEARN && stp != BCM_STG_STP_FORWARD)
        return "the port neither learns nor forwards in the spanning tree";
    return port.learn == 0 ? "the port does not learn" : nullptr;
}

// What arrives on a member has come from its trunk.
void join_trunk(const Switch &chip, bcm_l2_addr_t &entry) {
    if ((entry.flags & (kL2Trunk | kL2BlackHole)) != 0 || entry.modid != 0) return;
    const int number = local_port(entry.port);
    const auto *const trunk =
        find_in(chip.groups.trunk_of, number < 0 ? entry.port : kLocalGport.of(number));
    if (trunk == nullptr) return;
    entry.flags |= kL2Trunk;
    entry.tgid = *trunk;
    entry.port = 0;
}

int learn(Switch &chip, const bcm_mac_t mac, bcm_vlan_t vid, int port) {
    bcm_l2_addr_t entry{};
    std::memcpy(entry.mac, mac, sizeof entry.mac);
    entry.vid = vid;
    entry.port = port;
    if (const int status = settle_destination(entry); status != BCM_E_NONE) return status;
    if (const int status = check_names(chip, names_of(entry)); status != BCM_E_NONE) return status;
    if (const char *const why = why_not_from(chip, entry); why != nullptr)
        return refused(BCM_E_DISABLED, why);
    join_trunk(chip, entry);
    return learn_entry(chip, entry);
}

template <class One>
int for_each_given(const bcm_l2_addr_t *entries, int count, One &&one) {
    if (count < 0 || (entries == nullptr && count > 0)) return BCM_E_PARAM;
    for (int i = 0; i < count; ++i)
        if (const int status = one(entries[i]); status != BCM_E_NONE) return status;
    return BCM_E_NONE;
}

}  // namespace

extern "C" {

void bcm_l2_addr_t_init(bcm_l2_addr_t *l2addr, bcm_mac_t mac_addr, bcm_vlan_t vid) {
    if (l2addr == nullptr) return;
    *l2addr = bcm_l2_addr_t{};
    if (mac_addr != nullptr) std::memcpy(l2addr->mac, mac_addr, sizeof l2addr->mac);
    l2addr->vid = vid;
}

int bcm_l2_init(int unit) {
    return on_switch(__func__, unit, [](Switch &chip) {
        return clear_chapter(chip, "bcm_l2_", [](Switch &one) {
            L2Chapter &l2 = one.l2;
            clear_all(one);
            clear_limits(one);
            l2.limits_enabled = true;
            l2.freezes = 0;
            l2.age_seconds = 0;
            return BCM_E_NONE;
        });
    });
}

int bcm_l2_clear(int unit) { return on_switch(__func__, unit, clear_all); }

int bcm_l2_detach(int unit) { return on_switch(__func__, unit, clear_all); }

int bcm_l2_addr_add(int unit, bcm_l2_addr_t *l2addr) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        return l2addr == nullptr ? BCM_E_PARAM : put_entry(chip, *l2addr, kL2Added);
    });
}

int bcm_l2_addr_multi_add(int unit, bcm_l2_addr_t *addr, int count) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        return for_each_given(addr, count, [&](const bcm_l2_addr_t &entry) {
            return put_entry(chip, entry, kL2Added);
        });
    });
}

int bcm_l2_addr_delete(int unit, bcm_mac_t mac, bcm_vlan_t vid) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        return mac == nullptr ? BCM_E_PARAM : delete_entry(chip, mac, vid);
    });
}

int bcm_l2_addr_multi_delete(int unit, bcm_l2_addr_t *addr, int count) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        return for_each_given(addr, count, [&](const bcm_l2_addr_t &entry) {
            return delete_entry(chip, entry.mac, entry.vid);
        });
    });
}

int bcm_l2_addr_get(int unit, bcm_mac_t mac_addr, bcm_vlan_t vid, bcm_l2_addr_t *l2addr) {
    return on_l2(__func__, unit, [&](L2Chapter &l2) {
        if (mac_addr == nullptr || l2addr == nullptr || !is_vlan(vid)) return BCM_E_PARAM;
        const L2Row *const row = l2.table.find(mac_addr, vid);
        return row == nullptr ? BCM_E_NOT_FOUND : give(l2addr, row->entry);
    });
}

int bcm_l2_traverse(int unit, bcm_l2_traverse_cb trav_fn, void *user_data) {
    if (trav_fn == nullptr) return on_l2(__func__, unit, [](L2Chapter &) { return BCM_E_PARAM; });
    return walk_l2(__func__, unit, {kMatchStatic, {}, {}},
                   [&](bcm_l2_addr_t &entry) { return trav_fn(unit, &entry, user_data); });
}

int bcm_l2_addr_freeze(int unit) {
    return on_l2(__func__, unit, [](L2Chapter &l2) {
        ++l2.freezes;
        return BCM_E_NONE;
    });
}

int bcm_l2_addr_thaw(int unit) {
    return on_l2(__func__, unit, [](L2Chapter &l2) {
        if (l2.freezes == 0) return BCM_E_PARAM;
        --l2.freezes;
        return BCM_E_NONE;
    });
}

int bcm_l2_age_timer_set(int unit, int age_seconds) {
    return on_l2(__func__, unit, [&](L2Chapter &l2) {
        if (age_seconds < 0) return BCM_E_PARAM;
        l2.age_seconds = age_seconds;
        return BCM_E_NONE;
    });
}

int bcm_l2_age_timer_get(int unit, int *age_seconds) {
    return on_l2(__func__, unit, [&](L2Chapter &l2) { return give(age_seconds, l2.age_seconds); });
}

int bcm_l2_addr_register(int unit, bcm_l2_addr_callback_t callback, void *userdata) {
    return add_handler(__func__, unit, Registration::kL2Address, callback, userdata);
}

int bcm_l2_addr_unregister(int unit, bcm_l2_addr_callback_t callback, void *userdata) {
    return remove_handler(__func__, unit, Registration::kL2Address, callback, userdata);
}

int bcm_l2_learn_limit_set(int unit, bcm_l2_learn_limit_t *limit) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        L2Scope scope;
        if (limit == nullptr || limit->limit < -1 || !scope_of(*limit, scope)) return BCM_E_PARAM;
        const Names names = names_of(scope);
        if (const int status = check_names(chip, names); status != BCM_E_NONE) return status;
        if (limit->limit < 0) {
            chip.l2.limits.erase(scope);
            chip.references.unlink(limit_object(scope), names);
        } else {
            chip.l2.limits[scope] = limit->limit;
            chip.references.link(limit_object(scope), names);
        }
        return BCM_E_NONE;
    });
}

int bcm_l2_learn_limit_get(int unit, bcm_l2_learn_limit_t *limit) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        L2Scope scope;
        if (limit == nullptr || !scope_of(*limit, scope)) return int{BCM_E_PARAM};
        const int status = check_names(chip, names_of(scope));
        if (status != BCM_E_NONE) return status;
        const int *const found = find_in(chip.l2.limits, scope);
        limit->limit = found == nullptr ? -1 : *found;
        return int{BCM_E_NONE};
    });
}

int bcm_l2_learn_limit_enable(int unit) {
    return on_l2(__func__, unit, [](L2Chapter &l2) {
        l2.limits_enabled = true;
        return BCM_E_NONE;
    });
}

int bcm_l2_learn_limit_disable(int unit) {
    return on_l2(__func__, unit, [](L2Chapter &l2) {
        l2.limits_enabled = false;
        return BCM_E_NONE;
    });
}

int standin_l2_learn(int unit, bcm_mac_t mac, bcm_vlan_t vid, int port) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        return mac == nullptr ? BCM_E_PARAM : learn(chip, mac, vid, port);
    });
}

}  // extern "C"
