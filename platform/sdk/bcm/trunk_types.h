/* Trunk: link aggregation. */
#pragma once
#include "native/base.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* The settings of a trunk. */
typedef struct bcm_trunk_info_s {
    uint32 flags;
    int psc;
    int ipmc_psc;
    int dlf_index;
    int mc_index;
    int ipmc_index;
    int dynamic_size;
    int dynamic_age;
    int dynamic_load_exponent;
    int dynamic_expected_load_exponent;
} bcm_trunk_info_t;

/* The trunks that a chip offers. */
typedef struct bcm_trunk_chip_info_s {
    int trunk_group_count;
    int trunk_id_min;
    int trunk_id_max;
    int trunk_ports_max;
    int trunk_fabric_id_min;
    int trunk_fabric_id_max;
    int trunk_fabric_ports_max;
    int vp_id_min;
    int vp_id_max;
    int vp_ports_max;
} bcm_trunk_chip_info_t;

/* A port of a trunk. */
typedef struct bcm_trunk_member_s {
    uint32 flags;
    bcm_gport_t gport;
    int dynamic_scaling_factor;
    int dynamic_load_weight;
    int dynamic_queue_size_weight;
} bcm_trunk_member_t;

/* An entry of resilient hashing: which member a key takes. */
typedef struct bcm_trunk_resilient_entry_s {
    uint64 hash_key;
    bcm_trunk_t tid;
    bcm_trunk_member_t *member;
} bcm_trunk_resilient_entry_t;

/* Called for each entry of resilient hashing. */
typedef int (*bcm_trunk_resilient_traverse_cb)(int unit, bcm_trunk_resilient_entry_t *entry,
                                               void *user_data);

OMBRA_END_DECLS
