/* IPMC: IP multicast entries, egress ports, rendezvous points and counters. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/bcm/ipmc_types.h"
#include "sdk/bcm/stat_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* Module */
int bcm_ipmc_init(int unit);
int bcm_ipmc_detach(int unit);
int bcm_ipmc_enable(int unit, int enable);

/* Entries */
void bcm_ipmc_addr_t_init(bcm_ipmc_addr_t *data);
int bcm_ipmc_add(int unit, bcm_ipmc_addr_t *data);
int bcm_ipmc_find(int unit, bcm_ipmc_addr_t *data);
int bcm_ipmc_remove(int unit, bcm_ipmc_addr_t *data);
int bcm_ipmc_remove_all(int unit);
int bcm_ipmc_traverse(int unit, uint32 flags, bcm_ipmc_traverse_cb trav_fn, void *user_data);
int bcm_ipmc_age(int unit, uint32 flags, bcm_ipmc_traverse_cb age_cb, void *user_data);

/* Egress ports and bitmaps */
int bcm_ipmc_egress_port_init(int unit);
int bcm_ipmc_egress_port_set(int unit, bcm_port_t port, bcm_mac_t mac, int untag, bcm_vlan_t vid,
                             int ttl_threshold);
int bcm_ipmc_egress_port_get(int unit, bcm_port_t port, bcm_mac_t mac, int *untag, bcm_vlan_t *vid,
                             int *ttl_threshold);
int bcm_ipmc_bitmap_set(int unit, int index, bcm_port_t port, bcm_pbmp_t pbmp);
int bcm_ipmc_bitmap_get(int unit, int index, bcm_port_t port, bcm_pbmp_t *pbmp);
int bcm_ipmc_bitmap_del(int unit, int index, bcm_port_t port, bcm_pbmp_t pbmp);
int bcm_ipmc_bitmap_max_get(int unit, int *bitmap_max);

/* Rendezvous points */
int bcm_ipmc_rp_create(int unit, uint32 flags, int *rp_id);
int bcm_ipmc_rp_add(int unit, int rp_id, bcm_if_t intf_id);
int bcm_ipmc_rp_set(int unit, int rp_id, int intf_count, bcm_if_t *intf_array);
int bcm_ipmc_rp_get(int unit, int rp_id, int intf_max, bcm_if_t *intf_array, int *intf_count);
int bcm_ipmc_rp_delete(int unit, int rp_id, bcm_if_t intf_id);
int bcm_ipmc_rp_destroy(int unit, int rp_id);
int bcm_ipmc_rp_delete_all(int unit, int rp_id);

/* Ranges */
void bcm_ipmc_range_t_init(bcm_ipmc_range_t *range);
int bcm_ipmc_range_add(int unit, int *range_id, bcm_ipmc_range_t *range);
int bcm_ipmc_range_get(int unit, int range_id, bcm_ipmc_range_t *range);
int bcm_ipmc_range_delete(int unit, int range_id);
int bcm_ipmc_range_delete_all(int unit);
int bcm_ipmc_range_size_get(int unit, int *size);

/* Counters */
void bcm_ipmc_counters_t_init(bcm_ipmc_counters_t *counters);
int bcm_ipmc_counters_get(int unit, bcm_port_t port, bcm_ipmc_counters_t *counters);
int bcm_ipmc_stat_attach(int unit, bcm_ipmc_addr_t *data, uint32 stat_counter_id);
int bcm_ipmc_stat_multi_set(int unit, bcm_ipmc_addr_t *data, int nstat, bcm_ipmc_stat_t *stat_arr,
                            uint64 *value_arr);
int bcm_ipmc_stat_multi_get(int unit, bcm_ipmc_addr_t *data, int nstat, bcm_ipmc_stat_t *stat_arr,
                            uint64 *value_arr);
int bcm_ipmc_stat_multi_set32(int unit, bcm_ipmc_addr_t *data, int nstat, bcm_ipmc_stat_t *stat_arr,
                              uint32 *value_arr);
int bcm_ipmc_stat_multi_get32(int unit, bcm_ipmc_addr_t *data, int nstat, bcm_ipmc_stat_t *stat_arr,
                              uint32 *value_arr);
int bcm_ipmc_stat_id_get(int unit, bcm_ipmc_addr_t *data, bcm_ipmc_stat_t stat,
                         uint32 *stat_counter_id);
int bcm_ipmc_stat_counter_set(int unit, bcm_ipmc_addr_t *data, bcm_ipmc_stat_t stat,
                              uint32 num_entries, uint32 *counter_indexes,
                              bcm_stat_value_t *counter_values);
int bcm_ipmc_stat_counter_get(int unit, bcm_ipmc_addr_t *data, bcm_ipmc_stat_t stat,
                              uint32 num_entries, uint32 *counter_indexes,
                              bcm_stat_value_t *counter_values);
int bcm_ipmc_stat_counter_sync_get(int unit, bcm_ipmc_addr_t *data, bcm_ipmc_stat_t stat,
                                   uint32 num_entries, uint32 *counter_indexes,
                                   bcm_stat_value_t *counter_values);
int bcm_ipmc_stat_detach(int unit, bcm_ipmc_addr_t *data);

OMBRA_END_DECLS
