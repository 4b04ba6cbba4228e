/* Field processor: groups, entries, qualifiers and actions of the rule engine. */
#pragma once
#include "native/base.h"
#include "native/values.h"
#include "sdk/constants.h"
#include "sdk/enums.h"
#include "sdk/scalars.h"

OMBRA_BEGIN_DECLS

/* What an OAM counter does on a match. */
typedef struct bcm_field_oam_stat_action_s {
    bcm_stat_object_t stat_object;
    uint32 stat_mode_id;
    bcm_field_stat_action_t action;
} bcm_field_oam_stat_action_t;

/* An Ethernet type at which a data qualifier starts. */
typedef struct bcm_field_data_ethertype_s {
    int relative_offset;
    bcm_port_ethertype_t ethertype;
    uint16 l2;
    uint16 vlan_tag;
    uint32 flags;
} bcm_field_data_ethertype_t;

/* An IP protocol at which a data qualifier starts. */
typedef struct bcm_field_data_ip_protocol_s {
    int relative_offset;
    uint16 flags;
    uint8 ip;
    uint16 l2;
    uint16 vlan_tag;
} bcm_field_data_ip_protocol_t;

/* A packet format at which a data qualifier starts. */
typedef struct bcm_field_data_packet_format_s {
    int relative_offset;
    uint16 l2;
    uint16 vlan_tag;
    uint16 outer_ip;
    uint16 inner_ip;
    uint16 tunnel;
    uint16 mpls;
    uint16 fibre_chan_outer;
    uint16 fibre_chan_inner;
    uint32 flags;
} bcm_field_data_packet_format_t;

/* A set of header formats, one bit for each bcm_field_header_format_t. */
typedef struct bcm_field_header_format_set_s {
    SHR_BITDCL w[_SHR_BITDCLSIZE(bcmFieldHeaderFormatCount)];
} bcm_field_header_format_set_t;

/* The presels that a stage offers. */
typedef struct bcm_field_stage_info_s {
    int field_presel_advanced_mode;
    int field_presel_max_id;
    int field_presel_staggered_max_id;
} bcm_field_stage_info_t;

/* A qualifier made of packet data. */
typedef struct bcm_field_data_qualifier_s {
    int qual_id;
    uint32 flags;
    bcm_field_data_offset_base_t offset_base;
    uint16 offset;
    int length;
    bcm_field_qualify_t qualifier;
    bcm_field_stage_t stage;
    uint8 name[100];
    bcm_field_ce_sharing_t ce_sharing;
} bcm_field_data_qualifier_t;

/* An LLC header. */
typedef struct bcm_field_llc_header_s {
    uint8 dsap;
    uint8 ssap;
    uint8 control;
} bcm_field_llc_header_t;

/* A SNAP header. */
typedef struct bcm_field_snap_header_s {
    uint32 org_code;
    uint16 type;
} bcm_field_snap_header_t;

/* Where in a packet a user-defined field lies. */
typedef struct bcm_field_udf_spec_s {
    uint32 offset[384];
} bcm_field_udf_spec_t;

/* A set of qualifiers: the known ones, and a map of user-defined fields. */
typedef struct bcm_field_qset_s {
    SHR_BITDCL w[_SHR_BITDCLSIZE((bcmFieldQualifyCount + 277))];
    SHR_BITDCL udf_map[_SHR_BITDCLSIZE(277)];
} bcm_field_qset_t;

/* How a matching packet is copied to the processor. */
typedef struct bcm_field_CopyToCpu_config_s {
    uint32 flags;
    uint32 match_rule;
} bcm_field_CopyToCpu_config_t;

/* Where a matching packet is sent instead. */
typedef struct bcm_field_redirect_config_s {
    uint32 flags;
    bcm_field_redirect_destination_type_t destination_type;
    int destination;
    int source_port;
} bcm_field_redirect_config_t;

/* The action and stage that an internal number stands for. */
typedef struct bcm_field_internal_to_bcm_map_s {
    bcm_field_action_t bcm_action;
    bcm_field_stage_t bcm_stage;
} bcm_field_internal_to_bcm_map_t;

/* The width of an action. */
typedef struct bcm_field_action_width_s {
    uint32 action;
    uint32 width;
    uint8 valid;
} bcm_field_action_width_t;

/* A set of actions, one bit for each bcm_field_action_t, with special widths. */
typedef struct bcm_field_aset_s {
    SHR_BITDCL w[_SHR_BITDCLSIZE(bcmFieldActionCount)];
    bcm_field_action_width_t actions_width[16];
} bcm_field_aset_t;

/* The class that an action gives. */
typedef struct bcm_field_class_info_s {
    bcm_field_action_t action;
    bcm_class_t class_id;
} bcm_field_class_info_t;

/* How full the engine is. */
typedef struct bcm_field_status_s {
    int group_total;
    int group_free;
    uint32 flags;
} bcm_field_status_t;

/* The name of a presel. */
typedef struct bcm_field_presel_config_s {
    uint8 name[100];
} bcm_field_presel_config_t;

/* How full a group is. */
typedef struct bcm_field_group_status_s {
    int prio_min;
    int prio_max;
    int entries_total;
    int entries_free;
    int counters_total;
    int counters_free;
    int meters_total;
    int meters_free;
    int entry_count;
    int counter_count;
    int meter_count;
} bcm_field_group_status_t;

/* A set of presels, one bit for each. */
typedef struct bcm_field_presel_set_s {
    SHR_BITDCL w[_SHR_BITDCLSIZE(1024)];
} bcm_field_presel_set_t;

/* A group: what its entries can match and do. */
typedef struct bcm_field_group_config_s {
    uint32 flags;
    bcm_field_qset_t qset;
    int priority;
    bcm_field_group_mode_t mode;
    bcm_pbmp_t ports;
    bcm_field_group_t group;
    bcm_field_aset_t aset;
    bcm_field_presel_set_t preselset;
    bcm_field_presel_set_t group_ref;
    int max_entry_priorities;
    bcm_field_hintid_t hintid;
    int action_res_id;
    uint8 name[100];
} bcm_field_group_config_t;

/* A piece of a qualifier that is taken out. */
typedef struct bcm_field_extraction_field_s {
    uint32 flags;
    unsigned int qualifier;
    int lsb;
    int bits;
    int value;
} bcm_field_extraction_field_t;

/* The action that gets what was taken out. */
typedef struct bcm_field_extraction_action_s {
    bcm_field_action_t action;
    int bias;
} bcm_field_extraction_action_t;

/* The parameters of an action on a core. */
typedef struct bcm_field_action_core_config_s {
    uint32 flags;
    int param0;
    int param1;
    int param2;
} bcm_field_action_core_config_t;

/* An operation on an entry. */
typedef struct bcm_field_entry_oper_s {
    uint32 flags;
    bcm_field_entry_t entry_id;
} bcm_field_entry_oper_t;

/* A hint on how a qualifier will be used. */
typedef struct bcm_field_hint_s {
    bcm_field_hint_type_t hint_type;
    bcm_field_qualify_t qual;
    uint32 max_values;
    uint32 start_bit;
    uint32 end_bit;
    uint32 flags;
    uint32 max_group_size;
    int priority;
} bcm_field_hint_t;

/* The classes of a source. */
typedef struct bcm_field_src_class_s {
    uint16 src_class_field;
    uint16 dst_class_field;
    uint32 udf_class;
    uint32 intf_class_port;
    uint32 intf_class_l2;
    uint32 intf_class_l3;
    uint32 intf_class_vport;
} bcm_field_src_class_t;

/* Called for each group. */
typedef int (*bcm_field_group_traverse_cb)(int unit, bcm_field_group_t group, void *user_data);

OMBRA_END_DECLS
