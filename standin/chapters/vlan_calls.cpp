// The calls of the VLAN chapter that are about VLANs and their members.
#include "sdk/bcm/vlan.h"
#include "standin/chapters/l2_select.h"
#include "standin/model/loans.h"
#include "standin/model/tables.h"

using namespace standin;

namespace {

constexpr Numbering<bcm_vlan_t> kNumbers{"vlan", kVlanCapacity, kFirstVlan, kLastVlan};

int bad_vlan(bcm_vlan_t vid) {
    return refused(BCM_E_PARAM, "field vid is " + std::to_string(vid) + ", allowed is 1 to 4094");
}

// on_switch with the VLAN found.
template <class Body>
int on_vlan(const char *function, int unit, bcm_vlan_t vid, Body &&body) {
    return on_switch(function, unit, [&](Switch &chip) {
        if (!is_vlan(vid)) return bad_vlan(vid);
        Vlan *const vlan = chip.vlans.find(vid);
        return vlan == nullptr ? missing(vid) : body(*vlan);
    });
}

// The same for a change of the VLAN by `edit(copy)`.
template <class Edit>
int change_vlan(const char *function, int unit, bcm_vlan_t vid, Edit &&edit) {
    return on_switch(function, unit, [&](Switch &chip) {
        if (!is_vlan(vid)) return bad_vlan(vid);
        Vlan *const vlan = chip.vlans.find(vid);
        return vlan == nullptr ? missing(vid)
                               : change(chip, object(ObjectKind::kVlan, vid), *vlan, edit);
    });
}

// VLANs but the one that stays, and that as it was on the first day.
int clear_vlans(Switch &chip) {
    Vlans &all = chip.vlans;
    const bcm_vlan_t old_default = std::exchange(all.default_vlan, kFirstVlan);
    const int status = erase_objects(chip, all.vlans, ObjectKind::kVlan, kFirstVlan);
    if (status != BCM_E_NONE) {
        all.default_vlan = old_default;
        return status;
    }
    Vlan first = Vlans::first_vlan();
    first.stg = all.default_stg;
    return assign(chip, object(ObjectKind::kVlan, kFirstVlan), all.vlans[kFirstVlan], first);
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

int bcm_vlan_init(int unit) {
    return on_switch(__func__, unit,
                     [](Switch &chip) { return clear_chapter(chip, "bcm_vlan_", clear_vlans); });
}

int bcm_vlan_create(int unit, bcm_vlan_t vid) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        Vlans &all = chip.vlans;
        int status = BCM_E_NONE;
        if (!is_vlan(vid)) return bad_vlan(vid);
        Vlan made;
        made.stg = all.default_stg;
        Vlan *const slot = new_entry(all.vlans, kNumbers, true, &vid, status);
        return slot == nullptr ? status : assign(chip, object(ObjectKind::kVlan, vid), *slot, made);
    });
}

// MAC addresses in it go along; ports whose own VLAN it was go to the default one.
int bcm_vlan_destroy(int unit, bcm_vlan_t vid) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        Vlans &all = chip.vlans;
        if (!is_vlan(vid)) return bad_vlan(vid);
        if (vid == all.default_vlan)
            return refused(BCM_E_BADID, "VLAN " + std::to_string(vid) + " is the default");
        return erase_object(chip, all.vlans, ObjectKind::kVlan, vid);
    });
}

// All but the default VLAN.
int bcm_vlan_destroy_all(int unit) {
    return on_switch(__func__, unit, [](Switch &chip) {
        Vlans &all = chip.vlans;
        return erase_objects(chip, all.vlans, ObjectKind::kVlan, all.default_vlan);
    });
}

int bcm_vlan_default_set(int unit, bcm_vlan_t vid) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        if (!is_vlan(vid)) return bad_vlan(vid);
        if (chip.vlans.find(vid) == nullptr) return missing(vid);
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
        if (!is_subset(pbmp, kAllPorts)) return refused_ports(pbmp);
        if (!is_subset(ubmp, pbmp)) return BCM_E_PARAM;
        add_ports(vlan.members, pbmp);
        remove_ports(vlan.untagged, pbmp);
        add_ports(vlan.untagged, ubmp);
        return BCM_E_NONE;
    });
}

int bcm_vlan_port_remove(int unit, bcm_vlan_t vid, bcm_pbmp_t pbmp) {
    return on_vlan(__func__, unit, vid, [&](Vlan &vlan) {
        if (!is_subset(pbmp, kAllPorts)) return refused_ports(pbmp);
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
    return change_vlan(__func__, unit, vlan, [&](Vlan &one) {
        const int number = local_port(port);
        if (number >= 0) {
            add_port(one.members, number);
            (flags & kVlanGportUntagged) != 0 ? add_port(one.untagged, number)
                                              : remove_port(one.untagged, number);
            return BCM_E_NONE;
        }
        one.gports[port] = flags;
        return BCM_E_NONE;
    });
}

int bcm_vlan_gport_delete(int unit, bcm_vlan_t vlan, bcm_gport_t port) {
    return change_vlan(__func__, unit, vlan, [&](Vlan &one) {
        const int number = local_port(port);
        if (number < 0) return one.gports.erase(port) == 0 ? BCM_E_NOT_FOUND : BCM_E_NONE;
        if (!has_port(one.members, number)) return BCM_E_NOT_FOUND;
        remove_port(one.members, number);
        remove_port(one.untagged, number);
        return BCM_E_NONE;
    });
}

int bcm_vlan_gport_delete_all(int unit, bcm_vlan_t vlan) {
    return change_vlan(__func__, unit, vlan, [](Vlan &one) {
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
    return change_vlan(__func__, unit, vid, [&](Vlan &vlan) { return give(&vlan.stg, stg); });
}

int bcm_vlan_stg_get(int unit, bcm_vlan_t vid, bcm_stg_t *stg_ptr) {
    return on_vlan(__func__, unit, vid, [&](const Vlan &vlan) { return give(stg_ptr, vlan.stg); });
}

// The state of the port in the group of the VLAN.
int bcm_vlan_stp_set(int unit, bcm_vlan_t vid, bcm_port_t port, int stp_state) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        Vlan *const vlan = chip.vlans.find(vid);
        if (vlan == nullptr) return missing(vid);
        return set_stp(chip.vlans, vlan->stg, port, stp_state);
    });
}

int bcm_vlan_stp_get(int unit, bcm_vlan_t vid, bcm_port_t port, int *stp_state) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        Vlan *const vlan = chip.vlans.find(vid);
        if (vlan == nullptr) return missing(vid);
        return get_stp(chip.vlans, vlan->stg, port, stp_state);
    });
}

}  // extern "C"
