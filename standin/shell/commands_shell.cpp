// Commands of the shell itself.
#include <array>

#include "sdk/diag/shell.h"
#include "sdk/variables.h"
#include "standin/base/number_text.h"
#include "standin/base/output.h"
#include "standin/base/scan.h"
#include "standin/shell/commands.h"
#include "standin/shell/interrupt.h"

namespace standin {
namespace {

struct Knob {
    const char *name;
    int *value;
    const char *help;
};
// The settings of the shell, by the names that `set` uses.
const std::array kKnobs = {
    Knob{"rcload", &sh_set_rcload, "load start-up files"},
    Knob{"rcerror", &sh_set_rcerror, "a file ends at its first error"},
    Knob{"lperror", &sh_set_lperror, "a loop ends at its first error"},
    Knob{"iferror", &sh_set_iferror, "a bad condition is an error"},
    Knob{"rctest", &sh_set_rctest, "show the commands of files, run none"},
    Knob{"more", &sh_set_more_lines, "lines that a terminal shows at a time"},
    Knob{"reporttime", &sh_set_report_time, "print how long commands took"},
    Knob{"reportstatus", &sh_set_report_status, "print results that are not CMD_OK"},
};

const Knob *find_knob(std::string_view name) {
    for (const Knob &knob : kKnobs)
        if (same_word(knob.name, name)) return &knob;
    return nullptr;
}

// A number for a setting: yes and no are 1 and 0.
std::optional<int> knob_value(std::string_view text) {
    if (std::optional<std::int32_t> number = read_i32(text)) return *number;
    std::optional<bool> truth = read_truth(text);
    if (!truth) return std::nullopt;
    return *truth ? 1 : 0;
}

// A number with its sign, so that numbers compare as these do: a sign, then two's complement.
using Ordered = std::pair<bool, std::uint64_t>;
std::optional<Ordered> ordered(std::string_view text) {
    bool minus = text.starts_with('-');
    if (minus || text.starts_with('+')) text.remove_prefix(1);
    std::optional<std::uint64_t> size = read_u64(text);
    if (!size || is_blank(text.front())) return std::nullopt;
    bool below = minus && *size != 0;
    return Ordered{!below, below ? 0 - *size : *size};
}

// `left op right`, by number where both are, else by text. Nothing for an unknown operator.
std::optional<bool> compare(const std::string &left, std::string_view op,
                            const std::string &right) {
    std::optional<Ordered> first = ordered(left);
    std::optional<Ordered> second = ordered(right);
    int order = left.compare(right);
    if (first && second) order = *first < *second ? -1 : *first > *second ? 1 : 0;
    if (op == "==") return order == 0;
    if (op == "!=") return order != 0;
    if (op == "<") return order < 0;
    if (op == "<=") return order <= 0;
    if (op == ">") return order > 0;
    if (op == ">=") return order >= 0;
    return std::nullopt;
}

// Takes the condition of `if`: one word, or three with an operator between.
std::optional<bool> take_condition(args_t &args) {
    std::string left = args.take().value_or("");
    std::string op = args.peek().value_or("");
    bool three = !op.empty() && op.find_first_not_of("=!<>") == std::string::npos;
    if (!three) return read_truth(left);
    args.take();
    return compare(left, op, args.take().value_or(""));
}

constexpr std::size_t kMostTurns = 65536;  // of one `for`

// The members of "1-4,9,abc": numbers in ranges, any other word as it is. Nothing for too many.
std::optional<std::vector<std::string>> loop_values(std::string_view text) {
    constexpr Range kAny = {0, 0x7fffffff};
    std::vector<std::string> values;
    for (std::string_view item : split(text, ",")) {
        std::optional<Range> range = read_range(item, kAny);
        if (!range) {
            values.emplace_back(item);
            continue;
        }
        auto more = static_cast<std::size_t>(range->high - range->low);
        if (values.size() + more >= kMostTurns) return std::nullopt;
        for (int value = range->low; value <= range->high; ++value)
            values.push_back(std::to_string(value));
    }
    return values;
}

// One turn of a loop: false in `go_on` when the loop is over.
cmd_result_t turn(int unit, const std::string &command, bool &go_on) {
    cmd_result_t result =
        interrupted() ? kInterrupted : Shell::instance().run(unit, command.c_str());
    go_on = result == kOk || (result != kExit && result != kInterrupted && sh_set_lperror == 0);
    return result;
}

}  // namespace

cmd_result_t cmd_help(int, args_t *args) {
    std::optional<std::string> name = args->take();
    if (!args->empty()) return kUsage;
    if (name) {
        const cmd_t *row = find_command(*name);
        if (row == nullptr) return refuse(*args, "no command '" + *name + '\'');
        outf("%s\nusage: %s\n", row->c_help, row->c_usage);
        return kOk;
    }
    Table table({"Command", "What it does"});
    for (const cmd_t *row = shell_commands; row->c_cmd != nullptr; ++row) {
        std::string_view help = row->c_help;
        table.row({row->c_cmd, std::string(help.substr(0, help.find('\n')))});
    }
    table.print();
    out("'help COMMAND' tells how to use one.\n");
    return kOk;
}

cmd_result_t cmd_version(int, args_t *args) {
    bool verbose = args->take_word("verbose");
    if (!args->empty()) return kUsage;
    sh_print_version(verbose ? 1 : 0);
    return kOk;
}

cmd_result_t cmd_echo(int, args_t *args) {
    bool newline = !args->take_word("-n");
    out(args->take_rest());
    if (newline) out("\n");
    return kOk;
}

cmd_result_t cmd_set(int, args_t *args) {
    if (args->empty()) {
        Table table({"Setting", ">Value", "Meaning"});
        for (const Knob &knob : kKnobs)
            table.row({knob.name, std::to_string(*knob.value), knob.help});
        table.print();
        return kOk;
    }
    std::vector<std::pair<int *, int>> changes;
    while (std::optional<std::string> word = args->take()) {
        std::string_view name;
        std::string_view text;
        bool has_value = cut(*word, '=', name, text);
        const Knob *knob = find_knob(name);
        std::optional<int> value = knob_value(has_value ? text : "1");
        if (knob == nullptr || !value) return kUsage;
        changes.emplace_back(knob->value, *value);
    }
    for (const auto &[setting, value] : changes) *setting = value;
    return kOk;
}

cmd_result_t cmd_setenv(int, args_t *args) {
    std::optional<std::string> name = args->take();
    if (!name || name->empty() || is_digit(name->front())) return kUsage;
    for (char sign : *name)
        if (!is_alnum(sign) && sign != '_') return kUsage;
    Shell::instance().variable_set(*name, args->take_rest());
    return kOk;
}

cmd_result_t cmd_unsetenv(int, args_t *args) {
    std::optional<std::string> name = args->take();
    if (!name || !args->empty()) return kUsage;
    bool was_there = Shell::instance().variable_remove(*name);
    return was_there ? kOk : refuse(*args, "no variable '" + *name + '\'');
}

cmd_result_t cmd_printenv(int, args_t *args) {
    std::string pattern = args->take().value_or("");
    if (!args->empty()) return kUsage;
    for (const auto &[name, value] : Shell::instance().variables())
        if (name_matches(name, pattern)) out(name + '=' + value + '\n');
    return kOk;
}

cmd_result_t cmd_if(int unit, args_t *args) {
    std::optional<bool> condition = take_condition(*args);
    std::optional<std::string> then = args->take();
    std::optional<std::string> otherwise = args->take();
    if (!then || !args->empty()) return kUsage;
    if (!condition) {
        if (sh_set_iferror != 0) return refuse(*args, "bad condition");
        condition = false;
    }
    if (*condition) return Shell::instance().run(unit, then->c_str());
    return otherwise ? Shell::instance().run(unit, otherwise->c_str()) : kOk;
}

cmd_result_t cmd_for(int unit, args_t *args) {
    std::string_view name;
    std::string_view list;
    std::optional<std::string> head = args->take();
    std::optional<std::string> command = args->take();
    if (!head || !command || !args->empty() || !cut(*head, '=', name, list) || name.empty())
        return kUsage;
    std::optional<std::vector<std::string>> values = loop_values(list);
    if (!values) return refuse(*args, "more than " + std::to_string(kMostTurns) + " values");
    cmd_result_t result = kOk;
    bool go_on = true;
    for (const std::string &value : *values) {
        Shell::instance().variable_set(std::string(name), value);
        result = turn(unit, *command, go_on);
        if (!go_on) break;
    }
    return result;
}

cmd_result_t cmd_loop(int unit, args_t *args) {
    std::optional<std::uint64_t> count = read_u64(args->take().value_or(""));
    std::optional<std::string> command = args->take();
    if (!count || !command || !args->empty()) return kUsage;
    cmd_result_t result = kOk;
    bool go_on = true;
    for (std::uint64_t at = 0; at < *count && go_on; ++at) result = turn(unit, *command, go_on);
    return result;
}

cmd_result_t cmd_rcload(int unit, args_t *args) {
    std::optional<std::string> file = args->take();
    if (!file) return kUsage;
    std::vector<std::string> words;
    while (std::optional<std::string> word = args->take()) words.push_back(*word);
    return Shell::instance().run_file(unit, *file, words, false);
}

cmd_result_t cmd_exit(int, args_t *args) { return args->empty() ? kExit : kUsage; }

cmd_result_t cmd_show(int unit, args_t *args) {
    struct Topic {
        const char *word;
        const char *command;
    };
    constexpr std::array topics = {
        Topic{"units", "unit"},      Topic{"ports", "ps"},           Topic{"l2", "l2 show"},
        Topic{"vlan", "vlan show"},  Topic{"stg", "stg show"},       Topic{"counters", "counters"},
        Topic{"phy", "phy"},         Topic{"config", "config show"}, Topic{"trace", "trace show"},
        Topic{"version", "version"}, Topic{"variables", "printenv"}, Topic{"settings", "set"},
    };
    std::string word = args->take().value_or("");
    for (const Topic &topic : topics) {
        if (!same_word(topic.word, word)) continue;
        std::string_view name;
        std::string_view subcommand;
        cut(topic.command, ' ', name, subcommand);
        args_s rest = *args;
        rest.command = name;
        if (!subcommand.empty()) {
            rest.words.insert(rest.words.begin() + static_cast<std::ptrdiff_t>(rest.next),
                              std::string(subcommand));
        }
        return find_command(name)->c_f(unit, &rest);
    }
    return kUsage;
}

}  // namespace standin
