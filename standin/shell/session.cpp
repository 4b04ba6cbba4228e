// Running lines, files and single commands, and the variables of each unit.
#include "standin/shell/session.h"
#include "standin/model/rehearsal.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstring>

#include "sdk/bcm/init.h"
#include "sdk/diag/shell.h"
#include "sdk/variables.h"
#include "standin/base/config_file.h"
#include "standin/base/log.h"
#include "standin/base/number_text.h"
#include "standin/base/output.h"
#include "standin/base/scan.h"
#include "standin/model/refusal.h"
#include "standin/shell/interrupt.h"
#include "standin/shell/matcher.h"
#include "standin/shell/pipe.h"

namespace standin {
namespace {

constexpr int kUnits = SOC_MAX_NUM_DEVICES;

// How deep this thread is in commands, and in files with their words.
thread_local int depth = 0;
thread_local std::vector<std::vector<std::string>> files;

class CommandLevel {
  public:
    CommandLevel() { ++depth; }
    ~CommandLevel() { --depth; }
    CommandLevel(const CommandLevel &) = delete;
    CommandLevel &operator=(const CommandLevel &) = delete;
};

class FileLevel {
  public:
    explicit FileLevel(const std::vector<std::string> &words) {
        files.push_back(words);
        ++std::atomic_ref(sh_rcload_depth);
    }
    ~FileLevel() {
        files.pop_back();
        --std::atomic_ref(sh_rcload_depth);
    }
    FileLevel(const FileLevel &) = delete;
    FileLevel &operator=(const FileLevel &) = delete;
};

// The logical lines of a file with the number of the first physical line of each.
struct FileLine {
    std::string text;
    int number;
};
std::vector<FileLine> lines_of(std::string_view text) {
    std::vector<FileLine> lines;
    int number = 0;
    bool joined = false;
    while (!text.empty()) {
        std::size_t end = text.find('\n');
        std::string line(text.substr(0, end));
        text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
        ++number;
        if (line.ends_with('\r')) line.pop_back();
        if (joined)
            lines.back().text += line;
        else
            lines.push_back({line, number});
        joined = take_continuation(lines.back().text);
    }
    return lines;
}

bool ends_line(cmd_result_t result) { return result == kExit || result == kInterrupted; }

void report_result(const std::string &command, cmd_result_t result) {
    if (sh_set_report_status == 0 || result == kOk) return;
    outf("%s: %s\n", command.c_str(), result_name(result));
}

}  // namespace

const char *result_name(int result) {
    constexpr std::array names = {"CMD_OK",   "CMD_FAIL", "CMD_USAGE",  "CMD_NFND",
                                  "CMD_EXIT", "CMD_INTR", "CMD_NOTIMPL"};
    bool known = result <= CMD_OK && result >= CMD_NOTIMPL;
    return known ? names[static_cast<std::size_t>(-result)] : "unknown result";
}

namespace {

// What a form would answer, and what it would print if that is no good. Where there is no chip the
// form itself says so.
cmd_result_t try_on_copy(int unit, const Form &form, CommandCall &call) {
    int status = BCM_E_NONE;
    SavedState state = save_state(unit, status);
    if (state == nullptr) return kOk;
    std::string told;
    cmd_result_t result = kOk;
    {
        const Rehearsal rehearsal(unit, std::move(state));
        Capture capture;
        result = form.run(call);
        told = capture.text();
    }
    if (result != kOk) out(told);
    return result;
}

}  // namespace

bool unit_attached(int unit) {
    return unit >= 0 && unit < kUnits && bcm_attach_check(unit) == BCM_E_NONE;
}

std::vector<int> attached_units() {
    std::vector<int> units;
    for (int unit = 0; unit < kUnits; ++unit)
        if (unit_attached(unit)) units.push_back(unit);
    return units;
}

Shell &Shell::instance() {
    static Shell &shell = *new Shell;
    return shell;
}

cmd_result_t Shell::run(int unit, const char *line) {
    return line == nullptr ? kFail : run_line(unit, line, Manner::kPlain);
}

cmd_result_t Shell::run_typed(int unit, const std::string &line) {
    return run_line(unit, line, Manner::kTyped);
}

cmd_result_t Shell::run_checked(int unit, const char *line) {
    if (line == nullptr) return kFail;
    if (sh_check_attached(nullptr, unit) != BCM_E_NONE) return kFail;
    return run_line(unit, line, Manner::kChecked);
}

cmd_result_t Shell::run_line(int unit, std::string_view line, Manner manner) {
    if (depth >= kCommandDepth) {
        out_fault("commands are nested too deeply");
        return kFail;
    }
    CommandLevel level;
    InterruptScope interrupts;
    SplitLine split = split_commands(line);
    if (split.fault) {
        out_fault(split.fault->text);
        return kUsage;
    }
    cmd_result_t result = kOk;
    for (const std::string &command : split.commands) {
        if (command.empty()) continue;
        result =
            interrupted() ? kInterrupted : run_command(unit, command, manner == Manner::kTyped);
        result_ = result;
        if (ends_line(result) || (manner == Manner::kChecked && result != kOk)) break;
    }
    return result;
}

cmd_result_t Shell::run_command(int unit, std::string_view text, bool typed) {
    std::optional<UnitPrefix> prefix = take_unit_prefix(text);
    if (!prefix) return run_words(std::string(text), unit, typed);
    if (!prefix->every && sh_check_attached(nullptr, prefix->unit) != BCM_E_NONE) return kFail;
    if (text.empty() && !prefix->every) {
        unit_ = prefix->unit;
        return kOk;
    }
    if (!prefix->every) return run_words(std::string(text), prefix->unit, typed);
    cmd_result_t result = kOk;
    for (int each : attached_units()) {
        outf("unit %d\n", each);
        cmd_result_t one = run_words(std::string(text), each, typed);
        if (ends_line(one)) return one;
        if (result == kOk) result = one;
    }
    return result;
}

cmd_result_t Shell::run_words(const std::string &text, int unit, bool typed) {
    Words words = read_command_words(text, [&](std::string_view name) {
        if (name == "?") return std::to_string(result_);
        return name == "unit" ? std::to_string(unit) : variable(name);
    });
    if (words.fault) {
        out_fault(words.fault->text);
        return kUsage;
    }
    if (words.words.empty()) return kOk;
    auto start = std::chrono::steady_clock::now();
    cmd_result_t result = run_piped(unit, words, text, typed);
    if (trace_wanted())
        trace("shell u" + std::to_string(unit) + ": " + text + ": " + result_name(result));
    const std::string &name = words.words.front();
    report_result(name, result);
    if (sh_set_report_time != 0 && depth == 1) {
        std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
        outf("%s: %.3f s\n", name.c_str(), took.count());
    }
    return result;
}

// A command with what stands behind it. What it printed while it failed is no table of it.
cmd_result_t Shell::run_piped(int unit, const Words &words, const std::string &text, bool typed) {
    const std::string &first = words.words.front();
    if (words.places.front().plain && (first == "|" || first == ">" || first == ">>")) {
        out_fault(first + ": no command before it");
        return kUsage;
    }
    const Command *const command = find_command(first, typed);
    if (command == nullptr || takes_rest(*command)) return call(unit, words, text, typed);
    const Pipe pipe = read_pipe(words, command->compares, typed);
    if (!pipe.fault.empty()) {
        out_fault(pipe.fault);
        return kUsage;
    }
    Words own = words;
    own.words.resize(pipe.words);
    own.places.resize(pipe.words);
    if (pipe.empty()) return call(unit, own, text, typed);
    std::vector<RowCatcher::Item> items;
    cmd_result_t result = kOk;
    {
        RowCatcher catcher;
        result = call(unit, own, text, typed);
        items = catcher.take();
    }
    const bool rows = std::any_of(items.begin(), items.end(), [](const RowCatcher::Item &item) {
        return std::holds_alternative<Rows>(item);
    });
    if (result != kOk && !rows) {
        for (const RowCatcher::Item &item : items) out(std::get<std::string>(item));
        return result;
    }
    return run_pipe(pipe, std::move(items)) || result != kOk ? result : kFail;
}

cmd_result_t Shell::call(int unit, const Words &words, const std::string &text, bool typed) {
    Match match(unit, typed, words, text);
    if (const std::optional<MatchFault> &fault = match.whole()) {
        out_fault(fault->text);
        if (fault->usage) outf("usage: %s\n", usage_of(*fault->command, *fault->form).c_str());
        return fault->result;
    }
    forget_refusal();
    const Form &form = *match.form();
    if (form.whole && !Rehearsal::is_on()) {
        const cmd_result_t tried = try_on_copy(unit, form, match.call());
        if (tried != kOk) return tried;
    }
    cmd_result_t result = form.run(match.call());
    if (result == kUsage) outf("usage: %s\n", usage_of(*match.command(), *match.form()).c_str());
    return result;
}

cmd_result_t Shell::run_file(int unit, const std::string &path,
                             const std::vector<std::string> &words, bool add_rc) {
    std::string name = add_rc && !path.ends_with(".rc") ? path + ".rc" : path;
    std::string text;
    if (!read_file(name, text)) {
        out_fault("rcload " + name + ": " +
                  (errno == ENOENT ? "no such file" : std::strerror(errno)));
        return kNotFound;
    }
    if (files.size() >= kFileDepth) {
        outf("%s: files are nested too deeply\n", name.c_str());
        return kFail;
    }
    FileLevel level(words);
    InterruptScope interrupts;
    return run_lines(unit, name, text);
}

cmd_result_t Shell::run_lines(int unit, const std::string &name, std::string_view text) {
    cmd_result_t result = kOk;
    for (const FileLine &line : lines_of(text)) {
        if (sh_set_rctest != 0) {
            outf("%s:%d: %s\n", name.c_str(), line.number, line.text.c_str());
            continue;
        }
        result = run_line(unit, line.text, sh_set_rcerror != 0 ? Manner::kChecked : Manner::kPlain);
        if (result == kOk) continue;
        if (result == kExit) return kOk;  // `exit` leaves the file, no more
        if (result == kInterrupted) return result;
        outf("%s:%d: %s\n", name.c_str(), line.number, result_name(result));
        if (sh_set_rcerror != 0) return result;
    }
    return result;
}

std::string Shell::variable(std::string_view name) const {
    if (std::optional<std::uint64_t> place = read_u64(name)) {
        bool there = !files.empty() && *place > 0 && *place <= files.back().size();
        return there ? files.back()[*place - 1] : std::string();
    }
    std::lock_guard hold(lock_);
    auto set = variables_.find(variables_unit_);
    if (set == variables_.end()) return {};
    auto found = set->second.find(std::string(name));
    return found == set->second.end() ? std::string() : found->second;
}

void Shell::swap_variables(int unit) {
    std::lock_guard hold(lock_);
    variables_unit_ = unit;
}

std::optional<std::string> Shell::start_file(int unit) const {
    std::lock_guard hold(lock_);
    auto found = start_files_.find(unit);
    return found == start_files_.end() ? std::nullopt : std::optional(found->second);
}

void Shell::start_file_set(int unit, const std::string &name) {
    std::lock_guard hold(lock_);
    if (name.empty())
        start_files_.erase(unit);
    else
        start_files_[unit] = name;
}

bool Shell::watching(int unit) const {
    std::lock_guard hold(lock_);
    return watching_.count(unit) != 0;
}

bool Shell::watching_set(int unit, bool on) {
    std::lock_guard hold(lock_);
    return on ? watching_.insert(unit).second : watching_.erase(unit) != 0;
}

void Shell::variable_set(const std::string &name, const std::string &value) {
    std::lock_guard hold(lock_);
    variables_[variables_unit_][name] = value;
}

bool Shell::variable_remove(const std::string &name) {
    std::lock_guard hold(lock_);
    return variables_[variables_unit_].erase(name) > 0;
}

std::map<std::string, std::string> Shell::variables() const {
    std::lock_guard hold(lock_);
    auto found = variables_.find(variables_unit_);
    return found == variables_.end() ? std::map<std::string, std::string>() : found->second;
}

}  // namespace standin
