/* Common records: addresses, tags and small pairs that many chapters use. */
#pragma once
#include "native/base.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* One value read in several ways. The members share their storage. */
typedef union {
    uint8 u8;
    uint16 u16;
    uint32 u32;
    uint64 u64;
    sal_paddr_t paddr;
    sal_vaddr_t vaddr;
    void *ptr;
} any_t;

/* A port of a module. */
typedef struct bcm_mod_port_s {
    bcm_module_t mod;
    bcm_port_t port;
} bcm_mod_port_t;

/* A pair of internal priority and colour, and what it is remarked to. */
typedef struct bcm_priority_mapping_s {
    int internal_pri;
    bcm_color_t color;
    int remark_internal_pri;
    bcm_color_t remark_color;
    int policer_offset;
} bcm_priority_mapping_t;

/* The VN tag of a packet. */
typedef struct bcm_vntag_s {
    uint8 direction;
    uint8 pointer;
    uint16 dst_vif;
    uint8 loop;
    uint16 src_vif;
} bcm_vntag_t;

/* The E tag of a packet. */
typedef struct bcm_etag_s {
    uint8 pcp;
    uint8 de;
    uint16 src_vid;
    uint16 vid;
} bcm_etag_t;

/* Room for an address of either family. */
typedef struct bcm_ipv4_ipv6_addr_s {
    bcm_ip_t ipv4_addr;
    uint8 ipv6_addr[16];
} bcm_ipv4_ipv6_addr_t;

/* An address with its family. */
typedef struct bcm_ip_addr_s {
    int protocol;
    bcm_ipv4_ipv6_addr_t addr;
} bcm_ip_addr_t;

/* A time as the precision time protocol carries it. */
typedef struct bcm_ptp_timestamp_s {
    uint64 seconds;
    uint32 nanoseconds;
} bcm_ptp_timestamp_t;

OMBRA_END_DECLS
