// The commands of the shell, one function each; command_table.cpp says how they are used.
//
// Each takes what it needs from `args`. CMD_USAGE for arguments that it cannot read, CMD_FAIL
// with a line of text when the library refuses.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "standin/shell/args.h"
#include "standin/shell/session.h"

namespace standin {

// The shell itself.
cmd_result_t cmd_help(int unit, args_t *args);
cmd_result_t cmd_version(int unit, args_t *args);
cmd_result_t cmd_echo(int unit, args_t *args);
cmd_result_t cmd_set(int unit, args_t *args);
cmd_result_t cmd_setenv(int unit, args_t *args);
cmd_result_t cmd_unsetenv(int unit, args_t *args);
cmd_result_t cmd_printenv(int unit, args_t *args);
cmd_result_t cmd_if(int unit, args_t *args);
cmd_result_t cmd_for(int unit, args_t *args);
cmd_result_t cmd_loop(int unit, args_t *args);
cmd_result_t cmd_rcload(int unit, args_t *args);
cmd_result_t cmd_exit(int unit, args_t *args);
cmd_result_t cmd_show(int unit, args_t *args);

// Units and their ports.
cmd_result_t cmd_unit(int unit, args_t *args);
cmd_result_t cmd_init(int unit, args_t *args);
cmd_result_t cmd_port(int unit, args_t *args);
cmd_result_t cmd_ps(int unit, args_t *args);
cmd_result_t cmd_counters(int unit, args_t *args);
cmd_result_t cmd_phy(int unit, args_t *args);

// Tables of the switch.
cmd_result_t cmd_l2(int unit, args_t *args);
cmd_result_t cmd_vlan(int unit, args_t *args);
cmd_result_t cmd_stg(int unit, args_t *args);

// Registers and memories.
cmd_result_t cmd_listreg(int unit, args_t *args);
cmd_result_t cmd_getreg(int unit, args_t *args);
cmd_result_t cmd_setreg(int unit, args_t *args);
cmd_result_t cmd_modreg(int unit, args_t *args);
cmd_result_t cmd_listmem(int unit, args_t *args);
cmd_result_t cmd_dump(int unit, args_t *args);
cmd_result_t cmd_write(int unit, args_t *args);

// Configuration, log and packet watcher.
cmd_result_t cmd_config(int unit, args_t *args);
cmd_result_t cmd_trace(int unit, args_t *args);
cmd_result_t cmd_pw(int unit, args_t *args);

// What the commands share.

// kOk for a good status; else prints "<command>: BCM_E_..." and gives kFail.
cmd_result_t report(const args_t &args, int status);
// Prints "<command>: <text>" and gives kFail.
cmd_result_t refuse(const args_t &args, const std::string &text);
// "BCM_E_PARAM"
std::string status_text(int status);

// A value for a table: the number, or "-" when the call that should give it failed.
template <class T>
std::string cell(int status, T value) {
    return status < 0 ? "-" : std::to_string(value);
}

// Runs the function of the subcommand that is the next word; `fallback` where there is none.
struct Subcommand {
    const char *name;
    cmd_func_t run;
};
cmd_result_t run_subcommand(int unit, args_t &args, std::initializer_list<Subcommand> table,
                            const char *fallback);

// The next word as a list of ports of the unit; without a word every port. Nothing, and a line of
// text, for a word that is none, or a unit without ports.
std::optional<PortSet> take_ports(int unit, args_t &args, const PortNames &names);

// Runs `each` for every port of the set, by ascending number, until it does not give kOk.
cmd_result_t for_ports(const PortSet &ports, const std::function<cmd_result_t(int)> &each);

// Whether a name is meant by a pattern: with '*' or '?' a shell pattern, else a part of it, both
// without regard to case. An empty pattern means every name.
bool name_matches(std::string_view name, const std::string &pattern);

// Reads the options and refuses what is left of the arguments.
bool parse_all(args_t &args, parse_table_s &table, cmd_result_t &result);

}  // namespace standin
