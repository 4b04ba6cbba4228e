/* Switch: controls of a whole unit, events, matches, hashing, monitoring and sensors. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/bcm/field_types.h"
#include "sdk/bcm/switch_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* Controls */
int bcm_switch_control_set(int unit, bcm_switch_control_t type, int arg);
int bcm_switch_control_get(int unit, bcm_switch_control_t type, int *arg);
int bcm_switch_control_indexed_set(int unit, bcm_switch_control_key_t key,
                                   bcm_switch_control_info_t value);
int bcm_switch_control_indexed_get(int unit, bcm_switch_control_key_t key,
                                   bcm_switch_control_info_t *value);
int bcm_switch_control_port_set(int unit, bcm_port_t port, bcm_switch_control_t type, int arg);
int bcm_switch_control_port_get(int unit, bcm_port_t port, bcm_switch_control_t type, int *arg);

/* Events */
int bcm_switch_event_register(int unit, bcm_switch_event_cb_t cb, void *userdata);
int bcm_switch_event_unregister(int unit, bcm_switch_event_cb_t cb, void *userdata);
int bcm_switch_event_control_set(int unit, bcm_switch_event_t event,
                                 bcm_switch_event_control_t control, uint32 value);
int bcm_switch_event_control_get(int unit, bcm_switch_event_t event,
                                 bcm_switch_event_control_t control, uint32 *value);

/* Hash entries and banks */
int bcm_switch_hash_banks_config_set(int unit, bcm_switch_hash_table_t table, uint32 bank,
                                     int hash_type, uint32 offset);
int bcm_switch_hash_banks_config_get(int unit, bcm_switch_hash_table_t table, uint32 bank,
                                     int *hash_type, uint32 *offset);
int bcm_switch_hash_banks_max_get(int unit, bcm_switch_hash_table_t table, uint32 *bank_max);
void bcm_switch_hash_entry_config_t_init(bcm_switch_hash_entry_config_t *config);
int bcm_switch_hash_entry_create(int unit, bcm_field_group_t group, bcm_hash_entry_t *entry);
int bcm_switch_hash_entry_install(int unit, bcm_hash_entry_t entry, uint32 offset);
int bcm_switch_hash_entry_reinstall(int unit, bcm_hash_entry_t entry, uint32 offset);
int bcm_switch_hash_entry_set(int unit, bcm_hash_entry_t entry,
                              bcm_switch_hash_entry_config_t *config);
int bcm_switch_hash_entry_get(int unit, bcm_hash_entry_t entry,
                              bcm_switch_hash_entry_config_t *config);
int bcm_switch_hash_entry_remove(int unit, bcm_hash_entry_t entry);
int bcm_switch_hash_entry_destroy(int unit, bcm_hash_entry_t entry);
int bcm_switch_hash_entry_traverse(int unit, int flags, bcm_switch_hash_entry_traverse_cb cb,
                                   void *userdata);
int bcm_switch_hash_entry_create_qset(int unit, bcm_field_qset_t qset, bcm_hash_entry_t *entry);
int bcm_switch_hash_qualify_data(int unit, bcm_hash_entry_t entry, int qual_id, uint32 data,
                                 uint32 mask);
int bcm_switch_hash_qualify_udf(int unit, bcm_hash_entry_t entry, bcm_udf_id_t udf_id, int length,
                                uint8 *data, uint8 *mask);
int bcm_switch_hash_qualify_udf_get(int unit, bcm_hash_entry_t entry, bcm_udf_id_t udf_id,
                                    int max_length, uint8 *data, uint8 *mask, int *actual_length);

/* Encapsulations and matches */
void bcm_switch_encap_info_t_init(bcm_switch_encap_info_t *info);
int bcm_switch_encap_create(int unit, bcm_switch_encap_info_t *info, bcm_if_t *encap_id);
int bcm_switch_encap_set(int unit, bcm_if_t encap_id, bcm_switch_encap_info_t *info);
int bcm_switch_encap_get(int unit, bcm_if_t encap_id, bcm_switch_encap_info_t *info);
int bcm_switch_encap_destroy(int unit, bcm_if_t encap_id);
int bcm_switch_encap_destroy_all(int unit);
int bcm_switch_encap_traverse(int unit, bcm_switch_encap_traverse_cb cb, void *userdata);
void bcm_switch_match_config_info_t_init(bcm_switch_match_config_info_t *info);
int bcm_switch_match_config_add(int unit, bcm_switch_match_service_t service,
                                bcm_switch_match_config_info_t *info, int *match_id);
int bcm_switch_match_config_set(int unit, bcm_switch_match_service_t service, int match_id,
                                bcm_switch_match_config_info_t *info);
int bcm_switch_match_config_get(int unit, bcm_switch_match_service_t service, int match_id,
                                bcm_switch_match_config_info_t *info);
int bcm_switch_match_config_delete(int unit, bcm_switch_match_service_t service, int match_id);
int bcm_switch_match_config_delete_all(int unit, bcm_switch_match_service_t service);
int bcm_switch_match_config_traverse(int unit, bcm_switch_match_service_t service,
                                     bcm_switch_match_config_traverse_cb cb, void *userdata);
void bcm_switch_match_control_info_t_init(bcm_switch_match_control_info_t *info);
int bcm_switch_match_control_set(int unit, bcm_switch_match_service_t service,
                                 bcm_switch_match_control_type_t type, bcm_gport_t gport,
                                 bcm_switch_match_control_info_t *info);
int bcm_switch_match_control_get(int unit, bcm_switch_match_service_t service,
                                 bcm_switch_match_control_type_t type, bcm_gport_t gport,
                                 bcm_switch_match_control_info_t *info);
int bcm_switch_match_control_traverse(int unit, bcm_switch_match_service_t service,
                                      bcm_switch_match_control_traverse_cb cb, void *userdata);

/* Aggregate group monitoring */
void bcm_switch_agm_info_t_init(bcm_switch_agm_info_t *agm_info);
int bcm_switch_agm_create(int unit, uint32 flags, bcm_switch_agm_info_t *agm_info);
int bcm_switch_agm_get(int unit, bcm_switch_agm_info_t *agm_info);
int bcm_switch_agm_enable_set(int unit, bcm_switch_agm_id_t agm_id, int enable);
int bcm_switch_agm_enable_get(int unit, bcm_switch_agm_id_t agm_id, int *enable);
int bcm_switch_agm_destroy(int unit, bcm_switch_agm_id_t agm_id);
int bcm_switch_agm_traverse(int unit, int flags, bcm_switch_agm_traverse_cb cb, void *userdata);
int bcm_switch_agm_l3_ecmp_attach_get(int unit, bcm_switch_agm_id_t agm_id,
                                      bcm_if_t *ecmp_group_id);
void bcm_switch_agm_stat_t_init(bcm_switch_agm_stat_t *agm_stat);
int bcm_switch_agm_stat_get(int unit, bcm_switch_agm_id_t agm_id, int array_size,
                            bcm_switch_agm_stat_t *stat_array);
int bcm_switch_agm_stat_clear(int unit, bcm_switch_agm_id_t agm_id);
int bcm_switch_agm_trunk_attach_get(int unit, bcm_switch_agm_id_t agm_id, bcm_trunk_t *tid);

/* TPIDs */
int bcm_switch_tpid_add(int unit, uint32 flags, bcm_switch_tpid_info_t *tpid_info);
int bcm_switch_tpid_get(int unit, bcm_switch_tpid_info_t *tpid_info);
int bcm_switch_tpid_get_all(int unit, int tpid_max, bcm_switch_tpid_info_t *tpid_array,
                            int *tpid_count);
int bcm_switch_tpid_delete(int unit, bcm_switch_tpid_info_t *tpid_info);
int bcm_switch_tpid_delete_all(int unit);
void bcm_switch_tpid_class_t_init(bcm_switch_tpid_class_t *tpid_class);
int bcm_switch_tpid_class_get(int unit, bcm_switch_tpid_class_t *tpid_class);

/* OLP addresses */
void bcm_switch_olp_l2_addr_t_init(bcm_switch_olp_l2_addr_t *olp_l2_addr);
int bcm_switch_olp_l2_addr_add(int unit, uint32 flags, bcm_switch_olp_l2_addr_t *olp_l2_addr);
int bcm_switch_olp_l2_addr_get(int unit, bcm_switch_olp_l2_addr_t *olp_l2_addr);
int bcm_switch_olp_l2_addr_delete(int unit, bcm_switch_olp_l2_addr_t *olp_l2_addr);
int bcm_switch_olp_l2_addr_delete_all(int unit);
int bcm_switch_olp_l2_addr_traverse(int unit, bcm_switch_olp_l2_addr_traverse_cb cb,
                                    void *userdata);

/* Services, LIF properties and network groups */
void bcm_switch_service_config_t_init(bcm_switch_service_config_t *config);
int bcm_switch_service_set(int unit, bcm_switch_service_t service,
                           bcm_switch_service_config_t *config);
int bcm_switch_service_get(int unit, bcm_switch_service_t service,
                           bcm_switch_service_config_t *config);
int bcm_switch_lif_property_set(int unit, bcm_switch_lif_property_t property,
                                bcm_switch_lif_property_config_t *config);
int bcm_switch_lif_property_get(int unit, bcm_switch_lif_property_t property,
                                bcm_switch_lif_property_config_t *config);
void bcm_switch_network_group_config_t_init(bcm_switch_network_group_config_t *config);
int bcm_switch_network_group_config_set(int unit, bcm_switch_network_group_t group,
                                        bcm_switch_network_group_config_t *config);
int bcm_switch_network_group_config_get(int unit, bcm_switch_network_group_t group,
                                        bcm_switch_network_group_config_t *config);
int bcm_switch_l3_protocol_group_set(int unit, uint32 l3_protocols,
                                     bcm_l3_protocol_group_id_t group_id);
int bcm_switch_l3_protocol_group_get(int unit, uint32 *l3_protocols,
                                     bcm_l3_protocol_group_id_t *group_id);
void bcm_switch_profile_mapping_t_init(bcm_switch_profile_mapping_t *mapping);

/* Objects and packets */
int bcm_switch_object_count_get(int unit, bcm_switch_object_t object, int *entries);
int bcm_switch_object_count_multi_get(int unit, int object_size, bcm_switch_object_t *object_array,
                                      int *entries);
void bcm_switch_pkt_info_t_init(bcm_switch_pkt_info_t *pkt_info);
int bcm_switch_pkt_info_hash_get(int unit, bcm_switch_pkt_info_t *pkt_info, bcm_gport_t *dst_gport,
                                 bcm_if_t *dst_intf);
int bcm_switch_pkt_trace_info_get(int unit, uint32 flags, uint8 dest_pipe_num, int len, uint8 *data,
                                  bcm_switch_pkt_trace_info_t *trace_info);
int bcm_switch_ipv6_reserved_multicast_addr_set(int unit, unsigned char ip6[16],
                                                unsigned char mask[16]);
int bcm_switch_ipv6_reserved_multicast_addr_get(int unit, bcm_ip6_t *ip6, bcm_ip6_t *mask);
int bcm_switch_rcpu_decap_priority_map_set(int unit, int cos, int priority);
int bcm_switch_rcpu_decap_priority_map_get(int unit, int cos, int *priority);
int bcm_switch_rcpu_encap_priority_map_set(int unit, uint32 flags, int internal_cpu_pri,
                                           int encap_pri);
int bcm_switch_rcpu_encap_priority_map_get(int unit, uint32 flags, int internal_cpu_pri,
                                           int *encap_pri);

/* Sensors, memory and storage */
int bcm_switch_thermo_sensor_read(int unit, bcm_switch_thermo_sensor_type_t type, int sensor_id,
                                  bcm_switch_thermo_sensor_t *sensor);
int bcm_switch_temperature_monitor_get(int unit, int temperature_max,
                                       bcm_switch_temperature_monitor_t *temperature_array,
                                       int *temperature_count);
int bcm_switch_dram_vendor_info_get(int unit, bcm_switch_dram_vendor_info_t *info);
int bcm_switch_rov_get(int unit, uint32 flags, uint32 *value);
int bcm_switch_user_buffer_read(int unit, uint32 flags, bcm_switch_user_buffer_type_t type,
                                uint8 *data, int offset, int nbytes);
int bcm_switch_user_buffer_write(int unit, uint32 flags, bcm_switch_user_buffer_type_t type,
                                 uint8 *data, int offset, int nbytes);
int bcm_switch_stable_register(int unit, bcm_switch_read_func_t rf, bcm_switch_write_func_t wf);

OMBRA_END_DECLS
