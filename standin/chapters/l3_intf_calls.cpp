// The calls of the routing chapter on interfaces and egress objects.
#include <cstring>

#include "sdk/bcm/l3.h"
#include "standin/model/tables.h"

using namespace standin;

namespace {

constexpr Numbering<bcm_if_t> kInterfaces{"l3_intf", kL3Interfaces, kFirstInterface,
                                          kFirstInterface + static_cast<int>(kL3Interfaces) - 1};
constexpr Numbering<bcm_if_t> kEgresses{"l3_egress", kL3Egresses, kFirstEgress,
                                        kFirstEgress + static_cast<int>(kL3Egresses) - 1};

auto &egresses_of(Switch &chip) { return chip.l3.egresses; }

// Nothing of another chapter holds what is in this one, so each table goes before what it names.
int clear_tables(Switch &chip) {
    L3 &l3 = chip.l3;
    for (const auto &[key, host] : l3.hosts)
        chip.references.unlink(host_object(key), names_of(host));
    for (const auto &[key, route] : l3.routes)
        chip.references.unlink(route_object(key), names_of(route));
    erase_objects(chip, l3.multipaths, ObjectKind::kMultipath);
    erase_objects(chip, l3.egresses, ObjectKind::kEgress);
    erase_objects(chip, l3.interfaces, ObjectKind::kInterface);
    l3 = L3{};
    return BCM_E_NONE;
}

int clear_l3(const char *function, int unit) {
    return start_chapter(function, unit, "bcm_l3_", clear_tables);
}

bool same_mac(const bcm_mac_t one, const bcm_mac_t other) {
    return std::memcmp(one, other, sizeof(bcm_mac_t)) == 0;
}

// Fills the caller's structure with the first interface that `pick` names.
template <class Pick>
int find_interface(const char *function, int unit, bcm_l3_intf_t *intf, Pick &&pick) {
    return on_switch(function, unit, [&](Switch &chip) {
        if (intf == nullptr) return BCM_E_PARAM;
        for (const auto &[id, one] : chip.l3.interfaces)
            if (pick(one)) return give(intf, one);
        return int{BCM_E_NOT_FOUND};
    });
}

// The part of an egress object by which it is found.
bool same_egress(const bcm_l3_egress_t &one, const bcm_l3_egress_t &other) {
    return one.intf == other.intf && same_mac(one.mac_addr, other.mac_addr) &&
           one.vlan == other.vlan && one.module == other.module && one.port == other.port &&
           one.trunk == other.trunk && one.mpls_label == other.mpls_label;
}

int put_egress(Switch &chip, std::uint32_t flags, const bcm_l3_egress_t &egress, bcm_if_t *if_id) {
    auto &egresses = egresses_of(chip);
    int status = check_names(chip, names_of(egress));
    if (status != BCM_E_NONE) return status;
    if (if_id == nullptr) return BCM_E_PARAM;
    const bool given = (flags & kWithId) != 0;
    bcm_l3_egress_t *made = given && (flags & kReplace) != 0 ? find_in(egresses, *if_id) : nullptr;
    if (made == nullptr) made = new_entry(egresses, kEgresses, given, if_id, status);
    return made == nullptr ? status
                           : assign(chip, object(ObjectKind::kEgress, *if_id), *made, egress);
}

}  // namespace

extern "C" {

int bcm_l3_init(int unit) { return clear_l3(__func__, unit); }
int bcm_l3_cleanup(int unit) { return clear_l3(__func__, unit); }

int bcm_l3_info(int unit, bcm_l3_info_t *info) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        const L3 &l3 = chip.l3;
        bcm_l3_info_t made{};
        made.l3info_max_intf = static_cast<int>(kL3Interfaces);
        made.l3info_used_intf = static_cast<int>(l3.interfaces.size());
        made.l3info_max_host = static_cast<int>(kL3Hosts);
        made.l3info_used_host = static_cast<int>(l3.hosts.size());
        made.l3info_max_route = static_cast<int>(kL3Routes);
        made.l3info_used_route = static_cast<int>(l3.routes.size());
        made.l3info_max_nexthop = static_cast<int>(kL3Egresses);
        made.l3info_used_nexthop = static_cast<int>(l3.egresses.size());
        made.l3info_max_ecmp_groups = static_cast<int>(kL3Multipaths);
        made.l3info_max_ecmp = l3.max_ecmp;
        return give(info, made);
    });
}

// An address and a VLAN have one interface, unless it is replaced.
int bcm_l3_intf_create(int unit, bcm_l3_intf_t *intf) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        if (intf == nullptr || !is_vlan(intf->l3a_vid)) return BCM_E_PARAM;
        int status = check_names(chip, names_of(*intf));
        if (status != BCM_E_NONE) return status;
        auto &interfaces = chip.l3.interfaces;
        const bool given = (intf->l3a_flags & kWithId) != 0;
        if (given && (intf->l3a_flags & kReplace) != 0) {
            if (auto *const one = find_in(interfaces, intf->l3a_intf_id))
                return assign(chip, object(ObjectKind::kInterface, intf->l3a_intf_id), *one, *intf);
        }
        for (const auto &[id, one] : interfaces)
            if (one.l3a_vid == intf->l3a_vid && same_mac(one.l3a_mac_addr, intf->l3a_mac_addr))
                return int{BCM_E_EXISTS};
        auto *const made = new_entry(interfaces, kInterfaces, given, &intf->l3a_intf_id, status);
        if (made == nullptr) return status;
        return assign(chip, object(ObjectKind::kInterface, intf->l3a_intf_id), *made, *intf);
    });
}

int bcm_l3_intf_get(int unit, bcm_l3_intf_t *intf) {
    return find_interface(__func__, unit, intf, [&](const bcm_l3_intf_t &one) {
        return one.l3a_intf_id == intf->l3a_intf_id;
    });
}

int bcm_l3_intf_find(int unit, bcm_l3_intf_t *intf) {
    return find_interface(__func__, unit, intf, [&](const bcm_l3_intf_t &one) {
        return one.l3a_vid == intf->l3a_vid && same_mac(one.l3a_mac_addr, intf->l3a_mac_addr);
    });
}

int bcm_l3_intf_find_vlan(int unit, bcm_l3_intf_t *intf) {
    return find_interface(__func__, unit, intf,
                          [&](const bcm_l3_intf_t &one) { return one.l3a_vid == intf->l3a_vid; });
}

int bcm_l3_intf_delete(int unit, bcm_l3_intf_t *intf) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        if (intf == nullptr) return BCM_E_PARAM;
        return erase_object(chip, chip.l3.interfaces, ObjectKind::kInterface, intf->l3a_intf_id);
    });
}

int bcm_l3_intf_delete_all(int unit) {
    return on_switch(__func__, unit, [](Switch &chip) {
        return erase_objects(chip, chip.l3.interfaces, ObjectKind::kInterface);
    });
}

int bcm_l3_egress_create(int unit, uint32 flags, bcm_l3_egress_t *egr, bcm_if_t *if_id) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        return egr == nullptr ? BCM_E_PARAM : put_egress(chip, flags, *egr, if_id);
    });
}

int bcm_l3_egress_get(int unit, bcm_if_t if_id, bcm_l3_egress_t *egr) {
    return on_entry(__func__, unit, egresses_of, if_id,
                    [&](const bcm_l3_egress_t &one) { return give(egr, one); });
}

int bcm_l3_egress_find(int unit, bcm_l3_egress_t *egr, bcm_if_t *if_id) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        if (egr == nullptr || if_id == nullptr) return BCM_E_PARAM;
        for (const auto &[id, one] : chip.l3.egresses)
            if (same_egress(one, *egr)) return give(if_id, id);
        return int{BCM_E_NOT_FOUND};
    });
}

int bcm_l3_egress_destroy(int unit, bcm_if_t if_id) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        return erase_object(chip, egresses_of(chip), ObjectKind::kEgress, if_id);
    });
}

int bcm_l3_egress_traverse(int unit, bcm_l3_egress_traverse_cb trav_fn, void *user_data) {
    if (trav_fn == nullptr) return refuse(__func__, unit);
    return walk(__func__, unit, egresses_of, [&](bcm_if_t id, bcm_l3_egress_t &one) {
        return trav_fn(unit, id, &one, user_data);
    });
}

}  // extern "C"
