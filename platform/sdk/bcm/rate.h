/* Rate: limits of broadcast, multicast and unknown packets, and of bandwidth. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/rate_types.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

int bcm_rate_set(int unit, int pps, int flags);
int bcm_rate_get(int unit, int *pps, int *flags);
int bcm_rate_bandwidth_set(int unit, bcm_port_t port, int flags, uint32 kbits_sec,
                           uint32 kbits_burst);
int bcm_rate_bandwidth_get(int unit, bcm_port_t port, int flags, uint32 *kbits_sec,
                           uint32 *kbits_burst);
int bcm_rate_bcast_set(int unit, int pps, int flags, int port);
int bcm_rate_bcast_get(int unit, int *pps, int *flags, int port);
int bcm_rate_dlfbc_set(int unit, int pps, int flags, int port);
int bcm_rate_dlfbc_get(int unit, int *pps, int *flags, int port);
int bcm_rate_mcast_set(int unit, int pps, int flags, int port);
int bcm_rate_mcast_get(int unit, int *pps, int *flags, int port);
void bcm_rate_packet_t_init(bcm_rate_packet_t *packet);
int bcm_rate_packet_set(int unit, bcm_port_t port, bcm_rate_packet_t *packet);
int bcm_rate_packet_get(int unit, bcm_port_t port, bcm_rate_packet_t *packet);
void bcm_rate_limit_t_init(bcm_rate_limit_t *limit);
int bcm_rate_type_set(int unit, bcm_rate_limit_t *limit);
int bcm_rate_type_get(int unit, bcm_rate_limit_t *limit);

OMBRA_END_DECLS
