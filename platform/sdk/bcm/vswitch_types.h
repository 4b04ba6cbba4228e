/* Virtual switch: cross-connects and flexible connects. */
#pragma once
#include "native/base.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* Two ports joined to each other. */
typedef struct bcm_vswitch_cross_connect_s {
    bcm_gport_t port1;
    bcm_gport_t port2;
    int encap1;
    int encap2;
    uint32 flags;
} bcm_vswitch_cross_connect_t;

/* Where a flexible connect leads. */
typedef struct bcm_vswitch_flexible_connect_fwd_s {
    bcm_gport_t forward_port;
    int forward_encap;
} bcm_vswitch_flexible_connect_fwd_t;

/* What a flexible connect matches. */
typedef struct bcm_vswitch_flexible_connect_match_s {
    bcm_port_match_t match;
    bcm_gport_t match_port;
    bcm_vlan_t match_vlan;
    bcm_vlan_t match_inner_vlan;
} bcm_vswitch_flexible_connect_match_t;

/* Called for each port of a virtual switch. */
typedef int (*bcm_vswitch_port_traverse_cb)(int unit, bcm_vlan_t vsi, bcm_gport_t port,
                                            void *user_data);

/* Called for each cross-connect. */
typedef int (*bcm_vswitch_cross_connect_traverse_cb)(int unit, bcm_vswitch_cross_connect_t *gports,
                                                     void *user_data);

OMBRA_END_DECLS
