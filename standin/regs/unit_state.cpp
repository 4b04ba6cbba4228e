// Whether a unit can be reached, and the policy that holds for all.
#include "standin/regs/unit_state.h"

namespace standin {

int unit_reachable(int unit, Need need) {
    const std::lock_guard<std::mutex> guard(model_lock());
    const Device *const device = device_table().find(unit);
    if (device == nullptr) return BCM_E_UNIT;
    const bool started = device->stage != ChipStage::kAttached;
    return started || need == Need::kDevice ? BCM_E_NONE : BCM_E_INIT;
}

ShadowPolicy &shadow_policy() {
    // Never destroyed: native threads may still call while the process ends.
    static auto &policy = *new ShadowPolicy;
    return policy;
}

}  // namespace standin
