// Registering handlers, as most chapters do it.
#pragma once
#include <string>

#include "standin/model/model.h"
#include "standin/model/switch.h"

namespace standin {

template <class Function>
int add_handler(const char *function, int unit, Registration row, Function call, void *user) {
    return on_switch(function, unit, [&](Switch &chip) {
        return chip.events.handlers.add(handler(row, call, user));
    });
}

template <class Function>
int remove_handler(const char *function, int unit, Registration row, Function call, void *user) {
    return on_switch(function, unit, [&](Switch &chip) {
        return chip.events.handlers.remove(handler(row, call, user));
    });
}

// A unit, or a key of it, has one handler of such a row.
inline int set_handler(Switch &chip, const Handler &one) {
    auto &handlers = chip.events.handlers;
    return handlers.find(one.row, one.key) != nullptr ? int{BCM_E_EXISTS} : handlers.add(one);
}

inline int clear_handler(Switch &chip, Registration row, const HandlerKey &key = {}) {
    const Handler *const found = chip.events.handlers.find(row, key);
    return found == nullptr ? int{BCM_E_NOT_FOUND} : chip.events.handlers.remove(Handler(*found));
}

template <class Function>
int set_handler(const char *function, int unit, Registration row, Function call, void *user) {
    return on_switch(function, unit,
                     [&](Switch &chip) { return set_handler(chip, handler(row, call, user)); });
}

inline int clear_handler(const char *function, int unit, Registration row) {
    return on_switch(function, unit, [&](Switch &chip) { return clear_handler(chip, row); });
}

// The handler of such a row, to be called with the lock free; nothing if there is none.
inline int find_handler(const char *function, int unit, Registration row,
                        std::optional<Handler> &found) {
    return on_switch(function, unit, [&](Switch &chip) {
        if (const Handler *const one = chip.events.handlers.find(row)) found = *one;
        return BCM_E_NONE;
    });
}

// What answers a registration that nothing can ever call.
inline int uncallable(const char *function, int unit, Registration row) {
    return on_switch(function, unit, [&](Switch &) {
        return refused(BCM_E_UNAVAIL, registrations()[static_cast<std::size_t>(row)].cause);
    });
}

}  // namespace standin
