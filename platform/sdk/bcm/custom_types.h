/* Custom: per-port values that a platform serves itself. */
#pragma once
#include "native/base.h"

OMBRA_BEGIN_DECLS

/* Serves the custom values of a port. */
typedef int (*bcm_custom_cb_t)(int unit, int port, int setget, int type, int max_args, uint32 *args,
                               int *actual_args, void *user_data);

OMBRA_END_DECLS
