/* PHY control: what the driver layer of the PHYs does for a port. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* Start */
int soc_phyctrl_software_init(int unit);
int soc_phyctrl_software_deinit(int unit);
int soc_phyctrl_software_port_init(int unit, soc_port_t port);
int soc_phyctrl_pbm_probe_init(int unit, pbmp_t pbmp, pbmp_t *okay_pbmp);
int soc_phyctrl_probe(int unit, soc_port_t port);
int soc_phyctrl_init(int unit, soc_port_t port);
int soc_phyctrl_reset(int unit, soc_port_t port, void *user_arg);
int soc_phyctrl_detach(int unit, soc_port_t port);
void *soc_phyctrl_ext_phy_reset(int unit, soc_port_t port);
char *soc_phyctrl_drv_name(int unit, soc_port_t port);
int soc_phyctrl_drv_name_get(int unit, soc_port_t port, char *name, int len);
int soc_phyctrl_primary_set(int unit, soc_port_t port, soc_port_t primary);
int soc_phyctrl_primary_get(int unit, soc_port_t port, soc_port_t *primary);
int soc_phyctrl_offset_set(int unit, soc_port_t port, int offset);
int soc_phyctrl_offset_get(int unit, soc_port_t port, soc_port_t *offset);

/* Link, speed and medium */
int soc_phyctrl_enable_set(int unit, soc_port_t port, int enable);
int soc_phyctrl_enable_get(int unit, soc_port_t port, int *enable);
int soc_phyctrl_link_get(int unit, soc_port_t port, int *link);
int soc_phyctrl_linkfault_get(int unit, soc_port_t port, int *fault);
int soc_phyctrl_link_change(int unit, soc_port_t port, int *link);
int soc_phyctrl_linkup_evt(int unit, soc_port_t port);
int soc_phyctrl_linkdn_evt(int unit, soc_port_t port);
int soc_phyctrl_speed_set(int unit, soc_port_t port, int speed);
int soc_phyctrl_speed_get(int unit, soc_port_t port, int *speed);
int soc_phyctrl_set_speed_max(int unit, soc_port_t port, int speed_max);
int soc_phyctrl_duplex_set(int unit, soc_port_t port, int duplex);
int soc_phyctrl_duplex_get(int unit, soc_port_t port, int *duplex);
int soc_phyctrl_master_set(int unit, soc_port_t port, int master);
int soc_phyctrl_master_get(int unit, soc_port_t port, int *master);
int soc_phyctrl_auto_negotiate_set(int unit, soc_port_t port, int an);
int soc_phyctrl_auto_negotiate_get(int unit, soc_port_t port, int *an, int *an_done);
int soc_phyctrl_loopback_set(int unit, soc_port_t port, int enable, int serdes_linkup_wait);
int soc_phyctrl_loopback_get(int unit, soc_port_t port, int *enable);
int soc_phyctrl_loopback_extended_set(int unit, soc_port_t port, int enable, int serdes_linkup_wait,
                                      uint32 en_int_phy);
int soc_phyctrl_interface_set(int unit, soc_port_t port, soc_port_if_t pif);
int soc_phyctrl_interface_get(int unit, soc_port_t port, soc_port_if_t *pif);
int soc_phyctrl_mdix_set(int unit, soc_port_t port, soc_port_mdix_t mdix);
int soc_phyctrl_mdix_get(int unit, soc_port_t port, soc_port_mdix_t *mdix);
int soc_phyctrl_mdix_status_get(int unit, soc_port_t port, soc_port_mdix_status_t *status);
int soc_phyctrl_medium_get(int unit, soc_port_t port, soc_port_medium_t *medium);
int soc_phyctrl_medium_config_set(int unit, soc_port_t port, soc_port_medium_t medium,
                                  soc_phy_config_t *cfg);
int soc_phyctrl_medium_config_get(int unit, soc_port_t port, soc_port_medium_t medium,
                                  soc_phy_config_t *cfg);
int soc_phyctrl_cable_diag(int unit, soc_port_t port, soc_port_cable_diag_t *status);

/* Abilities */
int soc_phyctrl_ability_get(int unit, soc_port_t port, soc_port_mode_t *mode);
int soc_phyctrl_ability_advert_set(int unit, soc_port_t port, soc_port_ability_t *ability);
int soc_phyctrl_ability_advert_get(int unit, soc_port_t port, soc_port_ability_t *ability);
int soc_phyctrl_ability_local_get(int unit, soc_port_t port, soc_port_ability_t *ability);
int soc_phyctrl_ability_remote_get(int unit, soc_port_t port, soc_port_ability_t *ability);
int soc_phyctrl_adv_local_set(int unit, soc_port_t port, soc_port_mode_t mode);
int soc_phyctrl_adv_local_get(int unit, soc_port_t port, soc_port_mode_t *mode);
int soc_phyctrl_adv_remote_get(int unit, soc_port_t port, soc_port_mode_t *mode);

/* Controls and events */
int soc_phyctrl_control_set(int unit, soc_port_t port, soc_phy_control_t ctrl_type, uint32 value);
int soc_phyctrl_control_get(int unit, soc_port_t port, soc_phy_control_t ctrl_type, uint32 *value);
int soc_phyctrl_notify(int unit, soc_port_t port, soc_phy_event_t event, uint32 data);
int soc_phyctrl_diag_ctrl(int, soc_port_t, uint32, int, int, void *);
int soc_phyctrl_firmware_set(int unit, soc_port_t port, uint32 flags, int offset, uint8 *array,
                             int len);

/* Registers */
int soc_phyctrl_reg_read(int unit, soc_port_t port, uint32 flags, uint32 addr, uint32 *data);
int soc_phyctrl_reg_write(int unit, soc_port_t port, uint32 flags, uint32 addr, uint32 data);
int soc_phyctrl_reg_modify(int unit, soc_port_t port, uint32 flags, uint32 addr, uint32 data,
                           uint32 mask);
int soc_phyctrl_port_phy_multi_get(int unit, soc_port_t port, uint32 flags, uint32 dev_addr,
                                   uint32 offset, int max_size, uint8 *data, int *actual_size);
int soc_phyctrl_toplvl_reg_read(int unit, soc_port_t port, soc_port_t primary_port,
                                uint8 reg_offset, uint16 *data);
int soc_phyctrl_toplvl_reg_write(int unit, soc_port_t port, soc_port_t primary_port,
                                 uint8 reg_offset, uint16 data);

/* One lane */
int soc_phyctrl_lane_control_set(int unit, soc_port_t port, int lane, soc_phy_control_t ctrl_type,
                                 uint32 value);
int soc_phyctrl_lane_control_get(int unit, soc_port_t port, int lane, soc_phy_control_t ctrl_type,
                                 uint32 *value);
int soc_phyctrl_lane_reg_read(int unit, soc_port_t port, int lane, uint32 flags, uint32 addr,
                              uint32 *data);
int soc_phyctrl_lane_reg_write(int unit, soc_port_t port, int lane, uint32 flags, uint32 addr,
                               uint32 data);

/* One PHY of a chain */
int soc_phyctrl_redirect_control_set(int unit, soc_port_t port, int phyn, int phy_lane,
                                     int sys_side, soc_phy_control_t ctrl_type, uint32 value);
int soc_phyctrl_redirect_control_get(int unit, soc_port_t port, int phyn, int phy_lane,
                                     int sys_side, soc_phy_control_t ctrl_type, uint32 *value);
int soc_phyctrl_redirect_auto_negotiate_set(int unit, soc_port_t port, int phyn, int phy_lane,
                                            int sys_side, int an);
int soc_phyctrl_redirect_auto_negotiate_get(int unit, soc_port_t port, int phyn, int phy_lane,
                                            int sys_side, int *an, int *an_done);
int soc_phyctrl_redirect_loopback_set(int unit, soc_port_t port, int phyn, int phy_lane,
                                      int sys_side, int enable, int serdes_linkup_wait);
int soc_phyctrl_redirect_loopback_get(int unit, soc_port_t port, int phyn, int phy_lane,
                                      int sys_side, int *enable);

OMBRA_END_DECLS
