/* Multicast: groups and their replications. */
#pragma once
#include "native/base.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* A copy: port and encapsulation. */
typedef struct bcm_multicast_replication_s {
    uint32 flags;
    bcm_gport_t port;
    bcm_if_t encap1;
    bcm_if_t encap2;
} bcm_multicast_replication_t;

/* How many elements a call on many groups has. */
typedef struct bcm_multicast_multi_info_s {
    uint32 flags;
    int number_of_elements;
} bcm_multicast_multi_info_t;

/* Called for each group. */
typedef int (*bcm_multicast_group_traverse_cb_t)(int unit, bcm_multicast_t group, uint32 flags,
                                                 void *user_data);

OMBRA_END_DECLS
