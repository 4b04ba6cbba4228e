/* Time: interfaces, captures and clocks. */
#pragma once
#include "native/base.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* A time or a difference of times. */
typedef struct bcm_time_spec_s {
    uint8 isnegative;
    uint64 seconds;
    uint32 nanoseconds;
} bcm_time_spec_t;

/* A time interface: its clock, offset and drift. */
typedef struct bcm_time_interface_s {
    uint32 flags;
    bcm_time_if_t id;
    bcm_time_spec_t drift;
    bcm_time_spec_t offset;
    bcm_time_spec_t accuracy;
    int heartbeat_hz;
    int clk_resolution;
    int bitclock_hz;
    bcm_bs_time_source_t status;
    bcm_time_spec_t ntp_offset;
} bcm_time_interface_t;

/* The times of one capture. */
typedef struct bcm_time_capture_s {
    uint32 flags;
    bcm_time_spec_t free;
    bcm_time_spec_t syntonous;
    bcm_time_spec_t synchronous;
    bcm_time_spec_t received;
    bcm_time_spec_t received_accuracy;
} bcm_time_capture_t;

/* The divisors of a synchronous Ethernet clock. */
typedef struct bcm_time_synce_divisor_setting_s {
    bcm_time_synce_input_src_type_t input_src;
    uint32 index;
    bcm_time_synce_stage0_mode_t stage0_mode;
    uint32 stage0_sdm_whole;
    uint32 stage0_sdm_frac;
    bcm_time_synce_stage1_div_t stage1_div;
} bcm_time_synce_divisor_setting_t;

/* Where the time engine sends its log. */
typedef struct bcm_time_bs_log_cfg_s {
    uint32 debug_mask;
    uint64 udp_log_mask;
    bcm_mac_t src_mac;
    bcm_mac_t dest_mac;
    uint16 tpid;
    uint16 vid;
    uint8 ttl;
    bcm_ip_t src_addr;
    bcm_ip_t dest_addr;
    uint16 udp_port;
} bcm_time_bs_log_cfg_t;

/* Called for each time interface. */
typedef int (*bcm_time_interface_traverse_cb)(int unit, bcm_time_interface_t *intf,
                                              void *user_data);

/* Called at each heartbeat. */
typedef int (*bcm_time_heartbeat_cb)(int unit, bcm_time_if_t id, bcm_time_capture_t *time,
                                     void *user_data);

OMBRA_END_DECLS
