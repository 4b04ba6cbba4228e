// The modes of the link scanner. A port has one, however it was set.
#include "sdk/bcm/linkscan.h"

#include "standin/chapters/port_access.h"

using namespace standin;

extern "C" {

int bcm_linkscan_mode_set(int unit, bcm_port_t port, int mode) {
    return set_port_field(__func__, unit, port, &Port::linkscan, mode, 0,
                          BCM_LINKSCAN_MODE_COUNT - 1);
}

int bcm_linkscan_mode_get(int unit, bcm_port_t port, int *mode) {
    return get_port_field(__func__, unit, port, &Port::linkscan, mode);
}

int bcm_linkscan_mode_set_pbm(int unit, bcm_pbmp_t pbm, int mode) {
    return on_switch(__func__, unit, [&](Switch &chip) {
        if (!is_subset(pbm, kAllPorts)) return refused_ports(pbm);
        if (!within(mode, 0, BCM_LINKSCAN_MODE_COUNT - 1)) return BCM_E_PARAM;
        for (int number = 0; number < kPorts; ++number)
            if (has_port(pbm, number)) chip.ports.find(number)->linkscan = mode;
        return BCM_E_NONE;
    });
}

}  // extern "C"
