/* Mirror: copies of traffic: destinations, and what is sent to them. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/bcm/mirror_types.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* Module and mode */
int bcm_mirror_init(int unit);
int bcm_mirror_mode_set(int unit, int mode);
int bcm_mirror_mode_get(int unit, int *mode);
int bcm_mirror_to_set(int unit, bcm_port_t port);
int bcm_mirror_to_get(int unit, bcm_port_t *port);
int bcm_mirror_to_pbmp_set(int unit, bcm_port_t port, bcm_pbmp_t pbmp);
int bcm_mirror_to_pbmp_get(int unit, bcm_port_t port, bcm_pbmp_t *pbmp);
int bcm_mirror_egress_set(int unit, bcm_port_t port, int enable);
int bcm_mirror_egress_get(int unit, bcm_port_t port, int *enable);
int bcm_mirror_ingress_set(int unit, bcm_port_t port, int enable);
int bcm_mirror_ingress_get(int unit, bcm_port_t port, int *enable);
int bcm_mirror_vlan_set(int unit, bcm_port_t port, uint16 tpid, uint16 vlan);
int bcm_mirror_vlan_get(int unit, bcm_port_t port, uint16 *tpid, uint16 *vlan);

/* Destinations */
void bcm_mirror_destination_t_init(bcm_mirror_destination_t *mirror_dest);
int bcm_mirror_destination_create(int unit, bcm_mirror_destination_t *mirror_dest);
int bcm_mirror_destination_get(int unit, bcm_gport_t mirror_dest_id,
                               bcm_mirror_destination_t *mirror_dest);
int bcm_mirror_destination_destroy(int unit, bcm_gport_t mirror_dest_id);
int bcm_mirror_destination_traverse(int unit, bcm_mirror_destination_traverse_cb cb,
                                    void *user_data);
void bcm_mirror_pkt_header_updates_t_init(bcm_mirror_pkt_header_updates_t *updates);

/* Ports and their destinations */
int bcm_mirror_port_set(int unit, bcm_port_t port, bcm_module_t dest_mod, bcm_port_t dest_port,
                        uint32 flags);
int bcm_mirror_port_get(int unit, bcm_port_t port, bcm_module_t *dest_mod, bcm_port_t *dest_port,
                        uint32 *flags);
int bcm_mirror_port_dest_add(int unit, bcm_port_t port, uint32 flags, bcm_gport_t mirror_dest_id);
int bcm_mirror_port_dest_get(int unit, bcm_port_t port, uint32 flags, int mirror_dest_size,
                             bcm_gport_t *mirror_dest, int *mirror_dest_count);
int bcm_mirror_port_dest_delete(int unit, bcm_port_t port, uint32 flags,
                                bcm_gport_t mirror_dest_id);
int bcm_mirror_port_dest_delete_all(int unit, bcm_port_t port, uint32 flags);
void bcm_mirror_options_t_init(bcm_mirror_options_t *options);
int bcm_mirror_port_destination_add(int unit, bcm_port_t port, uint32 flags,
                                    bcm_gport_t mirror_dest_id, bcm_mirror_options_t options);
int bcm_mirror_port_destination_get(int unit, bcm_port_t port, uint32 flags, int mirror_dest_size,
                                    bcm_gport_t *mirror_dest, int *mirror_dest_count,
                                    bcm_mirror_options_t *options);
void bcm_mirror_port_info_t_init(bcm_mirror_port_info_t *info);
int bcm_mirror_port_info_set(int unit, bcm_port_t port, uint32 flags, bcm_mirror_port_info_t *info);
int bcm_mirror_port_info_get(int unit, bcm_port_t port, uint32 flags, bcm_mirror_port_info_t *info);

/* VLANs of a port and their destinations */
int bcm_mirror_port_vlan_set(int unit, bcm_port_t port, bcm_vlan_t vid, bcm_gport_t destport,
                             uint32 flags);
int bcm_mirror_port_vlan_get(int unit, bcm_port_t port, bcm_vlan_t vid, bcm_gport_t *destport,
                             uint32 *flags);
int bcm_mirror_port_vlan_dest_add(int unit, bcm_port_t port, bcm_vlan_t vid, uint32 flags,
                                  bcm_gport_t mirror_dest_id);
int bcm_mirror_port_vlan_dest_get(int unit, bcm_port_t port, bcm_vlan_t vid, uint32 flags,
                                  uint32 mirror_dest_size, bcm_gport_t *mirror_dest,
                                  uint32 *mirror_dest_count);
int bcm_mirror_port_vlan_dest_delete(int unit, bcm_port_t port, bcm_vlan_t vid, uint32 flags,
                                     bcm_gport_t mirror_dest_id);
int bcm_mirror_port_vlan_dest_delete_all(int unit, bcm_port_t port, bcm_vlan_t vid, uint32 flags);
int bcm_mirror_port_vlan_destination_add(int unit, bcm_port_t port, bcm_vlan_t vid, uint32 flags,
                                         bcm_gport_t mirror_dest_id, bcm_mirror_options_t options);
int bcm_mirror_port_vlan_destination_get(int unit, bcm_port_t port, bcm_vlan_t vid, uint32 flags,
                                         uint32 mirror_dest_size, bcm_gport_t *mirror_dest,
                                         uint32 *mirror_dest_count, bcm_mirror_options_t *options);

OMBRA_END_DECLS
