/* Multicast table of layer 2, the older one. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* A group of layer 2, with its ports. */
typedef struct bcm_mcast_addr_s {
    bcm_mac_t mac;
    bcm_vlan_t vid;
    bcm_cos_t cos_dst;
    bcm_pbmp_t pbmp;
    bcm_pbmp_t ubmp;
    uint32 l2mc_index;
    uint32 flags;
    bcm_fabric_distribution_t distribution_class;
} bcm_mcast_addr_t;

OMBRA_END_DECLS
