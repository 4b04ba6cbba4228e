// The table of commands. The first line of a help text is what `help` lists.
#include <array>

#include "standin/base/scan.h"
#include "standin/shell/commands.h"

namespace standin {

const cmd_t shell_commands[] = {
    {"config", cmd_config,
     "config [show [PATTERN] | get NAME | set NAME=VALUE... | delete NAME... | "
     "save [file=F] [pattern=P] [append] | load [FILE] | clear | dump]",
     "Settings of the configuration store\n"
     "'load' without a file reads the configuration file again and drops what it does not say.\n"
     "'save' without a file writes the configuration file. A change counts from the next call "
     "on."},
    {"counters", cmd_counters, "counters [clear] [zeros] [PORTS]",
     "Counters of ports, those of 0 only with 'zeros'"},
    {"dump", cmd_dump, "dump MEMORY [INDEX [COUNT]]", "Entries of a memory"},
    {"echo", cmd_echo, "echo [-n] WORDS...", "Print words"},
    {"exit", cmd_exit, "exit", "Leave the shell, or the file that is being run"},
    {"for", cmd_for, "for NAME=LIST 'COMMANDS'",
     "Run commands for each member of a list, as 1-4,9, which $NAME is set to"},
    {"getreg", cmd_getreg, "getreg REGISTER [fields]",
     "Read registers\nA register is NAME, NAME.PORTS, NAME[INDEX] or an address 0x..."},
    {"help", cmd_help, "help [COMMAND]", "What commands there are, or how to use one"},
    {"if", cmd_if, "if CONDITION 'COMMANDS' ['COMMANDS']",
     "Run commands if a condition holds, else the others\n"
     "A condition is a word (yes, no, a number) or A == B with == != < <= > >=."},
    {"init", cmd_init, "init", "Initialise the chip of the unit"},
    {"l2", cmd_l2,
     "l2 [show | add | delete | clear | count] [mac=M] [vlan=V] [port=P | trunk=T | discard] "
     "[static]",
     "The MAC table\n'clear' and 'show' take the rows that all the options pick."},
    {"listmem", cmd_listmem, "listmem [PATTERN]", "Memories by name"},
    {"listreg", cmd_listreg, "listreg [PATTERN]", "Registers by name"},
    {"loop", cmd_loop, "loop COUNT 'COMMANDS'", "Run commands several times"},
    {"modreg", cmd_modreg, "modreg REGISTER FIELD=VALUE...", "Change fields of registers"},
    {"phy", cmd_phy, "phy [PORTS [REGISTER [VALUE]]]",
     "PHYs of ports, or a register of them, read or written"},
    {"port", cmd_port,
     "port [PORTS] [enable=B] [autoneg=B] [speed=N] [duplex=B] [frame=N] [vlan=V] [learn=B] "
     "[loopback=none|mac|phy|remote]",
     "Show ports or change them"},
    {"printenv", cmd_printenv, "printenv [PATTERN]", "Variables of the shell"},
    {"ps", cmd_ps, "ps [PORTS]", "State of ports"},
    {"pw", cmd_pw, "pw [start | stop | show]", "The packet watcher of the unit"},
    {"rcload", cmd_rcload, "rcload FILE [WORDS...]",
     "Run the commands of a file, with the words as $1, $2, ..."},
    {"set", cmd_set, "set [SETTING[=VALUE]...]", "Settings of the shell"},
    {"setenv", cmd_setenv, "setenv NAME [VALUE...]", "Set a variable"},
    {"setreg", cmd_setreg, "setreg REGISTER VALUE", "Write registers"},
    {"show", cmd_show,
     "show units | ports | l2 | vlan | stg | counters | phy | config | trace | version | "
     "variables | settings",
     "Show something, with the words that its own command takes"},
    {"stg", cmd_stg,
     "stg [show [N] | create [N] | destroy N | add N VLAN | remove N VLAN | stp N PORTS STATE]",
     "Spanning trees\nA state is disable, block, listen, learn or forward."},
    {"trace", cmd_trace,
     "trace [show | level LAYER SOURCE SEVERITY | capture B | log B | bus B | text]",
     "Levels of the log, and the trace\n'*' stands for every layer or source."},
    {"unit", cmd_unit, "unit [N]", "The units, or choose the current one"},
    {"unsetenv", cmd_unsetenv, "unsetenv NAME", "Remove a variable"},
    {"version", cmd_version, "version [verbose]", "Version of the library"},
    {"vlan", cmd_vlan,
     "vlan [show [V] | create V [ports=P] [untagged=P] | destroy V | add V ports=P [untagged=P] | "
     "remove V ports=P]",
     "VLANs and their ports\nUntagged ports are members without being named twice."},
    {"write", cmd_write, "write MEMORY INDEX VALUE", "Write an entry of a memory"},
    {nullptr, nullptr, nullptr, nullptr},
};

const cmd_t *find_command(std::string_view name) {
    struct Alias {
        std::string_view name;
        std::string_view command;
    };
    constexpr std::array aliases = {Alias{"?", "help"}, Alias{"quit", "exit"}, Alias{"g", "getreg"},
                                    Alias{"s", "setreg"}, Alias{"d", "dump"}};
    for (const Alias &alias : aliases)
        if (same_word(alias.name, name)) name = alias.command;
    for (const cmd_t *row = shell_commands; row->c_cmd != nullptr; ++row)
        if (same_word(row->c_cmd, name)) return row;
    return nullptr;
}

}  // namespace standin
