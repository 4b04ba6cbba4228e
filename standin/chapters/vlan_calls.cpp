// The calls of the VLAN chapter that are about VLANs and their members.
#include "sdk/bcm/vlan.h"
#include "standin/model/loans.h"
#include "standin/model/tables.h"

using namespace standin;

namespace {

// on_switch with the VLAN found.
template <class Body>
int on_vlan(const char *function, int unit, bcm_vlan_t vid, Body &&body) {
    return on_switch(function, unit, [&](Switch &chip) {
        if (!is_vlan(vid)) return BCM_E_PARAM;
        Vlan *const vlan = chip.vlans.find(vid);
        return vlan == nullptr ? BCM_E_NOT_FOUND : body(*vlan);
    });
}

std::vector<bcm_vlan_data_t> vlan_list(const Vlans &vlans, const bcm_pbmp_t *with) {
    std::vector<bcm_vlan_data_t> list;
    for (const auto &[vid, vlan] : vlans.vlans) {
        if (with != nullptr && !any_common(vlan.members, *with)) continue;
        list.push_back({vid, vlan.members, vlan.untagged});
    }
    return list;
}

// The members of a VLAN as gports: local ports in their order, then the others.
std::vector<std::pair<bcm_gport_t, int>> members_of(const Vlan &vlan) {
    std::vector<std::pair<bcm_gport_t, int>> members;
    for (int port = 0; port < kPorts; ++port) {
        if (!has_port(vlan.members, port)) continue;
        members.emplace_back(kLocalGport.of(port),
                             has_port(vlan.untagged, port) ? kVlanGportUntagged : 0);
    }
    members.insert(members.end(), vlan.gports.begin(), vlan.gports.end());
    return members;
}

}  // namespace

extern "C" {

int bcm_vlan_init(int unit) { return start_chapter(__func__, unit, "bcm_vlan_", &Switch::vlans); }

int bcm_vlan_create(int unit, bcm_vlan_t vid) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        Vlans &all = chip.vlans;
        if (!is_vlan(vid)) return BCM_E_PARAM;
        if (all.find(vid) != nullptr) return BCM_E_EXISTS;
        if (all.vlans.size() >= table_capacity("vlan", kVlanCapacity)) return BCM_E_FULL;
        all.vlans[vid].stg = all.default_stg;
        return BCM_E_NONE;
    });
}

int bcm_vlan_destroy(int unit, bcm_vlan_t vid) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        Vlans &all = chip.vlans;
        if (!is_vlan(vid)) return BCM_E_PARAM;
        if (vid == all.default_vlan) return BCM_E_BADID;
        return all.vlans.erase(vid) == 0 ? BCM_E_NOT_FOUND : BCM_E_NONE;
    });
}

// All but the default VLAN.
int bcm_vlan_destroy_all(int unit) {
    return on_switch(__func__, unit, [](Switch &chip) {
        Vlans &all = chip.vlans;
        std::erase_if(all.vlans, [&](const auto &one) { return one.first != all.default_vlan; });
        return BCM_E_NONE;
    });
}

int bcm_vlan_default_set(int unit, bcm_vlan_t vid) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        if (!is_vlan(vid)) return BCM_E_PARAM;
        if (chip.vlans.find(vid) == nullptr) return BCM_E_NOT_FOUND;
        chip.vlans.default_vlan = vid;
        return BCM_E_NONE;
    });
}

int bcm_vlan_default_get(int unit, bcm_vlan_t *vid_ptr) {
    return on_switch(__func__, unit,
                     [&](Switch &chip) { return give(vid_ptr, chip.vlans.default_vlan); });
}

// A port that is a member already becomes tagged or untagged as told.
int bcm_vlan_port_add(int unit, bcm_vlan_t vid, bcm_pbmp_t pbmp, bcm_pbmp_t ubmp) {
    return on_vlan(__func__, unit, vid, [&](Vlan &vlan) {
        if (!is_subset(pbmp, kAllPorts)) return BCM_E_PORT;
        if (!is_subset(ubmp, pbmp)) return BCM_E_PARAM;
        add_ports(vlan.members, pbmp);
        remove_ports(vlan.untagged, pbmp);
        add_ports(vlan.untagged, ubmp);
        return BCM_E_NONE;
    });
}

int bcm_vlan_port_remove(int unit, bcm_vlan_t vid, bcm_pbmp_t pbmp) {
    return on_vlan(__func__, unit, vid, [&](Vlan &vlan) {
        if (!is_subset(pbmp, kAllPorts)) return BCM_E_PORT;
        if (!any_common(pbmp, vlan.members)) return BCM_E_NOT_FOUND;
        remove_ports(vlan.members, pbmp);
        remove_ports(vlan.untagged, pbmp);
        return BCM_E_NONE;
    });
}

int bcm_vlan_port_get(int unit, bcm_vlan_t vid, bcm_pbmp_t *pbmp, bcm_pbmp_t *ubmp) {
    return on_vlan(__func__, unit, vid, [&](const Vlan &vlan) {
        if (pbmp == nullptr || ubmp == nullptr) return BCM_E_PARAM;
        *pbmp = vlan.members;
        *ubmp = vlan.untagged;
        return BCM_E_NONE;
    });
}

int bcm_vlan_list(int unit, bcm_vlan_data_t **listp, int *countp) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        return give_list(vlan_list(chip.vlans, nullptr), listp, countp);
    });
}

int bcm_vlan_list_by_pbmp(int unit, bcm_pbmp_t ports, bcm_vlan_data_t **listp, int *countp) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        return give_list(vlan_list(chip.vlans, &ports), listp, countp);
    });
}

int bcm_vlan_list_destroy(int unit, bcm_vlan_data_t *list, int count) {
    return on_switch(__func__, unit, [&](Switch &) { return take_back(list, count); });
}

int bcm_vlan_gport_add(int unit, bcm_vlan_t vlan, bcm_gport_t port, int flags) {
    return on_vlan(__func__, unit, vlan, [&](Vlan &one) {
        const int number = local_port(port);
        if (number >= 0) {
            add_port(one.members, number);
            (flags & kVlanGportUntagged) != 0 ? add_port(one.untagged, number)
                                              : remove_port(one.untagged, number);
            return BCM_E_NONE;
        }
        if (gport_type(port) <= kLocalGport.type) return BCM_E_PORT;
        one.gports[port] = flags;
        return BCM_E_NONE;
    });
}

int bcm_vlan_gport_delete(int unit, bcm_vlan_t vlan, bcm_gport_t port) {
    return on_vlan(__func__, unit, vlan, [&](Vlan &one) {
        const int number = local_port(port);
        if (number < 0) return one.gports.erase(port) == 0 ? BCM_E_NOT_FOUND : BCM_E_NONE;
        if (!has_port(one.members, number)) return BCM_E_NOT_FOUND;
        remove_port(one.members, number);
        remove_port(one.untagged, number);
        return BCM_E_NONE;
    });
}

int bcm_vlan_gport_delete_all(int unit, bcm_vlan_t vlan) {
    return on_vlan(__func__, unit, vlan, [](Vlan &one) {
        one.members = one.untagged = bcm_pbmp_t{};
        one.gports.clear();
        return BCM_E_NONE;
    });
}

int bcm_vlan_gport_get(int unit, bcm_vlan_t vlan, bcm_gport_t port, int *flags) {
    return on_vlan(__func__, unit, vlan, [&](const Vlan &one) {
        const int number = local_port(port);
        const bcm_gport_t wanted = number < 0 ? port : kLocalGport.of(number);
        for (const auto &[gport, its_flags] : members_of(one))
            if (gport == wanted) return give(flags, its_flags);
        return int{BCM_E_NOT_FOUND};
    });
}

int bcm_vlan_gport_get_all(int unit, bcm_vlan_t vlan, int array_max, bcm_gport_t *gport_array,
                           int *flags_array, int *array_size) {
    return on_vlan(__func__, unit, vlan, [&](const Vlan &one) {
        std::vector<bcm_gport_t> gports;
        std::vector<int> flags;
        for (const auto &[gport, its_flags] : members_of(one)) {
            gports.push_back(gport);
            flags.push_back(its_flags);
        }
        const int status = give_array(gports, array_max, gport_array, array_size);
        return status != BCM_E_NONE ? status
                                    : give_array(flags, array_max, flags_array, array_size);
    });
}

int bcm_vlan_stg_set(int unit, bcm_vlan_t vid, bcm_stg_t stg) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        Vlan *const vlan = chip.vlans.find(vid);
        if (vlan == nullptr || chip.vlans.find_stg(stg) == nullptr) return BCM_E_NOT_FOUND;
        vlan->stg = stg;
        return BCM_E_NONE;
    });
}

int bcm_vlan_stg_get(int unit, bcm_vlan_t vid, bcm_stg_t *stg_ptr) {
    return on_vlan(__func__, unit, vid, [&](const Vlan &vlan) { return give(stg_ptr, vlan.stg); });
}

// The state of the port in the group of the VLAN.
int bcm_vlan_stp_set(int unit, bcm_vlan_t vid, bcm_port_t port, int stp_state) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        Vlan *const vlan = chip.vlans.find(vid);
        if (vlan == nullptr) return BCM_E_NOT_FOUND;
        return set_stp(chip.vlans, vlan->stg, port, stp_state);
    });
}

int bcm_vlan_stp_get(int unit, bcm_vlan_t vid, bcm_port_t port, int *stp_state) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        Vlan *const vlan = chip.vlans.find(vid);
        if (vlan == nullptr) return BCM_E_NOT_FOUND;
        return get_stp(chip.vlans, vlan->stg, port, stp_state);
    });
}

}  // extern "C"
