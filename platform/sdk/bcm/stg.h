/* STG: groups of VLANs that share a spanning tree state. */
#pragma once
#include "native/base.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

int bcm_stg_init(int unit);
int bcm_stg_clear(int unit);
int bcm_stg_create(int unit, bcm_stg_t *stg_ptr);
int bcm_stg_create_id(int unit, bcm_stg_t stg);
int bcm_stg_destroy(int unit, bcm_stg_t stg);
int bcm_stg_count_get(int unit, int *count);
int bcm_stg_default_set(int unit, bcm_stg_t stg);
int bcm_stg_default_get(int unit, bcm_stg_t *stg);
int bcm_stg_list(int unit, bcm_stg_t **list, int *count);
int bcm_stg_list_destroy(int unit, bcm_stg_t *list, int count);
int bcm_stg_stp_set(int unit, bcm_stg_t stg, bcm_port_t port, int stp_state);
int bcm_stg_stp_get(int unit, bcm_stg_t stg, bcm_port_t port, int *stp_state);
int bcm_stg_vlan_add(int unit, bcm_stg_t stg, bcm_vlan_t vid);
int bcm_stg_vlan_remove(int unit, bcm_stg_t stg, bcm_vlan_t vid);
int bcm_stg_vlan_remove_all(int unit, bcm_stg_t stg);
int bcm_stg_vlan_list(int unit, bcm_stg_t stg, bcm_vlan_t **list, int *count);
int bcm_stg_vlan_list_destroy(int unit, bcm_vlan_t *list, int count);

OMBRA_END_DECLS
