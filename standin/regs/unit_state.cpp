// Whether a unit can be reached, and the policy that holds for all.
#include "standin/regs/unit_state.h"

#include <array>
#include <cstdio>

namespace standin {
namespace {

void visit_words(StateVisitor &to, const char *kind,
                 const std::unordered_map<std::uint32_t, std::uint32_t> &words) {
    const std::map<std::uint32_t, std::uint32_t> ordered(words.begin(), words.end());
    for (const auto &[address, word] : ordered) {
        std::array<char, 16> key{};
        std::snprintf(key.data(), key.size(), "0x%08x", address);
        to.object(kind, key.data());
        to.number("word", word);
    }
}

}  // namespace

void visit_state(const RegisterFile &file, StateVisitor &to) {
    visit_words(to, "register", file.hardware);
    visit_words(to, "shadow", file.shadow);
}

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
