/* L2: the MAC table and what hangs on it. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* An entry of the MAC table. */
typedef struct bcm_l2_addr_s {
    uint32 flags;
    uint32 station_flags;
    bcm_mac_t mac;
    bcm_vlan_t vid;
    int port;
    int modid;
    bcm_trunk_t tgid;
    bcm_cos_t cos_dst;
    bcm_cos_t cos_src;
    bcm_multicast_t l2mc_group;
    bcm_pbmp_t block_bitmap;
    int auth;
    int group;
    bcm_fabric_distribution_t distribution_class;
    int encap_id;
    int age_state;
    bcm_pbmp_t sa_source_filter_pbmp;
    bcm_tsn_flowset_t tsn_flowset;
    bcm_tsn_sr_flowset_t sr_flowset;
} bcm_l2_addr_t;

/* What an egress object writes into the frame. */
typedef struct bcm_l2_egress_s {
    uint32 flags;
    bcm_mac_t dest_mac;
    bcm_mac_t src_mac;
    bcm_vlan_t outer_vlan;
    bcm_vlan_t inner_vlan;
    bcm_ethertype_t ethertype;
    bcm_gport_t dest_port;
    bcm_if_t encap_id;
    uint16 outer_tpid;
    uint8 outer_prio;
    uint16 inner_tpid;
    bcm_if_t l3_intf;
    int vlan_qos_map_id;
    int mpls_extended_label_value;
} bcm_l2_egress_t;

/* An entry of the cache of reserved addresses. */
typedef struct bcm_l2_cache_addr_s {
    uint32 flags;
    uint32 station_flags;
    bcm_mac_t mac;
    bcm_mac_t mac_mask;
    bcm_vlan_t vlan;
    bcm_vlan_t vlan_mask;
    bcm_port_t src_port;
    bcm_port_t src_port_mask;
    bcm_module_t dest_modid;
    bcm_port_t dest_port;
    bcm_trunk_t dest_trunk;
    int prio;
    bcm_pbmp_t dest_ports;
    int lookup_class;
    uint8 subtype;
    bcm_if_t encap_id;
    bcm_multicast_t group;
    bcm_ethertype_t ethertype;
    bcm_ethertype_t ethertype_mask;
} bcm_l2_cache_addr_t;

/* How many addresses may be learned. */
typedef struct bcm_l2_learn_limit_s {
    uint32 flags;
    bcm_vlan_t vlan;
    bcm_port_t port;
    bcm_trunk_t trunk;
    bcm_tunnel_id_t tunnel_id;
    int limit;
} bcm_l2_learn_limit_t;

/* Where learning messages go. */
typedef struct bcm_l2_learn_msgs_config_s {
    uint32 flags;
    bcm_gport_t dest_port;
    bcm_multicast_t dest_group;
    bcm_vlan_t vlan;
    uint16 tpid;
    uint16 vlan_prio;
    uint16 ether_type;
    bcm_mac_t src_mac_addr;
    bcm_mac_t dst_mac_addr;
    uint8 priority;
    uint8 color;
} bcm_l2_learn_msgs_config_t;

/* How learning is told to other devices. */
typedef struct bcm_l2_addr_distribute_s {
    uint32 flags;
    bcm_vlan_t vid;
} bcm_l2_addr_distribute_t;

/* A statistic of learning. */
typedef struct bcm_l2_learn_stat_s {
    bcm_l2_learn_stat_type_t type;
    uint32 value;
} bcm_l2_learn_stat_t;

/* An address for which the switch itself is the destination. */
typedef struct bcm_l2_station_s {
    uint32 flags;
    int priority;
    bcm_mac_t dst_mac;
    bcm_mac_t dst_mac_mask;
    bcm_vlan_t vlan;
    bcm_vlan_t vlan_mask;
    bcm_port_t src_port;
    bcm_port_t src_port_mask;
} bcm_l2_station_t;

/* A protected ring at layer 2. */
typedef struct bcm_l2_ring_s {
    uint32 flags;
    bcm_vlan_vector_t vlan_vector;
    bcm_gport_t port0;
    bcm_gport_t port1;
    bcm_vpn_vector_t vpn_vector;
} bcm_l2_ring_t;

/* An authenticated address. */
typedef struct bcm_l2_auth_addr_s {
    uint32 flags;
    bcm_mac_t sa_mac;
    bcm_vlan_t vlan;
    bcm_port_t src_port;
} bcm_l2_auth_addr_t;

/* A port by MAC. */
typedef struct bcm_l2_mac_port_s {
    uint32 flags;
    bcm_mac_t mac;
    bcm_gport_t port;
    bcm_gport_t mac_port_id;
} bcm_l2_mac_port_t;

/* Where a gport forwards: physical port and encapsulation. */
typedef struct bcm_l2_gport_forward_info_s {
    int phy_gport;
    int encap_id;
} bcm_l2_gport_forward_info_t;

/* The addresses of a profile of layer 2 control protocols. */
typedef struct bcm_l2cp_profile_info_s {
    int nof_entries;
    bcm_mac_t mac_add[64];
} bcm_l2cp_profile_info_t;

/* Called for each entry of the MAC table. */
typedef int (*bcm_l2_traverse_cb)(int unit, bcm_l2_addr_t *info, void *user_data);

/* Told when an entry is inserted or deleted. */
typedef void (*bcm_l2_addr_callback_t)(int unit, bcm_l2_addr_t *l2addr, int operation,
                                       void *user_data);

/* Called for each authenticated address. */
typedef int (*bcm_l2_auth_traverse_cb)(int unit, bcm_l2_auth_addr_t *addr, void *user_data);

/* Called for each egress object. */
typedef int (*bcm_l2_egress_traverse_cb)(int unit, bcm_l2_egress_t *egress, void *user_data);

/* Called for each pair of MAC and port. */
typedef int (*bcm_l2_mac_port_traverse_cb)(int unit, bcm_l2_mac_port_t *mac_port, void *user_data);

/* Called for each station. */
typedef int (*bcm_l2_station_traverse_cb)(int unit, bcm_l2_station_t *station, void *user_data);

OMBRA_END_DECLS
