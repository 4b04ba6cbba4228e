// Names, numbers and addresses of PHYs.
#include <algorithm>
#include <cstring>

#include "sdk/soc/phy.h"
#include "sdk/soc/phyctrl.h"
#include "standin/model/device_table.h"
#include "standin/phy/external.h"
#include "standin/phy/identity.h"
#include "standin/phy/standard_registers.h"

using namespace standin;

namespace {

constexpr std::uint16_t kNothing = 0xffff;  // what a number of a PHY is where there is none
constexpr sal_usecs_t kNegotiationTimeout = 250'000;
// Flags of the calls on addresses.
constexpr int kInternalAddress = 1;

char internal_name[] = "standin serdes";
char external_name[] = "standin external";

bool has_external(int unit, int port) {
    return accessors().has(static_cast<std::uint32_t>(unit), static_cast<std::uint16_t>(port));
}

char *name_of(const char *function, int unit, soc_port_t port) {
    char *name = nullptr;
    on_phy(function, unit, port, [&](const PhyView &view) {
        name = has_external(unit, view.number) ? external_name : internal_name;
        return BCM_E_NONE;
    });
    return name;
}

// A number of a PHY, `value(view)`.
template <class T, class Value>
T number_of(const char *function, int unit, soc_port_t port, T otherwise, Value &&value) {
    T number = otherwise;
    on_phy(function, unit, port, [&](const PhyView &view) {
        number = value(view);
        return BCM_E_NONE;
    });
    return number;
}

char *new_text(const char *text) {
    char *const made = new char[std::strlen(text) + 1];
    std::strcpy(made, text);
    return made;
}

}  // namespace

namespace standin {

void fill_info(const Phy &phy, int port, soc_phy_info_t &info) {
    const bool named = info.phy_name != nullptr && std::strcmp(info.phy_name, internal_name) == 0;
    char *const name = named ? info.phy_name : new_text(internal_name);
    info = {};
    info.phy_id0 = kIdHigh;
    info.phy_id1 = kIdLow;
    info.phy_addr = phy.address;
    info.phy_addr_int = phy.internal_address;
    info.phy_name = name;
    info.phy_flags = is_large(port) ? 1 : 0;
    info.an_timeout = kNegotiationTimeout;
}

}  // namespace standin

extern "C" {

// Null where there is no PHY with a driver at work.
char *soc_phyctrl_drv_name(int unit, soc_port_t port) { return name_of(__func__, unit, port); }
char *soc_phy_name_get(int unit, soc_port_t port) { return name_of(__func__, unit, port); }

// BCM_E_PARAM, with nothing written, where `len` bytes are too few.
int soc_phyctrl_drv_name_get(int unit, soc_port_t port, char *name, int len) {
    return on_phy(__func__, unit, port, [&](const PhyView &view) {
        const char *const text = has_external(unit, view.number) ? external_name : internal_name;
        const std::size_t size = std::strlen(text) + 1;
        if (name == nullptr || len < 0 || static_cast<std::size_t>(len) < size) return BCM_E_PARAM;
        std::memcpy(name, text, size);
        return BCM_E_NONE;
    });
}

int soc_phy_info_get(int unit, soc_port_t port, soc_phy_info_t *pi) {
    Accessor external;
    const int status = on_phy(__func__, unit, port, [&](const PhyView &view) {
        if (pi == nullptr) return BCM_E_PARAM;
        fill_info(view.phy, view.number, *pi);
        external = find_external(unit, view.number);
        return BCM_E_NONE;
    });
    if (!external) return status;
    pi->phy_id0 = identity_external(external, 2);
    pi->phy_id1 = identity_external(external, 3);
    return status;
}

// An identifier of the PHY that is nearest to the wire.
static uint16 identity_of(const char *function, int unit, soc_port_t port, unsigned number) {
    Accessor external;
    const uint16 own = number_of(function, unit, port, kNothing, [&](const PhyView &view) {
        external = find_external(unit, view.number);
        return number == 2 ? kIdHigh : kIdLow;
    });
    return external ? identity_external(external, number) : own;
}

uint16 soc_phy_id0reg_get(int unit, soc_port_t port) {
    return identity_of(__func__, unit, port, 2);
}

// On standby, the version that the platform told of the external PHY, if it did.
uint16 soc_phy_id1reg_get(int unit, soc_port_t port) {
    std::optional<std::uint16_t> told;
    const int status = on_phy(__func__, unit, port, [&](const PhyView &view) {
        if (platform().standby_sup)
            told = accessors().version(static_cast<std::uint32_t>(unit),
                                       static_cast<std::uint16_t>(view.number));
        return BCM_E_NONE;
    });
    if (status < 0) return kNothing;
    return told ? *told : identity_of(__func__, unit, port, 3);
}

// All PHYs are addressed by device and register.
int soc_phy_is_c45_miim(int unit, soc_port_t port) {
    return number_of(__func__, unit, port, 0, [](const PhyView &) { return 1; });
}

uint16 soc_phy_addr_of_port(int unit, soc_port_t port) {
    return number_of(__func__, unit, port, kNothing,
                     [](const PhyView &view) { return view.phy.address; });
}

uint16 soc_phy_addr_int_of_port(int unit, soc_port_t port) {
    return number_of(__func__, unit, port, kNothing,
                     [](const PhyView &view) { return view.phy.internal_address; });
}

// The port with that address, of its external PHY before any internal one; -1 if none has it.
soc_port_t soc_phy_addr_to_port(int unit, uint16 phy_id) {
    soc_port_t found = -1;
    on_switch(__func__, unit, [&](Switch &chip) {
        const auto &ports = phys_of(chip).ports;
        for (auto address : {&Phy::address, &Phy::internal_address}) {
            const auto at = std::ranges::find(ports, phy_id, address);
            if (at == ports.end()) continue;
            found = static_cast<soc_port_t>(at - ports.begin());
            break;
        }
        return BCM_E_NONE;
    });
    return found;
}

// `flags` 0 is the external address, 1 the internal one.
int soc_phy_cfg_addr_set(int unit, soc_port_t port, int flags, uint16 addr) {
    return on_phy(__func__, unit, port, [&](PhyView &view) {
        if (!within(flags, 0, kInternalAddress) || addr > kLastPhyAddress) return BCM_E_PARAM;
        (flags == 0 ? view.phy.address : view.phy.internal_address) = addr;
        return BCM_E_NONE;
    });
}

int soc_phy_cfg_addr_get(int unit, soc_port_t port, int flags, uint16 *addr_ptr) {
    return on_phy(__func__, unit, port, [&](const PhyView &view) {
        if (!within(flags, 0, kInternalAddress)) return BCM_E_PARAM;
        return give(addr_ptr, flags == 0 ? view.phy.address : view.phy.internal_address);
    });
}

sal_usecs_t soc_phy_an_timeout_get(int unit, soc_port_t port) {
    return number_of(__func__, unit, port, sal_usecs_t{0},
                     [](const PhyView &) { return kNegotiationTimeout; });
}

// Whether the PHY is configured as master, and whether it is one now, which needs a link.
int soc_phy_boot_master_get(int unit, soc_port_t port, int *bm, int *cm) {
    return on_phy(__func__, unit, port, [&](const PhyView &view) {
        if (bm == nullptr || cm == nullptr) return BCM_E_PARAM;
        *bm = view.port.master != 0;
        return give(cm, view.port.master != 0 && view.port.link() != 0);
    });
}

// The clock on the MDIO bus is the core's, times `dividend`, by `divisor`.
int soc_cmic_rate_param_set(int unit, int dividend, int divisor) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        if (!within(dividend, 1, 0xffff) || !within(divisor, 1, 0xffff)) return BCM_E_PARAM;
        phys_of(chip).dividend = dividend;
        phys_of(chip).divisor = divisor;
        return BCM_E_NONE;
    });
}

int soc_cmic_rate_param_get(int unit, int *dividend, int *divisor) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        if (dividend == nullptr || divisor == nullptr) return BCM_E_PARAM;
        *dividend = phys_of(chip).dividend;
        return give(divisor, phys_of(chip).divisor);
    });
}

}  // extern "C"
