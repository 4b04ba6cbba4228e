/* Subport: ports within a port, in groups, and the link PHY that serves them. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/subport_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

int bcm_subport_init(int unit);
int bcm_subport_cleanup(int unit);
int bcm_subport_gport_modport_get(int unit, bcm_gport_t gport, bcm_module_t *modid,
                                  bcm_port_t *port);
void bcm_subport_group_config_t_init(bcm_subport_group_config_t *config);
int bcm_subport_group_create(int unit, bcm_subport_group_config_t *config, bcm_gport_t *group);
int bcm_subport_group_get(int unit, bcm_gport_t group, bcm_subport_group_config_t *config);
int bcm_subport_group_destroy(int unit, bcm_gport_t group);
int bcm_subport_group_traverse(int unit, bcm_gport_t group, bcm_subport_port_traverse_cb cb,
                               void *user_data);
void bcm_subport_group_linkphy_config_t_init(bcm_subport_group_linkphy_config_t *config);
int bcm_subport_group_linkphy_config_set(int unit, bcm_gport_t group,
                                         bcm_subport_group_linkphy_config_t *config);
int bcm_subport_group_linkphy_config_get(int unit, bcm_gport_t group,
                                         bcm_subport_group_linkphy_config_t *config);
void bcm_subport_linkphy_rx_error_reg_info_t_init(
    bcm_subport_linkphy_rx_error_reg_info_t *reg_info);
int bcm_subport_linkphy_rx_error_register(int unit, bcm_subport_linkphy_rx_errors_t rx_errors,
                                          bcm_subport_linkphy_rx_error_reg_info_t *reg_info,
                                          void *user_data);
int bcm_subport_linkphy_rx_error_unregister(int unit, bcm_subport_linkphy_rx_errors_t rx_errors);
void bcm_subport_config_t_init(bcm_subport_config_t *config);
int bcm_subport_port_add(int unit, bcm_subport_config_t *config, bcm_gport_t *port);
int bcm_subport_port_get(int unit, bcm_gport_t port, bcm_subport_config_t *config);
int bcm_subport_port_delete(int unit, bcm_gport_t port);
int bcm_subport_port_traverse(int unit, bcm_subport_port_traverse_cb cb, void *user_data);
int bcm_subport_port_stat_set(int unit, bcm_gport_t port, int stream_id, bcm_subport_stat_t stat,
                              uint64 val);
int bcm_subport_port_stat_get(int unit, bcm_gport_t port, int stream_id, bcm_subport_stat_t stat,
                              uint64 *val);

OMBRA_END_DECLS
