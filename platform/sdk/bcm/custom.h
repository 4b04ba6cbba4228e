/* Custom: values of a port that the platform defines, and the function that serves them. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/custom_types.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

int bcm_custom_register(int unit, bcm_custom_cb_t cb, void *user_data);
int bcm_custom_unregister(int unit);
int bcm_custom_port_set(int unit, bcm_port_t port, int type, int len, uint32 *args);
int bcm_custom_port_get(int unit, bcm_port_t port, int type, int max_len, uint32 *args,
                        int *actual_len);

OMBRA_END_DECLS
