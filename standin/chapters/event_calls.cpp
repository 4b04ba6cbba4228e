// Registrations whose events come from the chip by itself, which here means from a test, and those
// that nothing can call.
//
// A handler for several types of events is one handler for each of them, so that types may be taken
// back one by one.
#include <span>

#include "sdk/bcm/cosq.h"
#include "sdk/bcm/fabric.h"
#include "sdk/bcm/ipfix.h"
#include "sdk/bcm/oam.h"
#include "sdk/bcm/rx.h"
#include "sdk/bcm/subport.h"
#include "sdk/bcm/switch.h"
#include "standin/chapters/hooks.h"
#include "standin/chapters/registration.h"
#include "standin/model/device_table.h"
#include "standin/model/tables.h"
#include "standin/model/telling.h"

using namespace standin;

namespace {

bool has_type(std::span<const SHR_BITDCL> types, int type) {
    const auto place = static_cast<unsigned>(type);
    return (types[place / 32] >> place % 32 & 1) != 0;
}

// Calls `each(key)` for each type of the set. BCM_E_PARAM for a set of none.
template <class Types, class Each>
int each_type(const Types &types, int count, HandlerKey key, Each &&each) {
    int seen = 0;
    for (int type = 0; type < count; ++type) {
        if (!has_type(types.w, type)) continue;
        key[0] = type;
        each(key);
        ++seen;
    }
    return seen == 0 ? refused(BCM_E_PARAM, "field event_types is empty") : BCM_E_NONE;
}

// The handler with the row, function and key of `one`, whatever its argument; null if there is
// none.
const Handler *find_call(const Switch &chip, const Handler &one) {
    std::uint64_t at = 0;
    while (const Handler *const other = chip.events.handlers.next(one.row, at, ~std::uint64_t{0})) {
        if (one.call == other->call && one.key == other->key) return other;
        at = other->number;
    }
    return nullptr;
}

struct TypedRow {
    Registration row;
    int count;  // of types
};

// BCM_E_EXISTS: the function has all of the types. Those that it had keep their argument.
template <class Types, class Function>
int add_typed(Switch &chip, const TypedRow &row, const Types &types, HandlerKey key, Function call,
              void *user) {
    if (call == nullptr) return BCM_E_PARAM;
    bool added = false;
    const int status = each_type(types, row.count, key, [&](const HandlerKey &one) {
        const Handler made = handler(row.row, call, user, one);
        if (find_call(chip, made) == nullptr)
            added = chip.events.handlers.add(made) == BCM_E_NONE || added;
    });
    return status < 0 || added ? status : int{BCM_E_EXISTS};
}

// BCM_E_NOT_FOUND: the function has none of the types.
template <class Types, class Function>
int remove_typed(Switch &chip, const TypedRow &row, const Types &types, HandlerKey key,
                 Function call) {
    bool removed = false;
    const int status = each_type(types, row.count, key, [&](const HandlerKey &one) {
        const Handler *const found = find_call(chip, handler(row.row, call, nullptr, one));
        if (found != nullptr) removed = chip.events.handlers.remove(*found) == 0 || removed;
    });
    return status < 0 || removed ? status : int{BCM_E_NOT_FOUND};
}

// on_switch for an event that comes from the chip by itself, which takes an interrupt.
template <class Body>
int on_interrupt(const char *function, int unit, Body &&body) {
    return on_switch(function, unit, [&](Switch &chip) {
        if (!interrupts_reach(unit)) return refused(BCM_E_DISABLED, "interrupts are off");
        return int{body(chip)};
    });
}

// An event of a type: `tell` is called for the handlers with its key.
template <class Tell>
int raise_typed(const char *function, int unit, const TypedRow &row, const HandlerKey &key,
                Tell &&tell) {
    return on_interrupt(function, unit, [&](Switch &chip) {
        if (!within<std::int64_t>(key[0], 0, row.count - 1)) return BCM_E_PARAM;
        chip.events.raise(row.row, [key, tell](int of, const Handler &one) {
            if (one.key == key) tell(of, one);
        });
        return BCM_E_NONE;
    });
}

constexpr TypedRow kOamRow = {Registration::kOam, bcmOAMEventCount};
constexpr TypedRow kPerformanceRow = {Registration::kOamPerformance, bcmOAMEventCount};
constexpr TypedRow kMeasurementRow = {Registration::kOamMeasurement, bcmOAMEventCount};
constexpr TypedRow kCosqRow = {Registration::kCosq, bcmCosqEventCount};

}  // namespace

extern "C" {

// -- the chip ------------------------------------------------------------------------------------

int bcm_switch_event_register(int unit, bcm_switch_event_cb_t cb, void *userdata) {
    return add_handler(__func__, unit, Registration::kSwitchEvent, cb, userdata);
}

int bcm_switch_event_unregister(int unit, bcm_switch_event_cb_t cb, void *userdata) {
    return remove_handler(__func__, unit, Registration::kSwitchEvent, cb, userdata);
}

int standin_switch_event(int unit, int event, unsigned arg1, unsigned arg2, unsigned arg3) {
    return on_interrupt(__func__, unit, [&](Switch &chip) {
        if (!within(event, 1, BCM_SWITCH_EVENT_COUNT - 1)) return BCM_E_PARAM;
        note_switch_event(chip.events, event, {arg1, arg2, arg3});
        return BCM_E_NONE;
    });
}

// -- operation and maintenance -------------------------------------------------------------------

#define TYPED_PAIR(add, remove, Types, Function, row)                    \
    int add(int unit, Types event_types, Function cb, void *user_data) { \
        return on_switch(__func__, unit, [&](Switch &chip) {             \
            return add_typed(chip, row, event_types, {}, cb, user_data); \
        });                                                              \
    }                                                                    \
    int remove(int unit, Types event_types, Function cb) {               \
        return on_switch(__func__, unit, [&](Switch &chip) {             \
            return remove_typed(chip, row, event_types, {}, cb);         \
        });                                                              \
    }
TYPED_PAIR(bcm_oam_event_register, bcm_oam_event_unregister, bcm_oam_event_types_t,
           bcm_oam_event_cb, kOamRow)
TYPED_PAIR(bcm_oam_performance_event_register, bcm_oam_performance_event_unregister,
           bcm_oam_event_types_t, bcm_oam_performance_event_cb, kPerformanceRow)
TYPED_PAIR(bcm_oam_pm_event_register, bcm_oam_pm_event_unregister, bcm_oam_event_types_t,
           bcm_oam_pm_event_cb, kMeasurementRow)
#undef TYPED_PAIR

int standin_oam_event(int unit, int type, unsigned flags, int group, int endpoint) {
    return raise_typed(__func__, unit, kOamRow, {type}, [=](int of, const Handler &one) {
        one.as<bcm_oam_event_cb>()(of, flags, static_cast<bcm_oam_event_type_t>(type), group,
                                   endpoint, one.user);
    });
}

int standin_oam_performance_event(int unit, int type, int group, int endpoint) {
    return raise_typed(__func__, unit, kPerformanceRow, {type}, [=](int of, const Handler &one) {
        bcm_oam_performance_event_data_t data{};
        one.as<bcm_oam_performance_event_cb>()(of, static_cast<bcm_oam_event_type_t>(type), group,
                                               endpoint, &data, one.user);
    });
}

int standin_oam_pm_event(int unit, int type) {
    return raise_typed(__func__, unit, kMeasurementRow, {type}, [=](int of, const Handler &one) {
        bcm_oam_pm_raw_data_t data{};
        one.as<bcm_oam_pm_event_cb>()(of, static_cast<bcm_oam_event_type_t>(type), &data, one.user);
    });
}

// -- queues --------------------------------------------------------------------------------------

int bcm_cosq_event_register(int unit, bcm_cosq_event_types_t event_types, bcm_gport_t gport,
                            bcm_cos_queue_t cosq, bcm_cosq_event_cb cb, void *user_data) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        const int type = gport_type(gport);
        const bool of_port = type == 0 || type == kLocalGport.type;
        if (gport < 0 || (of_port && local_port(gport) < 0)) return refused_port("gport", gport);
        return add_typed(chip, kCosqRow, event_types, {0, gport, cosq}, cb, user_data);
    });
}

int bcm_cosq_event_unregister(int unit, bcm_cosq_event_types_t event_types, bcm_gport_t gport,
                              bcm_cos_queue_t cosq, bcm_cosq_event_cb cb) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        return remove_typed(chip, kCosqRow, event_types, {0, gport, cosq}, cb);
    });
}

int standin_cosq_event(int unit, int type, int gport, int cosq, int index, int value) {
    return raise_typed(__func__, unit, kCosqRow, {type, gport, cosq},
                       [=](int of, const Handler &one) {
                           one.as<bcm_cosq_event_cb>()(of, static_cast<bcm_cosq_event_type_t>(type),
                                                       index, value, one.user);
                       });
}

int bcm_cosq_pfc_deadlock_recovery_event_register(
    int unit, bcm_cosq_pfc_deadlock_recovery_event_cb_t callback, void *user_data) {
    return add_handler(__func__, unit, Registration::kPfcDeadlock, callback, user_data);
}

int bcm_cosq_pfc_deadlock_recovery_event_unregister(
    int unit, bcm_cosq_pfc_deadlock_recovery_event_cb_t callback, void *user_data) {
    return remove_handler(__func__, unit, Registration::kPfcDeadlock, callback, user_data);
}

int standin_pfc_deadlock(int unit, int port, int cosq, int event) {
    return on_interrupt(__func__, unit, [&](Switch &chip) {
        const int number = local_port(port);
        if (number < 0) return refused_port("port", port);
        if (!within(cosq, 0, 7) || !within(event, 0, bcmCosqPfcDeadlockRecoveryEventCount - 1))
            return int{BCM_E_PARAM};
        chip.events.raise(Registration::kPfcDeadlock, [=](int of, const Handler &one) {
            one.as<bcm_cosq_pfc_deadlock_recovery_event_cb_t>()(
                of, number, cosq, static_cast<bcm_cosq_pfc_deadlock_recovery_event_t>(event),
                one.user);
        });
        return BCM_E_NONE;
    });
}

// -- what nothing can call -----------------------------------------------------------------------

int bcm_ipfix_register(int unit, bcm_ipfix_callback_t, void *) {
    return uncallable(__func__, unit, Registration::kIpfix);
}
int bcm_ipfix_unregister(int unit, bcm_ipfix_callback_t, void *) {
    return uncallable(__func__, unit, Registration::kIpfix);
}
int bcm_fabric_control_redundancy_register(int unit, bcm_fabric_control_redundancy_handler_t) {
    return uncallable(__func__, unit, Registration::kFabricRedundancy);
}
int bcm_fabric_control_redundancy_unregister(int unit, bcm_fabric_control_redundancy_handler_t) {
    return uncallable(__func__, unit, Registration::kFabricRedundancy);
}
int bcm_subport_linkphy_rx_error_register(int unit, bcm_subport_linkphy_rx_errors_t,
                                          bcm_subport_linkphy_rx_error_reg_info_t *, void *) {
    return uncallable(__func__, unit, Registration::kSubportErrors);
}
int bcm_subport_linkphy_rx_error_unregister(int unit, bcm_subport_linkphy_rx_errors_t) {
    return uncallable(__func__, unit, Registration::kSubportErrors);
}
int bcm_rx_sched_register(int unit, bcm_rx_sched_cb) {
    return uncallable(__func__, unit, Registration::kRxSchedule);
}
int bcm_rx_sched_unregister(int unit) {
    return uncallable(__func__, unit, Registration::kRxSchedule);
}
int bcm_switch_stable_register(int unit, bcm_switch_read_func_t, bcm_switch_write_func_t) {
    return uncallable(__func__, unit, Registration::kStableStorage);
}

}  // extern "C"
