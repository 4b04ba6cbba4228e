// Reads and writes of one word, through the shadow or past it.
#include "standin/regs/words.h"

#include "sdk/constants.h"
#include "standin/base/log.h"

namespace standin {
namespace {

constexpr std::uint32_t kAllOnes = 0xffffffff;

// What the MAC of a port has received is counted once: these registers are views of it.
struct CounterRow {
    int reg;
    std::uint64_t PortCounters::*field;
};
constexpr CounterRow kCounters[] = {{RBCAr, &PortCounters::packets}, {RBYTr, &PortCounters::bytes}};

struct CounterWord {
    std::uint64_t *counter = nullptr;  // null at other addresses
    unsigned shift = 0;                // of the word in it
    std::uint64_t mask = 0;            // of the bits that the word has
};

CounterWord counter_at(const Unit &unit, std::uint32_t address) {
    const auto place = find_register_at(address);
    if (!place || !place->layout->is_volatile) return {};
    for (const CounterRow &row : kCounters) {
        if (row.reg != place->layout->id) continue;
        Port &port = *chip_of(unit.device).ports.find(place->instance);
        return {&(port.in.*row.field), place->word * kWordBits, place->layout->mask(place->word)};
    }
    return {};
}

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
    if (found != unit.file.hardware.end())
        value = found->second;
    else if (const CounterWord word = counter_at(unit, address); word.counter != nullptr)
        value = static_cast<std::uint32_t>(*word.counter >> word.shift & word.mask);
    else
        value = reset_value(address);
    bde_trace_access(unit.number, false, address, value);
    return BCM_E_NONE;
}

int hardware_write(const Unit &unit, std::uint32_t address, std::uint32_t value) {
    if (!unit.device.mapped) return BCM_E_INIT;
    if (const CounterWord word = counter_at(unit, address); word.counter != nullptr) {
        *word.counter &= ~(word.mask << word.shift);
        *word.counter |= (value & word.mask) << word.shift;
    } else {
        unit.file.hardware[address] = value;
    }
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
