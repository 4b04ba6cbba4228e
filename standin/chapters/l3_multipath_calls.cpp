// The calls of the routing chapter on multipath groups. The three families of calls work on the
// same groups: `multipath` names a group by its number, `egress_ecmp` by a structure of which the
// number alone is kept, and `ecmp` has members as structures of which the egress object alone is
// kept.
#include <algorithm>

#include "sdk/bcm/l3.h"
#include "standin/model/loans.h"
#include "standin/model/tables.h"

using namespace standin;

namespace {

using Paths = std::vector<bcm_if_t>;

constexpr Numbering<bcm_if_t> kMultipaths{"l3_multipath", kL3Multipaths, kFirstMultipath,
                                          kFirstMultipath + static_cast<int>(kL3Multipaths) - 1};

auto &multipaths_of(Switch &chip) { return chip.l3.multipaths; }

// A group may hold the same object more than once, for weight.
int check_size(const L3 &l3, std::size_t size) {
    if (size <= static_cast<std::size_t>(l3.max_ecmp)) return BCM_E_NONE;
    return refused(BCM_E_FULL, "a group has at most " + std::to_string(l3.max_ecmp) + " members");
}

int create_multipath(Switch &chip, bool given, int count, const bcm_if_t *interfaces,
                     bcm_if_t *id) {
    if (count < 1 || interfaces == nullptr) return BCM_E_PARAM;
    const Paths paths(interfaces, interfaces + count);
    int status = check_names(chip, names_of(paths));
    if (status == BCM_E_NONE) status = check_size(chip.l3, paths.size());
    if (status != BCM_E_NONE) return status;
    Paths *const made = new_entry(multipaths_of(chip), kMultipaths, given, id, status);
    return made == nullptr ? status
                           : assign(chip, object(ObjectKind::kMultipath, *id), *made, paths);
}

int destroy_multipath(Switch &chip, bcm_if_t id) {
    return erase_object(chip, multipaths_of(chip), ObjectKind::kMultipath, id);
}

// Changes the members of a group by `edit(copy)`, which answers a status.
template <class Edit>
int change_paths(Switch &chip, bcm_if_t id, Edit &&edit) {
    Paths *const paths = find_in(multipaths_of(chip), id);
    return paths == nullptr ? missing(id)
                            : change(chip, object(ObjectKind::kMultipath, id), *paths, edit);
}

int change_multipath(Switch &chip, bcm_if_t id, bcm_if_t intf, bool add) {
    return change_paths(chip, id, [&](Paths &paths) {
        if (add) {
            paths.push_back(intf);
            return check_size(chip.l3, paths.size());
        }
        const auto found = std::ranges::find(paths, intf);
        if (found == paths.end()) return missing(intf);
        paths.erase(found);
        return int{BCM_E_NONE};
    });
}

int find_multipath(const L3 &l3, int count, const bcm_if_t *interfaces, bcm_if_t *id) {
    if (count < 1 || interfaces == nullptr) return BCM_E_PARAM;
    const Paths wanted(interfaces, interfaces + count);
    for (const auto &[number, paths] : l3.multipaths)
        if (paths == wanted) return give(id, number);
    return BCM_E_NOT_FOUND;
}

// The egress objects of an array of members; empty for an array that is none.
Paths paths_of(int count, const bcm_l3_ecmp_member_t *members) {
    Paths paths;
    for (int i = 0; members != nullptr && i < count; ++i) paths.push_back(members[i].egress_if);
    return paths;
}

std::vector<bcm_l3_ecmp_member_t> members_of(const Paths &paths) {
    std::vector<bcm_l3_ecmp_member_t> members(paths.size());
    for (std::size_t i = 0; i < paths.size(); ++i) members[i].egress_if = paths[i];
    return members;
}

bcm_l3_egress_ecmp_t described(bcm_if_t id, const Paths &paths) {
    bcm_l3_egress_ecmp_t made{};
    made.ecmp_intf = id;
    made.max_paths = static_cast<int>(paths.size());
    return made;
}

}  // namespace

extern "C" {

int bcm_l3_egress_multipath_create(int unit, uint32 flags, int intf_count, bcm_if_t *intf_array,
                                   bcm_if_t *mpintf) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        const bool given = (flags & kWithId) != 0;
        return create_multipath(chip, given, intf_count, intf_array, mpintf);
    });
}

int bcm_l3_egress_multipath_get(int unit, bcm_if_t mpintf, int intf_max, bcm_if_t *intf_array,
                                int *intf_count) {
    return on_entry(__func__, unit, multipaths_of, mpintf, [&](const Paths &paths) {
        return give_array(paths, intf_max, intf_array, intf_count);
    });
}

int bcm_l3_egress_multipath_add(int unit, bcm_if_t mpintf, bcm_if_t if_id) {
    return on_switch(__func__, unit,
                     [&](Switch &chip) { return change_multipath(chip, mpintf, if_id, true); });
}

int bcm_l3_egress_multipath_delete(int unit, bcm_if_t mpintf, bcm_if_t if_id) {
    return on_switch(__func__, unit,
                     [&](Switch &chip) { return change_multipath(chip, mpintf, if_id, false); });
}

int bcm_l3_egress_multipath_destroy(int unit, bcm_if_t mpintf) {
    return on_switch(__func__, unit, [&](Switch &chip) { return destroy_multipath(chip, mpintf); });
}

int bcm_l3_egress_multipath_traverse(int unit, bcm_l3_egress_multipath_traverse_cb trav_fn,
                                     void *user_data) {
    if (trav_fn == nullptr) return refuse(__func__, unit);
    return walk(__func__, unit, multipaths_of, [&](bcm_if_t id, Paths &paths) {
        return trav_fn(unit, id, static_cast<int>(paths.size()), paths.data(), user_data);
    });
}

int bcm_l3_egress_multipath_find(int unit, int intf_count, bcm_if_t *intf_array, bcm_if_t *mpintf) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        return find_multipath(chip.l3, intf_count, intf_array, mpintf);
    });
}

int bcm_l3_egress_ecmp_create(int unit, bcm_l3_egress_ecmp_t *ecmp, int intf_count,
                              bcm_if_t *intf_array) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        if (ecmp == nullptr) return BCM_E_PARAM;
        const bool given = (ecmp->flags & kWithId) != 0;
        return create_multipath(chip, given, intf_count, intf_array, &ecmp->ecmp_intf);
    });
}

int bcm_l3_egress_ecmp_get(int unit, bcm_l3_egress_ecmp_t *ecmp, int intf_max, bcm_if_t *intf_array,
                           int *intf_count) {
    return on_entry(
        __func__, unit, multipaths_of, ecmp == nullptr ? -1 : ecmp->ecmp_intf,
        [&](const Paths &paths) { return give_array(paths, intf_max, intf_array, intf_count); });
}

int bcm_l3_egress_ecmp_add(int unit, bcm_l3_egress_ecmp_t *ecmp, bcm_if_t if_id) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        return ecmp == nullptr ? BCM_E_PARAM : change_multipath(chip, ecmp->ecmp_intf, if_id, true);
    });
}

int bcm_l3_egress_ecmp_delete(int unit, bcm_l3_egress_ecmp_t *ecmp, bcm_if_t if_id) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        return ecmp == nullptr ? BCM_E_PARAM
                               : change_multipath(chip, ecmp->ecmp_intf, if_id, false);
    });
}

int bcm_l3_egress_ecmp_destroy(int unit, bcm_l3_egress_ecmp_t *ecmp) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        return ecmp == nullptr ? BCM_E_PARAM : destroy_multipath(chip, ecmp->ecmp_intf);
    });
}

int bcm_l3_egress_ecmp_find(int unit, int intf_count, bcm_if_t *intf_array,
                            bcm_l3_egress_ecmp_t *ecmp) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        bcm_if_t *const id = ecmp == nullptr ? nullptr : &ecmp->ecmp_intf;
        return find_multipath(chip.l3, intf_count, intf_array, id);
    });
}

int bcm_l3_egress_ecmp_traverse(int unit, bcm_l3_egress_ecmp_traverse_cb trav_fn, void *user_data) {
    if (trav_fn == nullptr) return refuse(__func__, unit);
    return walk(__func__, unit, multipaths_of, [&](bcm_if_t id, Paths &paths) {
        bcm_l3_egress_ecmp_t ecmp = described(id, paths);
        return trav_fn(unit, &ecmp, static_cast<int>(paths.size()), paths.data(), user_data);
    });
}

int bcm_l3_ecmp_create(int unit, uint32 flags, bcm_l3_egress_ecmp_t *ecmp_info, int member_count,
                       bcm_l3_ecmp_member_t *member_array) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        if (ecmp_info == nullptr) return BCM_E_PARAM;
        const Paths paths = paths_of(member_count, member_array);
        return create_multipath(chip, (flags & kWithId) != 0, static_cast<int>(paths.size()),
                                paths.data(), &ecmp_info->ecmp_intf);
    });
}

int bcm_l3_ecmp_get(int unit, bcm_l3_egress_ecmp_t *ecmp_info, int member_max,
                    bcm_l3_ecmp_member_t *member_array, int *member_count) {
    return on_entry(__func__, unit, multipaths_of, ecmp_info == nullptr ? -1 : ecmp_info->ecmp_intf,
                    [&](const Paths &paths) {
                        return give_array(members_of(paths), member_max, member_array,
                                          member_count);
                    });
}

int bcm_l3_ecmp_find(int unit, int member_count, bcm_l3_ecmp_member_t *member_array,
                     bcm_l3_egress_ecmp_t *ecmp_info) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        const Paths paths = paths_of(member_count, member_array);
        bcm_if_t *const id = ecmp_info == nullptr ? nullptr : &ecmp_info->ecmp_intf;
        return find_multipath(chip.l3, static_cast<int>(paths.size()), paths.data(), id);
    });
}

int bcm_l3_ecmp_destroy(int unit, bcm_if_t ecmp_group_id) {
    return on_switch(__func__, unit,
                     [&](Switch &chip) { return destroy_multipath(chip, ecmp_group_id); });
}

int bcm_l3_ecmp_traverse(int unit, bcm_l3_ecmp_traverse_cb trav_fn, void *user_data) {
    if (trav_fn == nullptr) return refuse(__func__, unit);
    return walk(__func__, unit, multipaths_of, [&](bcm_if_t id, Paths &paths) {
        bcm_l3_egress_ecmp_t ecmp = described(id, paths);
        std::vector<bcm_l3_ecmp_member_t> members = members_of(paths);
        return trav_fn(unit, &ecmp, static_cast<int>(members.size()), members.data(), user_data);
    });
}

int bcm_l3_ecmp_member_add(int unit, bcm_if_t ecmp_group_id, bcm_l3_ecmp_member_t *ecmp_member) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        return ecmp_member == nullptr
                   ? BCM_E_PARAM
                   : change_multipath(chip, ecmp_group_id, ecmp_member->egress_if, true);
    });
}

int bcm_l3_ecmp_member_delete(int unit, bcm_if_t ecmp_group_id, bcm_l3_ecmp_member_t *ecmp_member) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        return ecmp_member == nullptr
                   ? BCM_E_PARAM
                   : change_multipath(chip, ecmp_group_id, ecmp_member->egress_if, false);
    });
}

int bcm_l3_ecmp_member_delete_all(int unit, bcm_if_t ecmp_group_id) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        return change_paths(chip, ecmp_group_id, [](Paths &paths) {
            paths.clear();
            return int{BCM_E_NONE};
        });
    });
}

}  // extern "C"
