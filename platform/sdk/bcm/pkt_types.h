/* Packets: a packet with its blocks and its internal headers. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/constants.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

/* Internal headers that a packet can carry. */
#define _SHR_PKT_NOF_DNX_HEADERS 9

OMBRA_BEGIN_DECLS

typedef struct bcm_pkt_s bcm_pkt_t;

/* A block of packet data. */
typedef struct bcm_pkt_blk_s {
    uint8 *data;
    int len;
} bcm_pkt_blk_t;

/* A counter that is written into an OAM packet. */
typedef struct bcm_pkt_oam_counter_s {
    bcm_pkt_oam_counter_object_t counter_object;
    uint32 counter_object_id;
    uint32 counter_offset;
    bcm_pkt_oam_lm_counter_mode_t counter_mode;
    uint32 counter_value_upper;
    uint32 counter_value_lower;
    uint32 oam_lm_byte_count_offset;
} bcm_pkt_oam_counter_t;

/* Where an injected packet goes. */
typedef struct bcm_pkt_dnx_itmh_dest_s {
    bcm_pkt_dnx_itmh_dest_type_t dest_type;
    bcm_pkt_dnx_itmh_dest_type_t dest_extension_type;
    bcm_gport_t destination;
    bcm_multicast_t multicast_id;
    bcm_gport_t destination_ext;
} bcm_pkt_dnx_itmh_dest_t;

/* The header of an injected packet. */
typedef struct bcm_pkt_dnx_itmh_s {
    uint8 inbound_mirror_disable;
    uint32 snoop_cmnd;
    uint32 prio;
    bcm_color_t color;
    bcm_pkt_dnx_itmh_dest_t dest;
} bcm_pkt_dnx_itmh_t;

/* Extension of the fabric header: load balancing key. */
typedef struct bcm_pkt_dnx_ftmh_lb_extension_s {
    uint8 valid;
    uint32 lb_key;
} bcm_pkt_dnx_ftmh_lb_extension_t;

/* Extension of the fabric header: destination port. */
typedef struct bcm_pkt_dnx_ftmh_dest_extension_s {
    uint8 valid;
    bcm_gport_t dst_sysport;
} bcm_pkt_dnx_ftmh_dest_extension_t;

/* Extension of the fabric header: the way through the stack. */
typedef struct bcm_pkt_dnx_ftmh_stack_extension_s {
    uint8 valid;
    uint32 stack_route_history_bmp;
} bcm_pkt_dnx_ftmh_stack_extension_t;

/* The fabric header. */
typedef struct bcm_pkt_dnx_ftmh_s {
    uint32 packet_size;
    uint32 prio;
    bcm_gport_t src_sysport;
    bcm_gport_t dst_port;
    bcm_color_t ftmh_dp;
    bcm_pkt_dnx_ftmh_action_type_t action_type;
    uint8 out_mirror_disable;
    uint8 is_mc_traffic;
    bcm_multicast_t multicast_id;
    bcm_gport_t out_vport;
    uint32 cni;
    bcm_pkt_dnx_ftmh_lb_extension_t lb_ext;
    bcm_pkt_dnx_ftmh_dest_extension_t dest_ext;
    bcm_pkt_dnx_ftmh_stack_extension_t stack_ext;
} bcm_pkt_dnx_ftmh_t;

/* The OAM and time stamp header. */
typedef struct bcm_pkt_dnx_otsh_s {
    bcm_pkt_dnx_otsh_type_t otsh_type;
    bcm_pkt_dnx_otsh_oam_subtype_t oam_sub_type;
    uint32 oam_up_mep;
    uint32 tp_cmd;
    uint8 ts_encap;
    uint64 oam_ts_data;
    uint32 latency_flow_ID;
    uint32 offset;
} bcm_pkt_dnx_otsh_t;

/* Extension of the outgoing header: source port. */
typedef struct bcm_pkt_dnx_otmh_src_sysport_extension_s {
    uint8 valid;
    bcm_gport_t src_sysport;
} bcm_pkt_dnx_otmh_src_sysport_extension_t;

/* Extension of the outgoing header: virtual port. */
typedef struct bcm_pkt_dnx_otmh_vport_extension_s {
    uint8 valid;
    bcm_gport_t out_vport;
} bcm_pkt_dnx_otmh_vport_extension_t;

/* The outgoing header. */
typedef struct bcm_pkt_dnx_otmh_s {
    bcm_pkt_dnx_ftmh_action_type_t action_type;
    bcm_color_t ftmh_dp;
    uint8 is_mc_traffic;
    uint32 prio;
    bcm_gport_t dst_port;
    bcm_pkt_dnx_otmh_src_sysport_extension_t src_sysport_ext;
    bcm_pkt_dnx_otmh_vport_extension_t out_vport_ext;
} bcm_pkt_dnx_otmh_t;

/* The internal header: why the packet was trapped. */
typedef struct bcm_pkt_dnx_internal_s {
    uint32 trap_qualifier;
    uint32 trap_id;
} bcm_pkt_dnx_internal_t;

/* An internal header of any type. */
typedef struct bcm_pkt_dnx_s {
    bcm_pkt_dnx_type_t type;
    bcm_pkt_dnx_itmh_t itmh;
    bcm_pkt_dnx_ftmh_t ftmh;
    bcm_pkt_dnx_otsh_t otsh;
    bcm_pkt_dnx_otmh_t otmh;
    bcm_pkt_dnx_internal_t internal;
} bcm_pkt_dnx_t;

/* Called when a packet has been sent, or its sending given up. */
typedef void (*bcm_pkt_cb_f)(int unit, bcm_pkt_t *pkt, void *cookie);

/* A packet. The members with a leading underscore belong to the SDK. */
struct bcm_pkt_s {
    bcm_pkt_blk_t *pkt_data;
    uint8 blk_count;
    uint8 unit;
    uint8 cos;
    uint8 prio_int;
    bcm_vlan_t vlan;
    uint8 vlan_pri;
    uint8 vlan_cfi;
    bcm_vlan_t inner_vlan;
    uint8 inner_vlan_pri;
    uint8 inner_vlan_cfi;
    bcm_color_t color;
    int16 src_port;
    bcm_trunk_t src_trunk;
    uint16 src_mod;
    uint16 dest_port;
    uint16 dest_mod;
    uint8 opcode;
    bcm_gport_t dst_gport;
    bcm_gport_t src_gport;
    bcm_multicast_t multicast_group;
    uint32 stk_flags;
    bcm_pkt_stk_forward_t stk_forward;
    uint32 stk_classification_tag;
    uint32 stk_pkt_prio;
    uint32 stk_dscp;
    uint32 stk_load_balancing_number;
    bcm_if_t stk_encap_id;
    uint16 pkt_len;
    uint16 tot_len;
    bcm_pbmp_t tx_pbmp;
    bcm_pbmp_t tx_upbmp;
    bcm_pbmp_t tx_l3pbmp;
    bcm_port_t pkt_trace_src_port;
    uint8 pfm;
    uint32 rx_reason;
    bcm_rx_reasons_t rx_reasons;
    uint32 rx_path;
    uint8 rx_unit;
    uint8 rx_port;
    uint8 rx_cpu_cos;
    uint8 rx_untagged;
    uint32 rx_classification_tag;
    uint32 rx_matched;
    bcm_if_t rx_l3_intf;
    bcm_vlan_action_t rx_outer_tag_action;
    bcm_vlan_action_t rx_inner_tag_action;
    uint32 rx_timestamp;
    uint32 rx_timestamp_upper;
    uint32 timestamp_flags;
    void *cookie;
    void *cookie2;
    bcm_pkt_cb_f call_back;
    uint32 flags;
    void *next;
    int8 dma_channel;
    bcm_pkt_blk_t _pkt_data;
    bcm_pkt_t *_last_pkt;
    void *_dv;
    int8 _idx;
    bcm_pkt_t *_next;
    void *alloc_ptr;
    void *trans_ptr;
    uint8 _higig[16];
    uint8 _pb_hdr[12];
    uint8 _sltag[4];
    uint8 _vtag[4];
    uint8 _sbx_rh[16];
    uint8 _sbx_hdr_len;
    uint8 _dpp_hdr[10];
    int _dpp_hdr_type;
    int flow_id;
    uint32 filter_enable;
    bcm_pbmp_t _dv_tx_pbmp;
    bcm_pbmp_t _dv_tx_upbmp;
    uint32 flags2;
    uint8 oam_replacement_type;
    uint8 oam_replacement_offset;
    uint16 oam_lm_counter_index;
    uint32 rx_trap_data;
    void *_dcb;
    uint16 oam_lm_counter_index_2;
    uint16 ma_ptr;
    bcm_pkt_timestamp_mode_t timestamp_mode;
    bcm_pkt_oam_lm_counter_mode_t counter_mode_1;
    bcm_pkt_oam_lm_counter_mode_t counter_mode_2;
    uint8 timestamp_offset;
    bcm_rx_decap_tunnel_t rx_decap_tunnel;
    bcm_gport_t src_vport;
    bcm_gport_t dst_vport;
    uint32 fwd_hdr_offset;
    int snoop_cmnd;
    bcm_gport_t stk_dst_gport;
    uint32 stk_route_tm_domains;
    uint32 oam_hdr_offset;
    uint8 oam_lm_replacement_offset;
    bcm_pkt_rx_oam_type_t rx_oam_pkt_type;
    bcm_pkt_oam_counter_t oam_counter[3];
    uint32 oam_counter_size;
    uint8 _olp_hdr[20];
    bcm_pkt_dnx_t dnx_header_stack[_SHR_PKT_NOF_DNX_HEADERS];
    uint8 dnx_header_count;
};

/* A set of drop reasons, one bit for each bcm_pkt_drop_reason_t. */
typedef struct bcm_pkt_drop_reasons_s {
    SHR_BITDCL rbits[_SHR_BITDCLSIZE(bcmPktDropReasonCount)];
} bcm_pkt_drop_reasons_t;

/* Allocates a packet with room for `size` bytes. */
typedef int (*bcm_pkt_alloc_f)(int unit, int size, bcm_pkt_t **pkt_buf);

/* Releases a packet. */
typedef int (*bcm_pkt_free_f)(int unit, bcm_pkt_t *pkt);

/* Fills in where a packet goes from its MAC and VLAN. */
typedef int (*bcm_pkt_l2_map_f)(int unit, bcm_pkt_t *pkt, bcm_mac_t dest_mac, int vid);

OMBRA_END_DECLS
