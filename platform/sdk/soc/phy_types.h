/* PHYs: what the PHY drivers know of each port. */
#pragma once
#include "native/base.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* The ports that share a PHY chip. */
typedef struct soc_phy_chip_info_s {
    int primary;
    int offset;
    int offset_to_port[8];
} soc_phy_chip_info_t;

/* The PHY of a port. phy_name is an array of `new char[]`. */
typedef struct soc_phy_info_s {
    uint16 phy_id0;
    uint16 phy_id1;
    uint16 phy_addr;
    uint16 phy_addr_int;
    char *phy_name;
    uint32 phy_flags;
    sal_usecs_t an_timeout;
    soc_phy_chip_info_t *chip_info;
} soc_phy_info_t;

/* What the diagnostics of a PHY found. */
typedef struct {
    int flags;
    uint32 serr;
    uint32 cerr;
    uint16 block_lock;
    uint16 block_point_id;
    uint16 digital_temp;
    uint16 analog_temp;
    uint8 snr_block[48];
} XGPHY_DIAG_DATA_t;

OMBRA_END_DECLS
