// The calls of the multicast chapter on groups and their plain members.
#include <algorithm>

#include "sdk/bcm/multicast.h"
#include "standin/model/loans.h"
#include "standin/model/named.h"
#include "standin/model/tables.h"

using namespace standin;

namespace {

using Members = std::vector<MulticastGroup::Member>;

// Groups that were made in one call: how many, by the first.
struct Runs {
    std::map<bcm_multicast_t, int> size;
};

void visit_state(const Runs &runs, StateVisitor &to) {
    for (const auto &[first, size] : runs.size) {
        to.object("multicast_run", std::to_string(first));
        to.number("size", size);
    }
}

constexpr Numbering<bcm_multicast_t> kNumbers{"multicast", kMulticastGroups, 1,
                                              static_cast<int>(kMulticastGroups)};

auto &groups_of(Switch &chip) { return chip.groups.multicast; }

template <class Body>
int on_members(const char *function, int unit, bcm_multicast_t group, Members MulticastGroup::*side,
               Body &&body) {
    return on_entry(function, unit, groups_of, group,
                    [&](const MulticastGroup &one) { return body(one.*side); });
}

// Changes the members of one side by `edit(list)`, which answers a status; refused whole.
template <class Edit>
int change_members(const char *function, int unit, bcm_multicast_t group,
                   Members MulticastGroup::*side, Edit &&edit) {
    return on_switch(function, unit, [&](Switch &chip) {
        MulticastGroup *const one = find_in(groups_of(chip), group);
        if (one == nullptr) return missing(group);
        return change(chip, object(ObjectKind::kMulticast, group), *one,
                      [&](MulticastGroup &made) { return edit(made.*side); });
    });
}

int add_member(Members &members, bcm_gport_t port, bcm_if_t encap_id) {
    const MulticastGroup::Member member{port, encap_id};
    if (std::ranges::find(members, member) != members.end()) return BCM_E_EXISTS;
    members.push_back(member);
    return BCM_E_NONE;
}

int delete_member(Members &members, bcm_gport_t port, bcm_if_t encap_id) {
    return std::erase(members, MulticastGroup::Member{port, encap_id}) == 0 ? BCM_E_NOT_FOUND
                                                                            : BCM_E_NONE;
}

int set_members(Members &members, int count, const bcm_gport_t *ports, const bcm_if_t *encaps) {
    if (count < 0 || (count > 0 && (ports == nullptr || encaps == nullptr))) return BCM_E_PARAM;
    Members made;
    for (int i = 0; i < count; ++i) {
        const int status = add_member(made, ports[i], encaps[i]);
        if (status != BCM_E_NONE) return status;
    }
    members.swap(made);
    return BCM_E_NONE;
}

int get_members(const Members &members, int max, bcm_gport_t *ports, bcm_if_t *encaps, int *count) {
    std::vector<bcm_gport_t> all_ports;
    std::vector<bcm_if_t> all_encaps;
    for (const auto &[port, encap] : members) {
        all_ports.push_back(port);
        all_encaps.push_back(encap);
    }
    const int status = give_array(all_ports, max, ports, count);
    return status != BCM_E_NONE ? status : give_array(all_encaps, max, encaps, count);
}

using ChangeOne = int(Members &, bcm_gport_t, bcm_if_t);

int change_each(Members &members, int count, const bcm_multicast_replication_t *list,
                ChangeOne *one) {
    if (count < 0 || (count > 0 && list == nullptr)) return BCM_E_PARAM;
    for (int i = 0; i < count; ++i) {
        const int status = one(members, list[i].port, list[i].encap1);
        if (status != BCM_E_NONE) return status;
    }
    return BCM_E_NONE;
}

int on_replications(const char *function, int unit, bcm_multicast_t group, int count,
                    const bcm_multicast_replication_t *list, ChangeOne *one) {
    return change_members(function, unit, group, &MulticastGroup::egress,
                          [&](Members &all) { return change_each(all, count, list, one); });
}

// A gport without its type.
constexpr int number_of(bcm_gport_t gport) { return gport & ((1 << kGportTypeShift) - 1); }

// on_switch where the group and the port are there.
template <class Body>
int encap(const char *function, int unit, bcm_multicast_t group, bcm_gport_t port, Body &&body) {
    return on_switch(function, unit, [&](Switch &chip) {
        if (!groups_of(chip).contains(group)) return missing(group);
        const int status = check_named(chip, kPortKind, "port", port);
        return status < 0 ? status : body(chip);
    });
}

int clear_groups(const char *function, int unit) {
    return start_chapter(function, unit, "bcm_multicast_", [](Switch &chip) {
        chip.layers.forget<Runs>();
        return erase_objects(chip, groups_of(chip), ObjectKind::kMulticast);
    });
}

}  // namespace

extern "C" {

int bcm_multicast_init(int unit) { return clear_groups(__func__, unit); }
int bcm_multicast_detach(int unit) { return clear_groups(__func__, unit); }

int bcm_multicast_create(int unit, uint32 flags, bcm_multicast_t *group) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        int status = BCM_E_NONE;
        const bool given = (flags & kWithId) != 0;
        MulticastGroup *const made = new_entry(groups_of(chip), kNumbers, given, group, status);
        if (made != nullptr) made->flags = flags & ~kWithId;
        return status;
    });
}

int bcm_multicast_destroy(int unit, bcm_multicast_t group) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        return erase_object(chip, groups_of(chip), ObjectKind::kMulticast, group);
    });
}

int bcm_multicast_group_get(int unit, bcm_multicast_t group, uint32 *flags) {
    return on_entry(__func__, unit, groups_of, group,
                    [&](const MulticastGroup &one) { return give(flags, one.flags); });
}

// BCM_E_EXISTS for a number in use.
int bcm_multicast_group_is_free(int unit, bcm_multicast_t group) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        if (!within(group, kNumbers.first, kNumbers.last)) return BCM_E_PARAM;
        return groups_of(chip).contains(group) ? BCM_E_EXISTS : BCM_E_NONE;
    });
}

int bcm_multicast_group_traverse(int unit, bcm_multicast_group_traverse_cb_t trav_fn, uint32 flags,
                                 void *user_data) {
    if (trav_fn == nullptr) return refuse(__func__, unit);
    return walk(__func__, unit, groups_of, [&](bcm_multicast_t group, const MulticastGroup &one) {
        if ((one.flags & flags) != flags) return 0;
        return trav_fn(unit, group, one.flags, user_data);
    });
}

// The calls of one side: `egress` and `ingress` have the same ones.
#define MEMBER_CALLS(side, add, remove, remove_all, setter, getter)                               \
    int add(int unit, bcm_multicast_t group, bcm_gport_t port, bcm_if_t encap_id) {               \
        return change_members(__func__, unit, group, &MulticastGroup::side,                       \
                              [&](Members &all) { return add_member(all, port, encap_id); });     \
    }                                                                                             \
    int remove(int unit, bcm_multicast_t group, bcm_gport_t port, bcm_if_t encap_id) {            \
        return change_members(__func__, unit, group, &MulticastGroup::side,                       \
                              [&](Members &all) { return delete_member(all, port, encap_id); });  \
    }                                                                                             \
    int remove_all(int unit, bcm_multicast_t group) {                                             \
        return change_members(__func__, unit, group, &MulticastGroup::side, [](Members &all) {    \
            all.clear();                                                                          \
            return BCM_E_NONE;                                                                    \
        });                                                                                       \
    }                                                                                             \
    int setter(int unit, bcm_multicast_t group, int port_count, bcm_gport_t *port_array,          \
               bcm_if_t *encap_id_array) {                                                        \
        return change_members(__func__, unit, group, &MulticastGroup::side, [&](Members &all) {   \
            return set_members(all, port_count, port_array, encap_id_array);                      \
        });                                                                                       \
    }                                                                                             \
    int getter(int unit, bcm_multicast_t group, int port_max, bcm_gport_t *port_array,            \
               bcm_if_t *encap_id_array, int *port_count) {                                       \
        return on_members(__func__, unit, group, &MulticastGroup::side, [&](const Members &all) { \
            return get_members(all, port_max, port_array, encap_id_array, port_count);            \
        });                                                                                       \
    }

MEMBER_CALLS(egress, bcm_multicast_egress_add, bcm_multicast_egress_delete,
             bcm_multicast_egress_delete_all, bcm_multicast_egress_set, bcm_multicast_egress_get)
MEMBER_CALLS(ingress, bcm_multicast_ingress_add, bcm_multicast_ingress_delete,
             bcm_multicast_ingress_delete_all, bcm_multicast_ingress_set, bcm_multicast_ingress_get)
#undef MEMBER_CALLS

// Replications are the egress members in another form; the second encapsulation is not kept.
int bcm_multicast_add(int unit, bcm_multicast_t group, uint32, int rep_count,
                      bcm_multicast_replication_t *rep_array) {
    return on_replications(__func__, unit, group, rep_count, rep_array, add_member);
}

int bcm_multicast_delete(int unit, bcm_multicast_t group, uint32, int rep_count,
                         bcm_multicast_replication_t *rep_array) {
    return on_replications(__func__, unit, group, rep_count, rep_array, delete_member);
}

int bcm_multicast_set(int unit, bcm_multicast_t group, uint32, int rep_count,
                      bcm_multicast_replication_t *rep_array) {
    return change_members(__func__, unit, group, &MulticastGroup::egress, [&](Members &all) {
        Members made;
        const int status = change_each(made, rep_count, rep_array, add_member);
        if (status == BCM_E_NONE) all.swap(made);
        return status;
    });
}

int bcm_multicast_get(int unit, bcm_multicast_t group, uint32, int rep_max,
                      bcm_multicast_replication_t *rep_array, int *rep_count) {
    return on_members(__func__, unit, group, &MulticastGroup::egress, [&](const Members &all) {
        std::vector<bcm_multicast_replication_t> list;
        for (const auto &[port, encap] : all) list.push_back({0, port, encap, 0});
        return give_array(list, rep_max, rep_array, rep_count);
    });
}

// The encapsulation of a member that leaves in a VLAN is the VLAN, of a routed one its interface,
// of one in a tunnel the number of its own port.
int bcm_multicast_l2_encap_get(int unit, bcm_multicast_t group, bcm_gport_t port, bcm_vlan_t vid,
                               bcm_if_t *encap_id) {
    return encap(__func__, unit, group, port,
                 [&](Switch &) { return is_vlan(vid) ? give(encap_id, vid) : BCM_E_PARAM; });
}

#define INTERFACE_ENCAP(name)                                                                  \
    int name(int unit, bcm_multicast_t group, bcm_gport_t port, bcm_if_t intf,                 \
             bcm_if_t *encap_id) {                                                             \
        return encap(__func__, unit, group, port,                                              \
                     [&](Switch &) { return intf > 0 ? give(encap_id, intf) : BCM_E_PARAM; }); \
    }
INTERFACE_ENCAP(bcm_multicast_l3_encap_get)
INTERFACE_ENCAP(bcm_multicast_trill_encap_get)
#undef INTERFACE_ENCAP

int bcm_multicast_egress_object_encap_get(int unit, bcm_multicast_t group, bcm_if_t intf,
                                          bcm_if_t *encap_id) {
    return encap(__func__, unit, group, kCpuPort, [&](Switch &chip) {
        if (!chip.l3.egresses.contains(intf)) return missing(intf);
        return give(encap_id, intf);
    });
}

#define PORT_ENCAP(name)                                                                 \
    int name(int unit, bcm_multicast_t group, bcm_gport_t port, bcm_gport_t member_port, \
             bcm_if_t *encap_id) {                                                       \
        return encap(__func__, unit, group, port, [&](Switch &chip) {                    \
            const int status = check_named(chip, kPortKind, "member_port", member_port); \
            return status < 0 ? status : give(encap_id, number_of(member_port));         \
        });                                                                              \
    }
PORT_ENCAP(bcm_multicast_extender_encap_get)
PORT_ENCAP(bcm_multicast_l2gre_encap_get)
PORT_ENCAP(bcm_multicast_mac_encap_get)
PORT_ENCAP(bcm_multicast_mim_encap_get)
PORT_ENCAP(bcm_multicast_niv_encap_get)
PORT_ENCAP(bcm_multicast_subport_encap_get)
PORT_ENCAP(bcm_multicast_vlan_encap_get)
PORT_ENCAP(bcm_multicast_vpls_encap_get)
PORT_ENCAP(bcm_multicast_vxlan_encap_get)
PORT_ENCAP(bcm_multicast_wlan_encap_get)
#undef PORT_ENCAP

// The longest run of free numbers, of which the first counts.
int bcm_multicast_group_free_range_get(int unit, uint32 flags, bcm_multicast_t *start,
                                       bcm_multicast_t *end) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        if (flags != 0 || start == nullptr || end == nullptr) return int{BCM_E_PARAM};
        int last = kNumbers.first - 1;
        int longest = 0;
        const auto run = [&](int next) {
            if (next - last - 1 > longest) {
                longest = next - last - 1;
                *start = last + 1;
                *end = next - 1;
            }
            last = next;
        };
        for (const auto &[group, one] : groups_of(chip)) run(group);
        run(kNumbers.last + 1);
        return longest > 0 ? int{BCM_E_NONE} : refused(BCM_E_FULL, "no group is free");
    });
}

// Groups with numbers that follow each other. They go one by one, or together by the first.
int bcm_multicast_multi_alloc(int unit, bcm_multicast_multi_info_t info,
                              bcm_multicast_t *base_group) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        auto &groups = groups_of(chip);
        const int count = info.number_of_elements;
        if (base_group == nullptr || count < 1) return int{BCM_E_PARAM};
        const bool given = (info.flags & kWithId) != 0;
        int first = given ? *base_group : kNumbers.first;
        if (given && !within(first, kNumbers.first, kNumbers.last)) return int{BCM_E_PARAM};
        for (int next = first; next < first + count; ++next) {
            if (next > kNumbers.last)
                return refused(BCM_E_FULL, "so many do not follow each other");
            if (!groups.contains(next)) continue;
            if (given) return refused(BCM_E_EXISTS, "group " + std::to_string(next) + " is there");
            first = next + 1;
        }
        if (groups.size() + static_cast<std::size_t>(count) >
            table_capacity(kNumbers.name, kNumbers.capacity))
            return refused(BCM_E_FULL, std::to_string(groups.size()) + " are there");
        for (int next = first; next < first + count; ++next)
            groups[next].flags = info.flags & ~kWithId;
        chip.layers.of<Runs>().size[first] = count;
        return give(base_group, first);
    });
}

int bcm_multicast_multi_free(int unit, bcm_multicast_t group) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        auto &groups = groups_of(chip);
        auto &runs = chip.layers.of<Runs>().size;
        const auto run = runs.find(group);
        if (run == runs.end()) return missing(group);
        std::vector<bcm_multicast_t> left;
        for (int one = group; one < group + run->second; ++one)
            if (groups.contains(one)) left.push_back(one);
        for (const bcm_multicast_t one : left)
            if (const int status =
                    chip.references.check_unused(chip, object(ObjectKind::kMulticast, one));
                status < 0)
                return status;
        for (const bcm_multicast_t one : left)
            erase_object(chip, groups, ObjectKind::kMulticast, one);
        runs.erase(run);
        return int{BCM_E_NONE};
    });
}

}  // extern "C"
