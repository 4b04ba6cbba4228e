// The calls of the trunk chapter, and the LAG members of the layer below it.
#include <algorithm>

#include "native/symbols.h"
#include "sdk/bcm/trunk.h"
#include "standin/chapters/l2_select.h"
#include "standin/model/loans.h"
#include "standin/model/tables.h"

using namespace standin;

namespace {

constexpr Numbering<bcm_trunk_t> kNumbers{"trunk", kTrunks, 0, kTrunks - 1};

std::map<bcm_trunk_t, Trunk> &trunks_of(Switch &chip) { return chip.groups.trunks; }

// A member's port as a gport; 0 if it is neither a port of this switch nor a system port.
bcm_gport_t member_gport(bcm_gport_t gport) {
    if (gport_type(gport) == kSystemGport.type) return gport;
    const int port = local_port(gport);
    return port < 0 ? 0 : kLocalGport.of(port);
}

auto find_member(Trunk &trunk, bcm_gport_t gport) {
    return std::ranges::find(trunk.members, gport, &bcm_trunk_member_t::gport);
}

bool is_member(Trunk &trunk, bcm_gport_t gport) {
    return find_member(trunk, gport) != trunk.members.end();
}

bool in_another(Switch &chip, bcm_trunk_t tid, bcm_gport_t gport) {
    const bcm_trunk_t *const other = find_in(chip.groups.trunk_of, gport);
    return other != nullptr && *other != tid;
}

// Which trunk a port is in follows the lists of members.
void forget_members(Switch &chip, const Trunk &trunk) {
    for (const bcm_trunk_member_t &member : trunk.members) chip.groups.trunk_of.erase(member.gport);
}

// Changes the members of a trunk by `edit(copy)`; refused whole.
template <class Edit>
int change_members(Switch &chip, bcm_trunk_t tid, Trunk &trunk, Edit &&edit) {
    Trunk made = trunk;
    if (const int status = edit(made); status != BCM_E_NONE) return status;
    forget_members(chip, trunk);
    for (const bcm_trunk_member_t &member : made.members) chip.groups.trunk_of[member.gport] = tid;
    return assign(chip, object(ObjectKind::kTrunk, tid), trunk, std::move(made));
}

int add_member(Switch &chip, bcm_trunk_t tid, Trunk &trunk, bcm_trunk_member_t member) {
    const bcm_gport_t given = member.gport;
    member.gport = member_gport(given);
    if (member.gport == 0) return refused_port("gport", given);
    if (is_member(trunk, member.gport) || in_another(chip, tid, member.gport))
        return refused(BCM_E_EXISTS, "port " + std::to_string(given) + " is in a trunk");
    if (trunk.members.size() >= kTrunkMembers) return BCM_E_FULL;
    trunk.members.push_back(member);
    return BCM_E_NONE;
}

int delete_member(Trunk &trunk, bcm_gport_t gport) {
    const auto found = find_member(trunk, member_gport(gport));
    if (found == trunk.members.end()) return missing(gport);
    trunk.member_ids.erase(found->gport);
    trunk.members.erase(found);
    return BCM_E_NONE;
}

int drop_member(Switch &chip, bcm_trunk_t tid, Trunk &trunk, bcm_gport_t gport) {
    return change_members(chip, tid, trunk,
                          [&](Trunk &made) { return delete_member(made, gport); });
}

void clear_members(Trunk &trunk) {
    trunk.members.clear();
    trunk.member_ids.clear();
}

int drop_members(Switch &chip, bcm_trunk_t tid, Trunk &trunk) {
    return change_members(chip, tid, trunk, [](Trunk &made) {
        clear_members(made);
        return int{BCM_E_NONE};
    });
}

int destroy_trunk(Switch &chip, bcm_trunk_t tid) {
    Trunk *const trunk = find_in(trunks_of(chip), tid);
    if (trunk == nullptr) return missing(tid);
    const Trunk gone = *trunk;
    const int status = erase_object(chip, trunks_of(chip), ObjectKind::kTrunk, tid);
    if (status == BCM_E_NONE) forget_members(chip, gone);
    return status;
}

int clear_trunks(const char *function, int unit) {
    return on_switch(function, unit, [](Switch &chip) {
        return clear_chapter(chip, "bcm_trunk_", [](Switch &one) {
            const int status = erase_objects(one, trunks_of(one), ObjectKind::kTrunk);
            if (status == BCM_E_NONE) one.groups.trunk_of.clear();
            return status;
        });
    });
}

template <class Body>
int on_trunk(const char *function, int unit, bcm_trunk_t tid, Body &&body) {
    return on_switch(function, unit, [&](Switch &chip) {
        Trunk *const trunk = find_in(trunks_of(chip), tid);
        return trunk == nullptr ? missing(tid) : body(chip, *trunk);
    });
}

// All or nothing: the members given replace those that are there.
int set_members(Switch &chip, bcm_trunk_t tid, Trunk &trunk, const bcm_trunk_member_t *members,
                int count) {
    return change_members(chip, tid, trunk, [&](Trunk &made) {
        clear_members(made);
        for (int i = 0; i < count; ++i) {
            const int status = add_member(chip, tid, made, members[i]);
            if (status != BCM_E_NONE) return status;
        }
        return int{BCM_E_NONE};
    });
}

}  // namespace

extern "C" {

int bcm_trunk_init(int unit) { return clear_trunks(__func__, unit); }
int bcm_trunk_detach(int unit) { return clear_trunks(__func__, unit); }

int bcm_trunk_chip_info_get(int unit, bcm_trunk_chip_info_t *ta_info) {
    return on_switch(__func__, unit, [&](Switch &) {
        bcm_trunk_chip_info_t info{};
        info.trunk_group_count = kTrunks;
        info.trunk_id_max = kTrunks - 1;
        info.trunk_ports_max = kTrunkMembers;
        info.trunk_fabric_id_min = info.trunk_fabric_id_max = -1;
        info.vp_id_min = info.vp_id_max = -1;
        return give(ta_info, info);
    });
}

int bcm_trunk_create(int unit, uint32 flags, bcm_trunk_t *tid) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        int status = BCM_E_NONE;
        const bool given = (flags & BCM_TRUNK_FLAG_WITH_ID) != 0;
        Trunk *const trunk = new_entry(trunks_of(chip), kNumbers, given, tid, status);
        if (trunk != nullptr) trunk->info.psc = BCM_TRUNK_PSC_PORTFLOW;
        return status;
    });
}

// MAC addresses and memberships of the trunk go along.
int bcm_trunk_destroy(int unit, bcm_trunk_t tid) {
    return on_switch(__func__, unit, [&](Switch &chip) { return destroy_trunk(chip, tid); });
}

int bcm_trunk_set(int unit, bcm_trunk_t tid, bcm_trunk_info_t *trunk_info, int member_count,
                  bcm_trunk_member_t *member_array) {
    return on_trunk(__func__, unit, tid, [&](Switch &chip, Trunk &trunk) {
        if (trunk_info == nullptr || !within(member_count, 0, kTrunkMembers) ||
            (member_array == nullptr && member_count > 0)) {
            return BCM_E_PARAM;
        }
        const int status = set_members(chip, tid, trunk, member_array, member_count);
        if (status == BCM_E_NONE) trunk.info = *trunk_info;
        return status;
    });
}

int bcm_trunk_get(int unit, bcm_trunk_t tid, bcm_trunk_info_t *trunk_info, int member_max,
                  bcm_trunk_member_t *member_array, int *member_count) {
    return on_trunk(__func__, unit, tid, [&](Switch &, Trunk &trunk) {
        const int status = give_array(trunk.members, member_max, member_array, member_count);
        return status != BCM_E_NONE ? status : give(trunk_info, trunk.info);
    });
}

int bcm_trunk_psc_set(int unit, bcm_trunk_t tid, int psc) {
    return on_trunk(__func__, unit, tid, [&](Switch &, Trunk &trunk) {
        if (psc < 0) return BCM_E_PARAM;
        trunk.info.psc = psc;
        return BCM_E_NONE;
    });
}

int bcm_trunk_psc_get(int unit, bcm_trunk_t tid, int *psc) {
    return on_trunk(__func__, unit, tid,
                    [&](Switch &, Trunk &trunk) { return give(psc, trunk.info.psc); });
}

int bcm_trunk_find(int unit, bcm_module_t modid, bcm_port_t port, bcm_trunk_t *tid) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        if (tid == nullptr) return BCM_E_PARAM;
        const bcm_gport_t gport = member_gport(port);
        if (gport == 0) return refused_port("port", port);
        const bcm_trunk_t *const found = find_in(chip.groups.trunk_of, gport);
        return found == nullptr || modid != 0 ? missing(port) : give(tid, *found);
    });
}

int bcm_trunk_member_add(int unit, bcm_trunk_t tid, bcm_trunk_member_t *member) {
    return on_trunk(__func__, unit, tid, [&](Switch &chip, Trunk &trunk) {
        if (member == nullptr) return BCM_E_PARAM;
        return change_members(chip, tid, trunk,
                              [&](Trunk &made) { return add_member(chip, tid, made, *member); });
    });
}

int bcm_trunk_member_delete(int unit, bcm_trunk_t tid, bcm_trunk_member_t *member) {
    return on_trunk(__func__, unit, tid, [&](Switch &chip, Trunk &trunk) {
        return member == nullptr ? BCM_E_PARAM : drop_member(chip, tid, trunk, member->gport);
    });
}

int bcm_trunk_member_delete_all(int unit, bcm_trunk_t tid) {
    return on_trunk(__func__, unit, tid,
                    [&](Switch &chip, Trunk &trunk) { return drop_members(chip, tid, trunk); });
}

int bcm_trunk_gport_add(int unit, bcm_trunk_t tid, bcm_gport_t gport) {
    return on_trunk(__func__, unit, tid, [&](Switch &chip, Trunk &trunk) {
        bcm_trunk_member_t member{};
        member.gport = gport;
        return change_members(chip, tid, trunk,
                              [&](Trunk &made) { return add_member(chip, tid, made, member); });
    });
}

int bcm_trunk_gport_delete(int unit, bcm_trunk_t tid, bcm_gport_t gport) {
    return on_trunk(__func__, unit, tid, [&](Switch &chip, Trunk &trunk) {
        return drop_member(chip, tid, trunk, gport);
    });
}

int bcm_trunk_gport_delete_all(int unit, bcm_trunk_t tid) {
    return on_trunk(__func__, unit, tid,
                    [&](Switch &chip, Trunk &trunk) { return drop_members(chip, tid, trunk); });
}

int bcm_trunk_gport_get_all(int unit, bcm_trunk_t tid, int gport_max, bcm_gport_t *gport_array,
                            int *gport_count) {
    return on_trunk(__func__, unit, tid, [&](Switch &, Trunk &trunk) {
        std::vector<bcm_gport_t> gports;
        for (const bcm_trunk_member_t &member : trunk.members) gports.push_back(member.gport);
        return give_array(gports, gport_max, gport_array, gport_count);
    });
}

int bcm_trunk_egress_set(int unit, bcm_trunk_t tid, bcm_pbmp_t pbmp) {
    return on_trunk(__func__, unit, tid, [&](Switch &, Trunk &trunk) {
        if (!is_subset(pbmp, kAllPorts)) return refused_ports(pbmp);
        trunk.egress = pbmp;
        return BCM_E_NONE;
    });
}

int bcm_trunk_egress_get(int unit, bcm_trunk_t tid, bcm_pbmp_t *pbmp) {
    return on_trunk(__func__, unit, tid,
                    [&](Switch &, Trunk &trunk) { return give(pbmp, trunk.egress); });
}

// Adds to the set the other members of each trunk that has a port in it.
int bcm_trunk_bitmap_expand(int unit, bcm_pbmp_t *pbmp) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        if (pbmp == nullptr) return BCM_E_PARAM;
        for (const auto &[id, trunk] : trunks_of(chip)) {
            bcm_pbmp_t members{};
            for (const bcm_trunk_member_t &member : trunk.members) {
                const int port = local_port(member.gport);
                if (port >= 0) add_port(members, port);
            }
            if (any_common(members, *pbmp)) add_ports(*pbmp, members);
        }
        return BCM_E_NONE;
    });
}

void SOC_PPC_LAG_MEMBER_clear(SOC_PPC_LAG_MEMBER *member) {
    if (member != nullptr) *member = SOC_PPC_LAG_MEMBER{};
}

// A LAG is a trunk by another name, and its member a system port of that trunk.
int soc_ppd_lag_member_add(int unit, uint32 lag_ndx, SOC_PPC_LAG_MEMBER *member, int *success) {
    const auto tid = static_cast<bcm_trunk_t>(lag_ndx);
    const int status = on_trunk(__func__, unit, tid, [&](Switch &chip, Trunk &trunk) {
        if (member == nullptr || success == nullptr || member->sys_port > kSystemGport.mask)
            return BCM_E_PARAM;
        bcm_trunk_member_t added{};
        added.gport = kSystemGport.of(static_cast<int>(member->sys_port));
        return change_members(chip, tid, trunk, [&](Trunk &made) {
            made.member_ids[added.gport] = member->member_id;
            return add_member(chip, tid, made, added);
        });
    });
    if (success != nullptr) *success = status == BCM_E_NONE;
    return status;
}

int soc_ppd_lag_member_remove(int unit, uint32 lag_ndx, SOC_PPC_LAG_MEMBER *member) {
    const auto tid = static_cast<bcm_trunk_t>(lag_ndx);
    return on_trunk(__func__, unit, tid, [&](Switch &chip, Trunk &trunk) {
        if (member == nullptr || member->sys_port > kSystemGport.mask) return BCM_E_PARAM;
        const bcm_gport_t gport = kSystemGport.of(static_cast<int>(member->sys_port));
        const std::uint32_t *const id = find_in(trunk.member_ids, gport);
        if (id == nullptr || *id != member->member_id) return BCM_E_NOT_FOUND;
        return drop_member(chip, tid, trunk, gport);
    });
}

}  // extern "C"
