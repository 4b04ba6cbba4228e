// How full each table is, for those who limit it.
#include <algorithm>
#include <mutex>

#include "standin/base/faults.h"
#include "standin/model/device_table.h"
#include "standin/model/layouts.h"
#include "standin/model/model.h"

namespace standin {
namespace {

struct Table {
    std::string_view name;  // that of its Numbering
    std::size_t (*size)(const Switch &chip);
};

constexpr Table kTables[] = {
    {"l2", [](const Switch &chip) { return chip.l2.table.size(); }},
    {"vlan", [](const Switch &chip) { return chip.vlans.vlans.size(); }},
    {"stg", [](const Switch &chip) { return chip.vlans.stgs.size(); }},
    {"trunk", [](const Switch &chip) { return chip.groups.trunks.size(); }},
    {"multicast", [](const Switch &chip) { return chip.groups.multicast.size(); }},
    {"mirror", [](const Switch &chip) { return chip.groups.mirrors.destinations.size(); }},
    {"policer", [](const Switch &chip) { return chip.groups.policers.size(); }},
    {"field_group", [](const Switch &chip) { return chip.field.groups.size(); }},
    {"field_entry", [](const Switch &chip) { return chip.field.entries.size(); }},
    {"field_range", [](const Switch &chip) { return chip.field.ranges.size(); }},
    {"field_stat", [](const Switch &chip) { return chip.field.stats.size(); }},
    {"l3_intf", [](const Switch &chip) { return chip.l3.interfaces.size(); }},
    {"l3_egress", [](const Switch &chip) { return chip.l3.egresses.size(); }},
    {"l3_multipath", [](const Switch &chip) { return chip.l3.multipaths.size(); }},
    {"l3_host", [](const Switch &chip) { return chip.l3.hosts.size(); }},
    {"l3_route", [](const Switch &chip) { return chip.l3.routes.size(); }},
};

std::optional<std::size_t> occupancy(std::string_view name) {
    const auto *const known = std::ranges::find(kTables, name, &Table::name);
    if (known == std::end(kTables) && family_layout(name) == nullptr) return std::nullopt;
    const std::lock_guard<std::mutex> guard(model_lock());
    std::size_t most = 0;
    for (int unit = 0; unit < device_table().size(); ++unit) {
        const Switch &chip = *device_table().find(unit)->chip;
        if (known != std::end(kTables))
            most = std::max(most, known->size(chip));
        else if (const auto rows = chip.generic.find(name); rows != chip.generic.end())
            most = std::max(most, rows->second.rows.size());
    }
    return most;
}

[[maybe_unused]] const bool told = (set_table_lookup(occupancy), true);

}  // namespace
}  // namespace standin
