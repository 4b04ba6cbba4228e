// What each kind of object names, and what the objects are called.
#include <algorithm>
#include <cstdio>
#include <cstring>

#include "layout/sdk_words.h"
#include "sdk/bcm/field_types.h"
#include "standin/model/references.h"

namespace standin {
namespace {

constexpr std::uint16_t kIp6Length = 0x100;  // set in `length` beside the one of a prefix

std::uint64_t word_of(const std::uint8_t *bytes) {
    std::uint64_t word = 0;
    for (int i = 0; i < 8; ++i) word = word << 8 | bytes[i];
    return word;
}

Object address_object(ObjectKind kind, bcm_vrf_t vrf, const IpAddress &address, int length) {
    const int both = length | (address.ip6 ? kIp6Length : 0);
    return {kind, static_cast<std::uint16_t>(both), vrf, word_of(address.bytes.data()),
            word_of(address.bytes.data() + 8)};
}

// A destination in the form of a port or gport: a port of this switch, a trunk, or something that
// only other devices or chapters know.
void add_gport(Names &names, Use port_use, Use trunk_use, bcm_gport_t gport) {
    const int type = gport_type(gport);
    if (type == kTrunkGport.type)
        names.push_back({trunk_use, object(ObjectKind::kTrunk, gport & kTrunkGport.mask)});
    else if (type <= kLocalGport.type)
        names.push_back({port_use, object(ObjectKind::kPort, gport)});
}

// A next hop of any of the three kinds; 0 is nowhere.
void add_hop(Names &names, Use use, bcm_if_t intf) {
    if (intf == 0) return;
    const ObjectKind kind = intf >= kFirstMultipath ? ObjectKind::kMultipath
                            : intf >= kFirstEgress  ? ObjectKind::kEgress
                                                    : ObjectKind::kInterface;
    names.push_back({use, object(kind, intf)});
}

// Actions whose second parameter may be a mirror destination, which is a gport of that type.
bool mirrors(bcm_field_action_t action) {
    return action == bcmFieldActionMirrorIngress || action == bcmFieldActionMirrorEgress;
}

std::string ip_text(const Object &object) {
    char text[48];
    const bool ip6 = (object.length & kIp6Length) != 0;
    const auto part = [](std::uint64_t word, int shift, unsigned mask) {
        return static_cast<unsigned>(word >> shift) & mask;
    };
    const std::uint64_t high = object.number;
    const std::uint64_t low = object.low;
    if (ip6)
        std::snprintf(text, sizeof text, "%x:%x:%x:%x:%x:%x:%x:%x", part(high, 48, 0xffff),
                      part(high, 32, 0xffff), part(high, 16, 0xffff), part(high, 0, 0xffff),
                      part(low, 48, 0xffff), part(low, 32, 0xffff), part(low, 16, 0xffff),
                      part(low, 0, 0xffff));
    else
        std::snprintf(text, sizeof text, "%u.%u.%u.%u", part(high, 56, 0xff), part(high, 48, 0xff),
                      part(high, 40, 0xff), part(high, 32, 0xff));
    return text;
}

std::string mac_text(std::uint64_t key) {
    char text[64];
    std::snprintf(text, sizeof text, "%02x:%02x:%02x:%02x:%02x:%02x in VLAN %u",
                  static_cast<unsigned>(key >> 56), static_cast<unsigned>(key >> 48) & 0xff,
                  static_cast<unsigned>(key >> 40) & 0xff, static_cast<unsigned>(key >> 32) & 0xff,
                  static_cast<unsigned>(key >> 24) & 0xff, static_cast<unsigned>(key >> 16) & 0xff,
                  static_cast<unsigned>(key) & 0xffff);
    return text;
}

// By kind.
constexpr const char *kNouns[] = {"port",
                                  "VLAN",
                                  "spanning tree group",
                                  "trunk",
                                  "MAC address",
                                  "learn limit",
                                  "interface",
                                  "egress object",
                                  "multipath group",
                                  "host",
                                  "route",
                                  "multicast group",
                                  "mirror destination",
                                  "mirrored port",
                                  "policer",
                                  "rule group",
                                  "rule",
                                  "counter",
                                  "range",
                                  "row"};

}  // namespace

Object mac_object(const bcm_l2_addr_t &entry) {
    return {ObjectKind::kMacRow, 0, 0, l2_key(entry.mac, entry.vid), 0};
}

Object limit_object(const L2Scope &scope) {
    return {ObjectKind::kLearnLimit, static_cast<std::uint16_t>(scope.scope), 0,
            static_cast<std::uint64_t>(scope.number), 0};
}

Object host_object(const HostKey &key) {
    return address_object(ObjectKind::kHost, key.vrf, key.address, 0);
}

Object route_object(const RouteKey &key) {
    return address_object(ObjectKind::kRoute, key.vrf, key.address, key.length);
}

Object mirrored_object(int port, std::uint32_t flags) {
    return {ObjectKind::kMirroredPort, 0, 0, static_cast<std::uint64_t>(port), flags};
}

std::string text_of(const Object &object) {
    std::string text = kNouns[static_cast<std::size_t>(object.kind)];
    switch (object.kind) {
        case ObjectKind::kMacRow:
            return text + " " + mac_text(object.number);
        case ObjectKind::kRoute:
            return text + " " + ip_text(object) + "/" + std::to_string(object.length & 0xff);
        case ObjectKind::kHost:
            return text + " " + ip_text(object);
        default:
            return text + " " + std::to_string(static_cast<std::int64_t>(object.number));
    }
}

Names names_of(const Port &port) {
    return {{Use::kPortVlan, object(ObjectKind::kVlan, port.untagged_vlan)}};
}

Names names_of(const Vlan &vlan) {
    Names names{{Use::kVlanStg, object(ObjectKind::kStg, vlan.stg)}};
    for (const auto &[gport, flags] : vlan.gports)
        add_gport(names, Use::kVlanPort, Use::kVlanTrunk, gport);
    return names;
}

Names names_of(const Trunk &trunk) {
    Names names;
    for (const bcm_trunk_member_t &member : trunk.members)
        if (gport_type(member.gport) != kSystemGport.type)
            names.push_back({Use::kTrunkPort, object(ObjectKind::kPort, member.gport)});
    return names;
}

Names names_of(const bcm_l2_addr_t &entry) {
    Names names{{Use::kMacVlan, object(ObjectKind::kVlan, entry.vid)}};
    if ((entry.flags & kL2BlackHole) != 0) return names;
    if ((entry.flags & kL2Trunk) != 0)
        names.push_back({Use::kMacTrunk, object(ObjectKind::kTrunk, entry.tgid)});
    else if (entry.modid == 0)
        add_gport(names, Use::kMacPort, Use::kMacTrunk, entry.port);
    return names;
}

Names names_of(const L2Scope &scope) {
    switch (scope.scope) {
        case kLimitVlan:
            return {{Use::kLimitedVlan, object(ObjectKind::kVlan, scope.number)}};
        case kLimitPort:
            return {{Use::kLimitedPort, object(ObjectKind::kPort, scope.number)}};
        case kLimitTrunk:
            return {{Use::kLimitedTrunk, object(ObjectKind::kTrunk, scope.number)}};
        default:
            return {};
    }
}

Names names_of(const bcm_l3_intf_t &intf) {
    return {{Use::kInterfaceVlan, object(ObjectKind::kVlan, intf.l3a_vid)}};
}

// What ports another module has is not known here.
Names names_of(const bcm_l3_egress_t &egress) {
    Names names;
    if (egress.intf != 0)
        names.push_back({Use::kEgressInterface, object(ObjectKind::kInterface, egress.intf)});
    if (egress.module == 0) add_gport(names, Use::kEgressPort, Use::kEgressTrunk, egress.port);
    return names;
}

Names names_of(const std::vector<bcm_if_t> &paths) {
    Names names;
    for (const bcm_if_t intf : paths)
        names.push_back({Use::kMultipathEgress, object(ObjectKind::kEgress, intf)});
    return names;
}

Names names_of(const bcm_l3_host_t &host) {
    Names names;
    add_hop(names, Use::kHostHop, host.l3a_intf);
    return names;
}

Names names_of(const bcm_l3_route_t &route) {
    Names names;
    add_hop(names, Use::kRouteHop, route.l3a_intf);
    return names;
}

Names names_of(const MulticastGroup &group) {
    Names names;
    for (const auto *const side : {&group.ingress, &group.egress})
        for (const auto &[port, encap] : *side)
            add_gport(names, Use::kMulticastPort, Use::kMulticastTrunk, port);
    return names;
}

Names names_of(const bcm_mirror_destination_t &destination) {
    Names names;
    add_gport(names, Use::kMirrorPort, Use::kMirrorTrunk, destination.gport);
    return names;
}

Names names_of(const MirroredTo &mirrored) {
    Names names;
    for (const bcm_gport_t id : mirrored.destinations)
        names.push_back({Use::kMirroredPort, object(ObjectKind::kMirror, id)});
    return names;
}

Names names_of(const FieldEntry &rule) {
    Names names;
    if (rule.group != 0) names.push_back({Use::kRuleGroup, object(ObjectKind::kGroup, rule.group)});
    if (rule.stat) names.push_back({Use::kRuleCounter, object(ObjectKind::kCounter, *rule.stat)});
    for (const auto &[level, policer] : rule.policers)
        names.push_back({Use::kRulePolicer, object(ObjectKind::kPolicer, policer)});
    for (const auto &[qualifier, checks] : rule.ranges)
        for (const auto &[range, invert] : checks)
            names.push_back({Use::kRuleRange, object(ObjectKind::kRange, range)});
    for (const auto &[action, given] : rule.actions) {
        const auto param = static_cast<int>(given.param1);
        if (mirrors(action) && gport_type(param) == kMirrorGport.type)
            names.push_back({Use::kRuleMirror, object(ObjectKind::kMirror, param)});
    }
    return names;
}

Names names_of(const FieldStat &counter) {
    return {{Use::kCounterGroup, object(ObjectKind::kGroup, counter.group)}};
}

}  // namespace standin
