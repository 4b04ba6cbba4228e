/* PHYs: where they are, how they are attached, and what they report. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/scalars.h"
#include "sdk/soc/phy_types.h"

OMBRA_BEGIN_DECLS

/* Start */
int soc_phy_common_init(int unit);
int soc_phy_common_detach(int unit);
int soc_phy_init(int unit);
int soc_phy_deinit(int unit);
int soc_phy_port_init(int unit, soc_port_t port);
int soc_phy_reset(int unit, soc_port_t port);
int soc_phy_reset_register(int unit, soc_port_t port, soc_port_phy_reset_cb_t callback,
                           void *user_data, int reg_default);
int soc_phy_reset_unregister(int unit, soc_port_t port, soc_port_phy_reset_cb_t callback,
                             void *user_data);

/* Identity and address */
char *soc_phy_name_get(int unit, soc_port_t port);
int soc_phy_info_get(int unit, soc_port_t port, soc_phy_info_t *pi);
uint16 soc_phy_id0reg_get(int unit, soc_port_t port);
uint16 soc_phy_id1reg_get(int unit, soc_port_t port);
int soc_phy_is_c45_miim(int unit, soc_port_t port);
uint16 soc_phy_addr_of_port(int unit, soc_port_t port);
uint16 soc_phy_addr_int_of_port(int unit, soc_port_t port);
soc_port_t soc_phy_addr_to_port(int unit, uint16 phy_id);
int soc_phy_cfg_addr_set(int unit, soc_port_t port, int flags, uint16 addr);
int soc_phy_cfg_addr_get(int unit, soc_port_t port, int flags, uint16 *addr_ptr);
int soc_phy_primary_and_offset_get(int unit, soc_port_t port, soc_port_t *primary_port,
                                   int *offset);

/* State */
sal_usecs_t soc_phy_an_timeout_get(int unit, soc_port_t port);
int soc_phy_boot_master_get(int unit, soc_port_t port, int *bm, int *cm);
int soc_phy_medium_status_register(int unit, soc_port_t port, soc_port_medium_status_cb_t cb,
                                   void *user_data);
int soc_phy_medium_status_unregister(int unit, soc_port_t port, soc_port_medium_status_cb_t cb,
                                     void *user_data);
void soc_phy_medium_status_notify(int unit, soc_port_t port, soc_port_medium_t medium);
int soc_enable_txrx_set(int unit, soc_port_t port, int txEnable, int rxEnable);
int soc_enable_txrx_get(int unit, soc_port_t port, int *txEnabled, int *rxEnabled);
int soc_serdes_mask_100G_set(int unit, soc_port_t port, uint32 mask);
int soc_serdes_mask_100G_get(int unit, soc_port_t port, uint32 *mask);
int soc_cmic_rate_param_set(int unit, int dividend, int divisor);
int soc_cmic_rate_param_get(int unit, int *dividend, int *divisor);

OMBRA_END_DECLS
