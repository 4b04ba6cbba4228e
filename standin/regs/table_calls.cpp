// Tables and shadows as counted objects. There is one object for each, and it is kept for later
// callers until its device goes.
#include "helper/shadow.h"
#include "helper/shadow_cxx.h"
#include "standin/regs/unit_state.h"
#include "toolkit/alloc_track.h"

using namespace standin;
using Hardware::ChipMemory;
using Hardware::HardwareShadow;

namespace {

// The tables of a memory: core after core, array after array.
int tables_of(const MemoryLayout &layout) { return layout.arrays * layout.block->count; }

std::uint32_t table_address(const MemoryLayout &layout, int table) {
    return entry_address(layout, table / layout.arrays, table % layout.arrays, 0);
}

// Finds the object of the first table for which `wanted(layout, base)` holds; null if none.
template <class Wanted>
ChipMemory::Ptr find_table(const char *function, int unit, int mem, Wanted &&wanted) {
    ChipMemory::Ptr found;
    const MemoryLayout *const layout = find_memory(mem);
    on_unit(function, unit, Need::kDevice, [&](Unit &view) {
        for (int table = 0; layout != nullptr && table < tables_of(*layout); ++table) {
            const std::uint32_t base = table_address(*layout, table);
            if (!wanted(*layout, base)) continue;
            ChipMemory::Ptr &kept = view.state.memories[{mem, table}];
            if (!kept) {
                const ChipMemory::Place place{unit, mem, Hardware::ChipAddress(base),
                                              layout->array_bytes()};
                kept = Lumo::newTracked<ChipMemory>(place, layout->kind != MemoryKind::kPlatform);
            }
            found = kept;
            break;
        }
        return BCM_E_NONE;
    });
    return found;
}

}  // namespace

// Null for a unit that there isn't.
HardwareShadow::Ptr getHwShadow(int unit) {
    HardwareShadow::Ptr found;
    on_unit(__func__, unit, Need::kDevice, [&](Unit &view) {
        if (!view.state.shadow) view.state.shadow = Lumo::newTracked<HardwareShadow>(unit);
        found = view.state.shadow;
        return BCM_E_NONE;
    });
    return found;
}

// True for null: what is no memory is nobody's.
bool tableNotManagedBySdk(ChipMemory const *memory) {
    return memory == nullptr || !memory->managedBySdk();
}

namespace TesselApi {

// The arrays of the second core come after those of the first. All ones where there is no such
// table.
U32 tableBaseAddr(int unit, int mem, int arrayIndex) {
    const MemoryLayout *const layout = find_memory(mem);
    return unit_value(__func__, unit, kNoAddress, [&](const Unit &) {
        const bool there = layout != nullptr && within(arrayIndex, 0, tables_of(*layout) - 1);
        return there ? table_address(*layout, arrayIndex) : kNoAddress;
    });
}

// The table in which `sizeBytes` from `sca` on lie, all of them.
ChipMemory::Ptr findChipMemory(int unit, int mem, Hardware::ChipAddress sca, U32 sizeBytes) {
    return find_table(__func__, unit, mem, [&](const MemoryLayout &layout, std::uint32_t base) {
        const std::uint64_t size = layout.array_bytes();
        return sca.value() >= base && sca.value() - base < size &&
               sizeBytes <= size - (sca.value() - base);
    });
}

ChipMemory::Ptr findChipMemory(int unit, int mem, int baseAddr) {
    return find_table(__func__, unit, mem, [&](const MemoryLayout &, std::uint32_t base) {
        return base == static_cast<std::uint32_t>(baseAddr);
    });
}

}  // namespace TesselApi
