/* L3: interfaces, egress objects, hosts and routes. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/common_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* The marking that an interface gives. */
typedef struct bcm_l3_intf_qos_s {
    uint32 flags;
    int qos_map_id;
    uint8 pri;
    uint8 cfi;
    int dscp;
} bcm_l3_intf_qos_t;

/* A routed interface. */
typedef struct bcm_l3_intf_s {
    uint32 l3a_flags;
    bcm_vrf_t l3a_vrf;
    bcm_if_t l3a_intf_id;
    bcm_mac_t l3a_mac_addr;
    bcm_vlan_t l3a_vid;
    bcm_vlan_t l3a_inner_vlan;
    int l3a_tunnel_idx;
    int l3a_ttl;
    int l3a_mtu;
    int l3a_mtu_forwarding;
    bcm_if_group_t l3a_group;
    bcm_l3_intf_qos_t vlan_qos;
    bcm_l3_intf_qos_t inner_vlan_qos;
    bcm_l3_intf_qos_t dscp_qos;
    int l3a_intf_class;
    int l3a_ip4_options_profile_id;
    int l3a_nat_realm_id;
    uint16 outer_tpid;
    uint32 l3a_intf_flags;
    uint8 native_routing_vlan_tags;
    bcm_gport_t l3a_source_vp;
} bcm_l3_intf_t;

/* An egress object: the last hop of a route. */
typedef struct bcm_l3_egress_s {
    uint32 flags;
    uint32 flags2;
    bcm_if_t intf;
    bcm_mac_t mac_addr;
    bcm_vlan_t vlan;
    bcm_module_t module;
    bcm_port_t port;
    bcm_trunk_t trunk;
    uint32 mpls_flags;
    bcm_mpls_label_t mpls_label;
    bcm_mpls_egress_action_t mpls_action;
    int mpls_qos_map_id;
    int mpls_ttl;
    uint8 mpls_pkt_pri;
    uint8 mpls_pkt_cfi;
    uint8 mpls_exp;
    int qos_map_id;
    bcm_if_t encap_id;
    bcm_failover_t failover_id;
    bcm_if_t failover_if_id;
    bcm_multicast_t failover_mc_group;
    int dynamic_scaling_factor;
    int dynamic_load_weight;
    int dynamic_queue_size_weight;
    int intf_class;
    uint32 multicast_flags;
    uint16 oam_global_context_id;
    bcm_vntag_t vntag;
    bcm_vntag_action_t vntag_action;
    bcm_etag_t etag;
    bcm_etag_action_t etag_action;
    int counting_profile;
    int mpls_ecn_map_id;
} bcm_l3_egress_t;

/* An ingress object: how packets of an interface are routed. */
typedef struct bcm_l3_ingress_s {
    uint32 flags;
    bcm_vrf_t vrf;
    bcm_l3_ingress_urpf_mode_t urpf_mode;
    int intf_class;
    bcm_vlan_t ipmc_intf_id;
    int qos_map_id;
    int ip4_options_profile_id;
    int nat_realm_id;
    int tunnel_term_ecn_map_id;
    uint32 intf_class_route_disable;
} bcm_l3_ingress_t;

/* A host: one address and how it is reached. */
typedef struct bcm_l3_host_s {
    uint32 l3a_flags;
    uint32 l3a_flags2;
    bcm_vrf_t l3a_vrf;
    bcm_ip_t l3a_ip_addr;
    bcm_ip6_t l3a_ip6_addr;
    bcm_cos_t l3a_pri;
    bcm_if_t l3a_intf;
    bcm_mac_t l3a_nexthop_mac;
    bcm_module_t l3a_modid;
    bcm_port_t l3a_port_tgid;
    bcm_port_t l3a_stack_port;
    int l3a_ipmc_ptr;
    int l3a_lookup_class;
    bcm_if_t encap_id;
    bcm_if_t native_intf;
} bcm_l3_host_t;
typedef bcm_l3_host_t bcm_l3_ip_t;

/* The key of a host or group. */
typedef struct bcm_l3_key_s {
    uint32 l3k_flags;
    bcm_ip_t l3k_ip_addr;
    bcm_ip6_t l3k_ip6_addr;
    bcm_ip_t l3k_sip_addr;
    bcm_ip6_t l3k_sip6_addr;
    bcm_vlan_t l3k_vid;
    bcm_vrf_t l3k_vrf;
} bcm_l3_key_t;

/* A route: a prefix and where it leads. */
typedef struct bcm_l3_route_s {
    uint32 l3a_flags;
    uint32 l3a_flags2;
    uint32 l3a_ipmc_flags;
    bcm_vrf_t l3a_vrf;
    bcm_ip_t l3a_subnet;
    bcm_ip6_t l3a_ip6_net;
    bcm_ip_t l3a_ip_mask;
    bcm_ip6_t l3a_ip6_mask;
    bcm_if_t l3a_intf;
    bcm_ip_t l3a_nexthop_ip;
    bcm_mac_t l3a_nexthop_mac;
    bcm_module_t l3a_modid;
    bcm_port_t l3a_port_tgid;
    bcm_port_t l3a_stack_port;
    bcm_vlan_t l3a_vid;
    bcm_cos_t l3a_pri;
    uint32 l3a_tunnel_option;
    bcm_mpls_label_t l3a_mpls_label;
    int l3a_lookup_class;
    bcm_if_t l3a_expected_intf;
    int l3a_rp;
    bcm_multicast_t l3a_mc_group;
    bcm_gport_t l3a_expected_src_gport;
} bcm_l3_route_t;

/* How large the routing tables are, and how full. */
typedef struct bcm_l3_info_s {
    int l3info_max_vrf;
    int l3info_used_vrf;
    int l3info_max_intf;
    int l3info_max_intf_group;
    int l3info_max_host;
    int l3info_max_route;
    int l3info_max_ecmp_groups;
    int l3info_max_ecmp;
    int l3info_used_intf;
    int l3info_used_host;
    int l3info_used_route;
    int l3info_max_lpm_block;
    int l3info_used_lpm_block;
    int l3info_max_l3;
    int l3info_max_defip;
    int l3info_used_l3;
    int l3info_used_defip;
    int l3info_max_nexthop;
    int l3info_used_nexthop;
    int l3info_max_tunnel_init;
    int l3info_used_tunnel_init;
    int l3info_max_tunnel_term;
    int l3info_used_tunnel_term;
    int l3info_used_host_ip4;
    int l3info_used_host_ip6;
} bcm_l3_info_t;

/* When dynamic multipath groups move. */
typedef struct bcm_l3_dgm_s {
    uint32 threshold;
    uint32 cost;
    uint32 bias;
} bcm_l3_dgm_t;

/* A group of equal paths. */
typedef struct bcm_l3_egress_ecmp_s {
    uint32 flags;
    bcm_if_t ecmp_intf;
    int max_paths;
    uint32 ecmp_group_flags;
    uint32 dynamic_mode;
    uint32 dynamic_size;
    uint32 dynamic_age;
    uint32 dynamic_load_exponent;
    uint32 dynamic_expected_load_exponent;
    bcm_l3_dgm_t dgm;
} bcm_l3_egress_ecmp_t;

/* A path of a group. */
typedef struct bcm_l3_ecmp_member_s {
    uint32 flags;
    bcm_if_t egress_if;
    bcm_failover_t failover_id;
    bcm_if_t failover_egress_if;
    int status;
} bcm_l3_ecmp_member_t;

/* An entry of resilient hashing: which path a key takes. */
typedef struct bcm_l3_egress_ecmp_resilient_entry_s {
    uint64 hash_key;
    bcm_l3_egress_ecmp_t ecmp;
    bcm_if_t intf;
} bcm_l3_egress_ecmp_resilient_entry_t;

/* A source bound to a port. */
typedef struct bcm_l3_source_bind_s {
    uint32 flags;
    bcm_gport_t port;
    bcm_ip_t ip;
    bcm_ip6_t ip6;
    bcm_mac_t mac;
    bcm_ipfix_rate_id_t rate_id;
    bcm_ip_t ip_mask;
    bcm_ip6_t ip6_mask;
} bcm_l3_source_bind_t;

/* How many elements a call on many egress objects has. */
typedef struct bcm_l3_egress_multi_info_s {
    uint32 flags;
    int number_of_elements;
} bcm_l3_egress_multi_info_t;

/* Called for each host. */
typedef int (*bcm_l3_host_traverse_cb)(int unit, int index, bcm_l3_host_t *info, void *user_data);

/* Called for each route. */
typedef int (*bcm_l3_route_traverse_cb)(int unit, int index, bcm_l3_route_t *info, void *user_data);

/* Called for each egress object. */
typedef int (*bcm_l3_egress_traverse_cb)(int unit, bcm_if_t intf, bcm_l3_egress_t *egress,
                                         void *user_data);

/* Called for each multipath group, with its interfaces. */
typedef int (*bcm_l3_egress_multipath_traverse_cb)(int unit, bcm_if_t mpintf, int intf_count,
                                                   bcm_if_t *intf_array, void *user_data);

/* Called for each ECMP group, with its interfaces. */
typedef int (*bcm_l3_egress_ecmp_traverse_cb)(int unit, bcm_l3_egress_ecmp_t *ecmp, int intf_count,
                                              bcm_if_t *intf_array, void *user_data);

/* Called for each ECMP group, with its members. */
typedef int (*bcm_l3_ecmp_traverse_cb)(int unit, bcm_l3_egress_ecmp_t *ecmp_info,
                                       int ecmp_member_count,
                                       bcm_l3_ecmp_member_t *ecmp_member_array, void *user_data);

/* Called for each entry of resilient hashing. */
typedef int (*bcm_l3_egress_ecmp_resilient_traverse_cb)(int unit,
                                                        bcm_l3_egress_ecmp_resilient_entry_t *entry,
                                                        void *user_data);

/* Called for each ingress object. */
typedef int (*bcm_l3_ingress_traverse_cb)(int unit, bcm_if_t intf, bcm_l3_ingress_t *info,
                                          void *user_data);

/* Called for each source binding. */
typedef int (*bcm_l3_source_bind_traverse_cb)(int unit, bcm_l3_source_bind_t *info,
                                              void *user_data);

OMBRA_END_DECLS
