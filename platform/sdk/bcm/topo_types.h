/* Topology: the way from module to module. */
#pragma once
#include "native/base.h"

OMBRA_BEGIN_DECLS

/* Maps a destination module to the port towards it. */
typedef int (*bcm_topo_map_f)(int unit, int modid, int *port);

OMBRA_END_DECLS
