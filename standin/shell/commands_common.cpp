// What several commands share: status texts, port lists, patterns of names.
#include <fnmatch.h>

#include "sdk/diag/parse.h"
#include "standin/base/output.h"
#include "standin/base/scan.h"
#include "standin/shell/commands.h"
#include "standin/text/name_text.h"
#include "standin/text/unit_ports.h"

namespace standin {

std::string status_text(int status) {
    static const NameFamily &names = *new NameFamily("BCM_E_");
    return names.name(status, false);
}

cmd_result_t report(const args_t &args, int status) {
    return status >= 0 ? kOk : refuse(args, status_text(status));
}

cmd_result_t refuse(const args_t &args, const std::string &text) {
    out(args.command + ": " + text + '\n');
    return kFail;
}

cmd_result_t run_subcommand(int unit, args_t &args, std::initializer_list<Subcommand> table,
                            const char *fallback) {
    std::string word = args.take().value_or(fallback);
    for (const Subcommand &entry : table) {
        if (!same_word(entry.name, word)) continue;
        args.command += ' ' + lower_case(word);
        return entry.run(unit, &args);
    }
    refuse(args, "no '" + word + '\'');
    return kUsage;
}

std::optional<PortSet> take_ports(int unit, args_t &args, const PortNames &names) {
    if (names.empty()) {
        refuse(args, "unit " + std::to_string(unit) + " has no ports");
        return std::nullopt;
    }
    std::string fault;
    bool given = !args.empty() && args.peek()->find('=') == std::string::npos;
    std::optional<PortSet> ports = read_ports_there(given ? *args.take() : "all", names, fault);
    if (!ports) refuse(args, fault);
    return ports;
}

cmd_result_t for_ports(const PortSet &ports, const std::function<cmd_result_t(int)> &each) {
    for (std::size_t at = 0; at < ports.size(); ++at) {
        if (!ports[at]) continue;
        cmd_result_t result = each(static_cast<int>(at));
        if (result != kOk) return result;
    }
    return kOk;
}

bool name_matches(std::string_view name, const std::string &pattern) {
    std::string text = lower_case(name);
    std::string wanted = lower_case(pattern);
    if (wanted.find_first_of("*?[") == std::string::npos)
        return text.find(wanted) != std::string::npos;
    return fnmatch(wanted.c_str(), text.c_str(), 0) == 0;
}

bool parse_all(args_t &args, parse_table_s &table, cmd_result_t &result) {
    table.parse(args);
    return parseEndOk(&args, &table, &result) != 0;
}

}  // namespace standin
