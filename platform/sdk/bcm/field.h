/* Field: the rule engine: groups, entries, actions, ranges, statistics and preselection. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/bcm/field_types.h"
#include "sdk/bcm/stat_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* Module and controls */
int bcm_field_init(int unit);
int bcm_field_detach(int unit);
int bcm_field_show(int unit, char const *pfx);
int bcm_field_resync(int unit);
int bcm_field_control_set(int unit, bcm_field_control_t control, uint32 state);
int bcm_field_control_get(int unit, bcm_field_control_t control, uint32 *state);
int bcm_field_stage_info_get(int unit, bcm_field_stage_t stage, bcm_field_stage_info_t *info);
int bcm_field_internal_to_bcm_action_map(int unit, uint32 flags, int internal_action,
                                         uint32 map_max, bcm_field_internal_to_bcm_map_t *map_array,
                                         uint32 *map_count);

/* Qualifier and action sets */
void bcm_field_qset_t_init(bcm_field_qset_t *qset);
int bcm_field_qset_data_qualifier_add(int unit, bcm_field_qset_t *qset, int qual_id);
int bcm_field_qset_data_qualifier_get(int unit, bcm_field_qset_t qset, int qual_max,
                                      int *qual_array, int *qual_count);
int bcm_field_qset_data_qualifier_delete(int unit, bcm_field_qset_t *qset, int qual_id);
int bcm_field_qset_id_multi_set(int unit, bcm_field_qualify_t qualifier, int num_objects,
                                int *object_list, bcm_field_qset_t *qset);
int bcm_field_qset_id_multi_get(int unit, bcm_field_qset_t qset, bcm_field_qualify_t qualifier,
                                int max_objects, int *object_list, int *object_count);
int bcm_field_qset_id_multi_delete(int unit, bcm_field_qualify_t qualifier, int num_objects,
                                   int *object_list, bcm_field_qset_t *qset);

/* Groups */
int bcm_field_group_create(int unit, bcm_field_qset_t qset, int pri, bcm_field_group_t *group);
int bcm_field_group_create_id(int unit, bcm_field_qset_t qset, int pri, bcm_field_group_t group);
int bcm_field_group_install(int unit, bcm_field_group_t group);
int bcm_field_group_set(int unit, bcm_field_group_t group, bcm_field_qset_t qset);
int bcm_field_group_get(int unit, bcm_field_group_t group, bcm_field_qset_t *qset);
int bcm_field_group_enable_set(int unit, bcm_field_group_t group, int enable);
int bcm_field_group_enable_get(int unit, bcm_field_group_t group, int *enable);
int bcm_field_group_remove(int unit, bcm_field_group_t group);
int bcm_field_group_destroy(int unit, bcm_field_group_t group);
int bcm_field_group_traverse(int unit, bcm_field_group_traverse_cb callback, void *user_data);
void bcm_field_aset_t_init(bcm_field_aset_t *aset);
int bcm_field_group_action_set(int unit, bcm_field_group_t group, bcm_field_aset_t aset);
int bcm_field_group_action_get(int unit, bcm_field_group_t group, bcm_field_aset_t *aset);
int bcm_field_group_action_set_with_dbidx(int unit, bcm_field_group_t group, int dbidx,
                                          bcm_field_aset_t aset);
int bcm_field_group_compress(int unit, bcm_field_group_t group);
void bcm_field_group_config_t_init(bcm_field_group_config_t *group_config);
int bcm_field_group_config_create(int unit, bcm_field_group_config_t *group_config);
int bcm_field_group_config_create_with_dbidx(int unit, bcm_field_group_config_t *group_config,
                                             int dbidx);
int bcm_field_group_config_validate(int unit, bcm_field_group_config_t *group_config,
                                    bcm_field_group_mode_t *mode);
int bcm_field_group_create_mode(int unit, bcm_field_qset_t qset, int pri,
                                bcm_field_group_mode_t mode, bcm_field_group_t *group);
int bcm_field_group_create_mode_id(int unit, bcm_field_qset_t qset, int pri,
                                   bcm_field_group_mode_t mode, bcm_field_group_t group);
int bcm_field_group_default_entry_set(int unit, bcm_field_group_t group, bcm_field_entry_t entry,
                                      int enable);
int bcm_field_group_default_entry_get(int unit, bcm_field_group_t group, bcm_field_entry_t *entry);
int bcm_field_group_dump(int unit, bcm_field_group_t group);
int bcm_field_group_expansion_enable_set(int unit, bcm_field_group_t group, int enable);
int bcm_field_group_expansion_enable_get(int unit, bcm_field_group_t group, int *enable);
int bcm_field_group_flush(int unit, bcm_field_group_t group);
int bcm_field_group_mode_get(int unit, bcm_field_group_t group, bcm_field_group_mode_t *mode);
int bcm_field_group_oper_mode_set(int unit, bcm_field_qualify_t qual,
                                  bcm_field_group_oper_mode_t mode);
int bcm_field_group_oper_mode_get(int unit, bcm_field_qualify_t qual,
                                  bcm_field_group_oper_mode_t *mode);
int bcm_field_group_port_create_mode(int unit, bcm_port_t port, bcm_field_qset_t qset, int pri,
                                     bcm_field_group_mode_t mode, bcm_field_group_t *group);
int bcm_field_group_port_create_mode_id(int unit, bcm_port_t port, bcm_field_qset_t qset, int pri,
                                        bcm_field_group_mode_t mode, bcm_field_group_t group);
int bcm_field_group_ports_add(int unit, bcm_field_group_t group, bcm_pbmp_t pbmp);
int bcm_field_group_ports_get(int unit, bcm_field_group_t group, bcm_pbmp_t *pbmp);
int bcm_field_group_ports_remove(int unit, bcm_field_group_t group, bcm_pbmp_t pbmp);
int bcm_field_group_ports_create_mode(int unit, bcm_pbmp_t pbmp, bcm_field_qset_t qset, int pri,
                                      bcm_field_group_mode_t mode, bcm_field_group_t *group);
int bcm_field_group_ports_create_mode_id(int unit, bcm_pbmp_t pbmp, bcm_field_qset_t qset, int pri,
                                         bcm_field_group_mode_t mode, bcm_field_group_t group);
void bcm_field_presel_set_t_init(bcm_field_presel_set_t *presel);
int bcm_field_group_presel_set(int unit, bcm_field_group_t group, bcm_field_presel_set_t *presel);
int bcm_field_group_presel_get(int unit, bcm_field_group_t group, bcm_field_presel_set_t *presel);
int bcm_field_group_priority_set(int unit, bcm_field_group_t group, int priority);
int bcm_field_group_priority_get(int unit, bcm_field_group_t group, int *priority);
void bcm_field_group_status_t_init(bcm_field_group_status_t *status);
int bcm_field_group_status_get(int unit, bcm_field_group_t group, bcm_field_group_status_t *status);
int bcm_field_group_wlan_create_mode(int unit, bcm_field_qset_t qset, int pri,
                                     bcm_field_group_mode_t mode, bcm_field_group_t *group);
int bcm_field_group_wlan_create_mode_id(int unit, bcm_field_qset_t qset, int pri,
                                        bcm_field_group_mode_t mode, bcm_field_group_t group);

/* Entries */
int bcm_field_entry_create(int unit, bcm_field_group_t group, bcm_field_entry_t *entry);
int bcm_field_entry_create_id(int unit, bcm_field_group_t group, bcm_field_entry_t entry);
int bcm_field_entry_install(int unit, bcm_field_entry_t entry);
int bcm_field_entry_reinstall(int unit, bcm_field_entry_t entry);
int bcm_field_entry_multi_get(int unit, bcm_field_group_t group, int entry_size,
                              bcm_field_entry_t *entry_array, int *entry_count);
int bcm_field_entry_enable_set(int unit, bcm_field_entry_t entry, int enable);
int bcm_field_entry_enable_get(int unit, bcm_field_entry_t entry, int *enable);
int bcm_field_entry_remove(int unit, bcm_field_entry_t entry);
int bcm_field_entry_destroy(int unit, bcm_field_entry_t entry);
int bcm_field_entry_destroy_all(int unit);
int bcm_field_entry_copy(int unit, bcm_field_entry_t src_entry, bcm_field_entry_t *dst_entry);
int bcm_field_entry_copy_id(int unit, bcm_field_entry_t src_entry, bcm_field_entry_t dst_entry);
int bcm_field_entry_dump(int unit, bcm_field_entry_t entry);
void bcm_field_entry_oper_t_init(bcm_field_entry_oper_t *entry_oper);
int bcm_field_entry_operation(int unit, bcm_field_entry_oper_t *entry_oper);
int bcm_field_entry_policer_attach(int unit, bcm_field_entry_t entry_id, int level,
                                   bcm_policer_t policer_id);
int bcm_field_entry_policer_get(int unit, bcm_field_entry_t entry_id, int level,
                                bcm_policer_t *policer_id);
int bcm_field_entry_policer_detach(int unit, bcm_field_entry_t entry_id, int level);
int bcm_field_entry_policer_detach_all(int unit, bcm_field_entry_t entry_id);
int bcm_field_entry_prio_set(int unit, bcm_field_entry_t entry, int prio);
int bcm_field_entry_prio_get(int unit, bcm_field_entry_t entry, int *prio);
int bcm_field_entry_stat_attach(int unit, bcm_field_entry_t entry, int stat_id);
int bcm_field_entry_stat_get(int unit, bcm_field_entry_t entry, int *stat_id);
int bcm_field_entry_stat_detach(int unit, bcm_field_entry_t entry, int stat_id);
int bcm_field_entry_stat_extended_attach(int unit, bcm_field_entry_t entry, int stat_id,
                                         bcm_field_stat_action_t action);
int bcm_field_entry_stat_extended_get(int unit, bcm_field_entry_t entry, int *stat_id,
                                      bcm_field_stat_action_t *action);
int bcm_field_qualifier_delete(int unit, bcm_field_entry_t entry, bcm_field_qualify_t qual);

/* Actions */
int bcm_field_action_add(int unit, bcm_field_entry_t entry, bcm_field_action_t action,
                         uint32 param0, uint32 param1);
int bcm_field_action_get(int unit, bcm_field_entry_t entry, bcm_field_action_t action,
                         uint32 *param0, uint32 *param1);
int bcm_field_action_remove(int unit, bcm_field_entry_t entry, bcm_field_action_t action);
int bcm_field_action_delete(int unit, bcm_field_entry_t entry, bcm_field_action_t action,
                            uint32 param0, uint32 param1);
int bcm_field_action_remove_all(int unit, bcm_field_entry_t entry);
void bcm_field_class_info_t_init(bcm_field_class_info_t *class_info);
int bcm_field_action_class_add(int unit, bcm_field_entry_t entry,
                               bcm_field_class_info_t *class_info);
int bcm_field_action_class_get(int unit, bcm_field_entry_t entry,
                               bcm_field_class_info_t *class_info);
int bcm_field_action_config_add(int unit, bcm_field_entry_t entry, bcm_field_action_t action,
                                int core_count, bcm_field_action_core_config_t *core_config);
void bcm_field_copytocpu_config_t_init(bcm_field_CopyToCpu_config_t *config);
int bcm_field_action_copytocpu_config_set(int unit, bcm_field_entry_t entry,
                                          bcm_field_CopyToCpu_config_t config);
int bcm_field_action_copytocpu_config_get(int unit, bcm_field_entry_t entry,
                                          bcm_field_CopyToCpu_config_t *config);
int bcm_field_action_mac_add(int unit, bcm_field_entry_t entry, bcm_field_action_t action,
                             bcm_mac_t mac);
int bcm_field_action_mac_get(int unit, bcm_field_entry_t entry, bcm_field_action_t action,
                             bcm_mac_t *mac);
int bcm_field_action_ports_add(int unit, bcm_field_entry_t entry, bcm_field_action_t action,
                               bcm_pbmp_t pbmp);
int bcm_field_action_ports_get(int unit, bcm_field_entry_t entry, bcm_field_action_t action,
                               bcm_pbmp_t *pbmp);
void bcm_field_redirect_config_t_init(bcm_field_redirect_config_t *config);
int bcm_field_action_redirect_config_set(int unit, bcm_field_entry_t entry,
                                         bcm_field_redirect_config_t config);
int bcm_field_action_redirect_config_get(int unit, bcm_field_entry_t entry,
                                         bcm_field_redirect_config_t *config);
int bcm_field_action_width_set(int unit, uint32 flags, int internal_action, uint32 width);
int bcm_field_action_width_get(int unit, uint32 flags, int internal_action, uint32 *width);
void bcm_field_extraction_action_t_init(bcm_field_extraction_action_t *extraction_action);
void bcm_field_extraction_field_t_init(bcm_field_extraction_field_t *extraction_field);
int bcm_field_direct_extraction_action_add(int unit, bcm_field_entry_t entry,
                                           bcm_field_extraction_action_t action, int count,
                                           bcm_field_extraction_field_t *extractions);
int bcm_field_direct_extraction_action_get(int unit, bcm_field_entry_t entry,
                                           bcm_field_extraction_action_t *action, int max,
                                           bcm_field_extraction_field_t *extractions, int *count);

/* Ranges */
int bcm_field_range_create(int unit, bcm_field_range_t *range, uint32 flags, bcm_l4_port_t min,
                           bcm_l4_port_t max);
int bcm_field_range_create_id(int unit, bcm_field_range_t range, uint32 flags, bcm_l4_port_t min,
                              bcm_l4_port_t max);
int bcm_field_range_get(int unit, bcm_field_range_t range, uint32 *flags, bcm_l4_port_t *min,
                        bcm_l4_port_t *max);
int bcm_field_range_multi_get(int unit, bcm_field_range_t range_id, int max_count,
                              uint32 *range_flags, uint32 *min_value, uint32 *max_value,
                              int *count);
int bcm_field_range_destroy(int unit, bcm_field_range_t range);
int bcm_field_range_group_create(int unit, bcm_field_range_t *range, uint32 flags,
                                 bcm_l4_port_t min, bcm_l4_port_t max, bcm_if_group_t if_group);
int bcm_field_range_group_create_id(int unit, bcm_field_range_t range, uint32 flags,
                                    bcm_l4_port_t min, bcm_l4_port_t max, bcm_if_group_t if_group);
int bcm_field_range_multi_create(int unit, bcm_field_range_t *range_id, uint32 create_flags,
                                 int count, uint32 *range_flags, uint32 *min_value,
                                 uint32 *max_value);

/* Data qualifiers */
void bcm_field_data_qualifier_t_init(bcm_field_data_qualifier_t *data_qualifier);
int bcm_field_data_qualifier_create(int unit, bcm_field_data_qualifier_t *data_qualifier);
int bcm_field_data_qualifier_get(int unit, int qual_id, bcm_field_data_qualifier_t *data_qualifier);
int bcm_field_data_qualifier_multi_get(int unit, int qual_max, int *qual_array, int *qual_count);
int bcm_field_data_qualifier_destroy(int unit, int qual_id);
int bcm_field_data_qualifier_destroy_all(int unit);
void bcm_field_data_ethertype_t_init(bcm_field_data_ethertype_t *etype);
int bcm_field_data_qualifier_ethertype_add(int unit, int qual_id,
                                           bcm_field_data_ethertype_t *etype);
int bcm_field_data_qualifier_ethertype_delete(int unit, int qual_id,
                                              bcm_field_data_ethertype_t *etype);
void bcm_field_data_ip_protocol_t_init(bcm_field_data_ip_protocol_t *ip_protocol);
int bcm_field_data_qualifier_ip_protocol_add(int unit, int qual_id,
                                             bcm_field_data_ip_protocol_t *ip_protocol);
int bcm_field_data_qualifier_ip_protocol_delete(int unit, int qual_id,
                                                bcm_field_data_ip_protocol_t *ip_protocol);
void bcm_field_data_packet_format_t_init(bcm_field_data_packet_format_t *packet_format);
int bcm_field_data_qualifier_packet_format_add(int unit, int qual_id,
                                               bcm_field_data_packet_format_t *packet_format);
int bcm_field_data_qualifier_packet_format_delete(int unit, int qual_id,
                                                  bcm_field_data_packet_format_t *packet_format);
void bcm_field_udf_spec_t_init(bcm_field_udf_spec_t *udf_spec);

/* Statistics */
int bcm_field_stat_create(int unit, bcm_field_group_t group, int nstat, bcm_field_stat_t *stat_arr,
                          int *stat_id);
int bcm_field_stat_create_id(int unit, bcm_field_group_t group, int nstat,
                             bcm_field_stat_t *stat_arr, int stat_id);
int bcm_field_stat_attach(int unit, bcm_field_group_t group, uint32 mode_id, uint32 *stat_id);
int bcm_field_stat_set(int unit, int stat_id, bcm_field_stat_t stat, uint64 value);
int bcm_field_stat_get(int unit, int stat_id, bcm_field_stat_t stat, uint64 *value);
int bcm_field_stat_set32(int unit, int stat_id, bcm_field_stat_t stat, uint32 value);
int bcm_field_stat_get32(int unit, int stat_id, bcm_field_stat_t stat, uint32 *value);
int bcm_field_stat_sync_get(int unit, int stat_id, bcm_field_stat_t stat, uint64 *value);
int bcm_field_stat_sync_get32(int unit, int stat_id, bcm_field_stat_t stat, uint32 *value);
int bcm_field_stat_multi_get(int unit, int stat_id, int nstat, bcm_field_stat_t *stat_arr,
                             uint64 *value_arr);
int bcm_field_stat_multi_get32(int unit, int stat_id, int nstat, bcm_field_stat_t *stat_arr,
                               uint32 *value_arr);
int bcm_field_stat_id_get(int unit, bcm_field_group_t group, uint32 mode_id, uint32 *stat_id);
int bcm_field_stat_counter_set(int unit, uint32 stat_id, bcm_field_stat_t stat, uint32 num_entries,
                               uint32 *counter_indexes, bcm_stat_value_t *counter_values);
int bcm_field_stat_counter_get(int unit, uint32 stat_id, bcm_field_stat_t stat, uint32 num_entries,
                               uint32 *counter_indexes, bcm_stat_value_t *counter_values);
int bcm_field_stat_counter_sync_get(int unit, uint32 stat_id, bcm_field_stat_t stat,
                                    uint32 num_entries, uint32 *counter_indexes,
                                    bcm_stat_value_t *counter_values);
int bcm_field_stat_detach(int unit, uint32 stat_id);
int bcm_field_stat_destroy(int unit, int stat_id);
int bcm_field_stat_all_set(int unit, int stat_id, uint64 value);
int bcm_field_stat_all_set32(int unit, int stat_id, uint32 value);
int bcm_field_stat_config_get(int unit, int stat_id, int nstat, bcm_field_stat_t *stat_arr);
int bcm_field_stat_size(int unit, int stat_id, int *stat_size);
void bcm_field_oam_stat_action_t_init(bcm_field_oam_stat_action_t *oam_stat_action);
int bcm_field_oam_stat_action_add(int unit, bcm_field_entry_t entry,
                                  bcm_field_oam_stat_action_t *oam_stat_action);
int bcm_field_oam_stat_action_get(int unit, bcm_field_entry_t entry,
                                  bcm_field_oam_stat_action_t *oam_stat_action);
int bcm_field_oam_stat_action_get_all(int unit, bcm_field_entry_t entry, int action_max,
                                      bcm_field_oam_stat_action_t *action_array, int *action_count);
int bcm_field_oam_stat_action_delete(int unit, bcm_field_entry_t entry,
                                     bcm_field_oam_stat_action_t *oam_stat_action);
int bcm_field_oam_stat_action_delete_all(int unit, bcm_field_entry_t entry);

/* Preselection */
int bcm_field_presel_create(int unit, bcm_field_presel_t *presel_id);
int bcm_field_presel_create_id(int unit, bcm_field_presel_t presel_id);
int bcm_field_presel_destroy(int unit, bcm_field_presel_t presel_id);
void bcm_field_presel_config_t_init(bcm_field_presel_config_t *presel_config);
int bcm_field_presel_config_set(int unit, bcm_field_presel_t presel_id,
                                bcm_field_presel_config_t *presel_config);
int bcm_field_presel_config_get(int unit, bcm_field_presel_t presel_id,
                                bcm_field_presel_config_t *presel_config);
int bcm_field_presel_create_stage_id(int unit, bcm_field_stage_t stage,
                                     bcm_field_presel_t presel_id);

/* Hints */
void bcm_field_hint_t_init(bcm_field_hint_t *hint);
int bcm_field_hints_create(int unit, bcm_field_hintid_t *hint_id);
int bcm_field_hints_add(int unit, bcm_field_hintid_t hint_id, bcm_field_hint_t *hint);
int bcm_field_hints_get(int unit, bcm_field_hintid_t hint_id, bcm_field_hint_t *hint);
int bcm_field_hints_delete(int unit, bcm_field_hintid_t hint_id, bcm_field_hint_t *hint);
int bcm_field_hints_destroy(int unit, bcm_field_hintid_t hint_id);
int bcm_field_hints_delete_all(int unit, bcm_field_hintid_t hint_id);

/* Classes and sources */
int bcm_field_class_map_set(int unit, bcm_field_stage_t stage, bcm_field_qualify_t qual,
                            uint32 num_entries, uint32 *orig_values_array,
                            uint32 *map_values_array);
int bcm_field_class_map_get(int unit, bcm_field_stage_t stage, bcm_field_qualify_t qual,
                            uint32 num_entries, uint32 *orig_values_array,
                            uint32 *map_values_array);
int bcm_field_class_size_get(int unit, bcm_field_qualify_t qual, uint16 *class_size);
void bcm_field_llc_header_t_init(bcm_field_llc_header_t *llc_header);
int bcm_field_sat_macsa_add(int unit, bcm_mac_t mac, uint32 class_id);
int bcm_field_sat_macsa_get(int unit, bcm_mac_t mac, uint32 *class_id);
int bcm_field_sat_macsa_delete(int unit, bcm_mac_t mac);
int bcm_field_sat_macsa_delete_all(int unit);
void bcm_field_snap_header_t_init(bcm_field_snap_header_t *snap_header);
int bcm_field_source_class_mode_set(int unit, bcm_field_stage_t stage, bcm_pbmp_t pbmp,
                                    bcm_field_src_class_mode_t mode);
int bcm_field_source_class_mode_get(int unit, bcm_field_stage_t stage, bcm_pbmp_t pbmp,
                                    bcm_field_src_class_mode_t *mode);
void bcm_field_src_class_t_init(bcm_field_src_class_t *src_class);

OMBRA_END_DECLS
