// Reads and writes of one word, through the shadow or past it.
#include "standin/regs/words.h"

#include "standin/base/log.h"

namespace standin {
namespace {

constexpr std::uint32_t kAllOnes = 0xffffffff;

std::uint32_t reset_value(std::uint32_t address) {
    const auto place = find_register_at(address);
    return place && place->word == 0 ? place->layout->reset : 0;
}

bool asks_hardware(const Unit &unit, bool kept) {
    return !kept || shadow_policy().force_hardware || unit.state.init == InitState::kDiagnostics;
}

}  // namespace

int hardware_read(const Unit &unit, std::uint32_t address, std::uint32_t &value) {
    value = kAllOnes;
    if (!unit.device.mapped) return BCM_E_INIT;
    const auto found = unit.file.hardware.find(address);
    value = found == unit.file.hardware.end() ? reset_value(address) : found->second;
    bde_trace_access(unit.number, false, address, value);
    return BCM_E_NONE;
}

int hardware_write(const Unit &unit, std::uint32_t address, std::uint32_t value) {
    if (!unit.device.mapped) return BCM_E_INIT;
    unit.file.hardware[address] = value;
    bde_trace_access(unit.number, true, address, value);
    return BCM_E_NONE;
}

int word_read(const Unit &unit, std::uint32_t address, bool kept, std::uint32_t &value) {
    if (asks_hardware(unit, kept)) return hardware_read(unit, address, value);
    const auto found = unit.file.shadow.find(address);
    if (found != unit.file.shadow.end()) {
        value = found->second;
        return BCM_E_NONE;
    }
    if (unit.state.init == InitState::kStands) {
        value = reset_value(address);
        return BCM_E_NONE;
    }
    const int status = hardware_read(unit, address, value);
    if (status == BCM_E_NONE) unit.file.shadow[address] = value;
    return status;
}

int word_write(const Unit &unit, std::uint32_t address, bool kept, std::uint32_t value) {
    const int status = hardware_write(unit, address, value);
    if (status == BCM_E_NONE && kept) unit.file.shadow[address] = value;
    return status;
}

bool keeps_entry(const UnitState &state, const MemoryLayout &layout, int array, int index) {
    if (!state.dynamic.contains({layout.id, array})) return false;
    const bool halved = state.interfaces_reduced && layout.kind == MemoryKind::kInterfaces;
    return !halved || index < layout.entries / 2;
}

std::uint32_t word_mask(std::uint32_t address) {
    if (is_management(address)) return kAllOnes;
    if (const auto place = find_register_at(address)) return place->layout->mask(place->word);
    if (const auto place = find_memory_at(address)) return place->layout->mask(place->word);
    return 0;
}

}  // namespace standin
