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
#include "standin/model/device_table.h"
#include "standin/model/model.h"

using namespace standin;

namespace {

template <class Body>
int on_attached(const char *function, int unit, Body &&body) {
    if (const int fault = fault_check(function); fault != BCM_E_NONE) return fault;
    const std::lock_guard<std::mutex> guard(model_lock());
    Device *const device = device_table().find(unit);
    return device == nullptr ? BCM_E_UNIT : body(*device);
}

template <class Body>
int on_ready(const char *function, int unit, Body &&body) {
    return on_attached(function, unit, [&](Device &device) {
        return device.stage == ChipStage::kReady ? body(device) : BCM_E_INIT;
    });
}

int reset_chip(Device &device, ChipStage stage) {
    if (!device.mapped) return BCM_E_INIT;
    if (device.in_use()) return BCM_E_BUSY;
    device.renew_chip();
    device.stage = stage;
    return BCM_E_NONE;
}

void stop_diagnostics(Device &device) {
    device.diag_api_up = device.diag_stacking_up = device.diag_queueing_up = false;
}

int start_application(Device &device) {
    if (device.application_up) return BCM_E_EXISTS;
    device.application_up = true;
    return BCM_E_NONE;
}

int start_diag_api(const char *function, int unit, int devices) {
    return on_ready(function, unit, [&](Device &device) {
        if (devices < 0) return BCM_E_PARAM;
        device.diag_api_up = true;
        return BCM_E_NONE;
    });
}

int start_diag_part(const char *function, int unit, bool Device::*part) {
    return on_ready(function, unit, [&](Device &device) {
        if (!device.diag_api_up) return BCM_E_INIT;
        device.*part = true;
        return BCM_E_NONE;
    });
}

}  // namespace

extern "C" {

int soc_init(int unit) {
    return on_attached(__func__, unit,
                       [](Device &device) { return reset_chip(device, ChipStage::kReady); });
}

int soc_reset_init(int unit) {
    return on_attached(__func__, unit,
                       [](Device &device) { return reset_chip(device, ChipStage::kReset); });
}

int soc_misc_init(int unit) {
    return on_attached(__func__, unit, [](Device &device) {
        if (device.stage == ChipStage::kAttached) return BCM_E_INIT;
        device.stage = ChipStage::kReady;
        return BCM_E_NONE;
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
        if (device.system_up) return BCM_E_EXISTS;
        device.system_up = true;
        return BCM_E_NONE;
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
        if (init_param == nullptr) return BCM_E_PARAM;
        return init_param->no_init != 0 ? BCM_E_NONE : start_application(device);
    });
}

int appl_dcmn_deinit(int unit, appl_dcmn_init_param_t *init_param) {
    return on_ready(__func__, unit, [&](Device &device) {
        if (init_param == nullptr) return BCM_E_PARAM;
        if (init_param->no_deinit != 0) return BCM_E_NONE;
        if (!device.application_up) return BCM_E_INIT;
        device.application_up = false;
        stop_diagnostics(device);
        return BCM_E_NONE;
    });
}

int appl_dpp_bcm_diag_init(int unit, appl_dcmn_init_param_t *init_param) {
    return start_diag_api(__func__, unit, init_param == nullptr ? -1 : init_param->nof_devices);
}

int appl_dpp_bcm_diag_init_py(int unit, int nof_devices, int mymodid, int cosq_disable) {
    const bool good = mymodid >= 0 && cosq_disable >= 0;
    return start_diag_api(__func__, unit, good ? nof_devices : -1);
}

int appl_dpp_stk_diag_init(int unit) {
    return start_diag_part(__func__, unit, &Device::diag_stacking_up);
}

int appl_dpp_cosq_diag_init(int unit) {
    return start_diag_part(__func__, unit, &Device::diag_queueing_up);
}

int bcm_attach(int unit, char *, char *, int) {
    return on_ready(__func__, unit, [](Device &) { return BCM_E_NONE; });
}

int bcm_attach_check(int unit) {
    return on_attached(__func__, unit, [](Device &) { return BCM_E_NONE; });
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
