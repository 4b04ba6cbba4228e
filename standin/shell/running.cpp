// From the state of a chip to lines, chapter by chapter.
#include "standin/shell/running.h"

#include <algorithm>
#include <array>
#include <bitset>

#include "standin/base/number_text.h"
#include "standin/base/scan.h"
#include "standin/model/layouts.h"
#include "standin/model/switch.h"
#include "standin/shell/address_words.h"
#include "standin/shell/commands.h"
#include "standin/shell/field_words.h"
#include "standin/shell/fields.h"
#include "standin/shell/queue_rows.h"
#include "standin/text/unit_ports.h"

namespace standin {
namespace {

using Lines = std::vector<std::string>;

struct Writer {
    const Switch &now;
    const Switch &first;
    const PortNames &names;
    Lines lines{};

    void add(std::string line) { lines.push_back(std::move(line)); }
    std::string ports(const bcm_pbmp_t &set) const {
        return port_list_text(port_set_of(set), names);
    }
    std::string port(int number) const { return port_text(number, names); }
    // A member: its port where it has a plain number, else the number of the global port.
    std::string member(int gport) const {
        const bool plain = gport >= 0 && gport < kPorts;
        return plain ? port(gport) : "gport=" + std::to_string(gport);
    }
};

std::string number(std::int64_t value) { return std::to_string(value); }

LayoutFields layout(const char *name) { return struct_layout(name)->fields; }

bcm_pbmp_t without(bcm_pbmp_t set, const bcm_pbmp_t &others) {
    remove_ports(set, others);
    return set;
}

bool none(const bcm_pbmp_t &set) { return port_set_of(set).none(); }

std::string option(const char *name, const std::string &text) {
    return text == "none" ? "" : ' ' + std::string(name) + '=' + text;
}

void write_stgs(Writer &to) {
    for (const auto &[id, stg] : to.now.vlans.stgs) {
        const auto there = to.first.vlans.stgs.find(id);
        if (there == to.first.vlans.stgs.end()) to.add("stg create " + number(id));
        const Stg before = there == to.first.vlans.stgs.end() ? Stg{} : there->second;
        for (std::size_t state = 0; state < std::size(kStpStates); ++state) {
            PortSet ports;
            for (std::size_t at = 0; at < stg.state.size(); ++at)
                ports[at] =
                    stg.state[at] == static_cast<int>(state) && before.state[at] != stg.state[at];
            if (ports.any())
                to.add("stg stp " + number(id) + ' ' + port_list_text(ports, to.names) + ' ' +
                       kStpStates[state]);
        }
    }
}

void write_vlan(Writer &to, bcm_vlan_t id, const Vlan &vlan) {
    const auto there = to.first.vlans.vlans.find(id);
    const bool is_new = there == to.first.vlans.vlans.end();
    const Vlan before = is_new ? Vlan{} : there->second;
    // An untagged port that is tagged now is taken out first.
    bcm_pbmp_t gone = without(before.members, vlan.members);
    add_ports(gone, without(before.untagged, vlan.untagged));
    const bcm_pbmp_t left = without(before.members, gone);
    const bcm_pbmp_t untagged = without(vlan.untagged, before.untagged);
    const bcm_pbmp_t tagged = without(without(vlan.members, left), vlan.untagged);
    const std::string members =
        option("ports", to.ports(tagged)) + option("untagged", to.ports(untagged));
    if (!none(gone)) to.add("vlan remove " + number(id) + " ports=" + to.ports(gone));
    if (is_new)
        to.add("vlan create " + number(id) + members);
    else if (!members.empty())
        to.add("vlan add " + number(id) + members);
    if (vlan.stg != before.stg) to.add("stg add " + number(vlan.stg) + ' ' + number(id));
}

void write_vlans(Writer &to) {
    const Vlans &now = to.now.vlans;
    for (const auto &[id, vlan] : now.vlans) write_vlan(to, id, vlan);
    if (now.default_vlan != to.first.vlans.default_vlan)
        to.add("vlan default " + number(now.default_vlan));
    if (now.default_stg != to.first.vlans.default_stg)
        to.add("stg default " + number(now.default_stg));
}

struct PortSetting {
    const char *option;
    std::int64_t (*of)(const Port &port);
};
constexpr PortSetting kPortSettings[] = {
    {"enable", [](const Port &one) { return std::int64_t{one.enable}; }},
    {"autoneg", [](const Port &one) { return std::int64_t{one.autoneg}; }},
    {"speed", [](const Port &one) { return std::int64_t{one.speed}; }},
    {"duplex", [](const Port &one) { return std::int64_t{one.duplex}; }},
    {"frame", [](const Port &one) { return std::int64_t{one.frame_max}; }},
    {"vlan", [](const Port &one) { return std::int64_t{one.untagged_vlan}; }},
    {"learn", [](const Port &one) { return std::int64_t{one.learn}; }},
    {"loopback", [](const Port &one) { return std::int64_t{one.loopback}; }},
    {"discard", [](const Port &one) { return std::int64_t{one.discard}; }},
    {"pausetx", [](const Port &one) { return std::int64_t{one.pause_tx}; }},
    {"pauserx", [](const Port &one) { return std::int64_t{one.pause_rx}; }},
    {"filter", [](const Port &one) { return std::int64_t{one.ifilter}; }},
    {"l3", [](const Port &one) { return std::int64_t{one.l3_enable}; }},
    {"priority", [](const Port &one) { return std::int64_t{one.untagged_priority}; }},
    {"bpdu", [](const Port &one) { return std::int64_t{one.bpdu_enable}; }},
    {"master", [](const Port &one) { return std::int64_t{one.master}; }},
    {"jam", [](const Port &one) { return std::int64_t{one.jam}; }},
    {"pfm", [](const Port &one) { return std::int64_t{one.pfm}; }},
    {"linkscan", [](const Port &one) { return std::int64_t{one.linkscan}; }}};

std::string setting_text(std::string_view option, std::int64_t value) {
    const auto word = [&](std::span<const char *const> words) {
        return value >= 0 && static_cast<std::size_t>(value) < words.size()
                   ? words[static_cast<std::size_t>(value)]
                   : "";
    };
    if (option == "loopback") return word(kLoopbacks);
    if (option == "discard") return word(kDiscards);
    for (const char *truth : {"enable", "autoneg", "duplex", "pausetx", "pauserx", "l3", "bpdu"})
        if (option == truth) return value != 0 ? "yes" : "no";
    return number(value);
}

void write_ports(Writer &to) {
    for (int at = 0; at < kPorts; ++at) {
        const Port &now = *const_cast<Ports &>(to.now.ports).find(at);
        const Port &before = *const_cast<Ports &>(to.first.ports).find(at);
        std::string words;
        for (const PortSetting &one : kPortSettings)
            if (one.of(now) != one.of(before))
                words +=
                    ' ' + std::string(one.option) + '=' + setting_text(one.option, one.of(now));
        if (now.pause_address != before.pause_address)
            words += " pauseaddr=" + mac_text(now.pause_address.data());
        if (!words.empty()) to.add("port " + to.port(at) + words);
        const std::string ability = hex_text(&now.advertised, sizeof now.advertised);
        if (ability != hex_text(&before.advertised, sizeof before.advertised))
            to.add("port advertise " + to.port(at) + ' ' + ability);
        for (const auto &[type, value] : now.controls)
            to.add("port control " + to.port(at) + ' ' + number(type) + ' ' + number(value));
    }
}

void write_trunks(Writer &to) {
    Trunk plain;
    plain.info.psc = BCM_TRUNK_PSC_PORTFLOW;
    constexpr std::string_view kGport[] = {"gport"};
    for (const auto &[id, trunk] : to.now.groups.trunks) {
        to.add("trunk create " + number(id) +
               field_words(layout("bcm_trunk_info_t"), &trunk.info, to.names, &plain.info));
        for (const bcm_trunk_member_t &one : trunk.members) {
            const bool local = gport_type(one.gport) == kLocalGport.type;
            to.add("trunk add " + number(id) + ' ' +
                   to.member(local ? one.gport & kLocalGport.mask : one.gport) +
                   field_words(layout("bcm_trunk_member_t"), &one, to.names, nullptr, kGport));
        }
        if (port_set_of(trunk.egress) != port_set_of(plain.egress))
            to.add("trunk egress " + number(id) + ' ' + to.ports(trunk.egress));
        for (const auto &[gport, member] : trunk.member_ids)
            to.add("# no command makes this: number " + number(member) + " of a member of trunk " +
                   number(id));
    }
    for (const auto &[id, vlan] : to.now.vlans.vlans)
        for (const auto &[gport, flags] : vlan.gports)
            to.add("vlan add " + number(id) + " gport=" + number(gport) +
                   (flags == 0 ? "" : " flags=" + number(flags)));
}

void write_multicast(Writer &to) {
    for (const auto &[id, group] : to.now.groups.multicast) {
        to.add("multicast create " + number(id) +
               (group.flags == 0 ? "" : " flags=" + number(group.flags)));
        for (const bool egress : {false, true})
            for (const auto &[gport, encap] : egress ? group.egress : group.ingress)
                to.add("multicast add " + number(id) + (egress ? " egress " : " ingress ") +
                       to.member(gport) + (encap == 0 ? "" : " encap=" + number(encap)));
    }
}

void write_mirrors(Writer &to) {
    const Mirrors &now = to.now.groups.mirrors;
    constexpr std::string_view kId[] = {"mirror_dest_id"};
    for (const auto &[id, one] : now.destinations)
        to.add("mirror create " + number(id) +
               field_words(layout("bcm_mirror_destination_t"), &one, to.names, nullptr, kId));
    for (const auto &[place, list] : now.of_port)
        for (const bcm_gport_t id : list.destinations)
            to.add("mirror add " + number(id) + ' ' + to.port(place.first) + ' ' +
                   number(place.second));
    if (now.mode != 0) to.add("mirror mode " + number(now.mode));
    if (now.to >= 0) to.add("mirror to " + to.port(now.to));
    if (!none(now.ingress)) to.add("mirror ingress " + to.ports(now.ingress) + " yes");
    if (!none(now.egress)) to.add("mirror egress " + to.ports(now.egress) + " yes");
}

void write_policers(Writer &to) {
    for (const auto &[id, one] : to.now.groups.policers)
        to.add("policer create " + number(id) +
               field_words(layout("bcm_policer_config_t"), &one.config, to.names));
}

// Key and version stand in the address.
std::string l3_words(const char *name, const void *entry, bool ip6, std::uint32_t flags,
                     std::array<std::string_view, 3> keys, const PortNames &names) {
    std::string words = field_words(layout(name), entry, names, nullptr, keys);
    if (ip6) flags &= ~kL3Ip6;
    return (flags == 0 ? "" : " l3a_flags=" + number(flags)) + words;
}

void write_l3(Writer &to) {
    const L3 &now = to.now.l3;
    constexpr std::string_view kId[] = {"l3a_intf_id"};
    for (const auto &[id, one] : now.interfaces)
        to.add("l3 intf create " + number(id) +
               field_words(layout("bcm_l3_intf_t"), &one, to.names, nullptr, kId));
    for (const auto &[id, one] : now.egresses)
        to.add("l3 egress create " + number(id) +
               field_words(layout("bcm_l3_egress_t"), &one, to.names));
    for (const auto &[id, paths] : now.multipaths) {
        std::string words;
        for (const bcm_if_t path : paths) words += ' ' + number(path);
        to.add("l3 multipath create" + words + " id=" + number(id));
    }
    if (now.max_ecmp != to.first.l3.max_ecmp) to.add("l3 multipath max " + number(now.max_ecmp));
    for (const auto &[key, one] : now.hosts) {
        const bool ip6 = key.address.ip6;
        to.add("l3 host add " + address_text(address_of(one)) +
               l3_words("bcm_l3_host_t", &one, ip6, one.l3a_flags,
                        {"l3a_flags", ip6 ? "l3a_ip6_addr" : "l3a_ip_addr", ""}, to.names));
    }
    for (const auto &[key, one] : now.routes) {
        const bool ip6 = key.address.ip6;
        to.add("l3 route add " + prefix_text(prefix_of(one)) +
               l3_words("bcm_l3_route_t", &one, ip6, one.l3a_flags,
                        {"l3a_flags", ip6 ? "l3a_ip6_net" : "l3a_subnet",
                         ip6 ? "l3a_ip6_mask" : "l3a_ip_mask"},
                        to.names));
    }
}

void write_group(Writer &to, int id, const FieldGroup &group) {
    std::string words =
        "field group create qualifiers=" + names_text(group.qualifiers.w, field_qualifier_names()) +
        " priority=" + number(group.priority);
    if (group.mode != 0) words += " mode=" + number(group.mode);
    if (port_set_of(group.ports) != port_set_of(kAllPorts))
        words += " ports=" + to.ports(group.ports);
    to.add(words + " id=" + number(id));
}

// What its rules may do counts for actions that come, and not for those that are there.
void write_group_settings(Writer &to, int id, const FieldGroup &group) {
    std::string words = option("actions", names_text(group.actions.w, field_action_names())) +
                        option("presels", names_text(group.presels.w, field_presel_names()));
    if (group.enable == 0) words += " enable=no";
    if (!words.empty()) to.add("field group set " + number(id) + words);
}

void write_rule(Writer &to, int id, const FieldEntry &rule) {
    const std::string own = number(id) + ' ';
    to.add("field entry create " + number(rule.group) +
           (rule.priority == 0 ? "" : " priority=" + number(rule.priority)) + " id=" + number(id));
    for (const auto &[qualifier, bytes] : rule.qualifiers)
        to.add("field qualify " + own + qualifier_words(qualifier.first, bytes));
    for (const auto &[qualifier, ranges] : rule.ranges)
        for (const auto &[range, turned] : ranges)
            to.add("field range check " + own + field_qualifier_names().name(qualifier, true) +
                   ' ' + number(range) + (turned != 0 ? " not" : ""));
    for (const auto &[action, given] : rule.actions)
        to.add("field action add " + own + action_words(action, given, to.names));
    if (rule.stat)
        to.add("field stat attach " + own + number(*rule.stat) +
               (rule.stat_action == 0 ? "" : " action=" + number(rule.stat_action)));
    for (const auto &[level, policer] : rule.policers)
        to.add("field police " + own + number(level) + ' ' + number(policer));
    if (rule.enable == 0) to.add("field entry set " + own + "enable=no");
    if (rule.installed) to.add("field install " + number(id));
}

void write_field(Writer &to) {
    const Field &now = to.now.field;
    for (const auto &[id, group] : now.groups) write_group(to, id, group);
    for (const auto &[id, range] : now.ranges) {
        std::string parts;
        for (const FieldRange::Part &part : range.parts) parts += ' ' + part_text(part);
        to.add("field range create" + parts +
               (range.interfaces == 0 ? "" : " interfaces=" + number(range.interfaces)) +
               " id=" + number(id));
    }
    for (const auto &[id, stat] : now.stats) {
        std::string kinds;
        for (const bcm_field_stat_t kind : stat.kinds)
            kinds += (kinds.empty() ? "" : ",") + field_stat_names().name(kind, true);
        to.add("field stat create " + number(stat.group) + ' ' + kinds + " id=" + number(id));
    }
    for (const auto &[id, rule] : now.entries) write_rule(to, id, rule);
    for (const auto &[id, group] : now.groups) write_group_settings(to, id, group);
}

void write_l2(Writer &to) {
    L2Chapter &now = const_cast<L2Chapter &>(to.now.l2);
    if (now.age_seconds != 0) to.add("l2 age " + number(now.age_seconds));
    for (const auto &[scope, limit] : now.limits) {
        const char *const what = scope.scope == kLimitVlan    ? " vlan="
                                 : scope.scope == kLimitPort  ? " port="
                                 : scope.scope == kLimitTrunk ? " trunk="
                                                              : "";
        to.add("l2 limit flags=" + number(scope.scope) +
               (*what == '\0' ? "" : what + number(scope.number)) + " limit=" + number(limit));
    }
    if (!now.limits_enabled) to.add("l2 limits no");
    constexpr std::string_view kKey[] = {"mac", "vid"};
    L2Table::Cursor cursor;
    while (const L2Row *const row = now.table.next(cursor))
        to.add("l2 put mac=" + mac_text(row->entry.mac) + " vlan=" + number(row->entry.vid) +
               field_words(layout("bcm_l2_addr_t"), &row->entry, to.names, nullptr, kKey));
    for (int freeze = 0; freeze < now.freezes; ++freeze) to.add("l2 freeze");
}

// Families of calls without a model that have a command of their own, which takes the fields of
// their rows.
struct FamilyCommand {
    const char *family;
    const char *command;
};
constexpr FamilyCommand kFamilyCommands[] = {{"bcm_qos_map", "qos create"},
                                             {"bcm_qos_map/members", "qos add"},
                                             {"bcm_qos_port_map", "qos port"},
                                             {"bcm_cosq_port_bandwidth", "cosq bandwidth"},
                                             {"bcm_cosq_gport_bandwidth", "cosq gbandwidth"},
                                             {"bcm_cosq_gport_sched", "cosq gsched"}};

void write_families(Writer &to) {
    for (const FamilyCommand &one : kFamilyCommands) {
        const auto table = to.now.generic.find(one.family);
        const FamilyLayout *const row = family_layout(one.family);
        if (table == to.now.generic.end() || row == nullptr) continue;
        for (const auto &[key, bytes] : table->second.rows)
            to.add(one.command +
                   field_words(row->fields, bytes.bytes.data(), to.names, nullptr, {}, row->key));
    }
}

void write_queues(Writer &to) {
    const auto queues = [](const Switch &chip) -> const Queues & {
        return queues_of(const_cast<Switch &>(chip));
    };
    for (const QueueRows &one : queue_rows) {
        const std::vector<std::string> first = one.of(queues(to.first));
        for (const std::string &row : one.of(queues(to.now)))
            if (std::find(first.begin(), first.end(), row) == first.end())
                to.add(one.layout.family + field_words(one.layout.fields, row.data(), to.names,
                                                       nullptr, {}, one.layout.key));
    }
}

// VLANs and groups that the first state has.
void write_ends(Writer &to) {
    for (const auto &[id, vlan] : to.first.vlans.vlans)
        if (!to.now.vlans.vlans.contains(id)) to.add("vlan destroy " + number(id));
    for (const auto &[id, stg] : to.first.vlans.stgs)
        if (!to.now.vlans.stgs.contains(id)) to.add("stg destroy " + number(id));
}

bool has_command(std::string_view kind) {
    constexpr std::string_view kKinds[] = {
        "vlan_defaults", "stg",         "vlan",        "port",          "trunk",
        "multicast",     "mirror_mode", "mirror",      "mirrored_port", "policer",
        "l3_limits",     "l3_intf",     "l3_egress",   "l3_multipath",  "l3_host",
        "l3_route",      "field_group", "field_range", "field_stat",    "field_entry",
        "l2_table",      "learn_limit", "l2",          "cosq",          "cosq_port"};
    return std::find(std::begin(kKinds), std::end(kKinds), kind) != std::end(kKinds) ||
           std::any_of(std::begin(kFamilyCommands), std::end(kFamilyCommands),
                       [&](const FamilyCommand &one) { return kind == one.family; });
}

void write_rest(Writer &to, const SavedState &saved) {
    for (const StateDifference &one : compare_states(first_state(), saved)) {
        const bool setting = std::any_of(one.fields.begin(), one.fields.end(),
                                         [&](const StateDifference::Field &field) {
                                             return !is_measured(one.kind, field.name);
                                         });
        if (one.kind == "register" && one.is_there)
            for (const StateDifference::Field &word : one.fields)
                to.add("setreg " + one.key +
                       text_of(" 0x%x", static_cast<unsigned>(std::get<std::int64_t>(word.is))));
        else if (!has_command(one.kind) && (setting || one.fields.empty()))
            to.add("# no command makes this: " + one.kind + ' ' + one.key);
    }
}

}  // namespace

bool is_measured(std::string_view kind, std::string_view field) {
    constexpr std::string_view kAlways[] = {
        "in_packets",   "in_bytes",  "out_packets", "out_bytes", "peer",          "link_failed",
        "scanned_link", "told_link", "clock",       "heard",     "linkscan_next", "now"};
    return std::find(std::begin(kAlways), std::end(kAlways), field) != std::end(kAlways) ||
           kind == "shadow" || (kind == "field_stat" && field.starts_with("value["));
}

std::vector<std::string> running_lines(const SavedState &saved, const PortNames &names) {
    const SavedState first = first_state();
    Writer to{*saved, *first, names};
    write_stgs(to);
    write_vlans(to);
    write_ports(to);
    write_trunks(to);
    write_multicast(to);
    write_mirrors(to);
    write_policers(to);
    write_l3(to);
    write_field(to);
    write_l2(to);
    write_queues(to);
    write_families(to);
    write_ends(to);
    write_rest(to, saved);
    return to.lines;
}

}  // namespace standin
