/* Values: native types that rows pass or point at and that are no classes of their own. */
#pragma once
#include <setjmp.h>

#include "native/base.h"

/* Bounds and sizes. */

/* Words of a port bitmap: bit n stands for port n. */
#define _SHR_PBMP_WORDS 18

/* Words of a set of receive reasons. */
#define _SHR_RX_REASON_WORDS 6

/* Room for an IPv4 address as text, with its terminator. */
#define IPADDR_STR_LEN 16

/* Blocks that travel whole and unread. Their sizes are ours, with room to spare. */
#define OMBRA_PORT_ABILITY_WORDS 16
#define OMBRA_TRAP_PROFILE_WORDS 16
#define OMBRA_SNOOP_MIRROR_WORDS 16

OMBRA_BEGIN_DECLS

/* Port bitmaps. bcm_pbmp_t crosses as a list of port numbers, its two twins as opaque values. */
typedef struct _shr_pbmp {
    uint32 pbits[_SHR_PBMP_WORDS];
} _shr_pbmp_t;
typedef _shr_pbmp_t bcm_pbmp_t;
typedef _shr_pbmp_t soc_pbmp_t;
typedef _shr_pbmp_t pbmp_t;

/* The reasons for which a packet came to the processor, one bit for each bcm_rx_reason_t. */
typedef struct _shr_rx_reasons_s {
    uint32 pbits[_SHR_RX_REASON_WORDS];
} _shr_rx_reasons_t;
typedef _shr_rx_reasons_t bcm_rx_reasons_t;

/* What a port can do: speeds, pause, interface, medium and the like, in one block. */
typedef struct _shr_port_ability_s {
    uint32 words[OMBRA_PORT_ABILITY_WORDS];
} _shr_port_ability_t;
typedef _shr_port_ability_t bcm_port_ability_t;
typedef _shr_port_ability_t soc_port_ability_t;

/* The action profile of a trap. */
typedef struct {
    uint64 words[OMBRA_TRAP_PROFILE_WORDS];
} SOC_PPC_TRAP_FRWRD_ACTION_PROFILE_INFO;

/* What a snoop or mirror command does with its copy. */
typedef struct {
    uint64 words[OMBRA_SNOOP_MIRROR_WORDS];
} SOC_TMC_ACTION_CMD_SNOOP_MIRROR_INFO;

/* A member of a LAG. The module clears the record and sets sys_port and member_id. */
typedef struct {
    uint32 type;
    uint32 sys_port;
    uint32 member_id;
    uint32 reserved[13];
} SOC_PPC_LAG_MEMBER;

/* Which application asks for an outgoing logical interface. */
typedef int SOC_OCC_MGMT_OUTLIF_APP;

/* Numbers of the helper library that Python holds by pointer only. */
typedef unsigned int U32;
typedef unsigned int uint;

/* The kinds of block that a register or memory belongs to, as a list of soc_block_type_t. */
typedef int const *soc_block_types_t;

/* A key of the shell's tables: the word that it stands for. */
typedef char const *parse_key_t;

/* Records of the components outside, known by address only. */
typedef struct args_s args_t;
typedef struct ibde_s ibde_t;
typedef struct parse_table_s parse_table_t;
typedef struct soc_field_info_s soc_field_info_t;
typedef struct soc_phy_config_s soc_phy_config_t;
typedef struct soc_port_cable_diag_s soc_port_cable_diag_t;
typedef struct _shr_phy_config_s _shr_phy_config_t;
typedef struct _shr_port_cable_diag_s _shr_port_cable_diag_t;
typedef struct _shr_switch_temperature_monitor_s _shr_switch_temperature_monitor_t;
typedef _shr_phy_config_t bcm_phy_config_t;
typedef _shr_port_cable_diag_t bcm_port_cable_diag_t;
typedef _shr_switch_temperature_monitor_t bcm_switch_temperature_monitor_t;

/* Callbacks that pass as opaque values, not as function pointers. */
typedef int (*_shr_port_phy_reset_cb_t)(int unit, int port, void *user_data);
typedef _shr_port_phy_reset_cb_t bcm_port_phy_reset_cb_t;
typedef _shr_port_phy_reset_cb_t soc_port_phy_reset_cb_t;
typedef int (*_shr_port_medium_status_cb_t)(int unit, int port, int medium, void *user_data);
typedef _shr_port_medium_status_cb_t bcm_port_medium_status_cb_t;
typedef _shr_port_medium_status_cb_t soc_port_medium_status_cb_t;

OMBRA_END_DECLS
