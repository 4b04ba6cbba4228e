/* TRILL: routing bridges and their trees. */
#pragma once
#include "native/base.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* A TRILL network and where it floods. */
typedef struct bcm_trill_vpn_config_s {
    uint32 flags;
    bcm_vpn_t vpn;
    bcm_vlan_t high_vid;
    bcm_vlan_t low_vid;
    bcm_multicast_t broadcast_group;
    bcm_multicast_t unknown_unicast_group;
    bcm_multicast_t unknown_multicast_group;
} bcm_trill_vpn_config_t;

/* A port towards a routing bridge. */
typedef struct bcm_trill_port_s {
    bcm_gport_t trill_port_id;
    uint32 flags;
    int if_class;
    bcm_gport_t port;
    bcm_if_t egress_if;
    bcm_trill_name_t name;
    int mtu;
    int hopcount;
    int multicast_hopcount;
    bcm_if_t encap_id;
    bcm_trill_name_t virtual_name;
    bcm_switch_network_group_t network_group_id;
    int inlif_counting_profile;
    int outlif_counting_profile;
} bcm_trill_port_t;

/* A routing bridge. */
typedef struct bcm_trill_rbridge_s {
    uint32 flags;
    bcm_trill_name_t name;
    bcm_if_t egress_if;
    int mtu;
    int hopcount;
} bcm_trill_rbridge_t;

/* A multicast entry of a tree. */
typedef struct bcm_trill_multicast_entry_s {
    uint32 flags;
    bcm_trill_name_t root_name;
    bcm_vlan_t c_vlan;
    bcm_mac_t c_dmac;
    bcm_multicast_t group;
    bcm_if_t encap_intf;
    bcm_vlan_t c_vlan_inner;
} bcm_trill_multicast_entry_t;

/* A neighbour from which a tree is accepted. */
typedef struct bcm_trill_multicast_adjacency_s {
    bcm_gport_t port;
    uint32 flags;
    bcm_if_t encap_intf;
} bcm_trill_multicast_adjacency_t;

/* Called for each VPN. */
typedef int (*bcm_trill_vpn_traverse_cb)(int unit, bcm_trill_vpn_config_t *info, void *user_data);

/* Called for each multicast entry. */
typedef int (*bcm_trill_multicast_entry_traverse_cb)(int unit,
                                                     bcm_trill_multicast_entry_t *trill_mc_entry,
                                                     void *user_data);

/* Called for each multicast source. */
typedef int (*bcm_trill_multicast_source_traverse_cb)(int unit, bcm_trill_name_t root_name,
                                                      bcm_trill_name_t source_name,
                                                      bcm_multicast_t group, void *user_data);

/* Called for each multicast adjacency. */
typedef int (*bcm_trill_multicast_adjacency_traverse_cb)(int unit,
                                                         bcm_trill_multicast_adjacency_t *trill_adj,
                                                         void *user_data);

OMBRA_END_DECLS
