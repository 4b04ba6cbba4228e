/* Mcast: the older table of layer 2 multicast addresses. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/bcm/mcast_types.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

int bcm_mcast_init(int unit);
void bcm_mcast_addr_t_init(bcm_mcast_addr_t *mcaddr, bcm_mac_t mac, bcm_vlan_t vid);
int bcm_mcast_addr_add(int unit, bcm_mcast_addr_t *mcaddr);
int bcm_mcast_addr_remove(int unit, bcm_mac_t mac, bcm_vlan_t vid);
int bcm_mcast_addr_add_w_l2mcindex(int unit, bcm_mcast_addr_t *mcaddr);
int bcm_mcast_addr_remove_w_l2mcindex(int unit, bcm_mcast_addr_t *mcaddr);
int bcm_mcast_bitmap_set(int unit, int index, bcm_port_t port, bcm_pbmp_t pbmp);
int bcm_mcast_bitmap_get(int unit, int index, bcm_port_t port, bcm_pbmp_t *pbmp);
int bcm_mcast_bitmap_del(int unit, int index, bcm_port_t port, bcm_pbmp_t pbmp);
int bcm_mcast_bitmap_max_get(int unit, int *bitmap_max);
int bcm_mcast_join(int unit, bcm_mac_t mcMacAddr, bcm_vlan_t vlanId, int srcPort,
                   bcm_mcast_addr_t *mcaddr, bcm_pbmp_t *allRouterBmp);
int bcm_mcast_leave(int unit, bcm_mac_t mcMacAddr, bcm_vlan_t vlanId, int srcPort);
int bcm_mcast_port_add(int unit, bcm_mcast_addr_t *mcaddr);
int bcm_mcast_port_get(int unit, bcm_mac_t mac, bcm_vlan_t vid, bcm_mcast_addr_t *mcaddr);
int bcm_mcast_port_remove(int unit, bcm_mcast_addr_t *mcaddr);

OMBRA_END_DECLS
