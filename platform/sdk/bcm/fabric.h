/* Fabric: links, crossbars, distribution, multicast, calendars and queue selection. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/fabric_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* Module and controls */
int bcm_fabric_init(int unit);
int bcm_fabric_control_set(int unit, bcm_fabric_control_t type, int arg);
int bcm_fabric_control_get(int unit, bcm_fabric_control_t type, int *arg);
int bcm_fabric_control_redundancy_register(int unit,
                                           bcm_fabric_control_redundancy_handler_t handler);
int bcm_fabric_control_redundancy_unregister(int unit,
                                             bcm_fabric_control_redundancy_handler_t handler);
int bcm_fabric_config_discard_set(int unit, bcm_fabric_config_discard_t *config);
int bcm_fabric_config_discard_get(int unit, bcm_fabric_config_discard_t *config);
int bcm_fabric_module_control_set(int unit, uint32 flags, bcm_module_t modid,
                                  bcm_fabric_module_control_t type, int arg);
int bcm_fabric_module_control_get(int unit, uint32 flags, bcm_module_t modid,
                                  bcm_fabric_module_control_t type, int *arg);

/* Links */
int bcm_fabric_link_connectivity_status_get(int unit, int link_max,
                                            bcm_fabric_link_connectivity_t *connectivity_array,
                                            int *link_count);
int bcm_fabric_link_connectivity_status_single_get(int unit, bcm_port_t link_id,
                                                   bcm_fabric_link_connectivity_t *connectivity);
int bcm_fabric_link_control_set(int unit, bcm_port_t link_id, bcm_fabric_link_control_t type,
                                int arg);
int bcm_fabric_link_control_get(int unit, bcm_port_t link_id, bcm_fabric_link_control_t type,
                                int *arg);
void bcm_fabric_link_remote_pipe_mapping_t_init(bcm_fabric_link_remote_pipe_mapping_t *mapping);
int bcm_fabric_link_remote_pipe_mapping_set(int unit, bcm_port_t link_id,
                                            bcm_fabric_link_remote_pipe_mapping_t *mapping);
int bcm_fabric_link_remote_pipe_mapping_get(int unit, bcm_port_t link_id,
                                            bcm_fabric_link_remote_pipe_mapping_t *mapping);
int bcm_fabric_link_status_get(int unit, bcm_port_t link_id, uint32 *link_status,
                               uint32 *errored_token_count);
int bcm_fabric_link_threshold_add(int unit, uint32 flags, int *threshold_id);
int bcm_fabric_link_threshold_delete(int unit, int threshold_id);
int bcm_fabric_link_thresholds_attach(int unit, int threshold_id, uint32 link_count,
                                      bcm_port_t *link_array);
int bcm_fabric_link_thresholds_set(int unit, int threshold_id, uint32 type_count,
                                   bcm_fabric_link_threshold_type_t *type_array, int *value_array);
int bcm_fabric_link_thresholds_get(int unit, int threshold_id, uint32 type_count,
                                   bcm_fabric_link_threshold_type_t *type_array, int *value_array);
int bcm_fabric_link_thresholds_pipe_set(int unit, int threshold_id, bcm_fabric_pipe_t pipe,
                                        uint32 flags, uint32 type_count,
                                        bcm_fabric_link_threshold_type_t *type_array,
                                        int *value_array);
int bcm_fabric_link_thresholds_pipe_get(int unit, int threshold_id, bcm_fabric_pipe_t pipe,
                                        uint32 flags, uint32 type_count,
                                        bcm_fabric_link_threshold_type_t *type_array,
                                        int *value_array);
int bcm_fabric_link_thresholds_retrieve(int unit, int threshold_id, uint32 link_max,
                                        bcm_port_t *link_array, uint32 *link_count);
int bcm_fabric_link_topology_set(int unit, bcm_module_t modid, int link_count,
                                 bcm_port_t *link_array);
int bcm_fabric_link_topology_get(int unit, bcm_module_t modid, int link_max, int *link_count,
                                 bcm_port_t *link_array);
int bcm_fabric_connection_interval_get(int unit, int modid, int *interval);
int bcm_fabric_connection_max_get(int unit, int modid, int *max);
int bcm_fabric_operating_interval_get(int unit, int modid, int *interval);
int bcm_fabric_connection_bytes_get(int unit, int src_modid, int dest_modid,
                                    bcm_fabric_connection_mode_t mode, int clear, int *bytes);
int bcm_fabric_reachability_status_get(int unit, int modid, int link_max, uint32 *link_array,
                                       int *link_count);
int bcm_fabric_destination_link_min_set(int unit, uint32 flags, bcm_module_t modid, int link_min);
int bcm_fabric_destination_link_min_get(int unit, uint32 flags, bcm_module_t modid, int *link_min);

/* Crossbars */
int bcm_fabric_crossbar_enable_set(int unit, uint64 crossbars);
int bcm_fabric_crossbar_enable_get(int unit, uint64 *crossbars);
int bcm_fabric_crossbar_connection_set(int unit, int crossbar, int src_modid, bcm_port_t src_port,
                                       int dest_modid, bcm_port_t dest_port);
int bcm_fabric_crossbar_connection_get(int unit, int crossbar, int src_modid, bcm_port_t src_port,
                                       int dest_modid, bcm_port_t *dest_port);
int bcm_fabric_crossbar_connection_status_get(int unit, int src_modid, int dest_modid,
                                              bcm_fabric_connection_mode_t mode, uint64 *crossbars);
int bcm_fabric_crossbar_mapping_set(int unit, int crossbar, int modid, int index, bcm_port_t port);
int bcm_fabric_crossbar_mapping_get(int unit, int crossbar, int modid, int index, bcm_port_t *port);
int bcm_fabric_crossbar_status_get(int unit, uint64 *crossbars);

/* Modules and routes */
int bcm_fabric_modid_group_set(int unit, bcm_module_t group_modid, int modid_count,
                               bcm_module_t *modid_array);
int bcm_fabric_modid_group_get(int unit, bcm_module_t group_modid, int modid_max,
                               bcm_module_t *modid_array, int *modid_count);
int bcm_fabric_modid_group_find(int unit, bcm_module_t modid, bcm_module_t *group_modid);
int bcm_fabric_modid_local_mapping_set(int unit, bcm_module_t modid, bcm_module_t local_modid);
int bcm_fabric_modid_local_mapping_get(int unit, bcm_module_t modid, bcm_module_t *local_modid);
int bcm_fabric_route_rx(int unit, uint32 flags, uint32 data_out_max, uint32 *data_out,
                        uint32 *data_out_size);
void bcm_fabric_route_t_init(bcm_fabric_route_t *route);
int bcm_fabric_route_tx(int unit, uint32 flags, bcm_fabric_route_t *route, uint32 data_in_size,
                        uint32 *data_in);
int bcm_fabric_congestion_size_set(int unit, bcm_module_t modid, int size);
int bcm_fabric_congestion_size_get(int unit, bcm_module_t modid, int *size);
void bcm_fabric_rci_config_t_init(bcm_fabric_rci_config_t *config);
int bcm_fabric_rci_config_set(int unit, bcm_fabric_rci_config_t config);
int bcm_fabric_rci_config_get(int unit, bcm_fabric_rci_config_t *config);
int bcm_fabric_pcp_dest_mode_config_set(int unit, uint32 flags, bcm_module_t modid,
                                        bcm_fabric_pcp_mode_config_t *config);
int bcm_fabric_pcp_dest_mode_config_get(int unit, uint32 flags, bcm_module_t modid,
                                        bcm_fabric_pcp_mode_config_t *config);

/* Distribution groups */
int bcm_fabric_distribution_create(int unit, uint32 flags, bcm_fabric_distribution_t *ds_id);
int bcm_fabric_distribution_set(int unit, bcm_fabric_distribution_t ds_id, int link_count,
                                int *link_array);
int bcm_fabric_distribution_get(int unit, bcm_fabric_distribution_t ds_id, int link_max,
                                int *link_array, int *link_count);
int bcm_fabric_distribution_destroy(int unit, bcm_fabric_distribution_t ds_id);
int bcm_fabric_distribution_control_set(int unit, bcm_fabric_distribution_t ds_id,
                                        bcm_fabric_distribution_control_t type, int arg);
int bcm_fabric_distribution_control_get(int unit, bcm_fabric_distribution_t ds_id,
                                        bcm_fabric_distribution_control_t type, int *arg);

/* Multicast and replication */
int bcm_fabric_multicast_set(int unit, bcm_multicast_t group, uint32 flags, uint32 destid_count,
                             bcm_module_t *destid_array);
int bcm_fabric_multicast_get(int unit, bcm_multicast_t group, uint32 flags, int destid_count_max,
                             int *destid_count, bcm_module_t *destid_array);
int bcm_fabric_multicast_multi_set(int unit, uint32 flags, uint32 group_count,
                                   bcm_multicast_t *group_array,
                                   bcm_fabric_module_vector_t *modvec_array);
int bcm_fabric_multicast_multi_get(int unit, uint32 flags, uint32 group_count,
                                   bcm_multicast_t *group_array,
                                   bcm_fabric_module_vector_t *modvec_array);
int bcm_fabric_static_replication_set(int unit, bcm_port_t port, uint32 flags, uint32 destid_count,
                                      bcm_module_t *destid_array);

/* Ports */
int bcm_fabric_port_create(int unit, bcm_gport_t port, int numq, uint32 flags,
                           bcm_gport_t *fabric_port);
int bcm_fabric_port_get(int unit, bcm_gport_t port, uint32 flags, bcm_gport_t *fabric_port);
int bcm_fabric_port_destroy(int unit, bcm_gport_t port);
int bcm_fabric_port_failover_set(int unit, bcm_gport_t port, bcm_failover_t failover_id,
                                 bcm_gport_t failover_port);
int bcm_fabric_port_failover_get(int unit, bcm_gport_t port, bcm_failover_t *failover_id,
                                 bcm_gport_t *failover_port);

/* Priorities, calendars and bandwidth */
int bcm_fabric_priority_set(int unit, uint32 flags, bcm_cos_t cos, bcm_color_t color,
                            int fabric_priority);
int bcm_fabric_priority_get(int unit, uint32 flags, bcm_cos_t cos, bcm_color_t color,
                            int *fabric_priority);
int bcm_fabric_calendar_set(int unit, int index, int modid, bcm_gport_t gport,
                            bcm_cos_queue_t cosq);
int bcm_fabric_calendar_get(int unit, int index, int *modid, bcm_gport_t *gport,
                            bcm_cos_queue_t *cosq);
int bcm_fabric_calendar_multi_set(int unit, int calendar_id, int *entry_count,
                                  bcm_gport_t *gport_array, bcm_cos_queue_t *cosq_array);
int bcm_fabric_calendar_multi_get(int unit, int calendar_id, int *entry_count,
                                  bcm_gport_t *gport_array, bcm_cos_queue_t *cosq_array);
int bcm_fabric_calendar_active(int unit);
int bcm_fabric_calendar_max_get(int unit, int *max);
int bcm_fabric_calendar_size_set(int unit, int size);
int bcm_fabric_calendar_size_get(int unit, int *size);
int bcm_fabric_bandwidth_core_profile_set(int unit, int profile_id, uint32 flags, int core,
                                          bcm_fabric_bandwidth_profile_t *profile);
int bcm_fabric_bandwidth_core_profile_get(int unit, int profile_id, uint32 flags, int core,
                                          bcm_fabric_bandwidth_profile_t *profile);
int bcm_fabric_bandwidth_profile_set(int unit, int profile_id,
                                     bcm_fabric_bandwidth_profile_t *profile);
int bcm_fabric_bandwidth_profile_get(int unit, int profile_id,
                                     bcm_fabric_bandwidth_profile_t *profile);
int bcm_fabric_packet_adjust_set(int unit, int modid, int adjust);
int bcm_fabric_packet_adjust_get(int unit, int modid, int *adjust);

/* TDM */
int bcm_fabric_tdm_enable_set(int unit, int enable);
int bcm_fabric_tdm_enable_get(int unit, int *enable);
int bcm_fabric_tdm_direct_routing_set(int unit, bcm_gport_t gport,
                                      bcm_fabric_tdm_direct_routing_t *routing);
int bcm_fabric_tdm_direct_routing_get(int unit, bcm_gport_t gport,
                                      bcm_fabric_tdm_direct_routing_t *routing);
void bcm_fabric_tdm_editing_t_init(bcm_fabric_tdm_editing_t *editing);
int bcm_fabric_tdm_editing_set(int unit, bcm_gport_t gport, bcm_fabric_tdm_editing_t *editing);
int bcm_fabric_tdm_editing_get(int unit, bcm_gport_t gport, bcm_fabric_tdm_editing_t *editing);

/* Predicates and actions */
void bcm_fabric_predicate_info_t_init(int unit, bcm_fabric_predicate_info_t *info);
int bcm_fabric_predicate_create(int unit, bcm_fabric_predicate_info_t *info,
                                bcm_fabric_predicate_t *predicate);
int bcm_fabric_predicate_get(int unit, bcm_fabric_predicate_t predicate,
                             bcm_fabric_predicate_info_t *info);
int bcm_fabric_predicate_destroy(int unit, bcm_fabric_predicate_t predicate);
int bcm_fabric_predicate_destroy_all(int unit);
int bcm_fabric_predicate_traverse(int unit, bcm_fabric_predicate_traverse_cb cb, void *user_data);
void bcm_fabric_predicate_action_info_t_init(int unit, bcm_fabric_predicate_action_info_t *info);
int bcm_fabric_predicate_action_create(int unit, bcm_fabric_predicate_action_info_t *info,
                                       bcm_fabric_predicate_action_t *predicate_action);
int bcm_fabric_predicate_action_get(int unit, bcm_fabric_predicate_action_t predicate_action,
                                    bcm_fabric_predicate_action_info_t *info);
int bcm_fabric_predicate_action_destroy(int unit, bcm_fabric_predicate_action_t predicate_action);
int bcm_fabric_predicate_action_destroy_all(int unit);
int bcm_fabric_predicate_action_traverse(int unit, bcm_fabric_predicate_action_traverse_cb cb,
                                         void *user_data);
void bcm_fabric_action_info_t_init(int unit, bcm_fabric_action_info_t *info);
int bcm_fabric_action_create(int unit, bcm_fabric_action_info_t *info, bcm_fabric_action_t *action);
int bcm_fabric_action_get(int unit, bcm_fabric_action_t action, bcm_fabric_action_info_t *info);
int bcm_fabric_action_destroy(int unit, bcm_fabric_action_t action);
int bcm_fabric_action_destroy_all(int unit);
int bcm_fabric_action_traverse(int unit, bcm_fabric_action_traverse_cb cb, void *user_data);

/* Queue selection tables */
int bcm_fabric_qsel_create(int unit, uint32 flags, int entry_count, int offset_count,
                           bcm_fabric_qsel_t *qsel);
int bcm_fabric_qsel_get(int unit, bcm_fabric_qsel_t qsel, uint32 *flags, int *entry_count,
                        int *offset_count);
int bcm_fabric_qsel_destroy(int unit, bcm_fabric_qsel_t qsel);
int bcm_fabric_qsel_destroy_all(int unit);
int bcm_fabric_qsel_traverse(int unit, bcm_fabric_qsel_traverse_cb cb, void *user_data);
int bcm_fabric_qsel_entry_set(int unit, bcm_fabric_qsel_t qsel, int entry, bcm_gport_t gport,
                              bcm_fabric_qsel_offset_t offset);
int bcm_fabric_qsel_entry_get(int unit, bcm_fabric_qsel_t qsel, int entry, bcm_gport_t *gport,
                              bcm_fabric_qsel_offset_t *offset);
int bcm_fabric_qsel_entry_multi_set(int unit, bcm_fabric_qsel_t qsel, int first_entry,
                                    int entry_count, bcm_gport_t *gport_array,
                                    bcm_fabric_qsel_offset_t *offset_array);
int bcm_fabric_qsel_entry_multi_get(int unit, bcm_fabric_qsel_t qsel, int first_entry,
                                    int entry_count, bcm_gport_t *gport_array,
                                    bcm_fabric_qsel_offset_t *offset_array);
int bcm_fabric_qsel_entry_traverse(int unit, bcm_fabric_qsel_t qsel,
                                   bcm_fabric_qsel_entry_traverse_cb cb, void *user_data);
int bcm_fabric_qsel_offset_create(int unit, uint32 flags, bcm_fabric_qsel_offset_t *offset);
int bcm_fabric_qsel_offset_destroy(int unit, bcm_fabric_qsel_offset_t offset);
int bcm_fabric_qsel_offset_destroy_all(int unit);
int bcm_fabric_qsel_offset_traverse(int unit, bcm_fabric_qsel_offset_traverse_cb cb,
                                    void *user_data);
int bcm_fabric_qsel_offset_entry_set(int unit, bcm_fabric_qsel_offset_t offset, bcm_cos_t cos,
                                     int value);
int bcm_fabric_qsel_offset_entry_get(int unit, bcm_fabric_qsel_offset_t offset, bcm_cos_t cos,
                                     int *value);
int bcm_fabric_qsel_offset_entry_traverse(int unit, bcm_fabric_qsel_offset_t offset,
                                          bcm_fabric_qsel_offset_entry_traverse_cb cb,
                                          void *user_data);

OMBRA_END_DECLS
