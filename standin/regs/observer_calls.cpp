// Who is told of accesses, and who carries them out in our place.
#include "sdk/soc/mem.h"
#include "sdk/soc/reg.h"
#include "standin/regs/unit_state.h"

using namespace standin;

namespace {

template <class Body>
void on_state(const char *function, int unit, Body &&body) {
    on_unit(function, unit, Need::kDevice, [&](Unit &view) {
        body(view.state);
        return BCM_E_NONE;
    });
}

}  // namespace

extern "C" {

// One snoop for each register; a new one takes the place of the old one. `flags`: 1 for reads, 2
// for writes, 0 for both. It is called after the access, without the lock, and may access
// registers itself. Null for `snoop_cb` is the same as unregistering.
void soc_reg_snoop_register(int unit, soc_reg_t reg, uint32 flags, soc_reg_snoop_cb_t snoop_cb,
                            void *user_data) {
    on_state(__func__, unit, [&](UnitState &state) {
        if (find_register(reg) == nullptr) return;
        state.snoops.erase(reg);
        if (snoop_cb != nullptr) state.snoops[reg] = {snoop_cb, user_data, flags};
    });
}

void soc_reg_snoop_unregister(int unit, soc_reg_t reg) {
    on_state(__func__, unit, [&](UnitState &state) { state.snoops.erase(reg); });
}

// While on, each access prints a line, into the shell's output or onto standard output.
void soc_reg_watch_set(int unit, int value) {
    on_state(__func__, unit, [&](UnitState &state) { state.watch_registers = value != 0; });
}

void soc_mem_watch_set(int unit, int value) {
    on_state(__func__, unit, [&](UnitState &state) { state.watch_memories = value != 0; });
}

// Copies the functions. Each that is not null carries out the accesses of its width in our place;
// what it accesses in turn, on its own thread, is carried out by us. Null for `reg_access` gives
// all back to us.
int soc_reg_access_func_register(int unit, soc_reg_access_t *reg_access) {
    return on_unit(__func__, unit, Need::kDevice, [&](Unit &view) {
        view.state.access = reg_access == nullptr ? soc_reg_access_t{} : *reg_access;
        return BCM_E_NONE;
    });
}

}  // extern "C"
