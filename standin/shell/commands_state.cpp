// Commands on the state of a unit as a whole: as commands, compared, kept and gone back to; and on
// what makes it fail.
#include <cerrno>
#include <cstring>
#include <map>
#include <mutex>

#include "helper/shadow.h"
#include "standin/base/config_store.h"
#include "standin/base/gate.h"
#include "standin/base/output.h"
#include "standin/base/rows.h"
#include "standin/base/scan.h"
#include "standin/model/rehearsal.h"
#include "standin/regs/unit_state.h"
#include "standin/shell/commands.h"
#include "standin/shell/matcher.h"
#include "standin/shell/running.h"
#include "standin/text/unit_ports.h"

namespace standin {
namespace {

constexpr RowColumn kLineColumns[] = {{"command", "Command", CellKind::kText}};

cmd_result_t running_show(CommandCall &call) {
    int status = BCM_E_NONE;
    const SavedState state = save_state(call.unit(), status);
    if (state == nullptr) return report(call, status);
    Rows rows(kLineColumns, "{command}");
    for (std::string &line : running_lines(state, unit_ports(call.unit())))
        rows.row({std::move(line)});
    rows.show();
    return kOk;
}

// --- files

struct FileCommand {
    int line;
    std::string text;
};

// The commands of a file, and why it cannot be applied, line by line.
struct CommandFile {
    std::vector<FileCommand> commands;
    std::vector<std::string> faults;
};

void add_fault(CommandFile &file, const std::string &name, int line, std::string_view why) {
    file.faults.push_back(text_of("%s:%d: ", name.c_str(), line) + std::string(trim(why)));
}

void read_one(int unit, const std::string &name, int line, const std::string &text,
              CommandFile &file) {
    const Words words = read_command_words(
        text, [](std::string_view variable) { return Shell::instance().variable(variable); });
    if (words.fault) return add_fault(file, name, line, words.fault->text);
    if (words.words.empty()) return;
    Match match(unit, false, words, text);
    if (match.whole())
        add_fault(file, name, line, match.whole()->text);
    else if (!match.command()->configures)
        add_fault(file, name, line, words.words.front() + ": it makes no setting of the unit");
    else
        file.commands.push_back({line, text});
}

CommandFile read_commands(int unit, const std::string &name, const std::string &text) {
    CommandFile file;
    int number = 0;
    for (std::string_view line : split(text, "\n")) {
        const SplitLine commands = split_commands(line);
        ++number;
        if (commands.fault) add_fault(file, name, number, commands.fault->text);
        if (!commands.fault)
            for (const std::string &one : commands.commands)
                read_one(unit, name, number, one, file);
    }
    return file;
}

// Makes the state that the commands lead to, from `state`; false with faults where one is refused.
bool rehearse(int unit, const std::string &name, CommandFile &file, SavedState state) {
    if (!file.faults.empty()) return false;
    const Rehearsal rehearsal(unit, std::move(state));
    for (const FileCommand &one : file.commands) {
        Capture capture;
        if (Shell::instance().run(unit, one.text.c_str()) != kOk)
            add_fault(file, name, one.line, capture.text());
    }
    return file.faults.empty();
}

bool read_for(const CommandCall &call, const std::string &name, CommandFile &file) {
    std::string text;
    if (!read_file(name, text)) {
        refuse(call, name + ": " + (errno == ENOENT ? "no such file" : std::strerror(errno)));
        return false;
    }
    file = read_commands(call.unit(), name, text);
    return true;
}

cmd_result_t tell_faults(const CommandCall &call, const CommandFile &file) {
    for (const std::string &fault : file.faults) out_fault(fault);
    return refuse(call, "nothing was changed");
}

// --- checkpoints

using Kept = std::map<std::pair<int, std::string>, SavedState>;

struct Checkpoints {
    std::mutex lock;
    Kept kept;
};

Checkpoints &checkpoints() {
    // Never destroyed: a native thread may ask while the process ends.
    static auto &all = *new Checkpoints;
    return all;
}

// Calls `body(checkpoints)` under a lock of their own.
template <class Body>
auto with_checkpoints(Body &&body) {
    Checkpoints &all = checkpoints();
    const std::lock_guard<std::mutex> guard(all.lock);
    return body(all.kept);
}

constexpr const char *kUsualName = "last";

SavedState checkpoint_of(int unit, const std::string &name) {
    return with_checkpoints([&](Kept &kept) {
        const auto found = kept.find({unit, name});
        return found == kept.end() ? nullptr : found->second;
    });
}

cmd_result_t checkpoint_keep(CommandCall &call) {
    int status = BCM_E_NONE;
    const SavedState state = save_state(call.unit(), status);
    if (state == nullptr) return report(call, status);
    with_checkpoints([&](Kept &kept) {
        return kept[{call.unit(), call.text("NAME", kUsualName)}] = state;
    });
    return kOk;
}

constexpr RowColumn kCheckpointColumns[] = {{"name", "Checkpoint", CellKind::kText},
                                            {"objects", ">Objects", CellKind::kNumber}};

cmd_result_t checkpoint_show(CommandCall &call) {
    Rows rows(kCheckpointColumns);
    with_checkpoints([&](Kept &kept) {
        for (const auto &[place, state] : kept)
            if (place.first == call.unit()) rows.row({place.second, objects_of(state).size()});
        return true;
    });
    rows.instead("no checkpoint; 'checkpoint' makes one");
    rows.show();
    return kOk;
}

cmd_result_t no_checkpoint(const CommandCall &call, const std::string &name) {
    return refuse(call, "no checkpoint '" + name + "'; 'checkpoint show' lists them");
}

cmd_result_t checkpoint_delete(CommandCall &call) {
    const std::string name = call.text("NAME", kUsualName);
    const bool gone = with_checkpoints([&](Kept &kept) {
        return kept.erase({call.unit(), name}) > 0;
    });
    return gone ? kOk : no_checkpoint(call, name);
}

cmd_result_t do_rollback(CommandCall &call) {
    const std::string name = call.text("NAME", kUsualName);
    const SavedState state = checkpoint_of(call.unit(), name);
    return state == nullptr ? no_checkpoint(call, name)
                            : report(call, load_state(call.unit(), state));
}

std::vector<Candidate> list_checkpoints(int unit) {
    std::vector<Candidate> all;
    with_checkpoints([&](Kept &kept) {
        for (const auto &[place, state] : kept)
            if (place.first == unit) all.push_back({place.second, ""});
        return true;
    });
    return all;
}

// --- differences

std::string text_of_value(const StateValue &value) {
    const std::string *const text = std::get_if<std::string>(&value);
    return text != nullptr ? *text : std::to_string(std::get<std::int64_t>(value));
}

void add_difference(Rows &rows, const StateDifference &one) {
    if (!one.was_there || !one.is_there) {
        rows.row({one.is_there ? "added" : "removed", one.kind, one.key, Cell(), Cell(), Cell()});
        return;
    }
    for (const StateDifference::Field &field : one.fields)
        if (!is_measured(one.kind, field.name))
            rows.row({"changed", one.kind, one.key, field.name, text_of_value(field.was),
                      text_of_value(field.is)});
}

// --- faults

constexpr std::string_view kFault = "fault.";

constexpr RowColumn kFaultColumns[] = {{"name", "What fails", CellKind::kText},
                                       {"value", "How", CellKind::kText}};

cmd_result_t fault_show(CommandCall &) {
    Rows rows(kFaultColumns);
    for (const ConfigEntry &one : config_entries())
        if (one.name.starts_with(kFault)) rows.row({one.name.substr(kFault.size()), one.value});
    rows.instead("nothing is made to fail");
    rows.show();
    return kOk;
}

cmd_result_t put_fault(const CommandCall &call, const std::string &name, const std::string &value) {
    std::string fault;
    if (!config_setting_ok(name, value, fault)) return refuse(call, fault);
    config_set(name, value);
    return kOk;
}

cmd_result_t fault_call(CommandCall &call) {
    std::string value = "status:" + std::to_string(call.number("STATUS"));
    for (const char *item : {"after", "count", "unit"})
        if (call.has(item)) value += std::string(",") + item + ':' + call.text(item);
    if (call.has("delay")) value += ",delay_us:" + call.text("delay");
    for (const Value *one : call.all("arg")) value += ",arg." + one->text;
    return put_fault(call, std::string(kFault) + call.text("FUNCTION"), value);
}

cmd_result_t fault_table(CommandCall &call) {
    return put_fault(call, std::string(kFault) + "table." + call.text("TABLE"), call.text("ROOM"));
}

cmd_result_t fault_clear(CommandCall &call) {
    bool any = false;
    for (const ConfigEntry &one : config_entries()) {
        const bool asked = !call.has("NAME") || one.name == std::string(kFault) + call.text("NAME");
        if (one.name.starts_with(kFault) && asked) any = config_remove(one.name) || any;
    }
    return any || !call.has("NAME") ? kOk : refuse(call, "no fault '" + call.text("NAME") + '\'');
}

std::vector<Candidate> list_functions(int) {
    std::vector<Candidate> all;
    for (const GateRow &row : gate_rows) all.push_back({row.name, row.parameters});
    return all;
}

std::vector<Candidate> list_faults(int) {
    std::vector<Candidate> all;
    for (const ConfigEntry &one : config_entries())
        if (one.name.starts_with(kFault))
            all.push_back({one.name.substr(kFault.size()), one.value});
    return all;
}

// --- the shadow of the registers

constexpr RowColumn kShadowColumns[] = {{"item", "Shadow", CellKind::kText},
                                        {"value", "Value", CellKind::kNumber}};

cmd_result_t shadow_show(CommandCall &call) {
    Rows rows(kShadowColumns);
    const int status = on_unit("shadow show", call.unit(), Need::kDevice, [&](Unit &unit) {
        const ShadowPolicy &policy = shadow_policy();
        rows.row({"registers in the shadow", unit.file.shadow.size()});
        rows.row({"registers written", unit.file.hardware.size()});
        rows.row({"tables with a shadow", unit.state.dynamic.size()});
        rows.row({"set up", unit.state.init_stands() ? 1 : 0});
        rows.row({"reads go to the hardware", policy.force_hardware ? 1 : 0});
        rows.row({"compared last", unit.file.last_sync.compared});
        rows.row({"different then", unit.file.last_sync.differing});
        return BCM_E_NONE;
    });
    if (status < 0) return report(call, status);
    rows.show();
    return kOk;
}

cmd_result_t shadow_compare(CommandCall &call) {
    const uint different =
        syncRegisters(static_cast<uint>(call.unit()), call.flag("print"), call.flag("repair"));
    if (different == ~0U) return refuse(call, "the unit is not mapped");
    outf("%u different%s\n", different, call.flag("repair") ? ", and taken over" : "");
    return kOk;
}

template <int (*dump)(int, char const *)>
cmd_result_t shadow_dump(CommandCall &call) {
    return report(call, dump(call.unit(), call.text("FILE").c_str()));
}

cmd_result_t shadow_force(CommandCall &call) {
    forceReadFromHardwareIs(call.flag("ON"));
    return kOk;
}

constexpr Form kRunningForms[] = {{"",
                                   "The state of the unit as the commands that make it",
                                   "running | include vlan",
                                   running_show,
                                   {},
                                   kLineColumns}};
constexpr Command kRunning = {
    "running",     "The state of the unit as commands",
    kRunningForms, "",
    false,         "A line that begins with '#' is of something that no command makes."};

constexpr Param kName[] = {
    place("NAME", Kind::kText, "Its name; 'last' without").there(list_checkpoints)};
constexpr Form kCheckpointForms[] = {
    {"", "Keep the state of the unit", "checkpoint before", checkpoint_keep, kName},
    {"show",
     "The checkpoints of the unit",
     "checkpoint show",
     checkpoint_show,
     {},
     kCheckpointColumns},
    {"delete", "Forget one", "checkpoint delete before", checkpoint_delete, kName}};
constexpr Command kCheckpoint = {"checkpoint", "States of the unit that are kept",
                                 kCheckpointForms};
constexpr Form kRollbackForms[] = {
    {"", "Go back to a checkpoint", "rollback before", do_rollback, kName}};
constexpr Command kRollback = {"rollback", "Go back to a checkpoint", kRollbackForms};

constexpr Param kFaultCall[] = {
    place("FUNCTION", Kind::kText, "The function").need().there(list_functions),
    place("STATUS", INT32_MIN, INT32_MAX, "What it answers, as -6").need(),
    option("count", 1, INT32_MAX, "How many calls; all without"),
    option("after", 0, INT32_MAX, "How many calls pass first"),
    option("unit", 0, INT32_MAX, "Calls of that unit only"),
    option("arg", Kind::kText, "Calls with an argument only, as vid:10").many(),
    option("delay", 0, 10'000'000, "How long they take more, in microseconds")};
constexpr Param kFaultTable[] = {place("TABLE", Kind::kText, "The table, as l2 or vlan").need(),
                                 place("ROOM", Kind::kText, "A number of entries, or full").need()};
constexpr Param kFaultClear[] = {
    place("NAME", Kind::kText, "One of them; all without").there(list_faults)};
constexpr Form kFaultForms[] = {
    {"show", "What is made to fail", "fault show", fault_show, {}, kFaultColumns},
    {"call", "Let calls of a function fail", "fault call bcm_l2_addr_add -6 count=3", fault_call,
     kFaultCall},
    {"table", "Let a table be full", "fault table vlan full", fault_table, kFaultTable},
    {"clear", "Let it work again", "fault clear table.vlan", fault_clear, kFaultClear}};
constexpr Command kFaultCommand = {"fault", "Calls and tables that are made to fail", kFaultForms,
                                   "show"};

constexpr Param kCompare[] = {flag("repair", "The shadow takes over what differs"),
                              flag("print", "Also show what the shadow has")};
constexpr Param kShadowFile[] = {place("FILE", Kind::kFile, "The file").need()};
constexpr Param kForce[] = {place("ON", Kind::kTruth, "Whether reads pass it by").need()};
constexpr Form kShadowForms[] = {
    {"show", "What the shadow holds", "shadow show", shadow_show, {}, kShadowColumns},
    {"compare", "Compare the shadow with the hardware", "shadow compare repair", shadow_compare,
     kCompare},
    {"dump", "Write what the last comparison saw to a file", "shadow dump /tmp/sync.txt",
     shadow_dump<dumpRegSyncData>, kShadowFile},
    {"memories", "Write the memories and their shadows to a file",
     "shadow memories /tmp/memories.txt", shadow_dump<TesselApiPrintDeviceMemInfoToFile>,
     kShadowFile},
    {"force", "Let every read go to the hardware", "shadow force no", shadow_force, kForce}};
constexpr Command kShadow = {"shadow", "The copy of the registers in memory", kShadowForms, "show"};

constexpr const Command *kCommands[] = {&kCheckpoint, &kFaultCommand, &kRollback, &kRunning,
                                        &kShadow};
static_assert(complete(kCommands));

}  // namespace

std::span<const Command *const> state_commands() { return kCommands; }

cmd_result_t config_diff(CommandCall &call) {
    int status = BCM_E_NONE;
    const SavedState now = save_state(call.unit(), status);
    if (now == nullptr) return report(call, status);
    SavedState before = first_state();
    if (call.has("checkpoint")) {
        before = checkpoint_of(call.unit(), call.text("checkpoint"));
        if (before == nullptr) return no_checkpoint(call, call.text("checkpoint"));
    } else if (call.has("FILE")) {
        CommandFile file;
        if (!read_for(call, call.text("FILE"), file)) return kFail;
        if (!rehearse(call.unit(), call.text("FILE"), file, before)) return tell_faults(call, file);
    }
    Rows rows(kDifferenceColumns);
    for (const StateDifference &one : compare_states(before, now)) add_difference(rows, one);
    rows.instead("no difference");
    rows.show();
    return kOk;
}

cmd_result_t config_apply(CommandCall &call) {
    CommandFile file;
    if (!read_for(call, call.text("FILE"), file)) return kFail;
    int status = BCM_E_NONE;
    SavedState state = save_state(call.unit(), status);
    if (state == nullptr) return report(call, status);
    if (!rehearse(call.unit(), call.text("FILE"), file, std::move(state)))
        return tell_faults(call, file);
    for (const FileCommand &one : file.commands) {
        const cmd_result_t result = Shell::instance().run(call.unit(), one.text.c_str());
        // Only what the trial could not see, as a fault: what stands above is done.
        if (result != kOk) return refuse(call, text_of("stopped in line %d", one.line));
    }
    return kOk;
}

}  // namespace standin
