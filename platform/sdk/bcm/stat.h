/* Stat: counters of ports, custom counters, counter groups and counter engines. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/stat_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* Counters of a port */
int bcm_stat_init(int unit);
int bcm_stat_sync(int unit);
int bcm_stat_clear(int unit, bcm_port_t port);
int bcm_stat_clear_single(int unit, bcm_port_t port, bcm_stat_val_t type);
int bcm_stat_get(int unit, bcm_port_t port, bcm_stat_val_t type, uint64 *value);
int bcm_stat_get32(int unit, bcm_port_t port, bcm_stat_val_t type, uint32 *value);
int bcm_stat_sync_get(int unit, bcm_port_t port, bcm_stat_val_t type, uint64 *value);
int bcm_stat_sync_get32(int unit, bcm_port_t port, bcm_stat_val_t type, uint32 *value);
int bcm_stat_multi_get(int unit, bcm_port_t port, int nstat, bcm_stat_val_t *stat_arr,
                       uint64 *value_arr);
int bcm_stat_multi_get32(int unit, bcm_port_t port, int nstat, bcm_stat_val_t *stat_arr,
                         uint32 *value_arr);
int bcm_stat_sync_multi_get(int unit, bcm_port_t port, int nstat, bcm_stat_val_t *stat_arr,
                            uint64 *value_arr);
int bcm_stat_sync_multi_get32(int unit, bcm_port_t port, int nstat, bcm_stat_val_t *stat_arr,
                              uint32 *value_arr);
int bcm_stat_threshold_set(int unit, bcm_port_t port, bcm_stat_val_t type,
                           bcm_stat_threshold_t *threshold);
int bcm_stat_threshold_get(int unit, bcm_port_t port, bcm_stat_val_t type,
                           bcm_stat_threshold_t *threshold);

/* Custom counters */
int bcm_stat_custom_add(int unit, bcm_port_t port, bcm_stat_val_t type,
                        bcm_custom_stat_trigger_t trigger);
int bcm_stat_custom_set(int unit, bcm_port_t port, bcm_stat_val_t type, uint32 flags);
int bcm_stat_custom_get(int unit, bcm_port_t port, bcm_stat_val_t type, uint32 *flags);
int bcm_stat_custom_delete(int unit, bcm_port_t port, bcm_stat_val_t type,
                           bcm_custom_stat_trigger_t trigger);
int bcm_stat_custom_delete_all(int unit, bcm_port_t port, bcm_stat_val_t type);
int bcm_stat_custom_check(int unit, bcm_port_t port, bcm_stat_val_t type,
                          bcm_custom_stat_trigger_t trigger, int *result);

/* Counter groups and modes */
int bcm_stat_group_create(int unit, bcm_stat_object_t object, bcm_stat_group_mode_t group_mode,
                          uint32 *stat_counter_id, uint32 *num_entries);
int bcm_stat_group_destroy(int unit, uint32 stat_counter_id);
int bcm_stat_group_dump(int unit, bcm_stat_object_t object, bcm_stat_group_mode_t group_mode);
int bcm_stat_group_dump_all(int unit);
int bcm_stat_group_mode_id_get(int unit, uint32 mode_id, uint32 *flags, uint32 *total_counters,
                               uint32 attr_max, bcm_stat_group_mode_attr_selector_t *attr_array,
                               uint32 *attr_count);
void bcm_stat_group_mode_hint_t_init(bcm_stat_group_mode_hint_t *hint);
void bcm_stat_group_mode_attr_selector_t_init(bcm_stat_group_mode_attr_selector_t *attr_selector);
int bcm_stat_group_mode_id_create(int unit, uint32 flags, uint32 total_counters, uint32 attr_count,
                                  bcm_stat_group_mode_attr_selector_t *attr_array, uint32 *mode_id);
int bcm_stat_group_mode_id_destroy(int unit, uint32 mode_id);
void bcm_stat_group_mode_id_config_t_init(bcm_stat_group_mode_id_config_t *mode_config);
int bcm_stat_group_mode_id_config_create(int unit, uint32 flags,
                                         bcm_stat_group_mode_id_config_t *mode_config,
                                         uint32 attr_count,
                                         bcm_stat_group_mode_attr_selector_t *attr_array,
                                         uint32 *mode_id);
int bcm_stat_group_mode_id_config_get(int unit, uint32 mode_id,
                                      bcm_stat_group_mode_id_config_t *mode_config, uint32 attr_max,
                                      bcm_stat_group_mode_attr_selector_t *attr_array,
                                      uint32 *attr_count);
int bcm_stat_custom_group_create(int unit, uint32 mode_id, bcm_stat_object_t object,
                                 uint32 *stat_counter_id, uint32 *num_entries);
int bcm_stat_id_get_all(int unit, bcm_stat_object_t object, int counter_max, uint32 *counter_array,
                        int *counter_count);

/* Flexible counters */
void bcm_stat_value_t_init(bcm_stat_value_t *value);
int bcm_stat_flex_counter_set(int unit, uint32 stat_counter_id, bcm_stat_flex_stat_t stat,
                              uint32 num_entries, uint32 *counter_indexes,
                              bcm_stat_value_t *counter_values);
int bcm_stat_flex_counter_get(int unit, uint32 stat_counter_id, bcm_stat_flex_stat_t stat,
                              uint32 num_entries, uint32 *counter_indexes,
                              bcm_stat_value_t *counter_values);
int bcm_stat_flex_counter_sync_get(int unit, uint32 stat_counter_id, bcm_stat_flex_stat_t stat,
                                   uint32 num_entries, uint32 *counter_indexes,
                                   bcm_stat_value_t *counter_values);
void bcm_stat_flex_pool_stat_info_t_init(bcm_stat_flex_pool_stat_info_t *info);
int bcm_stat_flex_pool_info_multi_get(int unit, bcm_stat_flex_direction_t direction,
                                      uint32 max_pools, bcm_stat_flex_pool_stat_info_t *info_array,
                                      uint32 *actual_pools);

/* Counter engines */
void bcm_stat_counter_input_data_t_init(bcm_stat_counter_input_data_t *input_data);
int bcm_stat_counter_get(int unit, uint32 flags, bcm_stat_counter_input_data_t *input_data,
                         bcm_stat_counter_output_data_t *output_data);
int bcm_stat_counter_config_set(int unit, bcm_stat_counter_engine_t *engine,
                                bcm_stat_counter_config_t *config);
int bcm_stat_counter_config_get(int unit, bcm_stat_counter_engine_t *engine,
                                bcm_stat_counter_config_t *config);
int bcm_stat_counter_filter_set(int unit, bcm_stat_counter_source_t source,
                                bcm_stat_counter_filter_t *filter_array, int filter_count,
                                int is_active);
int bcm_stat_counter_filter_get(int unit, bcm_stat_counter_source_t source, int filter_max,
                                bcm_stat_counter_filter_t *filter_array, int *filter_count);
int bcm_stat_counter_filter_is_active_get(int unit, bcm_stat_counter_source_t source,
                                          bcm_stat_counter_filter_t filter, int *is_active);

/* Counting by logical interface */
int bcm_stat_counter_lif_counting_set(int unit, uint32 flags, bcm_stat_counter_source_t *source,
                                      bcm_stat_counter_lif_mask_t *lif_mask,
                                      bcm_stat_counter_lif_stack_id_t stack_id);
int bcm_stat_counter_lif_counting_get(int unit, uint32 flags, bcm_stat_counter_source_t *source,
                                      bcm_stat_counter_lif_mask_t *lif_mask,
                                      bcm_stat_counter_lif_stack_id_t *stack_id);
int bcm_stat_counter_lif_counting_range_set(int unit, uint32 flags,
                                            bcm_stat_counter_source_type_t source_type,
                                            bcm_stat_counter_lif_range_id_t range_id,
                                            bcm_stat_counter_lif_counting_range_t *range);
int bcm_stat_counter_lif_counting_range_get(int unit, uint32 flags,
                                            bcm_stat_counter_source_type_t source_type,
                                            bcm_stat_counter_lif_range_id_t range_id,
                                            bcm_stat_counter_lif_counting_range_t *range);
int bcm_stat_lif_counting_profile_set(int unit, uint32 flags, int profile_id,
                                      bcm_stat_lif_counting_t *lif_counting);
int bcm_stat_lif_counting_profile_get(int unit, uint32 flags, int profile_id,
                                      bcm_stat_lif_counting_t *lif_counting);
int bcm_stat_lif_counting_stack_level_priority_set(int unit, uint32 flags,
                                                   bcm_stat_lif_counting_source_t *source,
                                                   bcm_stat_counter_lif_stack_id_t stack_id,
                                                   int priority);
int bcm_stat_lif_counting_stack_level_priority_get(int unit, uint32 flags,
                                                   bcm_stat_lif_counting_source_t *source,
                                                   bcm_stat_counter_lif_stack_id_t stack_id,
                                                   int *priority);
int bcm_stat_egress_receive_tm_pointer_format_set(
    int unit, int core, bcm_stat_egress_receive_tm_pointer_format_t *format);
int bcm_stat_egress_receive_tm_pointer_format_get(
    int unit, int core, bcm_stat_egress_receive_tm_pointer_format_t *format);

OMBRA_END_DECLS
