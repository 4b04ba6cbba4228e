// The calls that a function of the caller serves: custom values of a port, and modules of a stack;
// and what a stack is told of its own changes.
#include <map>

#include "sdk/bcm/custom.h"
#include "sdk/bcm/stk.h"
#include "standin/chapters/port_access.h"
#include "standin/chapters/registration.h"
#include "standin/chapters/stacking.h"
#include "standin/model/tables.h"
#include "standin/model/telling.h"

using namespace standin;

namespace {

constexpr int kGet = 0;
constexpr int kSet = 1;

// Flags that a stack is told of: what has changed.
constexpr uint32 kModuleChanged = 0x1;
constexpr uint32 kPortsChanged = 0x2;

constexpr int kModules = 512;

struct Stack {
    int module = 0;
    std::map<int, uint32> port_flags;  // of stacking ports
};

void visit_state(const Stack &stack, StateVisitor &to) {
    to.object("stack", "");
    to.number("module", stack.module);
    for (const auto &[port, flags] : stack.port_flags)
        to.number("port_flags[" + std::to_string(port) + "]", flags);
}

void tell_stack(Switch &chip, uint32 what) {
    const int module = chip.layers.of<Stack>().module;
    chip.events.raise(Registration::kStackUpdate, [=](int unit, const Handler &one) {
        one.as<bcm_stk_cb_f>()(unit, module, what, one.user);
    });
}

int set_module(const char *function, int unit, int module) {
    return on_switch(function, unit, [&](Switch &chip) { return set_module_number(chip, module); });
}

int get_module(const char *function, int unit, int *module) {
    return on_switch(function, unit,
                     [&](Switch &chip) { return give(module, chip.layers.of<Stack>().module); });
}

// BCM_E_UNAVAIL: nobody serves custom values.
int serve_custom(const char *function, int unit, bcm_port_t port, int set, int type, int length,
                 uint32 *values, int *actual) {
    std::optional<Handler> served;
    int number = -1;
    const int status = on_switch(function, unit, [&](Switch &chip) {
        number = local_port(port);
        if (number < 0) return refused_port("port", port);
        if (length < 0 || (length > 0 && values == nullptr) || actual == nullptr)
            return BCM_E_PARAM;
        const Handler *const one = chip.events.handlers.find(Registration::kCustom);
        if (one == nullptr) return refused(BCM_E_UNAVAIL, "no function serves custom values");
        served = *one;
        return BCM_E_NONE;
    });
    if (status < 0) return status;
    return served->as<bcm_custom_cb_t>()(unit, number, set, type, length, values, actual,
                                         served->user);
}

}  // namespace

namespace standin {

int set_module_number(Switch &chip, int module) {
    if (!within(module, 0, kModules - 1)) return BCM_E_PARAM;
    int &mine = chip.layers.of<Stack>().module;
    if (module == mine) return BCM_E_NONE;
    const auto before = static_cast<unsigned>(std::exchange(mine, module));
    tell_stack(chip, kModuleChanged);
    note_switch_event(chip.events, BCM_SWITCH_EVENT_MODID_CHANGE,
                      {before, static_cast<unsigned>(module), 0});
    return BCM_E_NONE;
}

}  // namespace standin

extern "C" {

int bcm_custom_register(int unit, bcm_custom_cb_t cb, void *user_data) {
    return set_handler(__func__, unit, Registration::kCustom, cb, user_data);
}
int bcm_custom_unregister(int unit) { return clear_handler(__func__, unit, Registration::kCustom); }

// The status is that of the function.
int bcm_custom_port_set(int unit, bcm_port_t port, int type, int len, uint32 *args) {
    return serve_custom(__func__, unit, port, kSet, type, len, args, &len);
}
int bcm_custom_port_get(int unit, bcm_port_t port, int type, int max_len, uint32 *args,
                        int *actual_len) {
    return serve_custom(__func__, unit, port, kGet, type, max_len, args, actual_len);
}

// -- stacks --------------------------------------------------------------------------------------

int bcm_stk_init(int unit) {
    return start_chapter(__func__, unit, "bcm_stk_", [](Switch &chip) {
        chip.layers.of<Stack>() = {};
        return BCM_E_NONE;
    });
}

// A unit is one module, whichever call says which.
int bcm_stk_modid_set(int unit, int modid) { return set_module(__func__, unit, modid); }
int bcm_stk_modid_get(int unit, int *modid) { return get_module(__func__, unit, modid); }
int bcm_stk_my_modid_set(int unit, int my_modid) { return set_module(__func__, unit, my_modid); }
int bcm_stk_my_modid_get(int unit, int *my_modid) { return get_module(__func__, unit, my_modid); }

// A port with flags is a stacking port.
int bcm_stk_port_set(int unit, bcm_port_t port, uint32 flags) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        const int number = local_port(port);
        if (number < 0) return refused_port("port", port);
        auto &all = chip.layers.of<Stack>().port_flags;
        const auto found = all.find(number);
        if (flags == (found == all.end() ? 0 : found->second)) return BCM_E_NONE;
        if (flags == 0)
            all.erase(number);
        else
            all[number] = flags;
        tell_stack(chip, kPortsChanged);
        return BCM_E_NONE;
    });
}

int bcm_stk_port_get(int unit, bcm_port_t port, uint32 *flags) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        const int number = local_port(port);
        if (number < 0) return refused_port("port", port);
        const auto *const found = find_in(chip.layers.of<Stack>().port_flags, number);
        return give(flags, found == nullptr ? 0 : *found);
    });
}

// The stacking ports, and those of them whose link is down.
int bcm_stk_pbmp_get(int unit, bcm_pbmp_t *current_pbmp, bcm_pbmp_t *inactive_pbmp) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        if (current_pbmp == nullptr || inactive_pbmp == nullptr) return BCM_E_PARAM;
        *current_pbmp = *inactive_pbmp = {};
        for (const auto &[port, flags] : chip.layers.of<Stack>().port_flags) {
            add_port(*current_pbmp, port);
            if (chip.ports.find(port)->link() == 0) add_port(*inactive_pbmp, port);
        }
        return BCM_E_NONE;
    });
}

int bcm_stk_update_callback_register(int unit, bcm_stk_cb_f cb, void *user_data) {
    return add_handler(__func__, unit, Registration::kStackUpdate, cb, user_data);
}
int bcm_stk_update_callback_unregister(int unit, bcm_stk_cb_f cb, void *user_data) {
    return remove_handler(__func__, unit, Registration::kStackUpdate, cb, user_data);
}

int bcm_stk_modmap_register(int unit, bcm_stk_modmap_cb_t cb) {
    return set_handler(__func__, unit, Registration::kModuleMap, cb, nullptr);
}
int bcm_stk_modmap_unregister(int unit) {
    return clear_handler(__func__, unit, Registration::kModuleMap);
}

// Without a function that maps, every module and port is itself.
int bcm_stk_modmap_map(int unit, int set_or_get, bcm_module_t modid_in, bcm_port_t port_in,
                       bcm_module_t *modid_out, bcm_port_t *port_out) {
    if (modid_out == nullptr || port_out == nullptr) return refuse(__func__, unit);
    std::optional<Handler> map;
    const int status = find_handler(__func__, unit, Registration::kModuleMap, map);
    if (status < 0) return status;
    if (map)
        return map->as<bcm_stk_modmap_cb_t>()(unit, set_or_get, modid_in, port_in, modid_out,
                                              port_out);
    return on_port(__func__, unit, port_in, [&](const Port &) {
        const int given = give(modid_out, modid_in);
        return given < 0 ? given : give(port_out, port_in);
    });
}

}  // extern "C"
