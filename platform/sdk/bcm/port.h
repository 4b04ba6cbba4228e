/* Ports: state, speed, abilities, VLAN defaults, priorities, rates, PHYs and counters. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/bcm/common_types.h"
#include "sdk/bcm/port_types.h"
#include "sdk/bcm/stat_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* Module and configuration */
int bcm_port_init(int unit);
int bcm_port_clear(int unit);
void bcm_port_config_t_init(bcm_port_config_t *config);
int bcm_port_config_get(int unit, bcm_port_config_t *config);
int bcm_port_probe(int unit, bcm_pbmp_t pbmp, bcm_pbmp_t *okay_pbmp);
int bcm_port_detach(int unit, bcm_pbmp_t pbmp, bcm_pbmp_t *detached);
int bcm_port_add(int unit, bcm_port_t port, uint32 flags, bcm_port_interface_info_t *interface_info,
                 bcm_port_mapping_info_t *mapping_info);
int bcm_port_remove(int unit, bcm_port_t port, uint32 flags);
int bcm_port_get(int unit, bcm_port_t port, uint32 *flags,
                 bcm_port_interface_info_t *interface_info, bcm_port_mapping_info_t *mapping_info);
int bcm_port_update(int unit, bcm_port_t port, int link);
int bcm_port_subsidiary_ports_get(int unit, bcm_port_t port, bcm_pbmp_t *pbmp);
int bcm_port_internal_get(int unit, uint32 flags, int port_max, bcm_gport_t *port_array,
                          int *port_count);
int bcm_port_to_nif_id(int unit, bcm_port_t port, int *nif_id);
void bcm_port_resource_t_init(bcm_port_resource_t *resource);
int bcm_port_resource_set(int unit, bcm_gport_t port, bcm_port_resource_t *resource);
int bcm_port_resource_get(int unit, bcm_gport_t port, bcm_port_resource_t *resource);
int bcm_port_resource_multi_set(int unit, int resource_count, bcm_port_resource_t *resource_array);
int bcm_port_resource_traverse(int unit, bcm_port_resource_traverse_cb cb, void *user_data);
char *bcm_port_name(int unit, int port);

/* Global port numbers */
int bcm_port_gport_add(int unit, bcm_port_t port, bcm_gport_t gport);
int bcm_port_gport_get(int unit, bcm_port_t port, bcm_gport_t *gport);
int bcm_port_gport_get_all(int unit, bcm_port_t port, int gport_max, bcm_gport_t *gport_array,
                           int *gport_count);
int bcm_port_gport_delete(int unit, bcm_port_t port, bcm_gport_t gport);
int bcm_port_gport_delete_all(int unit, bcm_port_t port);
int bcm_port_gport_free_range_get(int unit, uint32 flags, bcm_gport_t *start, bcm_gport_t *end);
int bcm_port_gport_is_free(int unit, bcm_gport_t port);
int bcm_port_local_get(int unit, bcm_gport_t gport, bcm_port_t *local_port);

/* The whole state of a port at once */
void bcm_port_info_t_init(bcm_port_info_t *info);
int bcm_port_info_set(int unit, bcm_port_t port, bcm_port_info_t *info);
int bcm_port_info_get(int unit, bcm_port_t port, bcm_port_info_t *info);
int bcm_port_info_restore(int unit, bcm_port_t port, bcm_port_info_t *info);
int bcm_port_info_save(int unit, bcm_port_t port, bcm_port_info_t *info);
int bcm_port_selective_set(int unit, bcm_port_t port, bcm_port_info_t *info);
int bcm_port_selective_get(int unit, bcm_port_t port, bcm_port_info_t *info);

/* Enable, speed and link */
int bcm_port_enable_set(int unit, bcm_port_t port, int enable);
int bcm_port_enable_get(int unit, bcm_port_t port, int *enable);
int bcm_port_speed_set(int unit, bcm_port_t port, int speed);
int bcm_port_speed_get(int unit, bcm_port_t port, int *speed);
int bcm_port_speed_max(int unit, bcm_port_t port, int *speed_max);
int bcm_port_duplex_set(int unit, bcm_port_t port, int duplex);
int bcm_port_duplex_get(int unit, bcm_port_t port, int *duplex);
int bcm_port_autoneg_set(int unit, bcm_port_t port, int autoneg);
int bcm_port_autoneg_get(int unit, bcm_port_t port, int *autoneg);
int bcm_port_link_failed_clear(int unit, bcm_port_t port);
int bcm_port_link_state_get(int unit, bcm_port_t port, uint32 flags, bcm_port_link_state_t *state);
int bcm_port_link_status_get(int unit, bcm_port_t port, int *status);
int bcm_port_fault_get(int unit, bcm_port_t port, uint32 *flags);
int bcm_port_loopback_set(int unit, bcm_port_t port, int mode);
int bcm_port_loopback_get(int unit, bcm_port_t port, int *mode);
int bcm_port_frame_max_set(int unit, bcm_port_t port, int size);
int bcm_port_frame_max_get(int unit, bcm_port_t port, int *size);
int bcm_port_jam_set(int unit, bcm_port_t port, int enable);
int bcm_port_jam_get(int unit, bcm_port_t port, int *enable);
int bcm_port_master_set(int unit, bcm_port_t port, int master);
int bcm_port_master_get(int unit, bcm_port_t port, int *master);
int bcm_port_interface_set(int unit, bcm_port_t port, bcm_port_if_t intf);
int bcm_port_interface_get(int unit, bcm_port_t port, bcm_port_if_t *intf);
int bcm_port_medium_get(int unit, bcm_port_t port, bcm_port_medium_t *medium);
void bcm_phy_config_t_init(bcm_phy_config_t *config);
int bcm_port_medium_config_set(int unit, bcm_port_t port, bcm_port_medium_t medium,
                               bcm_phy_config_t *config);
int bcm_port_medium_config_get(int unit, bcm_port_t port, bcm_port_medium_t medium,
                               bcm_phy_config_t *config);
int bcm_port_medium_status_register(int unit, bcm_port_t port, bcm_port_medium_status_cb_t cb,
                                    void *user_data);
int bcm_port_medium_status_unregister(int unit, bcm_port_t port, bcm_port_medium_status_cb_t cb,
                                      void *user_data);
int bcm_port_mdix_set(int unit, bcm_port_t port, bcm_port_mdix_t mdix);
int bcm_port_mdix_get(int unit, bcm_port_t port, bcm_port_mdix_t *mdix);
int bcm_port_mdix_status_get(int unit, bcm_port_t port, bcm_port_mdix_status_t *status);
int bcm_port_cable_diag(int unit, bcm_port_t port, bcm_port_cable_diag_t *status);
int bcm_port_encap_set(int unit, bcm_port_t port, int mode);
int bcm_port_encap_get(int unit, bcm_port_t port, int *mode);
int bcm_port_ifg_set(int unit, bcm_port_t port, int speed, bcm_port_duplex_t duplex, int bit_times);
int bcm_port_ifg_get(int unit, bcm_port_t port, int speed, bcm_port_duplex_t duplex,
                     int *bit_times);
int bcm_port_linkscan_set(int unit, bcm_port_t port, int mode);
int bcm_port_linkscan_get(int unit, bcm_port_t port, int *mode);

/* Abilities and advertisement */
int bcm_port_ability_get(int unit, bcm_port_t port, bcm_port_abil_t *ability_mask);
void bcm_port_ability_t_init(bcm_port_ability_t *ability_mask);
int bcm_port_ability_advert_set(int unit, bcm_port_t port, bcm_port_ability_t *ability_mask);
int bcm_port_ability_advert_get(int unit, bcm_port_t port, bcm_port_ability_t *ability_mask);
int bcm_port_ability_local_get(int unit, bcm_port_t port, bcm_port_ability_t *ability_mask);
int bcm_port_ability_remote_get(int unit, bcm_port_t port, bcm_port_ability_t *ability_mask);
int bcm_port_advert_set(int unit, bcm_port_t port, bcm_port_abil_t ability_mask);
int bcm_port_advert_get(int unit, bcm_port_t port, bcm_port_abil_t *ability_mask);
int bcm_port_advert_remote_get(int unit, bcm_port_t port, bcm_port_abil_t *ability_mask);

/* Pause and flow control across the fabric */
int bcm_port_pause_set(int unit, bcm_port_t port, int pause_tx, int pause_rx);
int bcm_port_pause_get(int unit, bcm_port_t port, int *pause_tx, int *pause_rx);
int bcm_port_pause_addr_set(int unit, bcm_port_t port, bcm_mac_t mac);
int bcm_port_pause_addr_get(int unit, bcm_port_t port, bcm_mac_t mac);
int bcm_port_pause_sym_set(int unit, bcm_port_t port, int pause);
int bcm_port_pause_sym_get(int unit, bcm_port_t port, int *pause);
void bcm_port_e2efc_remote_module_config_t_init(bcm_port_e2efc_remote_module_config_t *config);
int bcm_port_e2efc_remote_module_enable_set(int unit, bcm_module_t modid,
                                            bcm_port_e2efc_mode_t mode, int enable,
                                            bcm_port_e2efc_remote_module_config_t *config);
int bcm_port_e2efc_remote_module_enable_get(int unit, bcm_module_t modid,
                                            bcm_port_e2efc_mode_t mode, int *enable,
                                            bcm_port_e2efc_remote_module_config_t *config);
int bcm_port_e2efc_remote_module_traverse(int unit, bcm_port_e2efc_remote_module_traverse_cb cb,
                                          void *user_data);
void bcm_port_e2efc_remote_port_config_t_init(bcm_port_e2efc_remote_port_config_t *config);
int bcm_port_e2efc_remote_port_add(int unit, bcm_port_e2efc_remote_port_config_t *config,
                                   int *remote_port_id);
int bcm_port_e2efc_remote_port_set(int unit, int remote_port_id,
                                   bcm_port_e2efc_remote_port_config_t *config);
int bcm_port_e2efc_remote_port_get(int unit, int remote_port_id,
                                   bcm_port_e2efc_remote_port_config_t *config);
int bcm_port_e2efc_remote_port_delete(int unit, int remote_port_id);
int bcm_port_e2efc_remote_port_traverse(int unit, bcm_port_e2efc_remote_port_traverse_cb cb,
                                        void *user_data);
int bcm_port_congestion_set(int unit, bcm_gport_t local_port, bcm_gport_t remote_port, uint32 flags,
                            int enable);
int bcm_port_congestion_get(int unit, bcm_gport_t local_port, bcm_gport_t remote_port, uint32 flags,
                            int *enable);
void bcm_port_congestion_config_t_init(bcm_port_congestion_config_t *config);
int bcm_port_congestion_config_set(int unit, bcm_gport_t port,
                                   bcm_port_congestion_config_t *config);
int bcm_port_congestion_config_get(int unit, bcm_gport_t port,
                                   bcm_port_congestion_config_t *config);
int bcm_port_preemption_control_set(int unit, bcm_gport_t port, bcm_port_preempt_control_t type,
                                    uint32 value);
int bcm_port_preemption_control_get(int unit, bcm_gport_t port, bcm_port_preempt_control_t type,
                                    uint32 *value);
int bcm_port_preemption_status_get(int unit, bcm_gport_t port, bcm_port_preempt_status_t type,
                                   uint32 *value);

/* Forwarding and isolation */
int bcm_port_stp_set(int unit, bcm_port_t port, int stp_state);
int bcm_port_stp_get(int unit, bcm_port_t port, int *stp_state);
int bcm_port_learn_modify(int unit, bcm_port_t port, uint32 add_flags, uint32 remove_flags);
int bcm_port_learn_set(int unit, bcm_port_t port, uint32 flags);
int bcm_port_learn_get(int unit, bcm_port_t port, uint32 *flags);
int bcm_port_discard_set(int unit, bcm_port_t port, int mode);
int bcm_port_discard_get(int unit, bcm_port_t port, int *mode);
int bcm_port_flood_block_set(int unit, bcm_port_t ingress_port, bcm_port_t egress_port,
                             uint32 flags);
int bcm_port_flood_block_get(int unit, bcm_port_t ingress_port, bcm_port_t egress_port,
                             uint32 *flags);
int bcm_port_force_forward_set(int unit, bcm_port_t port, bcm_port_t egress_port, int enable);
int bcm_port_force_forward_get(int unit, bcm_port_t port, bcm_port_t *egress_port, int *enable);
int bcm_port_force_forward_mode_set(int unit, bcm_port_t port, bcm_port_t egress_port,
                                    uint32 flags);
int bcm_port_force_forward_mode_get(int unit, bcm_port_t port, bcm_port_t *egress_port,
                                    uint32 *flags);
int bcm_port_force_dest_set(int unit, bcm_gport_t port, bcm_port_dest_info_t *dest_info);
int bcm_port_force_dest_get(int unit, bcm_gport_t port, bcm_port_dest_info_t *dest_info);
int bcm_port_force_vlan_set(int unit, bcm_port_t port, bcm_vlan_t vid, int prio, uint32 flags);
int bcm_port_force_vlan_get(int unit, bcm_port_t port, bcm_vlan_t *vid, int *prio, uint32 *flags);
int bcm_port_egress_set(int unit, bcm_port_t port, int modid, bcm_pbmp_t pbmp);
int bcm_port_egress_get(int unit, bcm_port_t port, int modid, bcm_pbmp_t *pbmp);
int bcm_port_modid_enable_set(int unit, bcm_port_t port, int modid, int enable);
int bcm_port_modid_enable_get(int unit, bcm_port_t port, int modid, int *enable);
int bcm_port_modid_egress_set(int unit, bcm_port_t port, bcm_module_t modid, bcm_pbmp_t pbmp);
int bcm_port_modid_egress_get(int unit, bcm_port_t port, bcm_module_t modid, bcm_pbmp_t *pbmp);
int bcm_port_pfm_set(int unit, bcm_port_t port, int mode);
int bcm_port_pfm_get(int unit, bcm_port_t port, int *mode);
int bcm_port_bpdu_enable_set(int unit, bcm_port_t port, int enable);
int bcm_port_bpdu_enable_get(int unit, bcm_port_t port, int *enable);
int bcm_port_trunk_index_set(int unit, bcm_port_t port, int trunk_index);
int bcm_port_trunk_index_get(int unit, bcm_port_t port, int *trunk_index);
int bcm_port_tgid_set(int unit, bcm_port_t port, int tid, int psc);
int bcm_port_tgid_get(int unit, bcm_port_t port, int *tid, int *psc);
void bcm_port_redirect_config_t_init(bcm_port_redirect_config_t *config);
int bcm_port_redirect_config_set(int unit, bcm_gport_t port, bcm_port_redirect_config_t *config);
int bcm_port_redirect_config_get(int unit, bcm_gport_t port, bcm_port_redirect_config_t *config);

/* VLANs, TPIDs and classes */
int bcm_port_untagged_vlan_set(int unit, bcm_port_t port, bcm_vlan_t vid);
int bcm_port_untagged_vlan_get(int unit, bcm_port_t port, bcm_vlan_t *vid);
int bcm_port_vlan_member_set(int unit, bcm_port_t port, uint32 flags);
int bcm_port_vlan_member_get(int unit, bcm_port_t port, uint32 *flags);
int bcm_port_vlan_vector_set(int unit, bcm_gport_t port,
                             unsigned int vlan_vec[_SHR_BITDCLSIZE((4095 - 0 + 1))]);
int bcm_port_vlan_vector_get(int unit, bcm_gport_t port,
                             unsigned int vlan_vec[_SHR_BITDCLSIZE((4095 - 0 + 1))]);
int bcm_port_vlan_inner_tag_set(int unit, bcm_port_t port, uint16 inner_tag);
int bcm_port_vlan_inner_tag_get(int unit, bcm_port_t port, uint16 *inner_tag);
int bcm_port_ifilter_set(int unit, bcm_port_t port, int mode);
int bcm_port_ifilter_get(int unit, bcm_port_t port, int *mode);
int bcm_port_dtag_mode_set(int unit, bcm_port_t port, int mode);
int bcm_port_dtag_mode_get(int unit, bcm_port_t port, int *mode);
int bcm_port_inner_tpid_set(int unit, bcm_port_t port, uint16 inner_tpid);
int bcm_port_inner_tpid_get(int unit, bcm_port_t port, uint16 *inner_tpid);
int bcm_port_tpid_add(int unit, bcm_port_t port, uint16 tpid, int color_select);
int bcm_port_tpid_set(int unit, bcm_port_t port, uint16 tpid);
int bcm_port_tpid_get(int unit, bcm_port_t port, uint16 *tpid);
int bcm_port_tpid_get_all(int unit, bcm_port_t port, int tpid_max, uint16 *tpid_array,
                          int *color_select_array, int *tpid_count);
int bcm_port_tpid_delete(int unit, bcm_port_t port, uint16 tpid);
int bcm_port_tpid_delete_all(int unit, bcm_port_t port);
void bcm_port_tpid_class_t_init(bcm_port_tpid_class_t *tpid_class);
int bcm_port_tpid_class_set(int unit, bcm_port_tpid_class_t *tpid_class);
int bcm_port_tpid_class_get(int unit, bcm_port_tpid_class_t *tpid_class);
int bcm_port_protocol_vlan_add(int unit, bcm_port_t port, bcm_port_frametype_t frame,
                               bcm_port_ethertype_t ether, bcm_vlan_t vid);
int bcm_port_protocol_vlan_delete(int unit, bcm_port_t port, bcm_port_frametype_t frame,
                                  bcm_port_ethertype_t ether);
int bcm_port_protocol_vlan_delete_all(int unit, bcm_port_t port);
int bcm_port_class_set(int unit, bcm_port_t port, bcm_port_class_t class_type, uint32 class_id);
int bcm_port_class_get(int unit, bcm_port_t port, bcm_port_class_t class_type, uint32 *class_id);

/* Priorities, DSCP and colour */
int bcm_port_untagged_priority_set(int unit, bcm_port_t port, int priority);
int bcm_port_untagged_priority_get(int unit, bcm_port_t port, int *priority);
int bcm_port_vlan_pri_map_set(int unit, bcm_port_t port, bcm_vlan_t vid, int pkt_prio, int cfi,
                              int int_prio, bcm_color_t color);
int bcm_port_vlan_pri_map_get(int unit, bcm_port_t port, bcm_vlan_t vid, int pkt_prio, int cfi,
                              int *int_prio, bcm_color_t *color);
int bcm_port_vlan_priority_map_set(int unit, bcm_port_t port, int pkt_prio, int cfi, int int_prio,
                                   bcm_color_t color);
int bcm_port_vlan_priority_map_get(int unit, bcm_port_t port, int pkt_prio, int cfi, int *int_prio,
                                   bcm_color_t *color);
void bcm_priority_mapping_t_init(bcm_priority_mapping_t *mapping);
int bcm_port_vlan_priority_mapping_set(int unit, bcm_port_t port, bcm_vlan_t vid, int prio, int cfi,
                                       bcm_priority_mapping_t *mapping);
int bcm_port_vlan_priority_mapping_get(int unit, bcm_port_t port, bcm_vlan_t vid, int prio, int cfi,
                                       bcm_priority_mapping_t *mapping);
int bcm_port_vlan_priority_unmap_set(int unit, bcm_port_t port, int int_prio, bcm_color_t color,
                                     int pkt_prio, int cfi);
int bcm_port_vlan_priority_unmap_get(int unit, bcm_port_t port, int int_prio, bcm_color_t color,
                                     int *pkt_prio, int *cfi);
int bcm_port_vlan_dscp_map_set(int unit, bcm_port_t port, bcm_vlan_t vid, int dscp, int prio,
                               bcm_color_t color);
int bcm_port_vlan_dscp_map_get(int unit, bcm_port_t port, bcm_vlan_t vid, int dscp, int *prio,
                               bcm_color_t *color);
int bcm_port_dscp_map_set(int unit, bcm_port_t port, int old_dscp, int new_dscp, int prio);
int bcm_port_dscp_map_get(int unit, bcm_port_t port, int old_dscp, int *new_dscp, int *prio);
int bcm_port_dscp_map_mode_set(int unit, bcm_port_t port, int mode);
int bcm_port_dscp_map_mode_get(int unit, bcm_port_t port, int *mode);
int bcm_port_dscp_unmap_set(int unit, bcm_port_t port, int prio, bcm_color_t color, int dscp);
int bcm_port_dscp_unmap_get(int unit, bcm_port_t port, int prio, bcm_color_t color, int *dscp);
int bcm_port_cfi_color_set(int unit, bcm_port_t port, int cfi, bcm_color_t color);
int bcm_port_cfi_color_get(int unit, bcm_port_t port, int cfi, bcm_color_t *color);
int bcm_port_priority_color_set(int unit, bcm_port_t port, int prio, bcm_color_t color);
int bcm_port_priority_color_get(int unit, bcm_port_t port, int prio, bcm_color_t *color);
void bcm_port_priority_group_config_t_init(bcm_port_priority_group_config_t *config);
int bcm_port_priority_group_config_set(int unit, bcm_gport_t port, int priority_group,
                                       bcm_port_priority_group_config_t *config);
int bcm_port_priority_group_config_get(int unit, bcm_gport_t port, int priority_group,
                                       bcm_port_priority_group_config_t *config);
int bcm_port_priority_group_mapping_set(int unit, bcm_gport_t port, int prio, int priority_group);
int bcm_port_priority_group_mapping_get(int unit, bcm_gport_t port, int prio, int *priority_group);
int bcm_port_nif_priority_set(int unit, bcm_gport_t port, uint32 flags,
                              bcm_port_nif_prio_t *priority, bcm_pbmp_t *pbmp);
int bcm_port_nif_priority_get(int unit, bcm_gport_t port, uint32 flags,
                              bcm_port_nif_prio_t *priority, bcm_pbmp_t *pbmp);

/* Rates and policers */
int bcm_port_rate_egress_set(int unit, bcm_port_t port, uint32 kbits_sec, uint32 kbits_burst);
int bcm_port_rate_egress_get(int unit, bcm_port_t port, uint32 *kbits_sec, uint32 *kbits_burst);
int bcm_port_rate_egress_pps_set(int unit, bcm_port_t port, uint32 pps, uint32 burst);
int bcm_port_rate_egress_pps_get(int unit, bcm_port_t port, uint32 *pps, uint32 *burst);
int bcm_port_rate_egress_traffic_set(int unit, bcm_port_t port, uint32 flags, uint32 kbits_sec,
                                     uint32 kbits_burst);
int bcm_port_rate_egress_traffic_get(int unit, bcm_port_t port, uint32 *flags, uint32 *kbits_sec,
                                     uint32 *kbits_burst);
int bcm_port_rate_ingress_set(int unit, bcm_port_t port, uint32 kbits_sec, uint32 kbits_burst);
int bcm_port_rate_ingress_get(int unit, bcm_port_t port, uint32 *kbits_sec, uint32 *kbits_burst);
int bcm_port_rate_pause_set(int unit, bcm_port_t port, uint32 kbits_pause, uint32 kbits_resume);
int bcm_port_rate_pause_get(int unit, bcm_port_t port, uint32 *kbits_pause, uint32 *kbits_resume);
int bcm_port_sample_rate_set(int unit, bcm_port_t port, int ingress_rate, int egress_rate);
int bcm_port_sample_rate_get(int unit, bcm_port_t port, int *ingress_rate, int *egress_rate);
int bcm_port_policer_set(int unit, bcm_port_t port, bcm_policer_t policer_id);
int bcm_port_policer_get(int unit, bcm_port_t port, bcm_policer_t *policer_id);
int bcm_port_egress_policer_set(int unit, bcm_port_t port, bcm_policer_t policer_id);
int bcm_port_queued_count_get(int unit, bcm_port_t port, uint32 *count);

/* Layer 3 */
int bcm_port_l3_enable_set(int unit, bcm_port_t port, int enable);
int bcm_port_l3_enable_get(int unit, bcm_port_t port, int *enable);
int bcm_port_l3_encapsulated_mtu_set(int unit, bcm_port_t port, int mtu);
int bcm_port_l3_encapsulated_mtu_get(int unit, bcm_port_t port, int *mtu);
int bcm_port_l3_modify_set(int unit, bcm_port_t port, uint32 flags);
int bcm_port_l3_modify_get(int unit, bcm_port_t port, uint32 *flags);
int bcm_port_l3_mtu_set(int unit, bcm_port_t port, int mtu);
int bcm_port_l3_mtu_get(int unit, bcm_port_t port, int *mtu);
int bcm_port_ipmc_modify_set(int unit, bcm_port_t port, uint32 flags);
int bcm_port_ipmc_modify_get(int unit, bcm_port_t port, uint32 *flags);

/* Matches and encapsulation */
void bcm_port_match_info_t_init(bcm_port_match_info_t *match);
int bcm_port_match_add(int unit, bcm_gport_t port, bcm_port_match_info_t *match);
int bcm_port_match_replace(int unit, bcm_gport_t port, bcm_port_match_info_t *old_match,
                           bcm_port_match_info_t *new_match);
int bcm_port_match_set(int unit, bcm_gport_t port, int match_count,
                       bcm_port_match_info_t *match_array);
int bcm_port_match_multi_get(int unit, bcm_gport_t port, int match_max,
                             bcm_port_match_info_t *match_array, int *match_count);
int bcm_port_match_delete(int unit, bcm_gport_t port, bcm_port_match_info_t *match);
int bcm_port_match_delete_all(int unit, bcm_gport_t port);
void bcm_port_encap_config_t_init(bcm_port_encap_config_t *config);
int bcm_port_encap_config_set(int unit, bcm_gport_t port, bcm_port_encap_config_t *config);
int bcm_port_encap_config_get(int unit, bcm_gport_t port, bcm_port_encap_config_t *config);
int bcm_port_encap_local_get(int unit, bcm_gport_t port, uint32 flags, int *encap);
int bcm_port_encap_map_set(int unit, uint32 flags, bcm_if_t encap_id, bcm_gport_t port);
int bcm_port_encap_map_get(int unit, uint32 flags, bcm_if_t encap_id, bcm_gport_t *port);
int bcm_port_pon_info_set(int unit, bcm_port_t port, bcm_port_pon_info_t *pon_info);
int bcm_port_pon_info_get(int unit, bcm_port_t port, bcm_port_pon_info_t *pon_info);
int bcm_port_pon_tunnel_add(int unit, bcm_gport_t pon_port, uint32 tunnel_id,
                            bcm_gport_t *tunnel_port);
int bcm_port_pon_tunnel_remove(int unit, bcm_gport_t tunnel_port);
int bcm_port_pon_tunnel_map_set(int unit, bcm_gport_t pon_port, bcm_tunnel_id_t tunnel_id,
                                bcm_gport_t tunnel_port);
int bcm_port_pon_tunnel_map_get(int unit, bcm_gport_t pon_port, bcm_tunnel_id_t tunnel_id,
                                bcm_gport_t *tunnel_port);
void bcm_port_extender_mapping_info_t_init(bcm_port_extender_mapping_info_t *mapping_info);
int bcm_port_extender_mapping_info_set(int unit, uint32 flags,
                                       bcm_port_extender_mapping_type_t type,
                                       bcm_port_extender_mapping_info_t *mapping_info);
int bcm_port_extender_mapping_info_get(int unit, uint32 flags,
                                       bcm_port_extender_mapping_type_t type,
                                       bcm_port_extender_mapping_info_t *mapping_info);
int bcm_port_wide_data_set(int unit, bcm_gport_t port, uint32 flags, uint64 data);
int bcm_port_wide_data_get(int unit, bcm_gport_t port, uint32 flags, uint64 *data);

/* Interfaces and management packets */
void bcm_port_interface_config_t_init(bcm_port_interface_config_t *config);
int bcm_port_interface_config_set(int unit, bcm_port_t port, bcm_port_interface_config_t *config);
int bcm_port_interface_config_get(int unit, bcm_port_t port, bcm_port_interface_config_t *config);
int bcm_port_management_packet_config_set(int unit, bcm_port_t port,
                                          bcm_port_management_packet_config_t *config);
int bcm_port_management_packet_config_get(int unit, bcm_port_t port,
                                          bcm_port_management_packet_config_t *config_max,
                                          int config_array, int *config_count);
int bcm_port_ingress_tdm_failover_set(int unit, int failover_id, bcm_pbmp_t tdm_enable_pbmp);
int bcm_port_ingress_tdm_failover_get(int unit, int failover_id, bcm_pbmp_t *tdm_enable_pbmp);

/* PHYs */
int bcm_port_phy_modify(int unit, bcm_port_t port, uint32 flags, uint32 phy_reg_addr,
                        uint32 phy_data, uint32 phy_mask);
int bcm_port_phy_set(int unit, bcm_port_t port, uint32 flags, uint32 phy_reg_addr, uint32 phy_data);
int bcm_port_phy_get(int unit, bcm_port_t port, uint32 flags, uint32 phy_reg_addr,
                     uint32 *phy_data);
int bcm_port_phy_multi_get(int unit, bcm_port_t port, uint32 flags, uint32 phy_reg_addr,
                           uint32 phy_reg_offset, int data_max, uint8 *data, int *data_count);
int bcm_port_phy_control_set(int unit, bcm_port_t port, bcm_port_phy_control_t type, uint32 value);
int bcm_port_phy_control_get(int unit, bcm_port_t port, bcm_port_phy_control_t type, uint32 *value);
int bcm_port_phy_drv_name_get(int unit, bcm_port_t port, char *name, int len);
int bcm_port_phy_firmware_set(int unit, bcm_port_t port, uint32 flags, int offset, uint8 *data,
                              int len);
int bcm_port_phy_reset(int unit, bcm_port_t port);
int bcm_port_phy_reset_register(int unit, bcm_port_t port, bcm_port_phy_reset_cb_t callback,
                                void *user_data);
int bcm_port_phy_reset_unregister(int unit, bcm_port_t port, bcm_port_phy_reset_cb_t callback,
                                  void *user_data);
void bcm_port_phy_timesync_config_t_init(bcm_port_phy_timesync_config_t *config);
int bcm_port_phy_timesync_config_set(int unit, bcm_port_t port,
                                     bcm_port_phy_timesync_config_t *config);
int bcm_port_phy_timesync_config_get(int unit, bcm_port_t port,
                                     bcm_port_phy_timesync_config_t *config);
int bcm_port_phy_timesync_enhanced_capture_get(int unit, bcm_port_t port,
                                               bcm_port_phy_timesync_enhanced_capture_t *capture);
int bcm_port_control_phy_oam_set(int unit, bcm_port_t port, bcm_port_control_phy_oam_t type,
                                 uint64 value);
int bcm_port_control_phy_oam_get(int unit, bcm_port_t port, bcm_port_control_phy_oam_t type,
                                 uint64 *value);
int bcm_port_control_phy_timesync_set(int unit, bcm_port_t port,
                                      bcm_port_control_phy_timesync_t type, uint64 value);
int bcm_port_control_phy_timesync_get(int unit, bcm_port_t port,
                                      bcm_port_control_phy_timesync_t type, uint64 *value);
int bcm_port_config_phy_oam_set(int unit, bcm_port_t port, bcm_port_config_phy_oam_t *config);
int bcm_port_config_phy_oam_get(int unit, bcm_port_t port, bcm_port_config_phy_oam_t *config);

/* Time stamps */
void bcm_port_timesync_config_t_init(bcm_port_timesync_config_t *config);
int bcm_port_timesync_config_set(int unit, bcm_port_t port, int config_count,
                                 bcm_port_timesync_config_t *config_array);
int bcm_port_timesync_config_get(int unit, bcm_port_t port, int config_max,
                                 bcm_port_timesync_config_t *config_array, int *config_count);

/* Controls */
int bcm_port_control_set(int unit, bcm_port_t port, bcm_port_control_t type, int value);
int bcm_port_control_get(int unit, bcm_port_t port, bcm_port_control_t type, int *value);

/* Counters */
int bcm_port_stat_attach(int unit, bcm_gport_t port, uint32 stat_counter_id);
int bcm_port_stat_set(int unit, bcm_gport_t port, bcm_port_stat_t stat, uint64 val);
int bcm_port_stat_get(int unit, bcm_gport_t port, bcm_port_stat_t stat, uint64 *val);
int bcm_port_stat_set32(int unit, bcm_gport_t port, bcm_port_stat_t stat, uint32 val);
int bcm_port_stat_get32(int unit, bcm_gport_t port, bcm_port_stat_t stat, uint32 *val);
int bcm_port_stat_sync_get(int unit, bcm_gport_t port, bcm_port_stat_t stat, uint64 *val);
int bcm_port_stat_sync_get32(int unit, bcm_gport_t port, bcm_port_stat_t stat, uint32 *val);
int bcm_port_stat_multi_set(int unit, bcm_gport_t port, int nstat, bcm_port_stat_t *stat_arr,
                            uint64 *value_arr);
int bcm_port_stat_multi_get(int unit, bcm_gport_t port, int nstat, bcm_port_stat_t *stat_arr,
                            uint64 *value_arr);
int bcm_port_stat_multi_set32(int unit, bcm_gport_t port, int nstat, bcm_port_stat_t *stat_arr,
                              uint32 *value_arr);
int bcm_port_stat_multi_get32(int unit, bcm_gport_t port, int nstat, bcm_port_stat_t *stat_arr,
                              uint32 *value_arr);
int bcm_port_stat_id_get(int unit, bcm_gport_t port, bcm_port_stat_t stat, uint32 *stat_counter_id);
int bcm_port_stat_counter_set(int unit, bcm_gport_t port, bcm_port_stat_t stat, uint32 num_entries,
                              uint32 *counter_indexes, bcm_stat_value_t *counter_values);
int bcm_port_stat_counter_get(int unit, bcm_gport_t port, bcm_port_stat_t stat, uint32 num_entries,
                              uint32 *counter_indexes, bcm_stat_value_t *counter_values);
int bcm_port_stat_counter_sync_get(int unit, bcm_gport_t port, bcm_port_stat_t stat,
                                   uint32 num_entries, uint32 *counter_indexes,
                                   bcm_stat_value_t *counter_values);
int bcm_port_stat_enable_set(int unit, bcm_gport_t port, int enable);
int bcm_port_stat_detach(int unit, bcm_gport_t port);
int bcm_port_stat_detach_with_id(int unit, bcm_gport_t port, uint32 stat_counter_id);

OMBRA_END_DECLS
