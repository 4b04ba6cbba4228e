/* Ports: configuration and state of a port, down to its PHY. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/bcm/time_types.h"
#include "sdk/bcm/vlan_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

/* Pipes of a chip. */
#define _SHR_SWITCH_MAX_PIPES 4

OMBRA_BEGIN_DECLS

/* The ports of a unit by kind. */
typedef struct bcm_port_config_s {
    bcm_pbmp_t fe;
    bcm_pbmp_t ge;
    bcm_pbmp_t xe;
    bcm_pbmp_t ce;
    bcm_pbmp_t e;
    bcm_pbmp_t hg;
    bcm_pbmp_t sci;
    bcm_pbmp_t sfi;
    bcm_pbmp_t spi;
    bcm_pbmp_t spi_subport;
    bcm_pbmp_t port;
    bcm_pbmp_t cpu;
    bcm_pbmp_t all;
    bcm_pbmp_t stack_int;
    bcm_pbmp_t stack_ext;
    bcm_pbmp_t tdm;
    bcm_pbmp_t pon;
    bcm_pbmp_t llid;
    bcm_pbmp_t il;
    bcm_pbmp_t xl;
    bcm_pbmp_t rcy;
    bcm_pbmp_t sat;
    bcm_pbmp_t ipsec;
    bcm_pbmp_t per_pipe[_SHR_SWITCH_MAX_PIPES];
    bcm_pbmp_t nif;
    bcm_pbmp_t control;
} bcm_port_config_t;

/* A destination with its priority. */
typedef struct bcm_port_dest_info_s {
    uint32 flags;
    bcm_gport_t gport;
    bcm_cos_t priority;
    bcm_color_t dp;
} bcm_port_dest_info_t;

/* Which packets are management packets. */
typedef struct bcm_port_management_packet_config_s {
    uint32 flags;
    bcm_ethertype_t ethertype;
    bcm_mac_t dest_mac;
} bcm_port_management_packet_config_t;

/* The interface of a port. */
typedef struct bcm_port_interface_config_s {
    uint32 flags;
    uint32 channel;
    uint32 phy_port;
    bcm_port_if_t interface;
} bcm_port_interface_config_t;

/* The interface of a port with its lanes. */
typedef struct bcm_port_interface_info_s {
    uint32 phy_port;
    bcm_port_if_t interface;
    uint32 num_lanes;
    bcm_pbmp_t phy_pbmp;
    uint32 interface_id;
    int qmlf_port_mode;
} bcm_port_interface_info_t;

/* The place of a port in the traffic manager. */
typedef struct bcm_port_mapping_info_s {
    uint32 channel;
    int core;
    uint32 tm_port;
    uint32 base_q_pair;
    uint32 num_priorities;
} bcm_port_mapping_info_t;

/* The state of a link, and whether it went down since. */
typedef struct bcm_port_link_state_s {
    int status;
    int latch_down;
} bcm_port_link_state_t;

/* The encapsulation of a port. */
typedef struct bcm_port_encap_config_s {
    bcm_port_encap_t encap;
    uint16 oui_ethertype;
    uint16 higig_ethertype;
    uint8 oui[3];
    uint16 hgoe_reserved;
    bcm_mac_t dst_mac;
    bcm_mac_t src_mac;
    uint16 tpid;
    uint16 vlan;
    uint8 ttl;
    uint8 tos;
    bcm_ip_t src_addr;
    bcm_ip_t dst_addr;
} bcm_port_encap_config_t;

/* A class of tags by their TPIDs. */
typedef struct bcm_port_tpid_class_s {
    uint32 flags;
    bcm_gport_t port;
    uint32 tpid1;
    uint32 tpid2;
    bcm_port_tag_format_class_t tag_format_class_id;
    int vlan_translation_action_id;
    uint32 vlan_translation_qos_map_id;
    uint32 tpid_class_id;
} bcm_port_tpid_class_t;

/* Many settings of a port in one record; action_mask says which. */
typedef struct bcm_port_info_s {
    uint32 action_mask;
    uint32 action_mask2;
    int enable;
    int linkstatus;
    int autoneg;
    int speed;
    int duplex;
    int linkscan;
    uint32 learn;
    int discard;
    uint32 vlanfilter;
    int untagged_priority;
    bcm_vlan_t untagged_vlan;
    int stp_state;
    int pfm;
    int loopback;
    int phy_master;
    bcm_port_if_t interface;
    int pause_tx;
    int pause_rx;
    int encap_mode;
    bcm_mac_t pause_mac;
    bcm_port_abil_t local_advert;
    bcm_port_ability_t local_ability;
    int remote_advert_valid;
    bcm_port_abil_t remote_advert;
    bcm_port_ability_t remote_ability;
    int mcast_limit;
    int mcast_limit_enable;
    int bcast_limit;
    int bcast_limit_enable;
    int dlfbc_limit;
    int dlfbc_limit_enable;
    int speed_max;
    bcm_port_abil_t ability;
    bcm_port_ability_t port_ability;
    int frame_max;
    bcm_port_mdix_t mdix;
    bcm_port_mdix_status_t mdix_status;
    bcm_port_medium_t medium;
    uint32 fault;
} bcm_port_info_t;

/* A link of a PON port. */
typedef struct bcm_port_pon_info_s {
    int llid;
    int enable;
    int linkstatus;
    int oam_discovery_status;
    int loopback;
    bcm_mac_t olt_mac_addr;
    int polling_intervals[8];
} bcm_port_pon_info_t;

/* The congestion messages of a port. */
typedef struct bcm_port_congestion_config_s {
    uint32 flags;
    uint8 port_bits;
    int packets_per_sec;
    bcm_gport_t src_port;
    uint16 multicast_id;
    bcm_cos_t traffic_class;
    bcm_color_t color;
    bcm_vlan_t vlan;
    uint8 pri;
    uint8 cfi;
    bcm_mac_t src_mac;
    bcm_mac_t dest_mac;
    uint16 ethertype;
    uint16 opcode;
    uint8 version;
    uint8 reserved_v;
    bcm_gport_t dst_port;
} bcm_port_congestion_config_t;

/* What leads a packet to a virtual port. */
typedef struct bcm_port_match_info_s {
    bcm_port_match_t match;
    bcm_gport_t port;
    bcm_vlan_t match_vlan;
    bcm_vlan_t match_vlan_max;
    bcm_vlan_t match_inner_vlan;
    bcm_vlan_t match_inner_vlan_max;
    bcm_vlan_t match_tunnel_vlan;
    bcm_mac_t match_tunnel_srcmac;
    bcm_mpls_label_t match_label;
    uint32 flags;
    bcm_tunnel_id_t match_pon_tunnel;
    bcm_port_ethertype_t match_ethertype;
    int match_pcp;
    bcm_vlan_action_set_t *action;
    uint16 extended_port_vid;
    bcm_vpn_t vpn;
    uint16 niv_port_vif;
} bcm_port_match_info_t;

/* How time packets are handled at a port. */
typedef struct bcm_port_timesync_config_s {
    uint32 flags;
    uint32 pkt_drop;
    uint32 pkt_tocpu;
    int mpls_min_label;
    int mpls_max_label;
    bcm_mac_t src_mac_addr;
} bcm_port_timesync_config_t;

/* Frame synchronisation of a PHY. */
typedef struct bcm_port_phy_timesync_framesync_s {
    bcm_port_phy_timesync_framesync_mode_t mode;
    uint32 length_threshold;
    uint32 event_offset;
} bcm_port_phy_timesync_framesync_t;

/* The pulses that a PHY gives out. */
typedef struct bcm_port_phy_timesync_syncout_s {
    bcm_port_phy_timesync_syncout_mode_t mode;
    uint16 pulse_1_length;
    uint16 pulse_2_length;
    uint32 interval;
    uint64 syncout_ts;
} bcm_port_phy_timesync_syncout_t;

/* A label under a mask. */
typedef struct bcm_port_phy_timesync_mpls_label_s {
    bcm_mpls_label_t value;
    bcm_mpls_label_t mask;
    uint32 flags;
} bcm_port_phy_timesync_mpls_label_t;

/* Which labels lead to time packets. */
typedef struct bcm_port_phy_timesync_mpls_control_s {
    uint32 flags;
    bcm_mpls_label_t special_label;
    bcm_port_phy_timesync_mpls_label_t labels[10];
    int size;
} bcm_port_phy_timesync_mpls_control_t;

/* An adjustment of a PHY's timer. */
typedef struct bcm_port_phy_timesync_timer_adjust_s {
    bcm_port_phy_timesync_timer_mode_t mode;
    int delta;
} bcm_port_phy_timesync_timer_adjust_t;

/* Time stamps within the packet. */
typedef struct bcm_port_phy_timesync_inband_control_s {
    uint32 flags;
    uint32 resv0_id;
    bcm_port_phy_timesync_timer_mode_t timer_mode;
} bcm_port_phy_timesync_inband_control_t;

/* A captured time stamp with its message. */
typedef struct bcm_port_phy_timesync_enhanced_capture_s {
    bcm_port_phy_timesync_msg_t msg_type;
    bcm_port_phy_timesync_prot_t protocol;
    bcm_port_phy_timesync_dir_t direction;
    uint32 seq_id;
    uint32 domain;
    uint64 timestamp;
    uint64 source_port_identity;
    uint16 source_port;
    uint16 vlan_id;
} bcm_port_phy_timesync_enhanced_capture_t;

/* All of the time settings of a PHY. */
typedef struct bcm_port_phy_timesync_config_s {
    uint32 capabilities;
    uint32 validity_mask;
    uint32 flags;
    uint16 itpid;
    uint16 otpid;
    uint16 otpid2;
    bcm_port_phy_timesync_timer_adjust_t timer_adjust;
    bcm_port_phy_timesync_inband_control_t inband_control;
    bcm_port_phy_timesync_global_mode_t gmode;
    bcm_port_phy_timesync_framesync_t framesync;
    bcm_port_phy_timesync_syncout_t syncout;
    uint16 ts_divider;
    bcm_time_spec_t original_timecode;
    uint32 tx_timestamp_offset;
    uint32 rx_timestamp_offset;
    uint32 rx_link_delay;
    bcm_port_phy_timesync_event_message_egress_mode_t tx_sync_mode;
    bcm_port_phy_timesync_event_message_egress_mode_t tx_delay_request_mode;
    bcm_port_phy_timesync_event_message_egress_mode_t tx_pdelay_request_mode;
    bcm_port_phy_timesync_event_message_egress_mode_t tx_pdelay_response_mode;
    bcm_port_phy_timesync_event_message_ingress_mode_t rx_sync_mode;
    bcm_port_phy_timesync_event_message_ingress_mode_t rx_delay_request_mode;
    bcm_port_phy_timesync_event_message_ingress_mode_t rx_pdelay_request_mode;
    bcm_port_phy_timesync_event_message_ingress_mode_t rx_pdelay_response_mode;
    bcm_port_phy_timesync_mpls_control_t mpls_control;
    uint32 sync_freq;
    uint16 phy_1588_dpll_k1;
    uint16 phy_1588_dpll_k2;
    uint16 phy_1588_dpll_k3;
    uint64 phy_1588_dpll_loop_filter;
    uint64 phy_1588_dpll_ref_phase;
    uint32 phy_1588_dpll_ref_phase_delta;
} bcm_port_phy_timesync_config_t;

/* Delay measurement in one direction of a PHY. */
typedef struct bcm_port_config_phy_oam_dm_s {
    uint32 flags;
    bcm_port_config_phy_oam_dm_mode_t mode;
} bcm_port_config_phy_oam_dm_t;

/* Delay measurement of a PHY. */
typedef struct bcm_port_config_phy_oam_s {
    bcm_port_config_phy_oam_dm_t tx_dm_config;
    bcm_port_config_phy_oam_dm_t rx_dm_config;
} bcm_port_config_phy_oam_t;

/* The port behind an extender. */
typedef struct bcm_port_extender_mapping_info_s {
    bcm_gport_t pp_port;
    bcm_tunnel_id_t tunnel_id;
    bcm_gport_t phy_port;
    bcm_vlan_t vlan;
    uint32 user_define_value;
} bcm_port_extender_mapping_info_t;

/* The lanes, speed and encapsulation of a port. */
typedef struct bcm_port_resource_s {
    uint32 flags;
    bcm_gport_t port;
    int physical_port;
    int speed;
    int lanes;
    bcm_port_encap_t encap;
} bcm_port_resource_t;

/* A priority group of a port. */
typedef struct bcm_port_priority_group_config_s {
    int shared_pool_xoff_enable;
    int shared_pool_discard_enable;
    int pfc_transmit_enable;
    uint16 priority_enable_vector_mask;
} bcm_port_priority_group_config_t;

/* Where the traffic of a port is sent instead. */
typedef struct bcm_port_redirect_config_s {
    int flags;
    int strength;
    int buffer_priority;
    int destination;
    int priority;
    bcm_port_redirect_color_t color;
} bcm_port_redirect_config_t;

/* The priority of a network interface. */
typedef struct bcm_port_nif_prio_s {
    int priority_level;
} bcm_port_nif_prio_t;

/* A remote module of end-to-end flow control. */
typedef struct bcm_port_e2efc_remote_module_config_s {
    bcm_gport_t local_port;
    int pkt_per_second;
} bcm_port_e2efc_remote_module_config_t;

/* A remote port of end-to-end flow control, with its thresholds. */
typedef struct bcm_port_e2efc_remote_port_config_s {
    bcm_module_t remote_module;
    bcm_port_t remote_port;
    int xoff_threshold_bytes;
    int xoff_threshold_packets;
    int xon_threshold_bytes;
    int xon_threshold_packets;
    int drop_threshold_bytes;
    int drop_threshold_packets;
} bcm_port_e2efc_remote_port_config_t;

/* Called for each port of the resource table. */
typedef int (*bcm_port_resource_traverse_cb)(int unit, bcm_port_resource_t *resource,
                                             void *user_data);

/* Called for each remote module of end-to-end flow control. */
typedef int (*bcm_port_e2efc_remote_module_traverse_cb)(int unit, int remote_modid,
                                                        bcm_port_e2efc_mode_t mode,
                                                        void *user_data);

/* Called for each remote port of end-to-end flow control. */
typedef int (*bcm_port_e2efc_remote_port_traverse_cb)(int unit, int remote_port_id,
                                                      void *user_data);

OMBRA_END_DECLS
