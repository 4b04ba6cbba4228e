/* Linkscan: the background link scanner. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/port_types.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* Told of each change of a link. */
typedef void (*bcm_linkscan_handler_t)(int unit, bcm_port_t port, bcm_port_info_t *info);

/* Reads the state of a link in place of the scanner. */
typedef int (*bcm_linkscan_port_handler_t)(int unit, bcm_port_t port, int *link);

OMBRA_END_DECLS
