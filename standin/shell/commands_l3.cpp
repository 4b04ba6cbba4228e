// Commands on routing: interfaces, egress objects, multipath groups, hosts and routes.
#include <algorithm>
#include <cstring>

#include "sdk/bcm/l3.h"
#include "standin/base/output.h"
#include "standin/model/model.h"
#include "standin/model/switch.h"
#include "standin/model/tables.h"
#include "standin/shell/address_words.h"
#include "standin/shell/commands.h"
#include "standin/shell/fields.h"
#include "standin/text/unit_ports.h"

namespace standin {
namespace {

constexpr const char *kFieldWords = "FIELD=VALUE";

// The interfaces have no walk of their own.
std::vector<bcm_l3_intf_t> interfaces_of(int unit) {
    std::vector<bcm_l3_intf_t> all;
    on_switch("l3 intf show", unit, [&](Switch &chip) {
        for (const auto &[id, one] : chip.l3.interfaces) all.push_back(one);
        return BCM_E_NONE;
    });
    return all;
}

constexpr RowColumn kIntfColumns[] = {
    {"l3a_intf_id", ">Interface", CellKind::kNumber}, {"l3a_vid", ">VLAN", CellKind::kNumber},
    {"l3a_mac_addr", "MAC address", CellKind::kText}, {"l3a_vrf", ">VRF", CellKind::kNumber},
    {"l3a_mtu", ">MTU", CellKind::kNumber},           {"l3a_flags", ">Flags", CellKind::kNumber}};

cmd_result_t intf_show(CommandCall &call) {
    StructRows rows(call);
    for (const bcm_l3_intf_t &one : interfaces_of(call.unit()))
        if (!call.has("ID") || one.l3a_intf_id == call.number("ID")) rows.row({}, &one);
    return rows.show("ID");
}

// The number that was asked for is no flag of the interface.
cmd_result_t intf_create(CommandCall &call) {
    bcm_l3_intf_t intf{};
    write_fields(call, kFieldWords, &intf);
    const uint32 flags = intf.l3a_flags;
    const bool given = call.has("ID");
    intf.l3a_intf_id = call.number("ID");
    intf.l3a_flags |= given ? kWithId : 0;
    const int status = bcm_l3_intf_create(call.unit(), &intf);
    if (status < 0) return report(call, status);
    if (!given) outf("%d\n", intf.l3a_intf_id);
    return report(call, on_switch("l3 intf create", call.unit(), [&](Switch &chip) {
                      chip.l3.interfaces[intf.l3a_intf_id].l3a_flags = flags;
                      return BCM_E_NONE;
                  }));
}

cmd_result_t intf_delete(CommandCall &call) {
    bcm_l3_intf_t intf{};
    intf.l3a_intf_id = call.number("ID");
    return report(call, bcm_l3_intf_delete(call.unit(), &intf));
}

// What a walk hands out, with its number.
template <class T>
using Found = std::vector<std::pair<int, T>>;

template <class T>
int collect(int, int number, T *one, void *user) {
    static_cast<Found<T> *>(user)->emplace_back(number, *one);
    return BCM_E_NONE;
}

constexpr RowColumn kEgressColumns[] = {
    {"egress", ">Egress", CellKind::kNumber},     {"intf", ">Interface", CellKind::kNumber},
    {"mac_addr", "MAC address", CellKind::kText}, {"vlan", ">VLAN", CellKind::kNumber},
    {"port", ">Port", CellKind::kNumber},         {"trunk", ">Trunk", CellKind::kNumber},
    {"flags", ">Flags", CellKind::kNumber}};

cmd_result_t egress_show(CommandCall &call) {
    Found<bcm_l3_egress_t> all;
    const int status = bcm_l3_egress_traverse(call.unit(), collect<bcm_l3_egress_t>, &all);
    if (status < 0) return report(call, status);
    StructRows rows(call);
    for (const auto &[id, one] : all)
        if (!call.has("ID") || id == call.number("ID")) rows.row({id}, &one);
    return rows.show("ID");
}

cmd_result_t egress_create(CommandCall &call) {
    bcm_l3_egress_t egress{};
    write_fields(call, kFieldWords, &egress);
    const bool given = call.has("ID");
    const uint32 flags = (given ? kWithId : 0) | (call.flag("replace") ? kReplace : 0);
    bcm_if_t id = call.number("ID");
    const int status = bcm_l3_egress_create(call.unit(), flags, &egress, &id);
    if (status >= 0 && !given) outf("%d\n", id);
    return report(call, status);
}

cmd_result_t egress_destroy(CommandCall &call) {
    return report(call, bcm_l3_egress_destroy(call.unit(), call.number("ID")));
}

constexpr RowColumn kMultipathColumns[] = {{"mpintf", ">Group", CellKind::kNumber},
                                           {"intf_array", "Paths", CellKind::kNumbers}};

int collect_paths(int, bcm_if_t id, int count, bcm_if_t *paths, void *user) {
    static_cast<std::vector<std::pair<int, Cell::Numbers>> *>(user)->emplace_back(
        id, Cell::Numbers(paths, paths + count));
    return BCM_E_NONE;
}

cmd_result_t multipath_show(CommandCall &call) {
    std::vector<std::pair<int, Cell::Numbers>> all;
    const int status = bcm_l3_egress_multipath_traverse(call.unit(), collect_paths, &all);
    if (status < 0) return report(call, status);
    Rows rows(kMultipathColumns);
    for (const auto &[id, paths] : all)
        if (!call.has("ID") || id == call.number("ID")) rows.row({id, Cell(paths, "")});
    if (call.has("ID") && rows.size() == 0) return report(call, BCM_E_NOT_FOUND);
    rows.show();
    return kOk;
}

cmd_result_t multipath_create(CommandCall &call) {
    std::vector<bcm_if_t> paths;
    for (const Value *one : call.all("PATH")) paths.push_back(static_cast<bcm_if_t>(one->number));
    bcm_if_t id = call.number("id");
    const bool given = call.has("id");
    const int status = bcm_l3_egress_multipath_create(
        call.unit(), given ? kWithId : 0, static_cast<int>(paths.size()), paths.data(), &id);
    if (status >= 0 && !given) outf("%d\n", id);
    return report(call, status);
}

template <int (*change)(int, bcm_if_t, bcm_if_t)>
cmd_result_t multipath_change(CommandCall &call) {
    return report(call, change(call.unit(), call.number("ID"), call.number("PATH")));
}

cmd_result_t multipath_destroy(CommandCall &call) {
    return report(call, bcm_l3_egress_multipath_destroy(call.unit(), call.number("ID")));
}

cmd_result_t multipath_max(CommandCall &call) {
    return report(call, bcm_l3_route_max_ecmp_set(call.unit(), call.number("PATHS")));
}

// Both versions, the old one first.
template <class T>
Found<T> both_versions(int unit, int (*walk)(int, uint32, uint32, uint32,
                                             int (*)(int, int, T *, void *), void *)) {
    Found<T> all;
    walk(unit, 0, 0, ~0U, collect<T>, &all);
    walk(unit, kL3Ip6, 0, ~0U, collect<T>, &all);
    return all;
}

constexpr RowColumn kHostColumns[] = {{"address", "Address", CellKind::kText},
                                      {"l3a_vrf", ">VRF", CellKind::kNumber},
                                      {"l3a_intf", ">Goes to", CellKind::kNumber},
                                      {"l3a_flags", ">Flags", CellKind::kNumber}};

cmd_result_t host_show(CommandCall &call) {
    StructRows rows(call);
    for (const auto &[index, one] : both_versions(call.unit(), bcm_l3_host_traverse))
        if (!call.has("ADDRESS") || address_of(one) == call["ADDRESS"].ip)
            rows.row({address_text(address_of(one))}, &one);
    return rows.show("ADDRESS");
}

cmd_result_t route_show(CommandCall &call) {
    StructRows rows(call);
    for (const auto &[index, one] : both_versions(call.unit(), bcm_l3_route_traverse)) {
        const RoutePrefix prefix = prefix_of(one);
        const bool asked =
            prefix.address == call["PREFIX"].ip && prefix.length == call["PREFIX"].number;
        if (!call.has("PREFIX") || asked) rows.row({prefix_text(prefix)}, &one);
    }
    return rows.show("PREFIX");
}

// The address of a host or route, in the form of its version.
void put_address(const IpAddress &from, bcm_ip_t &ip4, bcm_ip6_t &ip6) {
    if (from.ip6)
        std::memcpy(ip6, from.bytes.data(), sizeof ip6);
    else
        for (int at = 0; at < 4; ++at) ip4 = ip4 << 8 | from.bytes[static_cast<std::size_t>(at)];
}

bcm_l3_host_t host_of(const CommandCall &call) {
    bcm_l3_host_t host{};
    const IpAddress &address = call["ADDRESS"].ip;
    host.l3a_vrf = call.number("vrf");
    write_fields(call, kFieldWords, &host);
    host.l3a_flags |= (address.ip6 ? kL3Ip6 : 0) | (call.flag("replace") ? kReplace : 0);
    put_address(address, host.l3a_ip_addr, host.l3a_ip6_addr);
    return host;
}

bcm_l3_route_t route_of(const CommandCall &call) {
    bcm_l3_route_t route{};
    const IpAddress &address = call["PREFIX"].ip;
    IpAddress mask = address;
    mask.bytes.fill(0xff);
    if (!mask.ip6) std::fill(mask.bytes.begin() + 4, mask.bytes.end(), std::uint8_t{0});
    mask = masked(mask, call.number("PREFIX"));
    route.l3a_vrf = call.number("vrf");
    write_fields(call, kFieldWords, &route);
    route.l3a_flags |= (address.ip6 ? kL3Ip6 : 0) | (call.flag("replace") ? kReplace : 0);
    put_address(address, route.l3a_subnet, route.l3a_ip6_net);
    put_address(mask, route.l3a_ip_mask, route.l3a_ip6_mask);
    return route;
}

template <auto make, auto change>
cmd_result_t do_entry(CommandCall &call) {
    auto entry = make(call);
    return report(call, change(call.unit(), &entry));
}

// The route that a packet to an address takes.
cmd_result_t route_find(CommandCall &call) {
    bcm_l3_host_t host = host_of(call);
    bcm_l3_route_t route{};
    const int status = bcm_l3_route_find(call.unit(), &host, &route);
    if (status < 0) return report(call, status);
    StructRows rows(call);
    const RoutePrefix prefix = prefix_of(route);
    rows.row({prefix_text(prefix)}, &route);
    return rows.show("ADDRESS");
}

std::vector<Candidate> list_interfaces(int unit) {
    std::vector<Candidate> all;
    for (const auto &one : interfaces_of(unit))
        all.push_back({std::to_string(one.l3a_intf_id), ""});
    return all;
}

std::vector<Candidate> list_egresses(int unit) {
    Found<bcm_l3_egress_t> found;
    bcm_l3_egress_traverse(unit, collect<bcm_l3_egress_t>, &found);
    std::vector<Candidate> all;
    for (const auto &one : found) all.push_back({std::to_string(one.first), ""});
    return all;
}

constexpr Param kFields =
    place(kFieldWords, Kind::kStructField, "A field and what it shall be").many();
constexpr Param kReplaceFlag = flag("replace", "Also where it is there already");
constexpr Param kIntf =
    place("ID", kFirstInterface, static_cast<int>(kL3Interfaces), "The interface")
        .there(list_interfaces);
constexpr Param kEgress =
    place("ID", kFirstEgress, kFirstEgress + static_cast<int>(kL3Egresses) - 1, "The egress object")
        .there(list_egresses);
constexpr Param kMultipath =
    place("ID", kFirstMultipath, kFirstMultipath + static_cast<int>(kL3Multipaths) - 1,
          "The multipath group");
constexpr Param kPath = place("PATH", 0, INT32_MAX, "An egress object").there(list_egresses);
constexpr Param kAddress = place("ADDRESS", Kind::kIp, "The address");
constexpr Param kPrefix = place("PREFIX", Kind::kPrefix, "The prefix");
constexpr Param kVrf = option("vrf", 0, INT32_MAX, "The VRF");

constexpr Param kIntfShow[] = {kIntf};
constexpr Param kIntfCreate[] = {
    place("ID", kFirstInterface, static_cast<int>(kL3Interfaces), "The interface"), kFields};
constexpr Param kIntfOnly[] = {kIntf.need()};
constexpr Param kEgressShow[] = {kEgress};
constexpr Param kEgressCreate[] = {
    place("ID", kFirstEgress, kFirstEgress + static_cast<int>(kL3Egresses) - 1,
          "The egress object"),
    kReplaceFlag, kFields};
constexpr Param kEgressOnly[] = {kEgress.need()};
constexpr Param kMultipathShow[] = {kMultipath};
constexpr Param kMultipathCreate[] = {
    option("id", kFirstMultipath, kFirstMultipath + static_cast<int>(kL3Multipaths) - 1,
           "The group"),
    kPath.need().many()};
constexpr Param kMultipathPath[] = {kMultipath.need(), kPath.need()};
constexpr Param kMultipathOnly[] = {kMultipath.need()};
constexpr Param kMultipathMax[] = {place("PATHS", 1, kMultipathMembers, "How many at most").need()};
constexpr Param kHostShow[] = {kAddress};
constexpr Param kHostAdd[] = {kAddress.need(), kVrf, kReplaceFlag, kFields};
constexpr Param kHostOnly[] = {kAddress.need(), kVrf};
constexpr Param kRouteShow[] = {kPrefix};
constexpr Param kRouteAdd[] = {kPrefix.need(), kVrf, kReplaceFlag, kFields};
constexpr Param kRouteOnly[] = {kPrefix.need(), kVrf};
constexpr RowColumn kRouteColumns[] = {{"prefix", "Prefix", CellKind::kText},
                                       {"l3a_vrf", ">VRF", CellKind::kNumber},
                                       {"l3a_intf", ">Goes to", CellKind::kNumber},
                                       {"l3a_flags", ">Flags", CellKind::kNumber}};

constexpr Form kForms[] = {
    {"intf show", "The interfaces", "l3 intf show 1", intf_show, kIntfShow, kIntfColumns,
     "bcm_l3_intf_t"},
    {"intf create",
     "Make an interface; without a number the shell prints the one it got",
     "l3 intf create 1 l3a_vid=1 l3a_mac_addr=02:00:00:00:00:01",
     intf_create,
     kIntfCreate,
     {},
     "bcm_l3_intf_t",
     true},
    {"intf delete", "Remove an interface", "l3 intf delete 1", intf_delete, kIntfOnly},
    {"egress show", "The egress objects", "l3 egress show 100000", egress_show, kEgressShow,
     kEgressColumns, "bcm_l3_egress_t"},
    {"egress create",
     "Make an egress object; without a number the shell prints the one it got",
     "l3 egress create 100000 intf=1 port=3 mac_addr=02:00:00:00:00:02",
     egress_create,
     kEgressCreate,
     {},
     "bcm_l3_egress_t"},
    {"egress destroy", "Remove an egress object", "l3 egress destroy 100000", egress_destroy,
     kEgressOnly},
    {"multipath show", "The multipath groups", "l3 multipath show 200000", multipath_show,
     kMultipathShow, kMultipathColumns},
    {"multipath create", "Make a group of egress objects", "l3 multipath create 100000 id=200000",
     multipath_create, kMultipathCreate},
    {"multipath add", "Add a path", "l3 multipath add 200000 100000",
     multipath_change<bcm_l3_egress_multipath_add>, kMultipathPath},
    {"multipath remove", "Take a path out", "l3 multipath remove 200000 100000",
     multipath_change<bcm_l3_egress_multipath_delete>, kMultipathPath},
    {"multipath max", "Choose how many paths new groups may have", "l3 multipath max 64",
     multipath_max, kMultipathMax},
    {"multipath destroy", "Remove a group", "l3 multipath destroy 200000", multipath_destroy,
     kMultipathOnly},
    {"host show", "The hosts", "l3 host show 10.0.0.1", host_show, kHostShow, kHostColumns,
     "bcm_l3_host_t"},
    {"host add",
     "Add a host",
     "l3 host add 10.0.0.1 l3a_intf=100000",
     do_entry<host_of, bcm_l3_host_add>,
     kHostAdd,
     {},
     "bcm_l3_host_t"},
    {"host delete", "Take a host out", "l3 host delete 10.0.0.1",
     do_entry<host_of, bcm_l3_host_delete>, kHostOnly},
    {"route show", "The routes", "l3 route show 10.0.0.0/8", route_show, kRouteShow, kRouteColumns,
     "bcm_l3_route_t"},
    {"route find", "The route that leads to an address", "l3 route find 10.1.2.3", route_find,
     kHostOnly, kRouteColumns, "bcm_l3_route_t"},
    {"route add",
     "Add a route",
     "l3 route add 10.0.0.0/8 l3a_intf=100000",
     do_entry<route_of, bcm_l3_route_add>,
     kRouteAdd,
     {},
     "bcm_l3_route_t"},
    {"route delete", "Take a route out", "l3 route delete 10.0.0.0/8",
     do_entry<route_of, bcm_l3_route_delete>, kRouteOnly}};
constexpr Command kL3 = configuring({"l3", "Interfaces, egress objects, hosts and routes", kForms});

constexpr const Command *kCommands[] = {&kL3};
static_assert(complete(kCommands));

}  // namespace

std::span<const Command *const> l3_commands() { return kCommands; }

}  // namespace standin
