// Which fields of a record are its key. Declarations do not say it, so it stands here.

#include <algorithm>
#include <sstream>

#include "generator/standin/plan.h"

namespace generator {
namespace {

// An empty list of fields is the whole struct.
const std::map<std::string, std::string> kKeyFields = {
    {"bcm_cosq_allocation_entity_t", ""},
    {"bcm_cosq_fadt_info_t", ""},
    {"bcm_cosq_fc_endpoint_t", ""},
    {"bcm_cosq_icgm_resource_stat_key_t", ""},
    {"bcm_cosq_ingress_drop_flex_key_construct_id_t", ""},
    {"bcm_cosq_object_id_t", ""},
    {"bcm_cosq_pkt_size_adjust_info_t", ""},
    {"bcm_cosq_slow_level_t", ""},
    {"bcm_cosq_subscriber_map_t", "port vlan"},
    {"bcm_failover_element_t", ""},
    {"bcm_field_class_info_t", "action"},
    {"bcm_field_oam_stat_action_t", "stat_object"},
    {"bcm_field_hint_t", "hint_type qual"},
    {"bcm_ipmc_addr_t", "s_ip_addr mc_ip_addr s_ip6_addr mc_ip6_addr vid vrf"},
    {"bcm_l2_addr_t", "mac vid"},
    {"bcm_l2_auth_addr_t", "sa_mac vlan"},
    {"bcm_l2_learn_limit_t", "flags vlan port trunk tunnel_id"},
    {"bcm_l2_learn_stat_t", "type"},
    {"bcm_l3_host_t", "l3a_vrf l3a_ip_addr l3a_ip6_addr"},
    {"bcm_l3_intf_t", "l3a_intf_id"},
    {"bcm_l3_route_t", "l3a_vrf l3a_subnet l3a_ip6_net l3a_ip_mask l3a_ip6_mask"},
    {"bcm_l3_source_bind_t", "port ip ip6 ip_mask ip6_mask"},
    {"bcm_mpls_entropy_identifier_t", "label mask"},
    {"bcm_mpls_tunnel_switch_t", "label second_label port"},
    {"bcm_niv_forward_t", "name_space virtual_interface_id"},
    {"bcm_oam_ais_t", "id ais_id"},
    {"bcm_oam_csf_t", "id type"},
    {"bcm_oam_delay_t", "id delay_id"},
    {"bcm_oam_loopback_t", "id remote_id"},
    {"bcm_oam_loss_t", "id loss_id"},
    {"bcm_oam_psc_t", "id remote_id"},
    {"bcm_oam_pw_status_t", "id remote_id"},
    {"bcm_oam_sd_sf_detection_t", "mep_id rmep_id"},
    {"bcm_oam_tst_rx_t", "endpoint_id ctf_id"},
    {"bcm_oam_tst_tx_t", "endpoint_id gtf_id"},
    {"bcm_oam_y_1711_alarm_t", "mep_id rmep_id"},
    {"bcm_port_tpid_class_t", "port tpid1 tpid2"},
    {"bcm_proxy_server_t", ""},
    {"bcm_qos_map_t", ""},
    {"bcm_rx_cosq_mapping_t", "index"},
    {"bcm_rx_mtu_config_t", "intf gport"},
    {"bcm_stat_counter_engine_t", ""},
    {"bcm_stat_counter_source_t", ""},
    {"bcm_stat_lif_counting_source_t", ""},
    {"bcm_stk_modid_config_t", "modid"},
    {"bcm_switch_olp_l2_addr_t", "port"},
    {"bcm_switch_tpid_class_t", "match port"},
    {"bcm_switch_tpid_info_t", "tpid_type tpid_value"},
    {"bcm_trill_multicast_adjacency_t", "port encap_intf"},
    {"bcm_trill_multicast_entry_t", "root_name c_vlan c_dmac"},
    {"bcm_trill_rbridge_t", "name"},
    {"bcm_tunnel_terminator_config_key_t", ""},
    {"bcm_tunnel_terminator_t",
     "vrf sip dip sip_mask dip_mask sip6 dip6 sip6_mask dip6_mask udp_dst_port udp_src_port type"},
    {"bcm_vlan_ip_t", "ip4 mask ip6 prefix"},
    {"bcm_vlan_port_translation_t", "gport"},
    {"bcm_vlan_translate_action_class_t", "vlan_edit_class_id tag_format_class_id"},
    {"bcm_vswitch_cross_connect_t", "port1 port2"},
    {"bcm_vswitch_flexible_connect_match_t", ""},
};

}  // namespace

bool has_key_fields(const Shape &shape) {
    return shape.record != nullptr && kKeyFields.contains(shape.record->name);
}

std::vector<PlanColumn> key_columns(const Shapes &shapes, const Shape &shape) {
    const auto known = kKeyFields.find(shape.record == nullptr ? "" : shape.record->name);
    std::vector<PlanColumn> columns;
    std::istringstream names(known == kKeyFields.end() ? "" : known->second);
    for (std::string name; names >> name;) {
        const Variable *field = shapes.field(*shape.record, name, "");
        if (field == nullptr) continue;
        PlanColumn column{name, field->type, shapes.field_size(*field)};
        column.number = column.size <= 8 && field->bounds.empty();
        column.key = column.given = true;
        columns.push_back(column);
    }
    if (columns.empty()) {
        PlanColumn column{shape.name, shape.type, shape.size};
        column.number = shape.number;
        column.record = shape.record;
        column.key = column.given = true;
        columns.push_back(column);
    }
    return columns;
}

}  // namespace generator
