/* Stacking: module identifiers and ports across a stack. */
#pragma once
#include "native/base.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* A module identifier and its kind. */
typedef struct bcm_stk_modid_config_s {
    uint32 flags;
    int modid;
    int num_ports;
    bcm_stk_modid_type_t modid_type;
    int num_mods;
} bcm_stk_modid_config_t;

/* The system gport of a local port. */
typedef struct bcm_stk_system_gport_map_s {
    uint32 flags;
    bcm_module_t modid;
    bcm_gport_t dest_gport;
    bcm_gport_t system_gport;
} bcm_stk_system_gport_map_t;

/* Told when the stack changes. */
typedef void (*bcm_stk_cb_f)(int unit, int modid, uint32 flags, void *cookie);

/* Maps a module and port to those of another view. */
typedef int (*bcm_stk_modmap_cb_t)(int unit, int setget, bcm_module_t mod_in, bcm_port_t port_in,
                                   bcm_module_t *mod_out, bcm_port_t *port_out);

OMBRA_END_DECLS
