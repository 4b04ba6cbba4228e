/* Variables: the SDK's global data that the module reads, and in part writes, by name. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/tx_types.h"
#include "sdk/scalars.h"
#include "sdk/soc/phy_types.h"

/* Units that a process can hold. */
#define SOC_MAX_NUM_DEVICES 66

OMBRA_BEGIN_DECLS

/* The record of a unit. The SDK alone knows its members; the module reads cells by position. */
typedef struct soc_control_s soc_control_t;

/* The records by unit; null where no unit is attached. */
extern soc_control_t *soc_control[SOC_MAX_NUM_DEVICES];

/* The flags of the MAC table by name. */
extern char *bcm_l2_flags_str[];
extern int bcm_l2_flags_count;

/* Receive and transmit. */
extern int bcm_rx_token_check_us;
extern bcm_trans_ptr_t bcm_trans_ptr;
extern int bcm_rx_pktlist_count;

/* The settings of the shell. */
extern int sh_rcload_depth;
extern int sh_set_rcload;
extern int sh_set_rcerror;
extern int sh_set_lperror;
extern int sh_set_iferror;
extern int sh_set_rctest;
extern int sh_set_more_lines;
extern int sh_set_report_time;
extern int sh_set_report_status;

/* Where the SDK's build comes from. Each text, when not null, is an array of `new char[]`. */
extern char *_build_release;
extern char *_build_user;
extern char *_build_host;
extern char *_build_date;
extern char *_build_datestamp;
extern char *_build_tree;

/* PHYs by unit: the records of the ports, the port of each PHY address, and a port translation. */
extern soc_phy_info_t *phy_port_info[SOC_MAX_NUM_DEVICES];
extern soc_port_t *phy_rmap[SOC_MAX_NUM_DEVICES];
extern int (*soc_phy_cb_xlate_port_func)(int unit, int *port);

/* The register types by name, and the granularity of each. */
extern char *soc_regtypenames[];
extern int soc_regtype_gran[];

OMBRA_END_DECLS
