// The settings of the process under their lock, and their way from and to the file.
#include "standin/base/config_store.h"

#include <fnmatch.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <cstring>
#include <map>
#include <mutex>
#include <shared_mutex>

#include "sdk/constants.h"
#include "standin/base/faults.h"
#include "standin/base/log.h"
#include "standin/base/number_text.h"
#include "standin/base/scan.h"

namespace standin {

namespace {

struct Setting {
    std::string value;
    int line;
};

struct Store {
    std::shared_mutex lock;
    std::map<std::string, Setting, std::less<>> settings;
    std::atomic<bool> has_faults{false};
    ConfigFiles files{std::string(kConfigFile), {}};
};

// Never destroyed: threads of the process may read it while it ends.
Store &store() {
    static Store &the_store = *new Store;
    return the_store;
}

// After each change. REQUIRES: the lock is held.
void touch(Store &all) {
    constexpr std::string_view kFault = "fault.";
    const auto first = all.settings.lower_bound(kFault);
    all.has_faults = first != all.settings.end() && first->first.starts_with(kFault);
    set_gates();
}

void put(Store &all, std::string_view name, std::string_view value) {
    const std::unique_lock hold(all.lock);
    all.settings.insert_or_assign(std::string(name), Setting{std::string(value), 0});
    touch(all);
}

struct Default {
    std::string_view name;
    std::string_view value;
};

// What the library itself takes for granted, so that a saved file shows what can be changed.
constexpr std::array kDefaults = {
    Default{"diag_shell_prompt", "OMBRA"},
    Default{"diag_shell_history", "200"},
    Default{"trace_capture_limit", "1048576"},
};

bool matches(std::string_view pattern, const std::string &name) {
    return pattern.empty() || fnmatch(std::string(pattern).c_str(), name.c_str(), 0) == 0;
}

void report(const std::string &path, int line, const std::string &text) {
    log_message(kSeverityWarning, kLayerSal, kSourceConfig, kNoUnit,
                text_of("%s:%d: %s; the line is left out", path.c_str(), line, text.c_str()));
}

// Says why, by errno.
int not_saved(const std::string &path) {
    log_message(kSeverityError, kLayerSal, kSourceConfig, kNoUnit,
                text_of("%s: not saved: %s", path.c_str(), std::strerror(errno)));
    return BCM_E_FAIL;
}

}  // namespace

std::optional<std::string> config_get(std::string_view name) {
    Store &all = store();
    std::shared_lock hold(all.lock);
    auto found = all.settings.find(name);
    if (found == all.settings.end()) return std::nullopt;
    return found->second.value;
}

bool config_setting_ok(std::string_view name, std::string_view value, std::string &fault) {
    std::optional<std::string> misread = fault_misread(name, value);
    if (!config_name_ok(name))
        fault = "bad name '" + std::string(name) + '\'';
    else if (value.find('\0') != std::string_view::npos)
        fault = "a zero byte";
    else if (misread)
        fault = *misread;
    else
        return true;
    return false;
}

bool config_set(std::string_view name, std::string_view value) {
    std::string fault;
    if (!config_setting_ok(name, value, fault)) return false;
    put(store(), name, value);
    note_fault(name, value);
    return true;
}

void config_count(std::string_view name, std::string_view value) { put(store(), name, value); }

bool config_has_faults() { return store().has_faults.load(std::memory_order_acquire); }

bool config_remove(std::string_view name) {
    Store &all = store();
    std::unique_lock hold(all.lock);
    auto found = all.settings.find(name);
    if (found == all.settings.end()) return false;
    all.settings.erase(found);
    touch(all);
    return true;
}

void config_clear() {
    Store &all = store();
    std::unique_lock hold(all.lock);
    all.settings.clear();
    touch(all);
}

std::vector<ConfigEntry> config_entries(std::string_view pattern) {
    Store &all = store();
    std::shared_lock hold(all.lock);
    std::vector<ConfigEntry> out;
    for (const auto &[name, setting] : all.settings)
        if (matches(pattern, name)) out.push_back({name, setting.value, setting.line});
    return out;
}

std::optional<std::pair<std::string, std::string>> config_next(std::string_view name) {
    Store &all = store();
    std::shared_lock hold(all.lock);
    auto found = all.settings.upper_bound(name);
    if (found == all.settings.end()) return std::nullopt;
    return std::pair(found->first, found->second.value);
}

void config_load_defaults() {
    Store &all = store();
    std::unique_lock hold(all.lock);
    for (const Default &entry : kDefaults)
        all.settings.try_emplace(std::string(entry.name), Setting{std::string(entry.value), 0});
    touch(all);
}

int config_load(const std::string &path, bool replace) {
    std::string text;
    if (!read_file(path, text)) {
        log_message(kSeverityWarning, kLayerSal, kSourceConfig, kNoUnit,
                    text_of("%s: %s", path.c_str(), std::strerror(errno)));
        return BCM_E_NOT_FOUND;
    }
    ConfigText parsed = parse_config_text(text);
    std::erase_if(parsed.entries, [&](const ConfigEntry &entry) {
        std::string fault;
        if (config_setting_ok(entry.name, entry.value, fault)) return false;
        parsed.faults.push_back({entry.line, fault});
        return true;
    });
    {
        Store &all = store();
        std::unique_lock hold(all.lock);
        if (replace) all.settings.clear();
        for (ConfigEntry &entry : parsed.entries)
            all.settings.insert_or_assign(entry.name, Setting{entry.value, entry.line});
        touch(all);
    }
    for (const ConfigEntry &entry : parsed.entries) note_fault(entry.name, entry.value);
    for (const ConfigFault &fault : parsed.faults) report(path, fault.line, fault.text);
    return parsed.faults.empty() ? BCM_E_NONE : BCM_E_CONFIG;
}

int config_save(const std::string &path, std::string_view pattern, bool append) {
    std::string text;
    if (!replaceable(path)) return not_saved(path);
    if (append && !read_file(path, text) && errno != ENOENT) return not_saved(path);
    if (!text.empty() && text.back() != '\n') text += '\n';
    for (const ConfigEntry &entry : config_entries(pattern))
        text += format_config_line(entry.name, entry.value);
    ConfigFiles files = config_files();
    std::string temporary = path == files.file ? files.temporary : std::string();
    return write_file(path, temporary, text) ? BCM_E_NONE : not_saved(path);
}

ConfigFiles config_files() {
    Store &all = store();
    std::shared_lock hold(all.lock);
    return all.files;
}

void config_files_set(ConfigFiles files) {
    Store &all = store();
    std::unique_lock hold(all.lock);
    all.files = std::move(files);
}

std::optional<std::string> property_get(std::string_view name, int unit, int port) {
    std::string base(name);
    std::string of_unit = base + '.' + std::to_string(unit);
    if (port >= 0) {
        std::string of_port = base + '.' + std::to_string(port) + '.' + std::to_string(unit);
        if (std::optional<std::string> value = config_get(of_port)) return value;
    }
    if (std::optional<std::string> value = config_get(of_unit)) return value;
    return config_get(base);
}

std::uint32_t property_number(std::string_view name, int unit, int port, std::uint32_t fallback) {
    std::optional<std::string> value = property_get(name, unit, port);
    if (!value) return fallback;
    std::optional<std::uint32_t> number = read_u32(*value);
    if (number) return *number;
    log_message(
        kSeverityWarning, kLayerSal, kSourceConfig, unit,
        text_of("property %s: '%s' is no number", std::string(name).c_str(), value->c_str()));
    return fallback;
}

}  // namespace standin
