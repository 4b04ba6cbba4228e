/* OAM: watching paths: groups, endpoints, measurement, fault messages and events. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/oam_types.h"
#include "sdk/bcm/pkt_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* Module and controls */
int bcm_oam_init(int unit);
int bcm_oam_detach(int unit);
int bcm_oam_control_set(int unit, bcm_oam_control_type_t type, uint64 arg);
int bcm_oam_control_get(int unit, bcm_oam_control_type_t type, uint64 *arg);

/* Groups */
void bcm_oam_group_info_t_init(bcm_oam_group_info_t *group_info);
int bcm_oam_group_create(int unit, bcm_oam_group_info_t *group_info);
int bcm_oam_group_get(int unit, bcm_oam_group_t group, bcm_oam_group_info_t *group_info);
int bcm_oam_group_destroy(int unit, bcm_oam_group_t group);
int bcm_oam_group_destroy_all(int unit);
int bcm_oam_group_traverse(int unit, bcm_oam_group_traverse_cb cb, void *user_data);

/* Endpoints */
void bcm_oam_endpoint_info_t_init(bcm_oam_endpoint_info_t *endpoint_info);
int bcm_oam_endpoint_create(int unit, bcm_oam_endpoint_info_t *endpoint_info);
int bcm_oam_endpoint_get(int unit, bcm_oam_endpoint_t endpoint,
                         bcm_oam_endpoint_info_t *endpoint_info);
int bcm_oam_endpoint_destroy(int unit, bcm_oam_endpoint_t endpoint);
int bcm_oam_endpoint_destroy_all(int unit, bcm_oam_group_t group);
int bcm_oam_endpoint_traverse(int unit, bcm_oam_group_t group, bcm_oam_endpoint_traverse_cb cb,
                              void *user_data);
void bcm_oam_endpoint_action_t_init(bcm_oam_endpoint_action_t *action);
int bcm_oam_endpoint_action_set(int unit, bcm_oam_endpoint_t endpoint,
                                bcm_oam_endpoint_action_t *action);
int bcm_oam_endpoint_egress_intf_egress_attach(int unit, bcm_oam_endpoint_t endpoint,
                                               bcm_if_t intf);
int bcm_oam_endpoint_egress_intf_egress_detach(int unit, bcm_oam_endpoint_t endpoint,
                                               bcm_if_t intf);
int bcm_oam_endpoint_egress_intf_egress_attach_get(int unit, bcm_oam_endpoint_t endpoint,
                                                   int intf_max, bcm_if_t *intf_array,
                                                   int *intf_count);
int bcm_oam_endpoint_faults_multi_get(int unit, uint32 flags, bcm_oam_protocol_type_t protocol,
                                      uint32 fault_max, bcm_oam_endpoint_fault_t *fault_array,
                                      uint32 *fault_count);
int bcm_oam_endpoint_gport_egress_attach(int unit, bcm_oam_endpoint_t endpoint, bcm_gport_t gport);
int bcm_oam_endpoint_gport_egress_detach(int unit, bcm_oam_endpoint_t endpoint, bcm_gport_t gport);
int bcm_oam_endpoint_gport_egress_attach_get(int unit, bcm_oam_endpoint_t endpoint, int gport_max,
                                             bcm_gport_t *gport_array, int *gport_count);
int bcm_oam_trunk_ports_add(int unit, bcm_gport_t trunk_gport, int member_count,
                            bcm_gport_t *member_array);
int bcm_oam_trunk_ports_get(int unit, bcm_gport_t trunk_gport, int member_max,
                            bcm_gport_t *member_array, int *member_count);
int bcm_oam_trunk_ports_delete(int unit, bcm_gport_t trunk_gport, int member_count,
                               bcm_gport_t *member_array);

/* Delay and loss measurement */
void bcm_oam_delay_t_init(bcm_oam_delay_t *delay_ptr);
int bcm_oam_delay_add(int unit, bcm_oam_delay_t *delay_ptr);
int bcm_oam_delay_get(int unit, bcm_oam_delay_t *delay_ptr);
int bcm_oam_delay_delete(int unit, bcm_oam_delay_t *delay_ptr);
void bcm_oam_loss_t_init(bcm_oam_loss_t *loss_ptr);
int bcm_oam_loss_add(int unit, bcm_oam_loss_t *loss_ptr);
int bcm_oam_loss_get(int unit, bcm_oam_loss_t *loss_ptr);
int bcm_oam_loss_delete(int unit, bcm_oam_loss_t *loss_ptr);

/* Fault and protection messages */
void bcm_oam_ais_t_init(bcm_oam_ais_t *ais_ptr);
int bcm_oam_ais_add(int unit, bcm_oam_ais_t *ais_ptr);
int bcm_oam_ais_get(int unit, bcm_oam_ais_t *ais_ptr);
int bcm_oam_ais_delete(int unit, bcm_oam_ais_t *ais_ptr);
void bcm_oam_csf_t_init(bcm_oam_csf_t *csf_ptr);
int bcm_oam_csf_add(int unit, bcm_oam_csf_t *csf_ptr);
int bcm_oam_csf_get(int unit, bcm_oam_csf_t *csf_ptr);
int bcm_oam_csf_delete(int unit, bcm_oam_csf_t *csf_ptr);
void bcm_oam_psc_t_init(bcm_oam_psc_t *psc_ptr);
int bcm_oam_psc_add(int unit, bcm_oam_psc_t *psc_ptr);
int bcm_oam_psc_get(int unit, bcm_oam_psc_t *psc_ptr);
int bcm_oam_psc_delete(int unit, bcm_oam_psc_t *psc_ptr);
void bcm_oam_pw_status_t_init(bcm_oam_pw_status_t *pw_status_ptr);
int bcm_oam_pw_status_add(int unit, bcm_oam_pw_status_t *pw_status_ptr);
int bcm_oam_pw_status_get(int unit, bcm_oam_pw_status_t *pw_status_ptr);
int bcm_oam_pw_status_delete(int unit, bcm_oam_pw_status_t *pw_status_ptr);
void bcm_oam_sd_sf_detection_t_init(bcm_oam_sd_sf_detection_t *detection_ptr);
int bcm_oam_sd_sf_detection_add(int unit, bcm_oam_sd_sf_detection_t *detection_ptr);
int bcm_oam_sd_sf_detection_get(int unit, bcm_oam_sd_sf_detection_t *detection_ptr);
int bcm_oam_sd_sf_detection_delete(int unit, bcm_oam_sd_sf_detection_t *detection_ptr);
void bcm_oam_y_1711_alarm_t_init(bcm_oam_y_1711_alarm_t *alarm_ptr);
int bcm_oam_y_1711_alarm_add(int unit, bcm_oam_y_1711_alarm_t *alarm_ptr);
int bcm_oam_y_1711_alarm_get(int unit, bcm_oam_y_1711_alarm_t *alarm_ptr);
int bcm_oam_y_1711_alarm_delete(int unit, bcm_oam_y_1711_alarm_t *alarm_ptr);

/* Loopback and test frames */
void bcm_oam_loopback_t_init(bcm_oam_loopback_t *loopback_ptr);
int bcm_oam_loopback_add(int unit, bcm_oam_loopback_t *loopback_ptr);
int bcm_oam_loopback_get(int unit, bcm_oam_loopback_t *loopback_ptr);
int bcm_oam_loopback_delete(int unit, bcm_oam_loopback_t *loopback_ptr);
void bcm_oam_tst_rx_t_init(bcm_oam_tst_rx_t *tst_rx_ptr);
int bcm_oam_tst_rx_add(int unit, bcm_oam_tst_rx_t *tst_rx_ptr);
int bcm_oam_tst_rx_get(int unit, bcm_oam_tst_rx_t *tst_rx_ptr);
int bcm_oam_tst_rx_delete(int unit, bcm_oam_tst_rx_t *tst_rx_ptr);
void bcm_oam_tst_tx_t_init(bcm_oam_tst_tx_t *tst_tx_ptr);
int bcm_oam_tst_tx_add(int unit, bcm_oam_tst_tx_t *tst_tx_ptr);
int bcm_oam_tst_tx_get(int unit, bcm_oam_tst_tx_t *tst_tx_ptr);
int bcm_oam_tst_tx_delete(int unit, bcm_oam_tst_tx_t *tst_tx_ptr);

/* Performance monitoring */
int bcm_oam_pm_event_register(int unit, bcm_oam_event_types_t event_types, bcm_oam_pm_event_cb cb,
                              void *user_data);
int bcm_oam_pm_event_unregister(int unit, bcm_oam_event_types_t event_types,
                                bcm_oam_pm_event_cb cb);
int bcm_oam_pm_profile_create(int unit, bcm_oam_pm_profile_info_t *profile_info);
int bcm_oam_pm_profile_attach(int unit, bcm_oam_endpoint_t endpoint, int profile_id);
int bcm_oam_pm_profile_get(int unit, bcm_oam_pm_profile_info_t *profile_info);
int bcm_oam_pm_profile_detach(int unit, bcm_oam_endpoint_t endpoint, int profile_id);
int bcm_oam_pm_profile_delete(int unit, bcm_oam_pm_profile_t profile_id);
int bcm_oam_pm_profile_delete_all(int unit);
int bcm_oam_pm_profile_traverse(int unit, bcm_oam_pm_profile_traverse_cb cb, void *user_data);
int bcm_oam_pm_profile_attach_get(int unit, bcm_oam_endpoint_t endpoint, int *profile_id);
int bcm_oam_pm_raw_data_read_done(int unit, bcm_oam_event_types_t event_types, uint32 read_offset);
int bcm_oam_pm_stats_get(int unit, bcm_oam_endpoint_t endpoint, bcm_oam_pm_stats_t *stats);

/* Opcodes, lookup and channels */
int bcm_oam_opcode_group_set(int unit, bcm_oam_protocol_type_t protocol, bcm_oam_opcodes_t opcodes,
                             uint8 group);
int bcm_oam_opcode_group_get(int unit, bcm_oam_protocol_type_t protocol, bcm_oam_opcode_t opcode,
                             uint8 *group);
int bcm_oam_opcode_map_set(int unit, int opcode, int traffic_class);
int bcm_oam_opcode_map_get(int unit, int opcode, int *traffic_class);
int bcm_oam_opcodes_count_profile_create(int unit, uint8 *profile_id);
int bcm_oam_opcodes_count_profile_set(int unit, uint8 profile_id, uint8 counter_id,
                                      bcm_oam_opcodes_t *opcodes);
int bcm_oam_opcodes_count_profile_get(int unit, uint8 profile_id, uint8 counter_id,
                                      bcm_oam_opcodes_t *opcodes);
int bcm_oam_opcodes_count_profile_delete(int unit, uint8 profile_id);
int bcm_oam_lookup_enable_set(int unit, bcm_oam_lookup_type_t lookup_type,
                              bcm_oam_condition_t condition, int enable);
int bcm_oam_lookup_enable_get(int unit, bcm_oam_lookup_type_t lookup_type,
                              bcm_oam_conditions_t *conditions);
int bcm_oam_lookup_enable_multi_set(int unit, bcm_oam_lookup_types_t lookup_types,
                                    bcm_oam_conditions_t conditions, int enable);
int bcm_oam_mpls_tp_channel_type_rx_set(int unit, bcm_oam_mpls_tp_channel_type_t channel_type,
                                        int num_values, int *value_array);
int bcm_oam_mpls_tp_channel_type_rx_get(int unit, bcm_oam_mpls_tp_channel_type_t channel_type,
                                        int value_max, int *value_array, int *value_count);
int bcm_oam_mpls_tp_channel_type_tx_set(int unit, bcm_oam_mpls_tp_channel_type_t channel_type,
                                        int value);
int bcm_oam_mpls_tp_channel_type_tx_get(int unit, bcm_oam_mpls_tp_channel_type_t channel_type,
                                        int *value);
int bcm_oam_protection_packet_header_set(int unit, bcm_pkt_blk_t *packet_header);
int bcm_oam_protection_packet_header_get(int unit, bcm_pkt_blk_t *packet_header);

/* Events */
int bcm_oam_event_register(int unit, bcm_oam_event_types_t event_types, bcm_oam_event_cb cb,
                           void *user_data);
int bcm_oam_event_unregister(int unit, bcm_oam_event_types_t event_types, bcm_oam_event_cb cb);
int bcm_oam_performance_event_register(int unit, bcm_oam_event_types_t event_types,
                                       bcm_oam_performance_event_cb cb, void *user_data);
int bcm_oam_performance_event_unregister(int unit, bcm_oam_event_types_t event_types,
                                         bcm_oam_performance_event_cb cb);
void bcm_oam_performance_event_data_t_init(bcm_oam_performance_event_data_t *event_data);

OMBRA_END_DECLS
