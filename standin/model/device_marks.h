// What a device keeps besides its chip: who watches it, and what the start of its application was
// told.
#pragma once
#include "standin/model/device_table.h"

namespace standin {

struct DeviceMarks {
    Events watchers;
    bool no_stacking = false;
    bool no_queueing = false;
    bool no_interrupts = false;
};

inline DeviceMarks &marks_of(Device &device) { return device.layers.of<DeviceMarks>(); }

}  // namespace standin
