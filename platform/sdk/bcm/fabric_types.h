/* Fabric: links, routes, predicates and actions of the switch fabric. */
#pragma once
#include "native/base.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* The arbiter in charge, and the crossbars at hand. */
typedef struct bcm_fabric_control_redundancy_info_s {
    int active_arbiter_id;
    uint64 xbars;
} bcm_fabric_control_redundancy_info_t;

/* Where in the packet a field lies. */
typedef struct bcm_fabric_action_field_s {
    uint16 offset;
    uint16 length;
} bcm_fabric_action_field_t;

/* What a predicate matches. */
typedef struct bcm_fabric_predicate_info_s {
    uint32 flags;
    bcm_fabric_predicate_type_t source;
    bcm_fabric_action_field_t field;
    uint32 data;
    uint32 mask;
    uint32 range_low;
    uint32 range_high;
} bcm_fabric_predicate_info_t;

/* What an action does with a matching packet. */
typedef struct bcm_fabric_action_info_s {
    uint32 flags;
    bcm_fabric_action_field_t queue_field_low;
    bcm_fabric_action_field_t queue_field_high;
    bcm_fabric_action_field_t qsel_offset_index_field;
    int override_dp;
    int override_ecn;
    bcm_fabric_action_field_t len_adj_index_field;
    bcm_fabric_action_queue_idx_from_t queue_id_source;
    uint32 queue_index_offset;
    bcm_fabric_qsel_t qsel;
    bcm_fabric_qsel_offset_t qsel_offset;
    bcm_fabric_action_field_t encap_id_field;
    bcm_fabric_action_field_t queue_id_field;
    int clear_ehv_bit;
    int clear_mp_bit;
    int four_byte_remove_offset;
    int header_bytes_remove;
    bcm_fabric_action_insert_t insert_dest_select;
    bcm_fabric_stats_segment_t stat0_segment;
    bcm_fabric_predicate_type_t stat0_field_low_type;
    bcm_fabric_action_field_t stat0_field_low;
    bcm_fabric_predicate_type_t stat0_field_high_type;
    bcm_fabric_action_field_t stat0_field_high;
    int stat0_adjust;
    bcm_fabric_stats_segment_t stat1_segment;
    bcm_fabric_predicate_type_t stat1_field_low_type;
    bcm_fabric_action_field_t stat1_field_low;
    bcm_fabric_predicate_type_t stat1_field_high_type;
    bcm_fabric_action_field_t stat1_field_high;
    int stat1_adjust;
} bcm_fabric_action_info_t;

/* An action with the predicates that must hold. */
typedef struct bcm_fabric_predicate_action_info_s {
    uint32 flags;
    int priority;
    bcm_fabric_predicate_vector_t data;
    bcm_fabric_predicate_vector_t mask;
    bcm_fabric_action_t action_id;
} bcm_fabric_predicate_action_info_t;

/* The remote pipe of each fabric pipe. */
typedef struct bcm_fabric_link_remote_pipe_mapping_s {
    uint32 num_of_remote_pipes;
    bcm_fabric_pipe_t *remote_pipe_mapping;
    uint32 remote_pipe_mapping_max_size;
} bcm_fabric_link_remote_pipe_mapping_t;

/* What stands at the far end of a link. */
typedef struct bcm_fabric_link_connectivity_s {
    uint32 module_id;
    uint32 link_id;
    bcm_fabric_device_type_t device_type;
} bcm_fabric_link_connectivity_t;

/* The greatest rate for a number of links and a level of congestion. */
typedef struct bcm_fabric_bandwidth_profile_s {
    int num_links;
    int rci;
    uint32 max_kbps;
} bcm_fabric_bandwidth_profile_t;

/* How a TDM packet is edited. */
typedef struct bcm_fabric_tdm_editing_s {
    uint32 flags;
    bcm_fabric_tdm_editing_type_t type;
    bcm_gport_t destination_port;
    bcm_multicast_t multicast_id;
    uint8 user_field[6];
    int user_field_count;
    int add_packet_crc;
} bcm_fabric_tdm_editing_t;

/* A fixed route of TDM packets. */
typedef struct bcm_fabric_tdm_direct_routing_s {
    int links_count;
    bcm_gport_t links[64];
} bcm_fabric_tdm_direct_routing_t;

/* Whether packets are discarded by age, and at what age. */
typedef struct bcm_fabric_config_discard_s {
    uint32 flags;
    int enable;
    int age;
    bcm_fabric_age_mode_t age_mode;
} bcm_fabric_config_discard_t;

/* A route given hop by hop. */
typedef struct bcm_fabric_route_s {
    uint32 pipe_id;
    int number_of_hops;
    int *hop_ids;
} bcm_fabric_route_t;

/* How packets are packed together. */
typedef struct bcm_fabric_pcp_mode_config_s {
    bcm_fabric_pcp_mode_t pcp_mode;
} bcm_fabric_pcp_mode_config_t;

/* Levels of congestion indication by the fabric. */
typedef struct bcm_fabric_rci_config_s {
    uint32 rci_core_level_thresholds[7];
    uint32 rci_device_level_thresholds[7];
    uint32 rci_severity_factors[3];
    uint32 rci_high_score_fabric_rx_queue;
    uint32 rci_high_score_fabric_rx_local_queue;
    uint32 rci_threshold_num_of_congested_links;
    uint32 rci_high_score_congested_links;
} bcm_fabric_rci_config_t;

/* Called for each predicate. */
typedef int (*bcm_fabric_predicate_traverse_cb)(int unit, bcm_fabric_predicate_t predicate,
                                                bcm_fabric_predicate_info_t *info, void *user_data);

/* Called for each action. */
typedef int (*bcm_fabric_action_traverse_cb)(int unit, bcm_fabric_action_t action,
                                             bcm_fabric_action_info_t *info, void *user_data);

/* Called for each pair of predicates and action. */
typedef int (*bcm_fabric_predicate_action_traverse_cb)(
    int unit, bcm_fabric_predicate_action_t predicate_action,
    bcm_fabric_predicate_action_info_t *info, void *user_data);

/* Called for each queue selection table. */
typedef int (*bcm_fabric_qsel_traverse_cb)(int unit, bcm_fabric_qsel_t qsel, uint32 flags,
                                           int min_index, int max_index, void *user_data);

/* Called for each entry of a queue selection table. */
typedef int (*bcm_fabric_qsel_entry_traverse_cb)(int unit, bcm_fabric_qsel_t qsel, int index,
                                                 bcm_gport_t gport, int offset, void *user_data);

/* Called for each queue offset table. */
typedef int (*bcm_fabric_qsel_offset_traverse_cb)(int unit, bcm_fabric_qsel_offset_t qsel_offset,
                                                  uint32 flags, void *user_data);

/* Called for each entry of a queue offset table. */
typedef int (*bcm_fabric_qsel_offset_entry_traverse_cb)(int unit,
                                                        bcm_fabric_qsel_offset_t qsel_offset,
                                                        int index, int offset, void *user_data);

/* Told of changes in the redundancy of the control path. */
typedef void (*bcm_fabric_control_redundancy_handler_t)(int unit,
                                                        bcm_fabric_control_redundancy_info_t *info);

OMBRA_END_DECLS
