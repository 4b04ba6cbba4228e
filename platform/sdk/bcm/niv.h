/* NIV: virtual network interfaces, their forwarding and egress entries. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/niv_types.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

int bcm_niv_init(int unit);
int bcm_niv_cleanup(int unit);
void bcm_niv_egress_t_init(bcm_niv_egress_t *egress);
int bcm_niv_egress_add(int unit, bcm_gport_t niv_port_id, bcm_niv_egress_t *egress);
int bcm_niv_egress_set(int unit, bcm_gport_t niv_port_id, int array_count,
                       bcm_niv_egress_t *egress_array);
int bcm_niv_egress_get(int unit, bcm_gport_t niv_port_id, int array_max,
                       bcm_niv_egress_t *egress_array, int *array_count);
int bcm_niv_egress_delete(int unit, bcm_gport_t niv_port_id, bcm_niv_egress_t *egress);
int bcm_niv_egress_delete_all(int unit, bcm_gport_t niv_port_id);
void bcm_niv_forward_t_init(bcm_niv_forward_t *forward);
int bcm_niv_forward_add(int unit, bcm_niv_forward_t *forward);
int bcm_niv_forward_get(int unit, bcm_niv_forward_t *forward);
int bcm_niv_forward_delete(int unit, bcm_niv_forward_t *forward);
int bcm_niv_forward_delete_all(int unit);
int bcm_niv_forward_traverse(int unit, bcm_niv_forward_traverse_cb cb, void *user_data);
void bcm_niv_port_t_init(bcm_niv_port_t *niv_port);
int bcm_niv_port_add(int unit, bcm_niv_port_t *niv_port);
int bcm_niv_port_get(int unit, bcm_niv_port_t *niv_port);
int bcm_niv_port_delete(int unit, bcm_gport_t niv_port_id);
int bcm_niv_port_delete_all(int unit);
int bcm_niv_port_traverse(int unit, bcm_niv_port_traverse_cb cb, void *user_data);

OMBRA_END_DECLS
