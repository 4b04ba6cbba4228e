/* Time: time interfaces, heartbeat, capture and synchronous Ethernet clocks. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/time_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

int bcm_time_init(int unit);
int bcm_time_bs_log_configure_set(int unit, bcm_time_bs_log_cfg_t config);
int bcm_time_bs_log_configure_get(int unit, bcm_time_bs_log_cfg_t *config);
void bcm_time_capture_t_init(bcm_time_capture_t *capture);
int bcm_time_capture_get(int unit, bcm_time_if_t if_id, bcm_time_capture_t *capture);
int bcm_time_deinit(int unit);
int bcm_time_heartbeat_enable_set(int unit, bcm_time_if_t if_id, int enable);
int bcm_time_heartbeat_enable_get(int unit, bcm_time_if_t if_id, int *enable);
int bcm_time_heartbeat_register(int unit, bcm_time_if_t if_id, bcm_time_heartbeat_cb cb,
                                void *user_data);
int bcm_time_heartbeat_unregister(int unit, bcm_time_if_t if_id);
void bcm_time_interface_t_init(bcm_time_interface_t *intf);
int bcm_time_interface_add(int unit, bcm_time_interface_t *intf);
int bcm_time_interface_get(int unit, bcm_time_interface_t *intf);
int bcm_time_interface_delete(int unit, bcm_time_if_t if_id);
int bcm_time_interface_delete_all(int unit);
int bcm_time_interface_traverse(int unit, bcm_time_interface_traverse_cb cb, void *user_data);
void bcm_time_spec_t_init(bcm_time_spec_t *spec);
void bcm_time_synce_divisor_setting_t_init(bcm_time_synce_divisor_setting_t *divisor);
int bcm_time_synce_clock_set(int unit, bcm_time_synce_clock_src_type_t clock_src,
                             bcm_time_synce_divisor_setting_t *divisor);
int bcm_time_synce_clock_get(int unit, bcm_time_synce_clock_src_type_t clock_src,
                             bcm_time_synce_divisor_setting_t *divisor);
int bcm_time_trigger_enable_set(int unit, bcm_time_if_t if_id, uint32 flags);
int bcm_time_trigger_enable_get(int unit, bcm_time_if_t if_id, uint32 *flags);

OMBRA_END_DECLS
