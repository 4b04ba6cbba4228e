// The record of the application start: which of its fields are read, and which are not.
#pragma once
#include "sdk/diag/appl_types.h"

namespace standin {

// BCM_E_PARAM: no record, or a unit or a number of devices that cannot be; BCM_E_UNAVAIL: a field
// asks for what no start does. Those that are read are unit, nof_devices, no_init, no_deinit,
// no_appl, no_appl_stk, no_intr, modid and cosq_disable; those that only ask for less than a start
// does may have any value.
int check_start_record(int unit, const appl_dcmn_init_param_t *record);

}  // namespace standin
