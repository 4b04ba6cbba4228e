/* MPLS: labels, ports and networks. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/stat_types.h"
#include "sdk/bcm/vlan_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* A pair of priority and colour with its marking. */
typedef struct bcm_mpls_exp_map_s {
    int priority;
    bcm_color_t color;
    uint8 dscp;
    uint8 exp;
    uint8 pkt_pri;
    uint8 pkt_cfi;
} bcm_mpls_exp_map_t;

/* A label to push. */
typedef struct bcm_mpls_egress_label_s {
    uint32 flags;
    bcm_mpls_label_t label;
    int qos_map_id;
    uint8 exp;
    uint8 ttl;
    uint8 pkt_pri;
    uint8 pkt_cfi;
    bcm_if_t tunnel_id;
    bcm_if_t l3_intf_id;
    bcm_mpls_egress_action_t action;
    int ecn_map_id;
    int int_cn_map_id;
    bcm_failover_t egress_failover_id;
    bcm_if_t egress_failover_if_id;
    int outlif_counting_profile;
} bcm_mpls_egress_label_t;

/* An MPLS port: what it matches and what it sends. */
typedef struct bcm_mpls_port_s {
    bcm_gport_t mpls_port_id;
    uint32 flags;
    uint32 flags2;
    int if_class;
    int exp_map;
    int int_pri;
    uint8 pkt_pri;
    uint8 pkt_cfi;
    uint16 service_tpid;
    bcm_gport_t port;
    bcm_mpls_port_match_t criteria;
    bcm_vlan_t match_vlan;
    bcm_vlan_t match_inner_vlan;
    bcm_mpls_label_t match_label;
    bcm_if_t egress_tunnel_if;
    bcm_mpls_egress_label_t egress_label;
    int mtu;
    bcm_vlan_t egress_service_vlan;
    uint32 pw_seq_number;
    bcm_if_t encap_id;
    bcm_failover_t ingress_failover_id;
    bcm_gport_t ingress_failover_port_id;
    bcm_failover_t failover_id;
    bcm_gport_t failover_port_id;
    bcm_policer_t policer_id;
    bcm_multicast_t failover_mc_group;
    bcm_failover_t pw_failover_id;
    bcm_gport_t pw_failover_port_id;
    bcm_mpls_port_control_channel_type_t vccv_type;
    bcm_switch_network_group_t network_group_id;
    bcm_vlan_t match_subport_pkt_vid;
    bcm_gport_t tunnel_id;
    bcm_gport_t per_flow_queue_base;
    int qos_map_id;
    bcm_failover_t egress_failover_id;
    bcm_gport_t egress_failover_port_id;
    int ecn_map_id;
    uint32 class_id;
    uint32 egress_class_id;
    int inlif_counting_profile;
    bcm_mpls_egress_label_t egress_tunnel_label;
} bcm_mpls_port_t;

/* What is done with an incoming label. */
typedef struct bcm_mpls_tunnel_switch_s {
    uint32 flags;
    bcm_mpls_label_t label;
    bcm_mpls_label_t second_label;
    bcm_gport_t port;
    bcm_mpls_switch_action_t action;
    bcm_mpls_switch_action_t action_if_bos;
    bcm_mpls_switch_action_t action_if_not_bos;
    bcm_multicast_t mc_group;
    int exp_map;
    int int_pri;
    bcm_policer_t policer_id;
    bcm_vpn_t vpn;
    bcm_mpls_egress_label_t egress_label;
    bcm_if_t egress_if;
    bcm_if_t ingress_if;
    int mtu;
    int qos_map_id;
    bcm_failover_t failover_id;
    bcm_gport_t tunnel_id;
    bcm_gport_t failover_tunnel_id;
    bcm_if_t tunnel_if;
    bcm_gport_t egress_port;
    uint16 oam_global_context_id;
    uint32 class_id;
    int inlif_counting_profile;
    int ecn_map_id;
    int tunnel_term_ecn_map_id;
} bcm_mpls_tunnel_switch_t;

/* The labels that count as entropy labels. */
typedef struct bcm_mpls_entropy_identifier_s {
    bcm_mpls_label_t label;
    bcm_mpls_label_t mask;
    int pri;
    uint32 flags;
} bcm_mpls_entropy_identifier_t;

/* A VPN and where it floods. */
typedef struct bcm_mpls_vpn_config_s {
    uint32 flags;
    bcm_vpn_t vpn;
    int lookup_id;
    bcm_multicast_t broadcast_group;
    bcm_multicast_t unknown_unicast_group;
    bcm_multicast_t unknown_multicast_group;
    bcm_policer_t policer_id;
    bcm_vlan_protocol_packet_ctrl_t protocol_pkt;
} bcm_mpls_vpn_config_t;

/* A statistic and the counters that hold it. */
typedef struct bcm_mpls_stat_info_s {
    bcm_mpls_stat_t stat;
    uint32 num_entries;
    uint32 *counter_indexes;
    bcm_stat_value_t *counter_values;
} bcm_mpls_stat_info_t;

/* What is done with a range of labels. */
typedef struct bcm_mpls_range_action_s {
    uint32 flags;
    bcm_mpls_label_t compressed_label;
} bcm_mpls_range_action_t;

/* Called for each VPN. */
typedef int (*bcm_mpls_vpn_traverse_cb)(int unit, bcm_mpls_vpn_config_t *info, void *user_data);

/* Called for each label switch. */
typedef int (*bcm_mpls_tunnel_switch_traverse_cb)(int unit, bcm_mpls_tunnel_switch_t *info,
                                                  void *user_data);

/* Called for each range of entropy labels. */
typedef int (*bcm_mpls_entropy_identifier_traverse_cb)(int unit,
                                                       bcm_mpls_entropy_identifier_t *identifier,
                                                       void *user_data);

OMBRA_END_DECLS
