// The calls on the device table and on what the platform around the chips is told.
#include <climits>
#include <functional>

#include "helper/device.h"
#include "helper/platform.h"
#include "sdk/soc/init.h"
#include "standin/chapters/hooks.h"
#include "standin/chapters/packet_book.h"
#include "standin/chapters/packet_run.h"
#include "standin/model/device_table.h"
#include "standin/model/model.h"

using namespace standin;

namespace {

// What reading an identity gives where there is no chip.
constexpr std::uint32_t kNoChip = 0xffffffff;

std::uint32_t chip_id(ChipKind kind) {
    return kind == ChipKind::kFap ? 0xa110 : kind == ChipKind::kFe ? 0xa120 : 0xa100;
}

// A call that has no status and, with a fault injected, does nothing.
template <class Body>
void on_platform(const char *function, Body &&body) {
    if (fault_check(function) != BCM_E_NONE) return;
    const std::lock_guard<std::mutex> guard(model_lock());
    body(platform());
}

int add_device(const char *function, const PciAddress &address, ChipKind kind, bool fake,
               bool mapped) {
    if (const int fault = fault_check(function); fault != BCM_E_NONE) return fault;
    const std::lock_guard<std::mutex> guard(model_lock());
    return platform().shutting_down ? int{BCM_E_DISABLED}
                                    : device_table().add(address, kind, fake, mapped);
}

template <class Body>
void on_device(const char *function, int unit, Body &&body) {
    on_platform(function, [&](Platform &) {
        if (Device *const device = device_table().find(unit)) body(*device);
    });
}

// The value told for the time on standby if that is now, else the chip's own.
std::uint32_t identity(const char *function, int unit,
                       std::array<std::optional<std::uint32_t>, kMaxUnits> Platform::*told,
                       std::uint32_t (*own)(const Device &)) {
    std::uint32_t value = kNoChip;
    on_platform(function, [&](Platform &all) {
        if (all.standby_sup && within(unit, 0, kMaxUnits - 1)) {
            const auto &standby = (all.*told)[static_cast<std::size_t>(unit)];
            if (standby) {
                value = *standby;
                return;
            }
        }
        if (const Device *const device = device_table().find(unit)) value = own(*device);
    });
    return value;
}

}  // namespace

extern "C" {

int addOmbraDevice(uint16 domain, uint8 bus, uint8 slot, uint8 function) {
    return add_device(__func__, {domain, bus, slot, function}, ChipKind::kSwitch, false, true);
}

int addOmbraFapDeviceUnmapped(uint16 domain, uint8 bus, uint8 slot, uint8 function,
                              uint32 is_fake) {
    return add_device(__func__, {domain, bus, slot, function}, ChipKind::kFap, is_fake != 0, false);
}

int addOmbraFeDeviceUnmapped(uint16 domain, uint8 bus, uint8 slot, uint8 function, uint32 is_fake) {
    return add_device(__func__, {domain, bus, slot, function}, ChipKind::kFe, is_fake != 0, false);
}

void mapOmbraDevice(int unit) {
    on_device(__func__, unit, [](Device &device) {
        device.mapped = true;
        device.mapped_at = device.address;
    });
}

void unmapOmbraDevice(int unit) {
    on_device(__func__, unit, [](Device &device) { device.mapped = false; });
}

void rewireOmbraDeviceRemap(int unit, uint16 domain, uint8 bus, uint8 slot, uint8 function) {
    on_platform(__func__, [&](Platform &) {
        device_table().rewire(unit, {domain, bus, slot, function}, true);
    });
}

void rewireOmbraDeviceNoRemap(int unit, uint16 domain, uint8 bus, uint8 slot, uint8 function) {
    on_platform(__func__, [&](Platform &) {
        device_table().rewire(unit, {domain, bus, slot, function}, false);
    });
}

// On standby, the number told for that time.
int getNumDevices(void) {
    int count = 0;
    on_platform(__func__, [&](Platform &all) {
        count = device_table().size();
        if (all.standby_sup && all.standby_devices) count = static_cast<int>(*all.standby_devices);
    });
    return count;
}

U32 getDevId(int unit) {
    return identity(__func__, unit, &Platform::standby_device_id,
                    [](const Device &device) { return chip_id(device.kind); });
}

U32 getDevRev(int unit) {
    return identity(__func__, unit, &Platform::standby_revision,
                    [](const Device &) { return std::uint32_t{0x11}; });
}

void standbySupIs(bool standby) {
    on_platform(__func__, [&](Platform &all) { all.standby_sup = standby; });
}

void standbyDevIdIs(int unit, U32 devId) {
    if (!within(unit, 0, kMaxUnits - 1)) return;
    on_platform(__func__, [&](Platform &all) {
        all.standby_device_id[static_cast<std::size_t>(unit)] = devId;
    });
}

void standbyRevIdIs(int unit, U32 revId) {
    if (!within(unit, 0, kMaxUnits - 1)) return;
    on_platform(__func__, [&](Platform &all) {
        all.standby_revision[static_cast<std::size_t>(unit)] = revId;
    });
}

void standbyNumDevicesIs(U32 numDevices) {
    on_platform(__func__, [&](Platform &all) { all.standby_devices = numDevices; });
}

void ssoIs(bool sso) {
    on_platform(__func__, [&](Platform &all) { all.sso = sso; });
}

void isShuttingDownIs(bool shuttingDown) {
    on_platform(__func__, [&](Platform &all) { all.shutting_down = shuttingDown; });
}

void setOmbraAgentName(char *name) {
    on_platform(__func__, [&](Platform &all) { all.agent_name = name == nullptr ? "" : name; });
}

void maskDeviceInterrupts(uint8 bus) {
    on_platform(__func__, [&](Platform &all) { all.masked_buses.insert(bus); });
}

void disconnectInterruptsToDevices(void) {
    on_platform(__func__, [](Platform &all) { all.interrupts_connected = false; });
}

int KorvelBasicInit(void) { return fault_check(__func__); }

int KorvelInit(tridentPortMap_t *portMap, int numPorts) {
    if (const int fault = fault_check(__func__); fault != BCM_E_NONE) return fault;
    if (!within(numPorts, 0, kFrontPorts) || (portMap == nullptr && numPorts > 0))
        return BCM_E_PARAM;
    const std::lock_guard<std::mutex> guard(model_lock());
    std::vector<int> &speeds = platform().port_speeds;
    speeds.clear();
    for (int i = 0; i < numPorts; ++i) speeds.push_back(portMap[i].speed);
    return BCM_E_NONE;
}

int sysconf_attach(int pci_device_n) {
    if (const int fault = fault_check(__func__); fault != BCM_E_NONE) return fault;
    const std::lock_guard<std::mutex> guard(model_lock());
    return device_table().find(pci_device_n) == nullptr ? BCM_E_NOT_FOUND : BCM_E_NONE;
}

void standin_reset(void) {
    leave_all();
    const std::lock_guard<std::mutex> guard(model_lock());
    device_table().clear();
    forget_packets();
    platform() = Platform{};
}

int standin_platform_value(const char *name) {
    const std::string_view wanted = name == nullptr ? "" : name;
    const std::lock_guard<std::mutex> guard(model_lock());
    const Platform &all = platform();
    if (wanted == "standby_sup") return all.standby_sup;
    if (wanted == "sso") return all.sso;
    if (wanted == "shutting_down") return all.shutting_down;
    if (wanted == "interrupts") return all.interrupts_connected;
    if (wanted == "ports") return static_cast<int>(all.port_speeds.size());
    return -1;
}

const char *standin_agent_name(void) {
    const std::lock_guard<std::mutex> guard(model_lock());
    return platform().agent_name.c_str();
}

const char *standin_last_refusal(void) {
    thread_local std::string told;
    told = last_refusal();
    return told.c_str();
}

}  // extern "C"
