// The driver of an external PHY: what it says on the MDIO bus, through the accessor of the port.
//
//     probe     reads both identifiers; a bus on which nobody answers reads as all ones
//     start     takes the PHY out of low power
//     link      reads the status twice, since the bit of the link latches a link that was down
//     enable    turns low power off, or on
//     reset     sets the reset bit, and waits until the PHY has cleared it
//
// All of it in the PMA of clause 45, and without a lock, since an accessor may call back. A failure
// of the accessor is the status.
#pragma once
#include <cstdint>

#include "standin/phy/accessors.h"
#include "standin/phy/phy.h"

namespace standin {

// Null where a port has no external PHY, and in a rehearsal, which nothing outside hears of.
Accessor find_external(int unit, int port);

// `address` has the device in its upper half.
int external_read(const Accessor &external, std::uint32_t address, std::uint32_t &data);
int external_write(const Accessor &external, std::uint32_t address, std::uint32_t data);

int probe_external(const Accessor &external);  // BCM_E_NOT_FOUND: nobody answers
int start_external(const Accessor &external);
int link_external(const Accessor &external, int &link);
int enable_external(const Accessor &external, bool enable);
int reset_external(const Accessor &external);  // BCM_E_TIMEOUT: the bit stays
// All ones where it could not be read. `number` is 2 or 3.
std::uint16_t identity_external(const Accessor &external, unsigned number);

// on_phy, or for `any` on_any_phy, with what is to be said to the external PHY before, if the port
// has one: `outside(accessor)`, whose failure is the status.
template <bool any = false, class Outside, class Body>
int with_external(const char *function, int unit, soc_port_t port, Outside &&outside, Body &&body) {
    const auto run = [&](auto &&what) {
        return any ? on_any_phy(function, unit, port, what) : on_phy(function, unit, port, what);
    };
    Accessor external;
    int status = run([&](PhyView &view) {
        external = find_external(unit, view.number);
        return external ? int{BCM_E_NONE} : int{body(view)};
    });
    if (status < 0 || !external) return status;
    status = outside(external);
    return status < 0 ? status : run([&](PhyView &view) { return int{body(view)}; });
}

}  // namespace standin
