/* Scalars: the SDK's names for plain numbers and for fixed arrays of them. */
#pragma once
#include "native/base.h"

OMBRA_BEGIN_DECLS

/* Ports, modules and trunks. A gport carries its type in the upper bits. */
typedef int bcm_gport_t;
typedef int bcm_port_t;
typedef int bcm_module_t;
typedef int bcm_core_t;
typedef int bcm_trunk_t;
typedef int bcm_stg_t;
typedef int bcm_if_t;
typedef int bcm_if_group_t;
typedef int bcm_port_frametype_t;
typedef uint16 bcm_port_ethertype_t;
typedef uint16 bcm_port_tag_format_class_t;

/* Queues and scheduling. */
typedef int bcm_cos_t;
typedef int bcm_cos_queue_t;
typedef int bcm_cosq_buffer_id_t;
typedef int bcm_cosq_tas_profile_id_t;
typedef int bcm_service_pool_id_t;
typedef int bcm_oob_fc_rx_intf_id_t;
typedef int bcm_pstats_session_id_t;

/* The fabric. */
typedef int bcm_fabric_action_t;
typedef int bcm_fabric_distribution_t;
typedef int bcm_fabric_predicate_t;
typedef int bcm_fabric_predicate_action_t;
typedef int bcm_fabric_qsel_t;
typedef int bcm_fabric_qsel_offset_t;
typedef int bcm_fabric_stats_segment_t;

/* VLANs, virtual private networks and Ethernet types. */
typedef uint16 bcm_vlan_t;
typedef uint16 bcm_vpn_t;
typedef uint16 bcm_mim_vpn_t;
typedef uint16 bcm_ethertype_t;
typedef uint32 bcm_vlan_tag_t;
typedef uint32 bcm_fcoe_vsan_id_t;

/* Addresses and routing. */
typedef uint32 bcm_ip_t;
typedef uint32 sal_ip_addr_t;
typedef int bcm_l4_port_t;
typedef int bcm_vrf_t;
typedef uint32 bcm_l3_nat_id_t;
typedef uint32 bcm_l3_protocol_group_id_t;
typedef uint32 bcm_mpls_label_t;
typedef uint32 bcm_tunnel_id_t;
typedef int bcm_trill_name_t;

/* Groups and protection. */
typedef int bcm_multicast_t;
typedef int bcm_failover_t;
typedef int bcm_switch_network_group_t;
typedef int bcm_tsn_flowset_t;
typedef int bcm_tsn_sr_flowset_t;

/*
 * The field processor. Entries and groups are unsigned numbers to Python, 0 to 4294967295, but
 * pointers to them are pointers to int; hence the signed type here.
 */
typedef int bcm_field_entry_t;
typedef int bcm_field_group_t;
typedef int bcm_field_presel_t;
typedef uint32 bcm_field_hintid_t;
typedef uint32 bcm_field_range_t;
typedef uint64 bcm_class_t;
typedef int bcm_udf_id_t;
typedef int bcm_udf_pkt_format_id_t;

/* Policing, monitoring and time. */
typedef int bcm_policer_t;
typedef int bcm_policer_pool_t;
typedef int bcm_oam_group_t;
typedef int bcm_oam_endpoint_t;
typedef int bcm_oam_pm_profile_t;
typedef int bcm_ipfix_rate_id_t;
typedef int bcm_switch_agm_id_t;
typedef int bcm_hash_entry_t;
typedef int bcm_rx_chan_t;
typedef int bcm_time_if_t;

/* Registers, memories and fields, by their numbers in the chip's own lists. */
typedef int soc_reg_t;
typedef int soc_mem_t;
typedef int soc_field_t;

/*
 * Addresses of the system layer. A virtual address is kept in 32 bits, although a number of 64
 * bits may be given for it: the upper half is lost.
 */
typedef uint32 sal_paddr_t;
typedef uint32 sal_vaddr_t;

/*
 * Opaque values. To the SDK these are plain numbers; Python holds them by pointer only, and each
 * name has a pointer type of its own.
 */
typedef uint32 sal_usecs_t;
typedef uint32 ip_addr_t;
typedef int soc_port_t;
typedef int soc_cos_t;
typedef int soc_block_t;
typedef int soc_block_type_t;
typedef int soc_regtype_t;
typedef int soc_port_if_t;
typedef int soc_port_mdix_t;
typedef int soc_port_mdix_status_t;
typedef int soc_port_medium_t;
typedef uint32 soc_port_mode_t;
typedef int bcm_udf_layer_t;

typedef uint32 _shr_port_mode_t;
typedef _shr_port_mode_t bcm_port_abil_t;
typedef int _shr_port_duplex_t;
typedef _shr_port_duplex_t bcm_port_duplex_t;
typedef int _shr_port_encap_t;
typedef _shr_port_encap_t bcm_port_encap_t;
typedef int _shr_port_if_t;
typedef _shr_port_if_t bcm_port_if_t;
typedef int _shr_port_mdix_t;
typedef _shr_port_mdix_t bcm_port_mdix_t;
typedef int _shr_port_mdix_status_t;
typedef _shr_port_mdix_status_t bcm_port_mdix_status_t;
typedef int _shr_port_medium_t;
typedef _shr_port_medium_t bcm_port_medium_t;

/* Codes that the SDK shares between its layers. */
typedef int _shr_dma_chan_t;
typedef _shr_dma_chan_t bcm_dma_chan_t;
typedef int _shr_pa_encap_t;
typedef _shr_pa_encap_t bcm_pa_encap_t;
typedef int _shr_port_cable_state_t;
typedef _shr_port_cable_state_t bcm_port_cable_state_t;
typedef int _shr_port_mcast_flood_t;
typedef _shr_port_mcast_flood_t bcm_port_mcast_flood_t;
typedef int _shr_port_ms_t;
typedef _shr_port_ms_t bcm_port_ms_t;
typedef int _shr_port_phy_control_t;
typedef _shr_port_phy_control_t bcm_port_phy_control_t;
typedef int _shr_port_phy_pcs_mode_t;
typedef _shr_port_phy_pcs_mode_t bcm_port_phy_pcs_mode_t;
typedef int _shr_port_prbs_polynomial_t;
typedef _shr_port_prbs_polynomial_t bcm_port_prbs_t;
typedef int _shr_port_stp_t;
typedef _shr_port_stp_t bcm_port_stp_t;

/* Hardware addresses, first byte first. */
typedef unsigned char bcm_mac_t[6];
typedef unsigned char sal_mac_addr_t[6];
typedef unsigned char bcm_ip6_t[16];
typedef unsigned char sal_ip6_addr_t[(16)];

/* Bit arrays: one bit for each VLAN, VPN, predicate, module or unit. */
typedef unsigned int bcm_vlan_vector_t[_SHR_BITDCLSIZE((4095 - 0 + 1))];
typedef unsigned int bcm_vpn_vector_t[_SHR_BITDCLSIZE((4095 - 0 + 1))];
typedef SHR_BITDCL bcm_fabric_predicate_vector_t[_SHR_BITDCLSIZE(32)];
typedef SHR_BITDCL bcm_fabric_module_vector_t[_SHR_BITDCLSIZE((144))];
typedef unsigned int bcm_unit_bmp_t[_SHR_BITDCLSIZE(128)];

/* The value of a register wider than 64 bits, least word first. */
typedef unsigned int soc_reg_above_64_val_t[20];

OMBRA_END_DECLS
