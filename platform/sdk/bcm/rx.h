/* RX: packets that come to the processor: engine, callbacks, reasons, traps and buffers. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/bcm/pkt_types.h"
#include "sdk/bcm/rx_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* Engine */
int bcm_rx_init(int unit);
void bcm_rx_cfg_t_init(bcm_rx_cfg_t *cfg);
int bcm_rx_cfg_init(int unit);
int bcm_rx_cfg_get(int unit, bcm_rx_cfg_t *cfg);
int bcm_rx_start(int unit, bcm_rx_cfg_t *cfg);
int bcm_rx_stop(int unit, bcm_rx_cfg_t *cfg);
int bcm_rx_active(int unit);
int bcm_rx_clear(int unit);
int bcm_rx_show(int unit);
int bcm_rx_channels_running(int unit, uint32 *channels);
int bcm_rx_unit_next_get(int unit, int *next_unit);
int bcm_rx_mtu_set(int unit, bcm_rx_mtu_config_t *config);
int bcm_rx_mtu_get(int unit, bcm_rx_mtu_config_t *config);
int bcm_rx_control_set(int unit, bcm_rx_control_t type, int arg);
int bcm_rx_control_get(int unit, bcm_rx_control_t type, int *arg);

/* Callbacks */
int bcm_rx_register(int unit, char const *name, bcm_rx_cb_f callback, uint8 priority, void *cookie,
                    uint32 flags);
int bcm_rx_unregister(int unit, bcm_rx_cb_f callback, uint8 priority);
int bcm_rx_queue_register(int unit, char const *name, bcm_cos_queue_t cosq, bcm_rx_cb_f callback,
                          uint8 priority, void *cookie, uint32 flags);
int bcm_rx_queue_unregister(int unit, bcm_cos_queue_t cosq, bcm_rx_cb_f callback, uint8 priority);
int bcm_rx_sched_register(int unit, bcm_rx_sched_cb sched_cb);
int bcm_rx_sched_unregister(int unit);

/* Packet buffers */
int bcm_rx_alloc(int unit, int pkt_size, uint32 flags, void **pkt_data);
int bcm_rx_free(int unit, void *pkt_data);
int bcm_rx_free_enqueue(int unit, void *pkt_data);
int bcm_rx_pool_cleanup(void);
int bcm_rx_pool_alloc(int unit, int pkt_size, uint32 flags, void **pkt_data);
int bcm_rx_pool_free(int unit, void *pkt_data);
int bcm_rx_pool_setup(int pkt_count, int bytes_per_pkt);
int bcm_rx_pool_setup_done(void);
int bcm_rx_remote_pkt_alloc(int len, bcm_pkt_t **pkt);
int bcm_rx_remote_pkt_enqueue(int unit, bcm_pkt_t *pkt);
int bcm_rx_remote_pkt_free(bcm_pkt_t *pkt);

/* Rates and bursts */
int bcm_rx_rate_set(int unit, int pps);
int bcm_rx_rate_get(int unit, int *pps);
int bcm_rx_burst_set(int unit, int burst);
int bcm_rx_burst_get(int unit, int *burst);
int bcm_rx_cpu_rate_set(int unit, int pps);
int bcm_rx_cpu_rate_get(int unit, int *pps);
int bcm_rx_cos_burst_set(int unit, int cos, int burst);
int bcm_rx_cos_burst_get(int unit, int cos, int *burst);
int bcm_rx_cos_max_len_set(int unit, int cos, int max_len);
int bcm_rx_cos_max_len_get(int unit, int cos, int *max_len);
int bcm_rx_cos_rate_set(int unit, int cos, int pps);
int bcm_rx_cos_rate_get(int unit, int cos, int *pps);

/* Queues */
int bcm_rx_queue_channel_set(int unit, bcm_cos_queue_t cosq, bcm_rx_chan_t channel);
int bcm_rx_queue_channel_get(int unit, bcm_cos_queue_t cosq, bcm_rx_chan_t *channel);
int bcm_rx_queue_max_get(int unit, bcm_cos_queue_t *cosq);
int bcm_rx_queue_packet_count_get(int unit, bcm_cos_queue_t cosq, int *packet_count);
int bcm_rx_queue_rate_limit_status_get(int unit, bcm_cos_queue_t cosq, int *packet_tokens);

/* Reasons and their queues */
int bcm_rx_reasons_get(int unit, bcm_rx_reasons_t *reasons);
int bcm_rx_reasons_policer_set(int unit, bcm_rx_reasons_t reasons, bcm_policer_t policer_id);
void bcm_rx_reasons_t_init(bcm_rx_reasons_t *reasons);
int bcm_rx_cosq_mapping_set(int unit, int index, bcm_rx_reasons_t reasons,
                            bcm_rx_reasons_t reasons_mask, uint8 int_prio, uint8 int_prio_mask,
                            uint32 packet_type, uint32 packet_type_mask, bcm_cos_queue_t cosq);
int bcm_rx_cosq_mapping_get(int unit, int index, bcm_rx_reasons_t *reasons,
                            bcm_rx_reasons_t *reasons_mask, uint8 *int_prio, uint8 *int_prio_mask,
                            uint32 *packet_type, uint32 *packet_type_mask, bcm_cos_queue_t *cosq);
int bcm_rx_cosq_mapping_delete(int unit, int index);
void bcm_rx_cosq_mapping_t_init(bcm_rx_cosq_mapping_t *cosq_mapping);
int bcm_rx_cosq_mapping_extended_set(int unit, uint32 options, bcm_rx_cosq_mapping_t *cosq_mapping);
int bcm_rx_cosq_mapping_extended_get(int unit, bcm_rx_cosq_mapping_t *cosq_mapping);
int bcm_rx_cosq_mapping_reasons_get(int unit, bcm_rx_reasons_t *reasons);
int bcm_rx_cosq_mapping_size_get(int unit, int *size);
int bcm_rx_redirect_reasons_set(int unit, bcm_rx_redirect_t redirect, bcm_rx_reasons_t reasons);
int bcm_rx_redirect_reasons_get(int unit, bcm_rx_redirect_t redirect, bcm_rx_reasons_t *reasons);

/* Traps and snoops */
void bcm_rx_trap_config_t_init(bcm_rx_trap_config_t *config);
int bcm_rx_trap_set(int unit, int trap_id, bcm_rx_trap_config_t *config);
int bcm_rx_trap_get(int unit, int trap_id, bcm_rx_trap_config_t *config);
int bcm_rx_trap_sw_to_hw_id_map_get(int unit, uint32 flags, int sw_trap_id, int *hw_trap_id);
int bcm_rx_trap_type_create(int unit, int flags, bcm_rx_trap_t type, int *trap_id);
int bcm_rx_trap_type_get(int unit, int flags, bcm_rx_trap_t type, int *trap_id);
int bcm_rx_trap_type_destroy(int unit, int trap_id);
int bcm_rx_trap_type_from_id_get(int unit, int flags, int trap_id, bcm_rx_trap_t *type);
void bcm_rx_snoop_config_t_init(bcm_rx_snoop_config_t *config);
int bcm_rx_snoop_create(int unit, int flags, int *snoop_cmnd);
int bcm_rx_snoop_set(int unit, int snoop_cmnd, bcm_rx_snoop_config_t *config);
int bcm_rx_snoop_get(int unit, int snoop_cmnd, bcm_rx_snoop_config_t *config);
int bcm_rx_snoop_destroy(int unit, int flags, int snoop_cmnd);

/* Copies to the processor */
void bcm_rx_CopyToCpu_config_t_init(bcm_rx_CopyToCpu_config_t *config);
int bcm_rx_CopyToCpu_config_add(int unit, uint32 flags, bcm_rx_CopyToCpu_config_t *config);
int bcm_rx_CopyToCpu_config_get(int unit, int config_id, bcm_rx_CopyToCpu_config_t *config);
int bcm_rx_CopyToCpu_config_get_all(int unit, int config_max,
                                    bcm_rx_CopyToCpu_config_t *config_array, int *config_count);
int bcm_rx_CopyToCpu_config_delete(int unit, int config_id);
int bcm_rx_CopyToCpu_config_delete_all(int unit);

OMBRA_END_DECLS
