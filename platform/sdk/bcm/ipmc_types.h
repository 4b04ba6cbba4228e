/* IPMC: IP multicast entries. */
#pragma once
#include "native/base.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* An entry: source, group, and where it leads. */
typedef struct bcm_ipmc_addr_s {
    bcm_ip_t s_ip_addr;
    bcm_ip_t mc_ip_addr;
    bcm_ip6_t s_ip6_addr;
    bcm_ip6_t mc_ip6_addr;
    bcm_vlan_t vid;
    bcm_vrf_t vrf;
    bcm_cos_t cos;
    int ts;
    int port_tgid;
    int v;
    int mod_id;
    bcm_multicast_t group;
    uint32 flags;
    int lookup_class;
    bcm_fabric_distribution_t distribution_class;
    bcm_if_t l3a_intf;
    int rp_id;
    bcm_ip_t s_ip_mask;
    bcm_if_t ing_intf;
    bcm_ip_t mc_ip_mask;
    bcm_ip6_t mc_ip6_mask;
} bcm_ipmc_addr_t;

/* The counters of a port. */
typedef struct bcm_ipmc_counters_s {
    uint64 rmca;
    uint64 tmca;
    uint64 imbp;
    uint64 imrp;
    uint64 rimdr;
    uint64 timdr;
} bcm_ipmc_counters_t;

/* A range of groups. */
typedef struct bcm_ipmc_range_s {
    uint32 flags;
    int priority;
    bcm_ip_t mc_ip_addr;
    bcm_ip_t mc_ip_addr_mask;
    bcm_ip6_t mc_ip6_addr;
    bcm_ip6_t mc_ip6_addr_mask;
    bcm_vrf_t vrf;
    bcm_vrf_t vrf_mask;
    int rp_id;
} bcm_ipmc_range_t;

/* Called for each entry. */
typedef int (*bcm_ipmc_traverse_cb)(int unit, bcm_ipmc_addr_t *info, void *user_data);

OMBRA_END_DECLS
