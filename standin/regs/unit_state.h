// What is remembered for the registers and memories of a unit. All of it stands under the model's
// lock.
#pragma once
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <new>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "sdk/soc/reg_types.h"
#include "standin/model/device_table.h"
#include "standin/model/model.h"
#include "standin/regs/layout.h"
#include "toolkit/chip_memory.h"

namespace standin {

// A word in which the shadow was found to differ from the hardware.
struct Difference {
    const RegisterLayout *layout;
    int instance;
    int index;
    unsigned word;
    std::uint32_t address;
    std::uint32_t shadow;
    std::uint32_t hardware;
};

// What the last synchronisation of a chip saw.
struct SyncRecord {
    unsigned compared = 0;  // elements of registers
    unsigned differing = 0;
    bool repaired = false;
    std::vector<Difference> differences;
};

// The words of a chip by bus address. A word that was never written is not in `hardware`; one that
// was neither written nor read is not in `shadow`.
struct RegisterFile {
    std::unordered_map<std::uint32_t, std::uint32_t> hardware;
    std::unordered_map<std::uint32_t, std::uint32_t> shadow;
    SyncRecord last_sync;
};

void visit_state(const RegisterFile &file, StateVisitor &to);

struct RegisterSnoop {
    soc_reg_snoop_cb_t call = nullptr;
    void *user = nullptr;
    std::uint32_t flags = 0;
};

enum class InitState : std::uint8_t {
    kNone,
    kStands,       // set up: what was not written is at its reset value
    kDiagnostics,  // set up for diagnostics: every read goes to the hardware
    kDestroyed
};

// What stays when the chip of a device is reset.
struct UnitState {
    InitState init = InitState::kNone;
    bool all_tables = false;
    bool interfaces_reduced = false;
    std::set<std::pair<int, int>> dynamic;  // tables with their shadow on: memory, array
    std::map<int, RegisterSnoop> snoops;    // by register
    soc_reg_access_t access{};              // null where our own access serves
    bool watch_registers = false;
    bool watch_memories = false;
    Hardware::HardwareShadow::Ptr shadow;
    std::map<std::pair<int, int>, Hardware::ChipMemory::Ptr> memories;  // memory, array

    bool init_stands() const {
        return init == InitState::kStands || init == InitState::kDiagnostics;
    }
};

// What holds for all units.
struct ShadowPolicy {
    bool force_hardware = false;
    bool sim_all_tables = false;
    bool configured = false;
    bool pci_configured = false;
    std::string constraints_file;
};
ShadowPolicy &shadow_policy();

// A unit, while the lock is held.
struct Unit {
    int number;
    Device &device;
    UnitState &state;
    RegisterFile &file;
};

// The unit behind an unsigned argument; -1, which no unit has, for a number too large.
constexpr int unit_number(std::uint32_t unit) {
    return unit < kMaxUnits ? static_cast<int>(unit) : -1;
}

// What a call needs: a device, or a chip that was reset at least once.
enum class Need : std::uint8_t { kDevice, kReset };

// BCM_E_NONE, BCM_E_UNIT, or BCM_E_INIT; takes the lock.
int unit_reachable(int unit, Need need);

// on_switch for the calls of this chapter: fault, lock, unit, `body(Unit &)`.
template <class Body>
int on_unit(const char *function, int unit, Need need, Body &&body) {
    if (const int fault = fault_check(function, unit); fault != BCM_E_NONE) return fault;
    const std::lock_guard<std::mutex> guard(model_lock());
    Device *const device = device_table().find(unit);
    if (device == nullptr) return BCM_E_UNIT;
    if (need == Need::kReset && device->stage == ChipStage::kAttached) return BCM_E_INIT;
    try {
        Unit view{unit, *device, device->layers.of<UnitState>(),
                  chip_of(*device).layers.of<RegisterFile>()};
        return std::forward<Body>(body)(view);
    } catch (const std::bad_alloc &) {
        return BCM_E_MEMORY;
    }
}

// For calls that have a value to give and no status: `otherwise` for a unit that is not there, or
// under a fault.
template <class T, class Body>
T unit_value(const char *function, int unit, T otherwise, Body &&body) {
    T value = otherwise;
    on_unit(function, unit, Need::kDevice, [&](Unit &view) {
        value = static_cast<T>(body(view));
        return BCM_E_NONE;
    });
    return value;
}

}  // namespace standin
