// The driver of an external PHY, and how the scanner of links asks it.
#include "standin/phy/external.h"

#include "standin/model/rehearsal.h"
#include "standin/phy/standard_registers.h"

namespace standin {
namespace {

constexpr std::uint32_t kControl = kPma << 16;
constexpr std::uint32_t kStatus = kPma << 16 | 1;
constexpr std::uint32_t kNobody = 0xffff;
constexpr int kMostPolls = 16;

int change_control(const Accessor &external, std::uint32_t clear, std::uint32_t set) {
    std::uint32_t control = 0;
    const int status = external_read(external, kControl, control);
    return status < 0 ? status : external_write(external, kControl, (control & ~clear) | set);
}

bool has_external(int unit, int port) {
    return !Rehearsal::is_on() &&
           accessors().has(static_cast<std::uint32_t>(unit), static_cast<std::uint16_t>(port));
}

int read_link(int unit, int port, int *link) {
    const Accessor external = find_external(unit, port);
    return external ? link_external(external, *link) : int{BCM_E_NOT_FOUND};
}

void note_down(Switch &chip, int port) { phys_of(chip).fell[static_cast<std::size_t>(port)] = ~0u; }

// Set while the library is loaded.
[[maybe_unused]] const bool told = [] {
    outside_link = {has_external, read_link, note_down};
    return true;
}();

}  // namespace

Accessor find_external(int unit, int port) {
    if (Rehearsal::is_on()) return nullptr;
    return accessors().find(static_cast<std::uint32_t>(unit), static_cast<std::uint16_t>(port));
}

int external_read(const Accessor &external, std::uint32_t address, std::uint32_t &data) {
    std::uint16_t value = 0;
    const int status = external->read(address >> 16, address & 0xffff, &value);
    if (status == BCM_E_NONE) data = value;
    return status;
}

int external_write(const Accessor &external, std::uint32_t address, std::uint32_t data) {
    return external->write(address >> 16, address & 0xffff, static_cast<std::uint16_t>(data));
}

int probe_external(const Accessor &external) {
    std::uint32_t high = 0;
    std::uint32_t low = 0;
    int status = external_read(external, kPma << 16 | 2, high);
    if (status >= 0) status = external_read(external, kPma << 16 | 3, low);
    if (status < 0) return status;
    return high == kNobody && low == kNobody ? int{BCM_E_NOT_FOUND} : int{BCM_E_NONE};
}

int start_external(const Accessor &external) { return enable_external(external, true); }

int link_external(const Accessor &external, int &link) {
    std::uint32_t value = 0;
    int status = external_read(external, kStatus, value);
    if (status >= 0 && (value & kLinkBit) == 0) status = external_read(external, kStatus, value);
    if (status >= 0) link = (value & kLinkBit) != 0;
    return status;
}

int enable_external(const Accessor &external, bool enable) {
    return change_control(external, kLowPowerBit, enable ? 0 : kLowPowerBit);
}

int reset_external(const Accessor &external) {
    int status = change_control(external, 0, kResetBit);
    for (int i = 0; status >= 0 && i < kMostPolls; ++i) {
        std::uint32_t control = 0;
        status = external_read(external, kControl, control);
        if (status >= 0 && (control & kResetBit) == 0) return BCM_E_NONE;
    }
    return status < 0 ? status : int{BCM_E_TIMEOUT};
}

std::uint16_t identity_external(const Accessor &external, unsigned number) {
    std::uint32_t value = kNobody;
    external_read(external, kPma << 16 | number, value);
    return static_cast<std::uint16_t>(value);
}

}  // namespace standin
