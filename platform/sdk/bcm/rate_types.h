/* Rate: limits on broadcast, multicast and unknown traffic. */
#pragma once
#include "native/base.h"

OMBRA_BEGIN_DECLS

/* The limits of a port by kind of traffic. */
typedef struct bcm_rate_limit_s {
    int br_dlfbc_rate;
    int br_mcast_rate;
    int br_bcast_rate;
    int flags;
} bcm_rate_limit_t;

/* A packet rate with its burst. */
typedef struct bcm_rate_packet_s {
    uint32 flags;
    int pps;
    int kbits_burst;
} bcm_rate_packet_t;

OMBRA_END_DECLS
