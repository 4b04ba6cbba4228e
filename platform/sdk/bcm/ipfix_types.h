/* IPFIX: flow export. */
#pragma once
#include "native/base.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* A flow record as it is exported. */
typedef struct bcm_ipfix_data_s {
    bcm_ipfix_stage_t stage;
    uint32 flags;
    bcm_port_t port;
    bcm_vlan_t vlan;
    uint16 vlan_prio;
    uint16 ether_type;
    bcm_mac_t src_mac_addr;
    bcm_mac_t dst_mac_addr;
    bcm_ip_t src_ip4_addr;
    bcm_ip_t dst_ip4_addr;
    bcm_ip6_t src_ip6_addr;
    bcm_ip6_t dst_ip6_addr;
    uint16 ip_protocol;
    uint16 tos;
    uint32 ip6_flow_label;
    uint16 l4_src_port;
    uint16 l4_dst_port;
    bcm_gport_t source_port;
    uint32 start_timestamp;
    uint32 last_timestamp;
    uint32 byte_count;
    uint32 pkt_count;
    uint32 ttl;
    uint32 tcp_flags;
    bcm_gport_t dest_port;
    bcm_vlan_t egress_vlan;
    bcm_multicast_t dest_multicast;
} bcm_ipfix_data_t;

/* Which flows are recorded and when they age. */
typedef struct bcm_ipfix_config_s {
    uint32 flags;
    uint8 dscp_mask[64];
    bcm_ip_t src_ip4_mask;
    bcm_ip_t dst_ip4_mask;
    bcm_ip_t tunnel_src_ip4_mask;
    bcm_ip_t tunnel_dst_ip4_mask;
    bcm_ip6_t src_ip6_mask;
    bcm_ip6_t dst_ip6_mask;
    bcm_ip6_t tunnel_src_ip6_mask;
    bcm_ip6_t tunnel_dst_ip6_mask;
    uint32 entry_limit;
    uint32 min_time;
    uint32 max_time;
    uint32 max_idle_time;
    uint32 sample_rate;
} bcm_ipfix_config_t;

/* A metering rate for flows. */
typedef struct bcm_ipfix_rate_s {
    bcm_ipfix_rate_id_t rate_id;
    uint32 flags;
    uint32 count;
    uint32 limit;
    uint32 rate;
    uint8 dscp;
    bcm_color_t color;
    int pkt_pri;
    int int_pri;
} bcm_ipfix_rate_t;

/* When a flow is mirrored. */
typedef struct bcm_ipfix_mirror_config_s {
    uint32 flags;
    uint32 pkt_count;
    uint8 tcp_flags_mask;
    uint8 ttl_offset_max;
} bcm_ipfix_mirror_config_t;

/* Given each exported record. */
typedef void (*bcm_ipfix_callback_t)(int unit, bcm_ipfix_data_t *data, void *user_data);

/* Called for each rate. */
typedef int (*bcm_ipfix_rate_traverse_cb)(int unit, bcm_ipfix_rate_t *rate, void *user_data);

OMBRA_END_DECLS
