/* Debug: one line in the log for a call of the API. */
#pragma once
#include "native/base.h"

OMBRA_BEGIN_DECLS

void _bcm_debug_api(int log_src, char *api, int nargs, int ninargs, int arg1, int arg2, int arg3,
                    int rv);

OMBRA_END_DECLS
