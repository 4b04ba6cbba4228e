/* Failover: protected elements and rings. */
#pragma once
#include "native/base.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* An element under protection. */
typedef struct bcm_failover_element_s {
    uint32 flags;
    uint32 element_flags;
    bcm_gport_t port;
    bcm_failover_t failover_id;
    bcm_if_t intf;
} bcm_failover_element_t;

/* A protected ring, its two ports, and the VLANs on it. */
typedef struct bcm_failover_ring_s {
    uint32 flags;
    bcm_vlan_vector_t vlan_vector;
    bcm_gport_t port0;
    bcm_gport_t port1;
    bcm_vpn_vector_t vpn_vector;
} bcm_failover_ring_t;

/* Protection within protection. */
typedef struct bcm_failover_multi_level_s {
    bcm_failover_t failover_id;
    bcm_failover_t prot_group_1;
    bcm_failover_t prot_group_2;
} bcm_failover_multi_level_t;

OMBRA_END_DECLS
