/* L3: interfaces, egress objects, multipath groups, hosts and routes, each with its counters. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/l3_types.h"
#include "sdk/bcm/stat_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* Module */
int bcm_l3_init(int unit);
int bcm_l3_cleanup(int unit);
int bcm_l3_enable_set(int unit, int enable);
void bcm_l3_info_t_init(bcm_l3_info_t *info);
int bcm_l3_info(int unit, bcm_l3_info_t *info);

/* Interfaces */
void bcm_l3_intf_t_init(bcm_l3_intf_t *intf);
int bcm_l3_intf_create(int unit, bcm_l3_intf_t *intf);
int bcm_l3_intf_get(int unit, bcm_l3_intf_t *intf);
int bcm_l3_intf_find(int unit, bcm_l3_intf_t *intf);
int bcm_l3_intf_delete(int unit, bcm_l3_intf_t *intf);
int bcm_l3_intf_delete_all(int unit);
int bcm_l3_intf_find_vlan(int unit, bcm_l3_intf_t *intf);

/* Egress objects */
void bcm_l3_egress_t_init(bcm_l3_egress_t *egr);
int bcm_l3_egress_create(int unit, uint32 flags, bcm_l3_egress_t *egr, bcm_if_t *if_id);
int bcm_l3_egress_get(int unit, bcm_if_t if_id, bcm_l3_egress_t *egr);
int bcm_l3_egress_find(int unit, bcm_l3_egress_t *egr, bcm_if_t *if_id);
int bcm_l3_egress_destroy(int unit, bcm_if_t if_id);
int bcm_l3_egress_traverse(int unit, bcm_l3_egress_traverse_cb trav_fn, void *user_data);
void bcm_l3_egress_multi_info_t_init(bcm_l3_egress_multi_info_t *info);
int bcm_l3_egress_multi_alloc(int unit, bcm_l3_egress_multi_info_t info, bcm_if_t *base_if_id);
int bcm_l3_egress_multi_free(int unit, bcm_if_t if_id);

/* Multipath groups */
int bcm_l3_egress_multipath_create(int unit, uint32 flags, int intf_count, bcm_if_t *intf_array,
                                   bcm_if_t *mpintf);
int bcm_l3_egress_multipath_add(int unit, bcm_if_t mpintf, bcm_if_t if_id);
int bcm_l3_egress_multipath_get(int unit, bcm_if_t mpintf, int intf_max, bcm_if_t *intf_array,
                                int *intf_count);
int bcm_l3_egress_multipath_find(int unit, int intf_count, bcm_if_t *intf_array, bcm_if_t *mpintf);
int bcm_l3_egress_multipath_delete(int unit, bcm_if_t mpintf, bcm_if_t if_id);
int bcm_l3_egress_multipath_destroy(int unit, bcm_if_t mpintf);
int bcm_l3_egress_multipath_traverse(int unit, bcm_l3_egress_multipath_traverse_cb trav_fn,
                                     void *user_data);
int bcm_l3_egress_multipath_max_create(int unit, uint32 flags, int max_paths, int intf_count,
                                       bcm_if_t *intf_array, bcm_if_t *mpintf);

/* ECMP groups */
void bcm_l3_ecmp_member_t_init(bcm_l3_ecmp_member_t *ecmp_member);
void bcm_l3_egress_ecmp_t_init(bcm_l3_egress_ecmp_t *ecmp);
int bcm_l3_ecmp_create(int unit, uint32 flags, bcm_l3_egress_ecmp_t *ecmp_info, int member_count,
                       bcm_l3_ecmp_member_t *member_array);
int bcm_l3_ecmp_get(int unit, bcm_l3_egress_ecmp_t *ecmp_info, int member_max,
                    bcm_l3_ecmp_member_t *member_array, int *member_count);
int bcm_l3_ecmp_find(int unit, int member_count, bcm_l3_ecmp_member_t *member_array,
                     bcm_l3_egress_ecmp_t *ecmp_info);
int bcm_l3_ecmp_destroy(int unit, bcm_if_t ecmp_group_id);
int bcm_l3_ecmp_traverse(int unit, bcm_l3_ecmp_traverse_cb trav_fn, void *user_data);
int bcm_l3_ecmp_agm_attach(int unit, bcm_if_t ecmp_group_id, bcm_switch_agm_id_t agm_id);
int bcm_l3_ecmp_agm_detach(int unit, bcm_if_t ecmp_group_id, bcm_switch_agm_id_t agm_id);
int bcm_l3_ecmp_agm_attach_get(int unit, bcm_if_t ecmp_group_id, bcm_switch_agm_id_t *agm_id);
int bcm_l3_ecmp_member_add(int unit, bcm_if_t ecmp_group_id, bcm_l3_ecmp_member_t *ecmp_member);
int bcm_l3_ecmp_member_delete(int unit, bcm_if_t ecmp_group_id, bcm_l3_ecmp_member_t *ecmp_member);
int bcm_l3_ecmp_member_delete_all(int unit, bcm_if_t ecmp_group_id);
int bcm_l3_egress_ecmp_create(int unit, bcm_l3_egress_ecmp_t *ecmp, int intf_count,
                              bcm_if_t *intf_array);
int bcm_l3_egress_ecmp_add(int unit, bcm_l3_egress_ecmp_t *ecmp, bcm_if_t if_id);
int bcm_l3_egress_ecmp_get(int unit, bcm_l3_egress_ecmp_t *ecmp, int intf_max, bcm_if_t *intf_array,
                           int *intf_count);
int bcm_l3_egress_ecmp_find(int unit, int intf_count, bcm_if_t *intf_array,
                            bcm_l3_egress_ecmp_t *ecmp);
int bcm_l3_egress_ecmp_delete(int unit, bcm_l3_egress_ecmp_t *ecmp, bcm_if_t if_id);
int bcm_l3_egress_ecmp_destroy(int unit, bcm_l3_egress_ecmp_t *ecmp);
int bcm_l3_egress_ecmp_traverse(int unit, bcm_l3_egress_ecmp_traverse_cb trav_fn, void *user_data);
int bcm_l3_egress_ecmp_ethertype_set(int unit, uint32 flags, int ethertype_count,
                                     int *ethertype_array);
int bcm_l3_egress_ecmp_ethertype_get(int unit, uint32 *flags, int ethertype_max,
                                     int *ethertype_array, int *ethertype_count);
int bcm_l3_egress_ecmp_member_status_set(int unit, bcm_if_t if_id, int status);
int bcm_l3_egress_ecmp_member_status_get(int unit, bcm_if_t if_id, int *status);
int bcm_l3_egress_ecmp_resilient_replace(int unit, uint32 flags,
                                         bcm_l3_egress_ecmp_resilient_entry_t *match_entry,
                                         int *num_entries,
                                         bcm_l3_egress_ecmp_resilient_entry_t *replace_entry);
int bcm_l3_egress_ecmp_resilient_traverse(int unit, uint32 flags,
                                          bcm_l3_egress_ecmp_resilient_entry_t *match_entry,
                                          bcm_l3_egress_ecmp_resilient_traverse_cb trav_fn,
                                          void *user_data);

/* Ingress objects */
void bcm_l3_ingress_t_init(bcm_l3_ingress_t *ing_intf);
int bcm_l3_ingress_create(int unit, bcm_l3_ingress_t *ing_intf, bcm_if_t *intf_id);
int bcm_l3_ingress_get(int unit, bcm_if_t intf_id, bcm_l3_ingress_t *ing_intf);
int bcm_l3_ingress_find(int unit, bcm_l3_ingress_t *ing_intf, bcm_if_t *intf_id);
int bcm_l3_ingress_destroy(int unit, bcm_if_t intf_id);
int bcm_l3_ingress_traverse(int unit, bcm_l3_ingress_traverse_cb trav_fn, void *user_data);

/* Hosts */
void bcm_l3_host_t_init(bcm_l3_host_t *info);
int bcm_l3_host_add(int unit, bcm_l3_host_t *info);
int bcm_l3_host_find(int unit, bcm_l3_host_t *info);
int bcm_l3_host_delete(int unit, bcm_l3_host_t *info);
int bcm_l3_host_delete_all(int unit, bcm_l3_host_t *info);
int bcm_l3_host_traverse(int unit, uint32 flags, uint32 start, uint32 end,
                         bcm_l3_host_traverse_cb trav_fn, void *user_data);
int bcm_l3_host_age(int unit, uint32 flags, bcm_l3_host_traverse_cb age_cb, void *user_data);
void bcm_l3_key_t_init(bcm_l3_key_t *key);
int bcm_l3_host_conflict_get(int unit, bcm_l3_key_t *key, bcm_l3_key_t *cf_array, int cf_max,
                             int *cf_count);
int bcm_l3_host_delete_by_interface(int unit, bcm_l3_host_t *info);
void bcm_l3_route_t_init(bcm_l3_route_t *info);
int bcm_l3_host_delete_by_network(int unit, bcm_l3_route_t *info);
int bcm_l3_host_invalidate_entry(int unit, bcm_ip_t ip);
int bcm_l3_host_validate_entry(int unit, bcm_ip_t ip);

/* Routes */
int bcm_l3_route_add(int unit, bcm_l3_route_t *info);
int bcm_l3_route_get(int unit, bcm_l3_route_t *info);
int bcm_l3_route_find(int unit, bcm_l3_host_t *host, bcm_l3_route_t *route);
int bcm_l3_route_delete(int unit, bcm_l3_route_t *info);
int bcm_l3_route_delete_all(int unit, bcm_l3_route_t *info);
int bcm_l3_route_traverse(int unit, uint32 flags, uint32 start, uint32 end,
                          bcm_l3_route_traverse_cb trav_fn, void *user_data);
int bcm_l3_route_age(int unit, uint32 flags, bcm_l3_route_traverse_cb age_cb, void *user_data);
int bcm_l3_route_delete_by_interface(int unit, bcm_l3_route_t *info);
int bcm_l3_route_max_ecmp_set(int unit, int max);
int bcm_l3_route_max_ecmp_get(int unit, int *max);
int bcm_l3_route_multipath_get(int unit, bcm_l3_route_t *info, bcm_l3_route_t *path_array,
                               int path_max, int *path_count);
int bcm_l3_subnet_route_find(int unit, bcm_l3_route_t *route, bcm_l3_route_t *subnet_route);
int bcm_l3_ip6_prefix_map_add(int unit, unsigned char ip6[16]);
int bcm_l3_ip6_prefix_map_get(int unit, int map_max, bcm_ip6_t *map_array, int *map_count);
int bcm_l3_ip6_prefix_map_delete(int unit, unsigned char ip6[16]);
int bcm_l3_ip6_prefix_map_delete_all(int unit);

/* Source bindings */
void bcm_l3_source_bind_t_init(bcm_l3_source_bind_t *info);
int bcm_l3_source_bind_add(int unit, bcm_l3_source_bind_t *info);
int bcm_l3_source_bind_get(int unit, bcm_l3_source_bind_t *info);
int bcm_l3_source_bind_enable_set(int unit, bcm_port_t port, int enable);
int bcm_l3_source_bind_enable_get(int unit, bcm_port_t port, int *enable);
int bcm_l3_source_bind_delete(int unit, bcm_l3_source_bind_t *info);
int bcm_l3_source_bind_delete_all(int unit);
int bcm_l3_source_bind_traverse(int unit, bcm_l3_source_bind_traverse_cb trav_fn, void *user_data);

/* VRRP */
int bcm_l3_vrrp_add(int unit, bcm_vlan_t vid, uint32 vrid);
int bcm_l3_vrrp_get(int unit, bcm_vlan_t vid, int vrid_max, int *vrid_array, int *vrid_count);
int bcm_l3_vrrp_delete(int unit, bcm_vlan_t vid, uint32 vrid);
int bcm_l3_vrrp_delete_all(int unit, bcm_vlan_t vid);
int bcm_l3_vrrp_config_add(int unit, uint32 flags, bcm_vlan_t vid, uint32 vrid);
int bcm_l3_vrrp_config_get(int unit, uint32 flags, bcm_vlan_t vid, uint32 vrid_max,
                           uint32 *vrid_array, uint32 *vrid_count);
int bcm_l3_vrrp_config_delete(int unit, uint32 flags, bcm_vlan_t vid, uint32 vrid);
int bcm_l3_vrrp_config_delete_all(int unit, uint32 flags, bcm_vlan_t vid);

/* IPv4 options */
int bcm_l3_ip4_options_action_set(int unit, int profile_id, int option,
                                  bcm_l3_ip4_options_action_t action);
int bcm_l3_ip4_options_action_get(int unit, int profile_id, int option,
                                  bcm_l3_ip4_options_action_t *action);
int bcm_l3_ip4_options_profile_create(int unit, uint32 flags,
                                      bcm_l3_ip4_options_action_t default_action, int *profile_id);
int bcm_l3_ip4_options_profile_destroy(int unit, int profile_id);

/* Counters of egress objects */
int bcm_l3_egress_stat_attach(int unit, bcm_if_t if_id, uint32 stat_counter_id);
int bcm_l3_egress_stat_set(int unit, bcm_l3_egress_t *egr, bcm_l3_stat_t stat, uint64 val);
int bcm_l3_egress_stat_get(int unit, bcm_l3_egress_t *egr, bcm_l3_stat_t stat, uint64 *val);
int bcm_l3_egress_stat_set32(int unit, bcm_l3_egress_t *egr, bcm_l3_stat_t stat, uint32 val);
int bcm_l3_egress_stat_get32(int unit, bcm_l3_egress_t *egr, bcm_l3_stat_t stat, uint32 *val);
int bcm_l3_egress_stat_id_get(int unit, bcm_if_t if_id, bcm_l3_stat_t stat,
                              uint32 *stat_counter_id);
int bcm_l3_egress_stat_counter_set(int unit, bcm_if_t if_id, bcm_l3_stat_t stat, uint32 num_entries,
                                   uint32 *counter_indexes, bcm_stat_value_t *counter_values);
int bcm_l3_egress_stat_counter_get(int unit, bcm_if_t if_id, bcm_l3_stat_t stat, uint32 num_entries,
                                   uint32 *counter_indexes, bcm_stat_value_t *counter_values);
int bcm_l3_egress_stat_counter_sync_get(int unit, bcm_if_t if_id, bcm_l3_stat_t stat,
                                        uint32 num_entries, uint32 *counter_indexes,
                                        bcm_stat_value_t *counter_values);
int bcm_l3_egress_stat_enable_set(int unit, bcm_l3_egress_t *egr, int enable);
int bcm_l3_egress_stat_detach(int unit, bcm_if_t if_id);

/* Counters of ingress objects */
int bcm_l3_ingress_stat_attach(int unit, bcm_if_t intf_id, uint32 stat_counter_id);
int bcm_l3_ingress_stat_id_get(int unit, bcm_if_t intf_id, bcm_l3_stat_t stat,
                               uint32 *stat_counter_id);
int bcm_l3_ingress_stat_counter_set(int unit, bcm_if_t intf_id, bcm_l3_stat_t stat,
                                    uint32 num_entries, uint32 *counter_indexes,
                                    bcm_stat_value_t *counter_values);
int bcm_l3_ingress_stat_counter_get(int unit, bcm_if_t intf_id, bcm_l3_stat_t stat,
                                    uint32 num_entries, uint32 *counter_indexes,
                                    bcm_stat_value_t *counter_values);
int bcm_l3_ingress_stat_counter_sync_get(int unit, bcm_if_t intf_id, bcm_l3_stat_t stat,
                                         uint32 num_entries, uint32 *counter_indexes,
                                         bcm_stat_value_t *counter_values);
int bcm_l3_ingress_stat_detach(int unit, bcm_if_t intf_id);

/* Counters of hosts */
int bcm_l3_host_stat_attach(int unit, bcm_l3_host_t *info, uint32 stat_counter_id);
int bcm_l3_host_stat_set(int unit, bcm_l3_host_t *info, bcm_l3_stat_t stat, uint64 val);
int bcm_l3_host_stat_get(int unit, bcm_l3_host_t *info, bcm_l3_stat_t stat, uint64 *val);
int bcm_l3_host_stat_set32(int unit, bcm_l3_host_t *info, bcm_l3_stat_t stat, uint32 val);
int bcm_l3_host_stat_get32(int unit, bcm_l3_host_t *info, bcm_l3_stat_t stat, uint32 *val);
int bcm_l3_host_stat_id_get(int unit, bcm_l3_host_t *info, bcm_l3_stat_t stat,
                            uint32 *stat_counter_id);
int bcm_l3_host_stat_counter_set(int unit, bcm_l3_host_t *info, bcm_l3_stat_t stat,
                                 uint32 num_entries, uint32 *counter_indexes,
                                 bcm_stat_value_t *counter_values);
int bcm_l3_host_stat_counter_get(int unit, bcm_l3_host_t *info, bcm_l3_stat_t stat,
                                 uint32 num_entries, uint32 *counter_indexes,
                                 bcm_stat_value_t *counter_values);
int bcm_l3_host_stat_counter_sync_get(int unit, bcm_l3_host_t *info, bcm_l3_stat_t stat,
                                      uint32 num_entries, uint32 *counter_indexes,
                                      bcm_stat_value_t *counter_values);
int bcm_l3_host_stat_enable_set(int unit, bcm_l3_host_t *info, int enable);
int bcm_l3_host_stat_detach(int unit, bcm_l3_host_t *info);

/* Counters of routes */
int bcm_l3_route_stat_attach(int unit, bcm_l3_route_t *info, uint32 stat_counter_id);
int bcm_l3_route_stat_set(int unit, bcm_l3_route_t *info, bcm_l3_stat_t stat, uint64 val);
int bcm_l3_route_stat_get(int unit, bcm_l3_route_t *info, bcm_l3_stat_t stat, uint64 *val);
int bcm_l3_route_stat_set32(int unit, bcm_l3_route_t *info, bcm_l3_stat_t stat, uint32 val);
int bcm_l3_route_stat_get32(int unit, bcm_l3_route_t *info, bcm_l3_stat_t stat, uint32 *val);
int bcm_l3_route_stat_multi_set(int unit, bcm_l3_route_t *info, int nstat,
                                bcm_l3_route_stat_t *stat_arr, uint64 *value_arr);
int bcm_l3_route_stat_multi_get(int unit, bcm_l3_route_t *info, int nstat,
                                bcm_l3_route_stat_t *stat_arr, uint64 *value_arr);
int bcm_l3_route_stat_multi_set32(int unit, bcm_l3_route_t *info, int nstat,
                                  bcm_l3_route_stat_t *stat_arr, uint32 *value_arr);
int bcm_l3_route_stat_multi_get32(int unit, bcm_l3_route_t *info, int nstat,
                                  bcm_l3_route_stat_t *stat_arr, uint32 *value_arr);
int bcm_l3_route_stat_id_get(int unit, bcm_l3_route_t *info, bcm_l3_route_stat_t stat,
                             uint32 *stat_counter_id);
int bcm_l3_route_stat_counter_set(int unit, bcm_l3_route_t *info, bcm_l3_route_stat_t stat,
                                  uint32 num_entries, uint32 *counter_indexes,
                                  bcm_stat_value_t *counter_values);
int bcm_l3_route_stat_counter_get(int unit, bcm_l3_route_t *info, bcm_l3_route_stat_t stat,
                                  uint32 num_entries, uint32 *counter_indexes,
                                  bcm_stat_value_t *counter_values);
int bcm_l3_route_stat_counter_sync_get(int unit, bcm_l3_route_t *info, bcm_l3_route_stat_t stat,
                                       uint32 num_entries, uint32 *counter_indexes,
                                       bcm_stat_value_t *counter_values);
int bcm_l3_route_stat_enable_set(int unit, bcm_l3_route_t *info, int enable);
int bcm_l3_route_stat_detach(int unit, bcm_l3_route_t *info);

/* Counters of VRFs */
int bcm_l3_vrf_stat_attach(int unit, bcm_vrf_t vrf, uint32 stat_counter_id);
int bcm_l3_vrf_stat_set(int unit, bcm_vrf_t vrf, bcm_l3_vrf_stat_t stat, uint64 val);
int bcm_l3_vrf_stat_get(int unit, bcm_vrf_t vrf, bcm_l3_vrf_stat_t stat, uint64 *val);
int bcm_l3_vrf_stat_set32(int unit, bcm_vrf_t vrf, bcm_l3_vrf_stat_t stat, uint32 val);
int bcm_l3_vrf_stat_get32(int unit, bcm_vrf_t vrf, bcm_l3_vrf_stat_t stat, uint32 *val);
int bcm_l3_vrf_stat_sync_get(int unit, bcm_vrf_t vrf, bcm_l3_vrf_stat_t stat, uint64 *val);
int bcm_l3_vrf_stat_sync_get32(int unit, bcm_vrf_t vrf, bcm_l3_vrf_stat_t stat, uint32 *val);
int bcm_l3_vrf_stat_multi_set(int unit, bcm_vrf_t vrf, int nstat, bcm_l3_vrf_stat_t *stat_arr,
                              uint64 *value_arr);
int bcm_l3_vrf_stat_multi_get(int unit, bcm_vrf_t vrf, int nstat, bcm_l3_vrf_stat_t *stat_arr,
                              uint64 *value_arr);
int bcm_l3_vrf_stat_multi_set32(int unit, bcm_vrf_t vrf, int nstat, bcm_l3_vrf_stat_t *stat_arr,
                                uint32 *value_arr);
int bcm_l3_vrf_stat_multi_get32(int unit, bcm_vrf_t vrf, int nstat, bcm_l3_vrf_stat_t *stat_arr,
                                uint32 *value_arr);
int bcm_l3_vrf_stat_id_get(int unit, bcm_vrf_t vrf, bcm_l3_vrf_stat_t stat,
                           uint32 *stat_counter_id);
int bcm_l3_vrf_stat_counter_set(int unit, bcm_vrf_t vrf, bcm_l3_vrf_stat_t stat, uint32 num_entries,
                                uint32 *counter_indexes, bcm_stat_value_t *counter_values);
int bcm_l3_vrf_stat_counter_get(int unit, bcm_vrf_t vrf, bcm_l3_vrf_stat_t stat, uint32 num_entries,
                                uint32 *counter_indexes, bcm_stat_value_t *counter_values);
int bcm_l3_vrf_stat_counter_sync_get(int unit, bcm_vrf_t vrf, bcm_l3_vrf_stat_t stat,
                                     uint32 num_entries, uint32 *counter_indexes,
                                     bcm_stat_value_t *counter_values);
int bcm_l3_vrf_stat_enable_set(int unit, bcm_vrf_t vrf, int enable);
int bcm_l3_vrf_stat_detach(int unit, bcm_vrf_t vrf);

OMBRA_END_DECLS
