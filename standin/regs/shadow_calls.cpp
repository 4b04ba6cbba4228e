// The life of the shadow and the rules of its use.
#include <algorithm>

#include "helper/shadow.h"
#include "standin/regs/access.h"
#include "standin/regs/hooks.h"
#include "standin/regs/words.h"

using namespace standin;

namespace {

// A call without a status; nothing for a unit that is not there, or under a fault.
template <class Body>
void tell_unit(const char *function, int unit, Body &&body) {
    on_unit(function, unit, Need::kDevice, [&](Unit &view) {
        body(view);
        return BCM_E_NONE;
    });
}

template <class Body>
void on_policy(const char *function, Body &&body) {
    if (fault_check(function) != BCM_E_NONE) return;
    const std::lock_guard<std::mutex> guard(model_lock());
    body(shadow_policy());
}

bool policy_value(const char *function, bool ShadowPolicy::*value) {
    bool answer = false;
    on_policy(function, [&](const ShadowPolicy &policy) { answer = policy.*value; });
    return answer;
}

void set_policy(const char *function, bool ShadowPolicy::*field, bool value) {
    on_policy(function, [&](ShadowPolicy &policy) { policy.*field = value; });
}

// A table by its numbers, if `base` is its base address in one of the cores.
const MemoryLayout *table_at(int mem, int array, int base) {
    const MemoryLayout *const layout = find_memory(mem);
    if (layout == nullptr || !within(array, 0, layout->arrays - 1)) return nullptr;
    for (int core = 0; core < layout->block->count; ++core)
        if (entry_address(*layout, core, array, 0) == static_cast<std::uint32_t>(base))
            return layout;
    return nullptr;
}

// Takes the entries of a table out of the shadow, from `first` on, in all copies.
void forget_entries(RegisterFile &file, const MemoryLayout &layout, int array, int first) {
    std::erase_if(file.shadow, [&](const auto &word) {
        const auto place = find_memory_at(word.first);
        return place && place->layout == &layout && place->array == array && place->index >= first;
    });
}

// The registers that getRegisterBlockFromShadow is asked for: elements from `offset` on, of the
// instance in block `block`; the first instance for block -1. In a block of ports `offset` counts
// port after port. BCM_E_NOT_FOUND, BCM_E_PARAM.
int find_block(int reg, int block, int &offset, const RegisterLayout *&layout, int &instance) {
    layout = find_register(reg);
    if (layout == nullptr) return BCM_E_NOT_FOUND;
    instance = block == -1 ? 0 : block - layout->block->number;
    if (!within(instance, 0, layout->block->count - 1) || offset < 0) return BCM_E_PARAM;
    if (layout->block->scope == Scope::kPort) {
        instance = offset / layout->elements;
        offset %= layout->elements;
    }
    return within(instance, 0, layout->instances() - 1) && offset < layout->elements ? BCM_E_NONE
                                                                                     : BCM_E_PARAM;
}

}  // namespace

extern "C" {

// -- life --------------------------------------------------------------------------------------

// The shadow of every unit begins anew. `ibde`, the bus driver, is not looked at.
void configureHwShadow(ibde_t *) {
    int units = 0;
    on_policy(__func__, [&](ShadowPolicy &policy) {
        policy.configured = true;
        units = device_table().size();
    });
    for (int unit = 0; unit < units; ++unit)
        tell_unit(__func__, unit, [](Unit &view) { view.file.shadow.clear(); });
}

void configureHwPciConfigShadow(void) { set_policy(__func__, &ShadowPolicy::pci_configured, true); }

// The unit's shadow begins anew. Until the teardown, what was not written is at its reset value;
// with `isDiags` every read goes to the hardware.
void setupShadowForHwInit(uint32 unit, bool isDiags) {
    tell_unit(__func__, unit_number(unit), [&](Unit &view) {
        view.file.shadow.clear();
        view.state.init = isDiags ? InitState::kDiagnostics : InitState::kStands;
    });
}

// The unit's shadow begins anew, so that the next reads bring in what hardware holds.
void teardownShadowForHwInit(uint32 unit) {
    tell_unit(__func__, unit_number(unit), [](Unit &view) {
        if (!view.state.init_stands()) return;
        view.file.shadow.clear();
        view.state.init = InitState::kDestroyed;
    });
}

// False as well where none was set up.
bool initShadowDestroyed(uint32 unit) {
    return unit_value(__func__, unit_number(unit), false,
                      [](const Unit &view) { return view.state.init == InitState::kDestroyed; });
}

// The shadow then keeps the lower half of the tables of logical interfaces.
void reduceLifShadowSize(uint unit) {
    tell_unit(__func__, unit_number(unit), [](Unit &view) {
        view.state.interfaces_reduced = true;
        for (const MemoryLayout &layout : all_memories()) {
            if (layout.kind != MemoryKind::kInterfaces) continue;
            for (int array = 0; array < layout.arrays; ++array)
                forget_entries(view.file, layout, array, layout.entries / 2);
        }
    });
}

// `sizePtr`, a uint32, holds the bytes that `dataPtr` has room for, and receives the bytes that
// there are. Null for `dataPtr`, or a size of 0, asks for the size alone. BCM_E_FULL: they do not
// fit, and nothing is copied.
int getRegisterBlockFromShadow(int unit, int reg, int blockId, int offset, void *dataPtr,
                               void *sizePtr) {
    return on_unit(__func__, unit, Need::kReset, [&](Unit &view) {
        const RegisterLayout *layout = nullptr;
        int instance = 0;
        if (const int bad = find_block(reg, blockId, offset, layout, instance); bad < 0) return bad;
        auto *const size = static_cast<std::uint32_t *>(sizePtr);
        if (size == nullptr) return BCM_E_PARAM;
        const std::uint32_t room = dataPtr == nullptr ? 0 : *size;
        *size = static_cast<std::uint32_t>(layout->elements - offset) * layout->words() * 4;
        if (room == 0) return BCM_E_NONE;
        if (room < *size) return BCM_E_FULL;
        auto *out = static_cast<std::uint32_t *>(dataPtr);
        for (int index = offset; index < layout->elements; ++index) {
            std::uint32_t address = element_address(*layout, instance, index);
            for (unsigned word = 0; word < layout->words(); ++word, address += 4) {
                const int status = word_read(view, address, !layout->is_volatile, *out++);
                if (status < 0) return status;
            }
        }
        return BCM_E_NONE;
    });
}

// -- rules -------------------------------------------------------------------------------------

bool dynamicShadowEnable(int unit, int mem, int arrayIndex, int baseAddr) {
    return unit_value(__func__, unit, false, [&](const Unit &view) {
        return table_at(mem, arrayIndex, baseAddr) != nullptr &&
               view.state.dynamic.contains({mem, arrayIndex});
    });
}

// Nothing for a table that there isn't. Off, the shadow forgets the table.
void dynamicShadowEnableIs(int unit, int mem, int arrayIndex, int baseAddr, bool enable) {
    tell_unit(__func__, unit, [&](Unit &view) {
        const MemoryLayout *const layout = table_at(mem, arrayIndex, baseAddr);
        if (layout == nullptr) return;
        if (enable)
            view.state.dynamic.insert({mem, arrayIndex});
        else if (view.state.dynamic.erase({mem, arrayIndex}) != 0)
            forget_entries(view.file, *layout, arrayIndex, 0);
    });
}

void allowAllTableAccess(int unit, bool allow) {
    tell_unit(__func__, unit, [&](Unit &view) { view.state.all_tables = allow; });
}

// For the devices that are fake.
void simAllowAllTableAccess(bool allow) {
    set_policy(__func__, &ShadowPolicy::sim_all_tables, allow);
}

bool simTableAccessOk(void) { return policy_value(__func__, &ShadowPolicy::sim_all_tables); }

bool forceReadFromHardware(void) { return policy_value(__func__, &ShadowPolicy::force_hardware); }

void forceReadFromHardwareIs(bool force) {
    set_policy(__func__, &ShadowPolicy::force_hardware, force);
}

void setCopyEngineConstraintsFilePath(char const *filePath) {
    on_policy(__func__, [&](ShadowPolicy &policy) {
        policy.constraints_file = filePath == nullptr ? "" : filePath;
    });
}

// -- hooks -------------------------------------------------------------------------------------

void standin_shadow_reset(void) {
    const std::lock_guard<std::mutex> guard(model_lock());
    shadow_policy() = ShadowPolicy{};
    for (int unit = 0; unit < device_table().size(); ++unit)
        device_table().find(unit)->layers.forget<UnitState>();
}

int standin_shadow_words(int unit) {
    return on_unit(__func__, unit, Need::kDevice,
                   [](const Unit &view) { return static_cast<int>(view.file.shadow.size()); });
}

int standin_shadow_value(const char *name) {
    const std::string_view wanted = name == nullptr ? "" : name;
    if (wanted == "configured") return policy_value(__func__, &ShadowPolicy::configured);
    if (wanted == "pci") return policy_value(__func__, &ShadowPolicy::pci_configured);
    if (wanted == "forced") return policy_value(__func__, &ShadowPolicy::force_hardware);
    if (wanted == "sim") return policy_value(__func__, &ShadowPolicy::sim_all_tables);
    return -1;
}

}  // extern "C"
