/* Topology: the map of modules, and the port that leads to one. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/topo_types.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

int bcm_topo_map_set(bcm_topo_map_f func);
int bcm_topo_map_get(bcm_topo_map_f *func);
int bcm_topo_port_get(int unit, int dest_modid, bcm_port_t *exit_port);

OMBRA_END_DECLS
