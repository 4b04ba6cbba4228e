/* Statistics: counters, their formats and their sources. */
#pragma once
#include "native/base.h"
#include "sdk/constants.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* A threshold at which a counter reports. */
typedef struct bcm_stat_threshold_s {
    bcm_stat_threshold_type_t type;
    uint32 flags;
    uint32 arg1;
    uint32 arg2;
} bcm_stat_threshold_t;

/* How full a counter pool is. */
typedef struct bcm_stat_flex_pool_stat_info_s {
    uint32 pool_id;
    uint32 total_entries;
    uint32 used_entries;
    uint32 attached_entries;
    uint32 free_entries;
    SHR_BITDCL used_by_objects[_SHR_BITDCLSIZE(bcmStatObjectMaxValue)];
} bcm_stat_flex_pool_stat_info_t;

/* The packets that a counter of a group counts. */
typedef struct bcm_stat_group_mode_attr_selector_s {
    uint32 counter_offset;
    bcm_stat_group_mode_attr_t attr;
    uint32 attr_value;
    uint32 udf_bitmap;
} bcm_stat_group_mode_attr_selector_t;

/* A hint on how a group will be used. */
typedef struct bcm_stat_group_mode_hint_s {
    bcm_stat_group_mode_hint_type_t type;
    uint32 value;
} bcm_stat_group_mode_hint_t;

/* A group mode with its counters. */
typedef struct bcm_stat_group_mode_id_config_s {
    uint32 flags;
    uint32 total_counters;
    bcm_stat_group_mode_hint_t hint;
} bcm_stat_group_mode_id_config_t;

/* A count in packets and bytes. */
typedef struct bcm_stat_value_s {
    uint32 packets;
    uint64 bytes;
    uint64 packets64;
} bcm_stat_value_t;

/* A range of counter pointers. */
typedef struct bcm_stat_counter_pointer_range_s {
    int start;
    int end;
} bcm_stat_counter_pointer_range_t;

/* Where an engine gets its counter pointers. */
typedef struct bcm_stat_counter_source_s {
    bcm_core_t core_id;
    bcm_stat_counter_source_type_t engine_source;
    bcm_stat_counter_pointer_range_t pointer_range;
    int command_id;
    int num_voqs_per_entry;
} bcm_stat_counter_source_t;

/* A kind of packet that a counter counts. */
typedef struct bcm_stat_counter_set_entry_s {
    bcm_color_t color;
    uint8 is_forward_not_drop;
} bcm_stat_counter_set_entry_t;

/* The counter of a kind of packet. */
typedef struct bcm_stat_counter_set_entry_mapping_s {
    bcm_stat_counter_set_entry_t entry;
    int offset;
} bcm_stat_counter_set_entry_mapping_t;

/* A set of counters and its kinds of packets. */
typedef struct bcm_stat_counter_set_mapping_s {
    int counter_set_size;
    int num_of_mapping_entries;
    bcm_stat_counter_set_entry_mapping_t entry_mapping[8];
} bcm_stat_counter_set_mapping_t;

/* The format of a counter set. */
typedef struct bcm_stat_counter_format_s {
    bcm_stat_counter_format_type_t format_type;
    bcm_stat_counter_set_mapping_t counter_set_mapping;
} bcm_stat_counter_format_t;

/* The format and source of an engine. */
typedef struct bcm_stat_counter_config_s {
    bcm_stat_counter_format_t format;
    bcm_stat_counter_source_t source;
} bcm_stat_counter_config_t;

/* A counter engine. */
typedef struct bcm_stat_counter_engine_s {
    uint32 flags;
    int engine_id;
} bcm_stat_counter_engine_t;

/* Which logical interfaces are counted. */
typedef struct bcm_stat_counter_lif_mask_s {
    bcm_stat_counter_lif_range_id_t lif_counting_mask[4];
} bcm_stat_counter_lif_mask_t;

/* A range of counted logical interfaces. */
typedef struct bcm_stat_counter_lif_counting_range_s {
    int start;
    int end;
    int is_double_entry;
} bcm_stat_counter_lif_counting_range_t;

/* Where the counting of logical interfaces comes from. */
typedef struct bcm_stat_lif_counting_source_s {
    bcm_stat_counter_source_type_t type;
    int command_id;
    int stif_counter_id;
    uint32 offset;
} bcm_stat_lif_counting_source_t;

/* The counting of logical interfaces. */
typedef struct bcm_stat_lif_counting_s {
    bcm_stat_lif_counting_source_t source;
    bcm_stat_counter_lif_counting_range_t range;
} bcm_stat_lif_counting_t;

/* The value of a counter. */
typedef struct bcm_stat_counter_value_s {
    uint64 value;
} bcm_stat_counter_value_t;

/* Which counters are read. */
typedef struct bcm_stat_counter_input_data_s {
    bcm_gport_t counter_source_gport;
    uint32 counter_source_id;
    bcm_stat_counter_source_type_t counter_source_type;
    int command_id;
    bcm_core_t core_id;
    int nstat;
    bcm_field_stat_t *stat_arr;
} bcm_stat_counter_input_data_t;

/* The values that were read. */
typedef struct bcm_stat_counter_output_data_s {
    bcm_stat_counter_value_t *value_arr;
} bcm_stat_counter_output_data_t;

/* Of what an egress counter pointer is made. */
typedef struct bcm_stat_egress_receive_tm_pointer_format_s {
    uint32 queue_pair_mask;
    uint32 traffic_class_mask;
    uint32 cast_mask;
} bcm_stat_egress_receive_tm_pointer_format_t;

OMBRA_END_DECLS
