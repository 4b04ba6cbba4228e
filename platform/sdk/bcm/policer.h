/* Policer: meters that colour packets, alone and in groups, with their actions and counters. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/policer_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* Module */
int bcm_policer_init(int unit);
int bcm_policer_destroy_all(int unit);

/* Policers */
void bcm_policer_config_t_init(bcm_policer_config_t *pol_cfg);
int bcm_policer_create(int unit, bcm_policer_config_t *pol_cfg, bcm_policer_t *policer_id);
int bcm_policer_set(int unit, bcm_policer_t policer_id, bcm_policer_config_t *pol_cfg);
int bcm_policer_get(int unit, bcm_policer_t policer_id, bcm_policer_config_t *pol_cfg);
int bcm_policer_destroy(int unit, bcm_policer_t policer_id);
int bcm_policer_traverse(int unit, bcm_policer_traverse_cb cb, void *user_data);
int bcm_policer_envelop_create(int unit, uint32 flags, bcm_policer_t macro_flow_policer_id,
                               bcm_policer_t *policer_id);

/* Groups */
int bcm_policer_group_create(int unit, bcm_policer_group_mode_t mode, bcm_policer_t *policer_id,
                             int *npolicers);
int bcm_policer_group_get(int unit, bcm_policer_t policer_id, int max, bcm_policer_t *policer_array,
                          int *policer_count);
int bcm_policer_group_create_with_map(int unit, bcm_policer_group_mode_t mode,
                                      bcm_policer_map_t *map, bcm_policer_t *policer_id,
                                      int *npolicers);
int bcm_policer_group_mode_id_get(int unit, uint32 mode_id, uint32 attr_max, uint32 *flags,
                                  bcm_policer_group_mode_type_t *mode_type, uint32 *total_counters,
                                  bcm_policer_group_mode_attr_selector_t *attr_array,
                                  uint32 *attr_count);
void bcm_policer_group_mode_attr_selector_t_init(
    bcm_policer_group_mode_attr_selector_t *attr_selector);
int bcm_policer_group_mode_id_create(int unit, uint32 flags,
                                     bcm_policer_group_mode_type_t mode_type, uint32 hint,
                                     uint32 total_counters,
                                     bcm_policer_group_mode_attr_selector_t *attr_array,
                                     uint32 *mode_id);
int bcm_policer_group_mode_id_destroy(int unit, uint32 mode_id);
int bcm_policer_aggregate_group_create(int unit, bcm_policer_aggregate_group_info_t *info,
                                       bcm_policer_t *policer_id, int *npolicers);
int bcm_policer_envelop_group_create(int unit, uint32 flags, bcm_policer_group_mode_t mode,
                                     bcm_policer_t macro_flow_policer_id, bcm_policer_t *policer_id,
                                     int *npolicers);
int bcm_policer_custom_group_create(int unit, uint32 flags, uint32 mode_id,
                                    bcm_policer_t macro_flow_policer_id, bcm_policer_t *policer_id,
                                    uint32 *npolicers);

/* Actions */
int bcm_policer_action_create(int unit, uint32 *action_id);
int bcm_policer_action_add(int unit, uint32 action_id, bcm_policer_action_t action, uint32 param);
int bcm_policer_action_attach(int unit, bcm_policer_t policer_id, uint32 action_id);
int bcm_policer_action_get(int unit, uint32 action_id, bcm_policer_action_t action, uint32 *param);
int bcm_policer_action_detach(int unit, bcm_policer_t policer_id, uint32 action_id);
int bcm_policer_action_destroy(int unit, uint32 action_id);
int bcm_policer_action_attach_get(int unit, bcm_policer_t policer_id, uint32 *action_id);

/* Colour and global meters */
int bcm_policer_color_decision_set(int unit, bcm_policer_color_decision_t *decision);
int bcm_policer_color_decision_get(int unit, bcm_policer_color_decision_t *decision);
int bcm_policer_color_resolution_set(int unit, bcm_policer_color_resolution_t *resolution);
int bcm_policer_color_resolution_get(int unit, bcm_policer_color_resolution_t *resolution);
void bcm_policer_global_meter_config_t_init(bcm_policer_global_meter_config_t *config);
int bcm_policer_global_meter_config_set(int unit, bcm_policer_global_meter_config_t *config);
int bcm_policer_global_meter_config_get(int unit, bcm_policer_global_meter_config_t *config);

/* Counters */
int bcm_policer_packet_counter_get32(int unit, bcm_policer_t policer_id, uint32 *count);
int bcm_policer_packet_reset_counter_get32(int unit, bcm_policer_t policer_id, uint32 *count);
int bcm_policer_stat_set(int unit, bcm_policer_t policer_id, bcm_cos_t cos, bcm_policer_stat_t stat,
                         uint64 val);
int bcm_policer_stat_get(int unit, bcm_policer_t policer_id, bcm_cos_t cos, bcm_policer_stat_t stat,
                         uint64 *val);
int bcm_policer_stat_set32(int unit, bcm_policer_t policer_id, bcm_cos_t cos,
                           bcm_policer_stat_t stat, uint32 val);
int bcm_policer_stat_get32(int unit, bcm_policer_t policer_id, bcm_cos_t cos,
                           bcm_policer_stat_t stat, uint32 *val);
int bcm_policer_stat_enable_set(int unit, bcm_policer_t policer_id, int enable);
int bcm_policer_stat_enable_get(int unit, bcm_policer_t policer_id, int *enable);

OMBRA_END_DECLS
