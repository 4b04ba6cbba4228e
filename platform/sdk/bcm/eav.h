/* EAV: streams of audio and video over Ethernet, their bandwidth and their time. */
#pragma once
#include "native/base.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

int bcm_eav_init(int unit);
int bcm_eav_bandwidth_set(int unit, bcm_port_t port, bcm_eav_stream_class_t stream_class,
                          uint32 bytes_sec, uint32 bytes_burst);
int bcm_eav_bandwidth_get(int unit, bcm_port_t port, bcm_eav_stream_class_t stream_class,
                          uint32 *bytes_sec, uint32 *bytes_burst);
int bcm_eav_control_set(int unit, bcm_eav_control_t type, uint32 arg, uint32 arg_ext);
int bcm_eav_control_get(int unit, bcm_eav_control_t type, uint32 *arg, uint32 *arg_ext);
int bcm_eav_link_status_set(int unit, bcm_port_t port, int link_status);
int bcm_eav_link_status_get(int unit, bcm_port_t port, int *link_status);
int bcm_eav_pcp_mapping_set(int unit, bcm_eav_stream_class_t stream_class, int pcp,
                            int remapped_pcp);
int bcm_eav_pcp_mapping_get(int unit, bcm_eav_stream_class_t stream_class, int *pcp,
                            int *remapped_pcp);
int bcm_eav_port_enable_set(int unit, bcm_port_t port, int enable);
int bcm_eav_port_enable_get(int unit, bcm_port_t port, int *enable);
int bcm_eav_srp_mac_ethertype_set(int unit, bcm_mac_t mac, bcm_port_ethertype_t ethertype);
int bcm_eav_srp_mac_ethertype_get(int unit, bcm_mac_t mac, bcm_port_ethertype_t *ethertype);
int bcm_eav_timestamp_get(int unit, bcm_port_t port, uint32 *timestamp);
int bcm_eav_timesync_mac_set(int unit, bcm_mac_t eav_mac);
int bcm_eav_timesync_mac_get(int unit, bcm_mac_t eav_mac);

OMBRA_END_DECLS
