// Commands on units, ports, counters and PHYs.
#include <algorithm>
#include <array>
#include <cstring>

#include "helper/device.h"
#include "sdk/bcm/init.h"
#include "sdk/bcm/port.h"
#include "sdk/bcm/stat.h"
#include "sdk/bcm/stg.h"
#include "sdk/soc/init.h"
#include "standin/base/number_text.h"
#include "standin/base/output.h"
#include "standin/base/rows.h"
#include "standin/base/scan.h"
#include "standin/model/model.h"
#include "standin/model/switch.h"
#include "standin/shell/address_words.h"
#include "standin/shell/commands.h"
#include "standin/text/name_text.h"
#include "standin/text/unit_ports.h"

namespace standin {
namespace {

// Asks one number of a port; the cell of a table.
Cell ask(int (*get)(int, bcm_port_t, int *), int unit, int port) {
    int value = 0;
    int status = get(unit, port, &value);
    return cell(status, value);
}

// The same, with a word for 0 and for anything else.
Cell ask_word(int (*get)(int, bcm_port_t, int *), int unit, int port, const char *no,
              const char *yes) {
    int value = 0;
    if (get(unit, port, &value) < 0) return {};
    return {value != 0, value == 0 ? no : yes};
}

Cell untagged_vlan(int unit, int port) {
    bcm_vlan_t vlan = 0;
    int status = bcm_port_untagged_vlan_get(unit, port, &vlan);
    return cell(status, unsigned{vlan});
}

Cell learning(int unit, int port) {
    uint32 flags = 0;
    if (bcm_port_learn_get(unit, port, &flags) < 0) return {};
    return {std::int64_t{flags}, flags == 0 ? "off" : "on"};
}

Cell loopback(int unit, int port) {
    int mode = 0;
    if (bcm_port_loopback_get(unit, port, &mode) < 0) return {};
    const bool known = mode >= 0 && static_cast<std::size_t>(mode) < std::size(kLoopbacks);
    return {std::int64_t{mode}, known ? kLoopbacks[mode] : std::to_string(mode)};
}

constexpr RowColumn kPortColumns[] = {
    {"port", "Port", CellKind::kNumber},        {"name", "Name", CellKind::kText},
    {"enable", "Admin", CellKind::kTruth},      {"linkstatus", "Link", CellKind::kTruth},
    {"speed", ">Speed", CellKind::kNumber},     {"duplex", "Duplex", CellKind::kTruth},
    {"autoneg", "Autoneg", CellKind::kTruth},   {"untagged_vlan", ">VLAN", CellKind::kNumber},
    {"learn", "Learn", CellKind::kNumber},      {"frame_max", ">Frame", CellKind::kNumber},
    {"loopback", "Loopback", CellKind::kNumber}};

cmd_result_t do_ps(CommandCall &call) {
    const int unit = call.unit();
    const PortNames names = unit_ports(unit);
    if (names.empty()) return refuse(call, "unit " + std::to_string(unit) + " has no ports");
    Rows rows(kPortColumns);
    for_ports(call.ports("PORTS"), [&](int port) {
        rows.row(
            {port, port_text(port, names), ask_word(bcm_port_enable_get, unit, port, "off", "on"),
             ask_word(bcm_port_link_status_get, unit, port, "down", "up"),
             ask(bcm_port_speed_get, unit, port),
             ask_word(bcm_port_duplex_get, unit, port, "half", "full"),
             ask_word(bcm_port_autoneg_get, unit, port, "off", "on"), untagged_vlan(unit, port),
             learning(unit, port), ask(bcm_port_frame_max_get, unit, port), loopback(unit, port)});
        return kOk;
    });
    rows.show();
    return kOk;
}

// What `port` may change: an option, and the call that sets it.
struct Change {
    const char *option;
    int (*set)(int unit, bcm_port_t port, int value);
};
constexpr Change kChanges[] = {
    {"enable", bcm_port_enable_set},
    {"autoneg", bcm_port_autoneg_set},
    {"speed", bcm_port_speed_set},
    {"duplex", bcm_port_duplex_set},
    {"frame", bcm_port_frame_max_set},
    {"loopback", bcm_port_loopback_set},
    {"discard", bcm_port_discard_set},
    {"pause", [](int unit, int port, int on) { return bcm_port_pause_set(unit, port, on, on); }},
    {"pausetx",
     [](int unit, int port, int on) {
         int sends = 0;
         int obeys = 0;
         const int status = bcm_port_pause_get(unit, port, &sends, &obeys);
         return status < 0 ? status : bcm_port_pause_set(unit, port, on, obeys);
     }},
    {"pauserx",
     [](int unit, int port, int on) {
         int sends = 0;
         int obeys = 0;
         const int status = bcm_port_pause_get(unit, port, &sends, &obeys);
         return status < 0 ? status : bcm_port_pause_set(unit, port, sends, on);
     }},
    {"bpdu", bcm_port_bpdu_enable_set},
    {"master", bcm_port_master_set},
    {"jam", bcm_port_jam_set},
    {"pfm", bcm_port_pfm_set},
    {"linkscan", bcm_port_linkscan_set},
    {"filter", bcm_port_ifilter_set},
    {"l3", bcm_port_l3_enable_set},
    {"priority", bcm_port_untagged_priority_set},
    {"vlan",
     [](int unit, int port, int vlan) {
         return bcm_port_untagged_vlan_set(unit, port, static_cast<bcm_vlan_t>(vlan));
     }},
    {"learn", [](int unit, int port, int flags) {
         return bcm_port_learn_set(unit, port, static_cast<uint32>(flags));
     }}};

cmd_result_t do_port(CommandCall &call) {
    const PortNames names = unit_ports(call.unit());
    const bool show = !call.has("pauseaddr") &&
                      std::none_of(std::begin(kChanges), std::end(kChanges),
                                   [&](const Change &one) { return call.has(one.option); });
    if (show || names.empty()) return do_ps(call);
    const PortSet ports = call.ports("PORTS");
    const auto tell = [&](int port, int status) {
        return status >= 0 ? kOk
                           : refuse(call, port_text(port, names) + ": " + status_meaning(status));
    };
    return for_ports(ports, [&](int port) {
        for (const Change &one : kChanges) {
            if (!call.has(one.option)) continue;
            const int status = one.set(call.unit(), port, call.number(one.option));
            if (status < 0) return tell(port, status);
        }
        MacBytes address = call["pauseaddr"].mac;
        return call.has("pauseaddr")
                   ? tell(port, bcm_port_pause_addr_set(call.unit(), port, address.data()))
                   : kOk;
    });
}

cmd_result_t port_control(CommandCall &call) {
    return for_ports(call.ports("PORTS"), [&](int port) {
        return report(call,
                      bcm_port_control_set(call.unit(), port,
                                           static_cast<bcm_port_control_t>(call.number("TYPE")),
                                           call.number("VALUE")));
    });
}

cmd_result_t port_advertise(CommandCall &call) {
    const std::optional<std::string> bytes = bytes_of_hex(call.text("BYTES"));
    bcm_port_ability_t ability{};
    if (!bytes || bytes->size() != sizeof ability)
        return refuse(call, text_of("%zu bytes, two digits each", sizeof ability));
    std::memcpy(&ability, bytes->data(), sizeof ability);
    return for_ports(call.ports("PORTS"), [&](int port) {
        return report(call, bcm_port_ability_advert_set(call.unit(), port, &ability));
    });
}

constexpr RowColumn kUnitColumns[] = {
    {"unit", ">Unit", CellKind::kNumber},   {"device", "Device", CellKind::kNumber},
    {"rev", ">Rev", CellKind::kNumber},     {"state", "State", CellKind::kText},
    {"ports", ">Ports", CellKind::kNumber}, {"current", "", CellKind::kTruth}};

cmd_result_t do_unit(CommandCall &call) {
    if (call.has("UNIT")) {
        Shell::instance().unit_set(call.number("UNIT"));
        return kOk;
    }
    Rows rows(kUnitColumns);
    for (int each : attached_units()) {
        const U32 device = getDevId(each);
        const bool current = each == call.unit();
        rows.row({each,
                  {std::int64_t{device}, text_of("0x%04x", device)},
                  getDevRev(each),
                  bcm_init_check(each) >= 0 ? "ready" : "attached",
                  unit_ports(each).size(),
                  {current, current ? "*" : " "}});
    }
    rows.show();
    return kOk;
}

cmd_result_t do_init(CommandCall &call) { return report(call, soc_init(call.unit())); }

constexpr RowColumn kCounterColumns[] = {{"port", "Port", CellKind::kNumber},
                                         {"counter", "Counter", CellKind::kText},
                                         {"value", ">Value", CellKind::kNumber}};

cmd_result_t do_counters_clear(CommandCall &call) {
    return for_ports(call.ports("PORTS"),
                     [&](int port) { return report(call, bcm_stat_clear(call.unit(), port)); });
}

cmd_result_t do_counters(CommandCall &call) {
    const PortNames names = unit_ports(call.unit());
    if (names.empty()) return refuse(call, "unit " + std::to_string(call.unit()) + " has no ports");
    static const NameFamily &counters = *new NameFamily("snmp");
    Rows rows(kCounterColumns);
    for_ports(call.ports("PORTS"), [&](int port) {
        for (int counter = 0; counter < snmpValCount; ++counter) {
            uint64 value = 0;
            auto type = static_cast<bcm_stat_val_t>(counter);
            if (bcm_stat_get(call.unit(), port, type, &value) < 0) continue;
            if (value == 0 && !call.flag("zeros")) continue;
            rows.row({port_cell(port, names),
                      counters.name(counter, true),
                      {std::uint64_t{value}, decimal_text(value, true)}});
        }
        return kOk;
    });
    rows.instead("every counter is 0");
    rows.show();
    return kOk;
}

constexpr RowColumn kPhyColumns[] = {{"port", "Port", CellKind::kNumber},
                                     {"phy", "PHY", CellKind::kText},
                                     {"linkstatus", "Link", CellKind::kTruth}};
constexpr RowColumn kPhyRegisterColumns[] = {{"port", "Port", CellKind::kNumber},
                                             {"register", "Register", CellKind::kNumber},
                                             {"value", ">Value", CellKind::kNumber},
                                             {"status", nullptr, CellKind::kText}};

cmd_result_t do_phy_register(CommandCall &call) {
    const PortNames names = unit_ports(call.unit());
    const auto reg = static_cast<uint32>(call["REGISTER"].number);
    const auto hex = [](uint32 value) { return text_of("0x%04x", value); };
    if (call.has("VALUE")) {
        return for_ports(call.ports("PORTS"), [&](int port) {
            return report(call, bcm_port_phy_set(call.unit(), port, 0, reg,
                                                 static_cast<uint32>(call["VALUE"].number)));
        });
    }
    Rows rows(kPhyRegisterColumns);
    for_ports(call.ports("PORTS"), [&](int port) {
        uint32 data = 0;
        const int status = bcm_port_phy_get(call.unit(), port, 0, reg, &data);
        const std::string words = status < 0 ? status_text(status) : hex(data);
        Cell::Value value;
        if (status >= 0) value = std::int64_t{data};
        rows.row({port_cell(port, names),
                  {std::int64_t{reg}, hex(reg)},
                  {value, words},
                  status_text(status)});
        return kOk;
    });
    rows.show();
    return kOk;
}

cmd_result_t do_phy(CommandCall &call) {
    const PortNames names = unit_ports(call.unit());
    if (names.empty()) return refuse(call, "unit " + std::to_string(call.unit()) + " has no ports");
    if (call.has("REGISTER")) return do_phy_register(call);
    Rows rows(kPhyColumns);
    for_ports(call.ports("PORTS"), [&](int port) {
        std::array<char, 64> driver{};
        const int status = bcm_port_phy_drv_name_get(call.unit(), port, driver.data(),
                                                     static_cast<int>(driver.size()));
        rows.row({port_cell(port, names), status < 0 ? Cell() : Cell(driver.data()),
                  ask_word(bcm_port_link_status_get, call.unit(), port, "down", "up")});
        return kOk;
    });
    rows.show();
    return kOk;
}

constexpr Param kUnitParams[] = {place("UNIT", Kind::kUnit, "The unit for what is typed next")};
constexpr Form kUnitForms[] = {
    {"", "The units, or choose the current one", "unit 0", do_unit, kUnitParams, kUnitColumns}};
constexpr Command kUnit = {"unit", "The units, or choose the current one", kUnitForms};

constexpr Form kInitForms[] = {{"", "Initialise the chip of the unit", "init", do_init}};
constexpr Command kInit = {"init", "Initialise the chip of the unit", kInitForms};

constexpr Param kPortParams[] = {
    place("PORTS", Kind::kPortList, "The ports; all without"),
    option("enable", Kind::kTruth, "Whether the port is on"),
    option("autoneg", Kind::kTruth, "Whether it negotiates"),
    option("speed", 0, 400'000, "Mbit/s, 0 for the fastest"),
    option("duplex", Kind::kTruth, "Full or half"),
    option("frame", kSmallestFrame, kLargestFrame, "The longest frame in bytes"),
    option("vlan", kFirstVlan, kLastVlan, "The VLAN of frames without a tag").there(list_vlans),
    option("learn", 0, 7, "Whether addresses are learned, or the flags of it"),
    option("loopback", kLoopbacks, "Where frames turn round"),
    option("discard", kDiscards, "Which frames are dropped at entry"),
    option("pause", Kind::kTruth, "Whether pause frames are sent and obeyed"),
    option("pausetx", Kind::kTruth, "Whether pause frames are sent"),
    option("pauserx", Kind::kTruth, "Whether pause frames are obeyed"),
    option("pauseaddr", Kind::kMac, "The address that pause frames come from"),
    option("bpdu", Kind::kTruth, "Whether bridge frames are taken"),
    option("master", 0, INT32_MAX, "Who gives the clock on a copper link"),
    option("jam", 0, 1, "Whether a half duplex port holds up others"),
    option("pfm", 0, 3, "What becomes of multicast frames without a group"),
    option("linkscan", 0, 2, "How its link is scanned"),
    option("filter", 0, 3, "Which frames of other VLANs are dropped"),
    option("l3", Kind::kTruth, "Whether frames are routed"),
    option("priority", 0, 7, "The priority of frames without a tag")};
constexpr Param kPortControl[] = {
    place("PORTS", Kind::kPortList, "The ports").need(),
    place("TYPE", INT32_MIN, INT32_MAX, "The kind of the setting").need(),
    place("VALUE", INT32_MIN, INT32_MAX, "What it shall be").need()};
constexpr Param kPortAdvertise[] = {
    place("PORTS", Kind::kPortList, "The ports").need(),
    place("BYTES", Kind::kText, "The abilities, as they lie in memory").need()};
constexpr Form kPortForms[] = {{"", "Show ports, or change them as one", "port xe1-xe4 speed=10000",
                                do_port, kPortParams, kPortColumns, nullptr, true},
                               {"control",
                                "Set one of the lesser settings of ports",
                                "port control xe1-xe4 5 1",
                                port_control,
                                kPortControl,
                                {},
                                nullptr,
                                true},
                               {"advertise",
                                "Choose what ports offer when they negotiate",
                                "port advertise xe1 40000000",
                                port_advertise,
                                kPortAdvertise,
                                {},
                                nullptr,
                                true}};
constexpr Command kPort = configuring({"port", "Show ports or change them", kPortForms});

constexpr Param kPsParams[] = {place("PORTS", Kind::kPortList, "The ports; all without")};
constexpr Form kPsForms[] = {
    {"", "State of ports", "ps xe1-xe4 | columns name,speed", do_ps, kPsParams, kPortColumns}};
constexpr Command kPs = {"ps", "State of ports", kPsForms};

constexpr Param kCountersParams[] = {place("PORTS", Kind::kPortList, "The ports; all without"),
                                     flag("zeros", "Also those that are 0")};
constexpr Form kCountersForms[] = {
    {"", "Counters of ports, those of 0 only with 'zeros'", "counters xe1 zeros", do_counters,
     kCountersParams, kCounterColumns},
    {"clear", "Set the counters of ports to 0", "counters clear xe1", do_counters_clear,
     kPsParams}};
constexpr Command kCounters = {"counters", "Counters of ports, those of 0 only with 'zeros'",
                               kCountersForms};

constexpr Param kPhyParams[] = {place("PORTS", Kind::kPortList, "The ports; all without"),
                                place("REGISTER", 0, 0xffff'ffff, "A register of the PHY"),
                                place("VALUE", 0, 0xffff, "What is written to it")};
constexpr Form kPhyForms[] = {{"", "PHYs of ports, or a register of them, read or written",
                               "phy xe1 0x2", do_phy, kPhyParams, kPhyColumns}};
constexpr Command kPhy = {"phy", "PHYs of ports, or a register of them, read or written",
                          kPhyForms};

constexpr const Command *kCommands[] = {&kCounters, &kInit, &kPhy, &kPort, &kPs, &kUnit};
static_assert(complete(kCommands));

}  // namespace

std::span<const Command *const> port_commands() { return kCommands; }

}  // namespace standin
