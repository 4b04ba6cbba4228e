/* Proxy: ports whose packets another unit processes. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/proxy_types.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

int bcm_proxy_init(int unit);
int bcm_proxy_cleanup(int unit);
int bcm_proxy_client_set(int unit, bcm_port_t client_port, bcm_proxy_proto_type_t proto_type,
                         bcm_module_t server_modid, bcm_port_t server_port, int enable);
void bcm_proxy_egress_t_init(bcm_proxy_egress_t *egress);
int bcm_proxy_egress_create(int unit, uint32 flags, bcm_proxy_egress_t *egress,
                            bcm_if_t *egress_id);
int bcm_proxy_egress_get(int unit, bcm_if_t egress_id, bcm_proxy_egress_t *egress);
int bcm_proxy_egress_destroy(int unit, bcm_if_t egress_id);
int bcm_proxy_egress_traverse(int unit, bcm_proxy_egress_traverse_cb cb, void *user_data);
int bcm_proxy_server_set(int unit, bcm_port_t port, bcm_proxy_mode_t mode, int enable);
int bcm_proxy_server_get(int unit, bcm_port_t port, bcm_proxy_mode_t mode, int *enable);
void bcm_proxy_server_t_init(bcm_proxy_server_t *server);
int bcm_proxy_server_port_set(int unit, bcm_gport_t port, bcm_proxy_server_t *server, int enable);
int bcm_proxy_server_port_get(int unit, bcm_gport_t port, bcm_proxy_server_t *server, int *enable);

OMBRA_END_DECLS
