/* TX: sending packets from the processor, one, a list or an array. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/pkt_types.h"
#include "sdk/bcm/tx_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

int bcm_tx_init(int unit);
int bcm_tx_array(int unit, bcm_pkt_t **pkt, int count, bcm_pkt_cb_f all_done_cb, void *cookie);
int bcm_tx_cpu_tunnel_set(bcm_tx_cpu_tunnel_f func);
int bcm_tx_cpu_tunnel(bcm_pkt_t *pkt, int dest_unit, int remote_port, uint32 flags,
                      bcm_cpu_tunnel_mode_t mode);
int bcm_tx_cpu_tunnel_get(bcm_tx_cpu_tunnel_f *func);
int bcm_tx_dv_dump(int unit, void *cookie);
int bcm_tx_list(int unit, bcm_pkt_t *pkt, bcm_pkt_cb_f all_done_cb, void *cookie);
int bcm_tx_pkt_l2_map(int unit, bcm_pkt_t *pkt, bcm_mac_t dest_mac, int vid);
int bcm_tx_pkt_setup(int unit, bcm_pkt_t *pkt);
int bcm_tx_show(int unit);
int bcm_tx(int unit, bcm_pkt_t *tx_pkt, void *cookie);

OMBRA_END_DECLS
