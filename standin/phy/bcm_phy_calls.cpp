// The calls of the port chapter on PHYs: the same PHYs, by ports and global port numbers.
#include "sdk/bcm/port.h"
#include "sdk/soc/phy.h"
#include "sdk/soc/phyctrl.h"
#include "standin/base/faults.h"

namespace {

// Answers with `call(arguments...)`, unless a fault is set for `function`.
template <class Call, class... Arguments>
int pass_on(const char *function, Call call, Arguments... arguments) {
    const int fault = standin::fault_check(function);
    return fault != 0 ? fault : call(arguments...);
}

}  // namespace

extern "C" {

int bcm_port_phy_get(int unit, bcm_port_t port, uint32 flags, uint32 phy_reg_addr,
                     uint32 *phy_data) {
    return pass_on(__func__, soc_phyctrl_reg_read, unit, port, flags, phy_reg_addr, phy_data);
}

int bcm_port_phy_set(int unit, bcm_port_t port, uint32 flags, uint32 phy_reg_addr,
                     uint32 phy_data) {
    return pass_on(__func__, soc_phyctrl_reg_write, unit, port, flags, phy_reg_addr, phy_data);
}

int bcm_port_phy_modify(int unit, bcm_port_t port, uint32 flags, uint32 phy_reg_addr,
                        uint32 phy_data, uint32 phy_mask) {
    return pass_on(__func__, soc_phyctrl_reg_modify, unit, port, flags, phy_reg_addr, phy_data,
                   phy_mask);
}

// `phy_reg_addr` is the device.
int bcm_port_phy_multi_get(int unit, bcm_port_t port, uint32 flags, uint32 phy_reg_addr,
                           uint32 phy_reg_offset, int data_max, uint8 *data, int *data_count) {
    return pass_on(__func__, soc_phyctrl_port_phy_multi_get, unit, port, flags, phy_reg_addr,
                   phy_reg_offset, data_max, data, data_count);
}

int bcm_port_phy_drv_name_get(int unit, bcm_port_t port, char *name, int len) {
    return pass_on(__func__, soc_phyctrl_drv_name_get, unit, port, name, len);
}

int bcm_port_phy_firmware_set(int unit, bcm_port_t port, uint32 flags, int offset, uint8 *data,
                              int len) {
    return pass_on(__func__, soc_phyctrl_firmware_set, unit, port, flags, offset, data, len);
}

int bcm_port_phy_reset(int unit, bcm_port_t port) {
    return pass_on(__func__, soc_phy_reset, unit, port);
}

int bcm_port_phy_reset_register(int unit, bcm_port_t port, bcm_port_phy_reset_cb_t callback,
                                void *user_data) {
    return pass_on(__func__, soc_phy_reset_register, unit, port, callback, user_data, 1);
}

int bcm_port_phy_reset_unregister(int unit, bcm_port_t port, bcm_port_phy_reset_cb_t callback,
                                  void *user_data) {
    return pass_on(__func__, soc_phy_reset_unregister, unit, port, callback, user_data);
}

int bcm_port_medium_status_register(int unit, bcm_port_t port, bcm_port_medium_status_cb_t cb,
                                    void *user_data) {
    return pass_on(__func__, soc_phy_medium_status_register, unit, port, cb, user_data);
}

int bcm_port_medium_status_unregister(int unit, bcm_port_t port, bcm_port_medium_status_cb_t cb,
                                      void *user_data) {
    return pass_on(__func__, soc_phy_medium_status_unregister, unit, port, cb, user_data);
}

}  // extern "C"
