// Running lines, files and single commands, and the variables of each unit.
#include "standin/shell/session.h"

#include <array>
#include <chrono>

#include "sdk/bcm/init.h"
#include "sdk/variables.h"
#include "standin/base/config_file.h"
#include "standin/base/log.h"
#include "standin/base/number_text.h"
#include "standin/base/output.h"
#include "standin/base/scan.h"
#include "standin/shell/args.h"
#include "standin/shell/interrupt.h"
#include "standin/shell/reader.h"

namespace standin {
namespace {

constexpr int kUnits = SOC_MAX_NUM_DEVICES;

// Counts a level of nesting while it lives.
class Level {
  public:
    explicit Level(int &depth) : depth_(depth) { ++depth_; }
    ~Level() { --depth_; }
    Level(const Level &) = delete;
    Level &operator=(const Level &) = delete;

  private:
    int &depth_;
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
        bool more = take_continuation(line);
        if (joined)
            lines.back().text += line;
        else
            lines.push_back({line, number});
        joined = more;
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
    if (line == nullptr) return kFail;
    std::lock_guard hold(lock_);
    return run_line(unit, line, false);
}

cmd_result_t Shell::run_checked(int unit, const char *line) {
    if (line == nullptr) return kFail;
    std::lock_guard hold(lock_);
    if (!unit_attached(unit)) {
        outf("unit %d is not attached\n", unit);
        return kFail;
    }
    return run_line(unit, line, true);
}

cmd_result_t Shell::run_line(int unit, std::string_view line, bool checked) {
    if (depth_ >= kCommandDepth) {
        out("commands are nested too deeply\n");
        return kFail;
    }
    Level level(depth_);
    InterruptScope interrupts;
    SplitLine split = split_commands(line);
    if (split.fault) {
        out(split.fault->text + '\n');
        return kUsage;
    }
    cmd_result_t result = kOk;
    for (const std::string &command : split.commands) {
        if (command.empty()) continue;
        result = interrupted() ? kInterrupted : run_command(unit, command);
        result_ = result;
        if (ends_line(result) || (checked && result != kOk)) break;
    }
    return result;
}

cmd_result_t Shell::run_command(int unit, std::string_view text) {
    std::optional<UnitPrefix> prefix = take_unit_prefix(text);
    if (!prefix) return run_on_units(std::string(text), unit);
    if (text.empty() && !prefix->every) {
        unit_ = prefix->unit;
        return kOk;
    }
    if (!prefix->every) return run_on_units(std::string(text), prefix->unit);
    cmd_result_t result = kOk;
    for (int each : attached_units()) {
        outf("unit %d\n", each);
        cmd_result_t one = run_on_units(std::string(text), each);
        if (ends_line(one)) return one;
        if (result == kOk) result = one;
    }
    return result;
}

cmd_result_t Shell::run_on_units(const std::string &text, int unit) {
    Words words = read_command_words(text, [&](std::string_view name) {
        if (name == "?") return std::to_string(result_);
        return name == "unit" ? std::to_string(unit) : variable(name);
    });
    if (words.fault) {
        out(words.fault->text + '\n');
        return kUsage;
    }
    if (words.words.empty()) return kOk;
    std::string name = words.words.front();
    auto start = std::chrono::steady_clock::now();
    cmd_result_t result = call(unit, std::move(words.words));
    if (trace_wanted())
        trace("shell u" + std::to_string(unit) + ": " + text + ": " + result_name(result));
    report_result(name, result);
    if (sh_set_report_time != 0 && depth_ == 1) {
        std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
        outf("%s: %.3f s\n", name.c_str(), took.count());
    }
    return result;
}

cmd_result_t Shell::call(int unit, std::vector<std::string> words) {
    const cmd_t *command = find_command(words.front());
    if (command == nullptr) {
        outf("%s: no such command; 'help' lists them\n", words.front().c_str());
        return kNotFound;
    }
    args_s args;
    args.command = words.front();
    args.words.assign(words.begin() + 1, words.end());
    cmd_result_t result = command->c_f(unit, &args);
    if (result == kUsage) outf("usage: %s\n", command->c_usage);
    return result;
}

cmd_result_t Shell::run_file(int unit, const std::string &path,
                             const std::vector<std::string> &words, bool add_rc) {
    std::lock_guard hold(lock_);
    std::string name = add_rc && !path.ends_with(".rc") ? path + ".rc" : path;
    std::string text;
    if (!read_file(name, text)) {
        outf("%s: cannot be read\n", name.c_str());
        return kNotFound;
    }
    if (sh_rcload_depth >= kFileDepth) {
        outf("%s: files are nested too deeply\n", name.c_str());
        return kFail;
    }
    Level level(sh_rcload_depth);
    InterruptScope interrupts;
    positional_.push_back(words);
    cmd_result_t result = run_lines(unit, name, text);
    positional_.pop_back();
    return result;
}

cmd_result_t Shell::run_lines(int unit, const std::string &name, std::string_view text) {
    cmd_result_t result = kOk;
    for (const FileLine &line : lines_of(text)) {
        if (sh_set_rctest != 0) {
            outf("%s:%d: %s\n", name.c_str(), line.number, line.text.c_str());
            continue;
        }
        result = run_line(unit, line.text, sh_set_rcerror != 0);
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
        bool there = !positional_.empty() && *place > 0 && *place <= positional_.back().size();
        return there ? positional_.back()[*place - 1] : std::string();
    }
    const auto &all = variables();
    auto found = all.find(std::string(name));
    return found == all.end() ? std::string() : found->second;
}

void Shell::variable_set(const std::string &name, const std::string &value) {
    variables_[variables_unit_][name] = value;
}

bool Shell::variable_remove(const std::string &name) {
    return variables_[variables_unit_].erase(name) > 0;
}

const std::map<std::string, std::string> &Shell::variables() const {
    static const std::map<std::string, std::string> none;
    auto found = variables_.find(variables_unit_);
    return found == variables_.end() ? none : found->second;
}

}  // namespace standin
