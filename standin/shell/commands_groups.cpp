// Commands on groups of ports and what is shared between flows: trunks, multicast groups, mirrors
// and policers.
#include "sdk/bcm/mirror.h"
#include "sdk/bcm/multicast.h"
#include "sdk/bcm/policer.h"
#include "sdk/bcm/trunk.h"
#include "standin/base/output.h"
#include "standin/base/scan.h"
#include "standin/model/groups.h"
#include "standin/model/model.h"
#include "standin/model/switch.h"
#include "standin/model/tables.h"
#include "standin/shell/commands.h"
#include "standin/shell/fields.h"
#include "standin/text/unit_ports.h"

namespace standin {
namespace {

constexpr const char *kFieldWords = "FIELD=VALUE";

// The members that a command names: its ports by number, or the one global port.
std::vector<int> members_of(const CommandCall &call) {
    std::vector<int> all;
    const PortSet ports = call.given_ports("PORTS");
    for (std::size_t at = 0; at < ports.size(); ++at)
        if (ports[at]) all.push_back(static_cast<int>(at));
    if (call.has("gport")) all.push_back(call.number("gport"));
    return all;
}

template <class Each>
cmd_result_t for_members(const CommandCall &call, Each &&each) {
    for (const int member : members_of(call)) {
        const cmd_result_t result = report(call, each(member));
        if (result != kOk) return result;
    }
    return kOk;
}

Cell gports_cell(const std::vector<int> &gports, const PortNames &names) {
    std::string words;
    for (const int one : gports) {
        const bool local = gport_type(one) == 0 || gport_type(one) == kLocalGport.type;
        words += words.empty() ? "" : ",";
        words += local ? port_text(plain_port(one), names) : text_of("0x%x", one);
    }
    return {Cell::Numbers(gports.begin(), gports.end()), words.empty() ? "none" : words};
}

// --- trunks

int trunk_get(int unit, int id, bcm_trunk_info_t &info, std::vector<bcm_trunk_member_t> &members) {
    int count = 0;
    members.resize(kTrunkMembers);
    const int status = bcm_trunk_get(unit, id, &info, kTrunkMembers, members.data(), &count);
    members.resize(status < 0 ? 0 : static_cast<std::size_t>(count));
    return status;
}

constexpr RowColumn kTrunkColumns[] = {{"tid", ">Trunk", CellKind::kNumber},
                                       {"members", "Members", CellKind::kNumbers},
                                       {"egress", nullptr, CellKind::kNumbers},
                                       {"psc", ">PSC", CellKind::kNumber}};

cmd_result_t trunk_show(CommandCall &call) {
    const PortNames names = unit_ports(call.unit());
    StructRows rows(call);
    for (int id = 0; id < kTrunks; ++id) {
        if (call.has("ID") && id != call.number("ID")) continue;
        bcm_trunk_info_t info{};
        std::vector<bcm_trunk_member_t> members;
        if (trunk_get(call.unit(), id, info, members) < 0) continue;
        std::vector<int> gports;
        for (const bcm_trunk_member_t &one : members) gports.push_back(one.gport);
        bcm_pbmp_t egress{};
        bcm_trunk_egress_get(call.unit(), id, &egress);
        rows.row({id, gports_cell(gports, names), ports_cell(port_set_of(egress), names)}, &info);
    }
    return rows.show("ID");
}

// Without fields a trunk has the settings with which it is made.
cmd_result_t trunk_create(CommandCall &call) {
    bcm_trunk_t id = call.number("ID");
    const bool given = call.has("ID");
    int status = bcm_trunk_create(call.unit(), given ? BCM_TRUNK_FLAG_WITH_ID : 0, &id);
    if (status >= 0 && call.has(kFieldWords)) {
        bcm_trunk_info_t info{};
        std::vector<bcm_trunk_member_t> none;
        trunk_get(call.unit(), id, info, none);
        write_fields(call, kFieldWords, &info);
        status = bcm_trunk_set(call.unit(), id, &info, 0, nullptr);
    }
    if (status >= 0 && !given) outf("%d\n", id);
    return report(call, status);
}

cmd_result_t trunk_set(CommandCall &call) {
    bcm_trunk_info_t info{};
    std::vector<bcm_trunk_member_t> members;
    const int id = call.number("ID");
    const int status = trunk_get(call.unit(), id, info, members);
    if (status < 0) return report(call, status);
    write_fields(call, kFieldWords, &info);
    return report(call, bcm_trunk_set(call.unit(), id, &info, static_cast<int>(members.size()),
                                      members.data()));
}

cmd_result_t trunk_add(CommandCall &call) {
    bcm_trunk_member_t member{};
    write_fields(call, kFieldWords, &member);
    return for_members(call, [&](int gport) {
        member.gport = gport;
        return bcm_trunk_member_add(call.unit(), call.number("ID"), &member);
    });
}

cmd_result_t trunk_remove(CommandCall &call) {
    return for_members(call, [&](int gport) {
        bcm_trunk_member_t member{};
        member.gport = gport;
        return bcm_trunk_member_delete(call.unit(), call.number("ID"), &member);
    });
}

cmd_result_t trunk_egress(CommandCall &call) {
    return report(call, bcm_trunk_egress_set(call.unit(), call.number("ID"),
                                             pbmp_of(call.given_ports("PORTS"))));
}

cmd_result_t trunk_destroy(CommandCall &call) {
    return report(call, bcm_trunk_destroy(call.unit(), call.number("ID")));
}

constexpr Param kFields =
    place(kFieldWords, Kind::kStructField, "A field and what it shall be").many();
constexpr Param kMembers[] = {place("PORTS", Kind::kPortList, "The ports")};
constexpr Param kGport = option("gport", Kind::kPort, "A port of another switch or of the system");

constexpr Param kTrunk = place("ID", 0, kTrunks - 1, "The trunk").there(list_trunks);
constexpr Param kTrunkShow[] = {kTrunk};
constexpr Param kTrunkCreate[] = {place("ID", 0, kTrunks - 1, "The trunk"), kFields};
constexpr Param kTrunkSet[] = {kTrunk.need(), kFields.need()};
constexpr Param kTrunkAdd[] = {kTrunk.need(), kMembers[0], kGport, kFields};
constexpr Param kTrunkRemove[] = {kTrunk.need(), kMembers[0], kGport};
constexpr Param kTrunkEgress[] = {kTrunk.need(), kMembers[0].need()};
constexpr Param kTrunkOnly[] = {kTrunk.need()};
constexpr Form kTrunkForms[] = {{"show", "The trunks and their members", "trunk show 3", trunk_show,
                                 kTrunkShow, kTrunkColumns, "bcm_trunk_info_t"},
                                {"create",
                                 "Make a trunk; without a number the shell prints the one it got",
                                 "trunk create 3 psc=9",
                                 trunk_create,
                                 kTrunkCreate,
                                 {},
                                 "bcm_trunk_info_t",
                                 true},
                                {"set",
                                 "Change a trunk, members apart",
                                 "trunk set 3 psc=6",
                                 trunk_set,
                                 kTrunkSet,
                                 {},
                                 "bcm_trunk_info_t"},
                                {"add",
                                 "Add members",
                                 "trunk add 3 xe1-xe2 flags=1",
                                 trunk_add,
                                 kTrunkAdd,
                                 {},
                                 "bcm_trunk_member_t",
                                 true},
                                {"remove",
                                 "Take members out",
                                 "trunk remove 3 xe2",
                                 trunk_remove,
                                 kTrunkRemove,
                                 {},
                                 nullptr,
                                 true},
                                {"egress", "Choose the ports whose frames may go out on it",
                                 "trunk egress 3 all", trunk_egress, kTrunkEgress},
                                {"destroy", "Remove a trunk, and the addresses behind it",
                                 "trunk destroy 3", trunk_destroy, kTrunkOnly}};
constexpr Command kTrunkCommand =
    configuring({"trunk", "Trunks: several ports as one link", kTrunkForms, "show"});

// --- multicast groups

constexpr const char *kSides[] = {"ingress", "egress"};

using GetSide = int (*)(int, bcm_multicast_t, int, bcm_gport_t *, bcm_if_t *, int *);

// "xe1,xe2:5": the ports of a side, with what encapsulates them.
Cell side_cell(int unit, int group, GetSide get, const PortNames &names) {
    int count = 0;
    if (get(unit, group, 0, nullptr, nullptr, &count) < 0) return {};
    std::vector<bcm_gport_t> ports(static_cast<std::size_t>(count));
    std::vector<bcm_if_t> encaps(ports.size());
    get(unit, group, count, ports.data(), encaps.data(), &count);
    Cell::Numbers numbers(ports.begin(), ports.end());
    std::string words;
    for (std::size_t at = 0; at < ports.size(); ++at) {
        words += (at == 0 ? "" : ",") + gports_cell({ports[at]}, names).text();
        if (encaps[at] != 0) words += ':' + std::to_string(encaps[at]);
    }
    return {std::move(numbers), words.empty() ? "none" : words};
}

constexpr RowColumn kMulticastColumns[] = {{"group", ">Group", CellKind::kNumber},
                                           {"flags", ">Flags", CellKind::kNumber},
                                           {"ingress", "Ingress", CellKind::kNumbers},
                                           {"egress", "Egress", CellKind::kNumbers}};

int collect_group(int, bcm_multicast_t group, uint32 flags, void *user) {
    static_cast<std::vector<std::pair<int, uint32>> *>(user)->emplace_back(group, flags);
    return BCM_E_NONE;
}

cmd_result_t multicast_show(CommandCall &call) {
    std::vector<std::pair<int, uint32>> groups;
    const int status = bcm_multicast_group_traverse(call.unit(), collect_group, 0, &groups);
    if (status < 0) return report(call, status);
    const PortNames names = unit_ports(call.unit());
    Rows rows(kMulticastColumns);
    for (const auto &[group, flags] : groups) {
        if (call.has("GROUP") && group != call.number("GROUP")) continue;
        rows.row({group, flags, side_cell(call.unit(), group, bcm_multicast_ingress_get, names),
                  side_cell(call.unit(), group, bcm_multicast_egress_get, names)});
    }
    if (call.has("GROUP") && rows.size() == 0) return report(call, BCM_E_NOT_FOUND);
    rows.show();
    return kOk;
}

cmd_result_t multicast_create(CommandCall &call) {
    bcm_multicast_t group = call.number("GROUP");
    const auto flags = static_cast<uint32>(call["flags"].number);
    const bool given = call.has("GROUP");
    const int status = bcm_multicast_create(call.unit(), flags | (given ? kWithId : 0), &group);
    if (status >= 0 && !given) outf("%d\n", group);
    return report(call, status);
}

cmd_result_t multicast_add(CommandCall &call) {
    const auto add =
        call.number("SIDE") == 0 ? bcm_multicast_ingress_add : bcm_multicast_egress_add;
    return for_members(call, [&](int port) {
        return add(call.unit(), call.number("GROUP"), port, call.number("encap"));
    });
}

cmd_result_t multicast_remove(CommandCall &call) {
    const auto remove =
        call.number("SIDE") == 0 ? bcm_multicast_ingress_delete : bcm_multicast_egress_delete;
    return for_members(call, [&](int port) {
        return remove(call.unit(), call.number("GROUP"), port, call.number("encap"));
    });
}

cmd_result_t multicast_destroy(CommandCall &call) {
    return report(call, bcm_multicast_destroy(call.unit(), call.number("GROUP")));
}

std::vector<Candidate> list_groups(int unit) {
    std::vector<std::pair<int, uint32>> groups;
    bcm_multicast_group_traverse(unit, collect_group, 0, &groups);
    std::vector<Candidate> all;
    for (const auto &[group, flags] : groups) all.push_back({std::to_string(group), ""});
    return all;
}

constexpr Param kGroup =
    place("GROUP", 1, static_cast<int>(kMulticastGroups), "The group").there(list_groups);
constexpr Param kGroupShow[] = {kGroup};
constexpr Param kGroupOnly[] = {kGroup.need()};
constexpr Param kGroupCreate[] = {
    place("GROUP", 1, static_cast<int>(kMulticastGroups), "The group"),
    option("flags", 0, 0xffff'ffff, "The flags of its kind")};
constexpr Param kGroupMembers[] = {kGroup.need(), place("SIDE", kSides, "Where frames pass").need(),
                                   kMembers[0], kGport,
                                   option("encap", INT32_MIN, INT32_MAX, "What encapsulates them")};
constexpr Form kMulticastForms[] = {
    {"show", "The groups and their members", "multicast show 7", multicast_show, kGroupShow,
     kMulticastColumns},
    {"create", "Make a group; without a number the shell prints the one it got",
     "multicast create 7", multicast_create, kGroupCreate},
    {"add",
     "Add members",
     "multicast add 7 egress xe1-xe4 encap=5",
     multicast_add,
     kGroupMembers,
     {},
     nullptr,
     true},
    {"remove",
     "Take members out",
     "multicast remove 7 egress xe1 encap=5",
     multicast_remove,
     kGroupMembers,
     {},
     nullptr,
     true},
    {"destroy", "Remove a group", "multicast destroy 7", multicast_destroy, kGroupOnly}};
constexpr Command kMulticastCommand =
    configuring({"multicast", "Multicast groups", kMulticastForms, "show"});

// --- mirrors

constexpr RowColumn kMirrorColumns[] = {{"mirror_dest_id", ">Destination", CellKind::kNumber},
                                        {"ports", "Ports", CellKind::kText},
                                        {"gport", ">Goes to", CellKind::kNumber},
                                        {"flags", ">Flags", CellKind::kNumber}};

int collect_mirror(int, bcm_mirror_destination_t *one, void *user) {
    static_cast<std::vector<bcm_mirror_destination_t> *>(user)->push_back(*one);
    return BCM_E_NONE;
}

// "xe1 (1),xe3 (2)": the ports that a destination gets, with the flags of each.
std::string mirrored_text(int unit, bcm_gport_t id, const PortNames &names) {
    std::string text;
    on_switch("mirror show", unit, [&](Switch &chip) {
        for (const auto &[key, list] : chip.groups.mirrors.of_port)
            for (const bcm_gport_t one : list.destinations)
                if (one == id)
                    text += (text.empty() ? "" : ",") + port_text(key.first, names) +
                            text_of(" (%u)", key.second);
        return BCM_E_NONE;
    });
    return text.empty() ? "none" : text;
}

cmd_result_t mirror_show(CommandCall &call) {
    std::vector<bcm_mirror_destination_t> all;
    const int status = bcm_mirror_destination_traverse(call.unit(), collect_mirror, &all);
    if (status < 0) return report(call, status);
    const PortNames names = unit_ports(call.unit());
    StructRows rows(call);
    for (const bcm_mirror_destination_t &one : all) {
        if (call.has("ID") && one.mirror_dest_id != call["ID"].number) continue;
        rows.row({one.mirror_dest_id, mirrored_text(call.unit(), one.mirror_dest_id, names)}, &one);
    }
    return rows.show("ID");
}

// The number that was asked for is no flag of the destination.
cmd_result_t mirror_create(CommandCall &call) {
    bcm_mirror_destination_t made{};
    write_fields(call, kFieldWords, &made);
    const uint32 flags = made.flags;
    const bool given = call.has("ID");
    made.mirror_dest_id = call.number("ID");
    made.flags |= given ? kWithId : 0;
    const int status = bcm_mirror_destination_create(call.unit(), &made);
    if (status < 0) return report(call, status);
    if (!given) outf("%d\n", made.mirror_dest_id);
    return report(call, on_switch("mirror create", call.unit(), [&](Switch &chip) {
                      chip.groups.mirrors.destinations[made.mirror_dest_id].flags = flags;
                      return BCM_E_NONE;
                  }));
}

cmd_result_t mirror_destroy(CommandCall &call) {
    return report(call, bcm_mirror_destination_destroy(call.unit(), call.number("ID")));
}

template <int (*change)(int, bcm_port_t, uint32, bcm_gport_t)>
cmd_result_t mirror_ports(CommandCall &call) {
    const auto flags = static_cast<uint32>(call["FLAGS"].number);
    return for_members(
        call, [&](int port) { return change(call.unit(), port, flags, call.number("ID")); });
}

template <int (*mark)(int, bcm_port_t, int)>
cmd_result_t mirror_mark(CommandCall &call) {
    return for_members(call, [&](int port) { return mark(call.unit(), port, call.number("ON")); });
}

cmd_result_t mirror_mode(CommandCall &call) {
    return report(call, bcm_mirror_mode_set(call.unit(), call.number("MODE")));
}

cmd_result_t mirror_to(CommandCall &call) {
    return report(call,
                  bcm_mirror_to_set(call.unit(), call.has("PORT") ? call.number("PORT") : -1));
}

std::vector<Candidate> list_mirrors(int unit) {
    std::vector<bcm_mirror_destination_t> found;
    bcm_mirror_destination_traverse(unit, collect_mirror, &found);
    std::vector<Candidate> all;
    for (const auto &one : found) all.push_back({std::to_string(one.mirror_dest_id), ""});
    return all;
}

constexpr Param kMirror = place("ID", INT32_MIN, INT32_MAX, "The destination").there(list_mirrors);
constexpr Param kMirrorShow[] = {kMirror};
constexpr Param kMirrorOnly[] = {kMirror.need()};
constexpr Param kMirrorCreate[] = {place("ID", INT32_MIN, INT32_MAX, "The destination"), kFields};
constexpr Param kMirrorPorts[] = {kMirror.need(), kMembers[0].need(),
                                  place("FLAGS", 0, 0xffff'ffff, "Which frames of them").need()};
constexpr Param kMirrorMark[] = {kMembers[0].need(),
                                 place("ON", Kind::kTruth, "Whether they are copied").need()};
constexpr Param kMirrorMode[] = {place("MODE", 0, 2, "The mode").need()};
constexpr Param kMirrorTo[] = {place("PORT", Kind::kPort, "The port; none without")};
constexpr Form kMirrorForms[] = {
    {"show", "The destinations, and the ports that are copied to them", "mirror show", mirror_show,
     kMirrorShow, kMirrorColumns, "bcm_mirror_destination_t"},
    {"create",
     "Make a destination; without a number the shell prints the one it got",
     "mirror create gport=5",
     mirror_create,
     kMirrorCreate,
     {},
     "bcm_mirror_destination_t",
     true},
    {"destroy", "Remove a destination", "mirror destroy 1409286145", mirror_destroy, kMirrorOnly},
    {"add",
     "Copy ports to a destination",
     "mirror add 1409286145 xe1-xe2 1",
     mirror_ports<bcm_mirror_port_dest_add>,
     kMirrorPorts,
     {},
     nullptr,
     true},
    {"remove",
     "Copy ports no more",
     "mirror remove 1409286145 xe1 1",
     mirror_ports<bcm_mirror_port_dest_delete>,
     kMirrorPorts,
     {},
     nullptr,
     true},
    {"mode", "Choose what mirroring to a port does", "mirror mode 1", mirror_mode, kMirrorMode},
    {"to", "Choose the port that copies go to", "mirror to xe5", mirror_to, kMirrorTo},
    {"ingress",
     "Copy what comes in on ports to that port",
     "mirror ingress xe1-xe2 yes",
     mirror_mark<bcm_mirror_ingress_set>,
     kMirrorMark,
     {},
     nullptr,
     true},
    {"egress",
     "Copy what goes out of ports to that port",
     "mirror egress xe1 yes",
     mirror_mark<bcm_mirror_egress_set>,
     kMirrorMark,
     {},
     nullptr,
     true}};
constexpr Command kMirrorCommand =
    configuring({"mirror", "Copies of traffic", kMirrorForms, "show"});

// --- policers

constexpr RowColumn kPolicerColumns[] = {{"policer_id", ">Policer", CellKind::kNumber},
                                         {"mode", ">Mode", CellKind::kNumber},
                                         {"ckbits_sec", ">Kbit/s", CellKind::kNumber},
                                         {"ckbits_burst", ">Burst", CellKind::kNumber},
                                         {"pkbits_sec", ">Peak", CellKind::kNumber},
                                         {"pkbits_burst", ">Peak burst", CellKind::kNumber}};

using Policers = std::vector<std::pair<bcm_policer_t, bcm_policer_config_t>>;

int collect_policer(int, bcm_policer_t id, bcm_policer_config_t *one, void *user) {
    static_cast<Policers *>(user)->emplace_back(id, *one);
    return BCM_E_NONE;
}

cmd_result_t policer_show(CommandCall &call) {
    Policers all;
    const int status = bcm_policer_traverse(call.unit(), collect_policer, &all);
    if (status < 0) return report(call, status);
    StructRows rows(call);
    for (const auto &[id, config] : all)
        if (!call.has("ID") || id == call.number("ID")) rows.row({id}, &config);
    return rows.show("ID");
}

cmd_result_t policer_create(CommandCall &call) {
    bcm_policer_config_t config{};
    write_fields(call, kFieldWords, &config);
    const uint32 flags = config.flags;
    const bool given = call.has("ID");
    bcm_policer_t id = call.number("ID");
    config.flags |= given ? kWithId : 0;
    int status = bcm_policer_create(call.unit(), &config, &id);
    config.flags = flags;
    if (status >= 0) status = bcm_policer_set(call.unit(), id, &config);
    if (status >= 0 && !given) outf("%d\n", id);
    return report(call, status);
}

cmd_result_t policer_set(CommandCall &call) {
    bcm_policer_config_t config{};
    const int status = bcm_policer_get(call.unit(), call.number("ID"), &config);
    if (status < 0) return report(call, status);
    write_fields(call, kFieldWords, &config);
    return report(call, bcm_policer_set(call.unit(), call.number("ID"), &config));
}

cmd_result_t policer_destroy(CommandCall &call) {
    return report(call, bcm_policer_destroy(call.unit(), call.number("ID")));
}

std::vector<Candidate> list_policers(int unit) {
    Policers found;
    bcm_policer_traverse(unit, collect_policer, &found);
    std::vector<Candidate> all;
    for (const auto &one : found) all.push_back({std::to_string(one.first), ""});
    return all;
}

constexpr Param kPolicer =
    place("ID", 1, static_cast<int>(kPolicers), "The policer").there(list_policers);
constexpr Param kPolicerShow[] = {kPolicer};
constexpr Param kPolicerOnly[] = {kPolicer.need()};
constexpr Param kPolicerCreate[] = {place("ID", 1, static_cast<int>(kPolicers), "The policer"),
                                    kFields};
constexpr Param kPolicerSet[] = {kPolicer.need(), kFields.need()};
constexpr Form kPolicerForms[] = {
    {"show", "The policers", "policer show 4", policer_show, kPolicerShow, kPolicerColumns,
     "bcm_policer_config_t"},
    {"create",
     "Make a policer; without a number the shell prints the one it got",
     "policer create 4 mode=1 ckbits_sec=10000 ckbits_burst=64",
     policer_create,
     kPolicerCreate,
     {},
     "bcm_policer_config_t",
     true},
    {"set",
     "Change a policer",
     "policer set 4 ckbits_sec=20000",
     policer_set,
     kPolicerSet,
     {},
     "bcm_policer_config_t"},
    {"destroy", "Remove a policer", "policer destroy 4", policer_destroy, kPolicerOnly}};
constexpr Command kPolicerCommand = configuring({"policer", "Policers", kPolicerForms, "show"});

constexpr const Command *kCommands[] = {&kMirrorCommand, &kMulticastCommand, &kPolicerCommand,
                                        &kTrunkCommand};
static_assert(complete(kCommands));

}  // namespace

std::span<const Command *const> group_commands() { return kCommands; }

}  // namespace standin
