/* Tunnel: initiators and terminators of IP tunnels. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* A terminator: which packets leave their tunnel here. */
typedef struct bcm_tunnel_terminator_s {
    uint32 flags;
    uint32 multicast_flag;
    bcm_vrf_t vrf;
    bcm_ip_t sip;
    bcm_ip_t dip;
    bcm_ip_t sip_mask;
    bcm_ip_t dip_mask;
    bcm_ip6_t sip6;
    bcm_ip6_t dip6;
    bcm_ip6_t sip6_mask;
    bcm_ip6_t dip6_mask;
    uint32 udp_dst_port;
    uint32 udp_src_port;
    bcm_tunnel_type_t type;
    bcm_pbmp_t pbmp;
    bcm_vlan_t vlan;
    bcm_gport_t remote_port;
    bcm_gport_t tunnel_id;
    int if_class;
    bcm_multicast_t failover_mc_group;
    bcm_failover_t ingress_failover_id;
    bcm_failover_t failover_id;
    bcm_gport_t failover_tunnel_id;
    bcm_if_t tunnel_if;
    int tunnel_class;
    int qos_map_id;
    int inlif_counting_profile;
    int tunnel_term_ecn_map_id;
} bcm_tunnel_terminator_t;

/* An initiator: the header that packets get. */
typedef struct bcm_tunnel_initiator_s {
    uint32 flags;
    bcm_tunnel_type_t type;
    int ttl;
    bcm_mac_t dmac;
    bcm_ip_t dip;
    bcm_ip_t sip;
    bcm_ip6_t sip6;
    bcm_ip6_t dip6;
    uint32 flow_label;
    bcm_tunnel_dscp_select_t dscp_sel;
    int dscp;
    int dscp_map;
    bcm_gport_t tunnel_id;
    uint16 udp_dst_port;
    uint16 udp_src_port;
    bcm_mac_t smac;
    int mtu;
    bcm_vlan_t vlan;
    uint16 tpid;
    uint8 pkt_pri;
    uint8 pkt_cfi;
    uint16 ip4_id;
    bcm_if_t l3_intf_id;
    uint16 span_id;
    uint32 aux_data;
    int outlif_counting_profile;
} bcm_tunnel_initiator_t;

/* The settings of all tunnels of a unit. */
typedef struct bcm_tunnel_config_s {
    int ip4_id;
    uint32 ms_pimsm_hdr1;
    uint32 ls_pimsm_hdr1;
    uint32 ms_pimsm_hdr2;
    uint32 ls_pimsm_hdr2;
} bcm_tunnel_config_t;

/* A pair of priority and colour with its marking. */
typedef struct bcm_tunnel_dscp_map_s {
    int priority;
    bcm_color_t color;
    int dscp;
} bcm_tunnel_dscp_map_t;

/* The key by which terminators are configured. */
typedef struct bcm_tunnel_terminator_config_key_s {
    bcm_ip_t dip;
} bcm_tunnel_terminator_config_key_t;

/* The class that a key gives. */
typedef struct bcm_tunnel_terminator_config_action_s {
    int tunnel_class;
} bcm_tunnel_terminator_config_action_t;

/* Called for each initiator. */
typedef int (*bcm_tunnel_initiator_traverse_cb)(int unit, bcm_tunnel_initiator_t *info,
                                                void *user_data);

/* Called for each terminator. */
typedef int (*bcm_tunnel_terminator_traverse_cb)(int unit, bcm_tunnel_terminator_t *info,
                                                 void *user_data);

OMBRA_END_DECLS
