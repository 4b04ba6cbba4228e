/* WLAN: wireless ports and clients. */
#pragma once
#include "native/base.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* A wireless port. */
typedef struct bcm_wlan_port_s {
    uint32 flags;
    bcm_gport_t wlan_port_id;
    bcm_gport_t port;
    int if_class;
    bcm_mac_t bssid;
    int radio;
    bcm_gport_t match_tunnel;
    bcm_gport_t egress_tunnel;
    uint16 client_multicast;
    bcm_if_t encap_id;
} bcm_wlan_port_t;

/* A wireless client. */
typedef struct bcm_wlan_client_s {
    uint32 flags;
    bcm_gport_t wlan_port_id;
    bcm_mac_t mac;
    bcm_gport_t home_agent;
    bcm_gport_t wtp;
} bcm_wlan_client_t;

/* Called for each client. */
typedef int (*bcm_wlan_client_traverse_cb)(int unit, bcm_wlan_client_t *info, void *user_data);

/* Called for each port. */
typedef int (*bcm_wlan_port_traverse_cb)(int unit, bcm_wlan_port_t *info, void *user_data);

OMBRA_END_DECLS
