/* Policers: meters and their groups. */
#pragma once
#include "native/base.h"
#include "sdk/constants.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* A policer: rates, bursts and mode. */
typedef struct bcm_policer_config_s {
    uint32 flags;
    bcm_policer_mode_t mode;
    uint32 ckbits_sec;
    uint32 cbits_sec_lower;
    uint32 max_ckbits_sec;
    uint32 max_cbits_sec_lower;
    uint32 ckbits_burst;
    uint32 cbits_burst_lower;
    uint32 pkbits_sec;
    uint32 pbits_sec_lower;
    uint32 max_pkbits_sec;
    uint32 max_pbits_sec_lower;
    uint32 pkbits_burst;
    uint32 pbits_burst_lower;
    uint32 kbits_current;
    uint32 bits_current_lower;
    uint32 action_id;
    uint32 sharing_mode;
    uint32 entropy_id;
    bcm_policer_pool_t pool_id;
    uint32 bucket_width;
    uint32 token_gran;
    uint32 bucket_init_val;
    uint32 bucket_rollover_val;
    bcm_core_t core_id;
    bcm_policer_t ncoflow_policer_id;
    bcm_policer_t npoflow_policer_id;
    uint32 actual_ckbits_sec;
    uint32 actual_cbits_sec_lower;
    uint32 actual_ckbits_burst;
    uint32 actual_cbits_burst_lower;
    uint32 actual_pkbits_sec;
    uint32 actual_pbits_sec_lower;
    uint32 actual_pkbits_burst;
    uint32 actual_pbits_burst_lower;
    uint32 average_pkt_size;
    int mark_drop_as_black;
} bcm_policer_config_t;

/* A group of policers that meter together: mode and core. */
typedef struct bcm_policer_aggregate_group_info_s {
    bcm_policer_group_mode_t mode;
    bcm_core_t core;
    uint32 flags;
} bcm_policer_aggregate_group_info_t;

/* The policer offset of each kind of packet. */
typedef struct bcm_policer_map_s {
    int count;
    uint8 *offset_map;
} bcm_policer_map_t;

/* The packets that a policer of a group meters. */
typedef struct bcm_policer_group_mode_attr_selector_s {
    uint32 flags;
    uint32 policer_offset;
    bcm_policer_group_mode_attr_t attr;
    uint32 attr_value;
    uint32 attr_value_mask;
    int udf_id;
    uint32 offset;
    uint32 width;
    uint32 multi_attr_count;
    uint32 multi_attr_flags[bcmPolicerGroupModeAttrCount];
    bcm_policer_group_mode_attr_t multi_attr[bcmPolicerGroupModeAttrCount];
    uint32 multi_attr_value[bcmPolicerGroupModeAttrCount];
    uint32 multi_attr_value_mask[bcmPolicerGroupModeAttrCount];
    int multi_udf_id[bcmPolicerGroupModeAttrCount];
    uint32 multi_offset[bcmPolicerGroupModeAttrCount];
    uint32 multi_width[bcmPolicerGroupModeAttrCount];
} bcm_policer_group_mode_attr_selector_t;

/* The colour that two meters give together. */
typedef struct bcm_policer_color_decision_s {
    uint32 flags;
    bcm_policer_color_t policer0_color;
    uint8 policer0_other_bucket_has_credits;
    bcm_policer_color_t policer1_color;
    uint8 policer1_other_bucket_has_credits;
    int policer0_mark_drop_as_black;
    int policer1_mark_drop_as_black;
    bcm_policer_color_t policer0_update_bucket;
    bcm_policer_color_t policer1_update_bucket;
    bcm_color_t policer_color;
} bcm_policer_color_decision_t;

/* How the colours of several meters are joined. */
typedef struct bcm_policer_color_resolution_s {
    uint32 flags;
    uint32 policer_action;
    bcm_color_t incoming_color;
    bcm_color_t ethernet_policer_color;
    bcm_color_t policer_color;
    bcm_color_t ingress_color;
    bcm_color_t egress_color;
} bcm_policer_color_resolution_t;

/* The order of the meters of a unit, and whether frame gaps count. */
typedef struct bcm_policer_global_meter_config_s {
    uint8 ifg_enable;
    bcm_policer_global_meter_source_t source_order[bcmPolicerGlobalMeterSourceCount];
    uint32 source_order_count;
} bcm_policer_global_meter_config_t;

/* Called for each policer. */
typedef int (*bcm_policer_traverse_cb)(int unit, bcm_policer_t policer_id,
                                       bcm_policer_config_t *pol_cfg, void *user_data);

OMBRA_END_DECLS
