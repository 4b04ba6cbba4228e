// Interfaces, egress objects, hosts and routes.
#include <cstring>
#include <vector>

#include "chip_fixture.h"
#include "sdk/bcm/ip.h"
#include "sdk/bcm/l3.h"
#include "sdk/bcm/vlan.h"
#include "standin/model/l3.h"
#include "standin/model/tables.h"

namespace standin {
namespace {

// Interface 1 in VLAN 10, egress object 100000 on it.
struct Routing : Chip {
    void SetUp() override {
        Chip::SetUp();
        ASSERT_EQ(bcm_vlan_create(0, 10), BCM_E_NONE);
        intf.l3a_vid = 10;
        ASSERT_EQ(bcm_l3_intf_create(0, &intf), BCM_E_NONE);
        bcm_l3_egress_t made{};
        made.intf = intf.l3a_intf_id;
        made.port = 3;
        ASSERT_EQ(bcm_l3_egress_create(0, 0, &made, &egress), BCM_E_NONE);
    }

    bcm_l3_route_t route(std::uint32_t net, int length) const {
        bcm_l3_route_t made{};
        made.l3a_subnet = net;
        made.l3a_ip_mask = bcm_ip_mask_create(length);
        made.l3a_intf = egress;
        return made;
    }

    bcm_l3_intf_t intf{};
    bcm_if_t egress = 0;
};

TEST_F(Routing, WhatIsInUseStays) {
    EXPECT_EQ(bcm_l3_intf_create(0, &intf), BCM_E_EXISTS) << "same address and VLAN";
    EXPECT_EQ(bcm_l3_intf_delete(0, &intf), BCM_E_BUSY);
    bcm_l3_route_t one = route(0x0a000000, 8);
    EXPECT_EQ(bcm_l3_route_add(0, &one), BCM_E_NONE);
    EXPECT_EQ(bcm_l3_egress_destroy(0, egress), BCM_E_BUSY);

    // A replaced route lets go of its old next hop.
    bcm_l3_egress_t made{};
    made.intf = intf.l3a_intf_id;
    made.port = 4;
    bcm_if_t other = 0;
    ASSERT_EQ(bcm_l3_egress_create(0, 0, &made, &other), BCM_E_NONE);
    one.l3a_intf = other;
    EXPECT_EQ(bcm_l3_route_add(0, &one), BCM_E_EXISTS);
    one.l3a_flags |= kReplace;
    EXPECT_EQ(bcm_l3_route_add(0, &one), BCM_E_NONE);
    EXPECT_EQ(bcm_l3_egress_destroy(0, egress), BCM_E_NONE);
    EXPECT_EQ(bcm_l3_egress_destroy(0, other), BCM_E_BUSY);
    EXPECT_EQ(bcm_l3_route_delete_all(0, nullptr), BCM_E_NONE);
    EXPECT_EQ(bcm_l3_egress_destroy(0, other), BCM_E_NONE);
    EXPECT_EQ(bcm_l3_intf_delete(0, &intf), BCM_E_NONE);
    EXPECT_EQ(bcm_l3_intf_delete(0, &intf), BCM_E_NOT_FOUND);
}

TEST_F(Routing, NextHopHasToBeThere) {
    bcm_l3_route_t one = route(0x0a000000, 8);
    one.l3a_intf = egress + 1;
    EXPECT_EQ(bcm_l3_route_add(0, &one), BCM_E_NOT_FOUND);
    bcm_l3_egress_t made{};
    made.intf = 99;
    bcm_if_t id = 0;
    EXPECT_EQ(bcm_l3_egress_create(0, 0, &made, &id), BCM_E_NOT_FOUND);
    EXPECT_EQ(bcm_l3_route_add(0, nullptr), BCM_E_PARAM);
    one.l3a_intf = egress;
    one.l3a_ip_mask = 0xff00ff00;
    EXPECT_EQ(bcm_l3_route_add(0, &one), BCM_E_PARAM) << "a mask with holes";
}

TEST_F(Routing, LongestPrefixIsFound) {
    for (const auto &[net, length] : std::vector<std::pair<std::uint32_t, int>>{
             {0, 0}, {0x0a000000, 8}, {0x0a010000, 16}, {0x0a010203, 32}}) {
        bcm_l3_route_t one = route(net | 0x0f, length);  // bits behind the prefix do not count
        if (length == 32) one.l3a_subnet = net;
        ASSERT_EQ(bcm_l3_route_add(0, &one), BCM_E_NONE);
    }
    struct {
        std::uint32_t host;
        int length;
    } const cases[] = {
        {0x0a010203, 32}, {0x0a010204, 16}, {0x0a020000, 8}, {0x0b000000, 0}, {0xffffffff, 0}};
    for (const auto &one : cases) {
        bcm_l3_host_t host{};
        host.l3a_ip_addr = one.host;
        bcm_l3_route_t found{};
        ASSERT_EQ(bcm_l3_route_find(0, &host, &found), BCM_E_NONE) << std::hex << one.host;
        EXPECT_EQ(bcm_ip_mask_length(found.l3a_ip_mask), one.length) << std::hex << one.host;
    }
    bcm_l3_host_t host{};
    host.l3a_vrf = 1;
    bcm_l3_route_t found{};
    EXPECT_EQ(bcm_l3_route_find(0, &host, &found), BCM_E_NOT_FOUND) << "another VRF";
}

TEST_F(Routing, TraverseNumbersOneFamily) {
    for (std::uint32_t i = 0; i < 4; ++i) {
        bcm_l3_host_t host{};
        host.l3a_ip_addr = i + 1;
        host.l3a_ip6_addr[15] = static_cast<std::uint8_t>(i + 1);
        host.l3a_intf = egress;
        ASSERT_EQ(bcm_l3_host_add(0, &host), BCM_E_NONE);
        host.l3a_flags = kL3Ip6;
        ASSERT_EQ(bcm_l3_host_add(0, &host), BCM_E_NONE) << "the same number, but IPv6";
    }
    std::vector<int> seen;
    const auto visit = [](int, int index, bcm_l3_host_t *info, void *list) {
        EXPECT_EQ(info->l3a_flags & kL3Ip6, 0u);
        static_cast<std::vector<int> *>(list)->push_back(index);
        return 0;
    };
    EXPECT_EQ(bcm_l3_host_traverse(0, 0, 1, 2, visit, &seen), BCM_E_NONE);
    EXPECT_EQ(seen, (std::vector<int>{1, 2}));
    bcm_l3_route_t net = route(0, 30);
    EXPECT_EQ(bcm_l3_host_delete_by_network(0, &net), BCM_E_NONE);
    bcm_l3_info_t info{};
    EXPECT_EQ(bcm_l3_info(0, &info), BCM_E_NONE);
    EXPECT_EQ(info.l3info_used_host, 5) << "three of IPv4 are gone";
}

TEST_F(Routing, MultipathHoldsItsMembers) {
    bcm_if_t group = 0;
    bcm_if_t members[] = {egress, egress};
    EXPECT_EQ(bcm_l3_egress_multipath_create(0, 0, 2, members, &group), BCM_E_NONE);
    EXPECT_EQ(bcm_l3_egress_destroy(0, egress), BCM_E_BUSY);
    EXPECT_EQ(bcm_l3_egress_multipath_delete(0, group, egress), BCM_E_NONE);
    EXPECT_EQ(bcm_l3_egress_destroy(0, egress), BCM_E_BUSY) << "held once more";
    members[1] = 5;
    bcm_if_t bad = 0;
    EXPECT_EQ(bcm_l3_egress_multipath_create(0, 0, 2, members, &bad), BCM_E_NOT_FOUND);
    EXPECT_EQ(bcm_l3_egress_multipath_destroy(0, group), BCM_E_NONE);
    EXPECT_EQ(bcm_l3_egress_destroy(0, egress), BCM_E_NONE) << "the refused group holds nothing";
}

TEST_F(Routing, OneGroupInThreeForms) {
    bcm_l3_ecmp_member_t member{};
    member.egress_if = egress;
    bcm_l3_egress_ecmp_t group{};
    EXPECT_EQ(bcm_l3_ecmp_create(0, 0, &group, 1, nullptr), BCM_E_PARAM);
    ASSERT_EQ(bcm_l3_ecmp_create(0, 0, &group, 1, &member), BCM_E_NONE);
    bcm_if_t found = 0;
    EXPECT_EQ(bcm_l3_egress_multipath_find(0, 1, &egress, &found), BCM_E_NONE);
    EXPECT_EQ(found, group.ecmp_intf);
    EXPECT_EQ(bcm_l3_egress_ecmp_add(0, &group, egress), BCM_E_NONE);
    bcm_l3_ecmp_member_t members[3] = {};
    int count = -1;
    EXPECT_EQ(bcm_l3_ecmp_get(0, &group, 3, members, &count), BCM_E_NONE);
    ASSERT_EQ(count, 2);
    EXPECT_EQ(members[1].egress_if, egress);
    bcm_l3_route_t one = route(0, 0);
    one.l3a_intf = group.ecmp_intf;
    EXPECT_EQ(bcm_l3_route_add(0, &one), BCM_E_NONE);
    EXPECT_EQ(bcm_l3_ecmp_destroy(0, group.ecmp_intf), BCM_E_BUSY);
    EXPECT_EQ(bcm_l3_ecmp_get(0, nullptr, 3, members, &count), BCM_E_NOT_FOUND);
}

// With the highest number in use a new object gets the lowest free one, whatever went before.
TEST_F(Routing, EgressObjectsFillTheirNumbers) {
    constexpr bcm_if_t last = kFirstEgress + static_cast<bcm_if_t>(kL3Egresses) - 1;
    bcm_l3_egress_t made{};
    made.intf = intf.l3a_intf_id;
    made.port = 3;
    for (bcm_if_t given : {last, kFirstEgress + 2}) {
        bcm_if_t id = given;
        ASSERT_EQ(bcm_l3_egress_create(0, kWithId, &made, &id), BCM_E_NONE);
    }
    auto next = [&] {
        bcm_if_t id = -1;
        EXPECT_EQ(bcm_l3_egress_create(0, 0, &made, &id), BCM_E_NONE);
        return id;
    };
    EXPECT_EQ(next(), kFirstEgress + 1);
    for (bcm_if_t id = kFirstEgress + 3; id < last; ++id) ASSERT_EQ(next(), id);
    bcm_if_t id = -1;
    EXPECT_EQ(bcm_l3_egress_create(0, 0, &made, &id), BCM_E_FULL);
    for (bcm_if_t gone : {last, kFirstEgress + 8, kFirstEgress + 6, kFirstEgress + 7})
        EXPECT_EQ(bcm_l3_egress_destroy(0, gone), BCM_E_NONE);
    EXPECT_EQ(next(), last);
    for (bcm_if_t free : {6, 7, 8}) EXPECT_EQ(next(), kFirstEgress + free);
    EXPECT_EQ(bcm_l3_egress_create(0, 0, &made, &id), BCM_E_FULL);
}

TEST(IpMask, LengthsBothWays) {
    struct {
        int length;
        std::uint32_t mask;
    } const cases[] = {{0, 0}, {1, 0x80000000}, {24, 0xffffff00}, {32, 0xffffffff}};
    for (const auto &one : cases) {
        EXPECT_EQ(bcm_ip_mask_create(one.length), one.mask);
        EXPECT_EQ(bcm_ip_mask_length(one.mask), one.length);
    }
    EXPECT_EQ(bcm_ip_mask_length(0xff00ff00), -1);
    unsigned char mask[16] = {};
    for (const int length : {0, 1, 64, 127, 128}) {
        EXPECT_EQ(bcm_ip6_mask_create(mask, length), BCM_E_NONE);
        EXPECT_EQ(bcm_ip6_mask_length(mask), length);
    }
    EXPECT_EQ(bcm_ip6_mask_create(mask, 129), BCM_E_PARAM);
    EXPECT_EQ(bcm_ip6_mask_create(nullptr, 1), BCM_E_PARAM);
    EXPECT_EQ(bcm_ip6_mask_length(nullptr), -1);
}

}  // namespace
}  // namespace standin
