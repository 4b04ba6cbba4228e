/* Mirror: copies of traffic and where they go. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/pkt_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* How traffic is mirrored. */
typedef struct bcm_mirror_options_s {
    uint32 flags;
    uint8 forward_strength;
    uint8 copy_strength;
    uint32 recycle_cmd;
} bcm_mirror_options_t;

/* The fabric header of a copy. */
typedef struct bcm_mirror_pkt_header_fabric_s {
    uint32 ftmh_valid;
    uint32 internal_valid;
    uint32 oam_ts_valid;
    bcm_pkt_dnx_ftmh_t ftmh;
    bcm_pkt_dnx_internal_t internal;
    bcm_pkt_dnx_otsh_t oam_ts;
} bcm_mirror_pkt_header_fabric_t;

/* What is changed in the headers of a copy. */
typedef struct bcm_mirror_pkt_header_updates_s {
    uint32 valid;
    bcm_color_t color;
    uint8 prio;
    uint8 ecn_value;
    uint8 cnm_cancel;
    uint32 trunk_hash_result;
    bcm_gport_t in_port;
    uint16 vsq;
    uint16 fabric_header_editing;
    bcm_mirror_pkt_header_fabric_t header_fabric;
} bcm_mirror_pkt_header_updates_t;

/* Where copies go, and the headers that they get. */
typedef struct bcm_mirror_destination_s {
    bcm_gport_t mirror_dest_id;
    uint32 flags;
    bcm_gport_t gport;
    uint8 version;
    uint8 tos;
    uint8 ttl;
    bcm_ip_t src_addr;
    bcm_ip_t dst_addr;
    bcm_ip6_t src6_addr;
    bcm_ip6_t dst6_addr;
    uint32 flow_label;
    bcm_mac_t src_mac;
    bcm_mac_t dst_mac;
    uint16 tpid;
    bcm_vlan_t vlan_id;
    bcm_trill_name_t trill_src_name;
    bcm_trill_name_t trill_dst_name;
    int trill_hopcount;
    uint16 niv_src_vif;
    uint16 niv_dst_vif;
    uint32 niv_flags;
    uint16 gre_protocol;
    bcm_policer_t policer_id;
    int stat_id;
    int stat_id2;
    bcm_if_t encap_id;
    bcm_if_t tunnel_id;
    uint16 span_id;
    uint8 pkt_prio;
    uint32 sample_rate_dividend;
    uint32 sample_rate_divisor;
    uint8 int_pri;
    uint16 etag_src_vid;
    uint16 etag_dst_vid;
    uint16 udp_src_port;
    uint16 udp_dst_port;
    uint32 egress_sample_rate_dividend;
    uint32 egress_sample_rate_divisor;
    uint8 recycle_context;
    uint16 packet_copy_size;
    uint16 egress_packet_copy_size;
    bcm_mirror_pkt_header_updates_t packet_control_updates;
    bcm_mirror_psc_t rtag;
    uint8 df;
} bcm_mirror_destination_t;

/* The system port that stands for a mirrored port. */
typedef struct bcm_mirror_port_info_s {
    bcm_gport_t mirror_system_id;
} bcm_mirror_port_info_t;

/* Called for each destination. */
typedef int (*bcm_mirror_destination_traverse_cb)(int unit, bcm_mirror_destination_t *mirror_dest,
                                                  void *user_data);

OMBRA_END_DECLS
