/* Auth: authentication of ports. */
#pragma once
#include "native/base.h"

OMBRA_BEGIN_DECLS

/* Told when a port loses its authentication. */
typedef void (*bcm_auth_cb_t)(void *cookie, int unit, int port, int reason);

OMBRA_END_DECLS
