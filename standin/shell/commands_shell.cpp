// Commands of the shell itself.
#include <array>

#include "sdk/diag/shell.h"
#include "sdk/variables.h"
#include "standin/base/number_text.h"
#include "standin/base/output.h"
#include "standin/base/rows.h"
#include "standin/base/scan.h"
#include "standin/shell/commands.h"
#include "standin/shell/interrupt.h"
#include "standin/shell/manual.h"
#include "standin/shell/matcher.h"
#include "standin/shell/values.h"

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

// The condition of `if`: one word, or three with an operator between.
std::optional<bool> condition_of(const std::vector<const Value *> &words) {
    if (words.size() == 1) return read_truth(words[0]->text);
    if (words.size() != 3) return std::nullopt;
    return compare(words[0]->text, words[1]->text, words[2]->text);
}

bool is_operator(std::string_view word) {
    return !word.empty() && word.find_first_not_of("=!<>") == std::string_view::npos;
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

constexpr RowColumn kHelpColumns[] = {{"command", "Command", CellKind::kText},
                                      {"help", "What it does", CellKind::kText}};

cmd_result_t do_help(CommandCall &call) {
    if (!call.has("COMMAND")) {
        Rows rows(kHelpColumns);
        for (const Command *command : all_commands()) rows.row({command->name, command->help});
        rows.note("'help COMMAND' tells how to use one.");
        rows.show();
        return kOk;
    }
    const Command *const command = find_command(call.text("COMMAND"));
    if (command == nullptr) return refuse(call, "no command '" + call.text("COMMAND") + '\'');
    std::string wanted;
    for (const Value *word : call.all("WORD")) wanted += (wanted.empty() ? "" : " ") + word->text;
    if (wanted.empty()) {
        out(help_of(*command));
        return kOk;
    }
    bool found = false;
    for (const Form &form : command->forms) {
        if (!starts_with_word(form.name, wanted)) continue;
        out((found ? "\n" : "") + help_of(*command, form));
        found = true;
    }
    return found ? kOk : refuse(call, "no '" + wanted + "' of '" + command->name + '\'');
}

cmd_result_t do_version(CommandCall &call) {
    sh_print_version(call.flag("verbose") ? 1 : 0);
    return kOk;
}

cmd_result_t do_echo(CommandCall &call) {
    std::string text;
    bool newline = true;
    bool first = true;
    for (const Value *word : call.all("WORDS")) {
        if (first && newline && word->text == "-n") {
            newline = false;
            continue;
        }
        text += (first ? "" : " ") + word->text;
        first = false;
    }
    out(text + (newline ? "\n" : ""));
    return kOk;
}

constexpr RowColumn kSettingColumns[] = {{"setting", "Setting", CellKind::kText},
                                         {"value", ">Value", CellKind::kNumber},
                                         {"help", "Meaning", CellKind::kText}};

std::vector<Candidate> list_knobs(int) {
    std::vector<Candidate> all;
    for (const Knob &knob : kKnobs) all.push_back({std::string(knob.name) + '=', knob.help});
    return all;
}

cmd_result_t do_set(CommandCall &call) {
    if (!call.has("SETTING")) {
        Rows rows(kSettingColumns);
        for (const Knob &knob : kKnobs) rows.row({knob.name, *knob.value, knob.help});
        rows.show();
        return kOk;
    }
    std::vector<std::pair<int *, int>> changes;
    for (const Value *word : call.all("SETTING")) {
        std::string_view name;
        std::string_view text;
        bool has_value = cut(word->text, '=', name, text);
        const Knob *knob = find_knob(name);
        std::vector<std::string> names;
        for (const Knob &one : kKnobs) names.emplace_back(one.name);
        if (knob == nullptr) {
            out_fault("set " + word->text + ": " + list_text(names));
            return kUsage;
        }
        std::optional<int> value = knob_value(has_value ? text : "1");
        if (!value) {
            out_fault("set " + word->text + ": a number, yes or no");
            return kUsage;
        }
        changes.emplace_back(knob->value, *value);
    }
    for (const auto &[setting, value] : changes) *setting = value;
    return kOk;
}

cmd_result_t do_setenv(CommandCall &call) {
    std::string text;
    for (const Value *word : call.all("VALUE")) text += (text.empty() ? "" : " ") + word->text;
    Shell::instance().variable_set(call.text("NAME"), text);
    return kOk;
}

cmd_result_t do_unsetenv(CommandCall &call) {
    bool was_there = Shell::instance().variable_remove(call.text("NAME"));
    return was_there ? kOk : refuse(call, "no variable '" + call.text("NAME") + '\'');
}

constexpr RowColumn kVariableColumns[] = {{"name", "Name", CellKind::kText},
                                          {"value", "Value", CellKind::kText}};

cmd_result_t do_printenv(CommandCall &call) {
    Rows rows(kVariableColumns, "{name}={value}");
    for (const auto &[name, value] : Shell::instance().variables())
        if (name_matches(name, call.text("PATTERN"))) rows.row({name, value});
    rows.show();
    return kOk;
}

cmd_result_t do_if(CommandCall &call) {
    std::vector<const Value *> words = call.all("CONDITION");
    const std::size_t size = words.size() > 1 && is_operator(words[1]->text) ? 3 : 1;
    if (words.size() != size + 1 && words.size() != size + 2) return kUsage;
    const std::vector<const Value *> commands(words.begin() + static_cast<std::ptrdiff_t>(size),
                                              words.end());
    words.resize(size);
    std::optional<bool> condition = condition_of(words);
    if (!condition) {
        if (sh_set_iferror != 0) return refuse(call, "bad condition");
        condition = false;
    }
    Shell &shell = Shell::instance();
    if (*condition) return shell.run(call.unit(), commands[0]->text.c_str());
    return commands.size() == 2 ? shell.run(call.unit(), commands[1]->text.c_str()) : kOk;
}

cmd_result_t do_for(CommandCall &call) {
    std::string_view name;
    std::string_view list;
    const std::string head = call.text("NAME=LIST");
    if (!cut(head, '=', name, list) || name.empty()) return kUsage;
    std::optional<std::vector<std::string>> values = loop_values(list);
    if (!values) return refuse(call, "more than " + std::to_string(kMostTurns) + " values");
    cmd_result_t result = kOk;
    bool go_on = true;
    for (const std::string &value : *values) {
        Shell::instance().variable_set(std::string(name), value);
        result = turn(call.unit(), call.text("'COMMANDS'"), go_on);
        if (!go_on) break;
    }
    return result;
}

cmd_result_t do_loop(CommandCall &call) {
    cmd_result_t result = kOk;
    bool go_on = true;
    for (std::int64_t at = 0; at < call["COUNT"].number && go_on; ++at)
        result = turn(call.unit(), call.text("'COMMANDS'"), go_on);
    return result;
}

// Ends by an interrupt, or after `times`; without a terminal nobody would see the turns pass.
cmd_result_t do_watch(CommandCall &call) {
    const bool terminal = out_screen().width > 0;
    if (!call.has("times") && !terminal)
        return refuse(call, "times=N is needed where there is no terminal");
    const std::int64_t times = call.has("times") ? call["times"].number : INT64_MAX;
    cmd_result_t result = kOk;
    bool go_on = true;
    for (std::int64_t at = 0; at < times && go_on; ++at) {
        if (at > 0 && !wait_seconds(call.number("SECONDS"))) return kInterrupted;
        if (terminal && out_screen().colours) out("\x1b[H\x1b[2J");
        out_rewind();
        result = turn(call.unit(), call.text("COMMAND"), go_on);
    }
    return result;
}

cmd_result_t do_rcload(CommandCall &call) {
    std::vector<std::string> words;
    for (const Value *word : call.all("WORDS")) words.push_back(word->text);
    return Shell::instance().run_file(call.unit(), call.text("FILE"), words, false);
}

// Reached only by what leads nowhere.
cmd_result_t do_show(CommandCall &call) {
    std::vector<std::string> topics;
    for (const Candidate &one : show_topics()) topics.push_back(one.word);
    const std::string word = call.text("TOPIC");
    const std::string near = nearest(word, topics);
    out_fault("show " + call.all("TOPIC").front()->text + ": " + list_text(topics) +
              (near.empty() ? "" : "; did you mean '" + near + "'?"));
    return kUsage;
}

cmd_result_t do_exit(CommandCall &) { return kExit; }

constexpr Param kHelpParams[] = {
    place("COMMAND", Kind::kCommand, "The command"),
    place("WORD", Kind::kText, "The words of one of its forms").many()};
constexpr Form kHelpForms[] = {{"", "What commands there are, or how to use one",
                                "help vlan create", do_help, kHelpParams, kHelpColumns}};
constexpr Command kHelp = {"help", "What commands there are, or how to use one", kHelpForms};

constexpr Param kVersionParams[] = {flag("verbose", "Who built it, when and where")};
constexpr Form kVersionForms[] = {
    {"", "Version of the library", "version verbose", do_version, kVersionParams}};
constexpr Command kVersion = {"version", "Version of the library", kVersionForms};

constexpr Param kEchoParams[] = {
    place("WORDS", Kind::kText, "What is printed; -n in front ends no line").many()};
constexpr Form kEchoForms[] = {{"", "Print words", "echo -n $unit", do_echo, kEchoParams}};
constexpr Command kEcho = {"echo", "Print words", kEchoForms};

constexpr Param kSetParams[] = {
    place("SETTING", Kind::kText, "A setting, alone or with =VALUE").many().there(list_knobs)};
constexpr Form kSetForms[] = {{"", "Show the settings of the shell, or change them",
                               "set more=20 rcerror", do_set, kSetParams, kSettingColumns}};
constexpr Command kSet = {"set", "Settings of the shell", kSetForms};

constexpr Param kSetenvParams[] = {place("NAME", Kind::kVariable, "The variable").need(),
                                   place("VALUE", Kind::kText, "What it stands for").many()};
constexpr Form kSetenvForms[] = {
    {"", "Set a variable", "setenv uplink ce64", do_setenv, kSetenvParams}};
constexpr Command kSetenv = {"setenv", "Set a variable", kSetenvForms};

constexpr Param kUnsetenvParams[] = {place("NAME", Kind::kVariable, "The variable").need()};
constexpr Form kUnsetenvForms[] = {
    {"", "Remove a variable", "unsetenv uplink", do_unsetenv, kUnsetenvParams}};
constexpr Command kUnsetenv = {"unsetenv", "Remove a variable", kUnsetenvForms};

constexpr Param kPrintenvParams[] = {
    place("PATTERN", Kind::kText, "A part of the name, or a pattern with '*'")};
constexpr Form kPrintenvForms[] = {
    {"", "Variables of the shell", "printenv up*", do_printenv, kPrintenvParams, kVariableColumns}};
constexpr Command kPrintenv = {"printenv", "Variables of the shell", kPrintenvForms};

constexpr Param kIfParams[] = {
    place("CONDITION", Kind::kText, "The condition, then the commands in quotes").need().many()};
constexpr Form kIfForms[] = {{"", "Run commands if a condition holds, else the others",
                              "if $unit == 0 'ps xe1' 'ps xe2'", do_if, kIfParams}};
constexpr Command kIf = {
    "if",     "Run commands if a condition holds, else the others",
    kIfForms, "",
    true,     "A condition is a word (yes, no, a number) or A == B with == != < <= > >=."};

constexpr Param kForParams[] = {
    place("NAME=LIST", Kind::kText, "A variable and what it is in turn, as n=1-4,9").need(),
    place("'COMMANDS'", Kind::kLine, "The commands").need()};
constexpr Form kForForms[] = {
    {"", "Run commands for each member of a list, as 1-4,9, which $NAME is set to",
     "for n=10-14 'vlan create $n'", do_for, kForParams}};
constexpr Command kFor = {
    "for", "Run commands for each member of a list, as 1-4,9, which $NAME is set to", kForForms};

constexpr Param kLoopParams[] = {place("COUNT", 0, INT64_MAX, "How often").need(),
                                 place("'COMMANDS'", Kind::kLine, "The commands").need()};
constexpr Form kLoopForms[] = {
    {"", "Run commands several times", "loop 3 'counters xe1'", do_loop, kLoopParams}};
constexpr Command kLoop = {"loop", "Run commands several times", kLoopForms};

constexpr Param kWatchParams[] = {
    place("SECONDS", 1, 86'400, "From one turn to the next").need(),
    option("times", 1, 1'000'000, "How many turns"),
    place("COMMAND", Kind::kRest, "The command, with its filters").need()};
constexpr Form kWatchForms[] = {{"", "Run a command again and again, until an interrupt",
                                 "watch 2 counters xe1 | sort -value", do_watch, kWatchParams}};
constexpr Command kWatch = {"watch", "Run a command again and again, until an interrupt",
                            kWatchForms};

constexpr Param kRcloadParams[] = {place("FILE", Kind::kFile, "The file").need(),
                                   place("WORDS", Kind::kText, "What $1, $2, ... are").many()};
constexpr Form kRcloadForms[] = {{"", "Run the commands of a file, with the words as $1, $2, ...",
                                  "rcload ports.rc xe1", do_rcload, kRcloadParams}};
constexpr Command kRcload = {"rcload", "Run the commands of a file, with the words as $1, $2, ...",
                             kRcloadForms};

constexpr Form kExitForms[] = {
    {"", "Leave the shell, or the file that is being run", "exit", do_exit}};
constexpr Command kExitCommand = {"exit", "Leave the shell, or the file that is being run",
                                  kExitForms};

constexpr Param kShowParams[] = {
    place("TOPIC", Kind::kText, "What to show, then the words of its own command").need().many()};
constexpr Form kShowForms[] = {{"", "Show something, with the words that its own command takes",
                                "show l2 vlan=10", do_show, kShowParams}};
constexpr Command kShow = {"show", "Show something, with the words that its own command takes",
                           kShowForms};

constexpr const Command *kCommands[] = {&kShow,   &kEcho,     &kExitCommand, &kFor,    &kHelp,
                                        &kIf,     &kLoop,     &kPrintenv,    &kRcload, &kSet,
                                        &kSetenv, &kUnsetenv, &kVersion,     &kWatch};
static_assert(complete(kCommands));

}  // namespace

std::span<const Command *const> shell_commands() { return kCommands; }

}  // namespace standin
