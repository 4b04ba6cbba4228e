// Commands on units, ports, counters and PHYs.
#include <array>
#include <cstdlib>

#include "helper/device.h"
#include "sdk/bcm/init.h"
#include "sdk/bcm/port.h"
#include "sdk/bcm/stat.h"
#include "sdk/bcm/stg.h"
#include "sdk/soc/init.h"
#include "standin/base/number_text.h"
#include "standin/base/output.h"
#include "standin/base/scan.h"
#include "standin/model/model.h"
#include "standin/model/switch.h"
#include "standin/shell/commands.h"
#include "standin/text/name_text.h"
#include "standin/text/unit_ports.h"

namespace standin {
namespace {

// Asks one number of a port; the cell of a table.
std::string ask(int (*get)(int, bcm_port_t, int *), int unit, int port) {
    int value = 0;
    int status = get(unit, port, &value);
    return cell(status, value);
}

// The same, with a word for 0 and for anything else.
std::string ask_word(int (*get)(int, bcm_port_t, int *), int unit, int port, const char *no,
                     const char *yes) {
    int value = 0;
    if (get(unit, port, &value) < 0) return "-";
    return value == 0 ? no : yes;
}

std::string untagged_vlan(int unit, int port) {
    bcm_vlan_t vlan = 0;
    int status = bcm_port_untagged_vlan_get(unit, port, &vlan);
    return cell(status, unsigned{vlan});
}

std::string learning(int unit, int port) {
    uint32 flags = 0;
    if (bcm_port_learn_get(unit, port, &flags) < 0) return "-";
    return flags == 0 ? "off" : "on";
}

constexpr std::array kLoopbacks = {"none", "mac", "phy", "remote"};

std::optional<int> loopback_of(std::string_view text) {
    for (std::size_t at = 0; at < kLoopbacks.size(); ++at)
        if (same_word(kLoopbacks[at], text)) return static_cast<int>(at);
    return std::nullopt;
}

std::string loopback(int unit, int port) {
    int mode = 0;
    if (bcm_port_loopback_get(unit, port, &mode) < 0) return "-";
    bool known = mode >= 0 && static_cast<std::size_t>(mode) < kLoopbacks.size();
    return known ? kLoopbacks[static_cast<std::size_t>(mode)] : std::to_string(mode);
}

void print_ports(int unit, const PortSet &ports, const PortNames &names) {
    Table table({"Port", "Name", "Admin", "Link", ">Speed", "Duplex", "Autoneg", ">VLAN", "Learn",
                 ">Frame", "Loopback"});
    for_ports(ports, [&](int port) {
        table.row({std::to_string(port), port_text(port, names),
                   ask_word(bcm_port_enable_get, unit, port, "off", "on"),
                   ask_word(bcm_port_link_status_get, unit, port, "down", "up"),
                   ask(bcm_port_speed_get, unit, port),
                   ask_word(bcm_port_duplex_get, unit, port, "half", "full"),
                   ask_word(bcm_port_autoneg_get, unit, port, "off", "on"),
                   untagged_vlan(unit, port), learning(unit, port),
                   ask(bcm_port_frame_max_get, unit, port), loopback(unit, port)});
        return kOk;
    });
    table.print();
}

// What `port` may change; what has no value stays.
struct PortChange {
    std::optional<std::int32_t> enable;
    std::optional<std::int32_t> autoneg;
    std::optional<std::int32_t> speed;
    std::optional<std::int32_t> duplex;
    std::optional<std::int32_t> frame;
    std::optional<std::int32_t> vlan;
    std::optional<std::int32_t> learn;
    std::optional<std::string> loopback;
    std::optional<int> loopback_mode;
};

int apply(int unit, int port, const PortChange &change) {
    int status = BCM_E_NONE;
    auto set = [&](const std::optional<std::int32_t> &value, auto call) {
        if (value && status >= 0) status = call(unit, port, *value);
    };
    set(change.enable, bcm_port_enable_set);
    set(change.autoneg, bcm_port_autoneg_set);
    set(change.speed, bcm_port_speed_set);
    set(change.duplex, bcm_port_duplex_set);
    set(change.frame, bcm_port_frame_max_set);
    set(change.loopback_mode, bcm_port_loopback_set);
    set(change.vlan, [](int of_unit, int of_port, int vlan) {
        return bcm_port_untagged_vlan_set(of_unit, of_port, static_cast<bcm_vlan_t>(vlan));
    });
    set(change.learn, [](int of_unit, int of_port, int flags) {
        return bcm_port_learn_set(of_unit, of_port, static_cast<uint32>(flags));
    });
    return status;
}

// Whether every port could take the change, before any does: the status of the first that cannot,
// and its number in `port`.
int check(int unit, const PortSet &ports, const PortChange &change, int &port) {
    auto is_flag = [](const std::optional<std::int32_t> &value) {
        return !value || within(*value, 0, 1);
    };
    auto in_range = [](const std::optional<std::int32_t> &value, int low, int high) {
        return !value || within(*value, low, high);
    };
    bool good = is_flag(change.enable) && is_flag(change.autoneg) && is_flag(change.duplex) &&
                in_range(change.frame, kSmallestFrame, kLargestFrame) &&
                in_range(change.vlan, kFirstVlan, kLastVlan) && in_range(change.learn, 0, 7);
    return on_switch("port", unit, [&](Switch &chip) {
        cmd_result_t first = for_ports(ports, [&](int each) {
            port = each;
            const Port *one = chip.ports.find(each);
            bool runs = one != nullptr && (change.speed.value_or(0) == 0 ||
                                           can_run_at(*one, *change.speed));
            return runs ? kOk : kFail;
        });
        if (!good) return BCM_E_PARAM;
        return first == kOk ? BCM_E_NONE : BCM_E_CONFIG;
    });
}

std::string hex_cell(U32 value) { return text_of("0x%04x", value); }

}  // namespace

cmd_result_t cmd_unit(int unit, args_t *args) {
    if (std::optional<std::string> word = args->take()) {
        std::optional<std::int32_t> chosen = read_i32(*word);
        if (!chosen || !args->empty()) return kUsage;
        if (!unit_attached(*chosen)) return refuse(*args, "unit " + *word + " is not attached");
        Shell::instance().unit_set(*chosen);
        return kOk;
    }
    Table table({">Unit", "Device", ">Rev", "State", ">Ports", ""});
    for (int each : attached_units()) {
        bool ready = bcm_init_check(each) >= 0;
        std::size_t ports = unit_ports(each).size();
        table.row({std::to_string(each), hex_cell(getDevId(each)), std::to_string(getDevRev(each)),
                   ready ? "ready" : "attached", std::to_string(ports), each == unit ? "*" : ""});
    }
    table.print();
    return kOk;
}

cmd_result_t cmd_init(int unit, args_t *args) {
    if (!args->empty()) return kUsage;
    return report(*args, soc_init(unit));
}

cmd_result_t cmd_port(int unit, args_t *args) {
    PortNames names = unit_ports(unit);
    std::optional<PortSet> ports = take_ports(unit, *args, names);
    if (!ports) return kFail;
    bool show = args->empty();
    PortChange change;
    parse_table_s table(unit);
    table.add("enable", change.enable);
    table.add("autoneg", change.autoneg);
    table.add("speed", change.speed);
    table.add("duplex", change.duplex);
    table.add("frame", change.frame);
    table.add("vlan", change.vlan);
    table.add("learn", change.learn);
    table.add("loopback", change.loopback);
    cmd_result_t result = kOk;
    if (!parse_all(*args, table, result)) return result;
    if (change.loopback) {
        change.loopback_mode = loopback_of(*change.loopback);
        if (!change.loopback_mode) return kUsage;
    }
    if (show) {
        print_ports(unit, *ports, names);
        return kOk;
    }
    auto tell = [&](int port, int status) {
        if (status >= 0) return kOk;
        return refuse(*args, port_text(port, names) + ": " + status_text(status));
    };
    int first = -1;
    int status = check(unit, *ports, change, first);
    if (status < 0) return tell(first, status);
    return for_ports(*ports, [&](int port) { return tell(port, apply(unit, port, change)); });
}

cmd_result_t cmd_ps(int unit, args_t *args) {
    PortNames names = unit_ports(unit);
    std::optional<PortSet> ports = take_ports(unit, *args, names);
    if (!ports) return kFail;
    if (!args->empty()) return kUsage;
    print_ports(unit, *ports, names);
    return kOk;
}

cmd_result_t cmd_counters(int unit, args_t *args) {
    PortNames names = unit_ports(unit);
    bool clear = args->take_word("clear");
    bool zeros = args->take_word("zeros");
    std::optional<PortSet> ports = take_ports(unit, *args, names);
    if (!ports) return kFail;
    if (!args->empty()) return kUsage;
    if (clear) {
        return for_ports(*ports,
                         [&](int port) { return report(*args, bcm_stat_clear(unit, port)); });
    }
    static const NameFamily &counters = *new NameFamily("snmp");
    Table table({"Port", "Counter", ">Value"});
    for_ports(*ports, [&](int port) {
        for (int counter = 0; counter < snmpValCount; ++counter) {
            uint64 value = 0;
            auto type = static_cast<bcm_stat_val_t>(counter);
            if (bcm_stat_get(unit, port, type, &value) < 0 || (value == 0 && !zeros)) continue;
            table.row(
                {port_text(port, names), counters.name(counter, true), decimal_text(value, true)});
        }
        return kOk;
    });
    if (table.size() == 0)
        out("every counter is 0\n");
    else
        table.print();
    return kOk;
}

cmd_result_t cmd_phy(int unit, args_t *args) {
    PortNames names = unit_ports(unit);
    std::optional<PortSet> ports = take_ports(unit, *args, names);
    if (!ports) return kFail;
    std::optional<std::string> reg_word = args->take();
    std::optional<std::string> value_word = args->take();
    std::optional<std::uint32_t> reg = read_u32(reg_word.value_or("0"));
    std::optional<std::uint32_t> value = read_u32(value_word.value_or("0"));
    if (!args->empty() || !reg || !value || *value > 0xffff) return kUsage;
    if (value_word) {
        return for_ports(*ports, [&](int port) {
            return report(*args, bcm_port_phy_set(unit, port, 0, *reg, *value));
        });
    }
    Table table({"Port", reg_word ? "Register" : "PHY", reg_word ? ">Value" : "Link"});
    for_ports(*ports, [&](int port) {
        std::array<char, 64> driver{};
        uint32 data = 0;
        if (reg_word) {
            int status = bcm_port_phy_get(unit, port, 0, *reg, &data);
            table.row({port_text(port, names), text_of("0x%04x", *reg),
                       status < 0 ? status_text(status) : text_of("0x%04x", data)});
            return kOk;
        }
        int status =
            bcm_port_phy_drv_name_get(unit, port, driver.data(), static_cast<int>(driver.size()));
        table.row({port_text(port, names), status < 0 ? "-" : driver.data(),
                   ask_word(bcm_port_link_status_get, unit, port, "down", "up")});
        return kOk;
    });
    table.print();
    return kOk;
}

}  // namespace standin
