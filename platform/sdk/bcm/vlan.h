/* VLAN: VLANs, the ports in them, tag actions, translation tables and counters. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/bcm/stat_types.h"
#include "sdk/bcm/vlan_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* VLANs */
int bcm_vlan_init(int unit);
int bcm_vlan_create(int unit, bcm_vlan_t vid);
int bcm_vlan_destroy(int unit, bcm_vlan_t vid);
int bcm_vlan_destroy_all(int unit);
int bcm_vlan_list(int unit, bcm_vlan_data_t **listp, int *countp);
int bcm_vlan_list_by_pbmp(int unit, bcm_pbmp_t ports, bcm_vlan_data_t **listp, int *countp);
void bcm_vlan_data_t_init(bcm_vlan_data_t *data);
int bcm_vlan_list_destroy(int unit, bcm_vlan_data_t *list, int count);
int bcm_vlan_default_set(int unit, bcm_vlan_t vid);
int bcm_vlan_default_get(int unit, bcm_vlan_t *vid);

/* Ports of a VLAN */
int bcm_vlan_port_add(int unit, bcm_vlan_t vid, bcm_pbmp_t pbmp, bcm_pbmp_t ubmp);
int bcm_vlan_port_get(int unit, bcm_vlan_t vid, bcm_pbmp_t *pbmp, bcm_pbmp_t *ubmp);
int bcm_vlan_port_remove(int unit, bcm_vlan_t vid, bcm_pbmp_t pbmp);
int bcm_vlan_gport_add(int unit, bcm_vlan_t vid, bcm_gport_t gport, int flags);
int bcm_vlan_gport_get(int unit, bcm_vlan_t vid, bcm_gport_t gport, int *flags);
int bcm_vlan_gport_get_all(int unit, bcm_vlan_t vid, int array_max, bcm_gport_t *gport_array,
                           int *flags_array, int *array_count);
int bcm_vlan_gport_delete(int unit, bcm_vlan_t vid, bcm_gport_t gport);
int bcm_vlan_gport_delete_all(int unit, bcm_vlan_t vid);
int bcm_vlan_gport_extended_delete(int unit, bcm_vlan_t vid, bcm_gport_t gport, int flags);
void bcm_vlan_gport_info_t_init(bcm_vlan_gport_info_t *info);
int bcm_vlan_gport_info_get(int unit, bcm_vlan_gport_info_t *info);
int bcm_vlan_vector_flags_set(int unit, unsigned int vlan_vec[_SHR_BITDCLSIZE((4095 - 0 + 1))],
                              uint32 flags_mask, uint32 flags_value);
int bcm_vlan_vector_stp_set(int unit, unsigned int vlan_vec[_SHR_BITDCLSIZE((4095 - 0 + 1))],
                            bcm_port_t port, int stp_state);

/* Spanning tree and flooding */
int bcm_vlan_stg_set(int unit, bcm_vlan_t vid, bcm_stg_t stg);
int bcm_vlan_stg_get(int unit, bcm_vlan_t vid, bcm_stg_t *stg);
int bcm_vlan_stp_set(int unit, bcm_vlan_t vid, bcm_port_t port, int stp_state);
int bcm_vlan_stp_get(int unit, bcm_vlan_t vid, bcm_port_t port, int *stp_state);
int bcm_vlan_mcast_flood_set(int unit, bcm_vlan_t vid, bcm_vlan_mcast_flood_t mode);
int bcm_vlan_mcast_flood_get(int unit, bcm_vlan_t vid, bcm_vlan_mcast_flood_t *mode);
void bcm_vlan_block_t_init(bcm_vlan_block_t *block);
int bcm_vlan_block_set(int unit, bcm_vlan_t vid, bcm_vlan_block_t *block);
int bcm_vlan_block_get(int unit, bcm_vlan_t vid, bcm_vlan_block_t *block);

/* Controls */
int bcm_vlan_control_set(int unit, bcm_vlan_control_t type, int arg);
int bcm_vlan_control_get(int unit, bcm_vlan_control_t type, int *arg);
int bcm_vlan_control_port_set(int unit, int port, bcm_vlan_control_port_t type, int arg);
int bcm_vlan_control_port_get(int unit, int port, bcm_vlan_control_port_t type, int *arg);
void bcm_vlan_control_vlan_t_init(bcm_vlan_control_vlan_t *control);
int bcm_vlan_control_vlan_set(int unit, bcm_vlan_t vid, bcm_vlan_control_vlan_t control);
int bcm_vlan_control_vlan_get(int unit, bcm_vlan_t vid, bcm_vlan_control_vlan_t *control);
int bcm_vlan_control_vlan_selective_set(int unit, bcm_vlan_t vid, uint32 valid_fields,
                                        bcm_vlan_control_vlan_t *control);
int bcm_vlan_control_vlan_selective_get(int unit, bcm_vlan_t vid, uint32 valid_fields,
                                        bcm_vlan_control_vlan_t *control);

/* VLAN ports as objects */
void bcm_vlan_port_t_init(bcm_vlan_port_t *vlan_port);
int bcm_vlan_port_create(int unit, bcm_vlan_port_t *vlan_port);
int bcm_vlan_port_find(int unit, bcm_vlan_port_t *vlan_port);
int bcm_vlan_port_destroy(int unit, bcm_gport_t gport);
void bcm_vlan_port_translation_t_init(bcm_vlan_port_translation_t *translation);
int bcm_vlan_port_translation_set(int unit, bcm_vlan_port_translation_t *translation);
int bcm_vlan_port_translation_get(int unit, bcm_vlan_port_translation_t *translation);

/* Default actions and protocols */
int bcm_vlan_port_default_action_set(int unit, bcm_port_t port, bcm_vlan_action_set_t *action);
int bcm_vlan_port_default_action_get(int unit, bcm_port_t port, bcm_vlan_action_set_t *action);
int bcm_vlan_port_default_action_delete(int unit, bcm_port_t port);
int bcm_vlan_port_egress_default_action_set(int unit, bcm_port_t port,
                                            bcm_vlan_action_set_t *action);
int bcm_vlan_port_egress_default_action_get(int unit, bcm_port_t port,
                                            bcm_vlan_action_set_t *action);
int bcm_vlan_port_egress_default_action_delete(int unit, bcm_port_t port);
void bcm_vlan_action_set_t_init(bcm_vlan_action_set_t *action);
int bcm_vlan_port_protocol_action_add(int unit, bcm_port_t port, bcm_port_frametype_t frame,
                                      bcm_port_ethertype_t ether, bcm_vlan_action_set_t *action);
int bcm_vlan_port_protocol_action_get(int unit, bcm_port_t port, bcm_port_frametype_t frame,
                                      bcm_port_ethertype_t ether, bcm_vlan_action_set_t *action);
int bcm_vlan_port_protocol_action_delete(int unit, bcm_port_t port, bcm_port_frametype_t frame,
                                         bcm_port_ethertype_t ether);
int bcm_vlan_port_protocol_action_delete_all(int unit, bcm_port_t port);
int bcm_vlan_port_protocol_action_traverse(int unit, bcm_vlan_port_protocol_action_traverse_cb cb,
                                           void *user_data);

/* Assignment by MAC address and subnet */
int bcm_vlan_mac_add(int unit, bcm_mac_t mac, bcm_vlan_t vid, int prio);
int bcm_vlan_mac_delete(int unit, bcm_mac_t mac);
int bcm_vlan_mac_delete_all(int unit);
int bcm_vlan_mac_action_add(int unit, bcm_mac_t mac, bcm_vlan_action_set_t *action);
int bcm_vlan_mac_action_get(int unit, bcm_mac_t mac, bcm_vlan_action_set_t *action);
int bcm_vlan_mac_action_delete(int unit, bcm_mac_t mac);
int bcm_vlan_mac_action_delete_all(int unit);
int bcm_vlan_mac_action_traverse(int unit, bcm_vlan_mac_action_traverse_cb cb, void *user_data);
void bcm_vlan_ip_t_init(bcm_vlan_ip_t *vlan_ip);
int bcm_vlan_ip_add(int unit, bcm_vlan_ip_t *vlan_ip);
int bcm_vlan_ip_delete(int unit, bcm_vlan_ip_t *vlan_ip);
int bcm_vlan_ip_delete_all(int unit);
int bcm_vlan_ip_action_add(int unit, bcm_vlan_ip_t *vlan_ip, bcm_vlan_action_set_t *action);
int bcm_vlan_ip_action_get(int unit, bcm_vlan_ip_t *vlan_ip, bcm_vlan_action_set_t *action);
int bcm_vlan_ip_action_delete(int unit, bcm_vlan_ip_t *vlan_ip);
int bcm_vlan_ip_action_delete_all(int unit);
int bcm_vlan_ip_action_traverse(int unit, bcm_vlan_ip_action_traverse_cb cb, void *user_data);

/* Ingress translation */
int bcm_vlan_translate_add(int unit, int port, bcm_vlan_t old_vid, bcm_vlan_t new_vid, int prio);
int bcm_vlan_translate_get(int unit, int port, bcm_vlan_t old_vid, bcm_vlan_t *new_vid, int *prio);
int bcm_vlan_translate_delete(int unit, int port, bcm_vlan_t old_vid);
int bcm_vlan_translate_delete_all(int unit);
int bcm_vlan_translate_traverse(int unit, bcm_vlan_translate_traverse_cb cb, void *user_data);
int bcm_vlan_translate_action_create(int unit, bcm_gport_t port, bcm_vlan_translate_key_t key_type,
                                     bcm_vlan_t outer_vlan, bcm_vlan_t inner_vlan,
                                     bcm_vlan_action_set_t *action);
int bcm_vlan_translate_action_add(int unit, bcm_gport_t port, bcm_vlan_translate_key_t key_type,
                                  bcm_vlan_t outer_vlan, bcm_vlan_t inner_vlan,
                                  bcm_vlan_action_set_t *action);
int bcm_vlan_translate_action_get(int unit, bcm_gport_t port, bcm_vlan_translate_key_t key_type,
                                  bcm_vlan_t outer_vlan, bcm_vlan_t inner_vlan,
                                  bcm_vlan_action_set_t *action);
int bcm_vlan_translate_action_delete(int unit, bcm_gport_t port, bcm_vlan_translate_key_t key_type,
                                     bcm_vlan_t outer_vlan, bcm_vlan_t inner_vlan);
int bcm_vlan_translate_action_traverse(int unit, bcm_vlan_translate_action_traverse_cb cb,
                                       void *user_data);
int bcm_vlan_translate_action_range_add(int unit, bcm_gport_t port, bcm_vlan_t outer_vlan_low,
                                        bcm_vlan_t outer_vlan_high, bcm_vlan_t inner_vlan_low,
                                        bcm_vlan_t inner_vlan_high, bcm_vlan_action_set_t *action);
int bcm_vlan_translate_action_range_get(int unit, bcm_gport_t port, bcm_vlan_t outer_vlan_low,
                                        bcm_vlan_t outer_vlan_high, bcm_vlan_t inner_vlan_low,
                                        bcm_vlan_t inner_vlan_high, bcm_vlan_action_set_t *action);
int bcm_vlan_translate_action_range_delete(int unit, bcm_gport_t port, bcm_vlan_t outer_vlan_low,
                                           bcm_vlan_t outer_vlan_high, bcm_vlan_t inner_vlan_low,
                                           bcm_vlan_t inner_vlan_high);
int bcm_vlan_translate_action_range_delete_all(int unit);
int bcm_vlan_translate_action_range_traverse(int unit,
                                             bcm_vlan_translate_action_range_traverse_cb cb,
                                             void *user_data);
int bcm_vlan_translate_range_add(int unit, int port, bcm_vlan_t old_vid_low,
                                 bcm_vlan_t old_vid_high, bcm_vlan_t new_vid, int prio);
int bcm_vlan_translate_range_get(int unit, int port, bcm_vlan_t old_vid_low,
                                 bcm_vlan_t old_vid_high, bcm_vlan_t *new_vid, int *prio);
int bcm_vlan_translate_range_delete(int unit, int port, bcm_vlan_t old_vid_low,
                                    bcm_vlan_t old_vid_high);
int bcm_vlan_translate_range_delete_all(int unit);
int bcm_vlan_translate_range_traverse(int unit, bcm_vlan_translate_range_traverse_cb cb,
                                      void *user_data);

/* Egress translation */
int bcm_vlan_translate_egress_add(int unit, int port, bcm_vlan_t old_vid, bcm_vlan_t new_vid,
                                  int prio);
int bcm_vlan_translate_egress_get(int unit, int port, bcm_vlan_t old_vid, bcm_vlan_t *new_vid,
                                  int *prio);
int bcm_vlan_translate_egress_delete(int unit, int port, bcm_vlan_t old_vid);
int bcm_vlan_translate_egress_delete_all(int unit);
int bcm_vlan_translate_egress_traverse(int unit, bcm_vlan_translate_egress_traverse_cb cb,
                                       void *user_data);
int bcm_vlan_translate_egress_action_add(int unit, int port, bcm_vlan_t outer_vlan,
                                         bcm_vlan_t inner_vlan, bcm_vlan_action_set_t *action);
int bcm_vlan_translate_egress_action_get(int unit, int port, bcm_vlan_t outer_vlan,
                                         bcm_vlan_t inner_vlan, bcm_vlan_action_set_t *action);
int bcm_vlan_translate_egress_action_delete(int unit, int port, bcm_vlan_t outer_vlan,
                                            bcm_vlan_t inner_vlan);
int bcm_vlan_translate_egress_action_traverse(int unit,
                                              bcm_vlan_translate_egress_action_traverse_cb cb,
                                              void *user_data);
int bcm_vlan_translate_egress_gport_action_add(int unit, bcm_gport_t gport, bcm_vlan_t outer_vlan,
                                               bcm_vlan_t inner_vlan,
                                               bcm_vlan_action_set_t *action);
int bcm_vlan_translate_egress_gport_action_get(int unit, bcm_gport_t gport, bcm_vlan_t outer_vlan,
                                               bcm_vlan_t inner_vlan,
                                               bcm_vlan_action_set_t *action);
int bcm_vlan_translate_egress_gport_action_delete(int unit, bcm_gport_t gport,
                                                  bcm_vlan_t outer_vlan, bcm_vlan_t inner_vlan);

/* Action profiles */
int bcm_vlan_translate_action_id_get(int unit, uint32 flags, int action_id,
                                     bcm_vlan_action_set_t *action);
void bcm_vlan_translate_action_class_t_init(bcm_vlan_translate_action_class_t *action_class);
int bcm_vlan_translate_action_class_set(int unit, bcm_vlan_translate_action_class_t *action_class);
int bcm_vlan_translate_action_class_get(int unit, bcm_vlan_translate_action_class_t *action_class);
int bcm_vlan_translate_action_id_create(int unit, uint32 flags, int *action_id);
int bcm_vlan_translate_action_id_set(int unit, uint32 flags, int action_id,
                                     bcm_vlan_action_set_t *action);
int bcm_vlan_translate_action_id_destroy(int unit, uint32 flags, int action_id);
int bcm_vlan_translate_action_id_destroy_all(int unit, uint32 flags);

/* Double tagging */
int bcm_vlan_dtag_add(int unit, int port, bcm_vlan_t old_vid, bcm_vlan_t new_vid, int prio);
int bcm_vlan_dtag_get(int unit, int port, bcm_vlan_t old_vid, bcm_vlan_t *new_vid, int *prio);
int bcm_vlan_dtag_delete(int unit, int port, bcm_vlan_t old_vid);
int bcm_vlan_dtag_delete_all(int unit);
int bcm_vlan_dtag_traverse(int unit, bcm_vlan_dtag_traverse_cb cb, void *user_data);
int bcm_vlan_dtag_range_add(int unit, int port, bcm_vlan_t old_vid_low, bcm_vlan_t old_vid_high,
                            bcm_vlan_t new_vid, int prio);
int bcm_vlan_dtag_range_get(int unit, int port, bcm_vlan_t old_vid_low, bcm_vlan_t old_vid_high,
                            bcm_vlan_t *new_vid, int *prio);
int bcm_vlan_dtag_range_delete(int unit, int port, bcm_vlan_t old_vid_low, bcm_vlan_t old_vid_high);
int bcm_vlan_dtag_range_delete_all(int unit);
int bcm_vlan_dtag_range_traverse(int unit, bcm_vlan_dtag_range_traverse_cb cb, void *user_data);

/* Cross-connects and VPNs */
int bcm_vlan_cross_connect_add(int unit, bcm_vlan_t outer_vlan, bcm_vlan_t inner_vlan,
                               bcm_gport_t port_1, bcm_gport_t port_2);
int bcm_vlan_cross_connect_delete(int unit, bcm_vlan_t outer_vlan, bcm_vlan_t inner_vlan);
int bcm_vlan_cross_connect_delete_all(int unit);
int bcm_vlan_cross_connect_traverse(int unit, bcm_vlan_cross_connect_traverse_cb cb,
                                    void *user_data);
void bcm_vlan_vpn_config_t_init(bcm_vlan_vpn_config_t *info);
int bcm_vlan_vpn_create(int unit, bcm_vlan_vpn_config_t *info);
int bcm_vlan_vpn_get(int unit, bcm_vpn_t vpn, bcm_vlan_vpn_config_t *info);
int bcm_vlan_vpn_destroy(int unit, bcm_vpn_t vpn);
int bcm_vlan_vpn_destroy_all(int unit);
int bcm_vlan_vpn_traverse(int unit, bcm_vlan_vpn_traverse_cb cb, void *user_data);

/* Queue maps and policers */
int bcm_vlan_queue_map_create(int unit, uint32 flags, int *queue_map_id);
int bcm_vlan_queue_map_attach(int unit, bcm_vlan_t vid, int queue_map_id);
int bcm_vlan_queue_map_set(int unit, int queue_map_id, int pkt_pri, int cfi, int queue, int color);
int bcm_vlan_queue_map_get(int unit, int queue_map_id, int pkt_pri, int cfi, int *queue,
                           int *color);
int bcm_vlan_queue_map_detach(int unit, bcm_vlan_t vid);
int bcm_vlan_queue_map_destroy(int unit, int queue_map_id);
int bcm_vlan_queue_map_destroy_all(int unit);
int bcm_vlan_queue_map_attach_get(int unit, bcm_vlan_t vid, int *queue_map_id);
int bcm_vlan_queue_map_detach_all(int unit);
int bcm_vlan_policer_set(int unit, bcm_vlan_t vid, bcm_policer_t policer_id);
int bcm_vlan_policer_get(int unit, bcm_vlan_t vid, bcm_policer_t *policer_id);
int bcm_vlan_egress_policer_set(int unit, bcm_vlan_t vid, bcm_policer_t policer_id);
int bcm_vlan_egress_policer_get(int unit, bcm_vlan_t vid, bcm_policer_t *policer_id);
int bcm_vlan_port_policer_set(int unit, bcm_vlan_t vid, bcm_port_t port, bcm_policer_t policer_id);
int bcm_vlan_port_policer_get(int unit, bcm_vlan_t vid, bcm_port_t port, bcm_policer_t *policer_id);
int bcm_vlan_port_egress_policer_set(int unit, bcm_vlan_t vid, bcm_port_t port,
                                     bcm_policer_t policer_id);
int bcm_vlan_port_egress_policer_get(int unit, bcm_vlan_t vid, bcm_port_t port,
                                     bcm_policer_t *policer_id);

/* Counters of VLANs */
int bcm_vlan_stat_attach(int unit, bcm_vlan_t vlan, uint32 stat_counter_id);
int bcm_vlan_stat_set(int unit, bcm_vlan_t vlan, bcm_cos_t cos, bcm_vlan_stat_t stat, uint64 val);
int bcm_vlan_stat_get(int unit, bcm_vlan_t vlan, bcm_cos_t cos, bcm_vlan_stat_t stat, uint64 *val);
int bcm_vlan_stat_set32(int unit, bcm_vlan_t vlan, bcm_cos_t cos, bcm_vlan_stat_t stat, uint32 val);
int bcm_vlan_stat_get32(int unit, bcm_vlan_t vlan, bcm_cos_t cos, bcm_vlan_stat_t stat,
                        uint32 *val);
int bcm_vlan_stat_sync_get(int unit, bcm_vlan_t vlan, bcm_cos_t cos, bcm_vlan_stat_t stat,
                           uint64 *val);
int bcm_vlan_stat_sync_get32(int unit, bcm_vlan_t vlan, bcm_cos_t cos, bcm_vlan_stat_t stat,
                             uint32 *val);
int bcm_vlan_stat_multi_set(int unit, bcm_vlan_t vlan, bcm_cos_t cos, int nstat,
                            bcm_vlan_stat_t *stat_arr, uint64 *value_arr);
int bcm_vlan_stat_multi_get(int unit, bcm_vlan_t vlan, bcm_cos_t cos, int nstat,
                            bcm_vlan_stat_t *stat_arr, uint64 *value_arr);
int bcm_vlan_stat_multi_set32(int unit, bcm_vlan_t vlan, bcm_cos_t cos, int nstat,
                              bcm_vlan_stat_t *stat_arr, uint32 *value_arr);
int bcm_vlan_stat_multi_get32(int unit, bcm_vlan_t vlan, bcm_cos_t cos, int nstat,
                              bcm_vlan_stat_t *stat_arr, uint32 *value_arr);
int bcm_vlan_stat_id_get(int unit, bcm_vlan_t vlan, bcm_vlan_stat_t stat, uint32 *stat_counter_id);
int bcm_vlan_stat_counter_set(int unit, bcm_vlan_t vlan, bcm_vlan_stat_t stat, uint32 num_entries,
                              uint32 *counter_indexes, bcm_stat_value_t *counter_values);
int bcm_vlan_stat_counter_get(int unit, bcm_vlan_t vlan, bcm_vlan_stat_t stat, uint32 num_entries,
                              uint32 *counter_indexes, bcm_stat_value_t *counter_values);
int bcm_vlan_stat_counter_sync_get(int unit, bcm_vlan_t vlan, bcm_vlan_stat_t stat,
                                   uint32 num_entries, uint32 *counter_indexes,
                                   bcm_stat_value_t *counter_values);
int bcm_vlan_stat_enable_set(int unit, bcm_vlan_t vlan, int enable);
int bcm_vlan_stat_detach(int unit, bcm_vlan_t vlan);
int bcm_vlan_stat_detach_with_id(int unit, bcm_vlan_t vlan, uint32 stat_counter_id);

/* Counters of a port in a VLAN */
int bcm_vlan_port_stat_set(int unit, bcm_vlan_t vlan, bcm_port_t port, bcm_cos_t cos,
                           bcm_vlan_stat_t stat, uint64 val);
int bcm_vlan_port_stat_get(int unit, bcm_vlan_t vlan, bcm_port_t port, bcm_cos_t cos,
                           bcm_vlan_stat_t stat, uint64 *val);
int bcm_vlan_port_stat_set32(int unit, bcm_vlan_t vlan, bcm_port_t port, bcm_cos_t cos,
                             bcm_vlan_stat_t stat, uint32 val);
int bcm_vlan_port_stat_get32(int unit, bcm_vlan_t vlan, bcm_port_t port, bcm_cos_t cos,
                             bcm_vlan_stat_t stat, uint32 *val);
int bcm_vlan_port_stat_multi_set(int unit, bcm_vlan_t vlan, bcm_port_t port, bcm_cos_t cos,
                                 int nstat, bcm_vlan_stat_t *stat_arr, uint64 *value_arr);
int bcm_vlan_port_stat_multi_get(int unit, bcm_vlan_t vlan, bcm_port_t port, bcm_cos_t cos,
                                 int nstat, bcm_vlan_stat_t *stat_arr, uint64 *value_arr);
int bcm_vlan_port_stat_multi_set32(int unit, bcm_vlan_t vlan, bcm_port_t port, bcm_cos_t cos,
                                   int nstat, bcm_vlan_stat_t *stat_arr, uint32 *value_arr);
int bcm_vlan_port_stat_multi_get32(int unit, bcm_vlan_t vlan, bcm_port_t port, bcm_cos_t cos,
                                   int nstat, bcm_vlan_stat_t *stat_arr, uint32 *value_arr);
int bcm_vlan_port_stat_enable_set(int unit, bcm_vlan_t vlan, bcm_port_t port, int enable);
int bcm_vlan_port_stat_enable_get(int unit, bcm_vlan_t vlan, bcm_port_t port, int *enable);

/* Counters of ingress translation */
int bcm_vlan_translate_stat_attach(int unit, bcm_gport_t port, bcm_vlan_translate_key_t key_type,
                                   bcm_vlan_t outer_vlan, bcm_vlan_t inner_vlan,
                                   uint32 stat_counter_id);
int bcm_vlan_translate_stat_set(int unit, bcm_gport_t port, bcm_vlan_translate_key_t key_type,
                                bcm_vlan_t outer_vlan, bcm_vlan_t inner_vlan, bcm_vlan_stat_t stat,
                                uint64 val);
int bcm_vlan_translate_stat_get(int unit, bcm_gport_t port, bcm_vlan_translate_key_t key_type,
                                bcm_vlan_t outer_vlan, bcm_vlan_t inner_vlan, bcm_vlan_stat_t stat,
                                uint64 *val);
int bcm_vlan_translate_stat_set32(int unit, bcm_gport_t port, bcm_vlan_translate_key_t key_type,
                                  bcm_vlan_t outer_vlan, bcm_vlan_t inner_vlan,
                                  bcm_vlan_stat_t stat, uint32 val);
int bcm_vlan_translate_stat_get32(int unit, bcm_gport_t port, bcm_vlan_translate_key_t key_type,
                                  bcm_vlan_t outer_vlan, bcm_vlan_t inner_vlan,
                                  bcm_vlan_stat_t stat, uint32 *val);
int bcm_vlan_translate_stat_sync_get(int unit, bcm_gport_t port, bcm_vlan_translate_key_t key_type,
                                     bcm_vlan_t outer_vlan, bcm_vlan_t inner_vlan,
                                     bcm_vlan_stat_t stat, uint64 *val);
int bcm_vlan_translate_stat_sync_get32(int unit, bcm_gport_t port,
                                       bcm_vlan_translate_key_t key_type, bcm_vlan_t outer_vlan,
                                       bcm_vlan_t inner_vlan, bcm_vlan_stat_t stat, uint32 *val);
int bcm_vlan_translate_stat_multi_set(int unit, bcm_gport_t port, bcm_vlan_translate_key_t key_type,
                                      bcm_vlan_t outer_vlan, bcm_vlan_t inner_vlan, int nstat,
                                      bcm_vlan_stat_t *stat_arr, uint64 *value_arr);
int bcm_vlan_translate_stat_multi_get(int unit, bcm_gport_t port, bcm_vlan_translate_key_t key_type,
                                      bcm_vlan_t outer_vlan, bcm_vlan_t inner_vlan, int nstat,
                                      bcm_vlan_stat_t *stat_arr, uint64 *value_arr);
int bcm_vlan_translate_stat_multi_set32(int unit, bcm_gport_t port,
                                        bcm_vlan_translate_key_t key_type, bcm_vlan_t outer_vlan,
                                        bcm_vlan_t inner_vlan, int nstat, bcm_vlan_stat_t *stat_arr,
                                        uint32 *value_arr);
int bcm_vlan_translate_stat_multi_get32(int unit, bcm_gport_t port,
                                        bcm_vlan_translate_key_t key_type, bcm_vlan_t outer_vlan,
                                        bcm_vlan_t inner_vlan, int nstat, bcm_vlan_stat_t *stat_arr,
                                        uint32 *value_arr);
int bcm_vlan_translate_stat_id_get(int unit, bcm_gport_t port, bcm_vlan_translate_key_t key_type,
                                   bcm_vlan_t outer_vlan, bcm_vlan_t inner_vlan,
                                   bcm_vlan_stat_t stat, uint32 *stat_counter_id);
int bcm_vlan_translate_stat_counter_set(int unit, bcm_gport_t port,
                                        bcm_vlan_translate_key_t key_type, bcm_vlan_t outer_vlan,
                                        bcm_vlan_t inner_vlan, bcm_vlan_stat_t stat,
                                        uint32 num_entries, uint32 *counter_indexes,
                                        bcm_stat_value_t *counter_values);
int bcm_vlan_translate_stat_counter_get(int unit, bcm_gport_t port,
                                        bcm_vlan_translate_key_t key_type, bcm_vlan_t outer_vlan,
                                        bcm_vlan_t inner_vlan, bcm_vlan_stat_t stat,
                                        uint32 num_entries, uint32 *counter_indexes,
                                        bcm_stat_value_t *counter_values);
int bcm_vlan_translate_stat_counter_sync_get(int unit, bcm_gport_t port,
                                             bcm_vlan_translate_key_t key_type,
                                             bcm_vlan_t outer_vlan, bcm_vlan_t inner_vlan,
                                             bcm_vlan_stat_t stat, uint32 num_entries,
                                             uint32 *counter_indexes,
                                             bcm_stat_value_t *counter_values);
int bcm_vlan_translate_stat_enable_set(int unit, bcm_gport_t port,
                                       bcm_vlan_translate_key_t key_type, bcm_vlan_t outer_vlan,
                                       bcm_vlan_t inner_vlan, int enable);
int bcm_vlan_translate_stat_detach(int unit, bcm_gport_t port, bcm_vlan_translate_key_t key_type,
                                   bcm_vlan_t outer_vlan, bcm_vlan_t inner_vlan);

/* Counters of egress translation */
int bcm_vlan_translate_egress_stat_attach(int unit, int port, bcm_vlan_t outer_vlan,
                                          bcm_vlan_t inner_vlan, uint32 stat_counter_id);
int bcm_vlan_translate_egress_stat_set(int unit, int port, bcm_vlan_t outer_vlan,
                                       bcm_vlan_t inner_vlan, bcm_vlan_stat_t stat, uint64 val);
int bcm_vlan_translate_egress_stat_get(int unit, int port, bcm_vlan_t outer_vlan,
                                       bcm_vlan_t inner_vlan, bcm_vlan_stat_t stat, uint64 *val);
int bcm_vlan_translate_egress_stat_set32(int unit, int port, bcm_vlan_t outer_vlan,
                                         bcm_vlan_t inner_vlan, bcm_vlan_stat_t stat, uint32 val);
int bcm_vlan_translate_egress_stat_get32(int unit, int port, bcm_vlan_t outer_vlan,
                                         bcm_vlan_t inner_vlan, bcm_vlan_stat_t stat, uint32 *val);
int bcm_vlan_translate_egress_stat_sync_get(int unit, int port, bcm_vlan_t outer_vlan,
                                            bcm_vlan_t inner_vlan, bcm_vlan_stat_t stat,
                                            uint64 *val);
int bcm_vlan_translate_egress_stat_sync_get32(int unit, int port, bcm_vlan_t outer_vlan,
                                              bcm_vlan_t inner_vlan, bcm_vlan_stat_t stat,
                                              uint32 *val);
int bcm_vlan_translate_egress_stat_multi_set(int unit, int port, bcm_vlan_t outer_vlan,
                                             bcm_vlan_t inner_vlan, int nstat,
                                             bcm_vlan_stat_t *stat_arr, uint64 *value_arr);
int bcm_vlan_translate_egress_stat_multi_get(int unit, int port, bcm_vlan_t outer_vlan,
                                             bcm_vlan_t inner_vlan, int nstat,
                                             bcm_vlan_stat_t *stat_arr, uint64 *value_arr);
int bcm_vlan_translate_egress_stat_multi_set32(int unit, int port, bcm_vlan_t outer_vlan,
                                               bcm_vlan_t inner_vlan, int nstat,
                                               bcm_vlan_stat_t *stat_arr, uint32 *value_arr);
int bcm_vlan_translate_egress_stat_multi_get32(int unit, int port, bcm_vlan_t outer_vlan,
                                               bcm_vlan_t inner_vlan, int nstat,
                                               bcm_vlan_stat_t *stat_arr, uint32 *value_arr);
int bcm_vlan_translate_egress_stat_id_get(int unit, int port, bcm_vlan_t outer_vlan,
                                          bcm_vlan_t inner_vlan, bcm_vlan_stat_t stat,
                                          uint32 *stat_counter_id);
int bcm_vlan_translate_egress_stat_counter_set(int unit, int port, bcm_vlan_t outer_vlan,
                                               bcm_vlan_t inner_vlan, bcm_vlan_stat_t stat,
                                               uint32 num_entries, uint32 *counter_indexes,
                                               bcm_stat_value_t *counter_values);
int bcm_vlan_translate_egress_stat_counter_get(int unit, int port, bcm_vlan_t outer_vlan,
                                               bcm_vlan_t inner_vlan, bcm_vlan_stat_t stat,
                                               uint32 num_entries, uint32 *counter_indexes,
                                               bcm_stat_value_t *counter_values);
int bcm_vlan_translate_egress_stat_counter_sync_get(int unit, int port, bcm_vlan_t outer_vlan,
                                                    bcm_vlan_t inner_vlan, bcm_vlan_stat_t stat,
                                                    uint32 num_entries, uint32 *counter_indexes,
                                                    bcm_stat_value_t *counter_values);
int bcm_vlan_translate_egress_stat_enable_set(int unit, int port, bcm_vlan_t outer_vlan,
                                              bcm_vlan_t inner_vlan, int enable);
int bcm_vlan_translate_egress_stat_detach(int unit, int port, bcm_vlan_t outer_vlan,
                                          bcm_vlan_t inner_vlan);

OMBRA_END_DECLS
