// Objects that name each other: what is refused, what goes along, and the sentence of a refusal.
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "chip_fixture.h"
#include "sdk/bcm/failover.h"
#include "sdk/bcm/field.h"
#include "sdk/bcm/field_qualify.h"
#include "sdk/bcm/l2.h"
#include "sdk/bcm/l3.h"
#include "sdk/bcm/mirror.h"
#include "sdk/bcm/multicast.h"
#include "sdk/bcm/policer.h"
#include "sdk/bcm/port.h"
#include "sdk/bcm/qos.h"
#include "sdk/bcm/stg.h"
#include "sdk/bcm/trunk.h"
#include "sdk/bcm/vlan.h"
#include "standin/model/references.h"
#include "standin/model/tables.h"

namespace standin {
namespace {

constexpr bcm_vlan_t kVid = 10;
constexpr int kNowhere = 999;

// One object of each kind, none of which uses another yet but where it has to.
struct Whole : Chip {
    void SetUp() override {
        Chip::SetUp();
        good(bcm_vlan_create(0, kVid));
        good(bcm_stg_create(0, &stg));
        good(bcm_trunk_create(0, 0, &trunk));
        intf.l3a_vid = 1;
        good(bcm_l3_intf_create(0, &intf));
        egress_value.intf = intf.l3a_intf_id;
        good(bcm_l3_egress_create(0, 0, &egress_value, &egress));
        good(bcm_l3_egress_multipath_create(0, 0, 1, &egress, &paths));
        good(bcm_multicast_create(0, 0, &multicast));
        good(bcm_mirror_destination_create(0, &mirror));
        bcm_policer_config_t meter{};
        good(bcm_policer_create(0, &meter, &policer));
        bcm_field_qset_t set{};
        set.w[bcmFieldQualifyRangeCheck / 32] |= 1u << bcmFieldQualifyRangeCheck % 32;
        good(bcm_field_group_create(0, set, 1, &group));
        good(bcm_field_range_create(0, &range, 0, 10, 20));
        good(bcm_failover_create(0, 0, &failover));
        good(bcm_field_entry_create(0, group, &rule));
        auto kind = static_cast<bcm_field_stat_t>(bcmFieldStatPackets);
        good(bcm_field_stat_create(0, group, 1, &kind, &counter));
    }

    static void good(int status) { ASSERT_EQ(status, BCM_E_NONE) << standin_last_refusal(); }

    static int add_mac(std::uint32_t number, bcm_vlan_t vid, int port) {
        bcm_l2_addr_t made;
        bcm_l2_addr_t_init(&made, Mac(number).data(), vid);
        made.port = port;
        return bcm_l2_addr_add(0, &made);
    }
    static bool has_mac(std::uint32_t number, bcm_vlan_t vid) {
        bcm_l2_addr_t found;
        return bcm_l2_addr_get(0, Mac(number).data(), vid, &found) == BCM_E_NONE;
    }
    static int add_route(bcm_if_t hop, std::uint32_t net = 0x0a000000) {
        bcm_l3_route_t made{};
        made.l3a_subnet = net;
        made.l3a_ip_mask = 0xff000000;
        made.l3a_intf = hop;
        return bcm_l3_route_add(0, &made);
    }
    static int drop_route(std::uint32_t net = 0x0a000000) {
        bcm_l3_route_t made{};
        made.l3a_subnet = net;
        made.l3a_ip_mask = 0xff000000;
        return bcm_l3_route_delete(0, &made);
    }
    int mirror_to(bcm_gport_t gport) {
        bcm_mirror_destination_t made{};
        made.gport = gport;
        const int status = bcm_mirror_destination_create(0, &made);
        other_mirror = made.mirror_dest_id;
        return status;
    }
    int make_egress(int hop, int port) {
        bcm_l3_egress_t made{};
        made.intf = hop;
        made.port = port;
        return bcm_l3_egress_create(0, 0, &made, &other_egress);
    }
    int make_row(bcm_vlan_t vid, bcm_failover_t protection) {
        service = {};
        service.vsi = vid;
        service.failover_id = protection;
        return bcm_vlan_port_create(0, &service);
    }
    static int limit_learning(uint32 scope, int number) {
        bcm_l2_learn_limit_t limit{};
        limit.flags = scope;
        limit.vlan = static_cast<bcm_vlan_t>(number);
        limit.port = limit.trunk = number;
        limit.limit = 3;
        return bcm_l2_learn_limit_set(0, &limit);
    }
    int make_interface(int vid) {
        other_intf = {};
        other_intf.l3a_vid = static_cast<bcm_vlan_t>(vid);
        other_intf.l3a_mac_addr[5] = 9;
        return bcm_l3_intf_create(0, &other_intf);
    }

    bcm_stg_t stg = 0;
    bcm_trunk_t trunk = 0;
    bcm_l3_intf_t intf{}, other_intf{};
    bcm_l3_egress_t egress_value{};
    bcm_if_t egress = 0, other_egress = 0, paths = 0;
    bcm_multicast_t multicast = 0;
    bcm_mirror_destination_t mirror{};
    bcm_gport_t other_mirror = 0;
    bcm_policer_t policer = 0;
    bcm_field_group_t group = 0;
    bcm_field_entry_t rule = 0;
    int counter = 0;
    bcm_field_range_t range = 0;
    bcm_failover_t failover = 0;
    bcm_vlan_port_t service{};  // of a function without a model
};

// Each use that holds: it begins, the object named is busy and both stay; it ends, and it can go.
TEST_F(Whole, WhatIsHeldStays) {
    struct Case {
        const char *told;  // of the sentence
        std::function<int()> begin;
        std::function<int()> destroy;
        std::function<int()> end;
    };
    const Case cases[] = {
        {"VLAN 10 is held by interface 2", [&] { return make_interface(kVid); },
         [] { return bcm_vlan_destroy(0, kVid); },
         [&] { return bcm_l3_intf_delete(0, &other_intf); }},
        {"trunk 0 is held by egress object 100001",
         [&] { return make_egress(0, kTrunkGport.of(trunk)); },
         [&] { return bcm_trunk_destroy(0, trunk); },
         [&] { return bcm_l3_egress_destroy(0, other_egress); }},
        {"mirror destination 1409286145 is held by mirrored port 4",
         [&] { return bcm_mirror_port_dest_add(0, 4, 1, mirror.mirror_dest_id); },
         [&] { return bcm_mirror_destination_destroy(0, mirror.mirror_dest_id); },
         [] { return bcm_mirror_port_dest_delete_all(0, 4, 1); }},
        {"policer 1 is held by rule 1",
         [&] { return bcm_field_entry_policer_attach(0, rule, 0, policer); },
         [&] { return bcm_policer_destroy(0, policer); },
         [&] { return bcm_field_entry_policer_detach(0, rule, 0); }},
        {"range 1 is held by rule 1",
         [&] { return bcm_field_qualify_RangeCheck(0, rule, range, 1); },
         [&] { return bcm_field_range_destroy(0, range); },
         [&] { return bcm_field_qualify_clear(0, rule); }},
        {"failover 1 is held by vlan_port 20139", [&] { return make_row(0, failover); },
         [&] { return bcm_failover_destroy(0, failover); },
         [&] { return bcm_vlan_port_destroy(0, service.vlan_port_id); }},
        {"VLAN 20 is held by vlan_port 20139",
         [&] {
             bcm_vlan_create(0, 20);
             return make_row(20, 0);
         },
         [] { return bcm_vlan_destroy(0, 20); },
         [&] { return bcm_vlan_port_destroy(0, service.vlan_port_id); }},
        {"counter 1 is held by rule 1",
         [&] { return bcm_field_entry_stat_attach(0, rule, counter); },
         [&] { return bcm_field_stat_destroy(0, counter); },
         [&] { return bcm_field_entry_stat_detach(0, rule, counter); }},
        {"multipath group 200000 is held by route 10.0.0.0/8", [&] { return add_route(paths); },
         [&] { return bcm_l3_egress_multipath_destroy(0, paths); }, [] { return drop_route(); }},
        {"egress object 100000 is held by route 10.0.0.0/8", [&] { return add_route(egress); },
         [&] { return bcm_l3_egress_destroy(0, egress); }, [] { return drop_route(); }},
        {"interface 1 is held by egress object 100000",
         [&] { return bcm_l3_egress_create(0, kWithId, &egress_value, &egress); },
         [&] { return bcm_l3_intf_delete(0, &intf); },
         [&] { return bcm_l3_egress_destroy(0, egress); }},
        {"rule group 1 is held by rule 1",
         [&] { return bcm_field_entry_create_id(0, group, rule); },
         [&] { return bcm_field_group_destroy(0, group); },
         [&] {
             bcm_field_stat_destroy(0, counter);
             return bcm_field_entry_destroy(0, rule);
         }},
    };
    for (const Case &one : cases) {
        SCOPED_TRACE(one.told);
        const int status = one.begin();
        ASSERT_TRUE(status == BCM_E_NONE || status == BCM_E_EXISTS) << standin_last_refusal();
        for (int turn = 0; turn < 2; ++turn) {
            EXPECT_EQ(one.destroy(), BCM_E_BUSY);
            EXPECT_NE(std::string(standin_last_refusal()).find(one.told), std::string::npos)
                << standin_last_refusal();
        }
        EXPECT_EQ(one.end(), BCM_E_NONE) << standin_last_refusal();
        EXPECT_EQ(one.destroy(), BCM_E_NONE) << standin_last_refusal();
        EXPECT_EQ(one.destroy(), BCM_E_NOT_FOUND);
    }
}

TEST_F(Whole, WhatGoesTakesOrLeavesItsUsers) {
    good(bcm_stg_vlan_add(0, stg, kVid));
    good(bcm_vlan_gport_add(0, kVid, kTrunkGport.of(trunk), 0));
    good(bcm_multicast_egress_add(0, multicast, kTrunkGport.of(trunk), 0));
    good(bcm_multicast_egress_add(0, multicast, 5, 0));
    good(bcm_port_untagged_vlan_set(0, 6, kVid));
    good(add_mac(1, kVid, 3));
    good(add_mac(2, 1, kTrunkGport.of(trunk)));
    good(add_mac(3, 1, 3));
    bcm_l2_learn_limit_t limit{};
    limit.flags = 0x8;
    limit.trunk = trunk;
    limit.limit = 3;
    good(bcm_l2_learn_limit_set(0, &limit));

    int map = 0;
    int seen[2] = {};
    good(bcm_vlan_stat_attach(0, kVid, 77));
    good(bcm_qos_map_create(0, 0, &map));
    good(bcm_qos_port_map_set(0, 5, map, map));
    good(bcm_qos_map_destroy(0, map));
    good(bcm_qos_port_map_get(0, 5, &seen[0], &seen[1]));
    EXPECT_EQ(seen[0] + seen[1], 0) << "the port's setting leaves the map";

    good(bcm_trunk_destroy(0, trunk));
    int count = -1;
    good(bcm_vlan_gport_get_all(0, kVid, 0, nullptr, nullptr, &count));
    EXPECT_EQ(count, 0) << "the VLAN leaves its gport";
    good(bcm_multicast_egress_get(0, multicast, 0, nullptr, nullptr, &count));
    EXPECT_EQ(count, 1) << "the group keeps its other member";
    EXPECT_FALSE(has_mac(2, 1)) << "falls with the trunk";
    EXPECT_TRUE(has_mac(3, 1));
    good(bcm_trunk_create(0, 0, &trunk));
    good(bcm_l2_learn_limit_get(0, &limit));
    EXPECT_EQ(limit.limit, -1) << "a new trunk of that number has no limit";

    good(bcm_stg_destroy(0, stg));
    bcm_stg_t now = 0;
    good(bcm_vlan_stg_get(0, kVid, &now));
    EXPECT_EQ(now, 1);

    std::vector<int> gone;
    const auto watch = [](int, bcm_l2_addr_t *info, int, void *list) {
        static_cast<std::vector<int> *>(list)->push_back(info->mac[5]);
    };
    good(bcm_l2_addr_register(0, watch, &gone));
    good(bcm_vlan_destroy(0, kVid));
    EXPECT_EQ(gone, std::vector<int>{1}) << "told before the call returns";
    EXPECT_FALSE(has_mac(1, kVid));
    bcm_vlan_t vid = 0;
    good(bcm_port_untagged_vlan_get(0, 6, &vid));
    EXPECT_EQ(vid, 1) << "the port has the default VLAN";
    good(bcm_vlan_create(0, kVid));
    uint32 id = 0;
    EXPECT_EQ(bcm_vlan_stat_id_get(0, kVid, bcm_vlan_stat_t{}, &id), BCM_E_NOT_FOUND);
    good(bcm_vlan_destroy_all(0));
}

// What names nothing is refused, and changes nothing: a case for each line of the table of uses.
TEST_F(Whole, WhatIsNotThereIsNotNamed) {
    struct Case {
        Use use;
        const char *told;
        int status;
        std::function<int()> call;
    };
    constexpr bcm_gport_t kNoTrunk = kTrunkGport.of(99);
    bcm_trunk_member_t member{};
    member.gport = kNowhere;
    bcm_if_t no_hop = 100'999;
    bcm_l3_host_t host{};
    host.l3a_intf = kNowhere;
    auto packets = static_cast<bcm_field_stat_t>(bcmFieldStatPackets);
    const Case cases[] = {
        {Use::kPortVlan, "untagged_vlan names VLAN 999", BCM_E_NOT_FOUND,
         [] { return bcm_port_untagged_vlan_set(0, 4, kNowhere); }},
        {Use::kVlanStg, "stg names spanning tree group 99", BCM_E_NOT_FOUND,
         [] { return bcm_vlan_stg_set(0, kVid, 99); }},
        {Use::kVlanPort, "port is 999", BCM_E_PORT,
         [] { return bcm_vlan_gport_add(0, kVid, kNowhere, 0); }},
        {Use::kVlanPort, "pbmp is 70", BCM_E_PORT,
         [] { return bcm_vlan_port_add(0, kVid, ports({70}), {}); }},
        {Use::kVlanTrunk, "port names trunk 99", BCM_E_NOT_FOUND,
         [] { return bcm_vlan_gport_add(0, kVid, kNoTrunk, 0); }},
        {Use::kTrunkPort, "is 999", BCM_E_PORT,
         [&] { return bcm_trunk_member_add(0, trunk, &member); }},
        {Use::kMacVlan, "vid names VLAN 999", BCM_E_NOT_FOUND,
         [] { return add_mac(1, kNowhere, 3); }},
        {Use::kMacPort, "field port is 999, a unit has 0 to 64", BCM_E_PORT,
         [] { return add_mac(1, kVid, kNowhere); }},
        {Use::kMacTrunk, "tgid names trunk 99", BCM_E_NOT_FOUND,
         [] { return add_mac(1, kVid, kNoTrunk); }},
        {Use::kMacTrunk, "tgid names trunk 99", BCM_E_NOT_FOUND,
         [] { return bcm_l2_addr_delete_by_trunk(0, 99, 0); }},
        {Use::kLimitedVlan, "vlan names VLAN 999", BCM_E_NOT_FOUND,
         [] { return limit_learning(2, kNowhere); }},
        {Use::kLimitedPort, "port is 999", BCM_E_PORT, [] { return limit_learning(4, kNowhere); }},
        {Use::kLimitedTrunk, "trunk names trunk 999", BCM_E_NOT_FOUND,
         [] { return limit_learning(8, kNowhere); }},
        {Use::kInterfaceVlan, "l3a_vid names VLAN 999", BCM_E_NOT_FOUND,
         [&] { return make_interface(kNowhere); }},
        {Use::kEgressInterface, "intf names interface 999", BCM_E_NOT_FOUND,
         [&] { return make_egress(kNowhere, 1); }},
        {Use::kEgressPort, "port is 999", BCM_E_PORT, [&] { return make_egress(0, kNowhere); }},
        {Use::kEgressTrunk, "port names trunk 99", BCM_E_NOT_FOUND,
         [&] { return make_egress(0, kNoTrunk); }},
        {Use::kMultipathEgress, "intf_array names egress object 100999", BCM_E_NOT_FOUND,
         [&] { return bcm_l3_egress_multipath_create(0, 0, 1, &no_hop, &other_egress); }},
        {Use::kHostHop, "l3a_intf names interface 999", BCM_E_NOT_FOUND,
         [&] { return bcm_l3_host_add(0, &host); }},
        {Use::kRouteHop, "l3a_intf names egress object 100999", BCM_E_NOT_FOUND,
         [] { return add_route(100'999); }},
        {Use::kRouteHop, "l3a_intf names interface 999", BCM_E_NOT_FOUND,
         [] { return add_route(kNowhere); }},
        {Use::kMulticastPort, "port is 999", BCM_E_PORT,
         [&] { return bcm_multicast_egress_add(0, multicast, kNowhere, 0); }},
        {Use::kMulticastTrunk, "port names trunk 99", BCM_E_NOT_FOUND,
         [&] { return bcm_multicast_ingress_add(0, multicast, kNoTrunk, 0); }},
        {Use::kMirrorPort, "gport is 999", BCM_E_PORT, [&] { return mirror_to(kNowhere); }},
        {Use::kMirrorTrunk, "gport names trunk 99", BCM_E_NOT_FOUND,
         [&] { return mirror_to(kNoTrunk); }},
        {Use::kMirroredPort, "mirror_dest_id names mirror destination 999", BCM_E_NOT_FOUND,
         [] { return bcm_mirror_port_dest_add(0, 4, 1, kNowhere); }},
        {Use::kRuleGroup, "there is no 999", BCM_E_NOT_FOUND,
         [] { return bcm_field_entry_create_id(0, kNowhere, 7); }},
        {Use::kRuleCounter, "stat_id names counter 999", BCM_E_NOT_FOUND,
         [&] { return bcm_field_entry_stat_attach(0, rule, kNowhere); }},
        {Use::kRulePolicer, "there is no 999", BCM_E_NOT_FOUND,
         [&] { return bcm_field_entry_policer_attach(0, rule, 0, kNowhere); }},
        {Use::kRuleMirror, "param1 names mirror destination", BCM_E_NOT_FOUND,
         [&] {
             return bcm_field_action_add(
                 0, rule, static_cast<bcm_field_action_t>(bcmFieldActionMirrorIngress), 0,
                 static_cast<uint32>(kMirrorGport.of(31)));
         }},
        {Use::kRuleRange, "range names range 999", BCM_E_NOT_FOUND,
         [&] { return bcm_field_qualify_RangeCheck(0, rule, kNowhere, 0); }},
        {Use::kCounterGroup, "there is no 999", BCM_E_NOT_FOUND,
         [&] { return bcm_field_stat_create(0, kNowhere, 1, &packets, &counter); }},
        {Use::kRowHolds, "vsi names vlan 999", BCM_E_NOT_FOUND,
         [&] { return make_row(kNowhere, 0); }},
        {Use::kRowHolds, "failover_id names failover 99", BCM_E_NOT_FOUND,
         [&] { return make_row(0, 99); }},
        {Use::kRowLeaves, "ing_map names qos-map 99", BCM_E_NOT_FOUND,
         [] { return bcm_qos_port_map_set(0, 5, 99, 0); }},
        {Use::kRowFalls, "vlan names vlan 999", BCM_E_NOT_FOUND,
         [] { return bcm_vlan_stat_attach(0, kNowhere, 1); }},
    };
    std::set<Use> broken;
    for (const Case &one : cases) {
        SCOPED_TRACE(one.told);
        broken.insert(one.use);
        EXPECT_EQ(one.call(), one.status);
        EXPECT_NE(std::string(standin_last_refusal()).find(one.told), std::string::npos)
            << standin_last_refusal();
    }
    for (const UseRow &row : all_uses())
        EXPECT_TRUE(broken.contains(row.use)) << "no case breaks the use of " << row.field;
    // Nothing that was refused holds anything or stands in a table.
    good(bcm_l3_egress_multipath_destroy(0, paths));
    good(bcm_l3_egress_destroy(0, egress));
    bcm_l3_info_t info{};
    good(bcm_l3_info(0, &info));
    EXPECT_EQ(info.l3info_used_intf, 1);
    EXPECT_EQ(info.l3info_used_nexthop, 0);
    EXPECT_EQ(info.l3info_used_route, 0);
    good(bcm_l3_intf_delete(0, &intf));
    good(bcm_mirror_destination_destroy(0, mirror.mirror_dest_id));
    good(bcm_field_entry_destroy(0, rule));
    good(bcm_trunk_destroy(0, trunk));
    good(bcm_vlan_destroy(0, kVid));
}

TEST_F(Whole, ThreeHoldersAreToldAndTheOthersCounted) {
    for (std::uint32_t net = 1; net <= 5; ++net) good(add_route(egress, net << 24));
    EXPECT_EQ(bcm_l3_egress_destroy(0, egress), BCM_E_BUSY);
    EXPECT_STREQ(standin_last_refusal(),
                 "bcm_l3_egress_destroy(0): BUSY: egress object 100000 is held by multipath group "
                 "200000, route 1.0.0.0/8, route 2.0.0.0/8 and 3 more");
    EXPECT_EQ(bcm_vlan_create(4, kVid), BCM_E_UNIT);
    EXPECT_STREQ(standin_last_refusal(), "bcm_vlan_create(4): UNIT");
}

TEST_F(Whole, AChapterThatIsStoppedAnswersOnlyItsInit) {
    good(bcm_trunk_detach(0));
    EXPECT_EQ(bcm_trunk_create(0, 0, &trunk), BCM_E_INIT);
    EXPECT_EQ(bcm_trunk_psc_set(0, 0, 1), BCM_E_INIT);
    good(bcm_vlan_create(0, 11));
    good(bcm_trunk_init(0));
    good(bcm_trunk_create(0, 0, &trunk));
    good(bcm_l3_cleanup(0));
    EXPECT_EQ(add_route(0), BCM_E_INIT);
    good(bcm_l3_init(0));
    good(add_route(0));
}

// The table is looked up by place.
TEST_F(Whole, UsesStandInTheirOrder) {
    std::size_t place = 0;
    for (const UseRow &row : all_uses()) EXPECT_EQ(static_cast<std::size_t>(row.use), place++);
}

}  // namespace
}  // namespace standin
