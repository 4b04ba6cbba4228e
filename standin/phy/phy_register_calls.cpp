// Registers of PHYs, of 16 bits.
//
// An address of the plain calls has the register in its lower half and, for an external PHY, the
// device in its upper half. Those calls reach the external PHY if the port has one, through its
// accessor and without any lock; else, or with the flag kInternal, lane 0 of the internal PHY.
#include <algorithm>

#include "sdk/soc/phyctrl.h"
#include "standin/phy/external.h"
#include "standin/phy/standard_registers.h"

using namespace standin;

namespace {

constexpr uint32 kInternal = 1;
constexpr uint32 kWidest = 0xffff;

// Carries out `internal(view)` under the lock, or, where the external PHY is meant, only finds its
// accessor.
template <class Internal>
int on_either(const char *function, int unit, soc_port_t port, uint32 flags, Accessor &external,
              Internal &&internal) {
    return on_phy(function, unit, port, [&](PhyView &view) {
        if ((flags & kInternal) == 0) external = find_external(unit, view.number);
        return external ? BCM_E_NONE : internal(view);
    });
}

template <class Body>
int on_lane(const char *function, int unit, soc_port_t port, int lane, Body &&body) {
    return on_phy(function, unit, port, [&](PhyView &view) {
        return within(lane, 0, lanes_of(view.number) - 1) ? body(view) : BCM_E_PARAM;
    });
}

}  // namespace

extern "C" {

int soc_phyctrl_reg_read(int unit, soc_port_t port, uint32 flags, uint32 addr, uint32 *data) {
    Accessor external;
    const int status = on_either(__func__, unit, port, flags, external, [&](PhyView &view) {
        return give(data, data == nullptr ? 0 : read_internal(view, 0, addr));
    });
    if (status < 0 || !external) return status;
    return data == nullptr ? BCM_E_PARAM : external_read(external, addr, *data);
}

int soc_phyctrl_reg_write(int unit, soc_port_t port, uint32 flags, uint32 addr, uint32 data) {
    Accessor external;
    const int status = on_either(__func__, unit, port, flags, external, [&](PhyView &view) {
        if (data > kWidest) return BCM_E_PARAM;
        write_internal(view, 0, addr, static_cast<std::uint16_t>(data));
        return BCM_E_NONE;
    });
    if (status < 0 || !external) return status;
    return data > kWidest ? BCM_E_PARAM : external_write(external, addr, data);
}

// Puts the bits of `data` that are in `mask`.
int soc_phyctrl_reg_modify(int unit, soc_port_t port, uint32 flags, uint32 addr, uint32 data,
                           uint32 mask) {
    if ((data & mask) > kWidest) return BCM_E_PARAM;
    Accessor external;
    int status = on_either(__func__, unit, port, flags, external, [&](PhyView &view) {
        const uint32 old = read_internal(view, 0, addr);
        write_internal(view, 0, addr, static_cast<std::uint16_t>((old & ~mask) | (data & mask)));
        return BCM_E_NONE;
    });
    if (status < 0 || !external) return status;
    uint32 old = 0;
    status = external_read(external, addr, old);
    return status < 0 ? status : external_write(external, addr, (old & ~mask) | (data & mask));
}

int soc_phyctrl_lane_reg_read(int unit, soc_port_t port, int lane, uint32, uint32 addr,
                              uint32 *data) {
    return on_lane(__func__, unit, port, lane, [&](PhyView &view) {
        return give(data, data == nullptr ? 0 : read_internal(view, lane, addr));
    });
}

int soc_phyctrl_lane_reg_write(int unit, soc_port_t port, int lane, uint32, uint32 addr,
                               uint32 data) {
    return on_lane(__func__, unit, port, lane, [&](PhyView &view) {
        if (data > kWidest) return BCM_E_PARAM;
        write_internal(view, lane, addr, static_cast<std::uint16_t>(data));
        return BCM_E_NONE;
    });
}

// The low bytes of up to `max_size` registers of one device, from `offset` on. A failure in their
// midst is the status, and `*actual_size` tells how many bytes came before it.
int soc_phyctrl_port_phy_multi_get(int unit, soc_port_t port, uint32 flags, uint32 dev_addr,
                                   uint32 offset, int max_size, uint8 *data, int *actual_size) {
    if (max_size < 0 || (max_size > 0 && data == nullptr) || actual_size == nullptr ||
        dev_addr > kWidest || offset > kWidest ||
        static_cast<uint32>(max_size) > kWidest + 1 - offset) {
        return BCM_E_PARAM;
    }
    const uint32 first = dev_addr << 16 | offset;
    *actual_size = 0;
    Accessor external;
    int status = on_either(__func__, unit, port, flags, external, [&](PhyView &view) {
        for (; *actual_size < max_size; ++*actual_size) {
            const uint32 address = first + static_cast<uint32>(*actual_size);
            data[*actual_size] = static_cast<uint8>(read_internal(view, 0, address));
        }
        return BCM_E_NONE;
    });
    for (; status >= 0 && external && *actual_size < max_size; ++*actual_size) {
        uint32 value = 0;
        status = external_read(external, first + static_cast<uint32>(*actual_size), value);
        if (status < 0) break;
        data[*actual_size] = static_cast<uint8>(value);
    }
    return status;
}

// The registers that PHYs share which sit behind one primary port.
int soc_phyctrl_toplvl_reg_read(int unit, soc_port_t port, soc_port_t primary_port,
                                uint8 reg_offset, uint16 *data) {
    return on_phy(__func__, unit, port, [&](PhyView &view) {
        const int primary = local_port(primary_port);
        if (primary < 0) return BCM_E_PORT;
        const auto &shared = view.all.ports[static_cast<std::size_t>(primary)].top_registers;
        const auto found = shared.find(reg_offset);
        return give(data, found == shared.end() ? std::uint16_t{0} : found->second);
    });
}

int soc_phyctrl_toplvl_reg_write(int unit, soc_port_t port, soc_port_t primary_port,
                                 uint8 reg_offset, uint16 data) {
    return on_phy(__func__, unit, port, [&](PhyView &view) {
        const int primary = local_port(primary_port);
        if (primary < 0) return BCM_E_PORT;
        auto &shared = view.all.ports[static_cast<std::size_t>(primary)].top_registers;
        shared[reg_offset] = data;
        return BCM_E_NONE;
    });
}

// Loads a piece of firmware at `offset`, which may not leave a gap.
int soc_phyctrl_firmware_set(int unit, soc_port_t port, uint32, int offset, uint8 *array, int len) {
    constexpr int most = 1 << 20;
    return on_phy(__func__, unit, port, [&](PhyView &view) {
        std::vector<std::uint8_t> &firmware = view.phy.firmware;
        const int size = static_cast<int>(firmware.size());
        if (array == nullptr || !within(len, 1, most) || !within(offset, 0, size))
            return BCM_E_PARAM;
        if (offset > most - len) return BCM_E_FULL;
        firmware.resize(static_cast<std::size_t>(std::max(size, offset + len)));
        std::copy_n(array, len, firmware.begin() + offset);
        return BCM_E_NONE;
    });
}

}  // extern "C"
