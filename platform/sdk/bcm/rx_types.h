/* Receive: the engine that brings packets to the processor, and its traps. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/bcm/mirror_types.h"
#include "sdk/bcm/pkt_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* A receive channel. */
typedef struct bcm_rx_chan_cfg_s {
    int chains;
    int rate_pps;
    int flags;
    uint32 cos_bmp;
} bcm_rx_chan_cfg_t;

/* Allocates a receive buffer of `size` bytes. */
typedef int (*bcm_rx_alloc_f)(int unit, int size, uint32 flags, void **packet);

/* Releases a receive buffer. */
typedef int (*bcm_rx_free_f)(int unit, void *packet);

/* The receive engine. */
typedef struct bcm_rx_cfg_s {
    int pkt_size;
    int pkts_per_chain;
    int global_pps;
    int max_burst;
    bcm_rx_chan_cfg_t chan_cfg[4];
    bcm_rx_alloc_f rx_alloc;
    bcm_rx_free_f rx_free;
    int32 flags;
    int num_of_cpu_addresses;
    int *cpu_address;
} bcm_rx_cfg_t;

/* Where a trap leads on a core. */
typedef struct bcm_rx_trap_core_config_s {
    bcm_gport_t dest_port;
    bcm_if_t encap_id;
} bcm_rx_trap_core_config_t;

/* What a trap does with its packets. */
typedef struct bcm_rx_trap_config_s {
    uint32 flags;
    bcm_gport_t dest_port;
    bcm_multicast_t dest_group;
    int prio;
    bcm_color_t color;
    bcm_policer_t ether_policer_id;
    bcm_policer_t policer_id;
    int counter_num;
    int trap_strength;
    int snoop_cmnd;
    int snoop_strength;
    bcm_forwarding_type_t forwarding_type;
    bcm_rx_trap_forwarding_header_t forwarding_header;
    bcm_if_t encap_id;
    bcm_mirror_options_t *mirror_cmd;
    bcm_rx_trap_core_config_t *core_config_arr;
    int core_config_arr_len;
    int qos_map_id;
    int tunnel_termination_trap_strength;
    int tunnel_termination_snoop_strength;
} bcm_rx_trap_config_t;

/* What a snoop command does with its copies. */
typedef struct bcm_rx_snoop_config_s {
    uint32 flags;
    bcm_gport_t dest_port;
    bcm_multicast_t dest_group;
    int prio;
    bcm_color_t color;
    bcm_policer_t policer_id;
    int counter_num;
    int size;
    int probability;
    bcm_if_t encap_id;
} bcm_rx_snoop_config_t;

/* How packets are copied to the processor. */
typedef struct bcm_rx_CopyToCpu_config_s {
    int flags;
    int index;
    bcm_pkt_drop_reasons_t drop_reason_vector;
    int strength;
    int buffer_priority;
    int cpu_cosq;
} bcm_rx_CopyToCpu_config_t;

/* The largest packet of an interface. */
typedef struct bcm_rx_mtu_config_s {
    uint32 flags;
    bcm_if_t intf;
    bcm_gport_t gport;
    uint32 mtu;
} bcm_rx_mtu_config_t;

/* The queue of a packet by the reasons for which it came. */
typedef struct bcm_rx_cosq_mapping_s {
    uint32 flags;
    int index;
    bcm_rx_reasons_t reasons;
    bcm_rx_reasons_t reasons_mask;
    uint8 int_prio;
    uint8 int_prio_mask;
    uint32 packet_type;
    uint32 packet_type_mask;
    bcm_cos_queue_t cosq;
} bcm_rx_cosq_mapping_t;

/* Looks at a received packet and says whether it took it. */
typedef bcm_rx_t (*bcm_rx_cb_f)(int unit, bcm_pkt_t *pkt, void *cookie);

/* Registers a callback for received packets. */
typedef int (*bcm_rx_reg_f)(int unit, char const *name, bcm_rx_cb_f callback, uint8 priority,
                            void *cookie, uint32 flags);

/* Takes a callback out again. */
typedef int (*bcm_rx_unreg_f)(int unit, bcm_rx_cb_f callback, uint8 priority);

/* Chooses the queue that is served next. */
typedef int (*bcm_rx_sched_cb)(int unit, int *sched_unit, bcm_cos_queue_t *sched_queue,
                               int *sched_count);

OMBRA_END_DECLS
