/* VLAN: membership, tag actions and translation. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* What is done to the tags of a packet, for each way that it can be tagged. */
typedef struct bcm_vlan_action_set_s {
    bcm_vlan_t new_outer_vlan;
    bcm_vlan_t new_inner_vlan;
    uint8 new_inner_pkt_prio;
    uint8 new_outer_cfi;
    uint8 new_inner_cfi;
    bcm_if_t ingress_if;
    int priority;
    bcm_vlan_action_t dt_outer;
    bcm_vlan_action_t dt_outer_prio;
    bcm_vlan_action_t dt_outer_pkt_prio;
    bcm_vlan_action_t dt_outer_cfi;
    bcm_vlan_action_t dt_inner;
    bcm_vlan_action_t dt_inner_prio;
    bcm_vlan_action_t dt_inner_pkt_prio;
    bcm_vlan_action_t dt_inner_cfi;
    bcm_vlan_action_t ot_outer;
    bcm_vlan_action_t ot_outer_prio;
    bcm_vlan_action_t ot_outer_pkt_prio;
    bcm_vlan_action_t ot_outer_cfi;
    bcm_vlan_action_t ot_inner;
    bcm_vlan_action_t ot_inner_pkt_prio;
    bcm_vlan_action_t ot_inner_cfi;
    bcm_vlan_action_t it_outer;
    bcm_vlan_action_t it_outer_pkt_prio;
    bcm_vlan_action_t it_outer_cfi;
    bcm_vlan_action_t it_inner;
    bcm_vlan_action_t it_inner_prio;
    bcm_vlan_action_t it_inner_pkt_prio;
    bcm_vlan_action_t it_inner_cfi;
    bcm_vlan_action_t ut_outer;
    bcm_vlan_action_t ut_outer_pkt_prio;
    bcm_vlan_action_t ut_outer_cfi;
    bcm_vlan_action_t ut_inner;
    bcm_vlan_action_t ut_inner_pkt_prio;
    bcm_vlan_action_t ut_inner_cfi;
    bcm_vlan_pcp_action_t outer_pcp;
    bcm_vlan_pcp_action_t inner_pcp;
    bcm_policer_t policer_id;
    uint16 outer_tpid;
    uint16 inner_tpid;
    bcm_vlan_tpid_action_t outer_tpid_action;
    bcm_vlan_tpid_action_t inner_tpid_action;
    int action_id;
    uint32 class_id;
    uint32 flags;
} bcm_vlan_action_set_t;

/* A VLAN with its ports, and those among them that are untagged. */
typedef struct bcm_vlan_data_s {
    bcm_vlan_t vlan_tag;
    bcm_pbmp_t port_bitmap;
    bcm_pbmp_t ut_port_bitmap;
} bcm_vlan_data_t;
typedef bcm_vlan_data_t vlan_data_t;

/* The translation of a class of tag formats. */
typedef struct bcm_vlan_translate_action_class_s {
    uint32 flags;
    uint32 vlan_edit_class_id;
    bcm_port_tag_format_class_t tag_format_class_id;
    int vlan_translation_action_id;
} bcm_vlan_translate_action_class_t;

/* A VLAN by IP subnet. */
typedef struct bcm_vlan_ip_s {
    uint32 flags;
    bcm_ip_t ip4;
    bcm_ip_t mask;
    bcm_ip6_t ip6;
    int prefix;
    bcm_vlan_t vid;
    int prio;
} bcm_vlan_ip_t;

/* What is done with packets of control protocols. */
typedef struct bcm_vlan_protocol_packet_ctrl_s {
    int mmrp_action;
    int srp_action;
    int arp_reply_action;
    int arp_request_action;
    int nd_action;
    int dhcp_action;
    int igmp_report_leave_action;
    int igmp_query_action;
    int igmp_unknown_msg_action;
    int mld_report_done_action;
    int mld_query_action;
    int ip4_rsvd_mc_action;
    int ip6_rsvd_mc_action;
    int ip4_mc_router_adv_action;
    int ip6_mc_router_adv_action;
    int flood_action_according_to_pfm;
} bcm_vlan_protocol_packet_ctrl_t;

/* The controls of a VLAN. */
typedef struct bcm_vlan_control_vlan_s {
    bcm_vrf_t vrf;
    bcm_vlan_t forwarding_vlan;
    bcm_if_t ingress_if;
    uint16 outer_tpid;
    uint32 flags;
    bcm_vlan_mcast_flood_t ip6_mcast_flood_mode;
    bcm_vlan_mcast_flood_t ip4_mcast_flood_mode;
    bcm_vlan_mcast_flood_t l2_mcast_flood_mode;
    int if_class;
    bcm_vlan_forward_t forwarding_mode;
    bcm_vlan_urpf_mode_t urpf_mode;
    bcm_cos_queue_t cosq;
    int qos_map_id;
    bcm_fabric_distribution_t distribution_class;
    bcm_multicast_t broadcast_group;
    bcm_multicast_t unknown_multicast_group;
    bcm_multicast_t unknown_unicast_group;
    bcm_multicast_t trill_nonunicast_group;
    bcm_trill_name_t source_trill_name;
    int trunk_index;
    bcm_vlan_protocol_packet_ctrl_t protocol_pkt;
    int nat_realm_id;
    int l3_if_class;
    bcm_vlan_vp_mc_ctrl_t vp_mc_ctrl;
    int aging_cycles;
    int entropy_id;
    bcm_vpn_t vpn;
    bcm_vlan_t egress_vlan;
    uint32 learn_flags;
    uint32 sr_flags;
} bcm_vlan_control_vlan_t;

/* The ports blocked in a VLAN by kind of traffic. */
typedef struct bcm_vlan_block_s {
    bcm_pbmp_t known_multicast;
    bcm_pbmp_t unknown_multicast;
    bcm_pbmp_t unknown_unicast;
    bcm_pbmp_t broadcast;
} bcm_vlan_block_t;

/* A VLAN port: what it matches and what it sends. */
typedef struct bcm_vlan_port_s {
    bcm_vlan_port_match_t criteria;
    uint32 flags;
    bcm_vlan_t vsi;
    bcm_vlan_t match_vlan;
    bcm_vlan_t match_inner_vlan;
    int match_pcp;
    bcm_tunnel_id_t match_tunnel_value;
    bcm_port_ethertype_t match_ethertype;
    bcm_gport_t port;
    uint8 pkt_pri;
    uint8 pkt_cfi;
    uint16 egress_service_tpid;
    bcm_vlan_t egress_vlan;
    bcm_vlan_t egress_inner_vlan;
    bcm_tunnel_id_t egress_tunnel_value;
    bcm_if_t encap_id;
    int qos_map_id;
    bcm_policer_t policer_id;
    bcm_policer_t egress_policer_id;
    bcm_failover_t failover_id;
    bcm_gport_t failover_port_id;
    bcm_gport_t vlan_port_id;
    bcm_multicast_t failover_mc_group;
    bcm_failover_t ingress_failover_id;
    bcm_failover_t egress_failover_id;
    bcm_gport_t egress_failover_port_id;
    bcm_switch_network_group_t ingress_network_group_id;
    bcm_switch_network_group_t egress_network_group_id;
    int inlif_counting_profile;
    int outlif_counting_profile;
} bcm_vlan_port_t;

/* The translation at a VLAN port. */
typedef struct bcm_vlan_port_translation_s {
    uint32 flags;
    bcm_gport_t gport;
    uint32 new_outer_vlan;
    uint32 new_inner_vlan;
    uint32 vlan_edit_class_id;
} bcm_vlan_port_translation_t;

/* A member of a VLAN. */
typedef struct bcm_vlan_gport_info_s {
    uint32 flags;
    bcm_vlan_t vlan;
    bcm_vlan_t vsi;
    bcm_gport_t gport;
} bcm_vlan_gport_info_t;

/* A VPN of VLANs and where it floods. */
typedef struct bcm_vlan_vpn_config_s {
    uint32 flags;
    bcm_vpn_t vpn;
    bcm_multicast_t broadcast_group;
    bcm_multicast_t unknown_unicast_group;
    bcm_multicast_t unknown_multicast_group;
} bcm_vlan_vpn_config_t;

/* Called for each translation. */
typedef int (*bcm_vlan_translate_traverse_cb)(int unit, bcm_gport_t port, bcm_vlan_t old_vid,
                                              bcm_vlan_t new_vid, int prio, void *user_data);

/* Called for each translation of an egress VLAN. */
typedef int (*bcm_vlan_translate_egress_traverse_cb)(int unit, bcm_gport_t port, bcm_vlan_t old_vid,
                                                     bcm_vlan_t new_vid, int prio, void *user_data);

/* Called for each translation of a range. */
typedef int (*bcm_vlan_translate_range_traverse_cb)(int unit, bcm_gport_t port,
                                                    bcm_vlan_t old_vid_low, bcm_vlan_t old_vid_high,
                                                    bcm_vlan_t new_vid, int prio, void *user_data);

/* Called for each translation action. */
typedef int (*bcm_vlan_translate_action_traverse_cb)(int unit, bcm_gport_t port,
                                                     bcm_vlan_translate_key_t key_type,
                                                     bcm_vlan_t outer_vlan, bcm_vlan_t inner_vlan,
                                                     bcm_vlan_action_set_t *action,
                                                     void *user_data);

/* Called for each translation action of a range. */
typedef int (*bcm_vlan_translate_action_range_traverse_cb)(
    int unit, bcm_gport_t port, bcm_vlan_t outer_vlan_low, bcm_vlan_t outer_vlan_high,
    bcm_vlan_t inner_vlan_low, bcm_vlan_t inner_vlan_high, bcm_vlan_action_set_t *action,
    void *user_data);

/* Called for each translation action of an egress VLAN. */
typedef int (*bcm_vlan_translate_egress_action_traverse_cb)(int unit, int port_class,
                                                            bcm_vlan_t outer_vlan,
                                                            bcm_vlan_t inner_vlan,
                                                            bcm_vlan_action_set_t *action,
                                                            void *user_data);

/* Called for each double tag. */
typedef int (*bcm_vlan_dtag_traverse_cb)(int unit, bcm_gport_t port, bcm_vlan_t inner_vid,
                                         bcm_vlan_t outer_vid, int prio, void *user_data);

/* Called for each double tag of a range. */
typedef int (*bcm_vlan_dtag_range_traverse_cb)(int unit, bcm_gport_t port, bcm_vlan_t inner_vid_low,
                                               bcm_vlan_t inner_vid_high, bcm_vlan_t outer_vid,
                                               int prio, void *user_data);

/* Called for each cross-connect. */
typedef int (*bcm_vlan_cross_connect_traverse_cb)(int unit, bcm_vlan_t outer_vlan,
                                                  bcm_vlan_t inner_vlan, bcm_gport_t port_1,
                                                  bcm_gport_t port_2, void *user_data);

/* Called for each action by IP address. */
typedef int (*bcm_vlan_ip_action_traverse_cb)(int unit, bcm_vlan_ip_t *vlan_ip,
                                              bcm_vlan_action_set_t *action, void *user_data);

/* Called for each action by MAC. */
typedef int (*bcm_vlan_mac_action_traverse_cb)(int unit, bcm_mac_t mac,
                                               bcm_vlan_action_set_t *action, void *user_data);

/* Called for each action by protocol. */
typedef int (*bcm_vlan_port_protocol_action_traverse_cb)(int unit, bcm_gport_t port,
                                                         bcm_port_frametype_t frame,
                                                         bcm_port_ethertype_t ether,
                                                         bcm_vlan_action_set_t *action,
                                                         void *user_data);

/* Called for each VPN. */
typedef int (*bcm_vlan_vpn_traverse_cb)(int unit, bcm_vlan_vpn_config_t *info, void *user_data);

OMBRA_END_DECLS
