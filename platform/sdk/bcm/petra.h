/* Petra and dpp: the port layers below the API, under their internal names. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/bcm/petra_types.h"
#include "sdk/bcm/port_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* The port layer */
int bcm_petra_port_advert_remote_get(int unit, bcm_port_t port, bcm_port_abil_t *ability_mask);
int bcm_petra_port_deinit(int unit);
int bcm_petra_port_tpid_profile_alloc(int unit, uint16 tpids[(2)], int nof_tpids, int inner_only,
                                      int *tpid_profile);
int bcm_petra_port_tpid_profile_exact_match_search(int unit, int tpid_profile_start,
                                                   uint16 tpids[(2)], int nof_tpids, int inner_only,
                                                   int *tpid_profile);
int bcm_petra_port_tpid_profile_first_match_search(int unit, int tpid_profile_start,
                                                   uint16 tpids[(2)], int nof_tpids, int inner_only,
                                                   int *tpid_profile);
int bcm_petra_port_tpid_profile_opposite_match_search(int unit, int tpid_profile_start,
                                                      uint16 tpids[(2)], int nof_tpids,
                                                      int inner_only, int *tpid_profile);
int bcm_petra_port_tpid_profile_similar_match_search(int unit, int tpid_profile_start,
                                                     uint16 tpids[(2)], int nof_tpids,
                                                     int inner_only, int *tpid_profile);
int bcm_petra_port_vlan_pri_map_set(int unit, bcm_port_t port, bcm_vlan_t vid, int pkt_prio,
                                    int cfi, int int_prio, int color);
int bcm_petra_port_vlan_pri_map_get(int unit, bcm_port_t port, bcm_vlan_t vid, int pkt_prio,
                                    int cfi, int *int_prio, bcm_color_t *color);
int bcm_petra_port_vlan_priority_map_set(int unit, bcm_port_t port, int pkt_prio, int cfi,
                                         int int_prio, bcm_color_t color);
int bcm_petra_port_vlan_priority_map_get(int unit, bcm_port_t port, int pkt_prio, int cfi,
                                         int *int_prio, bcm_color_t *color);
int bcm_petra_port_vlan_priority_unmap_set(int unit, bcm_port_t port, int int_prio,
                                           bcm_color_t color, int pkt_prio, int cfi);
int bcm_petra_port_vlan_priority_unmap_get(int unit, bcm_port_t port, int int_prio,
                                           bcm_color_t color, int *pkt_prio, int *cfi);
int bcm_petra_tpid_profile_info_set(int unit, int core, int tpid_profile_id,
                                    _bcm_petra_tpid_profile_t tpid_profile, int tpid_index,
                                    _bcm_petra_dtag_mode_t dtag_mode,
                                    _bcm_petra_ac_key_map_type_t ac_key_map_type, uint8 outer_tag,
                                    uint8 inner_tag);

/* Inside the port layer */
int _bcm_petra_mim_tpid_profile_update(int unit, int add, uint16 tpid);
int _bcm_petra_outlif_profile_set(int unit, uint32 outlif, uint32 profile,
                                  SOC_OCC_MGMT_OUTLIF_APP const app);
int _bcm_petra_port_class_nof_vlan_domains_count(int unit, uint32 class_id, int *count);
int _bcm_petra_port_color_decode(int unit, int encoding, bcm_color_t *color);
int _bcm_petra_port_color_encode(int, bcm_color_t, int *);
int _bcm_petra_port_discard_extend_get(int unit, bcm_port_t port, int *mode);
int _bcm_petra_port_discard_extend_dtag_mode_set(int unit, bcm_port_t port,
                                                 _bcm_petra_dtag_mode_t dtag_mode);
int _bcm_petra_port_discard_extend_dtag_mode_get(int unit, bcm_port_t port,
                                                 _bcm_petra_dtag_mode_t *dtag_mode);
int _bcm_petra_port_discard_extend_mode_set(int unit, bcm_port_t port, int mode);
int _bcm_petra_port_fabric_detach(int unit, bcm_pbmp_t pbmp, bcm_pbmp_t *detached);
int _bcm_petra_port_find_free_port_and_allocate(int unit, bcm_core_t core, bcm_port_if_t intf,
                                                int channel, bcm_port_t *port);
int _bcm_petra_port_link_get(int unit, bcm_port_t port, int hw, int *link);
int _bcm_petra_port_link_get_and_hook_placeholder(int unit, bcm_port_t port, int hw, int *link);
int _bcm_petra_port_nif_priority_set(int unit, bcm_gport_t gport, uint32 nif_id, uint32 flags,
                                     bcm_port_nif_prio_t *priority, bcm_pbmp_t *pbmp);
int _bcm_petra_port_nrdy_thresh_allocate(int unit, soc_port_t port);
int _bcm_petra_port_nrdy_thresh_free(int unit, soc_port_t port);
int _bcm_petra_port_outlif_profile_set(int unit, bcm_port_t port, uint32 profile,
                                       SOC_OCC_MGMT_OUTLIF_APP const app);
int _bcm_petra_port_traps_init(int unit);

/* The dpp layer */
int _bcm_dpp_port_mod_port_from_sys_port(int unit, bcm_module_t *modid, bcm_port_t *mode_port,
                                         uint32 sys_port);
int _bcm_dpp_port_mod_port_to_sys_port(int unit, bcm_module_t modid, bcm_port_t port,
                                       unsigned int *sys_port);
int _bcm_dpp_port_pbmp_arm_get(int unit, bcm_pbmp_t *pbmp);
int _bcm_dpp_port_reassembly_context_get(int unit, bcm_port_t port, uint32 *context,
                                         uint32 *is_valid);
int _bcm_dpp_port_tpid_class_acceptable_frame_type_info_t_clear(
    int unit, _bcm_dpp_port_tpid_class_acceptable_frame_type_info_t *info);
void _bcm_dpp_port_tpid_class_info_t_to_bcm_dpp_port_tpid_class_acceptable_frame_type_info_t(
    int unit, _bcm_dpp_port_tpid_class_info_t *class_info,
    _bcm_dpp_port_tpid_class_acceptable_frame_type_info_t *frame_type_info);

OMBRA_END_DECLS
