/* Auth: authentication of ports and the addresses that may use them. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/auth_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

int bcm_auth_init(int unit);
int bcm_auth_detach(int unit);
int bcm_auth_egress_set(int unit, int port, int enable);
int bcm_auth_egress_get(int unit, int port, int *enable);
int bcm_auth_mac_add(int unit, int port, bcm_mac_t mac);
int bcm_auth_mac_delete(int unit, int port, bcm_mac_t mac);
int bcm_auth_mac_delete_all(int unit, int port);
int bcm_auth_mac_control_set(int unit, bcm_auth_mac_control_t type, uint32 arg);
int bcm_auth_mac_control_get(int unit, bcm_auth_mac_control_t type, uint32 *arg);
int bcm_auth_mode_set(int unit, int port, uint32 mode);
int bcm_auth_mode_get(int unit, int port, uint32 *mode);
int bcm_auth_unauth_callback(int unit, bcm_auth_cb_t cb, void *user_data);

OMBRA_END_DECLS
