/* TRILL: ports, rbridges, VPNs and multicast trees. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/trill_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* Module */
int bcm_trill_init(int unit);
int bcm_trill_cleanup(int unit);

/* VPNs */
void bcm_trill_vpn_config_t_init(bcm_trill_vpn_config_t *info);
int bcm_trill_vpn_create(int unit, bcm_trill_vpn_config_t *info);
int bcm_trill_vpn_get(int unit, bcm_vpn_t vpn, bcm_trill_vpn_config_t *info);
int bcm_trill_vpn_destroy(int unit, bcm_vpn_t vpn);
int bcm_trill_vpn_destroy_all(int unit);
int bcm_trill_vpn_traverse(int unit, bcm_trill_vpn_traverse_cb cb, void *user_data);

/* Ports */
void bcm_trill_port_t_init(bcm_trill_port_t *trill_port);
int bcm_trill_port_add(int unit, bcm_trill_port_t *trill_port);
int bcm_trill_port_get(int unit, bcm_trill_port_t *trill_port);
int bcm_trill_port_get_all(int unit, int port_max, bcm_trill_port_t *port_array, int *port_count);
int bcm_trill_port_delete(int unit, bcm_gport_t trill_port_id);
int bcm_trill_port_delete_all(int unit);

/* Rbridges */
int bcm_trill_rbridge_entry_add(int unit, bcm_trill_rbridge_t *rbridge);
int bcm_trill_rbridge_entry_get(int unit, bcm_trill_rbridge_t *rbridge);
int bcm_trill_rbridge_entry_delete(int unit, bcm_trill_rbridge_t *rbridge);

/* Multicast */
int bcm_trill_multicast_delete_all(int unit, bcm_trill_name_t root_name);
int bcm_trill_multicast_adjacency_add(int unit, bcm_trill_multicast_adjacency_t *adjacency);
int bcm_trill_multicast_adjacency_delete(int unit, bcm_trill_multicast_adjacency_t *adjacency);
int bcm_trill_multicast_adjacency_delete_all(int unit);
int bcm_trill_multicast_adjacency_traverse(int unit, bcm_trill_multicast_adjacency_traverse_cb cb,
                                           void *user_data);
void bcm_trill_multicast_entry_t_init(bcm_trill_multicast_entry_t *entry);
int bcm_trill_multicast_entry_add(int unit, bcm_trill_multicast_entry_t *entry);
int bcm_trill_multicast_entry_get(int unit, bcm_trill_multicast_entry_t *entry);
int bcm_trill_multicast_entry_delete(int unit, bcm_trill_multicast_entry_t *entry);
int bcm_trill_multicast_entry_traverse(int unit, bcm_trill_multicast_entry_traverse_cb cb,
                                       void *user_data);
int bcm_trill_multicast_source_add(int unit, bcm_trill_name_t root_name,
                                   bcm_trill_name_t source_name, bcm_gport_t port,
                                   bcm_if_t encap_id);
int bcm_trill_multicast_source_get(int unit, bcm_trill_name_t root_name,
                                   bcm_trill_name_t source_name, bcm_gport_t *port);
int bcm_trill_multicast_source_delete(int unit, bcm_trill_name_t root_name,
                                      bcm_trill_name_t source_name, bcm_gport_t port,
                                      bcm_if_t encap_id);
int bcm_trill_multicast_source_traverse(int unit, bcm_trill_multicast_source_traverse_cb cb,
                                        void *user_data);

/* Counters */
int bcm_trill_stat_get(int unit, bcm_port_t port, bcm_trill_stat_t stat, uint64 *val);
int bcm_trill_stat_get32(int unit, bcm_port_t port, bcm_trill_stat_t stat, uint32 *val);
int bcm_trill_stat_clear(int unit, bcm_port_t port, bcm_trill_stat_t stat);

OMBRA_END_DECLS
