/* MiM: MAC-in-MAC ports and networks. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/vlan_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* A backbone service and where it floods. */
typedef struct bcm_mim_vpn_config_s {
    uint32 flags;
    bcm_mim_vpn_t vpn;
    int lookup_id;
    uint16 match_service_tpid;
    bcm_multicast_t broadcast_group;
    bcm_multicast_t unknown_unicast_group;
    bcm_multicast_t unknown_multicast_group;
    bcm_policer_t policer_id;
    bcm_if_t service_encap_id;
    uint8 int_pri;
    int qos_map_id;
    bcm_vlan_t tunnel_vlan;
    int inlif_counting_profile;
    int outlif_counting_profile;
    bcm_vlan_protocol_packet_ctrl_t protocol_pkt;
    uint16 egress_service_tpid;
} bcm_mim_vpn_config_t;

/* A port of a backbone service. */
typedef struct bcm_mim_port_s {
    bcm_gport_t mim_port_id;
    uint32 flags;
    int if_class;
    bcm_gport_t port;
    bcm_mim_port_match_t criteria;
    bcm_vlan_t match_vlan;
    bcm_vlan_t match_inner_vlan;
    bcm_mpls_label_t match_label;
    bcm_vlan_t match_tunnel_vlan;
    bcm_mac_t match_tunnel_srcmac;
    uint16 match_service_tpid;
    bcm_vlan_t egress_tunnel_vlan;
    bcm_mac_t egress_tunnel_srcmac;
    bcm_mac_t egress_tunnel_dstmac;
    uint32 egress_tunnel_service;
    uint16 egress_service_tpid;
    bcm_vlan_t egress_service_vlan;
    uint8 egress_service_pri;
    uint8 egress_service_cfi;
    bcm_if_t encap_id;
    bcm_failover_t failover_id;
    bcm_gport_t failover_gport_id;
    bcm_policer_t policer_id;
    bcm_multicast_t failover_mc_group;
    bcm_failover_t ingress_failover_id;
    bcm_if_t service_encap_id;
    uint8 int_pri;
    bcm_switch_network_group_t network_group_id;
    int inlif_counting_profile;
    int outlif_counting_profile;
} bcm_mim_port_t;

/* Called for each VPN. */
typedef int (*bcm_mim_vpn_traverse_cb)(int unit, bcm_mim_vpn_config_t *info, void *user_data);

OMBRA_END_DECLS
