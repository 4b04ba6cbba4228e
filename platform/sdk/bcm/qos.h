/* QoS: maps between packet priorities and internal ones, and the ports that use them. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/qos_types.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

int bcm_qos_init(int unit);
int bcm_qos_detach(int unit);
int bcm_qos_multi_get(int unit, int array_size, int *map_ids_array, int *flags_array,
                      int *array_count);
void bcm_qos_map_t_init(bcm_qos_map_t *map);
int bcm_qos_map_create(int unit, uint32 flags, int *map_id);
int bcm_qos_map_add(int unit, uint32 flags, bcm_qos_map_t *map, int map_id);
int bcm_qos_map_multi_get(int unit, uint32 flags, int map_id, int array_size, bcm_qos_map_t *array,
                          int *array_count);
int bcm_qos_map_delete(int unit, uint32 flags, bcm_qos_map_t *map, int map_id);
int bcm_qos_map_destroy(int unit, int map_id);
int bcm_qos_port_map_set(int unit, bcm_gport_t port, int ing_map, int egr_map);
int bcm_qos_port_map_get(int unit, bcm_gport_t port, int *ing_map, int *egr_map);
int bcm_qos_port_map_type_get(int unit, bcm_gport_t port, uint32 flags, int *map_id);
int bcm_qos_port_vlan_map_set(int unit, bcm_port_t port, bcm_vlan_t vid, int ing_map, int egr_map);
int bcm_qos_port_vlan_map_get(int unit, bcm_port_t port, bcm_vlan_t vid, int *ing_map,
                              int *egr_map);

OMBRA_END_DECLS
