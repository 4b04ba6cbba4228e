/* Switch: controls, events and tables of the unit as a whole. */
#pragma once
#include "native/base.h"
#include "sdk/constants.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* A field that goes into a hash. */
typedef struct bcm_switch_hash_entry_config_s {
    uint32 flags;
    bcm_switch_hash_field_t field;
    uint32 offset;
    int mask_length;
    uint8 mask[4];
    bcm_udf_layer_t base_layer;
    bcm_udf_id_t udf_id;
} bcm_switch_hash_entry_config_t;

/* A packet described, to learn where it would go. */
typedef struct bcm_switch_pkt_info_s {
    uint32 flags;
    bcm_gport_t src_gport;
    bcm_vlan_t vid;
    bcm_ethertype_t ethertype;
    bcm_mac_t src_mac;
    bcm_mac_t dst_mac;
    bcm_ip_t sip;
    bcm_ip_t dip;
    bcm_ip6_t sip6;
    bcm_ip6_t dip6;
    uint8 protocol;
    uint32 src_l4_port;
    uint32 dst_l4_port;
    bcm_gport_t trunk_gport;
    bcm_if_t mpintf;
    bcm_switch_pkt_hash_info_fwd_reason_t fwd_reason;
} bcm_switch_pkt_info_t;

/* What is done on an event. */
typedef struct bcm_switch_event_control_s {
    int event_id;
    int index;
    bcm_switch_event_control_action_t action;
} bcm_switch_event_control_t;

/* Which network groups may not reach each other. */
typedef struct bcm_switch_network_group_config_s {
    bcm_switch_network_group_t dest_network_group_id;
    uint32 config_flags;
} bcm_switch_network_group_config_t;

/* A service, and whether it is on. */
typedef struct bcm_switch_service_config_s {
    uint32 flags;
    bcm_switch_service_enabled_t enabled;
} bcm_switch_service_config_t;

/* The profile that another is mapped to. */
typedef struct bcm_switch_profile_mapping_s {
    bcm_switch_profile_mapping_type_t profile_type;
    bcm_gport_t mapped_profile;
} bcm_switch_profile_mapping_t;

/* A TPID of the unit. */
typedef struct bcm_switch_tpid_info_s {
    bcm_switch_tpid_type_t tpid_type;
    uint16 tpid_value;
    uint32 flags;
    int color;
} bcm_switch_tpid_info_t;

/* A class of tags by their TPIDs. */
typedef struct bcm_switch_tpid_class_s {
    uint32 flags;
    bcm_switch_tpid_class_match_t match;
    bcm_gport_t port;
    int vlan_translation_action_id;
    uint32 tpid_class_id;
} bcm_switch_tpid_class_t;

/* The lookups that hit, one bit for each bcm_switch_pkt_trace_lookup_t. */
typedef struct bcm_switch_pkt_trace_lookup_result_s {
    SHR_BITDCL pkt_trace_status_bitmap[_SHR_BITDCLSIZE(bcmSwitchPktTraceLookupCount)];
} bcm_switch_pkt_trace_lookup_result_t;

/* The members that hashing chose. */
typedef struct bcm_switch_pkt_trace_hashing_info_s {
    uint32 flags;
    bcm_if_t ecmp_1_group;
    bcm_if_t ecmp_1_egress;
    bcm_if_t ecmp_2_group;
    bcm_if_t ecmp_2_egress;
    bcm_gport_t trunk;
    bcm_gport_t trunk_member;
    bcm_gport_t fabric_trunk;
    bcm_gport_t fabric_trunk_member;
} bcm_switch_pkt_trace_hashing_info_t;

/* The way of a traced packet. */
typedef struct bcm_switch_pkt_trace_info_s {
    bcm_switch_pkt_trace_lookup_result_t pkt_trace_lookup_status;
    bcm_switch_pkt_trace_resolution_t pkt_trace_resolution;
    bcm_switch_pkt_trace_hashing_info_t pkt_trace_hash_info;
    bcm_stg_stp_t pkt_trace_stp_state;
    uint32 pkt_trace_drop_reason[4];
    uint32 dest_pipe_num;
    uint32 raw_data_length;
    uint8 raw_data[112];
} bcm_switch_pkt_trace_info_t;

/* A property of a logical interface. */
typedef struct bcm_switch_lif_property_config_s {
    uint32 key;
    uint32 value;
} bcm_switch_lif_property_config_t;

/* A control with its index. */
typedef struct bcm_switch_control_key_s {
    bcm_switch_control_t type;
    int index;
} bcm_switch_control_key_t;

/* The value of an indexed control. */
typedef struct bcm_switch_control_info_s {
    int value;
} bcm_switch_control_info_t;

/* An address of the offload processor. */
typedef struct bcm_switch_olp_l2_addr_s {
    bcm_port_t port;
    bcm_mac_t mac;
} bcm_switch_olp_l2_addr_t;

/* A monitor of an aggregation group. */
typedef struct bcm_switch_agm_info_s {
    bcm_switch_agm_id_t agm_id;
    bcm_switch_agm_type_t agm_type;
    int num_members;
    int period_num;
    bcm_switch_agm_period_interval_t period_interval;
} bcm_switch_agm_info_t;

/* What a monitor saw of a member. */
typedef struct bcm_switch_agm_stat_s {
    uint64 packets;
    uint64 bytes;
    int period;
    bcm_gport_t gport_id;
    bcm_if_t intf_id;
} bcm_switch_agm_stat_t;

/* What a match configuration matches. */
typedef struct bcm_switch_match_config_info_s {
    uint32 value32;
    uint16 inner_ethtype;
    uint16 outer_ethtype;
    uint8 int_pri;
    bcm_color_t color;
    uint8 match_criteria;
    uint16 dst_port;
    uint16 src_port;
    uint16 ethtype1;
    uint16 ethtype2;
    bcm_mac_t dst_mac;
    bcm_mac_t dst_mac_mask;
} bcm_switch_match_config_info_t;

/* What a match control changes. */
typedef struct bcm_switch_match_control_info_s {
    int port_enable;
    uint32 mask32;
} bcm_switch_match_control_info_t;

/* An encapsulation. */
typedef struct bcm_switch_encap_info_s {
    bcm_switch_encap_service_t encap_service;
    uint32 flags;
    uint32 value32;
    int qos_map_id;
    bcm_gport_t port;
    bcm_vlan_t egress_vlan;
    bcm_mac_t egress_srcmac;
    bcm_mac_t egress_dstmac;
    uint8 pkt_pri;
    uint8 pkt_cfi;
    uint8 pkt_type;
    uint16 iid;
    uint16 length;
    bcm_vlan_t higig_vlan;
} bcm_switch_encap_info_t;

/* The memory chips of a unit. */
typedef struct bcm_switch_dram_vendor_info_s {
    uint32 dram_density;
    uint32 fifo_depth;
    uint32 revision_id;
    uint32 manufacture_id;
} bcm_switch_dram_vendor_info_t;

/* A temperature, with its extremes. */
typedef struct bcm_switch_thermo_sensor_s {
    int thermo_sensor_min;
    int thermo_sensor_max;
    int thermo_sensor_current;
} bcm_switch_thermo_sensor_t;

/* Told of each event of the chip. */
typedef void (*bcm_switch_event_cb_t)(int unit, bcm_switch_event_t event, uint32 arg1, uint32 arg2,
                                      uint32 arg3, void *user_data);

/* Reads from the stable storage of warm boot. */
typedef int (*bcm_switch_read_func_t)(int unit, uint32 *buf, int offset, int nbytes);

/* Writes to the stable storage of warm boot. */
typedef int (*bcm_switch_write_func_t)(int unit, uint32 *buf, int offset, int nbytes);

/* Called for each entry of a hash table. */
typedef int (*bcm_switch_hash_entry_traverse_cb)(int unit, int table, bcm_hash_entry_t entry,
                                                 void *user_data);

/* Called for each address of the offload processor. */
typedef int (*bcm_switch_olp_l2_addr_traverse_cb)(int unit, bcm_switch_olp_l2_addr_t *olp_l2_addr,
                                                  void *user_data);

/* Called for each monitor of aggregation groups. */
typedef int (*bcm_switch_agm_traverse_cb)(int unit, bcm_switch_agm_info_t *agm_info,
                                          void *user_data);

/* Called for each match configuration. */
typedef int (*bcm_switch_match_config_traverse_cb)(
    int unit, int match_id, bcm_switch_match_config_info_t *match_config_info, void *user_data);

/* Called for each match control. */
typedef int (*bcm_switch_match_control_traverse_cb)(
    int unit, bcm_switch_match_control_type_t type, int match_id,
    bcm_switch_match_control_info_t *match_control_info, void *user_data);

/* Called for each encapsulation. */
typedef int (*bcm_switch_encap_traverse_cb)(int unit, int encap_id,
                                            bcm_switch_encap_info_t *encap_info, void *user_data);

OMBRA_END_DECLS
