/* Trunk: several ports as one link: members, egress masks, failover and hashing. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/bcm/trunk_types.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* Module */
int bcm_trunk_init(int unit);
int bcm_trunk_detach(int unit);
void bcm_trunk_chip_info_t_init(bcm_trunk_chip_info_t *chip_info);
int bcm_trunk_chip_info_get(int, bcm_trunk_chip_info_t *OUTPUT);

/* Trunks */
int bcm_trunk_create(int, uint32, bcm_trunk_t *INOUT);
void bcm_trunk_info_t_init(bcm_trunk_info_t *trunk_info);
void bcm_trunk_member_t_init(bcm_trunk_member_t *member);
int bcm_trunk_set(int unit, bcm_trunk_t tid, bcm_trunk_info_t *trunk_info, int member_count,
                  bcm_trunk_member_t *member_array);
int bcm_trunk_get(int, bcm_trunk_t, bcm_trunk_info_t *, int, bcm_trunk_member_t *,
                  int *member_count);
int bcm_trunk_destroy(int unit, bcm_trunk_t tid);
int bcm_trunk_find(int unit, bcm_module_t modid, bcm_port_t port, bcm_trunk_t *tid);
int bcm_trunk_psc_set(int unit, bcm_trunk_t tid, int psc);
int bcm_trunk_psc_get(int, bcm_trunk_t, int *psc);

/* Members */
int bcm_trunk_member_add(int unit, bcm_trunk_t tid, bcm_trunk_member_t *member);
int bcm_trunk_member_delete(int unit, bcm_trunk_t tid, bcm_trunk_member_t *member);
int bcm_trunk_member_delete_all(int unit, bcm_trunk_t tid);
int bcm_trunk_member_status_set(int unit, bcm_gport_t member, int status);
int bcm_trunk_member_status_get(int unit, bcm_gport_t member, int *status);
int bcm_trunk_gport_add(int unit, bcm_trunk_t tid, bcm_gport_t gport);
int bcm_trunk_gport_get_all(int unit, bcm_trunk_t tid, int gport_max, bcm_gport_t *gport_array,
                            int *gport_count);
int bcm_trunk_gport_delete(int unit, bcm_trunk_t tid, bcm_gport_t gport);
int bcm_trunk_gport_delete_all(int unit, bcm_trunk_t tid);

/* Ports and multicast */
int bcm_trunk_egress_set(int unit, bcm_trunk_t tid, bcm_pbmp_t pbmp);
int bcm_trunk_egress_get(int unit, bcm_trunk_t tid, bcm_pbmp_t *pbmp);
int bcm_trunk_bitmap_expand(int unit, bcm_pbmp_t *pbmp);
int bcm_trunk_mcast_join(int unit, bcm_trunk_t tid, bcm_vlan_t vid, bcm_mac_t mac);
int bcm_trunk_override_ipmc_set(int unit, bcm_port_t port, bcm_trunk_t tid, int index, int enable);
int bcm_trunk_override_ipmc_get(int unit, bcm_port_t port, bcm_trunk_t tid, int index, int *enable);
int bcm_trunk_override_mcast_set(int unit, bcm_port_t port, bcm_trunk_t tid, int index, int enable);
int bcm_trunk_override_mcast_get(int unit, bcm_port_t port, bcm_trunk_t tid, int index,
                                 int *enable);
int bcm_trunk_override_ucast_set(int unit, bcm_port_t port, bcm_trunk_t tid, int modid, int enable);
int bcm_trunk_override_ucast_get(int unit, bcm_port_t port, bcm_trunk_t tid, int modid,
                                 int *enable);
int bcm_trunk_override_vlan_set(int unit, bcm_port_t port, bcm_trunk_t tid, bcm_vlan_t vid,
                                int enable);
int bcm_trunk_override_vlan_get(int unit, bcm_port_t port, bcm_trunk_t tid, bcm_vlan_t vid,
                                int *enable);
int bcm_trunk_pool_set(int unit, bcm_port_t port, bcm_trunk_t tid, int size,
                       int const weights[256]);
int bcm_trunk_pool_get(int unit, bcm_port_t port, bcm_trunk_t tid, int *size, int weights[256]);

/* Failover */
int bcm_trunk_failover_set(int unit, bcm_trunk_t tid, bcm_gport_t failport, int psc, uint32 flags,
                           int count, bcm_gport_t *fail_to_array);
int bcm_trunk_failover_get(int unit, bcm_trunk_t tid, bcm_gport_t failport, int *psc, uint32 *flags,
                           int array_size, bcm_gport_t *fail_to_array, int *array_count);

/* Hashing and groups */
int bcm_trunk_agm_attach(int unit, bcm_trunk_t tid, bcm_switch_agm_id_t agm_id);
int bcm_trunk_agm_detach(int unit, bcm_trunk_t tid, bcm_switch_agm_id_t agm_id);
int bcm_trunk_agm_attach_get(int unit, bcm_trunk_t tid, bcm_switch_agm_id_t *agm_id);
int bcm_trunk_ethertype_set(int unit, uint32 flags, int ethertype_count, int *ethertype_array);
int bcm_trunk_ethertype_get(int unit, uint32 *flags, int ethertype_max, int *ethertype_array,
                            int *ethertype_count);
int bcm_trunk_resilient_replace(int unit, uint32 flags, bcm_trunk_resilient_entry_t *match_entry,
                                int *num_entries, bcm_trunk_resilient_entry_t *replace_entry);
int bcm_trunk_resilient_traverse(int unit, uint32 flags, bcm_trunk_resilient_entry_t *match_entry,
                                 bcm_trunk_resilient_traverse_cb cb, void *user_data);
int bcm_trunk_spa_to_system_phys_port_map_get(int unit, uint32 flags, uint32 spa,
                                              bcm_gport_t *port);

OMBRA_END_DECLS
