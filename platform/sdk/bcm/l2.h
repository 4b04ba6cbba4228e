/* L2: the MAC table and what hangs on it. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/l2_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* Module */
int bcm_l2_init(int unit);
int bcm_l2_detach(int unit);
int bcm_l2_clear(int unit);

/* Addresses */
void bcm_l2_addr_t_init(bcm_l2_addr_t *l2addr, bcm_mac_t mac_addr, bcm_vlan_t vid);
int bcm_l2_addr_add(int unit, bcm_l2_addr_t *l2addr);
int bcm_l2_addr_get(int unit, bcm_mac_t mac_addr, bcm_vlan_t vid, bcm_l2_addr_t *l2addr);
int bcm_l2_addr_delete(int unit, bcm_mac_t mac, bcm_vlan_t vid);
void bcm_l2_addr_dump(bcm_l2_addr_t *l2addr);
int bcm_l2_addr_multi_add(int unit, bcm_l2_addr_t *addr_array, int count);
int bcm_l2_addr_multi_delete(int unit, bcm_l2_addr_t *addr_array, int count);

/* Addresses in bulk */
int bcm_l2_addr_delete_by_mac(int unit, bcm_mac_t mac, uint32 flags);
int bcm_l2_addr_delete_by_mac_port(int unit, bcm_mac_t mac, bcm_module_t modid, bcm_port_t port,
                                   uint32 flags);
int bcm_l2_addr_delete_by_port(int unit, bcm_module_t modid, bcm_port_t port, uint32 flags);
int bcm_l2_addr_delete_by_trunk(int unit, bcm_trunk_t tid, uint32 flags);
int bcm_l2_addr_delete_by_vlan(int unit, bcm_vlan_t vid, uint32 flags);
int bcm_l2_addr_delete_by_vlan_gport_multi(int unit, uint32 flags, int count, bcm_vlan_t *vid_array,
                                           bcm_gport_t *gport_array);
int bcm_l2_addr_delete_by_vlan_port(int unit, bcm_vlan_t vid, bcm_module_t modid, bcm_port_t port,
                                    uint32 flags);
int bcm_l2_addr_delete_by_vlan_trunk(int unit, bcm_vlan_t vid, bcm_trunk_t tid, uint32 flags);
int bcm_l2_replace(int unit, uint32 flags, bcm_l2_addr_t *match_addr, bcm_module_t new_modid,
                   bcm_port_t new_port, bcm_trunk_t new_tid);
int bcm_l2_replace_match(int unit, uint32 flags, bcm_l2_addr_t *match_addr,
                         bcm_l2_addr_t *mask_addr, bcm_l2_addr_t *replace_addr,
                         bcm_l2_addr_t *replace_mask_addr);
int bcm_l2_conflict_get(int unit, bcm_l2_addr_t *l2addr, bcm_l2_addr_t *cf_array, int cf_max,
                        int *cf_count);
int bcm_l2_addr_freeze(int unit);
int bcm_l2_addr_thaw(int unit);
int bcm_l2_key_dump(int unit, char *pfx, bcm_l2_addr_t *l2addr, char *sfx);
int bcm_l2_port_native(int unit, int modid, int port);

/* Traversal and notification */
int bcm_l2_traverse(int unit, bcm_l2_traverse_cb trav_fn, void *user_data);
int bcm_l2_match_masked_traverse(int unit, uint32 flags, bcm_l2_addr_t *match_addr,
                                 bcm_l2_addr_t *mask_addr, bcm_l2_traverse_cb trav_fn,
                                 void *user_data);
int bcm_l2_matched_traverse(int unit, uint32 flags, bcm_l2_addr_t *match_addr,
                            bcm_l2_traverse_cb trav_fn, void *user_data);
int bcm_l2_addr_register(int unit, bcm_l2_addr_callback_t callback, void *user_data);
int bcm_l2_addr_unregister(int unit, bcm_l2_addr_callback_t callback, void *user_data);
void bcm_l2_addr_distribute_t_init(bcm_l2_addr_distribute_t *distribution);
int bcm_l2_addr_msg_distribute_set(int unit, bcm_l2_addr_distribute_t *distribution);
int bcm_l2_addr_msg_distribute_get(int unit, bcm_l2_addr_distribute_t *distribution);

/* Ageing and learning */
int bcm_l2_age_timer_set(int unit, int age_seconds);
int bcm_l2_age_timer_get(int unit, int *age_seconds);
int bcm_l2_learn_class_set(int unit, int class_id, int class_priority, uint32 flags);
int bcm_l2_learn_class_get(int unit, int class_id, int *class_priority, uint32 *flags);
void bcm_l2_learn_limit_t_init(bcm_l2_learn_limit_t *limit);
int bcm_l2_learn_limit_set(int unit, bcm_l2_learn_limit_t *limit);
int bcm_l2_learn_limit_get(int unit, bcm_l2_learn_limit_t *limit);
int bcm_l2_learn_limit_disable(int unit);
int bcm_l2_learn_limit_enable(int unit);
void bcm_l2_learn_msgs_config_t_init(bcm_l2_learn_msgs_config_t *config);
int bcm_l2_learn_msgs_config_set(int unit, bcm_l2_learn_msgs_config_t *config);
int bcm_l2_learn_msgs_config_get(int unit, bcm_l2_learn_msgs_config_t *config);
int bcm_l2_learn_port_class_set(int unit, bcm_gport_t gport, int class_id);
int bcm_l2_learn_port_class_get(int unit, bcm_gport_t gport, int *class_id);
void bcm_l2_learn_stat_t_init(bcm_l2_learn_stat_t *learn_stat);
int bcm_l2_learn_stat_set(int unit, bcm_l2_learn_stat_t *learn_stat);
int bcm_l2_learn_stat_get(int unit, bcm_l2_learn_stat_t *learn_stat);

/* Reserved addresses */
void bcm_l2_cache_addr_t_init(bcm_l2_cache_addr_t *addr);
int bcm_l2_cache_init(int unit);
int bcm_l2_cache_set(int unit, int index, bcm_l2_cache_addr_t *addr, int *index_used);
int bcm_l2_cache_get(int unit, int index, bcm_l2_cache_addr_t *addr);
int bcm_l2_cache_delete(int unit, int index);
int bcm_l2_cache_delete_all(int unit);
int bcm_l2_cache_profile_set(int unit, int profile_id, uint32 flags, uint32 index,
                             bcm_l2cp_profile_info_t *profile);
int bcm_l2_cache_profile_get(int unit, int profile_id, uint32 flags, uint32 index,
                             bcm_l2cp_profile_info_t *profile);
int bcm_l2_cache_size_get(int unit, int *size);
int bcm_l2_cache_vpn_to_profile_map_set(int unit, uint32 vpn, uint32 profile_id);
int bcm_l2_cache_vpn_to_profile_map_get(int unit, uint32 vpn, uint32 *profile_id);

/* Stations and tunnels */
void bcm_l2_station_t_init(bcm_l2_station_t *station);
int bcm_l2_station_add(int unit, int *station_id, bcm_l2_station_t *station);
int bcm_l2_station_get(int unit, int station_id, bcm_l2_station_t *station);
int bcm_l2_station_delete(int unit, int station_id);
int bcm_l2_station_delete_all(int unit);
int bcm_l2_station_traverse(int unit, bcm_l2_station_traverse_cb trav_fn, void *user_data);
int bcm_l2_station_size_get(int unit, int *size);
int bcm_l2_tunnel_add(int unit, bcm_mac_t mac, bcm_vlan_t vlan);
int bcm_l2_tunnel_delete(int unit, bcm_mac_t mac, bcm_vlan_t vlan);
int bcm_l2_tunnel_delete_all(int unit);

/* Egress objects, MAC ports and rings */
void bcm_l2_egress_t_init(bcm_l2_egress_t *egress);
int bcm_l2_egress_create(int unit, bcm_l2_egress_t *egress);
int bcm_l2_egress_get(int unit, bcm_if_t egress_id, bcm_l2_egress_t *egress);
int bcm_l2_egress_find(int unit, bcm_l2_egress_t *egress, bcm_if_t *egress_id);
int bcm_l2_egress_destroy(int unit, bcm_if_t egress_id);
int bcm_l2_egress_traverse(int unit, bcm_l2_egress_traverse_cb trav_fn, void *user_data);
void bcm_l2_mac_port_t_init(bcm_l2_mac_port_t *mac_port);
int bcm_l2_mac_port_create(int unit, bcm_l2_mac_port_t *mac_port);
int bcm_l2_mac_port_get(int unit, bcm_l2_mac_port_t *mac_port);
int bcm_l2_mac_port_destroy(int unit, bcm_gport_t gport);
int bcm_l2_mac_port_destroy_all(int unit);
int bcm_l2_mac_port_traverse(int unit, bcm_l2_mac_port_traverse_cb trav_fn, void *user_data);
void bcm_l2_ring_t_init(bcm_l2_ring_t *ring);
int bcm_l2_ring_replace(int unit, bcm_l2_ring_t *ring);
void bcm_l2_gport_forward_info_t_init(bcm_l2_gport_forward_info_t *info);
int bcm_l2_gport_forward_info_get(int unit, int gport, bcm_l2_gport_forward_info_t *info);

/* Authenticated addresses */
void bcm_l2_auth_addr_t_init(bcm_l2_auth_addr_t *addr);
int bcm_l2_auth_add(int unit, bcm_l2_auth_addr_t *addr);
int bcm_l2_auth_get(int unit, bcm_l2_auth_addr_t *addr);
int bcm_l2_auth_delete(int unit, bcm_l2_auth_addr_t *addr);
int bcm_l2_auth_delete_all(int unit);
int bcm_l2_auth_traverse(int unit, bcm_l2_auth_traverse_cb trav_fn, void *user_data);

/* Counters */
int bcm_l2_stat_set(int unit, bcm_l2_addr_t *l2addr, bcm_l2_stat_t stat, uint64 val);
int bcm_l2_stat_get(int unit, bcm_l2_addr_t *l2addr, bcm_l2_stat_t stat, uint64 *val);
int bcm_l2_stat_set32(int unit, bcm_l2_addr_t *l2addr, bcm_l2_stat_t stat, uint32 val);
int bcm_l2_stat_get32(int unit, bcm_l2_addr_t *l2addr, bcm_l2_stat_t stat, uint32 *val);
int bcm_l2_stat_enable_set(int unit, bcm_l2_addr_t *l2addr, int enable);

OMBRA_END_DECLS
