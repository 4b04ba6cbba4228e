/* MPLS: labels, tunnels, VPNs and their ports, with counters. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/mpls_types.h"
#include "sdk/bcm/stat_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* Module */
int bcm_mpls_init(int unit);
int bcm_mpls_cleanup(int unit);

/* VPNs */
int bcm_mpls_vpn_id_get(int unit, bcm_vpn_t vpn, bcm_mpls_vpn_config_t *info);
int bcm_mpls_vpn_traverse(int unit, bcm_mpls_vpn_traverse_cb cb, void *user_data);
void bcm_mpls_vpn_config_t_init(bcm_mpls_vpn_config_t *info);
int bcm_mpls_vpn_id_create(int unit, bcm_mpls_vpn_config_t *info);
int bcm_mpls_vpn_id_destroy(int unit, bcm_vpn_t vpn);
int bcm_mpls_vpn_id_destroy_all(int unit);

/* Ports */
void bcm_mpls_port_t_init(bcm_mpls_port_t *mpls_port);
int bcm_mpls_port_add(int unit, bcm_vpn_t vpn, bcm_mpls_port_t *mpls_port);
int bcm_mpls_port_get(int unit, bcm_vpn_t vpn, bcm_mpls_port_t *mpls_port);
int bcm_mpls_port_get_all(int unit, bcm_vpn_t vpn, int port_max, bcm_mpls_port_t *port_array,
                          int *port_count);
int bcm_mpls_port_delete(int unit, bcm_vpn_t vpn, bcm_gport_t mpls_port_id);
int bcm_mpls_port_delete_all(int unit, bcm_vpn_t vpn);

/* Tunnel initiators */
void bcm_mpls_egress_label_t_init(bcm_mpls_egress_label_t *egress_label);
int bcm_mpls_tunnel_initiator_create(int unit, bcm_if_t intf, int num_labels,
                                     bcm_mpls_egress_label_t *label_array);
int bcm_mpls_tunnel_initiator_set(int unit, bcm_if_t intf, int num_labels,
                                  bcm_mpls_egress_label_t *label_array);
int bcm_mpls_tunnel_initiator_get(int unit, bcm_if_t intf, int label_max,
                                  bcm_mpls_egress_label_t *label_array, int *label_count);
int bcm_mpls_tunnel_initiator_clear(int unit, bcm_if_t intf);
int bcm_mpls_tunnel_initiator_clear_all(int unit);

/* Label switches */
void bcm_mpls_tunnel_switch_t_init(bcm_mpls_tunnel_switch_t *info);
int bcm_mpls_tunnel_switch_create(int unit, bcm_mpls_tunnel_switch_t *info);
int bcm_mpls_tunnel_switch_add(int unit, bcm_mpls_tunnel_switch_t *info);
int bcm_mpls_tunnel_switch_get(int unit, bcm_mpls_tunnel_switch_t *info);
int bcm_mpls_tunnel_switch_delete(int unit, bcm_mpls_tunnel_switch_t *info);
int bcm_mpls_tunnel_switch_delete_all(int unit);
int bcm_mpls_tunnel_switch_traverse(int unit, bcm_mpls_tunnel_switch_traverse_cb cb,
                                    void *user_data);
void bcm_mpls_range_action_t_init(bcm_mpls_range_action_t *action);
int bcm_mpls_range_action_add(int unit, bcm_mpls_label_t label_low, bcm_mpls_label_t label_high,
                              bcm_mpls_range_action_t *action);
int bcm_mpls_range_action_get(int unit, bcm_mpls_label_t label_low, bcm_mpls_label_t label_high,
                              bcm_mpls_range_action_t *action);
int bcm_mpls_range_action_remove(int unit, bcm_mpls_label_t label_low, bcm_mpls_label_t label_high);

/* Entropy labels */
void bcm_mpls_entropy_identifier_t_init(bcm_mpls_entropy_identifier_t *identifier);
int bcm_mpls_entropy_identifier_add(int unit, uint32 options,
                                    bcm_mpls_entropy_identifier_t *identifier);
int bcm_mpls_entropy_identifier_get(int unit, bcm_mpls_entropy_identifier_t *identifier);
int bcm_mpls_entropy_identifier_delete(int unit, bcm_mpls_entropy_identifier_t *identifier);
int bcm_mpls_entropy_identifier_delete_all(int unit);
int bcm_mpls_entropy_identifier_traverse(int unit, bcm_mpls_entropy_identifier_traverse_cb cb,
                                         void *user_data);

/* EXP maps */
void bcm_mpls_exp_map_t_init(bcm_mpls_exp_map_t *exp_map);
int bcm_mpls_exp_map_create(int unit, uint32 flags, int *exp_map_id);
int bcm_mpls_exp_map_set(int unit, int exp_map_id, bcm_mpls_exp_map_t *exp_map);
int bcm_mpls_exp_map_get(int unit, int exp_map_id, bcm_mpls_exp_map_t *exp_map);
int bcm_mpls_exp_map_destroy(int unit, int exp_map_id);

/* Counters of labels */
int bcm_mpls_label_stat_attach(int unit, bcm_mpls_label_t label, bcm_gport_t port,
                               uint32 stat_counter_id);
int bcm_mpls_label_stat_get(int unit, bcm_mpls_label_t label, bcm_gport_t port,
                            bcm_mpls_stat_t stat, uint64 *val);
int bcm_mpls_label_stat_get32(int unit, bcm_mpls_label_t label, bcm_gport_t port,
                              bcm_mpls_stat_t stat, uint32 *val);
int bcm_mpls_label_stat_sync_get(int unit, bcm_mpls_label_t label, bcm_gport_t port,
                                 bcm_mpls_stat_t stat, uint64 *val);
int bcm_mpls_label_stat_sync_get32(int unit, bcm_mpls_label_t label, bcm_gport_t port,
                                   bcm_mpls_stat_t stat, uint32 *val);
int bcm_mpls_label_stat_id_get(int unit, bcm_mpls_label_t label, bcm_gport_t port,
                               bcm_mpls_stat_t stat, uint32 *stat_counter_id);
int bcm_mpls_label_stat_counter_set(int unit, bcm_mpls_label_t label, bcm_gport_t port,
                                    bcm_mpls_stat_t stat, uint32 num_entries,
                                    uint32 *counter_indexes, bcm_stat_value_t *counter_values);
int bcm_mpls_label_stat_counter_get(int unit, bcm_mpls_label_t label, bcm_gport_t port,
                                    bcm_mpls_stat_t stat, uint32 num_entries,
                                    uint32 *counter_indexes, bcm_stat_value_t *counter_values);
int bcm_mpls_label_stat_counter_sync_get(int unit, bcm_mpls_label_t label, bcm_gport_t port,
                                         bcm_mpls_stat_t stat, uint32 num_entries,
                                         uint32 *counter_indexes, bcm_stat_value_t *counter_values);
int bcm_mpls_label_stat_enable_set(int unit, bcm_mpls_label_t label, bcm_gport_t port, int enable);
int bcm_mpls_label_stat_clear(int unit, bcm_mpls_label_t label, bcm_gport_t port,
                              bcm_mpls_stat_t stat);
int bcm_mpls_label_stat_detach(int unit, bcm_mpls_label_t label, bcm_gport_t port);

/* Counters of tunnels */
int bcm_mpls_tunnel_stat_attach(int unit, bcm_if_t intf_id, uint32 stat_counter_id);
int bcm_mpls_tunnel_stat_id_get(int unit, bcm_if_t intf_id, bcm_mpls_stat_t stat,
                                uint32 *stat_counter_id);
int bcm_mpls_tunnel_stat_counter_set(int unit, bcm_if_t intf_id, bcm_mpls_stat_t stat,
                                     uint32 num_entries, uint32 *counter_indexes,
                                     bcm_stat_value_t *counter_values);
int bcm_mpls_tunnel_stat_counter_get(int unit, bcm_if_t intf_id, bcm_mpls_stat_t stat,
                                     uint32 num_entries, uint32 *counter_indexes,
                                     bcm_stat_value_t *counter_values);
int bcm_mpls_tunnel_stat_counter_sync_get(int unit, bcm_if_t intf_id, bcm_mpls_stat_t stat,
                                          uint32 num_entries, uint32 *counter_indexes,
                                          bcm_stat_value_t *counter_values);
int bcm_mpls_tunnel_stat_detach(int unit, bcm_if_t intf_id);
int bcm_mpls_tunnel_label_counter_id_detach(int unit, bcm_if_t intf_id, uint32 counter_id);
int bcm_mpls_tunnel_label_counter_id_num_get(int unit, bcm_if_t intf_id, int *counter_num,
                                             uint32 *counter_ids);
void bcm_mpls_stat_info_t_init(bcm_mpls_stat_info_t *stat_info);
int bcm_mpls_tunnel_label_counter_id_stat_set(int unit, bcm_if_t intf_id, uint32 counter_id,
                                              bcm_mpls_stat_info_t *stat_info);
int bcm_mpls_tunnel_label_counter_id_stat_get(int unit, bcm_if_t intf_id, uint32 counter_id,
                                              bcm_mpls_stat_info_t *stat_info);
int bcm_mpls_tunnel_label_counter_id_stat_sync_get(int unit, bcm_if_t intf_id, uint32 counter_id,
                                                   bcm_mpls_stat_info_t *stat_info);

/* Counters of ports */
int bcm_mpls_port_stat_attach(int unit, bcm_vpn_t vpn, bcm_gport_t port, uint32 stat_counter_id);
int bcm_mpls_port_stat_set(int unit, bcm_gport_t port, bcm_cos_t cos, bcm_mpls_port_stat_t stat,
                           uint64 val);
int bcm_mpls_port_stat_get(int unit, bcm_gport_t port, bcm_cos_t cos, bcm_mpls_port_stat_t stat,
                           uint64 *val);
int bcm_mpls_port_stat_set32(int unit, bcm_gport_t port, bcm_cos_t cos, bcm_mpls_port_stat_t stat,
                             uint32 val);
int bcm_mpls_port_stat_get32(int unit, bcm_gport_t port, bcm_cos_t cos, bcm_mpls_port_stat_t stat,
                             uint32 *val);
int bcm_mpls_port_stat_id_get(int unit, bcm_vpn_t vpn, bcm_gport_t port, bcm_mpls_stat_t stat,
                              uint32 *stat_counter_id);
int bcm_mpls_port_stat_counter_set(int unit, bcm_vpn_t vpn, bcm_gport_t port, bcm_mpls_stat_t stat,
                                   uint32 num_entries, uint32 *counter_indexes,
                                   bcm_stat_value_t *counter_values);
int bcm_mpls_port_stat_counter_get(int unit, bcm_vpn_t vpn, bcm_gport_t port, bcm_mpls_stat_t stat,
                                   uint32 num_entries, uint32 *counter_indexes,
                                   bcm_stat_value_t *counter_values);
int bcm_mpls_port_stat_counter_sync_get(int unit, bcm_vpn_t vpn, bcm_gport_t port,
                                        bcm_mpls_stat_t stat, uint32 num_entries,
                                        uint32 *counter_indexes, bcm_stat_value_t *counter_values);
int bcm_mpls_port_stat_enable_set(int unit, bcm_gport_t port, int enable);
int bcm_mpls_port_stat_detach(int unit, bcm_vpn_t vpn, bcm_gport_t port);

OMBRA_END_DECLS
