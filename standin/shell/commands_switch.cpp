// Commands on the tables of the switch: MAC addresses, VLANs and spanning trees.
#include <algorithm>
#include <array>

#include "sdk/bcm/l2.h"
#include "sdk/bcm/stg.h"
#include "sdk/bcm/vlan.h"
#include "standin/base/output.h"
#include "standin/base/rows.h"
#include "standin/base/scan.h"
#include "standin/model/l2_table.h"
#include "standin/model/vlans.h"
#include "standin/shell/commands.h"
#include "standin/shell/fields.h"
#include "standin/text/unit_ports.h"

namespace standin {
namespace {

bool picked(const bcm_l2_addr_t &row, const CommandCall &call) {
    const bool trunk_row = (row.flags & kL2Trunk) != 0;
    const MacBytes &mac = call["mac"].mac;
    if (call.has("mac") && !std::equal(mac.begin(), mac.end(), row.mac)) return false;
    if (call.has("vlan") && call.number("vlan") != row.vid) return false;
    if (call.has("trunk") && (!trunk_row || row.tgid != call.number("trunk"))) return false;
    if (call.flag("static") && (row.flags & kL2Static) == 0) return false;
    if (call.flag("discard") && (row.flags & kL2BlackHole) == 0) return false;
    if (!call.has("port")) return true;
    return !trunk_row && plain_port(row.port) == plain_port(call.number("port"));
}

int collect_row(int, bcm_l2_addr_t *row, void *user_data) {
    static_cast<std::vector<bcm_l2_addr_t> *>(user_data)->push_back(*row);
    return BCM_E_NONE;
}

// Fills in the rows that the options of a command pick.
cmd_result_t pick_rows(const CommandCall &call, std::vector<bcm_l2_addr_t> &rows) {
    const int status = bcm_l2_traverse(call.unit(), collect_row, &rows);
    std::erase_if(rows, [&](const bcm_l2_addr_t &row) { return !picked(row, call); });
    return report(call, status);
}

std::string destination(const bcm_l2_addr_t &row, const PortNames &names) {
    if ((row.flags & kL2BlackHole) != 0) return "discard";
    if ((row.flags & kL2Trunk) != 0) return "trunk " + std::to_string(row.tgid);
    return port_text(plain_port(row.port), names);
}

std::string count_text(std::size_t count) {
    return text_of("%zu address%s", count, count == 1 ? "" : "es");
}

constexpr RowColumn kL2Columns[] = {{"mac", "MAC address", CellKind::kText},
                                    {"vid", ">VLAN", CellKind::kNumber},
                                    {"destination", "Destination", CellKind::kText},
                                    {"kind", "Kind", CellKind::kText},
                                    {"port", nullptr, CellKind::kNumber},
                                    {"modid", nullptr, CellKind::kNumber},
                                    {"tgid", nullptr, CellKind::kNumber},
                                    {"flags", nullptr, CellKind::kNumber}};

cmd_result_t l2_show(CommandCall &call) {
    std::vector<bcm_l2_addr_t> found;
    const cmd_result_t result = pick_rows(call, found);
    if (result != kOk) return result;
    std::stable_sort(found.begin(), found.end(), [](const auto &left, const auto &right) {
        if (left.vid != right.vid) return left.vid < right.vid;
        return std::lexicographical_compare(left.mac, left.mac + 6, right.mac, right.mac + 6);
    });
    const PortNames names = unit_ports(call.unit());
    Rows rows(kL2Columns);
    for (const bcm_l2_addr_t &row : found) {
        const bool is_static = (row.flags & kL2Static) != 0;
        rows.row({mac_text(row.mac), row.vid, destination(row, names),
                  is_static ? "static" : "dynamic", row.port, row.modid, row.tgid, row.flags});
    }
    rows.note(count_text(found.size()));
    rows.show();
    return kOk;
}

cmd_result_t l2_add(CommandCall &call) {
    MacBytes mac = call["mac"].mac;
    bcm_l2_addr_t row{};
    bcm_l2_addr_t_init(&row, mac.data(), static_cast<bcm_vlan_t>(call.number("vlan")));
    if (call.flag("static")) row.flags |= kL2Static;
    if (call.flag("discard")) row.flags |= kL2BlackHole;
    if (call.has("port")) row.port = call.number("port");
    if (call.has("trunk")) {
        row.flags |= kL2Trunk;
        row.tgid = call.number("trunk");
    }
    return report(call, bcm_l2_addr_add(call.unit(), &row));
}

cmd_result_t l2_put(CommandCall &call) {
    MacBytes mac = call["mac"].mac;
    bcm_l2_addr_t row{};
    write_fields(call, "FIELD=VALUE", &row);
    std::copy(mac.begin(), mac.end(), row.mac);
    row.vid = static_cast<bcm_vlan_t>(call.number("vlan"));
    return report(call, bcm_l2_addr_add(call.unit(), &row));
}

cmd_result_t l2_age(CommandCall &call) {
    return report(call, bcm_l2_age_timer_set(call.unit(), call.number("SECONDS")));
}

cmd_result_t l2_limit(CommandCall &call) {
    bcm_l2_learn_limit_t limit{};
    write_fields(call, "FIELD=VALUE", &limit);
    return report(call, bcm_l2_learn_limit_set(call.unit(), &limit));
}

cmd_result_t l2_limits(CommandCall &call) {
    return report(call, call.flag("ON") ? bcm_l2_learn_limit_enable(call.unit())
                                        : bcm_l2_learn_limit_disable(call.unit()));
}

cmd_result_t l2_freeze(CommandCall &call) { return report(call, bcm_l2_addr_freeze(call.unit())); }

cmd_result_t l2_thaw(CommandCall &call) { return report(call, bcm_l2_addr_thaw(call.unit())); }

cmd_result_t l2_delete(CommandCall &call) {
    MacBytes mac = call["mac"].mac;
    const auto vlan = static_cast<bcm_vlan_t>(call.number("vlan"));
    return report(call, bcm_l2_addr_delete(call.unit(), mac.data(), vlan));
}

// Rows go one by one, since several options may pick them together.
cmd_result_t l2_clear(CommandCall &call) {
    std::vector<bcm_l2_addr_t> rows;
    const cmd_result_t result = pick_rows(call, rows);
    int status = BCM_E_NONE;
    for (bcm_l2_addr_t &row : rows)
        if (status >= 0) status = bcm_l2_addr_delete(call.unit(), row.mac, row.vid);
    return result == kOk ? report(call, status) : result;
}

cmd_result_t l2_count(CommandCall &call) {
    std::vector<bcm_l2_addr_t> rows;
    const cmd_result_t result = pick_rows(call, rows);
    if (result == kOk) out(count_text(rows.size()) + '\n');
    return result;
}

constexpr RowColumn kVlanColumns[] = {{"vlan_tag", ">VLAN", CellKind::kNumber},
                                      {"stg", ">STG", CellKind::kNumber},
                                      {"port_bitmap", "Ports", CellKind::kNumbers},
                                      {"ut_port_bitmap", "Untagged", CellKind::kNumbers}};

cmd_result_t vlan_show(CommandCall &call) {
    bcm_vlan_data_t *list = nullptr;
    int count = 0;
    const int status = bcm_vlan_list(call.unit(), &list, &count);
    if (status < 0) return report(call, status);
    const PortNames names = unit_ports(call.unit());
    Rows rows(kVlanColumns);
    for (int at = 0; at < count; ++at) {
        const bcm_vlan_data_t &row = list[at];
        if (call.has("VLAN") && row.vlan_tag != call.number("VLAN")) continue;
        bcm_stg_t stg = 0;
        const int stg_status = bcm_vlan_stg_get(call.unit(), row.vlan_tag, &stg);
        rows.row({row.vlan_tag, cell(stg_status, stg),
                  ports_cell(port_set_of(row.port_bitmap), names),
                  ports_cell(port_set_of(row.ut_port_bitmap), names)});
    }
    bcm_vlan_list_destroy(call.unit(), list, count);
    if (call.has("VLAN") && rows.size() == 0) return report(call, BCM_E_NOT_FOUND);
    rows.show();
    return kOk;
}

bcm_vlan_t vlan_of(const CommandCall &call) { return static_cast<bcm_vlan_t>(call.number("VLAN")); }

// Untagged ports are members without being named twice.
int add_ports(const CommandCall &call) {
    const PortSet untagged = call.given_ports("untagged");
    const PortSet members = call.given_ports("ports") | untagged;
    return bcm_vlan_port_add(call.unit(), vlan_of(call), pbmp_of(members), pbmp_of(untagged));
}

cmd_result_t vlan_create(CommandCall &call) {
    int status = bcm_vlan_create(call.unit(), vlan_of(call));
    if (status >= 0 && (call.has("ports") || call.has("untagged"))) status = add_ports(call);
    return report(call, status);
}

cmd_result_t vlan_destroy(CommandCall &call) {
    return report(call, bcm_vlan_destroy(call.unit(), vlan_of(call)));
}

cmd_result_t vlan_add(CommandCall &call) {
    int status = BCM_E_NONE;
    if (call.has("ports") || call.has("untagged")) status = add_ports(call);
    if (status >= 0 && call.has("gport"))
        status = bcm_vlan_gport_add(call.unit(), vlan_of(call), call.number("gport"),
                                    call.number("flags"));
    return report(call, status);
}

cmd_result_t vlan_remove(CommandCall &call) {
    const bcm_pbmp_t ports = pbmp_of(call.given_ports("ports"));
    int status = BCM_E_NONE;
    if (call.has("ports")) status = bcm_vlan_port_remove(call.unit(), vlan_of(call), ports);
    if (status >= 0 && call.has("gport"))
        status = bcm_vlan_gport_delete(call.unit(), vlan_of(call), call.number("gport"));
    return report(call, status);
}

cmd_result_t vlan_default(CommandCall &call) {
    return report(call, bcm_vlan_default_set(call.unit(), vlan_of(call)));
}

// The ports of a tree in each state that occurs: "forward: xe0-xe3; block: xe4".
std::string states_text(int unit, int stg, const PortNames &names) {
    std::array<PortSet, BCM_STG_STP_COUNT> ports;
    for (const PortName &entry : names) {
        int state = -1;
        if (bcm_stg_stp_get(unit, stg, entry.port, &state) < 0) continue;
        if (state < 0 || state >= BCM_STG_STP_COUNT) continue;
        ports[static_cast<std::size_t>(state)].set(static_cast<std::size_t>(entry.port));
    }
    std::string text;
    for (std::size_t at = std::size(kStpStates); at-- > 0;) {
        if (ports[at].none()) continue;
        text += text.empty() ? "" : "; ";
        text += std::string(kStpStates[at]) + ": " + port_list_text(ports[at], names);
    }
    return text;
}

Cell::Numbers vlans_of(int unit, int stg) {
    bcm_vlan_t *list = nullptr;
    int count = 0;
    if (bcm_stg_vlan_list(unit, stg, &list, &count) < 0) return {};
    Cell::Numbers numbers(list, list + count);
    bcm_stg_vlan_list_destroy(unit, list, count);
    return numbers;
}

constexpr RowColumn kStgColumns[] = {{"stg", ">STG", CellKind::kNumber},
                                     {"vlans", "VLANs", CellKind::kNumbers},
                                     {"ports", "Ports", CellKind::kText}};

cmd_result_t stg_show(CommandCall &call) {
    bcm_stg_t *list = nullptr;
    int count = 0;
    const int status = bcm_stg_list(call.unit(), &list, &count);
    if (status < 0) return report(call, status);
    const PortNames names = unit_ports(call.unit());
    Rows rows(kStgColumns);
    for (int at = 0; at < count; ++at) {
        if (call.has("STG") && list[at] != call.number("STG")) continue;
        rows.row({list[at], Cell(vlans_of(call.unit(), list[at]), ""),
                  states_text(call.unit(), list[at], names)});
    }
    bcm_stg_list_destroy(call.unit(), list, count);
    if (call.has("STG") && rows.size() == 0) return report(call, BCM_E_NOT_FOUND);
    rows.show();
    return kOk;
}

cmd_result_t stg_create(CommandCall &call) {
    if (call.has("STG")) return report(call, bcm_stg_create_id(call.unit(), call.number("STG")));
    bcm_stg_t stg = 0;
    const int status = bcm_stg_create(call.unit(), &stg);
    if (status >= 0) outf("%d\n", stg);
    return report(call, status);
}

cmd_result_t stg_destroy(CommandCall &call) {
    return report(call, bcm_stg_destroy(call.unit(), call.number("STG")));
}

cmd_result_t stg_add(CommandCall &call) {
    return report(call, bcm_stg_vlan_add(call.unit(), call.number("STG"), vlan_of(call)));
}

cmd_result_t stg_remove(CommandCall &call) {
    return report(call, bcm_stg_vlan_remove(call.unit(), call.number("STG"), vlan_of(call)));
}

cmd_result_t stg_default(CommandCall &call) {
    return report(call, bcm_stg_default_set(call.unit(), call.number("STG")));
}

cmd_result_t stg_stp(CommandCall &call) {
    return for_ports(call.ports("PORTS"), [&](int port) {
        return report(call,
                      bcm_stg_stp_set(call.unit(), call.number("STG"), port, call.number("STATE")));
    });
}

constexpr Param kVlanOption = option("vlan", kFirstVlan, kLastVlan, "The VLAN").there(list_vlans);
constexpr Param kPortOption = option("port", Kind::kPort, "The port behind which it is");
constexpr Param kTrunkOption =
    option("trunk", 0, 255, "The trunk behind which it is").there(list_trunks);
constexpr Param kMacOption = option("mac", Kind::kMac, "The address");
constexpr Param kL2Pick[] = {kMacOption,
                             kVlanOption,
                             kPortOption,
                             kTrunkOption,
                             flag("static", "Those that do not age"),
                             flag("discard", "Those whose frames are dropped")};
constexpr Param kL2Add[] = {kMacOption.need(),
                            kVlanOption.need(),
                            kPortOption.need().among('a'),
                            kTrunkOption.need().among('a'),
                            flag("discard", "Frames to it are dropped").need().among('a'),
                            flag("static", "It does not age")};
constexpr Param kL2Delete[] = {kMacOption.need(), kVlanOption.need()};
constexpr Param kFields =
    place("FIELD=VALUE", Kind::kStructField, "A field and what it shall be").many();
constexpr Param kL2Put[] = {kMacOption.need(), kVlanOption.need(), kFields};
constexpr Param kL2Age[] = {place("SECONDS", 0, INT32_MAX, "The seconds").need()};
constexpr Param kL2Limit[] = {kFields.need()};
constexpr Param kL2Limits[] = {place("ON", Kind::kTruth, "Whether").need()};
constexpr Form kL2Forms[] = {
    {"show", "The rows that all the options pick", "l2 show vlan=10 static", l2_show, kL2Pick,
     kL2Columns},
    {"add", "Add an address, or move it", "l2 add mac=02:00:00:00:00:0a vlan=10 port=xe3", l2_add,
     kL2Add},
    {"delete", "Take an address out", "l2 delete mac=02:00:00:00:00:0a vlan=10", l2_delete,
     kL2Delete},
    {"put",
     "Put a row in as it is, field by field",
     "l2 put mac=02:00:00:00:00:0b vlan=1 port=3",
     l2_put,
     kL2Put,
     {},
     "bcm_l2_addr_t"},
    {"clear",
     "Take out the rows that all the options pick",
     "l2 clear port=xe3",
     l2_clear,
     kL2Pick,
     {},
     nullptr,
     true},
    {"age", "Choose after how many seconds rows age; 0 for never", "l2 age 300", l2_age, kL2Age},
    {"limit",
     "Choose how many rows may be learned",
     "l2 limit flags=2 vlan=1 limit=100",
     l2_limit,
     kL2Limit,
     {},
     "bcm_l2_learn_limit_t"},
    {"limits", "Whether those limits hold", "l2 limits yes", l2_limits, kL2Limits},
    {"freeze", "Change nothing in the table until it thaws", "l2 freeze", l2_freeze},
    {"thaw", "Undo one freeze", "l2 thaw", l2_thaw},
    {"count", "How many rows the options pick", "l2 count vlan=10", l2_count, kL2Pick}};
constexpr Command kL2 = configuring({"l2", "The MAC table", kL2Forms, "show"});

constexpr Param kVlan = place("VLAN", kFirstVlan, kLastVlan, "The VLAN").there(list_vlans);
constexpr Param kMembers = option("ports", Kind::kPortList, "Its members");
constexpr Param kUntagged =
    option("untagged", Kind::kPortList, "Members whose frames go out without a tag");
constexpr Param kVlanShow[] = {kVlan};
constexpr Param kVlanOnly[] = {kVlan.need()};
constexpr Param kVlanCreate[] = {place("VLAN", kFirstVlan, kLastVlan, "The VLAN").need(), kMembers,
                                 kUntagged};
constexpr Param kGport = option("gport", Kind::kPort, "A trunk, or another global port");
constexpr Param kVlanAdd[] = {kVlan.need(), kMembers, kUntagged, kGport,
                              option("flags", INT32_MIN, INT32_MAX, "The flags of that one")};
constexpr Param kVlanRemove[] = {kVlan.need(), kMembers, kGport};
constexpr Form kVlanForms[] = {
    {"show", "The VLANs and their ports", "vlan show 10", vlan_show, kVlanShow, kVlanColumns},
    {"create",
     "Make a VLAN",
     "vlan create 10 ports=xe1-xe4 untagged=xe2",
     vlan_create,
     kVlanCreate,
     {},
     nullptr,
     true},
    {"destroy", "Remove a VLAN", "vlan destroy 10", vlan_destroy, kVlanOnly},
    {"add", "Add ports to a VLAN", "vlan add 10 ports=xe5", vlan_add, kVlanAdd, {}, nullptr, true},
    {"remove",
     "Take ports out of a VLAN",
     "vlan remove 10 ports=xe5",
     vlan_remove,
     kVlanRemove,
     {},
     nullptr,
     true},
    {"default", "Choose the VLAN that frames without one are in", "vlan default 10", vlan_default,
     kVlanOnly}};
constexpr Command kVlanCommand =
    configuring({"vlan", "VLANs and their ports", kVlanForms, "show", false,
                 "Untagged ports are members without being named twice."});

constexpr Param kStg =
    place("STG", kFirstStg, kLastStg, "The spanning tree group").there(list_stgs);
constexpr Param kStgShow[] = {kStg};
constexpr Param kStgCreate[] = {place("STG", kFirstStg, kLastStg, "The spanning tree group")};
constexpr Param kStgOnly[] = {kStg.need()};
constexpr Param kStgVlan[] = {kStg.need(), kVlan.need()};
constexpr Param kStgStp[] = {kStg.need(), place("PORTS", Kind::kPortList, "The ports").need(),
                             place("STATE", kStpStates, "What they do with frames").need()};
constexpr Form kStgForms[] = {
    {"show", "The groups, their VLANs and the states of their ports", "stg show 5", stg_show,
     kStgShow, kStgColumns},
    {"create", "Make a group; without a number the shell prints the one it got", "stg create 5",
     stg_create, kStgCreate},
    {"destroy", "Remove a group", "stg destroy 5", stg_destroy, kStgOnly},
    {"add", "Move a VLAN into a group", "stg add 5 10", stg_add, kStgVlan},
    {"remove", "Move a VLAN back to the default group", "stg remove 5 10", stg_remove, kStgVlan},
    {"stp",
     "Set the state of ports in a group",
     "stg stp 5 xe1-xe2 block",
     stg_stp,
     kStgStp,
     {},
     nullptr,
     true},
    {"default", "Choose the group of new VLANs", "stg default 5", stg_default, kStgOnly}};
constexpr Command kStgCommand = configuring({"stg", "Spanning trees", kStgForms, "show"});

constexpr const Command *kCommands[] = {&kL2, &kStgCommand, &kVlanCommand};
static_assert(complete(kCommands));

}  // namespace

std::span<const Command *const> switch_commands() { return kCommands; }

}  // namespace standin
