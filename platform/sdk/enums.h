/* Enumerations: every code of the SDK, by tag and by typedef. */
#pragma once
#include "native/base.h"

OMBRA_BEGIN_DECLS

/* Colours, actions and codes that chapters share. */
OMBRA_ENUM(bcm_color_e, bcm_color_t);
OMBRA_ENUM(bcm_forwarding_type_e, bcm_forwarding_type_t);
OMBRA_ENUM(bcm_error_e, bcm_error_t);
OMBRA_ENUM(bcm_device_state_e, bcm_device_state_t);
OMBRA_ENUM(bcm_module_protocol_e, bcm_module_protocol_t);
OMBRA_ENUM(bcm_cpu_tunnel_mode_e, bcm_cpu_tunnel_mode_t);

/* VLANs and tags. */
OMBRA_ENUM(bcm_vlan_action_e, bcm_vlan_action_t);
OMBRA_ENUM(bcm_vlan_control_e, bcm_vlan_control_t);
OMBRA_ENUM(bcm_vlan_control_port_e, bcm_vlan_control_port_t);
OMBRA_ENUM(bcm_vlan_forward_e, bcm_vlan_forward_t);
OMBRA_ENUM(bcm_vlan_mcast_flood_e, bcm_vlan_mcast_flood_t);
OMBRA_ENUM(bcm_vlan_pcp_action_e, bcm_vlan_pcp_action_t);
OMBRA_ENUM(bcm_vlan_port_match_e, bcm_vlan_port_match_t);
OMBRA_ENUM(bcm_vlan_stat_e, bcm_vlan_stat_t);
OMBRA_ENUM(bcm_vlan_tpid_action_e, bcm_vlan_tpid_action_t);
OMBRA_ENUM(bcm_vlan_translate_egress_key_e, bcm_vlan_translate_egress_key_t);
OMBRA_ENUM(bcm_vlan_translate_key_e, bcm_vlan_translate_key_t);
OMBRA_ENUM(bcm_vlan_urpf_mode_e, bcm_vlan_urpf_mode_t);
OMBRA_ENUM(bcm_vlan_vp_mc_ctrl_e, bcm_vlan_vp_mc_ctrl_t);
OMBRA_ENUM(bcm_vntag_action_e, bcm_vntag_action_t);
OMBRA_ENUM(bcm_etag_action_e, bcm_etag_action_t);
OMBRA_ENUM(bcm_stg_stp_e, bcm_stg_stp_t);

/* L2. */
OMBRA_ENUM(bcm_l2_learn_stat_type_e, bcm_l2_learn_stat_type_t);
OMBRA_ENUM(bcm_l2_stat_e, bcm_l2_stat_t);
OMBRA_ENUM(bcm_auth_mac_control_e, bcm_auth_mac_control_t);

/* L3. */
OMBRA_ENUM(bcm_l3_ingress_urpf_mode_e, bcm_l3_ingress_urpf_mode_t);
OMBRA_ENUM(bcm_l3_ip4_options_action_e, bcm_l3_ip4_options_action_t);
OMBRA_ENUM(bcm_l3_route_stat_e, bcm_l3_route_stat_t);
OMBRA_ENUM(bcm_l3_stat_e, bcm_l3_stat_t);
OMBRA_ENUM(bcm_l3_vrf_stat_e, bcm_l3_vrf_stat_t);
OMBRA_ENUM(bcm_ipmc_stat_e, bcm_ipmc_stat_t);
OMBRA_ENUM(bcm_ipfix_stage_e, bcm_ipfix_stage_t);

/* Tunnels. */
OMBRA_ENUM(bcm_mpls_egress_action_e, bcm_mpls_egress_action_t);
OMBRA_ENUM(bcm_mpls_port_control_channel_type_e, bcm_mpls_port_control_channel_type_t);
OMBRA_ENUM(bcm_mpls_port_match_e, bcm_mpls_port_match_t);
OMBRA_ENUM(bcm_mpls_port_stat_e, bcm_mpls_port_stat_t);
OMBRA_ENUM(bcm_mpls_stat_e, bcm_mpls_stat_t);
OMBRA_ENUM(bcm_mpls_switch_action_e, bcm_mpls_switch_action_t);
OMBRA_ENUM(bcm_mim_port_match_e, bcm_mim_port_match_t);
OMBRA_ENUM(bcm_mim_stat_e, bcm_mim_stat_t);
OMBRA_ENUM(bcm_trill_stat_e, bcm_trill_stat_t);
OMBRA_ENUM(bcm_tunnel_dscp_select_e, bcm_tunnel_dscp_select_t);
OMBRA_ENUM(bcm_tunnel_type_e, bcm_tunnel_type_t);
OMBRA_ENUM(bcm_proxy_mode_e, bcm_proxy_mode_t);
OMBRA_ENUM(bcm_proxy_proto_type_e, bcm_proxy_proto_type_t);
OMBRA_ENUM(bcm_proxy_second_pass_flow_type_e, bcm_proxy_second_pass_flow_type_t);

/* Groups, mirrors and the stack. */
OMBRA_ENUM(bcm_multicast_control_e, bcm_multicast_control_t);
OMBRA_ENUM(bcm_multicast_type_e, bcm_multicast_type_t);
OMBRA_ENUM(bcm_mirror_psc_e, bcm_mirror_psc_t);
OMBRA_ENUM(bcm_stk_modid_type_e, bcm_stk_modid_type_t);
OMBRA_ENUM(bcm_stk_module_control_e, bcm_stk_module_control_t);

/* Ports. */
OMBRA_ENUM(bcm_port_asf_mode_e, bcm_port_asf_mode_t);
OMBRA_ENUM(bcm_port_class_e, bcm_port_class_t);
OMBRA_ENUM(bcm_port_config_phy_oam_dm_mode_e, bcm_port_config_phy_oam_dm_mode_t);
OMBRA_ENUM(bcm_port_control_ability_e, bcm_port_control_ability_t);
OMBRA_ENUM(bcm_port_control_e, bcm_port_control_t);
OMBRA_ENUM(bcm_port_control_phy_oam_e, bcm_port_control_phy_oam_t);
OMBRA_ENUM(bcm_port_control_phy_timesync_e, bcm_port_control_phy_timesync_t);
OMBRA_ENUM(bcm_port_cos_remap_e, bcm_port_cos_remap_t);
OMBRA_ENUM(bcm_port_discard_e, bcm_port_discard_t);
OMBRA_ENUM(bcm_port_e2efc_mode_e, bcm_port_e2efc_mode_t);
OMBRA_ENUM(bcm_port_eee_mode_e, bcm_port_eee_mode_t);
OMBRA_ENUM(bcm_port_evb_type_e, bcm_port_evb_type_t);
OMBRA_ENUM(bcm_port_extender_mapping_type_e, bcm_port_extender_mapping_type_t);
OMBRA_ENUM(bcm_port_extender_type_e, bcm_port_extender_type_t);
OMBRA_ENUM(bcm_port_fcoe_vsan_select_e, bcm_port_fcoe_vsan_select_t);
OMBRA_ENUM(bcm_port_field_egress_class_select_e, bcm_port_field_egress_class_select_t);
OMBRA_ENUM(bcm_port_field_higig_class_select_e, bcm_port_field_higig_class_select_t);
OMBRA_ENUM(bcm_port_loopback_e, bcm_port_loopback_t);
OMBRA_ENUM(bcm_port_match_e, bcm_port_match_t);
OMBRA_ENUM(bcm_port_niv_type_e, bcm_port_niv_type_t);
OMBRA_ENUM(bcm_port_pause_e, bcm_port_pause_t);
OMBRA_ENUM(bcm_port_pcs_e, bcm_port_pcs_t);
OMBRA_ENUM(bcm_port_phy_clock_source_e, bcm_port_phy_clock_source_t);
OMBRA_ENUM(bcm_port_phy_control_flow_control_mode_e, bcm_port_phy_control_flow_control_mode_t);
OMBRA_ENUM(bcm_port_phy_timesync_dir_e, bcm_port_phy_timesync_dir_t);
OMBRA_ENUM(bcm_port_phy_timesync_event_message_egress_mode_e,
           bcm_port_phy_timesync_event_message_egress_mode_t);
OMBRA_ENUM(bcm_port_phy_timesync_event_message_ingress_mode_e,
           bcm_port_phy_timesync_event_message_ingress_mode_t);
OMBRA_ENUM(bcm_port_phy_timesync_framesync_mode_e, bcm_port_phy_timesync_framesync_mode_t);
OMBRA_ENUM(bcm_port_phy_timesync_global_mode_e, bcm_port_phy_timesync_global_mode_t);
OMBRA_ENUM(bcm_port_phy_timesync_msg_e, bcm_port_phy_timesync_msg_t);
OMBRA_ENUM(bcm_port_phy_timesync_prot_e, bcm_port_phy_timesync_prot_t);
OMBRA_ENUM(bcm_port_phy_timesync_syncout_mode_e, bcm_port_phy_timesync_syncout_mode_t);
OMBRA_ENUM(bcm_port_phy_timesync_timer_mode_e, bcm_port_phy_timesync_timer_mode_t);
OMBRA_ENUM(bcm_port_preempt_control_e, bcm_port_preempt_control_t);
OMBRA_ENUM(bcm_port_preempt_status_e, bcm_port_preempt_status_t);
OMBRA_ENUM(bcm_port_preempt_status_tx_e, bcm_port_preempt_status_tx_t);
OMBRA_ENUM(bcm_port_preempt_status_verify_e, bcm_port_preempt_status_verify_t);
OMBRA_ENUM(bcm_port_redirect_color_e, bcm_port_redirect_color_t);
OMBRA_ENUM(bcm_port_stat_e, bcm_port_stat_t);
OMBRA_ENUM(bcm_port_tunnel_id_e, bcm_port_tunnel_id_t);
OMBRA_ENUM(bcm_port_vxlan_gport_assignment_criteria_e, bcm_port_vxlan_gport_assignment_criteria_t);
OMBRA_ENUM(bcm_port_vxlan_termination_match_criteria_e,
           bcm_port_vxlan_termination_match_criteria_t);
OMBRA_ENUM(bcm_port_vxlan_vpn_assignment_criteria_e, bcm_port_vxlan_vpn_assignment_criteria_t);
OMBRA_ENUM(bcm_linkscan_mode_e, bcm_linkscan_mode_t);
OMBRA_ENUM(bcm_linkscan_trigger_event_e, bcm_linkscan_trigger_event_t);
OMBRA_ENUM(bcm_eav_control_e, bcm_eav_control_t);
OMBRA_ENUM(bcm_eav_stream_class_e, bcm_eav_stream_class_t);
OMBRA_ENUM(bcm_subport_group_linkphy_header_mode_e, bcm_subport_group_linkphy_header_mode_t);
OMBRA_ENUM(bcm_subport_linkphy_rx_error_e, bcm_subport_linkphy_rx_error_t);
OMBRA_ENUM(bcm_subport_match_e, bcm_subport_match_t);
OMBRA_ENUM(bcm_subport_stat_e, bcm_subport_stat_t);

/* Petra and dpp, the port layers below. */
OMBRA_ENUM(_bcm_dpp_port_map_type_e, _bcm_dpp_port_map_type_t);
OMBRA_ENUM(_bcm_petra_ac_key_map_type_e, _bcm_petra_ac_key_map_type_t);
OMBRA_ENUM(_bcm_petra_dtag_mode_e, _bcm_petra_dtag_mode_t);
OMBRA_ENUM(_bcm_petra_port_mact_mgmt_action_profile_e, _bcm_petra_port_mact_mgmt_action_profile_t);
OMBRA_ENUM(_bcm_petra_tpid_profile_e, _bcm_petra_tpid_profile_t);

/* Queues. */
OMBRA_ENUM(bcm_cosq_asf_mode_e, bcm_cosq_asf_mode_t);
OMBRA_ENUM(bcm_cosq_control_drop_limit_alpha_value_e, bcm_cosq_control_drop_limit_alpha_value_t);
OMBRA_ENUM(bcm_cosq_control_e, bcm_cosq_control_t);
OMBRA_ENUM(bcm_cosq_control_range_type_e, bcm_cosq_control_range_type_t);
OMBRA_ENUM(bcm_cosq_dir_e, bcm_cosq_dir_t);
OMBRA_ENUM(bcm_cosq_dynamic_state_e, bcm_cosq_dynamic_state_t);
OMBRA_ENUM(bcm_cosq_egress_multicast_service_pools_e, bcm_cosq_egress_multicast_service_pools_t);
OMBRA_ENUM(bcm_cosq_event_type_e, bcm_cosq_event_type_t);
OMBRA_ENUM(bcm_cosq_fc_direction_type_e, bcm_cosq_fc_direction_type_t);
OMBRA_ENUM(bcm_cosq_gport_fadt_threshold_type_e, bcm_cosq_gport_fadt_threshold_type_t);
OMBRA_ENUM(bcm_cosq_gport_stats_e, bcm_cosq_gport_stats_t);
OMBRA_ENUM(bcm_cosq_gport_type_e, bcm_cosq_gport_type_t);
OMBRA_ENUM(bcm_cosq_icgm_resource_stat_type_e, bcm_cosq_icgm_resource_stat_type_t);
OMBRA_ENUM(bcm_cosq_ingress_port_drop_enable_mode_e, bcm_cosq_ingress_port_drop_enable_mode_t);
OMBRA_ENUM(bcm_cosq_ingress_port_drop_map_e, bcm_cosq_ingress_port_drop_map_t);
OMBRA_ENUM(bcm_cosq_pfc_deadlock_recovery_event_e, bcm_cosq_pfc_deadlock_recovery_event_t);
OMBRA_ENUM(bcm_cosq_pkt_size_adjust_source_e, bcm_cosq_pkt_size_adjust_source_t);
OMBRA_ENUM(bcm_cosq_resource_e, bcm_cosq_resource_t);
typedef bcm_cosq_resource_t bcm_cosq_allocation_resource_t;
OMBRA_ENUM(bcm_cosq_sched_empty_e, bcm_cosq_sched_empty_t);
OMBRA_ENUM(bcm_cosq_service_pool_type_e, bcm_cosq_service_pool_type_t);
OMBRA_ENUM(bcm_cosq_stat_e, bcm_cosq_stat_t);
OMBRA_ENUM(bcm_cosq_tas_control_e, bcm_cosq_tas_control_t);
OMBRA_ENUM(bcm_cosq_tas_profile_state_e, bcm_cosq_tas_profile_state_t);
OMBRA_ENUM(bcm_cosq_tas_status_e, bcm_cosq_tas_status_t);
OMBRA_ENUM(bcm_cosq_threshold_type_e, bcm_cosq_threshold_type_t);
OMBRA_ENUM(bcm_bst_stat_id_e, bcm_bst_stat_id_t);

/* The fabric. */
OMBRA_ENUM(bcm_fabric_action_insert_e, bcm_fabric_action_insert_t);
OMBRA_ENUM(bcm_fabric_action_queue_idx_from_e, bcm_fabric_action_queue_idx_from_t);
OMBRA_ENUM(bcm_fabric_age_mode_e, bcm_fabric_age_mode_t);
OMBRA_ENUM(bcm_fabric_connection_mode_e, bcm_fabric_connection_mode_t);
OMBRA_ENUM(bcm_fabric_control_e, bcm_fabric_control_t);
OMBRA_ENUM(bcm_fabric_device_type_e, bcm_fabric_device_type_t);
OMBRA_ENUM(bcm_fabric_distribution_control_e, bcm_fabric_distribution_control_t);
OMBRA_ENUM(bcm_fabric_link_control_e, bcm_fabric_link_control_t);
OMBRA_ENUM(bcm_fabric_link_threshold_type_e, bcm_fabric_link_threshold_type_t);
OMBRA_ENUM(bcm_fabric_mode_e, bcm_fabric_mode_t);
OMBRA_ENUM(bcm_fabric_module_control_e, bcm_fabric_module_control_t);
OMBRA_ENUM(bcm_fabric_pcp_mode_e, bcm_fabric_pcp_mode_t);
OMBRA_ENUM(bcm_fabric_pipe_e, bcm_fabric_pipe_t);
OMBRA_ENUM(bcm_fabric_predicate_type_e, bcm_fabric_predicate_type_t);
OMBRA_ENUM(bcm_fabric_redundancy_mode_e, bcm_fabric_redundancy_mode_t);
OMBRA_ENUM(bcm_fabric_tdm_editing_type_e, bcm_fabric_tdm_editing_type_t);
OMBRA_ENUM(bcm_fabric_traffic_management_cos_mode_e, bcm_fabric_traffic_management_cos_mode_t);
OMBRA_ENUM(bcm_fabric_vsq_category_mode_e, bcm_fabric_vsq_category_mode_t);

/* The field processor. */
OMBRA_ENUM(bcm_field_action_e, bcm_field_action_t);
OMBRA_ENUM(bcm_field_action_width_flags_e, bcm_field_action_width_flags_t);
OMBRA_ENUM(bcm_field_admit_profile_e, bcm_field_admit_profile_t);
OMBRA_ENUM(bcm_field_AppType_e, bcm_field_AppType_t);
OMBRA_ENUM(bcm_field_ArpOpcode_e, bcm_field_ArpOpcode_t);
OMBRA_ENUM(bcm_field_ce_sharing_e, bcm_field_ce_sharing_t);
OMBRA_ENUM(bcm_field_control_e, bcm_field_control_t);
OMBRA_ENUM(bcm_field_data_offset_base_e, bcm_field_data_offset_base_t);
OMBRA_ENUM(bcm_field_decap_e, bcm_field_decap_t);
OMBRA_ENUM(bcm_field_double_action_vals_e, bcm_field_double_action_vals_t);
OMBRA_ENUM(bcm_field_fabric_header_e, bcm_field_fabric_header_t);
OMBRA_ENUM(bcm_field_FibreChan_e, bcm_field_FibreChan_t);
OMBRA_ENUM(bcm_field_ForwardingType_e, bcm_field_ForwardingType_t);
OMBRA_ENUM(bcm_field_group_mode_e, bcm_field_group_mode_t);
OMBRA_ENUM(bcm_field_group_oper_mode_e, bcm_field_group_oper_mode_t);
OMBRA_ENUM(bcm_field_header_format_e, bcm_field_header_format_t);
OMBRA_ENUM(bcm_field_HiGigForwardingType_e, bcm_field_HiGigForwardingType_t);
OMBRA_ENUM(bcm_field_hint_type_e, bcm_field_hint_type_t);
OMBRA_ENUM(bcm_field_ingress_policer_pools_e, bcm_field_ingress_policer_pools_t);
OMBRA_ENUM(bcm_field_IpFrag_e, bcm_field_IpFrag_t);
OMBRA_ENUM(bcm_field_IpProtocolCommon_e, bcm_field_IpProtocolCommon_t);
OMBRA_ENUM(bcm_field_IpType_e, bcm_field_IpType_t);
OMBRA_ENUM(bcm_field_L2Format_e, bcm_field_L2Format_t);
OMBRA_ENUM(bcm_field_LoopbackType_e, bcm_field_LoopbackType_t);
OMBRA_ENUM(bcm_field_MplsOam_Control_pktType_e, bcm_field_MplsOam_Control_pktType_t);
OMBRA_ENUM(bcm_field_oam_domain_e, bcm_field_oam_domain_t);
OMBRA_ENUM(bcm_field_oam_drop_mep_type_e, bcm_field_oam_drop_mep_type_t);
OMBRA_ENUM(bcm_field_oam_type_e, bcm_field_oam_type_t);
OMBRA_ENUM(bcm_field_olp_header_type_e, bcm_field_olp_header_type_t);
OMBRA_ENUM(bcm_field_orientation_e, bcm_field_orientation_t);
OMBRA_ENUM(bcm_field_port_sr_type_e, bcm_field_port_sr_type_t);
OMBRA_ENUM(bcm_field_qualify_e, bcm_field_qualify_t);
OMBRA_ENUM(bcm_field_redirect_destination_type_e, bcm_field_redirect_destination_type_t);
OMBRA_ENUM(bcm_field_redirect_type_e, bcm_field_redirect_type_t);
OMBRA_ENUM(bcm_field_sr_node_type_e, bcm_field_sr_node_type_t);
OMBRA_ENUM(bcm_field_sr_port_mode_e, bcm_field_sr_port_mode_t);
OMBRA_ENUM(bcm_field_sr_supervision_type_e, bcm_field_sr_supervision_type_t);
OMBRA_ENUM(bcm_field_sr_tag_type_e, bcm_field_sr_tag_type_t);
OMBRA_ENUM(bcm_field_src_class_mode_e, bcm_field_src_class_mode_t);
OMBRA_ENUM(bcm_field_stage_e, bcm_field_stage_t);
OMBRA_ENUM(bcm_field_start_packet_strip_e, bcm_field_start_packet_strip_t);
OMBRA_ENUM(bcm_field_stat_action_e, bcm_field_stat_action_t);
OMBRA_ENUM(bcm_field_stat_e, bcm_field_stat_t);
OMBRA_ENUM(bcm_field_system_header_e, bcm_field_system_header_t);
OMBRA_ENUM(bcm_field_TunnelType_e, bcm_field_TunnelType_t);
OMBRA_ENUM(bcm_field_urpf_mode_e, bcm_field_urpf_mode_t);

/* OAM. */
OMBRA_ENUM(bcm_oam_action_type_e, bcm_oam_action_type_t);
OMBRA_ENUM(bcm_oam_condition_e, bcm_oam_condition_t);
OMBRA_ENUM(bcm_oam_control_type_e, bcm_oam_control_type_t);
OMBRA_ENUM(bcm_oam_endpoint_type_e, bcm_oam_endpoint_type_t);
OMBRA_ENUM(bcm_oam_event_type_e, bcm_oam_event_type_t);
OMBRA_ENUM(bcm_oam_group_fault_alarm_defect_priority_e,
           bcm_oam_group_fault_alarm_defect_priority_t);
OMBRA_ENUM(bcm_oam_lm_counter_action_e, bcm_oam_lm_counter_action_t);
OMBRA_ENUM(bcm_oam_lm_counter_size_e, bcm_oam_lm_counter_size_t);
OMBRA_ENUM(bcm_oam_lm_counter_type_e, bcm_oam_lm_counter_type_t);
OMBRA_ENUM(bcm_oam_lookup_type_e, bcm_oam_lookup_type_t);
OMBRA_ENUM(bcm_oam_mpls_lm_dm_opcode_type_e, bcm_oam_mpls_lm_dm_opcode_type_t);
OMBRA_ENUM(bcm_oam_mpls_tp_channel_type_e, bcm_oam_mpls_tp_channel_type_t);
OMBRA_ENUM(bcm_oam_opcode_e, bcm_oam_opcode_t);
OMBRA_ENUM(bcm_oam_protocol_type_e, bcm_oam_protocol_type_t);
OMBRA_ENUM(bcm_oam_report_mode_type_e, bcm_oam_report_mode_type_t);
OMBRA_ENUM(bcm_oam_timestamp_format_e, bcm_oam_timestamp_format_t);
OMBRA_ENUM(bcm_oam_tlv_pattern_type_e, bcm_oam_tlv_pattern_type_t);
OMBRA_ENUM(bcm_oam_vccv_type_e, bcm_oam_vccv_type_t);

/* Policers. */
OMBRA_ENUM(bcm_policer_action_e, bcm_policer_action_t);
OMBRA_ENUM(bcm_policer_color_e, bcm_policer_color_t);
OMBRA_ENUM(bcm_policer_global_meter_source_e, bcm_policer_global_meter_source_t);
OMBRA_ENUM(bcm_policer_group_mode_attr_e, bcm_policer_group_mode_attr_t);
OMBRA_ENUM(bcm_policer_group_mode_attr_pkt_type_e, bcm_policer_group_mode_attr_pkt_type_t);
OMBRA_ENUM(bcm_policer_group_mode_attr_vlan_e, bcm_policer_group_mode_attr_vlan_t);
OMBRA_ENUM(bcm_policer_group_mode_e, bcm_policer_group_mode_t);
OMBRA_ENUM(bcm_policer_group_mode_type_e, bcm_policer_group_mode_type_t);
OMBRA_ENUM(bcm_policer_mode_e, bcm_policer_mode_t);
OMBRA_ENUM(bcm_policer_stat_e, bcm_policer_stat_t);

/* Statistics. */
OMBRA_ENUM(bcm_stat_counter_filter_e, bcm_stat_counter_filter_t);
OMBRA_ENUM(bcm_stat_counter_format_type_e, bcm_stat_counter_format_type_t);
OMBRA_ENUM(bcm_stat_counter_lif_range_id_e, bcm_stat_counter_lif_range_id_t);
OMBRA_ENUM(bcm_stat_counter_lif_stack_id_e, bcm_stat_counter_lif_stack_id_t);
OMBRA_ENUM(bcm_stat_counter_source_type_e, bcm_stat_counter_source_type_t);
OMBRA_ENUM(bcm_stat_flex_direction_e, bcm_stat_flex_direction_t);
OMBRA_ENUM(bcm_stat_flex_stat_e, bcm_stat_flex_stat_t);
OMBRA_ENUM(bcm_stat_group_mode_attr_e, bcm_stat_group_mode_attr_t);
OMBRA_ENUM(bcm_stat_group_mode_attr_pkt_type_e, bcm_stat_group_mode_attr_pkt_type_t);
OMBRA_ENUM(bcm_stat_group_mode_attr_vlan_e, bcm_stat_group_mode_attr_vlan_t);
OMBRA_ENUM(bcm_stat_group_mode_e, bcm_stat_group_mode_t);
OMBRA_ENUM(bcm_stat_group_mode_hint_type_e, bcm_stat_group_mode_hint_type_t);
OMBRA_ENUM(bcm_stat_object_e, bcm_stat_object_t);
OMBRA_ENUM(bcm_stat_threshold_type_e, bcm_stat_threshold_type_t);
OMBRA_ENUM(bcm_stat_val_e, bcm_stat_val_t);
OMBRA_ENUM(bcm_custom_stat_trigger_e, bcm_custom_stat_trigger_t);

/* Packets, receive and transmit. */
OMBRA_ENUM(bcm_pkt_dnx_ftmh_action_type_e, bcm_pkt_dnx_ftmh_action_type_t);
OMBRA_ENUM(bcm_pkt_dnx_itmh_dest_type_e, bcm_pkt_dnx_itmh_dest_type_t);
OMBRA_ENUM(bcm_pkt_dnx_otsh_oam_subtype_e, bcm_pkt_dnx_otsh_oam_subtype_t);
OMBRA_ENUM(bcm_pkt_dnx_otsh_type_e, bcm_pkt_dnx_otsh_type_t);
OMBRA_ENUM(bcm_pkt_dnx_type_e, bcm_pkt_dnx_type_t);
OMBRA_ENUM(bcm_pkt_drop_reason_e, bcm_pkt_drop_reason_t);
OMBRA_ENUM(bcm_pkt_oam_counter_object_e, bcm_pkt_oam_counter_object_t);
OMBRA_ENUM(bcm_pkt_oam_lm_counter_mode_e, bcm_pkt_oam_lm_counter_mode_t);
OMBRA_ENUM(bcm_pkt_rx_oam_type_e, bcm_pkt_rx_oam_type_t);
OMBRA_ENUM(bcm_pkt_stk_forward_e, bcm_pkt_stk_forward_t);
OMBRA_ENUM(bcm_pkt_timestamp_mode_e, bcm_pkt_timestamp_mode_t);
OMBRA_ENUM(bcm_rx_control_e, bcm_rx_control_t);
OMBRA_ENUM(bcm_rx_decap_tunnel_e, bcm_rx_decap_tunnel_t);
OMBRA_ENUM(bcm_rx_e, bcm_rx_t);
OMBRA_ENUM(bcm_rx_reason_e, bcm_rx_reason_t);
OMBRA_ENUM(bcm_rx_redirect_e, bcm_rx_redirect_t);
OMBRA_ENUM(bcm_rx_trap_e, bcm_rx_trap_t);
OMBRA_ENUM(bcm_rx_trap_forwarding_header_e, bcm_rx_trap_forwarding_header_t);

/* The switch as a whole. */
OMBRA_ENUM(bcm_switch_agm_period_interval_e, bcm_switch_agm_period_interval_t);
OMBRA_ENUM(bcm_switch_agm_type_e, bcm_switch_agm_type_t);
OMBRA_ENUM(bcm_switch_bst_tracking_mode_e, bcm_switch_bst_tracking_mode_t);
OMBRA_ENUM(bcm_switch_control_e, bcm_switch_control_t);
OMBRA_ENUM(bcm_switch_control_mc_queue_config_mode_e, bcm_switch_control_mc_queue_config_mode_t);
OMBRA_ENUM(bcm_switch_ecmp_hash_bit_count_e, bcm_switch_ecmp_hash_bit_count_t);
OMBRA_ENUM(bcm_switch_encap_service_e, bcm_switch_encap_service_t);
OMBRA_ENUM(bcm_switch_event_control_action_e, bcm_switch_event_control_action_t);
OMBRA_ENUM(bcm_switch_event_e, bcm_switch_event_t);
OMBRA_ENUM(bcm_switch_hash_config_e, bcm_switch_hash_config_t);
OMBRA_ENUM(bcm_switch_hash_field_e, bcm_switch_hash_field_t);
OMBRA_ENUM(bcm_switch_hash_table_e, bcm_switch_hash_table_t);
OMBRA_ENUM(bcm_switch_l2_location_e, bcm_switch_l2_location_t);
OMBRA_ENUM(bcm_switch_lif_property_e, bcm_switch_lif_property_t);
OMBRA_ENUM(bcm_switch_match_control_type_e, bcm_switch_match_control_type_t);
OMBRA_ENUM(bcm_switch_match_service_e, bcm_switch_match_service_t);
OMBRA_ENUM(bcm_switch_oam_stacking_support_e, bcm_switch_oam_stacking_support_t);
OMBRA_ENUM(bcm_switch_object_e, bcm_switch_object_t);
OMBRA_ENUM(bcm_switch_pfc_deadlock_action_e, bcm_switch_pfc_deadlock_action_t);
OMBRA_ENUM(bcm_switch_pfc_deadlock_detection_interval_e,
           bcm_switch_pfc_deadlock_detection_interval_t);
OMBRA_ENUM(bcm_switch_pkt_hash_info_fwd_reason_e, bcm_switch_pkt_hash_info_fwd_reason_t);
OMBRA_ENUM(bcm_switch_pkt_trace_drop_reason_e, bcm_switch_pkt_trace_drop_reason_t);
OMBRA_ENUM(bcm_switch_pkt_trace_lookup_e, bcm_switch_pkt_trace_lookup_t);
OMBRA_ENUM(bcm_switch_pkt_trace_resolution_e, bcm_switch_pkt_trace_resolution_t);
OMBRA_ENUM(bcm_switch_profile_mapping_type_e, bcm_switch_profile_mapping_type_t);
OMBRA_ENUM(bcm_switch_service_e, bcm_switch_service_t);
OMBRA_ENUM(bcm_switch_service_enabled_e, bcm_switch_service_enabled_t);
OMBRA_ENUM(bcm_switch_table_update_mode_e, bcm_switch_table_update_mode_t);
OMBRA_ENUM(bcm_switch_thermo_sensor_type_e, bcm_switch_thermo_sensor_type_t);
OMBRA_ENUM(bcm_switch_timesync_timestamping_mode_e, bcm_switch_timesync_timestamping_mode_t);
OMBRA_ENUM(bcm_switch_tpid_class_match_e, bcm_switch_tpid_class_match_t);
OMBRA_ENUM(bcm_switch_tpid_type_e, bcm_switch_tpid_type_t);
OMBRA_ENUM(bcm_switch_user_buffer_type_e, bcm_switch_user_buffer_type_t);

/* Time. */
OMBRA_ENUM(bcm_time_synce_clock_src_type_e, bcm_time_synce_clock_src_type_t);
OMBRA_ENUM(bcm_time_synce_input_src_type_e, bcm_time_synce_input_src_type_t);
OMBRA_ENUM(bcm_time_synce_stage0_mode_e, bcm_time_synce_stage0_mode_t);
OMBRA_ENUM(bcm_time_synce_stage1_div_e, bcm_time_synce_stage1_div_t);
OMBRA_ENUM(bcm_bs_time_source_e, bcm_bs_time_source_t);

/* PHYs and chip support. */
OMBRA_ENUM(soc_error_t, soc_error_t);
OMBRA_ENUM(soc_phy_control_autoneg_mode_e, soc_phy_control_autoneg_mode_t);
OMBRA_ENUM(soc_phy_control_bert_pattern_e, soc_phy_control_bert_pattern_t);
OMBRA_ENUM(soc_phy_control_dfe_e, soc_phy_control_dfe_t);
OMBRA_ENUM(soc_phy_control_driver_supply_e, soc_port_phy_control_driver_supply_t);
OMBRA_ENUM(soc_phy_control_e, soc_phy_control_t);
OMBRA_ENUM(soc_phy_control_edc_config_e, soc_phy_control_edc_config_t);
OMBRA_ENUM(soc_phy_control_encoding_e, soc_phy_control_encoding_t);
OMBRA_ENUM(soc_phy_control_fec_e, soc_phy_control_fec_t);
OMBRA_ENUM(soc_phy_control_firmware_mode_e, soc_phy_control_firmware_mode_t);
OMBRA_ENUM(soc_phy_control_flow_control_mode_e, soc_phy_control_flow_control_mode_t);
OMBRA_ENUM(soc_phy_control_gpio_config_e, soc_phy_control_gpio_config_t);
OMBRA_ENUM(soc_phy_control_longreach_ability_e, soc_phy_control_longreach_ability_t);
OMBRA_ENUM(soc_phy_control_polynomial_e, soc_phy_control_polynomial_t);
OMBRA_ENUM(soc_phy_control_power_e, soc_phy_control_power_t);
OMBRA_ENUM(soc_phy_control_rx_los_e, soc_phy_control_rx_los_t);
OMBRA_ENUM(soc_phy_control_tx_fir_drivermode_e, soc_phy_control_tx_fir_drivermode_t);
OMBRA_ENUM(soc_phy_event_e, soc_phy_event_t);
OMBRA_ENUM(soc_port_phy_clock_source_e, soc_port_phy_clock_source_t);
OMBRA_ENUM(soc_switch_data_error_t, soc_switch_data_error_t);
OMBRA_ENUM(soc_switch_event_t, soc_switch_event_t);
OMBRA_ENUM(soc_switch_thread_id_t, soc_switch_thread_id_t);
OMBRA_ENUM(phy_diag_ctrl_e, phy_diag_ctrl_t);
OMBRA_ENUM(tesselPhyType_e, tesselPhyType_t);
OMBRA_ENUM(cmd_result_e, cmd_result_t);

OMBRA_END_DECLS
