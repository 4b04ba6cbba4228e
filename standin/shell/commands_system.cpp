// Commands on the configuration store, the log and the packet watcher.
#include "sdk/diag/shell.h"
#include "sdk/sal/config.h"
#include "standin/base/config_store.h"
#include "standin/base/log.h"
#include "standin/base/output.h"
#include "standin/base/rows.h"
#include "standin/base/scan.h"
#include "standin/shell/commands.h"
#include "standin/shell/values.h"

namespace standin {
namespace {

constexpr RowColumn kConfigColumns[] = {{"name", nullptr, CellKind::kText},
                                        {"value", nullptr, CellKind::kText},
                                        {"setting", "Setting", CellKind::kText}};

cmd_result_t config_show(CommandCall &call) {
    Rows rows(kConfigColumns, "{setting}");
    for (const ConfigEntry &entry : config_entries()) {
        if (!name_matches(entry.name, call.text("PATTERN"))) continue;
        std::string line = format_config_line(entry.name, entry.value);
        line.pop_back();
        rows.row({entry.name, entry.value, line});
    }
    rows.show();
    return kOk;
}

cmd_result_t config_get_one(CommandCall &call) {
    const std::optional<std::string> value = config_get(call.text("NAME"));
    if (!value) return refuse(call, "no setting '" + call.text("NAME") + '\'');
    out(*value + '\n');
    return kOk;
}

cmd_result_t config_change(CommandCall &call) {
    std::vector<std::pair<std::string, std::string>> settings;
    for (const Value *word : call.all("NAME=VALUE")) {
        std::string_view name;
        std::string_view value;
        cut(word->text, '=', name, value);
        std::string fault;
        if (!config_setting_ok(name, value, fault))
            return refuse(call, "bad setting '" + word->text + "': " + fault);
        settings.emplace_back(name, value);
    }
    for (const auto &[name, value] : settings) config_set(name, value);
    return kOk;
}

cmd_result_t config_delete(CommandCall &call) {
    for (const Value *word : call.all("NAME"))
        if (!config_get(word->text)) return refuse(call, "no setting '" + word->text + '\'');
    for (const Value *word : call.all("NAME")) config_remove(word->text);
    return kOk;
}

cmd_result_t config_write(CommandCall &call) {
    const std::string file = call.has("file") ? call.text("file") : config_files().file;
    return report(call, config_save(file, call.text("pattern"), call.flag("append")));
}

// Without a file the store takes what the configuration file says, and nothing else. Lines that
// could not be read are told here too: whoever loads a file may not see the log.
cmd_result_t config_read(CommandCall &call) {
    const std::string file = call.has("FILE") ? call.text("FILE") : config_files().file;
    std::string text;
    ConfigText read;
    if (read_file(file, text)) read = parse_config_text(text);
    const int status = call.has("FILE") ? config_load(file, false) : sal_config_refresh();
    for (const ConfigFault &fault : read.faults)
        out_fault(text_of("%s:%d: %s", file.c_str(), fault.line, fault.text.c_str()));
    return report(call, status);
}

cmd_result_t config_empty(CommandCall &) {
    config_clear();
    return kOk;
}

cmd_result_t config_table(CommandCall &) {
    sal_config_dump();
    return kOk;
}

constexpr RowColumn kTraceColumns[] = {{"layer", "Layer", CellKind::kText},
                                       {"source", "Source", CellKind::kText},
                                       {"level", "Level", CellKind::kText}};

cmd_result_t trace_show(CommandCall &) {
    Rows rows(kTraceColumns);
    for (int layer = 0; layer < kLayers; ++layer) {
        for (int source = 0; source < kSources; ++source) {
            const int level = log_level(layer, source);
            if (level == kSeverityWarning) continue;
            rows.row({layer_name(layer), source_name(source), severity_name(level)});
        }
    }
    rows.before(text_of("capture %s, to log %s, bus %s", trace_capture() ? "on" : "off",
                        trace_to_log() ? "on" : "off", bde_trace() ? "on" : "off"));
    if (rows.size() > 0) rows.note("every other level is warning");
    rows.instead("every level is warning");
    rows.show();
    return kOk;
}

std::vector<Candidate> list_names(int count, const char *(*name)(int)) {
    std::vector<Candidate> all;
    for (int at = 0; at < count; ++at) all.push_back({name(at), ""});
    return all;
}

std::vector<Candidate> list_layers(int) {
    std::vector<Candidate> all = list_names(kLayers, layer_name);
    all.push_back({"*", "every layer"});
    return all;
}

std::vector<Candidate> list_sources(int) {
    std::vector<Candidate> all = list_names(kSources, source_name);
    all.push_back({"*", "every source"});
    return all;
}

std::vector<Candidate> list_severities(int) { return list_names(kSeverities, severity_name); }

// '*' for every layer or source.
cmd_result_t trace_level(CommandCall &call) {
    const auto number = [](const std::string &word, std::optional<int> (*of)(std::string_view)) {
        return word == "*" ? std::optional(kEvery) : of(word);
    };
    const auto wrong = [&](const char *word, const std::vector<Candidate> &right) {
        std::vector<std::string> words;
        for (const Candidate &one : right) words.push_back(one.word);
        out_fault(call.name() + ' ' + call.text(word) + ": " + list_text(words));
        return kUsage;
    };
    const std::optional<int> layer = number(call.text("LAYER"), layer_of);
    if (!layer) return wrong("LAYER", list_layers(call.unit()));
    const std::optional<int> source = number(call.text("SOURCE"), source_of);
    if (!source) return wrong("SOURCE", list_sources(call.unit()));
    const std::optional<int> severity = severity_of(call.text("SEVERITY"));
    if (!severity) return wrong("SEVERITY", list_severities(call.unit()));
    log_level_set(*layer, *source, *severity);
    return kOk;
}

cmd_result_t trace_capture_flip(CommandCall &call) {
    trace_capture_set(call.flag("ON"));
    return kOk;
}

cmd_result_t trace_log_flip(CommandCall &call) {
    trace_to_log_set(call.flag("ON"));
    return kOk;
}

cmd_result_t trace_bus_flip(CommandCall &call) {
    bde_trace_set(call.flag("ON"), {});
    return kOk;
}

cmd_result_t trace_print(CommandCall &) {
    out(trace_text());
    return kOk;
}

cmd_result_t pw_start(CommandCall &call) {
    if (sh_check_attached("pw start", call.unit()) != BCM_E_NONE) return kFail;
    Shell::instance().watching_set(call.unit(), true);
    return kOk;
}

cmd_result_t pw_end(CommandCall &call) { return pw_stop(call.unit(), 1); }

cmd_result_t pw_show(CommandCall &call) {
    outf("the packet watcher of unit %d is %s\n", call.unit(),
         pw_running(call.unit()) != 0 ? "on" : "off");
    return kOk;
}

constexpr Param kPatternPlace =
    place("PATTERN", Kind::kConfig, "A part of the name, or a pattern with '*'");
constexpr Param kShow[] = {kPatternPlace};
constexpr Param kGet[] = {place("NAME", Kind::kConfig, "The setting").need()};
constexpr Param kChange[] = {
    place("NAME=VALUE", Kind::kSettings, "The setting, and what it shall be").need().many()};
constexpr Param kDelete[] = {place("NAME", Kind::kConfig, "The setting").need().many()};
constexpr Param kSave[] = {option("file", Kind::kFile, "Another file than the configuration file"),
                           option("pattern", Kind::kConfig, "Only those whose names match"),
                           flag("append", "Behind what the file has")};
constexpr Param kDiff[] = {
    place("FILE", Kind::kFile, "What a file of commands makes; the first state without"),
    option("checkpoint", Kind::kText, "A state that was kept").among('a')};
constexpr Param kApply[] = {
    place("FILE", Kind::kFile, "The file, as 'running > FILE' writes it").need()};
constexpr Param kLoad[] = {place("FILE", Kind::kFile, "The file, whose settings are added")};
constexpr Form kConfigForms[] = {
    {"show", "The settings", "config show speed", config_show, kShow, kConfigColumns},
    {"get", "The value of a setting", "config get port_speed.1", config_get_one, kGet},
    {"set", "Set settings, all or none", "config set port_speed.1=25000", config_change, kChange},
    {"delete", "Remove settings, all or none", "config delete port_speed.1", config_delete,
     kDelete},
    {"save", "Write a file", "config save file=speeds pattern=port_speed*", config_write, kSave},
    {"load", "Read a file", "config load speeds", config_read, kLoad},
    {"clear", "Remove every setting", "config clear", config_empty},
    {"diff", "How the unit differs from its first state, a file or a checkpoint", "config diff",
     config_diff, kDiff, kDifferenceColumns},
    {"apply", "Run a file of commands; one bad line, and nothing is changed",
     "config apply switch.rc", config_apply, kApply},
    {"dump", "The settings, with the lines where they stood", "config dump", config_table}};
constexpr Command kConfig = {
    "config",
    "Settings of the configuration store",
    kConfigForms,
    "show",
    false,
    "'load' without a file reads the configuration file again and drops what it does not say.\n"
    "'save' without a file writes the configuration file. A change counts from the next call on."};

constexpr Param kLevel[] = {
    place("LAYER", Kind::kText, "The layer").need().there(list_layers),
    place("SOURCE", Kind::kText, "The source").need().there(list_sources),
    place("SEVERITY", Kind::kText, "What is still told").need().there(list_severities)};
constexpr Param kOn[] = {place("ON", Kind::kTruth, "On or off").need()};
constexpr Form kTraceForms[] = {
    {"show",
     "Levels of the log, and where the trace goes",
     "trace show",
     trace_show,
     {},
     kTraceColumns},
    {"level", "Set a level of the log", "trace level bcm l2 debug", trace_level, kLevel},
    {"capture", "Collect the trace, or stop", "trace capture on", trace_capture_flip, kOn},
    {"log", "Send the trace to the log, or stop", "trace log on", trace_log_flip, kOn},
    {"bus", "Trace the accesses at bus level, or stop", "trace bus on", trace_bus_flip, kOn},
    {"text", "What was collected", "trace text", trace_print}};
constexpr Command kTrace = {"trace", "Levels of the log, and the trace",     kTraceForms, "show",
                            false,   "'*' stands for every layer or source."};

constexpr Form kPwForms[] = {{"start", "Start the packet watcher", "pw start", pw_start},
                             {"stop", "Stop it", "pw stop", pw_end},
                             {"show", "Whether it runs", "pw show", pw_show}};
constexpr Command kPw = {"pw", "The packet watcher of the unit", kPwForms, "show"};

constexpr const Command *kCommands[] = {&kConfig, &kPw, &kTrace};
static_assert(complete(kCommands));

}  // namespace

std::span<const Command *const> system_commands() { return kCommands; }

}  // namespace standin
