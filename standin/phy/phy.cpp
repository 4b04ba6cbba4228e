// A PHY at its first day, and the port behind an argument.
#include "standin/phy/phy.h"

namespace standin {

void Phy::reset() {
    Phy fresh;
    fresh.address = address;
    fresh.internal_address = internal_address;
    fresh.default_reset = default_reset;
    *this = std::move(fresh);
}

Phys::Phys() {
    for (std::size_t port = 0; port < ports.size(); ++port) {
        ports[port].address = static_cast<std::uint16_t>(port);
        ports[port].internal_address = static_cast<std::uint16_t>(kInternalPhys + port);
    }
}

int translated(int unit, soc_port_t port) {
    // Called without the lock: it is the caller's own function.
    const auto translate = soc_phy_cb_xlate_port_func;
    int other = port;  // which a translation that fails may have changed
    return translate == nullptr || translate(unit, &other) < 0 ? port : other;
}

}  // namespace standin
