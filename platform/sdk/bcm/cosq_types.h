/* Queueing: queues, schedulers, buffers and their thresholds. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/bcm/common_types.h"
#include "sdk/constants.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* A threshold that follows the free room: between two limits, by a factor alpha. */
typedef struct bcm_cosq_fadt_threshold_s {
    uint32 thresh_min;
    uint32 thresh_max;
    int alpha;
    uint32 resource_range_min;
    uint32 resource_range_max;
} bcm_cosq_fadt_threshold_t;

/* When priority flow control stops and restarts a class. */
typedef struct bcm_cosq_pfc_config_s {
    int xoff_threshold;
    int xon_threshold;
    bcm_cosq_fadt_threshold_t xoff_fadt_threshold;
    int xon_fadt_offset;
    int xoff_threshold_bd;
    int xon_threshold_bd;
    int drop_threshold;
    int reserved_buffers;
    int lossless;
} bcm_cosq_pfc_config_t;

/* The class for each bit of a flow control message. */
typedef struct bcm_cosq_congestion_mapping_info_s {
    bcm_cos_t flow_control_bits[8];
} bcm_cosq_congestion_mapping_info_t;

/* A buffer object: port, queue, buffer. */
typedef struct bcm_cosq_object_id_s {
    bcm_gport_t port;
    bcm_cos_queue_t cosq;
    bcm_cosq_buffer_id_t buffer;
} bcm_cosq_object_id_t;

/* A control with its argument. */
typedef struct bcm_cosq_control_data_s {
    bcm_cosq_control_t type;
    int arg;
} bcm_cosq_control_data_t;

/* A drop curve: thresholds, probability, and how fast the average follows. */
typedef struct bcm_cosq_gport_discard_s {
    uint32 flags;
    int min_thresh;
    int max_thresh;
    int drop_probability;
    int gain;
    int ecn_thresh;
    int refresh_time;
} bcm_cosq_gport_discard_t;

/* The statistics that a gport counts, as a bit array. */
typedef struct bcm_cosq_gport_stat_profile_s {
    SHR_BITDCL stats[_SHR_BITDCLSIZE(bcmCosqGportOutBytes)];
} bcm_cosq_gport_stat_profile_t;

/* The priorities of a profile, as a bit array. */
typedef struct bcm_cosq_gport_priority_profile_s {
    SHR_BITDCL pri[_SHR_BITDCLSIZE(64)];
} bcm_cosq_gport_priority_profile_t;

/* The size limits of a queue. */
typedef struct bcm_cosq_gport_size_s {
    uint32 size_min;
    uint32 size_max;
    int32 size_alpha_max;
    uint32 size_fadt_min;
} bcm_cosq_gport_size_t;

/* The queue of a subscriber, by port, VLAN and encapsulation. */
typedef struct bcm_cosq_subscriber_map_s {
    uint32 flags;
    bcm_port_t port;
    bcm_vlan_t vlan;
    bcm_if_t encap_id;
    bcm_gport_t queue_id;
} bcm_cosq_subscriber_map_t;

/* A connector between virtual output queues and a remote module. */
typedef struct bcm_cosq_voq_connector_gport_s {
    uint32 flags;
    bcm_gport_t port;
    int numq;
    bcm_module_t remote_modid;
    uint32 nof_remote_cores;
} bcm_cosq_voq_connector_gport_t;

/* What the queues of a bundle have in common. */
typedef struct bcm_cosq_queue_attributes_s {
    int delay_tolerance_level;
    int rate_class;
} bcm_cosq_queue_attributes_t;

/* A bundle of ingress queues towards one port. */
typedef struct bcm_cosq_ingress_queue_bundle_gport_config_s {
    uint32 flags;
    bcm_gport_t port;
    bcm_core_t local_core_id;
    int numq;
    bcm_cosq_queue_attributes_t queue_atrributes[8];
} bcm_cosq_ingress_queue_bundle_gport_config_t;

/* A connection of a virtual output queue and its connector. */
typedef struct bcm_cosq_gport_connection_s {
    uint32 flags;
    bcm_module_t remote_modid;
    bcm_gport_t voq;
    bcm_gport_t voq_connector;
} bcm_cosq_gport_connection_t;

/* The credit thresholds of a delay tolerance level. */
typedef struct bcm_cosq_delay_tolerance_s {
    int credit_request_watchdog_status_msg_gen;
    int credit_request_watchdog_delete_queue_thresh;
    int credit_request_hungry_off_to_slow_thresh;
    int credit_request_hungry_off_to_normal_thresh;
    int credit_request_hungry_slow_to_normal_thresh;
    int credit_request_hungry_normal_to_slow_thresh;
    int credit_request_hungry_multiplier;
    int credit_request_satisfied_backoff_enter_thresh;
    int credit_request_satisfied_backoff_exit_thresh;
    int credit_request_satisfied_backlog_enter_thresh;
    int credit_request_satisfied_backlog_exit_thresh;
    int credit_request_satisfied_backslow_enter_thresh;
    int credit_request_satisfied_backslow_exit_thresh;
    int credit_request_satisfied_empty_queue_thresh;
    int credit_request_satisfied_empty_queue_max_balance_thresh;
    int credit_request_satisfied_empty_queue_exceed_thresh;
    uint32 flags;
    int slow_level_thresh_up[7];
    int slow_level_thresh_down[7];
} bcm_cosq_delay_tolerance_t;

/* How egress multicast traffic is scheduled. */
typedef struct bcm_cosq_egress_multicast_config_s {
    bcm_color_t scheduled_dp;
    bcm_cos_t priority;
    int unscheduled_se;
    int unscheduled_sp;
} bcm_cosq_egress_multicast_config_t;

/* A virtual statistics queue and what it is keyed by. */
typedef struct bcm_cosq_vsq_info_s {
    uint32 flags;
    int ct_id;
    int cc_id;
    int traffic_class;
    bcm_gport_t src_port;
    int pp_vsq_id;
    bcm_core_t core_id;
} bcm_cosq_vsq_info_t;

/* A priority group of a source port. */
typedef struct bcm_cosq_pg_vsq_attributes_s {
    uint8 cosq_bitmap;
    uint8 ocb_only;
    uint8 pool_id;
    uint8 is_lossles;
} bcm_cosq_pg_vsq_attributes_t;

/* The priority groups of a source port. */
typedef struct bcm_cosq_src_vsqs_gport_config_s {
    uint32 flags;
    int numq;
    bcm_cosq_pg_vsq_attributes_t pg_attributes[8];
} bcm_cosq_src_vsqs_gport_config_t;

/* A threshold, and what it applies to. */
typedef struct bcm_cosq_threshold_s {
    uint32 flags;
    bcm_color_t dp;
    bcm_cosq_threshold_type_t type;
    int value;
    int tc;
    int vsq_category;
    uint32 valid;
    int priority;
} bcm_cosq_threshold_t;

/* A gport and queue, and the gport that stands for both. */
typedef struct bcm_cosq_gport_info_s {
    bcm_gport_t in_gport;
    bcm_cos_queue_t cosq;
    bcm_gport_t out_gport;
} bcm_cosq_gport_info_t;

/* A gport and queue on a core. */
typedef struct bcm_cosq_gport_info_core_s {
    bcm_cosq_gport_type_t gport_type;
    bcm_gport_t in_gport;
    bcm_cos_queue_t cosq;
    uint32 flags;
} bcm_cosq_gport_info_core_t;

/* One end of a flow control path. */
typedef struct bcm_cosq_fc_endpoint_s {
    uint32 flags;
    bcm_gport_t port;
    bcm_cos_queue_t cosq;
    int calender_index;
    int priority;
} bcm_cosq_fc_endpoint_t;

/* The thresholds of a queue report. */
typedef struct bcm_cosq_report_threshold_s {
    int threshold0;
    int threshold1;
    int threshold2;
    int threshold3;
} bcm_cosq_report_threshold_t;

/* The fabric port and the destination of congested traffic. */
typedef struct bcm_cosq_congestion_info_s {
    bcm_module_t fabric_modid;
    bcm_port_t fabric_port;
    bcm_module_t dest_modid;
    bcm_port_t dest_port;
} bcm_cosq_congestion_info_t;

/* The service level of a PON link. */
typedef struct bcm_cos_pon_link_sla_s {
    int option;
    int polling_level;
    uint32 tdm_rate;
    uint32 tdm_grant_length;
} bcm_cos_pon_link_sla_t;

/* The fill level that triggers buffer statistics. */
typedef struct bcm_cosq_bst_profile_s {
    uint32 byte;
} bcm_cosq_bst_profile_t;

/* Which packets belong to a flow. */
typedef struct bcm_cosq_classifier_s {
    uint32 flags;
    bcm_vlan_t vlan;
    bcm_mac_t mac;
    bcm_vrf_t vrf;
    bcm_ip_t ip_addr;
    bcm_ip6_t ip6_addr;
    bcm_gport_t gport;
    uint32 vfi_index;
    bcm_if_t egress_if;
} bcm_cosq_classifier_t;

/* Sampling and feedback of congestion notification. */
typedef struct bcm_cosq_qcn_config_s {
    int size;
    int weight;
    int nbr_samples;
    int sample_bytes[8];
    int max_feedback;
    int quantization;
    int randomize_sample_threshold;
} bcm_cosq_qcn_config_t;

/* A service pool, and whether it is on. */
typedef struct bcm_cosq_service_pool_s {
    bcm_cosq_service_pool_type_t type;
    int enabled;
} bcm_cosq_service_pool_t;

/* A range of values. */
typedef struct bcm_cosq_range_s {
    uint8 is_enabled;
    int range_start;
    int range_end;
} bcm_cosq_range_t;

/* Whom an allocation is made for. */
typedef struct bcm_cosq_allocation_entity_s {
    bcm_gport_t gport;
    bcm_color_t color;
    uint8 pool_id;
    uint8 is_ocb_only;
} bcm_cosq_allocation_entity_t;

/* The amounts of an allocation. */
typedef struct bcm_cosq_resource_amounts_s {
    uint32 flags;
    uint32 reserved;
    uint32 max_shared_pool;
    bcm_cosq_fadt_threshold_t shared_pool_fadt;
    uint32 max_headroom;
    uint32 nominal_headroom;
} bcm_cosq_resource_amounts_t;

/* A slow level of a rate profile. */
typedef struct bcm_cosq_slow_level_s {
    int core;
    int profile;
    uint32 level;
    uint32 flags;
} bcm_cosq_slow_level_t;

/* The rate of a slow profile. */
typedef struct bcm_cosq_slow_profile_attributes_s {
    uint32 max_rate;
} bcm_cosq_slow_profile_attributes_t;

/* The gports that a class of priority flow control stops. */
typedef struct bcm_cosq_pfc_class_mapping_s {
    int class_id;
    bcm_gport_t gport_list[16];
} bcm_cosq_pfc_class_mapping_t;

/* The gports that a class of service aware flow control stops. */
typedef struct bcm_cosq_safc_class_mapping_s {
    int class_id;
    bcm_gport_t gport_list[20];
} bcm_cosq_safc_class_mapping_t;

/* The timers of deadlock detection and recovery. */
typedef struct bcm_cosq_pfc_deadlock_config_s {
    uint32 detection_timer;
    uint32 recovery_timer;
} bcm_cosq_pfc_deadlock_config_t;

/* Whether a queue is watched for deadlock. */
typedef struct bcm_cosq_pfc_deadlock_queue_config_s {
    int enable;
} bcm_cosq_pfc_deadlock_queue_config_t;

/* The ports watched for deadlock, and those in one. */
typedef struct bcm_cosq_pfc_deadlock_info_s {
    bcm_pbmp_t enabled_pbmp;
    bcm_pbmp_t deadlock_pbmp;
} bcm_cosq_pfc_deadlock_info_t;

/* Where an adjustment of the packet size comes from. */
typedef struct bcm_cosq_pkt_size_adjust_source_info_s {
    bcm_cosq_pkt_size_adjust_source_t source_type;
    uint32 source_id;
} bcm_cosq_pkt_size_adjust_source_info_t;

/* An adjustment of the packet size for accounting. */
typedef struct bcm_cosq_pkt_size_adjust_info_s {
    uint32 flags;
    bcm_gport_t gport;
    bcm_cos_queue_t cosq;
    bcm_cosq_pkt_size_adjust_source_info_t source_info;
} bcm_cosq_pkt_size_adjust_info_t;

/* Which congestion statistic of the ingress is meant. */
typedef struct bcm_cosq_icgm_resource_stat_key_s {
    bcm_gport_t gport;
    uint32 flags;
    bcm_cosq_icgm_resource_stat_type_t stat_type;
} bcm_cosq_icgm_resource_stat_key_t;

/* A packet of great latency, and where it went. */
typedef struct bcm_cosq_max_latency_pkts_s {
    bcm_gport_t dest_gport;
    bcm_cos_queue_t cosq;
    uint64 latency;
    uint32 latency_flow;
} bcm_cosq_max_latency_pkts_t;

/* Which frames count as control frames. */
typedef struct bcm_cosq_ingress_drop_control_frame_config_s {
    uint64 mac_da_val;
    uint64 mac_da_mask;
    uint32 ether_type_code;
    uint32 ether_type_code_mask;
} bcm_cosq_ingress_drop_control_frame_config_t;

/* The port whose drop key is meant. */
typedef struct bcm_cosq_ingress_drop_flex_key_construct_id_s {
    bcm_port_t port;
} bcm_cosq_ingress_drop_flex_key_construct_id_t;

/* The packet offsets of which a drop key is made. */
typedef struct bcm_cosq_ingress_drop_flex_key_construct_s {
    uint32 array_size;
    uint32 offset_array[4];
} bcm_cosq_ingress_drop_flex_key_construct_t;

/* A value of a drop key, under a mask. */
typedef struct bcm_cosq_ingress_drop_flex_key_s {
    uint32 value;
    uint32 mask;
} bcm_cosq_ingress_drop_flex_key_t;

/* The priority that a drop key gives. */
typedef struct bcm_cosq_ingress_drop_flex_key_entry_s {
    bcm_cosq_ingress_drop_flex_key_t ether_code;
    uint32 num_key_fields;
    bcm_cosq_ingress_drop_flex_key_t key_fields[4];
    uint32 priority;
} bcm_cosq_ingress_drop_flex_key_entry_t;

/* Which free room threshold is meant. */
typedef struct bcm_cosq_fadt_info_s {
    bcm_gport_t gport;
    bcm_cos_queue_t cosq;
    bcm_cosq_gport_fadt_threshold_type_t thresh_type;
    bcm_cosq_resource_t resource_type;
} bcm_cosq_fadt_info_t;

/* A set of queue events, one bit for each bcm_cosq_event_type_t. */
typedef struct bcm_cosq_event_types_s {
    SHR_BITDCL w[_SHR_BITDCLSIZE(bcmCosqEventCount)];
} bcm_cosq_event_types_t;

/* A step of a gate schedule. */
typedef struct bcm_cosq_tas_entry_s {
    uint32 ticks;
    uint32 state;
    uint32 flags;
} bcm_cosq_tas_entry_t;

/* A gate schedule: when it starts and how long its cycle is. */
typedef struct bcm_cosq_tas_profile_s {
    int num_entries;
    bcm_cosq_tas_entry_t entries[(128)];
    bcm_ptp_timestamp_t ptp_base_time;
    uint32 ptp_cycle_time;
    uint32 ptp_max_cycle_extension;
} bcm_cosq_tas_profile_t;

/* The state of a gate schedule. */
typedef struct bcm_cosq_tas_profile_status_s {
    bcm_cosq_tas_profile_state_t profile_state;
    bcm_ptp_timestamp_t config_change_time;
    int num_entries;
    bcm_cosq_tas_entry_t entries[(128)];
} bcm_cosq_tas_profile_status_t;

/* Called for each gport of the hierarchy. */
typedef int (*bcm_cosq_gport_traverse_cb)(int unit, bcm_gport_t gport, int numq, uint32 flags,
                                          bcm_gport_t queue, void *user_data);

/* Called for each subscriber. */
typedef int (*bcm_cosq_subscriber_map_traverse_cb)(int unit, bcm_cosq_subscriber_map_t *map,
                                                   void *user_data);

/* Called for each time-aware shaping profile. */
typedef int (*bcm_cosq_tas_profile_traverse_cb)(int unit, bcm_gport_t gport,
                                                bcm_cosq_tas_profile_id_t profile_id,
                                                void *user_data);

/* Told of each event of the queues. */
typedef int (*bcm_cosq_event_cb)(int unit, bcm_cosq_event_type_t event_type, int index, int value,
                                 void *user_data);

/* Told when recovery from a deadlock begins and ends. */
typedef int (*bcm_cosq_pfc_deadlock_recovery_event_cb_t)(
    int unit, bcm_port_t port, bcm_cos_queue_t cosq, bcm_cosq_pfc_deadlock_recovery_event_t event,
    void *user_data);

OMBRA_END_DECLS
