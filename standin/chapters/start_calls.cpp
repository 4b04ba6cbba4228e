// Starting and stopping chips and the layers above them.
//
//     attached --soc_reset_init--> reset --soc_misc_init--> ready
//         ^  \------------------soc_init-------------------^  |
//         \--------------------- soc_deinit ------------------/
//
//     on a ready chip:   system_init <-> system_shutdown, appl_dcmn_init <-> appl_dcmn_deinit
//
// BCM_E_INIT: a step is missing below. BCM_E_BUSY: a layer still stands above. BCM_E_EXISTS: the
// layer stands already. A reset gives the chip its state of the first day.
#include "helper/device.h"
#include "sdk/bcm/init.h"
#include "sdk/diag/appl.h"
#include "sdk/soc/init.h"
#include "standin/chapters/stacking.h"
#include "standin/chapters/start_record.h"
#include "standin/model/device_marks.h"
#include "standin/model/model.h"

using namespace standin;

namespace {

template <class Body>
int on_attached(const char *function, int unit, Body &&body) {
    if (const int fault = fault_check(function); fault != BCM_E_NONE) return fault;
    std::unique_lock<std::mutex> guard(model_lock());
    const CallRecord record(function, unit);
    Device *device = device_table().find(unit);
    if (device == nullptr) return record.close(BCM_E_UNIT);
    const int status = record.close(body(*device));
    tell_events(unit, marks_of(*device).watchers, guard);
    if (!guard.owns_lock()) guard.lock();
    device = device_table().find(unit);
    if (device != nullptr) tell_events(unit, chip_of(*device).events, guard);
    return status;
}

// While the platform shuts down, nothing is started.
int check_start() {
    return platform().shutting_down ? refused(BCM_E_DISABLED, "the platform is shutting down")
                                    : int{BCM_E_NONE};
}

template <class Body>
int on_ready(const char *function, int unit, Body &&body) {
    return on_attached(function, unit, [&](Device &device) {
        return device.stage == ChipStage::kReady ? body(device) : BCM_E_INIT;
    });
}

// What the watchers of units are told: the API of a unit answers from now on, or no more.
constexpr bcm_device_state_t kStarted{};
constexpr auto kStopped = static_cast<bcm_device_state_t>(1);

void tell_watchers(Device &device, bcm_device_state_t state) {
    static constexpr const char *kKinds[] = {"switch", "fap", "fe"};
    const char *const kind = kKinds[static_cast<std::size_t>(device.kind)];
    marks_of(device).watchers.raise(Registration::kAttach,
                                    [state, kind](int unit, const Handler &one) {
                                        bcm_attach_info_t info{unit, kind, "", -1};
                                        one.as<bcm_attach_cb_t>()(unit, state, &info, one.user);
                                    });
}

void enter(Device &device, ChipStage stage) {
    if (device.stage == ChipStage::kReady) tell_watchers(device, kStopped);
    device.stage = stage;
    if (stage == ChipStage::kReady) tell_watchers(device, kStarted);
}

// At a switchover a chip is taken over as it runs, and only the handlers of before are gone.
int reset_chip(Device &device, ChipStage stage) {
    if (!device.mapped) return BCM_E_INIT;
    if (device.in_use()) return BCM_E_BUSY;
    if (platform().sso)
        device.chip->events = Events{};
    else
        device.renew_chip();
    enter(device, stage);
    return BCM_E_NONE;
}

int start_chip(Device &device, ChipStage stage) {
    const int status = check_start();
    return status < 0 ? status : reset_chip(device, stage);
}

void stop_diagnostics(Device &device) {
    device.diag_api_up = device.diag_stacking_up = device.diag_queueing_up = false;
}

// What the layers above take out of the record of their start.
int read_record(Device &device, const appl_dcmn_init_param_t &record) {
    const int status = set_module_number(chip_of(device), record.modid);
    if (status < 0) return status;
    marks_of(device).no_stacking = record.no_appl_stk != 0;
    marks_of(device).no_queueing = record.cosq_disable != 0;
    marks_of(device).no_interrupts = record.no_intr != 0;
    return BCM_E_NONE;
}

int start_diag_api(const char *function, int unit, const appl_dcmn_init_param_t *record) {
    return on_ready(function, unit, [&](Device &device) {
        int status = check_start_record(unit, record);
        if (status >= 0) status = check_start();
        if (status >= 0) status = read_record(device, *record);
        if (status >= 0) device.diag_api_up = true;
        return status;
    });
}

int start_diag_part(const char *function, int unit, bool Device::*part, bool DeviceMarks::*off) {
    return on_ready(function, unit, [&](Device &device) {
        if (!device.diag_api_up) return int{BCM_E_INIT};
        if (marks_of(device).*off) return refused(BCM_E_DISABLED, "the API was started without");
        device.*part = true;
        return int{BCM_E_NONE};
    });
}

}  // namespace

extern "C" {

int soc_init(int unit) {
    return on_attached(__func__, unit,
                       [](Device &device) { return start_chip(device, ChipStage::kReady); });
}

int soc_reset_init(int unit) {
    return on_attached(__func__, unit,
                       [](Device &device) { return start_chip(device, ChipStage::kReset); });
}

int soc_misc_init(int unit) {
    return on_attached(__func__, unit, [](Device &device) {
        if (device.stage == ChipStage::kAttached) return int{BCM_E_INIT};
        if (const int status = check_start(); status < 0) return status;
        if (device.stage != ChipStage::kReady) enter(device, ChipStage::kReady);
        return int{BCM_E_NONE};
    });
}

int soc_deinit(int unit) {
    return on_attached(__func__, unit, [](Device &device) {
        if (device.stage == ChipStage::kAttached) return BCM_E_INIT;
        const int status = reset_chip(device, ChipStage::kAttached);
        if (status == BCM_E_NONE) stop_diagnostics(device);
        return status;
    });
}

int system_init(int unit) {
    return on_ready(__func__, unit, [](Device &device) {
        if (const int status = check_start(); status < 0) return status;
        if (device.system_up) return int{BCM_E_EXISTS};
        device.system_up = true;
        return int{BCM_E_NONE};
    });
}

// With `cleanup` other than 0 the chip forgets its tables too.
int system_shutdown(int unit, int cleanup) {
    return on_ready(__func__, unit, [&](Device &device) {
        if (!device.system_up) return BCM_E_INIT;
        if (device.application_up) return BCM_E_BUSY;
        device.system_up = false;
        if (cleanup != 0) device.renew_chip();
        return BCM_E_NONE;
    });
}

int appl_dcmn_init(int unit, appl_dcmn_init_param_t *init_param) {
    return on_ready(__func__, unit, [&](Device &device) {
        int status = check_start_record(unit, init_param);
        if (status < 0 || init_param->no_init != 0 || init_param->no_appl != 0) return status;
        status = check_start();
        if (status >= 0 && device.application_up) return int{BCM_E_EXISTS};
        if (status >= 0) status = read_record(device, *init_param);
        if (status >= 0) device.application_up = true;
        return status;
    });
}

int appl_dcmn_deinit(int unit, appl_dcmn_init_param_t *init_param) {
    return on_ready(__func__, unit, [&](Device &device) {
        const int status = check_start_record(unit, init_param);
        if (status < 0 || init_param->no_deinit != 0) return status;
        if (!device.application_up) return int{BCM_E_INIT};
        device.application_up = marks_of(device).no_interrupts = false;
        stop_diagnostics(device);
        return int{BCM_E_NONE};
    });
}

int appl_dpp_bcm_diag_init(int unit, appl_dcmn_init_param_t *init_param) {
    return start_diag_api(__func__, unit, init_param);
}

int appl_dpp_bcm_diag_init_py(int unit, int nof_devices, int mymodid, int cosq_disable) {
    appl_dcmn_init_param_t record{};
    record.nof_devices = cosq_disable >= 0 ? nof_devices : -1;
    record.modid = mymodid;
    record.cosq_disable = cosq_disable > 0;
    return start_diag_api(__func__, unit, &record);
}

int appl_dpp_stk_diag_init(int unit) {
    return start_diag_part(__func__, unit, &Device::diag_stacking_up, &DeviceMarks::no_stacking);
}

int appl_dpp_cosq_diag_init(int unit) {
    return start_diag_part(__func__, unit, &Device::diag_queueing_up, &DeviceMarks::no_queueing);
}

int bcm_attach(int unit, char *, char *, int) {
    return on_ready(__func__, unit, [](Device &) { return BCM_E_NONE; });
}

int bcm_attach_check(int unit) {
    return on_attached(__func__, unit, [](Device &) { return BCM_E_NONE; });
}

// A watcher of the unit hears of its starts and stops, and stays through them.
int bcm_attach_register(int unit, bcm_attach_cb_t cb, void *user_data) {
    return on_attached(__func__, unit, [&](Device &device) {
        return marks_of(device).watchers.handlers.add(
            handler(Registration::kAttach, cb, user_data));
    });
}

int bcm_attach_unregister(int unit, bcm_attach_cb_t cb, void *user_data) {
    return on_attached(__func__, unit, [&](Device &device) {
        return marks_of(device).watchers.handlers.remove(
            handler(Registration::kAttach, cb, user_data));
    });
}

int bcm_attach_max(int *max_units) { return give(max_units, kMaxUnits); }

int bcm_init(int unit) {
    return on_ready(__func__, unit, [](Device &) { return BCM_E_NONE; });
}

int bcm_init_selective(int unit, uint32) {
    return on_ready(__func__, unit, [](Device &) { return BCM_E_NONE; });
}

int bcm_init_check(int unit) {
    return on_ready(__func__, unit, [](Device &) { return BCM_E_NONE; });
}

int bcm_clear(int unit) {
    return on_ready(__func__, unit, [](Device &device) {
        device.renew_chip();
        return BCM_E_NONE;
    });
}

// The highest unit number, -1 without a device.
int bcm_unit_max(void) {
    const std::lock_guard<std::mutex> guard(model_lock());
    return device_table().size() - 1;
}

int bcm_unit_valid(int unit) {
    const std::lock_guard<std::mutex> guard(model_lock());
    return device_table().find(unit) != nullptr;
}

int bcm_unit_local(int unit) { return bcm_unit_valid(unit); }

int bcm_unit_remote(int) { return 0; }

int bcm_info_get(int unit, bcm_info_t *info) {
    const bcm_info_t found{0xa1, getDevId(unit), getDevRev(unit), 0, 2};
    return on_attached(__func__, unit, [&](Device &) { return give(info, found); });
}

}  // extern "C"
