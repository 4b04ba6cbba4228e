// The registrations of the API and what calls their handlers: the one table of them.
//
// Each has its cause, or the reason why nothing ever comes of it; the call then answers
// BCM_E_UNAVAIL. Handlers are called as events.h says: by the thread of the cause, without the
// model's lock.
#pragma once
#include <cstdint>
#include <span>
#include <string_view>

namespace standin {

// Every `_register` row of the API, in the order of registrations().
enum class Registration : std::uint8_t {
    kLinkscan,
    kLinkscanPort,
    kL2Address,
    kSwitchEvent,
    kAttach,
    kHeartbeat,
    kOam,
    kOamPerformance,
    kOamMeasurement,
    kCosq,
    kPfcDeadlock,
    kMediumStatus,
    kPhyReset,
    kSocMediumStatus,
    kSocPhyReset,
    kRx,
    kRxQueue,
    kRxSchedule,
    kCustom,
    kModuleMap,
    kStackUpdate,
    kRegisterSnoop,
    kRegisterAccess,
    kSubportErrors,
    kIpfix,
    kFabricRedundancy,
    kStableStorage,
};

struct RegistrationRow {
    Registration row;
    const char *function;
    const char *chapter;  // whose `_detach` ends its handlers, as "bcm_l2_", or empty
    bool callable;        // else the call answers BCM_E_UNAVAIL
    const char *cause;    // what calls its handlers, or why nothing does
};

std::span<const RegistrationRow> registrations();

}  // namespace standin
