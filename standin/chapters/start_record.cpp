// The fields of the record of the application start that ask for more than there is.
#include "standin/chapters/start_record.h"

#include <cstddef>
#include <cstring>
#include <string>

#include "standin/model/device_table.h"
#include "standin/model/model.h"

namespace standin {
namespace {

struct RefusedField {
    const char *name;
    std::size_t offset;
    const char *why;
};

#define FIELD(name, why) \
    RefusedField { #name, offsetof(appl_dcmn_init_param_t, name), why }
constexpr RefusedField kRefused[] = {
    FIELD(repeat, "a start is made once"),
    FIELD(base_modid, "a unit is one module"),
    FIELD(flags, "no flag has a meaning"),
    FIELD(warmboot, "there is no warm boot"),
    FIELD(engine_dump, "no engine keeps a dump"),
    FIELD(elk_ilkn_rev, "there is no external lookup"),
    FIELD(elk_mdio_id, "there is no external lookup"),
    FIELD(elk_mdio_second_id, "there is no external lookup"),
    FIELD(packet_rx_cosq, "packets are received by who registers"),
    FIELD(appl_traffic_enable_stage, "traffic is never held back"),
    FIELD(appl_flags, "no flag has a meaning"),
    FIELD(rc_load, "no script is run"),
    FIELD(is_resources_check, "resources are not counted"),
    FIELD(error_on_leak, "resources are not counted"),
    FIELD(l2_mode, "the MAC table has one mode"),
};
#undef FIELD

}  // namespace

int check_start_record(int unit, const appl_dcmn_init_param_t *record) {
    if (record == nullptr || !within(record->nof_devices, 0, kMaxUnits)) return BCM_E_PARAM;
    if (record->unit != 0 && record->unit != static_cast<uint32>(unit))
        return refused(BCM_E_PARAM, "field unit is " + std::to_string(record->unit));
    for (const RefusedField &field : kRefused) {
        std::int32_t value = 0;
        std::memcpy(&value, reinterpret_cast<const char *>(record) + field.offset, sizeof value);
        if (value != 0)
            return refused(BCM_E_UNAVAIL, "field " + std::string(field.name) + " is " +
                                              std::to_string(value) + ": " + field.why);
    }
    return BCM_E_NONE;
}

}  // namespace standin
