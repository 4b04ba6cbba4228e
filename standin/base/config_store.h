// The configuration store: settings as pairs of name and value, with a file behind them.
//
// One store a process, safe to use from several threads; every function takes a copy of what it
// keeps and gives copies out. Faults for the calls of the library and the properties of units are
// settings like any other, so an agent's test can set them at run time.
//
// The C functions on top (sal/config.h) answer: BCM_E_PARAM for a null or ill-formed name,
// BCM_E_NOT_FOUND for a setting or a file that is not there, BCM_E_CONFIG for a file that was read
// but had broken lines (each is reported in the log and left out), BCM_E_FAIL for a file that
// cannot be written.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "standin/base/config_file.h"

namespace standin {

inline constexpr std::string_view kConfigFile = "config.ombra";  // until another one is set

// The value of `name`, or nothing. An empty value is a value.
std::optional<std::string> config_get(std::string_view name);

// Whether a setting can be; else `fault` says why: its name, a zero byte, or a fault that means
// nothing (faults.h).
bool config_setting_ok(std::string_view name, std::string_view value, std::string &fault);

// Sets `name`; false, and no change, where config_setting_ok says so.
bool config_set(std::string_view name, std::string_view value);

// For a fault that counts down: the setting is that of before, with other numbers.
void config_count(std::string_view name, std::string_view value);
// Whether a setting of a fault is there.
bool config_has_faults();

// False when there was no such setting.
bool config_remove(std::string_view name);

void config_clear();

// Every setting whose name matches the shell pattern, by name; all for an empty pattern.
std::vector<ConfigEntry> config_entries(std::string_view pattern = {});

// The first setting whose name comes after `name`; the very first for an empty name.
std::optional<std::pair<std::string, std::string>> config_next(std::string_view name);

// Sets what the compiled-in defaults say, except for names that are set already.
void config_load_defaults();

// Loads the file `path`: with `replace` the store then holds its settings and no others, without
// they are added. Broken lines are logged. A status as above; on BCM_E_NOT_FOUND nothing changed.
int config_load(const std::string &path, bool replace);

// Writes the settings that match `pattern` to `path`, by name, as a whole or not at all; with
// `append` behind what stands in the file. Goes over the temporary file that config_files names,
// if any, when `path` is the configuration file, else over one with a name of its own.
int config_save(const std::string &path, std::string_view pattern, bool append);

struct ConfigFiles {
    std::string file;       // "config.ombra"
    std::string temporary;  // where one was given: on the same file system, since it is renamed
};
ConfigFiles config_files();
void config_files_set(ConfigFiles files);

// Properties of a unit. The value of `name.<port>.<unit>`, else of `name.<unit>`, else of `name`;
// a port below 0 has no name of its own.
std::optional<std::string> property_get(std::string_view name, int unit, int port = -1);

// The property as a number in the forms of parse_integer, modulo 2^32; `fallback` when it is
// missing or is no number, which is logged.
std::uint32_t property_number(std::string_view name, int unit, int port, std::uint32_t fallback);

}  // namespace standin
