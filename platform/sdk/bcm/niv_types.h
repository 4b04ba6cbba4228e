/* NIV: virtual interfaces behind a port. */
#pragma once
#include "native/base.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* A virtual interface. */
typedef struct bcm_niv_port_s {
    uint32 flags;
    bcm_gport_t niv_port_id;
    bcm_gport_t port;
    uint16 virtual_interface_id;
    bcm_vlan_t match_vlan;
    uint16 match_service_tpid;
    uint32 if_class;
} bcm_niv_port_t;

/* Where a virtual interface is reached. */
typedef struct bcm_niv_forward_s {
    uint32 flags;
    uint16 name_space;
    uint16 virtual_interface_id;
    bcm_gport_t dest_port;
    bcm_multicast_t dest_multicast;
} bcm_niv_forward_t;

/* What is sent towards a virtual interface. */
typedef struct bcm_niv_egress_s {
    uint32 flags;
    bcm_gport_t port;
    uint16 virtual_interface_id;
    bcm_vlan_t match_vlan;
    bcm_if_t egress_if;
    uint16 service_tpid;
    bcm_vlan_t service_vlan;
    uint8 service_pri;
    uint8 service_cfi;
    int service_qos_map_id;
    bcm_if_t intf;
    uint32 multicast_flags;
} bcm_niv_egress_t;

/* Called for each port. */
typedef int (*bcm_niv_port_traverse_cb)(int unit, bcm_niv_port_t *niv_port, void *user_data);

/* Called for each forwarding entry. */
typedef int (*bcm_niv_forward_traverse_cb)(int unit, bcm_niv_forward_t *iv_fwd_entry,
                                           void *user_data);

OMBRA_END_DECLS
