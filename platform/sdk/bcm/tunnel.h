/* Tunnel: where IP tunnels begin and end, and how they carry DSCP. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/l3_types.h"
#include "sdk/bcm/tunnel_types.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* Initiators */
void bcm_tunnel_initiator_t_init(bcm_tunnel_initiator_t *tunnel);
int bcm_tunnel_initiator_create(int unit, bcm_l3_intf_t *intf, bcm_tunnel_initiator_t *tunnel);
int bcm_tunnel_initiator_set(int unit, bcm_l3_intf_t *intf, bcm_tunnel_initiator_t *tunnel);
int bcm_tunnel_initiator_get(int unit, bcm_l3_intf_t *intf, bcm_tunnel_initiator_t *tunnel);
int bcm_tunnel_initiator_clear(int unit, bcm_l3_intf_t *intf);
int bcm_tunnel_initiator_traverse(int unit, bcm_tunnel_initiator_traverse_cb cb, void *user_data);

/* Terminators */
void bcm_tunnel_terminator_t_init(bcm_tunnel_terminator_t *info);
int bcm_tunnel_terminator_create(int unit, bcm_tunnel_terminator_t *info);
int bcm_tunnel_terminator_add(int unit, bcm_tunnel_terminator_t *info);
int bcm_tunnel_terminator_update(int unit, bcm_tunnel_terminator_t *info);
int bcm_tunnel_terminator_get(int unit, bcm_tunnel_terminator_t *info);
int bcm_tunnel_terminator_delete(int unit, bcm_tunnel_terminator_t *info);
int bcm_tunnel_terminator_traverse(int unit, bcm_tunnel_terminator_traverse_cb cb, void *user_data);
void bcm_tunnel_terminator_config_action_t_init(bcm_tunnel_terminator_config_action_t *action);
void bcm_tunnel_terminator_config_key_t_init(bcm_tunnel_terminator_config_key_t *key);
int bcm_tunnel_terminator_config_add(int unit, uint32 options,
                                     bcm_tunnel_terminator_config_key_t *key,
                                     bcm_tunnel_terminator_config_action_t *action);
int bcm_tunnel_terminator_config_get(int unit, bcm_tunnel_terminator_config_key_t *key,
                                     bcm_tunnel_terminator_config_action_t *action);
int bcm_tunnel_terminator_config_delete(int unit, bcm_tunnel_terminator_config_key_t *key);
int bcm_tunnel_terminator_vlan_set(int unit, bcm_gport_t tunnel,
                                   unsigned int vlan_vec[_SHR_BITDCLSIZE((4095 - 0 + 1))]);
int bcm_tunnel_terminator_vlan_get(int unit, bcm_gport_t tunnel, bcm_vlan_vector_t *vlan_vec);

/* Configuration and DSCP maps */
void bcm_tunnel_config_t_init(bcm_tunnel_config_t *config);
int bcm_tunnel_config_set(int unit, bcm_tunnel_config_t *config);
int bcm_tunnel_config_get(int unit, bcm_tunnel_config_t *config);
void bcm_tunnel_dscp_map_t_init(bcm_tunnel_dscp_map_t *map);
int bcm_tunnel_dscp_map_create(int unit, uint32 flags, int *dscp_map_id);
int bcm_tunnel_dscp_map_set(int unit, int dscp_map_id, bcm_tunnel_dscp_map_t *map);
int bcm_tunnel_dscp_map_get(int unit, int dscp_map_id, bcm_tunnel_dscp_map_t *map);
int bcm_tunnel_dscp_map_destroy(int unit, int dscp_map_id);
int bcm_tunnel_dscp_map_port_set(int unit, bcm_port_t port, bcm_tunnel_dscp_map_t *map);
int bcm_tunnel_dscp_map_port_get(int unit, bcm_port_t port, bcm_tunnel_dscp_map_t *map);

OMBRA_END_DECLS
