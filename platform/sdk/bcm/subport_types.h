/* Subports: groups, ports and link PHYs. */
#pragma once
#include "native/base.h"
#include "sdk/constants.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* A group of subports. */
typedef struct bcm_subport_group_config_s {
    uint32 flags;
    bcm_gport_t port;
    bcm_vlan_t vlan;
    int if_class;
    uint32 prop_flags;
    bcm_gport_t queue_base;
    int qos_map_id;
} bcm_subport_group_config_t;

/* A subport of a group. */
typedef struct bcm_subport_config_s {
    bcm_gport_t group;
    bcm_vlan_t pkt_vlan;
    bcm_vlan_t inner_vlan;
    bcm_vlan_t outer_vlan;
    int int_pri;
    uint32 prop_flags;
    uint16 stream_id_array[2];
    int num_streams;
    bcm_color_t color;
    bcm_subport_match_t criteria;
    bcm_gport_t subport_modport;
} bcm_subport_config_t;

/* A set of receive errors, one bit for each bcm_subport_linkphy_rx_error_t. */
typedef struct bcm_subport_linkphy_rx_errors_s {
    SHR_BITDCL w[_SHR_BITDCLSIZE(bcmSubportLinkphyRxErrorCount)];
} bcm_subport_linkphy_rx_errors_t;

/* The link PHY of a group. */
typedef struct bcm_subport_group_linkphy_config_s {
    uint32 action_mask;
    uint16 base_stream_id;
    bcm_subport_group_linkphy_header_mode_t header_mode;
    uint32 rx_check_flags;
    uint16 rx_vlan_tpid;
    bcm_mac_t rx_nearend_mac;
    bcm_mac_t rx_farend_mac;
    bcm_mac_t rx_dfc_dest_mac;
    uint16 rx_dfc_opcode;
    uint16 rx_dfc_time;
    uint16 rx_dfc_mac_type;
    uint16 tx_vlan_tpid;
    bcm_mac_t tx_nearend_mac;
    bcm_mac_t tx_farend_mac;
} bcm_subport_group_linkphy_config_t;

/* What came with a receive error. */
typedef struct bcm_subport_linkphy_rx_error_data_s {
    bcm_port_t port;
    uint16 ext_stream_id;
    uint8 fragment_data[192];
} bcm_subport_linkphy_rx_error_data_t;

/* Told of each receive error of a link PHY. */
typedef int (*bcm_subport_linkphy_rx_error_callback)(int unit, bcm_subport_linkphy_rx_error_t error,
                                                     uint32 flags,
                                                     bcm_subport_linkphy_rx_error_data_t *data,
                                                     void *user_data);

/* Who is told of receive errors. */
typedef struct bcm_subport_linkphy_rx_error_reg_info_s {
    bcm_subport_linkphy_rx_error_callback cb;
    int data_log_enable;
} bcm_subport_linkphy_rx_error_reg_info_t;

/* Called for each subport. */
typedef int (*bcm_subport_port_traverse_cb)(int unit, bcm_gport_t port,
                                            bcm_subport_config_t *config, void *user_data);

OMBRA_END_DECLS
