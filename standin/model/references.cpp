// The index of users, what is refused for its sake, and what goes along.
#include "standin/model/references.h"

#include <algorithm>

#include "standin/model/model.h"
#include "standin/model/switch.h"

namespace standin {
namespace {

constexpr int kHoldersTold = 3;

const UseRow kUses[] = {
    {Use::kPortVlan, ObjectKind::kPort, "untagged_vlan", Bond::kLeaves},
    {Use::kVlanStg, ObjectKind::kVlan, "stg", Bond::kLeaves},
    {Use::kVlanPort, ObjectKind::kVlan, "port", Bond::kLeaves},
    {Use::kVlanTrunk, ObjectKind::kVlan, "port", Bond::kLeaves},
    {Use::kTrunkPort, ObjectKind::kTrunk, "gport", Bond::kLeaves},
    {Use::kMacVlan, ObjectKind::kMacRow, "vid", Bond::kFalls},
    {Use::kMacPort, ObjectKind::kMacRow, "port", Bond::kFalls},
    {Use::kMacTrunk, ObjectKind::kMacRow, "tgid", Bond::kFalls},
    {Use::kLimitedVlan, ObjectKind::kLearnLimit, "vlan", Bond::kFalls},
    {Use::kLimitedPort, ObjectKind::kLearnLimit, "port", Bond::kFalls},
    {Use::kLimitedTrunk, ObjectKind::kLearnLimit, "trunk", Bond::kFalls},
    {Use::kInterfaceVlan, ObjectKind::kInterface, "l3a_vid", Bond::kHolds},
    {Use::kEgressInterface, ObjectKind::kEgress, "intf", Bond::kHolds},
    {Use::kEgressPort, ObjectKind::kEgress, "port", Bond::kHolds},
    {Use::kEgressTrunk, ObjectKind::kEgress, "port", Bond::kHolds},
    {Use::kMultipathEgress, ObjectKind::kMultipath, "intf_array", Bond::kHolds},
    {Use::kHostHop, ObjectKind::kHost, "l3a_intf", Bond::kHolds},
    {Use::kRouteHop, ObjectKind::kRoute, "l3a_intf", Bond::kHolds},
    {Use::kMulticastPort, ObjectKind::kMulticast, "port", Bond::kLeaves},
    {Use::kMulticastTrunk, ObjectKind::kMulticast, "port", Bond::kLeaves},
    {Use::kMirrorPort, ObjectKind::kMirror, "gport", Bond::kHolds},
    {Use::kMirrorTrunk, ObjectKind::kMirror, "gport", Bond::kHolds},
    {Use::kMirroredPort, ObjectKind::kMirroredPort, "mirror_dest_id", Bond::kHolds},
    {Use::kRuleGroup, ObjectKind::kRule, "group", Bond::kHolds},
    {Use::kRuleCounter, ObjectKind::kRule, "stat_id", Bond::kHolds},
    {Use::kRulePolicer, ObjectKind::kRule, "policer_id", Bond::kHolds},
    {Use::kRuleMirror, ObjectKind::kRule, "param1", Bond::kHolds},
    {Use::kRuleRange, ObjectKind::kRule, "range", Bond::kHolds},
    {Use::kCounterGroup, ObjectKind::kCounter, "group", Bond::kHolds},
    {Use::kRowHolds, ObjectKind::kRow, "", Bond::kHolds},
    {Use::kRowLeaves, ObjectKind::kRow, "", Bond::kLeaves},
    {Use::kRowFalls, ObjectKind::kRow, "", Bond::kFalls},
};

// Changes the user of an object that goes, and the index with it.
template <class T, class Edit>
void leave(Switch &chip, const Object &user, T &slot, Edit &&edit) {
    chip.references.unlink(user, names_of(slot));
    edit(slot);
    chip.references.link(user, names_of(slot));
}

void fall(Switch &chip, const Object &user) {
    if (user.kind == ObjectKind::kMacRow) {
        L2Row *const row = chip.l2.table.find_key(user.number);
        chip.references.unlink(user, names_of(row->entry));
        note_l2(chip.events, row->entry, kL2Deleted);
        chip.l2.table.erase(*row);
    } else {
        const L2Scope scope{user.length, static_cast<int>(user.number)};
        chip.references.unlink(user, names_of(scope));
        chip.l2.limits.erase(scope);
    }
}

void end_use(Switch &chip, Use use, const Object &user, const Object &target) {
    const int number = static_cast<int>(user.number);
    const bcm_gport_t trunk = kTrunkGport.of(static_cast<int>(target.number));
    switch (use) {
        case Use::kPortVlan:
            return leave(chip, user, *chip.ports.find(number),
                         [&](Port &port) { port.untagged_vlan = chip.vlans.default_vlan; });
        case Use::kVlanStg:
            return leave(chip, user, chip.vlans.vlans.at(static_cast<bcm_vlan_t>(number)),
                         [&](Vlan &vlan) { vlan.stg = chip.vlans.default_stg; });
        case Use::kVlanTrunk:
            return leave(chip, user, chip.vlans.vlans.at(static_cast<bcm_vlan_t>(number)),
                         [&](Vlan &vlan) { vlan.gports.erase(trunk); });
        case Use::kMulticastTrunk:
            return leave(chip, user, chip.groups.multicast.at(number), [&](MulticastGroup &group) {
                for (auto *const side : {&group.ingress, &group.egress})
                    std::erase_if(*side, [&](const auto &one) { return one.first == trunk; });
            });
        case Use::kRowLeaves:
            return leave_row(chip, user, target);
        case Use::kRowFalls:
            return fall_row(chip, user);
        default:
            return fall(chip, user);
    }
}

}  // namespace

const UseRow &row_of(Use use) { return kUses[static_cast<std::size_t>(use)]; }

bool exists(Switch &chip, const Object &object) {
    const auto number = static_cast<std::int64_t>(object.number);
    const auto id = static_cast<std::int32_t>(number);
    switch (object.kind) {
        case ObjectKind::kPort:
            return local_port(id) >= 0;
        case ObjectKind::kVlan:
            return chip.vlans.find(static_cast<bcm_vlan_t>(number)) != nullptr;
        case ObjectKind::kStg:
            return chip.vlans.find_stg(id) != nullptr;
        case ObjectKind::kTrunk:
            return chip.groups.trunks.contains(id);
        case ObjectKind::kInterface:
            return chip.l3.interfaces.contains(id);
        case ObjectKind::kEgress:
            return chip.l3.egresses.contains(id);
        case ObjectKind::kMultipath:
            return chip.l3.multipaths.contains(id);
        case ObjectKind::kMulticast:
            return chip.groups.multicast.contains(id);
        case ObjectKind::kMirror:
            return chip.groups.mirrors.destinations.contains(id);
        case ObjectKind::kPolicer:
            return chip.groups.policers.contains(id);
        case ObjectKind::kGroup:
            return chip.field.groups.contains(static_cast<bcm_field_group_t>(number));
        case ObjectKind::kCounter:
            return chip.field.stats.contains(id);
        case ObjectKind::kRule:
            return chip.field.entries.contains(static_cast<bcm_field_entry_t>(number));
        case ObjectKind::kRange:
            return chip.field.ranges.contains(static_cast<bcm_field_range_t>(number));
        default:
            return true;  // of the kinds that nothing names
    }
}

std::size_t References::Mix::operator()(const Object &object) const {
    std::uint64_t mixed = object.number * 0x9E3779B97F4A7C15u;
    mixed ^= static_cast<std::uint64_t>(object.kind) << 56;
    return static_cast<std::size_t>(mixed ^ (mixed >> 32));
}

int References::check_unused(Switch &chip, const Object &target) const {
    const auto found = users_.find(target);
    if (found == users_.end()) return BCM_E_NONE;
    const auto name = [&](const Object &one) {
        return one.kind == ObjectKind::kRow ? row_text(chip, one) : text_of(one);
    };
    int count = 0;
    std::string holders;
    for (const User &one : found->second) {
        if (one.bond != Bond::kHolds) break;
        if (++count > kHoldersTold) continue;
        if (count > 1) holders += ", ";
        holders += name(one.user);
    }
    if (count > kHoldersTold) holders += " and " + std::to_string(count - kHoldersTold) + " more";
    if (count > 0) return refused(BCM_E_BUSY, name(target) + " is held by " + holders);
    // Rows come last among what falls with it, and are all that something may hold in turn.
    for (auto row = found->second.lower_bound({Bond::kFalls, {ObjectKind::kRow}, Use{}});
         row != found->second.end(); ++row)
        if (const int status = check_unused(chip, row->user); status != BCM_E_NONE) return status;
    return BCM_E_NONE;
}

void References::link(const Object &user, const Names &names) {
    for (const Name &name : names)
        if (name.target.kind != ObjectKind::kPort)
            users_[name.target].insert({row_of(name.use).bond, user, name.use});
}

void References::unlink(const Object &user, const Names &names) {
    for (const Name &name : names) {
        const auto found = users_.find(name.target);
        if (found == users_.end()) continue;
        found->second.erase({row_of(name.use).bond, user, name.use});
        if (found->second.empty()) users_.erase(found);
    }
}

void References::dissolve(Switch &chip, const Object &target) {
    for (auto found = users_.find(target); found != users_.end(); found = users_.find(target)) {
        const User one = *found->second.begin();
        end_use(chip, one.use, one.user, target);
        // An object may leave what it names for the same object: the default of its kind.
        if (const auto again = users_.find(target);
            again != users_.end() && again->second.contains(one))
            break;
    }
}

int check_names(Switch &chip, const Names &names) {
    for (const auto &[use, target] : names) {
        if (exists(chip, target)) continue;
        const char *const field = row_of(use).field;
        if (target.kind == ObjectKind::kPort)
            return refused_port(field, static_cast<int>(target.number));
        return refused(BCM_E_NOT_FOUND, "field " + std::string(field) + " names " +
                                            text_of(target) + ", which is not there");
    }
    return BCM_E_NONE;
}

void link_ports(Switch &chip) {
    for (int port = 0; port < kPorts; ++port) {
        Port &one = *chip.ports.find(port);
        one.untagged_vlan = chip.vlans.default_vlan;
        chip.references.link(object(ObjectKind::kPort, port), names_of(one));
    }
}

void unlink_ports(Switch &chip) {
    for (int port = 0; port < kPorts; ++port)
        chip.references.unlink(object(ObjectKind::kPort, port), names_of(*chip.ports.find(port)));
}

void link_first_day(Switch &chip) {
    for (const auto &[vid, vlan] : chip.vlans.vlans)
        chip.references.link(object(ObjectKind::kVlan, vid), names_of(vlan));
    link_ports(chip);
}

const std::vector<UseRow> &all_uses() {
    static const std::vector<UseRow> rows(std::begin(kUses), std::end(kUses));
    return rows;
}

}  // namespace standin
