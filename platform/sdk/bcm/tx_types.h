/* Transmit: sending packets, and the table of functions behind receive and transmit. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/pkt_types.h"
#include "sdk/bcm/rx_types.h"
#include "sdk/enums.h"

OMBRA_BEGIN_DECLS

/* Sends an array of packets. */
typedef int (*bcm_tx_array_f)(int unit, bcm_pkt_t **pkt, int count, bcm_pkt_cb_f all_done_cb,
                              void *cookie);

/* Sends one packet. */
typedef int (*bcm_tx_f)(int unit, bcm_pkt_t *tx_pkt, void *cookie);

/* Sends a list of packets. */
typedef int (*bcm_tx_list_f)(int unit, bcm_pkt_t *pkt, bcm_pkt_cb_f all_done_cb, void *cookie);

/* Prepares a packet for sending. */
typedef int (*bcm_tx_pkt_setup_f)(int unit, bcm_pkt_t *tx_pkt);

/* The functions that carry receive and transmit on a unit, and that unit. */
typedef struct bcm_trans_ptr_s {
    bcm_rx_alloc_f tp_data_alloc;
    bcm_rx_free_f tp_data_free;
    bcm_pkt_alloc_f tp_pkt_alloc;
    bcm_pkt_free_f tp_pkt_free;
    bcm_rx_reg_f tp_rx_reg;
    bcm_rx_unreg_f tp_rx_unreg;
    bcm_tx_pkt_setup_f tp_setup_tx;
    bcm_tx_f tp_tx;
    bcm_tx_list_f tp_tx_list;
    bcm_tx_array_f tp_tx_array;
    bcm_pkt_l2_map_f tp_l2_map;
    int tp_unit;
} bcm_trans_ptr_t;

/* Carries a packet to the processor of another module. */
typedef int (*bcm_tx_cpu_tunnel_f)(bcm_pkt_t *pkt, int dest_unit, int remote_port, uint32 flags,
                                   bcm_cpu_tunnel_mode_t mode);

OMBRA_END_DECLS
