/* OAM: groups, endpoints and what is measured between them. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/mpls_types.h"
#include "sdk/bcm/time_types.h"
#include "sdk/constants.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* A set of events, one bit for each bcm_oam_event_type_t. */
typedef struct bcm_oam_event_types_s {
    SHR_BITDCL w[_SHR_BITDCLSIZE(bcmOAMEventCount)];
} bcm_oam_event_types_t;

/* A set of conditions, one bit for each bcm_oam_condition_t. */
typedef struct bcm_oam_conditions_s {
    SHR_BITDCL cbits[_SHR_BITDCLSIZE(bcmOamConditionCount)];
} bcm_oam_conditions_t;

/* A set of lookups, one bit for each bcm_oam_lookup_type_t. */
typedef struct bcm_oam_lookup_types_s {
    SHR_BITDCL tbits[_SHR_BITDCLSIZE(bcmOamLookupTypeCount)];
} bcm_oam_lookup_types_t;

/* A group: the endpoints of one association, and its faults. */
typedef struct bcm_oam_group_info_s {
    uint32 flags;
    bcm_oam_group_t id;
    uint8 name[48];
    uint8 rx_name[48];
    uint32 faults;
    uint32 persistent_faults;
    uint32 clear_persistent_faults;
    bcm_oam_group_fault_alarm_defect_priority_t lowest_alarm_priority;
    int group_name_index;
} bcm_oam_group_info_t;

/* The place of an endpoint in an MPLS network. */
typedef struct bcm_oam_mpls_network_info_s {
    uint8 function_type;
    bcm_ip6_t lsr_id;
    uint32 lsp_id;
} bcm_oam_mpls_network_info_t;

/* An endpoint, local or remote. */
typedef struct bcm_oam_endpoint_info_s {
    uint32 flags;
    uint32 flags2;
    uint32 opcode_flags;
    uint32 lm_flags;
    bcm_oam_endpoint_t id;
    bcm_oam_endpoint_type_t type;
    bcm_oam_group_t group;
    uint16 name;
    bcm_oam_endpoint_t local_id;
    int level;
    int ccm_period;
    bcm_vlan_t vlan;
    bcm_vlan_t inner_vlan;
    bcm_gport_t gport;
    bcm_gport_t tx_gport;
    int trunk_index;
    bcm_if_t intf_id;
    bcm_mpls_label_t mpls_label;
    bcm_mpls_egress_label_t egress_label;
    bcm_oam_mpls_network_info_t mpls_network_info;
    bcm_mac_t dst_mac_address;
    bcm_mac_t src_mac_address;
    uint8 pkt_pri;
    uint8 inner_pkt_pri;
    uint16 inner_tpid;
    uint16 outer_tpid;
    bcm_cos_t int_pri;
    uint8 cpu_qid;
    uint8 pri_map[16];
    uint32 faults;
    uint32 persistent_faults;
    uint32 clear_persistent_faults;
    int ing_map;
    int egr_map;
    uint8 ms_pw_ttl;
    uint8 port_state;
    uint8 interface_state;
    bcm_oam_vccv_type_t vccv_type;
    bcm_vpn_t vpn;
    int lm_counter_base_id;
    uint8 loc_clear_threshold;
    bcm_oam_timestamp_format_t timestamp_format;
    uint16 subport_tpid;
    bcm_gport_t remote_gport;
    bcm_gport_t mpls_out_gport;
    int sampling_ratio;
    uint32 lm_payload_offset;
    uint32 lm_cos_offset;
    bcm_oam_lm_counter_type_t lm_ctr_type;
    bcm_oam_lm_counter_size_t lm_ctr_sample_size;
    uint32 pri_map_id;
    int lm_ctr_pool_id;
    uint32 ccm_tx_update_lm_counter_base_id[3];
    uint32 ccm_tx_update_lm_counter_offset[3];
    uint8 ccm_tx_update_lm_counter_action[3];
    uint8 ccm_tx_update_lm_counter_size;
    uint32 session_id;
    uint8 session_num_entries;
    uint8 lm_count_profile;
    uint8 mpls_exp;
    bcm_oam_endpoint_t action_reference_id;
} bcm_oam_endpoint_info_t;

/* A measurement of loss. */
typedef struct bcm_oam_loss_s {
    uint32 flags;
    int loss_id;
    bcm_oam_endpoint_t id;
    bcm_oam_endpoint_t remote_id;
    int period;
    int loss_threshold;
    int loss_nearend;
    int loss_farend;
    uint32 loss_nearend_byte;
    uint32 loss_farend_byte;
    uint32 loss_nearend_byte_upper;
    uint32 loss_farend_byte_upper;
    int loss_nearend_max;
    int loss_nearend_acc;
    int loss_farend_max;
    int loss_farend_acc;
    uint32 tx_nearend;
    uint32 rx_nearend;
    uint32 tx_farend;
    uint32 rx_farend;
    uint32 tx_nearend_byte;
    uint32 rx_nearend_byte;
    uint32 tx_farend_byte;
    uint32 rx_farend_byte;
    uint32 tx_nearend_byte_upper;
    uint32 rx_nearend_byte_upper;
    uint32 tx_farend_byte_upper;
    uint32 rx_farend_byte_upper;
    uint8 pkt_pri_bitmap;
    uint8 pkt_dp_bitmap;
    uint8 pkt_pri;
    bcm_cos_t int_pri;
    bcm_gport_t gport;
    uint32 rx_oam_packets;
    uint32 tx_oam_packets;
    bcm_mac_t peer_da_mac_address;
    uint32 lm_counter_base_id[3];
    uint32 lm_counter_offset[3];
    int lm_counter_action[3];
    uint32 lm_counter_byte_offset[3];
    uint32 lm_counter_size;
    uint32 pm_id;
} bcm_oam_loss_t;

/* A TLV of a test frame. */
typedef struct bcm_oam_tlv_s {
    bcm_oam_tlv_pattern_type_t tlv_type;
    int tlv_length;
    uint32 four_byte_repeatable_pattern;
} bcm_oam_tlv_t;

/* A measurement of delay. */
typedef struct bcm_oam_delay_s {
    uint32 flags;
    int delay_id;
    bcm_oam_endpoint_t id;
    bcm_oam_endpoint_t remote_id;
    int period;
    bcm_time_spec_t delay_min;
    bcm_time_spec_t delay_max;
    bcm_time_spec_t delay;
    bcm_time_spec_t txf;
    bcm_time_spec_t rxf;
    bcm_time_spec_t txb;
    bcm_time_spec_t rxb;
    uint8 pkt_pri;
    bcm_cos_t int_pri;
    uint32 rx_oam_packets;
    uint32 tx_oam_packets;
    bcm_oam_timestamp_format_t timestamp_format;
    bcm_mac_t peer_da_mac_address;
    uint32 pm_id;
    uint32 dm_tx_update_lm_counter_base_id[3];
    uint32 dm_tx_update_lm_counter_offset[3];
    uint32 dm_tx_update_lm_counter_byte_offset[3];
    uint8 dm_tx_update_lm_counter_size;
    bcm_oam_tlv_t tlvs[1];
} bcm_oam_delay_t;

/* An alarm indication. */
typedef struct bcm_oam_ais_s {
    uint32 flags;
    int ais_id;
    bcm_oam_endpoint_t id;
    int period;
    int level;
    bcm_mac_t peer_da_mac_address;
    uint8 pkt_pri;
    uint8 drop_eligible;
} bcm_oam_ais_t;

/* A test that an endpoint sends. */
typedef struct bcm_oam_tst_tx_s {
    bcm_oam_endpoint_t endpoint_id;
    int gtf_id;
    uint32 flags;
    bcm_mac_t peer_da_mac_address;
    bcm_oam_tlv_t tlv;
} bcm_oam_tst_tx_t;

/* A test that an endpoint receives, with its counts. */
typedef struct bcm_oam_tst_rx_s {
    bcm_oam_endpoint_t endpoint_id;
    int ctf_id;
    uint32 flags;
    bcm_oam_tlv_t expected_tlv;
    uint64 rx_count;
    uint64 invalid_tlv_count;
    uint64 out_of_sequence;
} bcm_oam_tst_rx_t;

/* Detection of signal degrade and signal failure. */
typedef struct bcm_oam_sd_sf_detection_s {
    bcm_oam_endpoint_t mep_id;
    bcm_oam_endpoint_t rmep_id;
    uint16 sd_set_threshold;
    uint16 sf_set_threshold;
    uint16 sd_clear_threshold;
    uint16 sf_clear_threshold;
    uint8 flags;
    uint8 sd_indication;
    uint8 sf_indication;
    uint16 sliding_window_length;
    uint16 sliding_window_cnt[256];
    uint16 sum_cnt;
} bcm_oam_sd_sf_detection_t;

/* An alarm of connectivity verification. */
typedef struct bcm_oam_y_1711_alarm_s {
    bcm_oam_endpoint_t mep_id;
    bcm_oam_endpoint_t rmep_id;
    uint8 d_excess_threshold;
    uint8 indicator_low_threshold;
    uint8 indicator_high_threshold;
    uint8 flags;
    uint8 d_excess;
    uint8 d_mismatch;
    uint8 d_mismerge;
} bcm_oam_y_1711_alarm_t;

/* A point that a loopback has found. */
typedef struct bcm_oam_loopback_discovery_record_s {
    uint32 flags;
    bcm_oam_endpoint_t id;
    int ttl;
    uint16 name;
} bcm_oam_loopback_discovery_record_t;

/* A loopback, what it sends and what came back. */
typedef struct bcm_oam_loopback_s {
    uint32 flags;
    bcm_oam_endpoint_t id;
    bcm_oam_endpoint_t remote_id;
    int period;
    int ttl;
    bcm_oam_loopback_discovery_record_t discovered_me;
    uint32 rx_count;
    uint32 tx_count;
    uint32 drop_count;
    uint32 unexpected_response;
    uint32 out_of_sequence;
    uint32 local_mipid_missmatch;
    uint32 remote_mipid_missmatch;
    uint32 invalid_target_mep_tlv;
    uint32 invalid_mep_tlv_subtype;
    uint32 invalid_tlv_offset;
    bcm_mac_t peer_da_mac_address;
    int num_tlvs;
    int invalid_tlv_count;
    int ctf_id;
    int gtf_id;
    bcm_oam_tlv_t tlvs[2];
    uint32 lb_tx_update_lm_counter_base_id[3];
    uint32 lb_tx_update_lm_counter_offset[3];
    uint8 lb_tx_update_lm_counter_size;
    bcm_cos_t int_pri;
    uint8 pkt_pri;
    uint8 inner_pkt_pri;
} bcm_oam_loopback_t;

/* The state messages of protection switching. */
typedef struct bcm_oam_psc_s {
    uint32 flags;
    bcm_oam_endpoint_t id;
    bcm_oam_endpoint_t remote_id;
    int version;
    int request;
    int pt;
    uint8 fpath;
    uint8 path;
    int burst_rate;
    int slow_rate;
    int tlv_length;
    uint8 tlv;
} bcm_oam_psc_t;

/* The status messages of a pseudo-wire. */
typedef struct bcm_oam_pw_status_s {
    uint32 flags;
    bcm_oam_endpoint_t id;
    bcm_oam_endpoint_t remote_id;
    int burst_rate;
    int refresh;
    int ack;
    uint8 tlv_length;
    uint8 tlv;
} bcm_oam_pw_status_t;

/* A client signal failure. */
typedef struct bcm_oam_csf_s {
    uint32 flags;
    uint32 type;
    bcm_oam_endpoint_t id;
    int period;
    uint8 pkt_pri;
    bcm_cos_t int_pri;
    uint32 csf_tx_update_lm_counter_base_id[3];
    uint32 csf_tx_update_lm_counter_offset[3];
    uint8 csf_tx_update_lm_counter_size;
} bcm_oam_csf_t;

/* What is done with the messages of an endpoint. */
typedef struct bcm_oam_endpoint_action_s {
    uint32 flags;
    SHR_BITDCL opcode_bmp[_SHR_BITDCLSIZE(256)];
    SHR_BITDCL opcode_actions[_SHR_BITDCLSIZE(bcmOAMActionCount)];
    bcm_gport_t destination;
    bcm_gport_t destination2;
} bcm_oam_endpoint_action_t;

/* The measurements behind a performance event. */
typedef struct bcm_oam_performance_event_data_s {
    uint32 delta_FCB;
    uint32 delta_FCf;
    uint64 last_delay;
} bcm_oam_performance_event_data_t;

/* A profile of performance monitoring, with the edges of its bins. */
typedef struct bcm_oam_pm_profile_info_s {
    bcm_oam_pm_profile_t id;
    uint32 flags;
    uint32 bin_edges[7];
} bcm_oam_pm_profile_info_t;

/* The results of performance monitoring. */
typedef struct bcm_oam_pm_stats_s {
    uint32 far_loss_min;
    uint32 far_tx_min;
    uint32 far_loss_max;
    uint32 far_tx_max;
    uint32 far_loss;
    uint32 near_loss_min;
    uint32 near_tx_min;
    uint32 near_loss_max;
    uint32 near_tx_max;
    uint32 near_loss;
    uint32 lm_tx_count;
    uint32 DM_min;
    uint32 DM_max;
    uint32 DM_avg;
    uint32 dm_tx_count;
    uint8 profile_id;
    /* Messages and docstrings show the bound as it stands here. */
    // clang-format off
    uint32 bin_counters[7+1];
    // clang-format on
    uint32 lm_rx_count;
    uint32 dm_rx_count;
    uint32 far_total_tx_pkt_count;
    uint32 near_total_tx_pkt_count;
    uint32 flags;
} bcm_oam_pm_stats_t;

/* The four counters of one loss measurement. */
typedef struct bcm_oam_pm_raw_counter_s {
    uint32 tx_fcf;
    uint32 rx_fcf;
    uint32 tx_fcb;
    uint32 rx_fcb;
} bcm_oam_pm_raw_counter_t;

/* The four times of one delay measurement. */
typedef struct bcm_oam_pm_raw_timestamp_s {
    uint32 tx_tsf_secs;
    uint32 tx_tsf_nsecs;
    uint32 rx_tsf_secs;
    uint32 rx_tsf_nsecs;
    uint32 tx_tsb_secs;
    uint32 tx_tsb_nsecs;
    uint32 rx_tsb_secs;
    uint32 rx_tsb_nsecs;
} bcm_oam_pm_raw_timestamp_t;

/* The samples of one endpoint. */
typedef struct bcm_oam_pm_raw_samples_s {
    int pm_id;
    uint32 lm_count;
    uint32 dm_count;
    bcm_oam_pm_raw_counter_t raw_counter[10];
    bcm_oam_pm_raw_timestamp_t raw_timestamp[10];
} bcm_oam_pm_raw_samples_t;

/* A buffer of samples. */
typedef struct bcm_oam_pm_raw_buffer_s {
    uint32 seq_num;
    bcm_oam_pm_raw_samples_t raw_sample[256];
} bcm_oam_pm_raw_buffer_t;

/* All buffers, and where reader and writer stand. The largest record of the SDK. */
typedef struct bcm_oam_pm_raw_data_s {
    uint32 pm_endpoint_count;
    uint8 read_index;
    uint8 write_index;
    bcm_oam_pm_raw_buffer_t raw_buffer[8];
} bcm_oam_pm_raw_data_t;

/* A set of opcodes, one bit for each. */
typedef struct bcm_oam_opcodes_s {
    SHR_BITDCL opcode_bmp[_SHR_BITDCLSIZE(256)];
} bcm_oam_opcodes_t;

/* The faults of an endpoint. */
typedef struct bcm_oam_endpoint_fault_s {
    bcm_oam_endpoint_t endpoint_id;
    uint32 faults;
} bcm_oam_endpoint_fault_t;

/* Called for each group. */
typedef int (*bcm_oam_group_traverse_cb)(int unit, bcm_oam_group_info_t *group_info,
                                         void *user_data);

/* Called for each endpoint. */
typedef int (*bcm_oam_endpoint_traverse_cb)(int unit, bcm_oam_endpoint_info_t *endpoint_info,
                                            void *user_data);

/* Called for each profile of performance monitoring. */
typedef int (*bcm_oam_pm_profile_traverse_cb)(int unit, bcm_oam_pm_profile_info_t *profile_info,
                                              void *user_data);

/* Told of each event of an endpoint. */
typedef int (*bcm_oam_event_cb)(int unit, uint32 flags, bcm_oam_event_type_t event_type,
                                bcm_oam_group_t group, bcm_oam_endpoint_t endpoint,
                                void *user_data);

/* Told of performance events, with their measurements. */
typedef int (*bcm_oam_performance_event_cb)(int unit, bcm_oam_event_type_t event_type,
                                            bcm_oam_group_t group, bcm_oam_endpoint_t endpoint,
                                            bcm_oam_performance_event_data_t *data,
                                            void *user_data);

/* Given the raw samples of performance monitoring. */
typedef int (*bcm_oam_pm_event_cb)(int unit, bcm_oam_event_type_t event_type,
                                   bcm_oam_pm_raw_data_t *pm_event_data, void *user_data);

OMBRA_END_DECLS
