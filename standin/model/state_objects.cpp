// The objects of the chip model, and those of the calls without a model, field by field.
#include <algorithm>
#include <cstring>

#include "standin/model/layouts.h"
#include "standin/model/state.h"
#include "standin/model/switch.h"

namespace standin {
namespace {

const StructLayout &layout_named(const char *name) { return *struct_layout(name); }

std::string ip_text(const IpAddress &address) {
    return hex_text(address.bytes.data(), address.ip6 ? 16 : 4);
}

std::int64_t number_at(const char *memory, const LayoutField &field) {
    std::uint64_t value = 0;
    std::memcpy(&value, memory, field.size);
    const unsigned unused = 64 - 8 * field.size;
    if (field.form == LayoutForm::kUnsigned) return static_cast<std::int64_t>(value);
    return static_cast<std::int64_t>(value << unused) >> unused;
}

bool is_zero(const char *memory, std::size_t size) {
    return std::all_of(memory, memory + size, [](char byte) { return byte == 0; });
}

void visit_element(StateVisitor &to, const std::string &name, const LayoutField &field,
                   const char *memory) {
    if (is_zero(memory, field.size)) return;
    switch (field.form) {
        case LayoutForm::kSigned:
        case LayoutForm::kUnsigned:
            return to.number(name, number_at(memory, field));
        case LayoutForm::kMac:
            return to.text(name, mac_text(reinterpret_cast<const std::uint8_t *>(memory)));
        case LayoutForm::kPortSet: {
            bcm_pbmp_t ports;
            std::memcpy(&ports, memory, sizeof ports);
            return to.text(name, ports_text(ports));
        }
        case LayoutForm::kStruct:
            return visit_struct(to, name + ".", struct_layouts[field.inner], memory);
        case LayoutForm::kBytes:
            return to.text(name, hex_text(memory, field.size));
        case LayoutForm::kPointer:
            return;
    }
}

void visit_fields(StateVisitor &to, const std::string &prefix, std::span<const LayoutField> fields,
                  const char *memory) {
    for (const LayoutField &field : fields) {
        const std::string name = prefix + field.name;
        const char *const at = memory + field.offset;
        if (field.count == 1) {
            visit_element(to, name, field, at);
            continue;
        }
        for (std::uint32_t i = 0; i < field.count; ++i)
            visit_element(to, name + "[" + std::to_string(i) + "]", field, at + i * field.size);
    }
}

// A map of structures that are known by a number.
template <class Map>
void visit_structs(StateVisitor &to, const char *kind, const char *layout, const Map &map) {
    for (const auto &[id, one] : map) {
        to.object(kind, std::to_string(id));
        visit_struct(to, "", layout_named(layout), &one);
    }
}

void visit_port(StateVisitor &to, const Port &port) {
    const std::pair<const char *, std::int64_t> numbers[] = {
        {"enable", port.enable},
        {"speed", port.speed},
        {"speed_max", port.speed_max},
        {"autoneg", port.autoneg},
        {"duplex", port.duplex},
        {"frame_max", port.frame_max},
        {"loopback", port.loopback},
        {"discard", port.discard},
        {"ifilter", port.ifilter},
        {"bpdu_enable", port.bpdu_enable},
        {"l3_enable", port.l3_enable},
        {"master", port.master},
        {"jam", port.jam},
        {"pfm", port.pfm},
        {"linkscan", port.linkscan},
        {"untagged_priority", port.untagged_priority},
        {"learn", port.learn},
        {"untagged_vlan", port.untagged_vlan},
        {"pause_tx", port.pause_tx},
        {"pause_rx", port.pause_rx},
        {"peer", port.peer},
        {"link_failed", port.link_failed},
        {"scanned_link", port.scanned_link},
        {"in_packets", static_cast<std::int64_t>(port.in.packets)},
        {"in_bytes", static_cast<std::int64_t>(port.in.bytes)},
        {"out_packets", static_cast<std::int64_t>(port.out.packets)},
        {"out_bytes", static_cast<std::int64_t>(port.out.bytes)},
    };
    for (const auto &[name, value] : numbers) to.number(name, value);
    if (port.told_link) to.number("told_link", *port.told_link);
    to.text("name", port.name);
    to.text("pause_address", mac_text(port.pause_address.data()));
    to.text("advertised", hex_text(&port.advertised, sizeof port.advertised));
    for (const auto &[type, value] : port.controls)
        to.number("control[" + std::to_string(type) + "]", value);
}

void visit_vlans(StateVisitor &to, const Vlans &vlans) {
    to.object("vlan_defaults", "");
    to.number("vlan", vlans.default_vlan);
    to.number("stg", vlans.default_stg);
    for (const auto &[id, stg] : vlans.stgs) {
        to.object("stg", std::to_string(id));
        for (int port = 0; port < kPorts; ++port)
            to.number("state[" + std::to_string(port) + "]",
                      stg.state[static_cast<std::size_t>(port)]);
    }
    for (const auto &[vid, vlan] : vlans.vlans) {
        to.object("vlan", std::to_string(vid));
        to.text("members", ports_text(vlan.members));
        to.text("untagged", ports_text(vlan.untagged));
        to.number("stg", vlan.stg);
        for (const auto &[gport, flags] : vlan.gports)
            to.number("gport[" + std::to_string(gport) + "]", flags);
    }
}

void visit_trunks(StateVisitor &to, const Groups &groups) {
    for (const auto &[id, trunk] : groups.trunks) {
        to.object("trunk", std::to_string(id));
        visit_struct(to, "info.", layout_named("bcm_trunk_info_t"), &trunk.info);
        for (std::size_t i = 0; i < trunk.members.size(); ++i)
            visit_struct(to, "member[" + std::to_string(i) + "].",
                         layout_named("bcm_trunk_member_t"), &trunk.members[i]);
        for (const auto &[gport, number] : trunk.member_ids)
            to.number("member_id[" + std::to_string(gport) + "]", number);
        to.text("egress", ports_text(trunk.egress));
    }
}

void visit_multicast(StateVisitor &to, const Groups &groups) {
    for (const auto &[id, group] : groups.multicast) {
        to.object("multicast", std::to_string(id));
        to.number("flags", group.flags);
        for (const bool egress : {false, true})
            for (const auto &[gport, encap] : egress ? group.egress : group.ingress)
                to.number((egress ? "egress[" : "ingress[") + std::to_string(gport) + " " +
                              std::to_string(encap) + "]",
                          1);
    }
}

void visit_mirrors(StateVisitor &to, const Mirrors &mirrors) {
    to.object("mirror_mode", "");
    to.number("mode", mirrors.mode);
    to.number("to", mirrors.to);
    to.text("ingress", ports_text(mirrors.ingress));
    to.text("egress", ports_text(mirrors.egress));
    visit_structs(to, "mirror", "bcm_mirror_destination_t", mirrors.destinations);
    for (const auto &[place, mirrored] : mirrors.of_port) {
        to.object("mirrored_port",
                  std::to_string(place.first) + " " + std::to_string(place.second));
        for (const bcm_gport_t id : mirrored.destinations)
            to.number("destination[" + std::to_string(id) + "]", 1);
    }
}

void visit_l3(StateVisitor &to, const L3 &l3) {
    to.object("l3_limits", "");
    to.number("max_ecmp", l3.max_ecmp);
    visit_structs(to, "l3_intf", "bcm_l3_intf_t", l3.interfaces);
    visit_structs(to, "l3_egress", "bcm_l3_egress_t", l3.egresses);
    for (const auto &[id, paths] : l3.multipaths) {
        to.object("l3_multipath", std::to_string(id));
        for (std::size_t i = 0; i < paths.size(); ++i)
            to.number("path[" + std::to_string(i) + "]", paths[i]);
    }
    for (const auto &[key, host] : l3.hosts) {
        to.object("l3_host", std::to_string(key.vrf) + " " + ip_text(key.address));
        visit_struct(to, "", layout_named("bcm_l3_host_t"), &host);
    }
    for (const auto &[key, route] : l3.routes) {
        to.object("l3_route", std::to_string(key.vrf) + " " + ip_text(key.address) + "/" +
                                  std::to_string(key.length));
        visit_struct(to, "", layout_named("bcm_l3_route_t"), &route);
    }
}

void visit_action(StateVisitor &to, const std::string &name, const FieldAction &action) {
    to.number(name + ".param0", action.param0);
    to.number(name + ".param1", action.param1);
    if (action.mac) to.text(name + ".mac", mac_text(action.mac->data()));
    if (action.ports) to.text(name + ".ports", ports_text(*action.ports));
}

void visit_rule(StateVisitor &to, const FieldEntry &rule) {
    to.number("group", rule.group);
    to.number("priority", rule.priority);
    to.number("enable", rule.enable);
    to.number("installed", rule.installed);
    for (const auto &[qualifier, bytes] : rule.qualifiers)
        to.text("qualifier[" + std::to_string(qualifier.first) + " " +
                    std::to_string(qualifier.second) + "]",
                hex_text(bytes.data(), bytes.size()));
    for (const auto &[qualifier, checks] : rule.ranges)
        for (const auto &[range, invert] : checks)
            to.number("range[" + std::to_string(qualifier) + " " + std::to_string(range) + "]",
                      1 + invert);
    for (const auto &[action, given] : rule.actions)
        visit_action(to, "action[" + std::to_string(action) + "]", given);
    if (rule.stat) to.number("stat", *rule.stat);
    to.number("stat_action", rule.stat_action);
    for (const auto &[level, policer] : rule.policers)
        to.number("policer[" + std::to_string(level) + "]", policer);
}

void visit_field(StateVisitor &to, const Field &field) {
    for (const auto &[id, group] : field.groups) {
        to.object("field_group", std::to_string(id));
        to.text("qualifiers", hex_text(&group.qualifiers, sizeof group.qualifiers));
        to.text("actions", hex_text(&group.actions, sizeof group.actions));
        to.text("ports", ports_text(group.ports));
        to.number("priority", group.priority);
        to.number("mode", group.mode);
        to.number("enable", group.enable);
        to.text("presels", hex_text(&group.presels, sizeof group.presels));
    }
    for (const auto &[id, range] : field.ranges) {
        to.object("field_range", std::to_string(id));
        to.number("interfaces", range.interfaces);
        for (const FieldRange::Part &part : range.parts)
            to.number("part[" + std::to_string(part.flags) + " " + std::to_string(part.min) + "-" +
                          std::to_string(part.max) + "]",
                      1);
    }
    for (const auto &[id, stat] : field.stats) {
        to.object("field_stat", std::to_string(id));
        to.number("group", stat.group);
        for (std::size_t i = 0; i < stat.kinds.size(); ++i)
            to.number("kind[" + std::to_string(i) + "]", stat.kinds[i]);
        for (const auto &[kind, value] : stat.values)
            to.number("value[" + std::to_string(kind) + "]", static_cast<std::int64_t>(value));
    }
    for (const auto &[id, rule] : field.entries) {
        to.object("field_entry", std::to_string(id));
        visit_rule(to, rule);
    }
}

void visit_l2(StateVisitor &to, L2Chapter &l2) {
    to.object("l2_table", "");
    to.number("age_seconds", l2.age_seconds);
    to.number("clock", static_cast<std::int64_t>(l2.clock));
    to.number("freezes", l2.freezes);
    to.number("limits_enabled", l2.limits_enabled);
    for (const auto &[scope, limit] : l2.limits) {
        to.object("learn_limit", std::to_string(scope.scope) + " " + std::to_string(scope.number));
        to.number("limit", limit);
    }
    const StructLayout &layout = layout_named("bcm_l2_addr_t");
    L2Table::Cursor cursor;
    while (const L2Row *const row = l2.table.next(cursor)) {
        to.object("l2", mac_text(row->entry.mac) + " " + std::to_string(row->entry.vid));
        to.number("heard", static_cast<std::int64_t>(row->heard));
        visit_struct(to, "", layout, &row->entry);
    }
}

// Rows that belong to others come after them: their family is the longer name. What is registered
// is no state, and an address is another one in each process.
void visit_generic(StateVisitor &to, const GenericTables &tables) {
    for (const auto &[family, table] : tables) {
        if (family.ends_with("_register")) continue;
        const FamilyLayout *const layout = family_layout(family);
        for (const auto &[key, row] : table.rows) {
            to.object(family, hex_text(key.data(), key.size()));
            if (layout == nullptr)
                to.text("bytes", hex_text(row.bytes.data(), row.bytes.size()));
            else
                visit_fields(to, "", layout->fields, row.bytes.data());
            for (std::size_t i = 0; i < row.lists.size(); ++i)
                to.text("list[" + std::to_string(i) + "]",
                        hex_text(row.lists[i].data(), row.lists[i].size()));
        }
    }
}

}  // namespace

void visit_struct(StateVisitor &to, const std::string &prefix, const StructLayout &layout,
                  const void *memory) {
    visit_fields(to, prefix, layout.fields, static_cast<const char *>(memory));
}

void visit_state(Switch &chip, StateVisitor &to) {
    to.object("time", "");
    to.number("now", static_cast<std::int64_t>(chip.now));
    to.number("linkscan_interval", chip.linkscan.interval);
    to.number("linkscan_next", static_cast<std::int64_t>(chip.linkscan.next));
    visit_vlans(to, chip.vlans);
    for (int port = 0; port < kPorts; ++port) {
        to.object("port", std::to_string(port));
        visit_port(to, *chip.ports.find(port));
    }
    visit_trunks(to, chip.groups);
    visit_multicast(to, chip.groups);
    visit_mirrors(to, chip.groups.mirrors);
    for (const auto &[id, policer] : chip.groups.policers) {
        to.object("policer", std::to_string(id));
        visit_struct(to, "", layout_named("bcm_policer_config_t"), &policer.config);
    }
    visit_l3(to, chip.l3);
    visit_field(to, chip.field);
    visit_l2(to, chip.l2);
    visit_generic(to, chip.generic);
    for (const std::string &chapter : chip.stopped) to.object("stopped", chapter);
    chip.layers.visit(to);
}

}  // namespace standin
