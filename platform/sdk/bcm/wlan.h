/* WLAN: wireless ports, clients and the tunnels to them. */
#pragma once
#include "native/base.h"
#include "sdk/bcm/tunnel_types.h"
#include "sdk/bcm/wlan_types.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

int bcm_wlan_init(int unit);
int bcm_wlan_detach(int unit);
void bcm_wlan_client_t_init(bcm_wlan_client_t *info);
int bcm_wlan_client_add(int unit, bcm_wlan_client_t *info);
int bcm_wlan_client_get(int unit, bcm_mac_t mac, bcm_wlan_client_t *info);
int bcm_wlan_client_delete(int unit, bcm_mac_t mac);
int bcm_wlan_client_delete_all(int unit);
int bcm_wlan_client_traverse(int unit, bcm_wlan_client_traverse_cb cb, void *user_data);
void bcm_wlan_port_t_init(bcm_wlan_port_t *info);
int bcm_wlan_port_add(int unit, bcm_wlan_port_t *info);
int bcm_wlan_port_get(int unit, bcm_gport_t wlan_port_id, bcm_wlan_port_t *info);
int bcm_wlan_port_delete(int unit, bcm_gport_t wlan_port_id);
int bcm_wlan_port_delete_all(int unit);
int bcm_wlan_port_traverse(int unit, bcm_wlan_port_traverse_cb cb, void *user_data);
int bcm_wlan_tunnel_initiator_create(int unit, bcm_tunnel_initiator_t *tunnel);
int bcm_wlan_tunnel_initiator_get(int unit, bcm_tunnel_initiator_t *tunnel);
int bcm_wlan_tunnel_initiator_destroy(int unit, bcm_gport_t tunnel_id);

OMBRA_END_DECLS
