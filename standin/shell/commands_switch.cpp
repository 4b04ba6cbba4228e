// Commands on the tables of the switch: MAC addresses, VLANs and spanning trees.
#include <algorithm>
#include <array>

#include "sdk/bcm/l2.h"
#include "sdk/bcm/stg.h"
#include "sdk/bcm/vlan.h"
#include "standin/base/number_text.h"
#include "standin/base/output.h"
#include "standin/base/scan.h"
#include "standin/model/l2_table.h"
#include "standin/shell/commands.h"
#include "standin/text/unit_ports.h"

namespace standin {
namespace {

// What picks rows of the MAC table, and what a new row holds.
struct L2Options {
    std::optional<MacBytes> mac;
    std::optional<std::int32_t> vlan;
    std::optional<std::int32_t> port;
    std::optional<std::int32_t> trunk;
    bool is_static = false;
    bool discard = false;
};

bool read_options(int unit, args_t &args, L2Options &options, cmd_result_t &result) {
    parse_table_s table(unit);
    table.add("mac", options.mac);
    table.add("vlan", options.vlan);
    table.add_port("port", options.port);
    table.add("trunk", options.trunk);
    table.add_flag("static", options.is_static);
    table.add_flag("discard", options.discard);
    return parse_all(args, table, result);
}

bool vlan_ok(const std::optional<std::int32_t> &vlan) {
    return vlan && *vlan >= 0 && *vlan <= 0xffff;
}

bool picked(const bcm_l2_addr_t &row, const L2Options &options) {
    bool trunk_row = (row.flags & kL2Trunk) != 0;
    if (options.mac && !std::equal(options.mac->begin(), options.mac->end(), row.mac)) return false;
    if (options.vlan && *options.vlan != row.vid) return false;
    if (options.trunk && (!trunk_row || row.tgid != *options.trunk)) return false;
    if (options.is_static && (row.flags & kL2Static) == 0) return false;
    if (options.discard && (row.flags & kL2BlackHole) == 0) return false;
    return !options.port || (!trunk_row && plain_port(row.port) == plain_port(*options.port));
}

int collect_row(int, bcm_l2_addr_t *row, void *user_data) {
    static_cast<std::vector<bcm_l2_addr_t> *>(user_data)->push_back(*row);
    return BCM_E_NONE;
}

// Fills in the rows that the options of a command pick; kOk, or what the command ends with.
cmd_result_t pick_rows(int unit, args_t &args, std::vector<bcm_l2_addr_t> &rows) {
    L2Options options;
    cmd_result_t result = kOk;
    if (!read_options(unit, args, options, result)) return result;
    if (options.vlan && !vlan_ok(options.vlan)) return kUsage;
    int status = bcm_l2_traverse(unit, collect_row, &rows);
    std::erase_if(rows, [&](const bcm_l2_addr_t &row) { return !picked(row, options); });
    return report(args, status);
}

std::string destination(const bcm_l2_addr_t &row, const PortNames &names) {
    if ((row.flags & kL2BlackHole) != 0) return "discard";
    if ((row.flags & kL2Trunk) != 0) return "trunk " + std::to_string(row.tgid);
    return port_text(plain_port(row.port), names);
}

void print_count(std::size_t count) { outf("%zu address%s\n", count, count == 1 ? "" : "es"); }

cmd_result_t l2_show(int unit, args_t *args) {
    std::vector<bcm_l2_addr_t> rows;
    cmd_result_t result = pick_rows(unit, *args, rows);
    if (result != kOk) return result;
    std::stable_sort(rows.begin(), rows.end(), [](const auto &left, const auto &right) {
        if (left.vid != right.vid) return left.vid < right.vid;
        return std::lexicographical_compare(left.mac, left.mac + 6, right.mac, right.mac + 6);
    });
    PortNames names = unit_ports(unit);
    Table table({"MAC address", ">VLAN", "Destination", "Kind"});
    for (const bcm_l2_addr_t &row : rows) {
        table.row({mac_text(row.mac), std::to_string(row.vid), destination(row, names),
                   (row.flags & kL2Static) != 0 ? "static" : "dynamic"});
    }
    table.print();
    print_count(rows.size());
    return kOk;
}

cmd_result_t l2_add(int unit, args_t *args) {
    L2Options options;
    cmd_result_t result = kOk;
    if (!read_options(unit, *args, options, result)) return result;
    bool one_place = options.port.has_value() + options.trunk.has_value() + options.discard == 1;
    if (!options.mac || !vlan_ok(options.vlan) || !one_place) return kUsage;
    bcm_l2_addr_t row{};
    bcm_l2_addr_t_init(&row, options.mac->data(), static_cast<bcm_vlan_t>(*options.vlan));
    if (options.is_static) row.flags |= kL2Static;
    if (options.discard) row.flags |= kL2BlackHole;
    if (options.port) row.port = *options.port;
    if (options.trunk) {
        row.flags |= kL2Trunk;
        row.tgid = *options.trunk;
    }
    return report(*args, bcm_l2_addr_add(unit, &row));
}

cmd_result_t l2_delete(int unit, args_t *args) {
    L2Options options;
    cmd_result_t result = kOk;
    if (!read_options(unit, *args, options, result)) return result;
    bool more = options.port || options.trunk || options.is_static || options.discard;
    if (!options.mac || !vlan_ok(options.vlan) || more) return kUsage;
    auto vlan = static_cast<bcm_vlan_t>(*options.vlan);
    return report(*args, bcm_l2_addr_delete(unit, options.mac->data(), vlan));
}

// Rows go one by one, since several options may pick them together.
cmd_result_t l2_clear(int unit, args_t *args) {
    std::vector<bcm_l2_addr_t> rows;
    cmd_result_t result = pick_rows(unit, *args, rows);
    int status = BCM_E_NONE;
    for (bcm_l2_addr_t &row : rows)
        if (status >= 0) status = bcm_l2_addr_delete(unit, row.mac, row.vid);
    return result == kOk ? report(*args, status) : result;
}

cmd_result_t l2_count(int unit, args_t *args) {
    std::vector<bcm_l2_addr_t> rows;
    cmd_result_t result = pick_rows(unit, *args, rows);
    if (result != kOk) return result;
    print_count(rows.size());
    return kOk;
}

// The next word as the number of a VLAN or a spanning tree.
std::optional<std::int32_t> take_number(args_t &args) {
    std::optional<std::string> word = args.take();
    std::optional<std::int32_t> number = read_i32(word.value_or(""));
    if (!number || *number < 0 || *number > 0xffff) return std::nullopt;
    return number;
}

// The same for a command that may end without; false for anything else.
bool take_last_number(args_t &args, std::optional<std::int32_t> &number) {
    if (!args.empty() && !(number = take_number(args))) return false;
    return args.empty();
}

cmd_result_t vlan_show(int unit, args_t *args) {
    std::optional<std::int32_t> wanted;
    if (!take_last_number(*args, wanted)) return kUsage;
    bcm_vlan_data_t *list = nullptr;
    int count = 0;
    int status = bcm_vlan_list(unit, &list, &count);
    if (status < 0) return report(*args, status);
    PortNames names = unit_ports(unit);
    Table table({">VLAN", ">STG", "Ports", "Untagged"});
    for (int at = 0; at < count; ++at) {
        const bcm_vlan_data_t &row = list[at];
        if (wanted && row.vlan_tag != *wanted) continue;
        bcm_stg_t stg = 0;
        int stg_status = bcm_vlan_stg_get(unit, row.vlan_tag, &stg);
        table.row({std::to_string(row.vlan_tag), cell(stg_status, stg),
                   port_list_text(port_set_of(row.port_bitmap), names),
                   port_list_text(port_set_of(row.ut_port_bitmap), names)});
    }
    bcm_vlan_list_destroy(unit, list, count);
    if (wanted && table.size() == 0) return report(*args, BCM_E_NOT_FOUND);
    table.print();
    return kOk;
}

enum class VlanOptions { kNone, kPorts, kUntagged };  // each with those before it

// Runs `call` with the VLAN that the next word names and the ports of the options.
template <class Call>
cmd_result_t on_vlan(int unit, args_t &args, VlanOptions options, Call &&call) {
    std::optional<std::int32_t> vlan = take_number(args);
    if (!vlan) return kUsage;
    std::optional<PortSet> ports;
    std::optional<PortSet> untagged;
    parse_table_s table(unit);
    if (options >= VlanOptions::kPorts) table.add("ports", ports);
    if (options >= VlanOptions::kUntagged) table.add("untagged", untagged);
    cmd_result_t result = kOk;
    if (!parse_all(args, table, result)) return result;
    PortSet members = ports.value_or(PortSet()) | untagged.value_or(PortSet());
    return report(args, call(static_cast<bcm_vlan_t>(*vlan), pbmp_of(members),
                             pbmp_of(untagged.value_or(PortSet()))));
}

cmd_result_t vlan_create(int unit, args_t *args) {
    return on_vlan(unit, *args, VlanOptions::kUntagged, [&](bcm_vlan_t vlan, bcm_pbmp_t ports, bcm_pbmp_t untagged) {
        int status = bcm_vlan_create(unit, vlan);
        if (status < 0 || port_set_of(ports).none()) return status;
        return bcm_vlan_port_add(unit, vlan, ports, untagged);
    });
}

cmd_result_t vlan_destroy(int unit, args_t *args) {
    return on_vlan(unit, *args, VlanOptions::kNone, [&](bcm_vlan_t vlan, bcm_pbmp_t, bcm_pbmp_t) {
        return bcm_vlan_destroy(unit, vlan);
    });
}

cmd_result_t vlan_add(int unit, args_t *args) {
    return on_vlan(unit, *args, VlanOptions::kUntagged, [&](bcm_vlan_t vlan, bcm_pbmp_t ports, bcm_pbmp_t untagged) {
        return bcm_vlan_port_add(unit, vlan, ports, untagged);
    });
}

cmd_result_t vlan_remove(int unit, args_t *args) {
    return on_vlan(unit, *args, VlanOptions::kPorts, [&](bcm_vlan_t vlan, bcm_pbmp_t ports, bcm_pbmp_t) {
        return bcm_vlan_port_remove(unit, vlan, ports);
    });
}

constexpr std::array kStates = {"disable", "block", "listen", "learn", "forward"};
static_assert(kStates.size() == BCM_STG_STP_COUNT);

std::optional<int> state_of(std::string_view text) {
    for (std::size_t at = 0; at < kStates.size(); ++at)
        if (same_word(kStates[at], text)) return static_cast<int>(at);
    return std::nullopt;
}

// The ports of a tree in each state that occurs: "forward: xe0-xe3; block: xe4".
std::string states_text(int unit, int stg, const PortNames &names) {
    std::array<PortSet, kStates.size()> ports;
    for (const PortName &entry : names) {
        int state = -1;
        if (bcm_stg_stp_get(unit, stg, entry.port, &state) < 0) continue;
        if (state < 0 || state >= BCM_STG_STP_COUNT) continue;
        ports[static_cast<std::size_t>(state)].set(static_cast<std::size_t>(entry.port));
    }
    std::string text;
    for (std::size_t at = kStates.size(); at-- > 0;) {
        if (ports[at].none()) continue;
        text += text.empty() ? "" : "; ";
        text += std::string(kStates[at]) + ": " + port_list_text(ports[at], names);
    }
    return text;
}

std::string vlans_text(int unit, int stg) {
    bcm_vlan_t *list = nullptr;
    int count = 0;
    if (bcm_stg_vlan_list(unit, stg, &list, &count) < 0) return "-";
    std::string text;
    for (int at = 0; at < count; ++at) text += (text.empty() ? "" : ",") + std::to_string(list[at]);
    bcm_stg_vlan_list_destroy(unit, list, count);
    return text.empty() ? "none" : text;
}

cmd_result_t stg_show(int unit, args_t *args) {
    std::optional<std::int32_t> wanted;
    if (!take_last_number(*args, wanted)) return kUsage;
    bcm_stg_t *list = nullptr;
    int count = 0;
    int status = bcm_stg_list(unit, &list, &count);
    if (status < 0) return report(*args, status);
    PortNames names = unit_ports(unit);
    Table table({">STG", "VLANs", "Ports"});
    for (int at = 0; at < count; ++at) {
        if (wanted && list[at] != *wanted) continue;
        table.row({std::to_string(list[at]), vlans_text(unit, list[at]),
                   states_text(unit, list[at], names)});
    }
    bcm_stg_list_destroy(unit, list, count);
    if (wanted && table.size() == 0) return report(*args, BCM_E_NOT_FOUND);
    table.print();
    return kOk;
}

cmd_result_t stg_create(int unit, args_t *args) {
    std::optional<std::int32_t> wanted;
    if (!take_last_number(*args, wanted)) return kUsage;
    if (wanted) return report(*args, bcm_stg_create_id(unit, *wanted));
    bcm_stg_t stg = 0;
    int status = bcm_stg_create(unit, &stg);
    if (status >= 0) outf("%d\n", stg);
    return report(*args, status);
}

cmd_result_t stg_destroy(int unit, args_t *args) {
    std::optional<std::int32_t> stg = take_number(*args);
    if (!stg || !args->empty()) return kUsage;
    return report(*args, bcm_stg_destroy(unit, *stg));
}

// `stg add N VLAN` and `stg remove N VLAN`.
cmd_result_t stg_vlan(int unit, args_t &args, int (*call)(int, bcm_stg_t, bcm_vlan_t)) {
    std::optional<std::int32_t> stg = take_number(args);
    std::optional<std::int32_t> vlan = take_number(args);
    if (!stg || !vlan || !args.empty()) return kUsage;
    return report(args, call(unit, *stg, static_cast<bcm_vlan_t>(*vlan)));
}

cmd_result_t stg_add(int unit, args_t *args) { return stg_vlan(unit, *args, bcm_stg_vlan_add); }

cmd_result_t stg_remove(int unit, args_t *args) {
    return stg_vlan(unit, *args, bcm_stg_vlan_remove);
}

cmd_result_t stg_stp(int unit, args_t *args) {
    std::optional<std::int32_t> stg = take_number(*args);
    if (!stg) return kUsage;
    PortNames names = unit_ports(unit);
    std::optional<PortSet> ports = take_ports(unit, *args, names);
    if (!ports) return kFail;
    std::optional<int> state = state_of(args->take().value_or(""));
    if (!state || !args->empty()) return kUsage;
    return for_ports(
        *ports, [&](int port) { return report(*args, bcm_stg_stp_set(unit, *stg, port, *state)); });
}

}  // namespace

cmd_result_t cmd_l2(int unit, args_t *args) {
    return run_subcommand(unit, *args,
                          {{"show", l2_show},
                           {"add", l2_add},
                           {"delete", l2_delete},
                           {"clear", l2_clear},
                           {"count", l2_count}},
                          "show");
}

cmd_result_t cmd_vlan(int unit, args_t *args) {
    return run_subcommand(unit, *args,
                          {{"show", vlan_show},
                           {"create", vlan_create},
                           {"destroy", vlan_destroy},
                           {"add", vlan_add},
                           {"remove", vlan_remove}},
                          "show");
}

cmd_result_t cmd_stg(int unit, args_t *args) {
    return run_subcommand(unit, *args,
                          {{"show", stg_show},
                           {"create", stg_create},
                           {"destroy", stg_destroy},
                           {"add", stg_add},
                           {"remove", stg_remove},
                           {"stp", stg_stp}},
                          "show");
}

}  // namespace standin
