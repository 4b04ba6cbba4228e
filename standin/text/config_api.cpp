// The configuration store and the properties of units: the C functions over config_store.h.
#include "helper/platform.h"
#include "sdk/constants.h"
#include "sdk/sal/config.h"
#include "sdk/soc/property.h"
#include "standin/base/config_store.h"
#include "standin/base/faults.h"
#include "standin/base/log.h"
#include "standin/base/output.h"
#include "standin/base/rows.h"
#include "standin/base/scan.h"
#include "standin/text/unit_ports.h"

using namespace standin;

namespace {

std::string text_or(const char *text, const std::string &fallback) {
    return text != nullptr && *text != '\0' ? text : fallback;
}

// Where a setting shows its place in the file; 0 stands for one that was set by a call.

}  // namespace

int sal_config_init(void) {
    int status = config_load(config_files().file, false);
    return status == BCM_E_NOT_FOUND ? BCM_E_NONE : status;
}

void sal_config_init_defaults(void) { config_load_defaults(); }

int sal_config_refresh(void) { return config_load(config_files().file, true); }

int sal_config_flush(void) {
    config_clear();
    return BCM_E_NONE;
}

int sal_config_file_set(char const *fname, char const *tname) {
    if (fname == nullptr || *fname == '\0') return BCM_E_PARAM;
    config_files_set({fname, text_or(tname, {})});
    return BCM_E_NONE;
}

int sal_config_file_get(char const **fname, char const **tname) {
    if (fname == nullptr && tname == nullptr) return BCM_E_PARAM;
    // The names are lent out until this thread asks again; an empty one is none.
    thread_local ConfigFiles files;
    files = config_files();
    if (fname != nullptr) *fname = files.file.c_str();
    if (tname != nullptr) *tname = files.temporary.c_str();
    return BCM_E_NONE;
}

int sal_config_save(char *file, char *pattern, int append) {
    std::string path = text_or(file, config_files().file);
    return config_save(path, view_of(pattern), append != 0);
}

char *sal_config_get(char const *name) {
    // Lent out until this thread asks again: the store may change under another thread's hands.
    thread_local std::string lent;
    std::optional<std::string> value = config_get(view_of(name));
    if (!value) return nullptr;
    lent = std::move(*value);
    return lent.data();
}

int sal_config_set(char *name, char *value) {
    if (name == nullptr || !config_name_ok(name)) return BCM_E_PARAM;
    if (value == nullptr) return config_remove(name) ? BCM_E_NONE : BCM_E_NOT_FOUND;
    if (config_set(name, value)) return BCM_E_NONE;
    std::string fault;
    config_setting_ok(name, value, fault);
    log_message(kSeverityError, kLayerSal, kSourceConfig, kNoUnit,
                std::string("setting ") + name + ": " + fault);
    return BCM_E_PARAM;
}

int sal_config_get_next(char **name, char **value) {
    if (name == nullptr || value == nullptr) return BCM_E_PARAM;
    thread_local std::pair<std::string, std::string> lent;
    auto next = config_next(view_of(*name));
    *name = nullptr;
    *value = nullptr;
    if (!next) return BCM_E_NOT_FOUND;
    lent = std::move(*next);
    *name = lent.first.data();
    *value = lent.second.data();
    return BCM_E_NONE;
}

void sal_config_show(void) {
    for (const ConfigEntry &entry : config_entries())
        out(format_config_line(entry.name, entry.value));
}

void sal_config_dump(void) {
    static constexpr RowColumn kColumns[] = {{"name", "Name", CellKind::kText},
                                             {"value", "Value", CellKind::kText},
                                             {"line", ">Line", CellKind::kNumber}};
    Rows rows(kColumns);
    for (const ConfigEntry &entry : config_entries())
        rows.row({entry.name, entry.value, entry.line > 0 ? Cell(entry.line) : Cell()});
    rows.before(text_of("file %s, %zu settings", config_files().file.c_str(), rows.size()));
    rows.show();
}

pbmp_t soc_property_get_bcm_pbmp(int unit, char const *name, int defneg) {
    PortSet fallback;
    if (defneg != 0) fallback.set();
    std::string property(view_of(name));
    std::optional<std::string> value = property_get(property, unit);
    if (!value) return pbmp_of(fallback);
    std::string fault;
    std::optional<PortSet> ports = read_port_list(*value, {}, fault);
    if (ports) return pbmp_of(*ports);
    log_message(kSeverityWarning, kLayerSal, kSourceConfig, unit,
                "property " + property + ": " + fault);
    return pbmp_of(fallback);
}

uint32 soc_property_bcm_port_get(int unit, bcm_port_t aport, char const *name, uint32 defl) {
    return property_number(view_of(name), unit, aport, defl);
}

void TesselApiSetSocProperties(char const *fname) {
    if (fname == nullptr || fault_check(__func__) != BCM_E_NONE) return;
    config_load(fname, false);
}
