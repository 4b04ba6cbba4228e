/* Vswitch: virtual switch instances, their ports and their cross-connects. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/vswitch_types.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

int bcm_vswitch_init(int unit);
int bcm_vswitch_detach(int unit);
int bcm_vswitch_create(int unit, bcm_vlan_t *vsi);
int bcm_vswitch_create_with_id(int unit, bcm_vlan_t vsi);
int bcm_vswitch_destroy(int unit, bcm_vlan_t vsi);
int bcm_vswitch_destroy_all(int unit);
void bcm_vswitch_cross_connect_t_init(bcm_vswitch_cross_connect_t *cross_connect);
int bcm_vswitch_cross_connect_add(int unit, bcm_vswitch_cross_connect_t *cross_connect);
int bcm_vswitch_cross_connect_get(int unit, bcm_vswitch_cross_connect_t *cross_connect);
int bcm_vswitch_cross_connect_delete(int unit, bcm_vswitch_cross_connect_t *cross_connect);
int bcm_vswitch_cross_connect_delete_all(int unit);
int bcm_vswitch_cross_connect_traverse(int unit, bcm_vswitch_cross_connect_traverse_cb cb,
                                       void *user_data);
void bcm_vswitch_flexible_connect_fwd_t_init(bcm_vswitch_flexible_connect_fwd_t *forward);
void bcm_vswitch_flexible_connect_match_t_init(bcm_vswitch_flexible_connect_match_t *match);
int bcm_vswitch_flexible_connect_add(int unit, uint32 flags,
                                     bcm_vswitch_flexible_connect_match_t *match,
                                     bcm_vswitch_flexible_connect_fwd_t *forward);
int bcm_vswitch_flexible_connect_get(int unit, uint32 flags,
                                     bcm_vswitch_flexible_connect_match_t *match,
                                     bcm_vswitch_flexible_connect_fwd_t *forward);
int bcm_vswitch_flexible_connect_delete(int unit, bcm_vswitch_flexible_connect_match_t *match);
int bcm_vswitch_port_add(int unit, bcm_vlan_t vsi, bcm_gport_t port);
int bcm_vswitch_port_get(int unit, bcm_gport_t port, bcm_vlan_t *vsi);
int bcm_vswitch_port_delete(int unit, bcm_vlan_t vsi, bcm_gport_t port);
int bcm_vswitch_port_delete_all(int unit, bcm_vlan_t vsi);
int bcm_vswitch_port_traverse(int unit, bcm_vlan_t vsi, bcm_vswitch_port_traverse_cb cb,
                              void *user_data);

OMBRA_END_DECLS
