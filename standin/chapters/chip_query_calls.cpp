// Queries of the chip layer: where a port is, and what the chip was built with.
//
// Ports 1 to 32 are on core 0, the others on core 1; the number of a port is also its number in
// the traffic manager and its first PHY port.
#include "helper/platform.h"
#include "sdk/soc/chip.h"
#include "standin/chapters/port_access.h"

using namespace standin;

namespace {

template <class Body>
int on_number(const char *function, int unit, int port, Body &&body) {
    return on_switch(function, unit, [&](Switch &) {
        const int number = local_port(port);
        return number < 0 ? BCM_E_PORT : body(number);
    });
}

}  // namespace

extern "C" {

int soc_port_sw_db_core_get(int unit, int port, int *core) {
    return on_number(__func__, unit, port, [&](int number) { return give(core, core_of(number)); });
}

int soc_port_sw_db_local_to_tm_port_get(int unit, int port, uint32 *tm_port, int *core) {
    return on_number(__func__, unit, port, [&](int number) {
        if (tm_port == nullptr) return BCM_E_PARAM;
        *tm_port = static_cast<uint32>(number);
        return give(core, core_of(number));
    });
}

int soc_port_sw_db_first_phy_port_get(int unit, int port, uint32 *phy_port) {
    return on_number(__func__, unit, port, [&](int number) { return give(phy_port, number); });
}

// No port is one of four on a lane, so there is no offset to remove.
int soc_jer_qsgmii_offsets_remove(int unit, uint32 phy, uint32 *new_phy) {
    return on_switch(__func__, unit, [&](Switch &) { return give(new_phy, phy); });
}

int soc_jer_egr_port2egress_offset(int unit, int core, uint32 tm_port, uint32 *egr_if) {
    return on_switch(__func__, unit, [&](Switch &) {
        if (!within(core, 0, 1) || tm_port > kFrontPorts) return BCM_E_PARAM;
        return give(egr_if, tm_port);
    });
}

int soc_ftmh_cfg_get(int unit, int *p_cfg_ftmh_lb_key_ext_en, int *p_cfg_ftmh_stacking_ext_enable) {
    return on_switch(__func__, unit, [&](Switch &) {
        if (p_cfg_ftmh_lb_key_ext_en == nullptr) return BCM_E_PARAM;
        *p_cfg_ftmh_lb_key_ext_en = 0;
        return give(p_cfg_ftmh_stacking_ext_enable, 0);
    });
}

// No block can be switched off.
uint8 block_can_be_disabled(soc_block_type_t) { return 0; }
uint8 blocks_can_be_disabled(soc_block_types_t) { return 0; }

// 256 ports to a device.
uint32 fapToSystemPhyPortId(uint32 fapId, uint32 fapPortId) { return fapId * 256 + fapPortId; }

int korvel_soc_jer_fqp_pqp_new_algo_enable_get(int unit) {
    const int status = unit_status(unit);
    return status == BCM_E_NONE ? 0 : status;
}

}  // extern "C"
