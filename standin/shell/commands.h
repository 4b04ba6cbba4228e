// The commands of the shell, by chapter, and what their handlers share.
//
// A handler gets words that have been read. It gives CMD_FAIL with a line of text when the library
// refuses, CMD_USAGE where words that read well do not go together.
#pragma once

#include <functional>
#include <span>
#include <string>

#include "standin/shell/call.h"
#include "standin/shell/session.h"

namespace standin {

std::span<const Command *const> shell_commands();     // the shell itself
std::span<const Command *const> port_commands();      // units, ports, counters, PHYs
std::span<const Command *const> switch_commands();    // MAC addresses, VLANs, spanning trees
std::span<const Command *const> register_commands();  // registers and memories
std::span<const Command *const> system_commands();    // configuration, log, packet watcher
std::span<const Command *const> group_commands();     // trunks, multicast, mirrors, policers
std::span<const Command *const> l3_commands();
std::span<const Command *const> field_commands();
std::span<const Command *const> queue_commands();   // quality of service, tables without a model
std::span<const Command *const> packet_commands();  // frames on ports
std::span<const Command *const> state_commands();   // the state as a whole, faults, the shadow

// Forms of `config` that are about the state of the unit.
cmd_result_t config_diff(CommandCall &call);
cmd_result_t config_apply(CommandCall &call);
inline constexpr RowColumn kDifferenceColumns[] = {
    {"change", "Change", CellKind::kText}, {"kind", "Object", CellKind::kText},
    {"key", "Key", CellKind::kText},       {"field", "Field", CellKind::kText},
    {"was", "Was", CellKind::kText},       {"is", "Is", CellKind::kText}};

// Words of settings, by their number.
inline constexpr const char *kLoopbacks[] = {"none", "mac", "phy", "remote"};
inline constexpr const char *kDiscards[] = {"none", "all", "untagged", "tagged"};
inline constexpr const char *kStpStates[] = {"disable", "block", "listen", "learn", "forward"};
static_assert(std::size(kStpStates) == BCM_STG_STP_COUNT);

// kOk for a good status; else prints "<command>: BCM_E_...: <meaning>" and gives kFail.
cmd_result_t report(const CommandCall &call, int status);
// Prints "<command>: <text>" and gives kFail.
cmd_result_t refuse(const CommandCall &call, const std::string &text);
// "BCM_E_PARAM"
std::string status_text(int status);
// "BCM_E_PARAM: a bad parameter", with the model's own sentence where it has one.
std::string status_meaning(int status);

// A value for a table, nothing when the call that should give it failed.
template <class T>
Cell cell(int status, T value) {
    return status < 0 ? Cell() : Cell(value);
}

// A set of ports for a table: numbers, with the names that a person reads.
Cell ports_cell(const PortSet &ports, const PortNames &names);
// A port, by its number.
Cell port_cell(int port, const PortNames &names);

// Runs `each` for every port of the set, by ascending number, until it does not give kOk.
cmd_result_t for_ports(const PortSet &ports, const std::function<cmd_result_t(int)> &each);

// Whether a name is meant by a pattern: with '*' or '?' a shell pattern, else a part of it, both
// without regard to case. An empty pattern means every name.
bool name_matches(std::string_view name, const std::string &pattern);

// What there is on a unit, for completion.
std::vector<Candidate> list_vlans(int unit);
std::vector<Candidate> list_stgs(int unit);
std::vector<Candidate> list_trunks(int unit);

}  // namespace standin
