/* QoS: maps between priorities and markings. */
#pragma once
#include "native/base.h"
#include "sdk/enums.h"

OMBRA_BEGIN_DECLS

/* An entry of a map: markings outside, priority and colour inside. */
typedef struct bcm_qos_map_s {
    uint8 pkt_pri;
    uint8 pkt_cfi;
    int dscp;
    int exp;
    int int_pri;
    bcm_color_t color;
    int remark_int_pri;
    bcm_color_t remark_color;
    int policer_offset;
    int queue_offset;
    int port_offset;
    uint8 etag_pcp;
    uint8 etag_de;
    int counter_offset;
    int inherited_dscp_exp;
} bcm_qos_map_t;

OMBRA_END_DECLS
