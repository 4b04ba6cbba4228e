/* MIM: MAC-in-MAC ports, VPNs and lookup counters. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/mim_types.h"
#include "sdk/bcm/stat_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* Module */
int bcm_mim_init(int unit);
int bcm_mim_detach(int unit);

/* VPNs */
void bcm_mim_vpn_config_t_init(bcm_mim_vpn_config_t *info);
int bcm_mim_vpn_create(int unit, bcm_mim_vpn_config_t *info);
int bcm_mim_vpn_get(int unit, bcm_mim_vpn_t vpn, bcm_mim_vpn_config_t *info);
int bcm_mim_vpn_destroy(int unit, bcm_mim_vpn_t vpn);
int bcm_mim_vpn_destroy_all(int unit);
int bcm_mim_vpn_traverse(int unit, bcm_mim_vpn_traverse_cb cb, void *user_data);

/* Ports */
void bcm_mim_port_t_init(bcm_mim_port_t *mim_port);
int bcm_mim_port_add(int unit, bcm_mim_vpn_t vpn, bcm_mim_port_t *mim_port);
int bcm_mim_port_get(int unit, bcm_mim_vpn_t vpn, bcm_mim_port_t *mim_port);
int bcm_mim_port_get_all(int unit, bcm_mim_vpn_t vpn, int port_max, bcm_mim_port_t *port_array,
                         int *port_count);
int bcm_mim_port_delete(int unit, bcm_mim_vpn_t vpn, bcm_gport_t mim_port_id);
int bcm_mim_port_delete_all(int unit, bcm_mim_vpn_t vpn);

/* Counters of VPNs */
int bcm_mim_vpn_stat_attach(int unit, bcm_mim_vpn_t vpn, uint32 stat_counter_id);
int bcm_mim_vpn_stat_id_get(int unit, bcm_mim_vpn_t vpn, bcm_mim_stat_t stat,
                            uint32 *stat_counter_id);
int bcm_mim_vpn_stat_counter_set(int unit, bcm_mim_vpn_t vpn, bcm_mim_stat_t stat,
                                 uint32 num_entries, uint32 *counter_indexes,
                                 bcm_stat_value_t *counter_values);
int bcm_mim_vpn_stat_counter_get(int unit, bcm_mim_vpn_t vpn, bcm_mim_stat_t stat,
                                 uint32 num_entries, uint32 *counter_indexes,
                                 bcm_stat_value_t *counter_values);
int bcm_mim_vpn_stat_counter_sync_get(int unit, bcm_mim_vpn_t vpn, bcm_mim_stat_t stat,
                                      uint32 num_entries, uint32 *counter_indexes,
                                      bcm_stat_value_t *counter_values);
int bcm_mim_vpn_stat_detach(int unit, bcm_mim_vpn_t vpn);

/* Counters of lookups */
int bcm_mim_lookup_id_stat_attach(int unit, int lookup_id, uint32 stat_counter_id);
int bcm_mim_lookup_id_stat_id_get(int unit, int lookup_id, bcm_mim_stat_t stat,
                                  uint32 *stat_counter_id);
int bcm_mim_lookup_id_stat_counter_set(int unit, int lookup_id, bcm_mim_stat_t stat,
                                       uint32 num_entries, uint32 *counter_indexes,
                                       bcm_stat_value_t *counter_values);
int bcm_mim_lookup_id_stat_counter_get(int unit, int lookup_id, bcm_mim_stat_t stat,
                                       uint32 num_entries, uint32 *counter_indexes,
                                       bcm_stat_value_t *counter_values);
int bcm_mim_lookup_id_stat_counter_sync_get(int unit, int lookup_id, bcm_mim_stat_t stat,
                                            uint32 num_entries, uint32 *counter_indexes,
                                            bcm_stat_value_t *counter_values);
int bcm_mim_lookup_id_stat_detach(int unit, int lookup_id);

OMBRA_END_DECLS
