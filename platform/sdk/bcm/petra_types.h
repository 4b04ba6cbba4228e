/* Petra and dpp: the port layers below the API, under their internal names. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/constants.h"

/* Ports of a chip. */
#define SOC_TMC_NOF_FAP_PORTS_MAX 256

OMBRA_BEGIN_DECLS

/* The lanes of a MAC aggregation layer. */
typedef struct bcm_dpp_mal_assoc_s {
    uint8 mal;
    uint8 lanes;
    uint16 nif_type;
} bcm_dpp_mal_assoc_t;

/* A trap of the user's own. */
typedef struct bcm_dpp_user_defined_traps_s {
    SOC_PPC_TRAP_FRWRD_ACTION_PROFILE_INFO trap;
    uint32 snoop_cmd;
    uint32 gport_trap_id;
    uint32 ud_unique;
} bcm_dpp_user_defined_traps_t;

/* A snoop command. */
typedef struct bcm_dpp_snoop_s {
    SOC_TMC_ACTION_CMD_SNOOP_MIRROR_INFO snoop_action_info;
    uint32 snoop_unique;
} bcm_dpp_snoop_t;

/* A TPID class, packed. */
typedef struct _bcm_dpp_port_tpid_class_info_s {
    uint32 buff[(20)];
} _bcm_dpp_port_tpid_class_info_t;

/* The TPIDs of a port, two rows of four, and how often each is in use. */
typedef struct bcm_petra_port_tpid_info bcm_petra_port_tpid_info;
struct bcm_petra_port_tpid_info {
    uint16 tpid[(2)][(4)];
    int tpid_count[(2)][(4)];
};

/* What the port layer keeps of a unit. */
typedef struct bcm_dpp_port_config_s {
    int bcm_petra_port_init_arrays_done;
    int port_pp_initialized;
    int map_tbl_use[_bcm_dpp_port_map_type_count][(8)];
    int trap_to_flag[4];
    bcm_petra_port_tpid_info *bcm_port_tpid_info;
} bcm_dpp_port_config_t;

/* The accepted frame types of a TPID class, packed. */
typedef struct _bcm_dpp_port_tpid_class_acceptable_frame_type_info_s {
    uint32 buffer;
} _bcm_dpp_port_tpid_class_acceptable_frame_type_info_t;

/* What the port layer keeps of its ports. */
typedef struct {
    uint8 tpids_count[SOC_TMC_NOF_FAP_PORTS_MAX];
    bcm_dpp_port_config_t dpp_port_config;
    pbmp_t prbs_mac_mode;
} bcm_dpp_port_info_t;

OMBRA_END_DECLS
