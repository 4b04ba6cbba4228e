// The devices of the process, by PCI address, and what the platform has told about itself.
//
// A unit is an index of this table: the n-th device added is unit n, and stays it; no call
// removes a device. All of it stands under the model's lock.
#pragma once
#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "standin/model/slots.h"
#include "standin/model/soc_control.h"
#include "standin/model/switch.h"

namespace standin {

constexpr int kMaxUnits = 66;

struct PciAddress {
    std::uint16_t domain = 0;
    std::uint8_t bus = 0;
    std::uint8_t slot = 0;
    std::uint8_t function = 0;

    bool operator==(const PciAddress &) const = default;
};

enum class ChipKind : std::uint8_t { kSwitch, kFap, kFe };

// How far the chip of a device has been started; each step needs the one before it.
enum class ChipStage : std::uint8_t {
    kAttached,  // in the table
    kReset,     // after soc_reset_init
    kReady      // after soc_misc_init, or soc_init, which does both: the API answers
};

struct Device {
    PciAddress address;
    ChipKind kind = ChipKind::kSwitch;
    bool fake = false;  // no hardware behind it; it maps and starts like any other
    bool mapped = false;
    int unit = -1;
    PciAddress mapped_at;  // where the mapping points, which a rewire may leave behind
    ChipStage stage = ChipStage::kAttached;
    bool system_up = false;
    bool application_up = false;
    bool diag_api_up = false;  // appl_dpp_bcm_diag_init; the stacking and queueing ones need it
    bool diag_stacking_up = false;
    bool diag_queueing_up = false;
    std::unique_ptr<Switch> chip = std::make_unique<Switch>();
    ControlRecord control;
    Slots layers;  // what stays when the chip is reset

    // A layer stands on the chip, which therefore may neither be reset nor go away.
    bool in_use() const { return system_up || application_up; }

    // Gives the chip its state of the first day.
    void renew_chip();
};

// What `<thing>Is` calls and the rest of the platform start leave behind.
struct Platform {
    bool standby_sup = false;
    bool sso = false;
    bool shutting_down = false;
    bool interrupts_connected = true;
    std::set<int> masked_buses;
    std::string agent_name;
    std::optional<std::uint32_t> standby_devices;
    std::array<std::optional<std::uint32_t>, kMaxUnits> standby_device_id;
    std::array<std::optional<std::uint32_t>, kMaxUnits> standby_revision;
    std::vector<int> port_speeds;  // of the port map, front port 1 first; 0 keeps the default
};

class DeviceTable {
  public:
    // Adds a device, mapped or not. The unit; BCM_E_EXISTS: the address is in the table;
    // BCM_E_FULL: there are 66 devices.
    int add(const PciAddress &address, ChipKind kind, bool fake, bool mapped);

    // Null for a number that is no unit.
    Device *find(int unit);
    Device *find(const PciAddress &address);

    // Moves a unit to an address that no other unit has; BCM_E_UNIT, BCM_E_EXISTS.
    int rewire(int unit, const PciAddress &address, bool remap);

    int size() const { return static_cast<int>(devices_.size()); }
    void clear() { devices_.clear(); }

  private:
    std::vector<std::unique_ptr<Device>> devices_;
};

// The chip of a device, or the one that takes its place in a rehearsal on this thread.
Switch &chip_of(Device &device);

// REQUIRES, of all: the model's lock is held.
DeviceTable &device_table();
Platform &platform();
// Whether an interrupt of the unit reaches us: those of its bus may be masked, or all cut.
bool interrupts_reach(int unit);

}  // namespace standin
