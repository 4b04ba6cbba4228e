/* Proxy: offload of lookups to another device. */
#pragma once
#include "native/base.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* The server of a kind of lookup. */
typedef struct bcm_proxy_server_s {
    uint32 flags;
    bcm_gport_t server_gport;
    bcm_proxy_mode_t mode;
    bcm_proxy_second_pass_flow_type_t flow_type;
} bcm_proxy_server_t;

/* The egress object of the second pass. */
typedef struct bcm_proxy_egress_s {
    uint32 flags;
    bcm_gport_t gport;
} bcm_proxy_egress_t;

/* Called for each egress object. */
typedef int (*bcm_proxy_egress_traverse_cb)(int unit, bcm_gport_t proxy_egress_id,
                                            bcm_proxy_egress_t *egress, void *user_data);

OMBRA_END_DECLS
