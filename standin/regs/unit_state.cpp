#include "standin/regs/unit_state.h"

#include "standin/regs/per_chip.h"

namespace standin {
namespace {

// Neither is destroyed: native threads may still call while the process ends.
PerDevice<UnitState> &unit_states() {
    static auto &states = *new PerDevice<UnitState>(MarkWord::kUnitState);
    return states;
}

PerChip<RegisterFile> &register_files() {
    static auto &files = *new PerChip<RegisterFile>("register file");
    return files;
}

}  // namespace

UnitState &unit_state(int unit) { return unit_states().of(unit); }

RegisterFile &register_file(int unit, Switch &chip) { return register_files().of(unit, chip); }

void forget_unit_states() { unit_states().clear(); }

int unit_reachable(int unit, Need need) {
    const std::lock_guard<std::mutex> guard(model_lock());
    const Device *const device = device_table().find(unit);
    if (device == nullptr) return BCM_E_UNIT;
    const bool started = device->stage != ChipStage::kAttached;
    return started || need == Need::kDevice ? BCM_E_NONE : BCM_E_INIT;
}

ShadowPolicy &shadow_policy() {
    static auto &policy = *new ShadowPolicy;
    return policy;
}

}  // namespace standin
