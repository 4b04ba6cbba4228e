// The road of every modelled call: fault, lock, unit, body, events.
#pragma once
#include <mutex>
#include <new>
#include <utility>

#include "sdk/constants.h"
#include "standin/base/faults.h"
#include "standin/model/events.h"
#include "standin/model/refusal.h"

namespace standin {

struct Switch;

// The one lock of the chip model. No callback of a caller runs under it: a caller may hold the
// interpreter's lock, and a native thread may come for either in the other order.
std::mutex &model_lock();

// The switch of `unit`, or null with `status` BCM_E_UNIT (no such device) or BCM_E_INIT (its
// chip has not been started). REQUIRES: the lock is held.
Switch *ready_switch(int unit, int &status);

// BCM_E_NONE, BCM_E_UNIT or BCM_E_INIT; takes the lock. For calls that have no model.
int unit_status(int unit);

// Answers the call `function` on `unit` with `body(Switch&)`, which returns a status.
template <class Body>
int on_switch(const char *function, int unit, Body &&body) {
    if (const int fault = fault_check(function, unit); fault != BCM_E_NONE) return fault;
    std::unique_lock<std::mutex> guard(model_lock());
    const CallRecord record(function, unit);
    int status = BCM_E_NONE;
    Switch *const chip = ready_switch(unit, status);
    if (chip == nullptr) return record.close(status);
    if (is_stopped(*chip, function)) return record.close(BCM_E_INIT);
    try {
        status = std::forward<Body>(body)(*chip);
        if (status >= 0) note_chapter(*chip, function);
    } catch (const std::bad_alloc &) {
        status = BCM_E_MEMORY;
    }
    status = record.close(status);
    tell_events(unit, events_of(*chip), guard);
    return status;
}

// Writes `value` for the caller, who may have passed null.
template <class T, class U>
int give(T *out, const U &value) {
    if (out == nullptr) return BCM_E_PARAM;
    *out = static_cast<T>(value);
    return BCM_E_NONE;
}

template <class T>
bool within(T value, T low, T high) {
    return value >= low && value <= high;
}

}  // namespace standin
