// Commands on the configuration store, the log and the packet watcher.
#include "sdk/diag/shell.h"
#include "sdk/sal/config.h"
#include "standin/base/config_store.h"
#include "standin/base/log.h"
#include "standin/base/number_text.h"
#include "standin/base/output.h"
#include "standin/base/scan.h"
#include "standin/shell/commands.h"

namespace standin {
namespace {

cmd_result_t config_show(int, args_t *args) {
    std::string pattern = args->take().value_or("");
    if (!args->empty()) return kUsage;
    for (const ConfigEntry &entry : config_entries())
        if (name_matches(entry.name, pattern)) out(format_config_line(entry.name, entry.value));
    return kOk;
}

cmd_result_t config_get_one(int, args_t *args) {
    std::optional<std::string> name = args->take();
    if (!name || !args->empty()) return kUsage;
    std::optional<std::string> value = config_get(*name);
    if (!value) return refuse(*args, "no setting '" + *name + '\'');
    out(*value + '\n');
    return kOk;
}

cmd_result_t config_change(int, args_t *args) {
    if (args->empty()) return kUsage;
    std::vector<std::pair<std::string, std::string>> settings;
    while (std::optional<std::string> word = args->take()) {
        std::string_view name;
        std::string_view value;
        if (!cut(*word, '=', name, value)) return kUsage;
        std::string fault;
        if (!config_setting_ok(name, value, fault))
            return refuse(*args, "bad setting '" + *word + "': " + fault);
        settings.emplace_back(name, value);
    }
    for (const auto &[name, value] : settings) config_set(name, value);
    return kOk;
}

cmd_result_t config_delete(int, args_t *args) {
    if (args->empty()) return kUsage;
    std::vector<std::string> names;
    while (std::optional<std::string> name = args->take()) {
        if (!config_get(*name)) return refuse(*args, "no setting '" + *name + '\'');
        names.push_back(*name);
    }
    for (const std::string &name : names) config_remove(name);
    return kOk;
}

cmd_result_t config_write(int unit, args_t *args) {
    std::optional<std::string> file;
    std::optional<std::string> pattern;
    bool append = false;
    parse_table_s table(unit);
    table.add("file", file);
    table.add("pattern", pattern);
    table.add_flag("append", append);
    cmd_result_t result = kOk;
    if (!parse_all(*args, table, result)) return result;
    return report(*args,
                  config_save(file.value_or(config_files().file), pattern.value_or(""), append));
}

// Without a file the store takes what the configuration file says, and nothing else.
cmd_result_t config_read(int, args_t *args) {
    std::optional<std::string> file = args->take();
    if (!args->empty()) return kUsage;
    if (!file) return report(*args, sal_config_refresh());
    return report(*args, config_load(*file, false));
}

cmd_result_t config_empty(int, args_t *args) {
    if (!args->empty()) return kUsage;
    config_clear();
    return kOk;
}

cmd_result_t config_table(int, args_t *args) {
    if (!args->empty()) return kUsage;
    sal_config_dump();
    return kOk;
}

cmd_result_t trace_show(int, args_t *args) {
    if (!args->empty()) return kUsage;
    Table table({"Layer", "Source", "Level"});
    for (int layer = 0; layer < kLayers; ++layer) {
        for (int source = 0; source < kSources; ++source) {
            int level = log_level(layer, source);
            if (level == kSeverityWarning) continue;
            table.row({layer_name(layer), source_name(source), severity_name(level)});
        }
    }
    outf("capture %s, to log %s, bus %s\n", trace_capture() ? "on" : "off",
         trace_to_log() ? "on" : "off", bde_trace() ? "on" : "off");
    if (table.size() == 0) {
        out("every level is warning\n");
    } else {
        table.print();
        out("every other level is warning\n");
    }
    return kOk;
}

// `trace level LAYER SOURCE SEVERITY`, '*' for every layer or source.
cmd_result_t trace_level(int, args_t *args) {
    std::string layer_word = args->take().value_or("");
    std::string source_word = args->take().value_or("");
    std::optional<int> severity = severity_of(args->take().value_or(""));
    std::optional<int> layer = layer_word == "*" ? kEvery : layer_of(layer_word);
    std::optional<int> source = source_word == "*" ? kEvery : source_of(source_word);
    if (!layer || !source || !severity || !args->empty()) return kUsage;
    return log_level_set(*layer, *source, *severity) ? kOk : kUsage;
}

// A switch that is on or off.
cmd_result_t flip(args_t &args, void (*set)(bool)) {
    std::optional<bool> truth = read_truth(args.take().value_or(""));
    if (!truth || !args.empty()) return kUsage;
    set(*truth);
    return kOk;
}

cmd_result_t trace_capture_flip(int, args_t *args) { return flip(*args, trace_capture_set); }

cmd_result_t trace_log_flip(int, args_t *args) { return flip(*args, trace_to_log_set); }

cmd_result_t trace_bus_flip(int, args_t *args) {
    return flip(*args, [](bool enable) { bde_trace_set(enable, {}); });
}

cmd_result_t trace_print(int, args_t *args) {
    if (!args->empty()) return kUsage;
    out(trace_text());
    return kOk;
}

cmd_result_t pw_start(int unit, args_t *args) {
    if (!args->empty()) return kUsage;
    if (sh_check_attached("pw start", unit) != BCM_E_NONE) return kFail;
    Shell::instance().watching_set(unit, true);
    return kOk;
}

cmd_result_t pw_end(int unit, args_t *args) { return args->empty() ? pw_stop(unit, 1) : kUsage; }

cmd_result_t pw_show(int unit, args_t *args) {
    if (!args->empty()) return kUsage;
    outf("the packet watcher of unit %d is %s\n", unit, pw_running(unit) != 0 ? "on" : "off");
    return kOk;
}

}  // namespace

cmd_result_t cmd_config(int unit, args_t *args) {
    return run_subcommand(unit, *args,
                          {{"show", config_show},
                           {"get", config_get_one},
                           {"set", config_change},
                           {"delete", config_delete},
                           {"save", config_write},
                           {"load", config_read},
                           {"clear", config_empty},
                           {"dump", config_table}},
                          "show");
}

cmd_result_t cmd_trace(int unit, args_t *args) {
    return run_subcommand(unit, *args,
                          {{"show", trace_show},
                           {"level", trace_level},
                           {"capture", trace_capture_flip},
                           {"log", trace_log_flip},
                           {"bus", trace_bus_flip},
                           {"text", trace_print}},
                          "show");
}

cmd_result_t cmd_pw(int unit, args_t *args) {
    return run_subcommand(unit, *args, {{"start", pw_start}, {"stop", pw_end}, {"show", pw_show}},
                          "show");
}

}  // namespace standin
