// The device table, and the lock under which all of the model stands.
#include "standin/model/device_table.h"

#include "standin/model/device_marks.h"
#include "standin/model/model.h"
#include "standin/model/rehearsal.h"

namespace standin {

int DeviceTable::add(const PciAddress &address, ChipKind kind, bool fake, bool mapped) {
    if (find(address) != nullptr) return BCM_E_EXISTS;
    if (size() == kMaxUnits) return BCM_E_FULL;
    const int unit = size();
    auto device = std::make_unique<Device>();
    device->unit = unit;
    device->chip->unit = unit;
    device->address = address;
    device->mapped_at = address;
    device->kind = kind;
    device->fake = fake;
    device->mapped = mapped;
    device->control.attach(unit);
    devices_.push_back(std::move(device));
    return unit;
}

Device *DeviceTable::find(int unit) {
    if (unit < 0 || unit >= size()) return nullptr;
    return devices_[static_cast<std::size_t>(unit)].get();
}

Device *DeviceTable::find(const PciAddress &address) {
    for (const auto &device : devices_)
        if (device->address == address) return device.get();
    return nullptr;
}

int DeviceTable::rewire(int unit, const PciAddress &address, bool remap) {
    Device *const device = find(unit);
    if (device == nullptr) return BCM_E_UNIT;
    Device *const holder = find(address);
    if (holder != nullptr && holder != device) return BCM_E_EXISTS;
    device->address = address;
    if (remap) {
        device->mapped = true;
        device->mapped_at = address;
    }
    return BCM_E_NONE;
}

void Device::renew_chip() {
    chip = std::make_unique<Switch>();
    chip->unit = unit;
}

bool interrupts_reach(int unit) {
    Device *const device = device_table().find(unit);
    const Platform &all = platform();
    return device != nullptr && !marks_of(*device).no_interrupts && all.interrupts_connected &&
           !all.shutting_down && !all.masked_buses.contains(device->address.bus);
}

DeviceTable &device_table() {
    // Never destroyed: native threads may still call while the process ends.
    static DeviceTable &table = *new DeviceTable;
    return table;
}

Platform &platform() {
    static Platform &state = *new Platform;
    return state;
}

std::mutex &model_lock() {
    static std::mutex &lock = *new std::mutex;
    return lock;
}

Switch &chip_of(Device &device) {
    Switch *const other = Rehearsal::chip_of(device.unit);
    return other != nullptr ? *other : *device.chip;
}

Switch *ready_switch(int unit, int &status) {
    Device *const device = device_table().find(unit);
    if (device == nullptr) {
        status = BCM_E_UNIT;
        return nullptr;
    }
    status = device->stage == ChipStage::kReady ? BCM_E_NONE : BCM_E_INIT;
    return status == BCM_E_NONE ? &chip_of(*device) : nullptr;
}

int unit_status(int unit) {
    const std::lock_guard<std::mutex> guard(model_lock());
    int status = BCM_E_NONE;
    ready_switch(unit, status);
    return status;
}

}  // namespace standin
