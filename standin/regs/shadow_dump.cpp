// Dumps of the memories of a unit.
#include <string>

#include "helper/shadow.h"
#include "standin/base/rows.h"
#include "standin/base/scan.h"
#include "standin/regs/bits.h"
#include "standin/regs/dump_file.h"
#include "standin/regs/words.h"

using namespace standin;

namespace {

std::string hex(std::uint32_t value) { return text_of("0x%08x", value); }

std::string shadow_text(const UnitState &state, const MemoryLayout &layout, int array) {
    if (!state.dynamic.contains({layout.id, array})) return "off";
    return keeps_entry(state, layout, array, layout.entries - 1) ? "on" : "half";
}

std::string memory_text(const Unit &unit) {
    const ShadowPolicy &policy = shadow_policy();
    std::string text = text_of("# unit %d: memories\n", unit.number);
    text += text_of("# PCI configuration shadow: %s\n", policy.pci_configured ? "on" : "off");
    if (!policy.constraints_file.empty())
        text += "# copy engine constraints: " + policy.constraints_file + '\n';
    static constexpr RowColumn kColumns[] = {
        {"memory", "Memory", CellKind::kText},   {"number", ">Number", CellKind::kNumber},
        {"block", "Block", CellKind::kText},     {"array", ">Array", CellKind::kNumber},
        {"base", "Base", CellKind::kText},       {"entries", ">Entries", CellKind::kNumber},
        {"bits", ">Bits", CellKind::kNumber},    {"copies", ">Copies", CellKind::kNumber},
        {"manager", "Manager", CellKind::kText}, {"shadow", "Shadow", CellKind::kText}};
    Rows table(kColumns);
    for (const MemoryLayout &layout : all_memories()) {
        for (int array = 0; array < layout.arrays; ++array) {
            table.row({std::string(layout.name), layout.id, std::string(layout.block->name), array,
                       hex(entry_address(layout, 0, array, 0)), layout.entries, layout.bits,
                       layout.block->count,
                       layout.kind == MemoryKind::kPlatform ? "platform" : "sdk",
                       shadow_text(unit.state, layout, array)});
        }
    }
    return text + table.text();
}

// The parity errors that the blocks of a memory have counted; nothing where none counts.
std::string parity_errors(const Unit &unit, const Block &block) {
    const std::string counter = std::string(block.name) + "_PARITY_ERR_CNT";
    for (const RegisterLayout &layout : all_registers()) {
        const FieldPlace *const count = layout.field(VALUEf);
        if (layout.name != counter || count == nullptr) continue;
        std::uint64_t errors = 0;
        for (int instance = 0; instance < layout.instances(); ++instance) {
            std::uint32_t value = 0;
            if (hardware_read(unit, element_address(layout, instance, 0), value) < 0) return "-";
            errors += get_bits({&value, 1}, count->first, count->bits);
        }
        return std::to_string(errors);
    }
    return "-";
}

std::string parity_text(const Unit &unit) {
    std::string text = text_of("# unit %d: parity and ECC\n", unit.number);
    static constexpr RowColumn kColumns[] = {{"memory", "Memory", CellKind::kText},
                                             {"block", "Block", CellKind::kText},
                                             {"protection", "Protection", CellKind::kText},
                                             {"check_bits", ">Check bits", CellKind::kNumber},
                                             {"block_errors", ">Block errors", CellKind::kText}};
    Rows table(kColumns);
    for (const MemoryLayout &layout : all_memories()) {
        // An entry of one word has a parity bit, a wider one 7 bits of ECC for each word.
        const bool ecc = layout.words() > 1;
        table.row({std::string(layout.name), std::string(layout.block->name),
                   ecc ? "ecc" : "parity", ecc ? 7 * layout.words() : 1,
                   parity_errors(unit, *layout.block)});
    }
    return text + table.text();
}

}  // namespace

extern "C" {

int TesselApiPrintDeviceMemInfoToFile(int unit, char const *fname) {
    return dump(__func__, unit, fname, memory_text);
}

int TesselApiPrintDeviceMemParityEccInfoToFile(int unit, char const *fname) {
    return dump(__func__, unit, fname, parity_text);
}

}  // extern "C"
