// Asking the library for a unit's ports and their names.
#include "standin/text/unit_ports.h"

#include "sdk/bcm/port.h"
#include "sdk/constants.h"
#include "standin/base/scan.h"

namespace standin {

PortNames unit_ports(int unit) {
    PortNames names;
    bcm_port_config_t config{};
    if (bcm_port_config_get(unit, &config) != BCM_E_NONE) return names;
    PortSet all = port_set_of(config.all);
    for (int port = 0; port < kPortBits; ++port) {
        if (!all[static_cast<std::size_t>(port)]) continue;
        const char *name = bcm_port_name(unit, port);
        bool usable = name != nullptr && is_alpha(*name);
        names.push_back({port, usable ? name : std::to_string(port)});
    }
    return names;
}

}  // namespace standin
