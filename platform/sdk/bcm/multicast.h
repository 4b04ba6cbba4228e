/* Multicast: groups, their ingress and egress members, and how each member is encapsulated. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/multicast_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* Groups */
int bcm_multicast_init(int unit);
int bcm_multicast_detach(int unit);
int bcm_multicast_create(int unit, uint32 flags, bcm_multicast_t *group);
int bcm_multicast_destroy(int unit, bcm_multicast_t group);
int bcm_multicast_group_get(int unit, bcm_multicast_t group, uint32 *flags);
int bcm_multicast_group_traverse(int unit, bcm_multicast_group_traverse_cb_t trav_fn, uint32 flags,
                                 void *user_data);
int bcm_multicast_group_free_range_get(int unit, uint32 flags, bcm_multicast_t *start,
                                       bcm_multicast_t *end);
int bcm_multicast_group_is_free(int unit, bcm_multicast_t group);
void bcm_multicast_multi_info_t_init(bcm_multicast_multi_info_t *info);
int bcm_multicast_multi_alloc(int unit, bcm_multicast_multi_info_t info,
                              bcm_multicast_t *base_group);
int bcm_multicast_multi_free(int unit, bcm_multicast_t group);
int bcm_multicast_control_set(int unit, bcm_multicast_t group, bcm_multicast_control_t type,
                              int arg);
int bcm_multicast_control_get(int unit, bcm_multicast_t group, bcm_multicast_control_t type,
                              int *arg);
int bcm_multicast_fabric_distribution_set(int unit, bcm_multicast_t group,
                                          bcm_fabric_distribution_t ds_id);
int bcm_multicast_fabric_distribution_get(int unit, bcm_multicast_t group,
                                          bcm_fabric_distribution_t *ds_id);

/* Members */
void bcm_multicast_replication_t_init(bcm_multicast_replication_t *replication);
int bcm_multicast_add(int unit, bcm_multicast_t group, uint32 flags, int rep_count,
                      bcm_multicast_replication_t *rep_array);
int bcm_multicast_delete(int unit, bcm_multicast_t group, uint32 flags, int rep_count,
                         bcm_multicast_replication_t *rep_array);
int bcm_multicast_set(int unit, bcm_multicast_t group, uint32 flags, int rep_count,
                      bcm_multicast_replication_t *rep_array);
int bcm_multicast_get(int unit, bcm_multicast_t group, uint32 flags, int rep_max,
                      bcm_multicast_replication_t *rep_array, int *rep_count);
int bcm_multicast_ingress_add(int unit, bcm_multicast_t group, bcm_gport_t port, bcm_if_t encap_id);
int bcm_multicast_ingress_set(int unit, bcm_multicast_t group, int port_count,
                              bcm_gport_t *port_array, bcm_if_t *encap_id_array);
int bcm_multicast_ingress_get(int unit, bcm_multicast_t group, int port_max,
                              bcm_gport_t *port_array, bcm_if_t *encap_id_array, int *port_count);
int bcm_multicast_ingress_delete(int unit, bcm_multicast_t group, bcm_gport_t port,
                                 bcm_if_t encap_id);
int bcm_multicast_ingress_delete_all(int unit, bcm_multicast_t group);
int bcm_multicast_egress_add(int unit, bcm_multicast_t group, bcm_gport_t port, bcm_if_t encap_id);
int bcm_multicast_egress_set(int unit, bcm_multicast_t group, int port_count,
                             bcm_gport_t *port_array, bcm_if_t *encap_id_array);
int bcm_multicast_egress_get(int unit, bcm_multicast_t group, int port_max, bcm_gport_t *port_array,
                             bcm_if_t *encap_id_array, int *port_count);
int bcm_multicast_egress_delete(int unit, bcm_multicast_t group, bcm_gport_t port,
                                bcm_if_t encap_id);
int bcm_multicast_egress_delete_all(int unit, bcm_multicast_t group);
int bcm_multicast_egress_subscriber_add(int unit, bcm_multicast_t group, bcm_gport_t port,
                                        bcm_if_t encap_id, bcm_gport_t subscriber_queue);
int bcm_multicast_egress_subscriber_set(int unit, bcm_multicast_t group, int port_count,
                                        bcm_gport_t *port_array, bcm_if_t *encap_id_array,
                                        bcm_gport_t *subscriber_queue_array);
int bcm_multicast_egress_subscriber_get(int unit, bcm_multicast_t group, int port_max,
                                        bcm_gport_t *port_array, bcm_if_t *encap_id_array,
                                        bcm_gport_t *subscriber_queue_array, int *port_count);
int bcm_multicast_egress_subscriber_delete(int unit, bcm_multicast_t group, bcm_gport_t port,
                                           bcm_if_t encap_id, bcm_gport_t subscriber_queue);
int bcm_multicast_egress_subscriber_qos_map_set(int unit, bcm_multicast_t group, bcm_gport_t port,
                                                bcm_gport_t queue_id, int qos_map_id);
int bcm_multicast_egress_subscriber_qos_map_get(int unit, bcm_multicast_t group, bcm_gport_t port,
                                                bcm_gport_t queue_id, int *qos_map_id);
int bcm_multicast_repl_set(int unit, int index, bcm_port_t port,
                           unsigned int vlan_vec[_SHR_BITDCLSIZE((4095 - 0 + 1))]);
int bcm_multicast_repl_get(int unit, int index, bcm_port_t port,
                           unsigned int vlan_vec[_SHR_BITDCLSIZE((4095 - 0 + 1))]);

/* Encapsulation ids of members */
int bcm_multicast_egress_object_encap_get(int unit, bcm_multicast_t group, bcm_if_t intf,
                                          bcm_if_t *encap_id);
int bcm_multicast_extender_encap_get(int unit, bcm_multicast_t group, bcm_gport_t port,
                                     bcm_gport_t member_port, bcm_if_t *encap_id);
int bcm_multicast_l2_encap_get(int unit, bcm_multicast_t group, bcm_gport_t port, bcm_vlan_t vid,
                               bcm_if_t *encap_id);
int bcm_multicast_l2gre_encap_get(int unit, bcm_multicast_t group, bcm_gport_t port,
                                  bcm_gport_t member_port, bcm_if_t *encap_id);
int bcm_multicast_l3_encap_get(int unit, bcm_multicast_t group, bcm_gport_t port, bcm_if_t intf,
                               bcm_if_t *encap_id);
int bcm_multicast_mac_encap_get(int unit, bcm_multicast_t group, bcm_gport_t port,
                                bcm_gport_t member_port, bcm_if_t *encap_id);
int bcm_multicast_mim_encap_get(int unit, bcm_multicast_t group, bcm_gport_t port,
                                bcm_gport_t member_port, bcm_if_t *encap_id);
int bcm_multicast_niv_encap_get(int unit, bcm_multicast_t group, bcm_gport_t port,
                                bcm_gport_t member_port, bcm_if_t *encap_id);
int bcm_multicast_subport_encap_get(int unit, bcm_multicast_t group, bcm_gport_t port,
                                    bcm_gport_t member_port, bcm_if_t *encap_id);
int bcm_multicast_trill_encap_get(int unit, bcm_multicast_t group, bcm_gport_t port, bcm_if_t intf,
                                  bcm_if_t *encap_id);
int bcm_multicast_vlan_encap_get(int unit, bcm_multicast_t group, bcm_gport_t port,
                                 bcm_gport_t member_port, bcm_if_t *encap_id);
int bcm_multicast_vpls_encap_get(int unit, bcm_multicast_t group, bcm_gport_t port,
                                 bcm_gport_t member_port, bcm_if_t *encap_id);
int bcm_multicast_vxlan_encap_get(int unit, bcm_multicast_t group, bcm_gport_t port,
                                  bcm_gport_t member_port, bcm_if_t *encap_id);
int bcm_multicast_wlan_encap_get(int unit, bcm_multicast_t group, bcm_gport_t port,
                                 bcm_gport_t member_port, bcm_if_t *encap_id);

OMBRA_END_DECLS
