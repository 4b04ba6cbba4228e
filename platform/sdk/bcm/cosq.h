/* Cosq: the queue hierarchy, its schedulers, discard profiles, flow control and statistics. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/bcm/cosq_types.h"
#include "sdk/bcm/switch_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* Module */
int bcm_cosq_init(int unit);
int bcm_cosq_detach(int unit);
int bcm_cosq_config_set(int unit, int numq);
int bcm_cosq_config_get(int unit, int *numq);

/* Queues of a port */
int bcm_cosq_mapping_set(int unit, bcm_cos_t priority, bcm_cos_queue_t cosq);
int bcm_cosq_mapping_get(int unit, bcm_cos_t priority, bcm_cos_queue_t *cosq);
int bcm_cosq_port_mapping_set(int unit, bcm_port_t port, bcm_cos_t priority, bcm_cos_queue_t cosq);
int bcm_cosq_port_mapping_get(int unit, bcm_port_t port, bcm_cos_t priority, bcm_cos_queue_t *cosq);
int bcm_cosq_port_mapping_multi_set(int unit, bcm_port_t port, int array_max,
                                    bcm_cos_t *priority_array, bcm_cos_queue_t *cosq_array);
int bcm_cosq_port_mapping_multi_get(int unit, bcm_port_t port, int array_max,
                                    bcm_cos_t *priority_array, bcm_cos_queue_t *cosq_array);
int bcm_cosq_port_sched_set(int unit, bcm_pbmp_t pbm, int mode, int const weights[8], int delay);
int bcm_cosq_port_sched_get(int unit, bcm_pbmp_t pbm, int *mode, int weights[8], int *delay);
int bcm_cosq_sched_set(int unit, int mode, int const weights[8], int delay);
int bcm_cosq_sched_get(int unit, int *mode, int weights[8], int *delay);
int bcm_cosq_sched_weight_max_get(int unit, int mode, int *weight_max);
int bcm_cosq_port_bandwidth_set(int unit, bcm_port_t port, bcm_cos_queue_t cosq,
                                uint32 kbits_sec_min, uint32 kbits_sec_max, uint32 flags);
int bcm_cosq_port_bandwidth_get(int unit, bcm_port_t port, bcm_cos_queue_t cosq,
                                uint32 *kbits_sec_min, uint32 *kbits_sec_max, uint32 *flags);
int bcm_cosq_discard_set(int unit, uint32 flags);
int bcm_cosq_discard_get(int unit, uint32 *flags);
int bcm_cosq_discard_port_set(int unit, bcm_port_t port, bcm_cos_queue_t cosq, uint32 color,
                              int drop_start, int drop_slope, int average_time);
int bcm_cosq_discard_port_get(int unit, bcm_port_t port, bcm_cos_queue_t cosq, uint32 color,
                              int *drop_start, int *drop_slope, int *average_time);
int bcm_cosq_cpu_cosq_enable_set(int unit, bcm_cos_queue_t cosq, int enable);
int bcm_cosq_cpu_cosq_enable_get(int unit, bcm_cos_queue_t cosq, int *enable);
int bcm_cosq_priority_set(int unit, int profile_id, int cos, int priority);
int bcm_cosq_priority_get(int unit, int profile_id, int cos, int *priority);
int bcm_cosq_priority_profile_set(int unit, int profile_id, int flags,
                                  bcm_cosq_gport_priority_profile_t *profile);
int bcm_cosq_priority_profile_get(int unit, int profile_id, int *flags,
                                  bcm_cosq_gport_priority_profile_t *profile);

/* Schedulers and queues as global ports */
int bcm_cosq_gport_add(int unit, bcm_gport_t port, int numq, uint32 flags, bcm_gport_t *gport);
int bcm_cosq_gport_attach(int unit, bcm_gport_t sched_gport, bcm_gport_t input_gport,
                          bcm_cos_queue_t cosq);
int bcm_cosq_gport_get(int unit, bcm_gport_t gport, bcm_gport_t *physical_port, int *numq,
                       uint32 *flags);
int bcm_cosq_gport_detach(int unit, bcm_gport_t sched_gport, bcm_gport_t input_gport,
                          bcm_cos_queue_t cosq);
int bcm_cosq_gport_delete(int unit, bcm_gport_t gport);
int bcm_cosq_gport_traverse(int unit, bcm_cosq_gport_traverse_cb cb, void *user_data);
int bcm_cosq_gport_attach_get(int unit, bcm_gport_t sched_gport, bcm_gport_t *input_gport,
                              bcm_cos_queue_t *cosq);
int bcm_cosq_gport_child_get(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq,
                             bcm_gport_t *child_gport);
int bcm_cosq_gport_connection_set(int unit, bcm_cosq_gport_connection_t *connection);
int bcm_cosq_gport_connection_get(int unit, bcm_cosq_gport_connection_t *connection);
int bcm_cosq_gport_destmod_attach(int unit, bcm_gport_t gport, bcm_port_t ingress_port,
                                  bcm_module_t dest_modid, int fabric_egress_port);
int bcm_cosq_gport_destmod_detach(int unit, bcm_gport_t gport, bcm_port_t ingress_port,
                                  bcm_module_t dest_modid, int fabric_egress_port);
int bcm_cosq_gport_handle_get(int unit, bcm_cosq_gport_type_t type, bcm_cosq_gport_info_t *info);
int bcm_cosq_gport_handle_core_get(int unit, bcm_core_t core, bcm_cosq_gport_info_core_t *info,
                                   bcm_gport_t *gport);
int bcm_cosq_gport_mapping_set(int unit, bcm_port_t port, bcm_cos_t priority, uint32 flags,
                               bcm_gport_t gport, bcm_cos_queue_t cosq);
int bcm_cosq_gport_mapping_get(int unit, bcm_port_t port, bcm_cos_t priority, uint32 flags,
                               bcm_gport_t *gport, bcm_cos_queue_t *cosq);
int bcm_cosq_gport_multipath_add(int unit, bcm_gport_t gport, bcm_gport_t member_gport,
                                 bcm_cos_queue_t cosq);
int bcm_cosq_gport_multipath_get(int unit, bcm_gport_t gport, int member_max,
                                 bcm_gport_t *member_array, bcm_cos_queue_t *cosq_array,
                                 int *member_count);
int bcm_cosq_gport_multipath_delete(int unit, bcm_gport_t gport, bcm_gport_t member_gport,
                                    bcm_cos_queue_t cosq);
int bcm_cosq_gport_parent_get(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq,
                              bcm_gport_t *parent_gport);
int bcm_cosq_gport_queue_attach(int unit, uint32 flags, bcm_gport_t ingress_port,
                                bcm_cos_t ingress_pri, bcm_gport_t out_gport, bcm_cos_t out_queue,
                                int *queue_id);
int bcm_cosq_gport_queue_detach(int unit, bcm_gport_t gport, bcm_cos_t ingress_pri, int queue_id);
int bcm_cosq_gport_queue_attach_get(int unit, bcm_gport_t gport, bcm_cos_t ingress_pri,
                                    bcm_gport_t *out_gport, bcm_cos_t *out_queue, int queue_id);
int bcm_cosq_gport_reattach(int unit, bcm_gport_t sched_gport, bcm_gport_t input_gport,
                            bcm_cos_queue_t cosq);

/* Bandwidth, size and discard of a global port */
int bcm_cosq_gport_enable_set(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq, int enable);
int bcm_cosq_gport_enable_get(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq, int *enable);
int bcm_cosq_gport_bandwidth_set(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq,
                                 uint32 kbits_sec_min, uint32 kbits_sec_max, uint32 flags);
int bcm_cosq_gport_bandwidth_get(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq,
                                 uint32 *kbits_sec_min, uint32 *kbits_sec_max, uint32 *flags);
int bcm_cosq_gport_color_size_set(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq,
                                  bcm_color_t color, uint32 flags,
                                  bcm_cosq_gport_size_t *gport_size);
int bcm_cosq_gport_color_size_get(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq,
                                  bcm_color_t color, uint32 flags,
                                  bcm_cosq_gport_size_t *gport_size);
void bcm_cosq_congestion_info_t_init(bcm_cosq_congestion_info_t *config);
int bcm_cosq_gport_congestion_config_set(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq,
                                         bcm_cosq_congestion_info_t *config);
int bcm_cosq_gport_congestion_config_get(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq,
                                         bcm_cosq_congestion_info_t *config);
void bcm_cosq_gport_discard_t_init(bcm_cosq_gport_discard_t *discard);
int bcm_cosq_gport_discard_set(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq,
                               bcm_cosq_gport_discard_t *discard);
int bcm_cosq_gport_discard_get(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq,
                               bcm_cosq_gport_discard_t *discard);
void bcm_cosq_object_id_t_init(bcm_cosq_object_id_t *id);
int bcm_cosq_gport_discard_extended_set(int unit, bcm_cosq_object_id_t *id,
                                        bcm_cosq_gport_discard_t *discard);
int bcm_cosq_gport_discard_extended_get(int unit, bcm_cosq_object_id_t *id,
                                        bcm_cosq_gport_discard_t *discard);
int bcm_cosq_gport_dynamic_sched_set(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq,
                                     bcm_cosq_dynamic_state_t state, int enable);
int bcm_cosq_gport_dynamic_sched_get(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq,
                                     bcm_cosq_dynamic_state_t state, int *enable);
void bcm_cosq_fadt_info_t_init(bcm_cosq_fadt_info_t *info);
int bcm_cosq_gport_fadt_threshold_set(int unit, uint32 flags, bcm_cosq_fadt_info_t *info,
                                      bcm_cosq_fadt_threshold_t *threshold);
int bcm_cosq_gport_fadt_threshold_get(int unit, uint32 flags, bcm_cosq_fadt_info_t *info,
                                      bcm_cosq_fadt_threshold_t *threshold);
int bcm_cosq_gport_pkt_size_adjust_set(int unit, bcm_cosq_pkt_size_adjust_info_t *info, int adjust);
int bcm_cosq_gport_pkt_size_adjust_get(int unit, bcm_cosq_pkt_size_adjust_info_t *info,
                                       int *adjust);
int bcm_cosq_gport_pon_link_sla_set(int unit, bcm_gport_t gport, bcm_cos_pon_link_sla_t *sla);
int bcm_cosq_gport_pon_link_sla_get(int unit, bcm_gport_t gport, bcm_cos_pon_link_sla_t *sla);
int bcm_cosq_gport_report_threshold_set(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq,
                                        bcm_cosq_report_threshold_t *threshold);
int bcm_cosq_gport_report_threshold_get(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq,
                                        bcm_cosq_report_threshold_t *threshold);
int bcm_cosq_gport_sched_set(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq, int mode,
                             int weight);
int bcm_cosq_gport_sched_get(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq, int *mode,
                             int *weight);
int bcm_cosq_gport_sched_config_set(int unit, bcm_gport_t gport, int num_levels, int level,
                                    uint32 flags);
int bcm_cosq_gport_sched_config_get(int unit, bcm_gport_t gport, int num_levels, int level,
                                    uint32 *flags);
int bcm_cosq_gport_size_set(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq, uint32 bytes_min,
                            uint32 bytes_max);
int bcm_cosq_gport_size_get(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq, uint32 *bytes_min,
                            uint32 *bytes_max);
void bcm_cosq_threshold_t_init(bcm_cosq_threshold_t *threshold);
int bcm_cosq_gport_threshold_set(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq,
                                 bcm_cosq_threshold_t *threshold);
int bcm_cosq_gport_threshold_get(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq,
                                 bcm_cosq_threshold_t *threshold);

/* Egress maps and multicast */
int bcm_cosq_gport_egress_map_set(int unit, bcm_gport_t gport, bcm_cos_t ingress_pri,
                                  bcm_color_t color, bcm_cos_queue_t cosq);
int bcm_cosq_gport_egress_map_get(int unit, bcm_gport_t gport, bcm_cos_t ingress_pri,
                                  bcm_color_t color, bcm_cos_queue_t *cosq);
int bcm_cosq_gport_egress_mapping_set(int unit, bcm_gport_t gport, bcm_cos_t ingress_pri,
                                      bcm_cos_t egress_pri, uint32 flags);
int bcm_cosq_gport_egress_mapping_get(int unit, bcm_gport_t gport, bcm_cos_t *ingress_pri,
                                      bcm_cos_t *egress_pri, uint32 flags);
int bcm_cosq_gport_egress_multicast_config_set(int unit, bcm_gport_t gport, bcm_cos_t cos,
                                               bcm_color_t color, uint32 flags,
                                               bcm_cosq_egress_multicast_config_t *config);
int bcm_cosq_gport_egress_multicast_config_get(int unit, bcm_gport_t gport, bcm_cos_t cos,
                                               bcm_color_t color, uint32 flags,
                                               bcm_cosq_egress_multicast_config_t *config);

/* Flow control */
int bcm_cosq_fc_path_add(int unit, bcm_cosq_fc_direction_type_t fc_direction,
                         bcm_cosq_fc_endpoint_t *source, bcm_cosq_fc_endpoint_t *target);
int bcm_cosq_fc_path_get(int unit, bcm_cosq_fc_direction_type_t fc_direction,
                         bcm_cosq_fc_endpoint_t *source, int max_targets,
                         bcm_cosq_fc_endpoint_t *target_array, int *target_count);
int bcm_cosq_fc_path_delete(int unit, bcm_cosq_fc_direction_type_t fc_direction,
                            bcm_cosq_fc_endpoint_t *source, bcm_cosq_fc_endpoint_t *target);
int bcm_cosq_gport_flow_control_set(int unit, bcm_gport_t gport, bcm_cos_t cos, uint32 enable);
int bcm_cosq_gport_flow_control_get(int unit, bcm_gport_t gport, bcm_cos_t cos, uint32 *enable);
int bcm_cosq_subport_flow_control_set(int unit, bcm_gport_t in_gport, bcm_gport_t out_gport);
int bcm_cosq_subport_flow_control_get(int unit, bcm_gport_t in_gport, bcm_gport_t *out_gport);
void bcm_cosq_pfc_class_mapping_t_init(bcm_cosq_pfc_class_mapping_t *mapping);
int bcm_cosq_pfc_class_mapping_set(int unit, bcm_gport_t port, int array_count,
                                   bcm_cosq_pfc_class_mapping_t *mapping_array);
int bcm_cosq_pfc_class_mapping_get(int unit, bcm_gport_t port, int array_max,
                                   bcm_cosq_pfc_class_mapping_t *mapping_array, int *array_count);
int bcm_cosq_pfc_config_set(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq, uint32 flags,
                            bcm_cosq_pfc_config_t *config);
int bcm_cosq_pfc_config_get(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq, uint32 flags,
                            bcm_cosq_pfc_config_t *config);
void bcm_cosq_safc_class_mapping_t_init(bcm_cosq_safc_class_mapping_t *mapping);
int bcm_cosq_safc_class_mapping_set(int unit, bcm_gport_t port, int array_count,
                                    bcm_cosq_safc_class_mapping_t *mapping_array);
int bcm_cosq_safc_class_mapping_get(int unit, bcm_gport_t port, int array_max,
                                    bcm_cosq_safc_class_mapping_t *mapping_array, int *array_count);
int bcm_cosq_qcn_config_set(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq, uint32 flags,
                            bcm_cosq_qcn_config_t *config);
int bcm_cosq_qcn_config_get(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq, uint32 flags,
                            bcm_cosq_qcn_config_t *config);
void bcm_cosq_congestion_mapping_info_t_init(bcm_cosq_congestion_mapping_info_t *info);
int bcm_cosq_congestion_mapping_set(int unit, int index, bcm_cosq_congestion_mapping_info_t *info);
int bcm_cosq_congestion_mapping_get(int unit, int index, bcm_cosq_congestion_mapping_info_t *info);

/* PFC deadlock recovery */
void bcm_cosq_pfc_deadlock_config_t_init(bcm_cosq_pfc_deadlock_config_t *config);
int bcm_cosq_pfc_deadlock_config_set(int unit, int priority,
                                     bcm_cosq_pfc_deadlock_config_t *config);
int bcm_cosq_pfc_deadlock_config_get(int unit, int priority,
                                     bcm_cosq_pfc_deadlock_config_t *config);
void bcm_cosq_pfc_deadlock_info_t_init(bcm_cosq_pfc_deadlock_info_t *info);
int bcm_cosq_pfc_deadlock_info_get(int unit, int priority, bcm_cosq_pfc_deadlock_info_t *info);
void bcm_cosq_pfc_deadlock_queue_config_t_init(bcm_cosq_pfc_deadlock_queue_config_t *config);
int bcm_cosq_pfc_deadlock_queue_config_set(int unit, bcm_gport_t gport,
                                           bcm_cosq_pfc_deadlock_queue_config_t *config);
int bcm_cosq_pfc_deadlock_queue_config_get(int unit, bcm_gport_t gport,
                                           bcm_cosq_pfc_deadlock_queue_config_t *config);
int bcm_cosq_pfc_deadlock_queue_status_get(int unit, bcm_gport_t gport, uint8 *status);
int bcm_cosq_pfc_deadlock_recovery_event_register(
    int unit, bcm_cosq_pfc_deadlock_recovery_event_cb_t callback, void *user_data);
int bcm_cosq_pfc_deadlock_recovery_event_unregister(
    int unit, bcm_cosq_pfc_deadlock_recovery_event_cb_t callback, void *user_data);

/* Virtual statistics queues */
int bcm_cosq_gport_vsq_create(int unit, bcm_cosq_vsq_info_t *vsq, bcm_gport_t *gport);
int bcm_cosq_gport_vsq_add(int unit, bcm_gport_t gport, bcm_gport_t vsq_gport,
                           bcm_cos_queue_t cosq);
int bcm_cosq_gport_vsq_get(int unit, bcm_gport_t gport, int vsq_max, bcm_gport_t *vsq_gport_array,
                           bcm_cos_queue_t *cosq_array, int *vsq_count);
int bcm_cosq_gport_vsq_delete(int unit, bcm_gport_t gport, bcm_gport_t vsq_gport,
                              bcm_cos_queue_t cosq);
int bcm_cosq_gport_vsq_destroy(int unit, bcm_gport_t gport);
int bcm_cosq_gport_vsq_delete_all(int unit, bcm_gport_t gport);
int bcm_cosq_src_vsqs_gport_add(int unit, bcm_gport_t gport,
                                bcm_cosq_src_vsqs_gport_config_t *config, bcm_gport_t *base_gport,
                                bcm_gport_t *last_gport);
int bcm_cosq_src_vsqs_gport_get(int unit, bcm_gport_t gport,
                                bcm_cosq_src_vsqs_gport_config_t *config, bcm_gport_t *base_gport,
                                bcm_gport_t *last_gport);

/* Classifiers and subscribers */
void bcm_cosq_classifier_t_init(bcm_cosq_classifier_t *classifier);
int bcm_cosq_classifier_create(int unit, bcm_cosq_classifier_t *classifier, int *classifier_id);
int bcm_cosq_classifier_get(int unit, int classifier_id, bcm_cosq_classifier_t *classifier);
int bcm_cosq_classifier_id_get(int unit, bcm_cosq_classifier_t *classifier, int array_max,
                               bcm_cos_t *priority_array, bcm_cos_queue_t *cosq_array,
                               int *array_count);
int bcm_cosq_classifier_destroy(int unit, int classifier_id);
int bcm_cosq_classifier_mapping_set(int unit, bcm_gport_t gport, int classifier_id,
                                    bcm_gport_t queue_group, bcm_cos_t priority,
                                    bcm_cos_queue_t cosq);
int bcm_cosq_classifier_mapping_get(int unit, bcm_gport_t gport, int classifier_id,
                                    bcm_gport_t *queue_group, bcm_cos_t priority,
                                    bcm_cos_queue_t *cosq);
int bcm_cosq_classifier_mapping_multi_set(int unit, bcm_gport_t gport, int classifier_id,
                                          bcm_gport_t queue_group, int array_count,
                                          bcm_cos_t *priority_array, bcm_cos_queue_t *cosq_array);
int bcm_cosq_classifier_mapping_multi_get(int unit, bcm_gport_t gport, int classifier_id,
                                          bcm_gport_t *queue_group, int array_max,
                                          bcm_cos_t *priority_array, bcm_cos_queue_t *cosq_array,
                                          int *array_count);
int bcm_cosq_classifier_mapping_clear(int unit, bcm_gport_t gport, int classifier_id);
int bcm_cosq_subscriber_traverse(int unit, bcm_cosq_subscriber_map_traverse_cb cb, void *user_data);
int bcm_cosq_subscriber_map_add(int unit, bcm_cosq_subscriber_map_t *map);
int bcm_cosq_subscriber_map_get(int unit, bcm_cosq_subscriber_map_t *map);
int bcm_cosq_subscriber_map_delete(int unit, bcm_cosq_subscriber_map_t *map);
int bcm_cosq_subscriber_map_delete_all(int unit);

/* Connectors, bundles and fabric distribution */
int bcm_cosq_voq_connector_gport_add(int unit, bcm_cosq_voq_connector_gport_t *config,
                                     bcm_gport_t *gport);
int bcm_cosq_ingress_queue_bundle_gport_add(int unit,
                                            bcm_cosq_ingress_queue_bundle_gport_config_t *config,
                                            bcm_gport_t *gport);
int bcm_cosq_fabric_distribution_add(int unit, bcm_fabric_distribution_t ds_id, int array_count,
                                     uint32 flags, bcm_gport_t *gport);
int bcm_cosq_fabric_distribution_get(int unit, bcm_fabric_distribution_t ds_id, int *array_count,
                                     bcm_gport_t *gport_array, uint32 *flags);
int bcm_cosq_dest_credit_size_set(int unit, bcm_module_t modid, uint32 credit_bytes);
int bcm_cosq_dest_credit_size_get(int unit, bcm_module_t modid, uint32 *credit_bytes);
int bcm_cosq_delay_tolerance_level_set(int unit, int level, bcm_cosq_delay_tolerance_t *tolerance);
int bcm_cosq_delay_tolerance_level_get(int unit, int level, bcm_cosq_delay_tolerance_t *tolerance);
int bcm_cosq_slow_profile_set(int unit, bcm_cosq_slow_level_t *slow_level,
                              bcm_cosq_slow_profile_attributes_t *attributes);
int bcm_cosq_slow_profile_get(int unit, bcm_cosq_slow_level_t *slow_level,
                              bcm_cosq_slow_profile_attributes_t *attributes);
int bcm_cosq_max_latency_pkts_get(int unit, bcm_gport_t gport, uint32 flags, int array_max,
                                  bcm_cosq_max_latency_pkts_t *pkt_array, int *array_count);

/* Ingress drop maps */
int bcm_cosq_ingress_port_drop_enable_set(int unit, bcm_port_t port, uint32 flags, int enable);
int bcm_cosq_ingress_port_drop_enable_get(int unit, bcm_port_t port, uint32 flags, int *enable);
void bcm_cosq_ingress_drop_control_frame_config_t_init(
    bcm_cosq_ingress_drop_control_frame_config_t *config);
int bcm_cosq_ingress_port_drop_control_frame_set(
    int unit, bcm_port_t port, uint32 flags, bcm_cosq_ingress_drop_control_frame_config_t *config);
int bcm_cosq_ingress_port_drop_control_frame_get(
    int unit, bcm_port_t port, uint32 flags, bcm_cosq_ingress_drop_control_frame_config_t *config);
int bcm_cosq_ingress_port_drop_custom_ether_type_set(int unit, bcm_port_t port, uint32 flags,
                                                     uint32 index, uint32 ether_type);
int bcm_cosq_ingress_port_drop_custom_ether_type_get(int unit, bcm_port_t port, uint32 flags,
                                                     uint32 index, uint32 *ether_type);
int bcm_cosq_ingress_port_drop_default_priority_set(int unit, bcm_port_t port, uint32 flags,
                                                    uint32 priority);
int bcm_cosq_ingress_port_drop_default_priority_get(int unit, bcm_port_t port, uint32 flags,
                                                    uint32 *priority);
void bcm_cosq_ingress_drop_flex_key_construct_id_t_init(
    bcm_cosq_ingress_drop_flex_key_construct_id_t *construct_id);
void bcm_cosq_ingress_drop_flex_key_construct_t_init(
    bcm_cosq_ingress_drop_flex_key_construct_t *construct);
int bcm_cosq_ingress_port_drop_flex_key_construct_set(
    int unit, bcm_cosq_ingress_drop_flex_key_construct_id_t *construct_id, uint32 flags,
    bcm_cosq_ingress_drop_flex_key_construct_t *construct);
int bcm_cosq_ingress_port_drop_flex_key_construct_get(
    int unit, bcm_cosq_ingress_drop_flex_key_construct_id_t *construct_id, uint32 flags,
    bcm_cosq_ingress_drop_flex_key_construct_t *construct);
void bcm_cosq_ingress_drop_flex_key_entry_t_init(bcm_cosq_ingress_drop_flex_key_entry_t *entry);
int bcm_cosq_ingress_port_drop_flex_key_entry_set(int unit, bcm_port_t port, uint32 flags,
                                                  uint32 entry_id,
                                                  bcm_cosq_ingress_drop_flex_key_entry_t *entry);
int bcm_cosq_ingress_port_drop_flex_key_entry_get(int unit, bcm_port_t port, uint32 flags,
                                                  uint32 entry_id,
                                                  bcm_cosq_ingress_drop_flex_key_entry_t *entry);
int bcm_cosq_ingress_port_drop_map_set(int unit, bcm_port_t port, uint32 flags,
                                       bcm_cosq_ingress_port_drop_map_t map, uint32 key,
                                       int priority);
int bcm_cosq_ingress_port_drop_map_get(int unit, bcm_port_t port, uint32 flags,
                                       bcm_cosq_ingress_port_drop_map_t map, uint32 key,
                                       int *priority);
int bcm_cosq_ingress_port_drop_threshold_set(int unit, bcm_port_t port, uint32 flags, int priority,
                                             uint32 threshold);
int bcm_cosq_ingress_port_drop_threshold_get(int unit, bcm_port_t port, uint32 flags, int priority,
                                             uint32 *threshold);
void bcm_cosq_ingress_drop_flex_key_t_init(bcm_cosq_ingress_drop_flex_key_t *key);

/* Time-aware shaping */
int bcm_cosq_tas_control_set(int unit, bcm_gport_t gport, bcm_cosq_tas_control_t type, int arg);
int bcm_cosq_tas_control_get(int unit, bcm_gport_t gport, bcm_cosq_tas_control_t type, int *arg);
void bcm_cosq_tas_profile_t_init(bcm_cosq_tas_profile_t *profile);
int bcm_cosq_tas_profile_create(int unit, bcm_gport_t gport, bcm_cosq_tas_profile_t *profile,
                                bcm_cosq_tas_profile_id_t *profile_id);
int bcm_cosq_tas_profile_set(int unit, bcm_gport_t gport, bcm_cosq_tas_profile_id_t profile_id,
                             bcm_cosq_tas_profile_t *profile);
int bcm_cosq_tas_profile_get(int unit, bcm_gport_t gport, bcm_cosq_tas_profile_id_t profile_id,
                             bcm_cosq_tas_profile_t *profile);
int bcm_cosq_tas_profile_destroy(int unit, bcm_gport_t gport, bcm_cosq_tas_profile_id_t profile_id);
int bcm_cosq_tas_profile_destroy_all(int unit, bcm_gport_t gport);
int bcm_cosq_tas_profile_traverse(int unit, bcm_gport_t gport, bcm_cosq_tas_profile_traverse_cb cb,
                                  void *user_data);
int bcm_cosq_tas_profile_commit(int unit, bcm_gport_t gport, bcm_cosq_tas_profile_id_t profile_id);
void bcm_cosq_tas_profile_status_t_init(bcm_cosq_tas_profile_status_t *status);
int bcm_cosq_tas_profile_status_get(int unit, bcm_gport_t gport,
                                    bcm_cosq_tas_profile_id_t profile_id,
                                    bcm_cosq_tas_profile_status_t *status);
int bcm_cosq_tas_status_get(int unit, bcm_gport_t gport, bcm_cosq_tas_status_t type, int *arg);

/* Controls, profiles and resources */
int bcm_cosq_control_set(int unit, bcm_gport_t port, bcm_cos_queue_t cosq, bcm_cosq_control_t type,
                         int arg);
int bcm_cosq_control_get(int unit, bcm_gport_t port, bcm_cos_queue_t cosq, bcm_cosq_control_t type,
                         int *arg);
void bcm_cosq_control_data_t_init(bcm_cosq_control_data_t *control);
int bcm_cosq_control_extended_set(int unit, bcm_cosq_object_id_t *id,
                                  bcm_cosq_control_data_t *control);
int bcm_cosq_control_extended_get(int unit, bcm_cosq_object_id_t *id,
                                  bcm_cosq_control_data_t *control);
int bcm_cosq_control_range_set(int unit, bcm_gport_t gport, uint32 flags,
                               bcm_cosq_control_range_type_t type, bcm_cosq_range_t *range);
int bcm_cosq_control_range_get(int unit, bcm_gport_t gport, uint32 flags,
                               bcm_cosq_control_range_type_t type, bcm_cosq_range_t *range);
int bcm_cosq_profile_mapping_set(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq, uint32 flags,
                                 bcm_switch_profile_mapping_t *mapping);
int bcm_cosq_profile_mapping_get(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq, uint32 flags,
                                 bcm_switch_profile_mapping_t *mapping);
int bcm_cosq_resource_allocation_set(int unit, uint32 flags, bcm_cosq_resource_t resource,
                                     bcm_cosq_allocation_entity_t *entity,
                                     bcm_cosq_resource_amounts_t *amounts);
int bcm_cosq_resource_allocation_get(int unit, uint32 flags, bcm_cosq_resource_t resource,
                                     bcm_cosq_allocation_entity_t *entity,
                                     bcm_cosq_resource_amounts_t *amounts);
void bcm_cosq_service_pool_t_init(bcm_cosq_service_pool_t *pool);
int bcm_cosq_service_pool_set(int unit, bcm_service_pool_id_t id, bcm_cosq_service_pool_t pool);
int bcm_cosq_service_pool_get(int unit, bcm_service_pool_id_t id, bcm_cosq_service_pool_t *pool);
int bcm_cosq_pkt_size_adjust_delta_map_set(int unit, int index, int delta);
int bcm_cosq_pkt_size_adjust_delta_map_get(int unit, int index, int *delta);
int bcm_cosq_event_register(int unit, bcm_cosq_event_types_t event_types, bcm_gport_t gport,
                            bcm_cos_queue_t cosq, bcm_cosq_event_cb cb, void *user_data);
int bcm_cosq_event_unregister(int unit, bcm_cosq_event_types_t event_types, bcm_gport_t gport,
                              bcm_cos_queue_t cosq, bcm_cosq_event_cb cb);
int bcm_cosq_buffer_id_multi_get(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq,
                                 bcm_cosq_dir_t dir, int array_max,
                                 bcm_cosq_buffer_id_t *buffer_id_array, int *array_count);

/* Buffer statistics tracking */
int bcm_cosq_bst_multi_profile_set(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq,
                                   bcm_bst_stat_id_t bid, int profile_count,
                                   bcm_cosq_bst_profile_t *profile_array);
int bcm_cosq_bst_multi_profile_get(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq,
                                   bcm_bst_stat_id_t bid, int profile_max,
                                   bcm_cosq_bst_profile_t *profile_array, int *profile_count);
void bcm_cosq_bst_profile_t_init(bcm_cosq_bst_profile_t *profile);
int bcm_cosq_bst_profile_set(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq,
                             bcm_bst_stat_id_t bid, bcm_cosq_bst_profile_t *profile);
int bcm_cosq_bst_profile_get(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq,
                             bcm_bst_stat_id_t bid, bcm_cosq_bst_profile_t *profile);
int bcm_cosq_bst_stat_get(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq, bcm_bst_stat_id_t bid,
                          uint32 options, uint64 *value);
int bcm_cosq_bst_stat_get32(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq,
                            bcm_bst_stat_id_t bid, uint32 options, uint32 *value);
int bcm_cosq_bst_stat_multi_get(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq, uint32 options,
                                int max_values, bcm_bst_stat_id_t *id_list, uint64 *values);
int bcm_cosq_bst_stat_multi_get32(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq, uint32 options,
                                  int max_values, bcm_bst_stat_id_t *id_list, uint32 *values);
int bcm_cosq_bst_stat_clear(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq,
                            bcm_bst_stat_id_t bid);
int bcm_cosq_bst_stat_extended_get(int unit, bcm_cosq_object_id_t *id, bcm_bst_stat_id_t bid,
                                   uint32 options, uint64 *value);
int bcm_cosq_bst_stat_extended_get32(int unit, bcm_cosq_object_id_t *id, bcm_bst_stat_id_t bid,
                                     uint32 options, uint32 *value);
int bcm_cosq_bst_stat_extended_clear(int unit, bcm_cosq_object_id_t *id, bcm_bst_stat_id_t bid);
int bcm_cosq_bst_stat_sync(int unit, bcm_bst_stat_id_t bid);

/* Counters */
int bcm_cosq_stat_set(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq, bcm_cosq_stat_t stat,
                      uint64 value);
int bcm_cosq_stat_get(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq, bcm_cosq_stat_t stat,
                      uint64 *value);
int bcm_cosq_stat_set32(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq, bcm_cosq_stat_t stat,
                        uint32 value);
int bcm_cosq_stat_get32(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq, bcm_cosq_stat_t stat,
                        uint32 *value);
int bcm_cosq_stat_sync_get(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq, bcm_cosq_stat_t stat,
                           uint64 *value);
int bcm_cosq_stat_sync_get32(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq,
                             bcm_cosq_stat_t stat, uint32 *value);
int bcm_cosq_stat_config_set(int unit, int counter_id, bcm_cosq_stat_t *stat);
int bcm_cosq_stat_config_get(int unit, int counter_id, bcm_cosq_stat_t *stat);
int bcm_cosq_gport_stat_set(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq,
                            bcm_cosq_gport_stats_t stat, uint64 value);
int bcm_cosq_gport_stat_get(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq,
                            bcm_cosq_gport_stats_t stat, uint64 *value);
int bcm_cosq_gport_stat_sync_get(int unit, bcm_gport_t gport, bcm_cos_queue_t cosq,
                                 bcm_cosq_gport_stats_t stat, uint64 *value);
int bcm_cosq_gport_stat_enable_set(int unit, bcm_gport_t gport, int enable);
int bcm_cosq_gport_stat_enable_get(int unit, bcm_gport_t gport, int *enable);
int bcm_cosq_gport_stat_config_set(int unit, bcm_gport_t ingress_gport, bcm_gport_t egress_gport,
                                   bcm_cos_queue_t cosq, uint32 flags,
                                   bcm_cosq_gport_stat_profile_t profile);
int bcm_cosq_gport_stat_config_get(int unit, bcm_gport_t ingress_gport, bcm_gport_t egress_gport,
                                   bcm_cos_queue_t cosq, uint32 flags,
                                   bcm_cosq_gport_stat_profile_t *profile);
int bcm_cosq_gport_statistic_set(int unit, bcm_gport_t ingress_gport, bcm_gport_t egress_gport,
                                 bcm_cos_queue_t cosq, uint32 flags, bcm_cosq_gport_stats_t stat,
                                 uint64 value);
int bcm_cosq_gport_statistic_get(int unit, bcm_gport_t ingress_gport, bcm_gport_t egress_gport,
                                 bcm_cos_queue_t cosq, uint32 flags, bcm_cosq_gport_stats_t stat,
                                 uint64 *value);
int bcm_cosq_gport_statistic_multi_set(int unit, bcm_gport_t ingress_gport,
                                       bcm_gport_t egress_gport, bcm_cos_queue_t cosq,
                                       int stat_count, bcm_cosq_gport_stats_t *stat_array,
                                       uint64 value);
int bcm_cosq_gport_statistic_multi_get(int unit, bcm_gport_t ingress_gport,
                                       bcm_gport_t egress_gport, bcm_cos_queue_t cosq, int stat_max,
                                       bcm_cosq_gport_stats_t *stat_array, int clear_on_read,
                                       uint64 *value_array);
int bcm_cosq_icgm_resource_stat_get(int unit, bcm_cosq_icgm_resource_stat_key_t *key,
                                    uint64 *value);

OMBRA_END_DECLS
