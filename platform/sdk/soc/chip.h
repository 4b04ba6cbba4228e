/* Chip queries: the port database, blocks and fields that depend on the chip. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* Ports */
int soc_port_sw_db_core_get(int unit, int port, int *core);
int soc_port_sw_db_local_to_tm_port_get(int unit, int port, uint32 *tm_port, int *core);
int soc_port_sw_db_first_phy_port_get(int unit, int port, uint32 *phy_port);
int soc_jer_qsgmii_offsets_remove(int unit, uint32 phy, uint32 *new_phy);
int soc_jer_egr_port2egress_offset(int unit, int core, uint32 tm_port, uint32 *egr_if);

/* Blocks and statistics */
int soc_ftmh_cfg_get(int unit, int *p_cfg_ftmh_lb_key_ext_en, int *p_cfg_ftmh_stacking_ext_enable);
uint8 blocks_can_be_disabled(soc_block_types_t blocks);
uint8 block_can_be_disabled(soc_block_type_t block);
void soc_fe1600_stat_write(int unit, int port, int type, uint64 value);

OMBRA_END_DECLS
