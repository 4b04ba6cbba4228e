// Trunks, multicast groups, mirrors and policers.
#include <vector>

#include "chip_fixture.h"
#include "native/symbols.h"
#include "sdk/bcm/mirror.h"
#include "sdk/bcm/multicast.h"
#include "sdk/bcm/policer.h"
#include "sdk/bcm/trunk.h"
#include "sdk/bcm/vlan.h"
#include "standin/model/groups.h"
#include "standin/model/tables.h"

namespace standin {
namespace {

TEST_F(Chip, TrunkIdsGivenAndFound) {
    bcm_trunk_t tid = 5;
    EXPECT_EQ(bcm_trunk_create(0, BCM_TRUNK_FLAG_WITH_ID, &tid), BCM_E_NONE);
    EXPECT_EQ(bcm_trunk_create(0, BCM_TRUNK_FLAG_WITH_ID, &tid), BCM_E_EXISTS);
    EXPECT_EQ(bcm_trunk_create(0, 0, &tid), BCM_E_NONE);
    EXPECT_EQ(tid, 6);
    tid = kTrunks;
    EXPECT_EQ(bcm_trunk_create(0, BCM_TRUNK_FLAG_WITH_ID, &tid), BCM_E_PARAM);
    EXPECT_EQ(bcm_trunk_create(0, 0, nullptr), BCM_E_PARAM);
    for (int made = 2; made < kTrunks; ++made) ASSERT_EQ(bcm_trunk_create(0, 0, &tid), BCM_E_NONE);
    EXPECT_EQ(bcm_trunk_create(0, 0, &tid), BCM_E_FULL);
    EXPECT_EQ(bcm_trunk_destroy(0, 5), BCM_E_NONE);
    EXPECT_EQ(bcm_trunk_create(0, 0, &tid), BCM_E_NONE);
    EXPECT_EQ(tid, 5) << "the one that is free";
}

TEST_F(Chip, TrunkMembersAreSetAsAWhole) {
    bcm_trunk_t one = 0, other = 0;
    bcm_trunk_create(0, 0, &one);
    bcm_trunk_create(0, 0, &other);
    bcm_trunk_info_t info{};
    info.psc = 3;
    bcm_trunk_member_t members[3] = {};
    members[0].gport = 7;
    members[1].gport = kLocalGport.of(8);
    EXPECT_EQ(bcm_trunk_set(0, one, &info, 2, members), BCM_E_NONE);
    EXPECT_EQ(bcm_trunk_set(0, one, &info, 2, members), BCM_E_NONE) << "the same again";
    EXPECT_EQ(bcm_trunk_set(0, other, &info, 1, members), BCM_E_EXISTS) << "port of the first";
    members[2].gport = 65;
    EXPECT_EQ(bcm_trunk_set(0, one, &info, 3, members), BCM_E_PORT);
    members[2].gport = 7;
    EXPECT_EQ(bcm_trunk_set(0, one, &info, 3, members), BCM_E_EXISTS);
    EXPECT_EQ(bcm_trunk_set(0, one, nullptr, 0, nullptr), BCM_E_PARAM);
    EXPECT_EQ(bcm_trunk_set(0, one, &info, 1, nullptr), BCM_E_PARAM);

    bcm_trunk_member_t found[3] = {};
    int count = -1;
    EXPECT_EQ(bcm_trunk_get(0, one, &info, 3, found, &count), BCM_E_NONE);
    ASSERT_EQ(count, 2) << "refused calls change nothing";
    EXPECT_EQ(found[0].gport, kLocalGport.of(7));
    EXPECT_EQ(info.psc, 3);
    EXPECT_EQ(bcm_trunk_get(0, one, &info, 1, found, &count), BCM_E_NONE);
    EXPECT_EQ(count, 1);
    bcm_trunk_t tid = -1;
    EXPECT_EQ(bcm_trunk_find(0, 0, 8, &tid), BCM_E_NONE);
    EXPECT_EQ(tid, one);
    EXPECT_EQ(bcm_trunk_member_delete(0, one, &members[0]), BCM_E_NONE);
    EXPECT_EQ(bcm_trunk_find(0, 0, 7, &tid), BCM_E_NOT_FOUND);
    bcm_pbmp_t set = ports({8});
    bcm_trunk_gport_add(0, one, 9);
    EXPECT_EQ(bcm_trunk_bitmap_expand(0, &set), BCM_E_NONE);
    EXPECT_EQ(set, ports({8, 9}));
}

TEST_F(Chip, LagMembersAreSystemPortsOfTheTrunk) {
    SOC_PPC_LAG_MEMBER member;
    SOC_PPC_LAG_MEMBER_clear(&member);
    member.sys_port = 300;
    member.member_id = 2;
    int success = -1;
    EXPECT_EQ(soc_ppd_lag_member_add(0, 4, &member, &success), BCM_E_NOT_FOUND);
    EXPECT_EQ(success, 0);
    bcm_trunk_t tid = 4;
    bcm_trunk_create(0, BCM_TRUNK_FLAG_WITH_ID, &tid);
    EXPECT_EQ(soc_ppd_lag_member_add(0, 4, &member, &success), BCM_E_NONE);
    EXPECT_EQ(success, 1);
    bcm_gport_t gport = 0;
    int count = 0;
    EXPECT_EQ(bcm_trunk_gport_get_all(0, 4, 1, &gport, &count), BCM_E_NONE);
    EXPECT_EQ(gport, 0x6c000000 + 300);
    member.member_id = 3;
    EXPECT_EQ(soc_ppd_lag_member_remove(0, 4, &member), BCM_E_NOT_FOUND) << "another member id";
    member.member_id = 2;
    EXPECT_EQ(soc_ppd_lag_member_remove(0, 4, &member), BCM_E_NONE);
    EXPECT_EQ(soc_ppd_lag_member_add(0, 4, nullptr, nullptr), BCM_E_PARAM);
}

TEST_F(Chip, MulticastSidesAreApart) {
    bcm_multicast_t group = 77;
    EXPECT_EQ(bcm_multicast_group_is_free(0, group), BCM_E_NONE);
    EXPECT_EQ(bcm_multicast_create(0, kWithId, &group), BCM_E_NONE);
    EXPECT_EQ(bcm_multicast_group_is_free(0, group), BCM_E_EXISTS);
    EXPECT_EQ(bcm_multicast_egress_add(0, group, 3, 10), BCM_E_NONE);
    EXPECT_EQ(bcm_multicast_egress_add(0, group, 3, 10), BCM_E_EXISTS);
    EXPECT_EQ(bcm_multicast_egress_add(0, group, 3, 20), BCM_E_NONE);
    EXPECT_EQ(bcm_multicast_egress_add(0, group, 99, 0), BCM_E_PORT);
    EXPECT_EQ(bcm_multicast_egress_add(0, 78, 3, 0), BCM_E_NOT_FOUND);
    bcm_gport_t found[2] = {};
    bcm_if_t encaps[2] = {};
    int count = -1;
    EXPECT_EQ(bcm_multicast_egress_get(0, group, 2, found, encaps, &count), BCM_E_NONE);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(encaps[1], 20);
    EXPECT_EQ(bcm_multicast_ingress_get(0, group, 2, found, encaps, &count), BCM_E_NONE);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(bcm_multicast_egress_get(0, group, 2, found, nullptr, &count), BCM_E_PARAM);
    EXPECT_EQ(bcm_multicast_egress_delete(0, group, 3, 30), BCM_E_NOT_FOUND);
    EXPECT_EQ(bcm_multicast_egress_set(0, group, 0, nullptr, nullptr), BCM_E_NONE);
    EXPECT_EQ(bcm_multicast_egress_get(0, group, 0, nullptr, nullptr, &count), BCM_E_NONE);
    EXPECT_EQ(count, 0);
}

TEST_F(Chip, MulticastReplicationsAreTheEgressSide) {
    bcm_multicast_t group = 0;
    ASSERT_EQ(bcm_multicast_create(0, 0, &group), BCM_E_NONE);
    bcm_multicast_replication_t list[] = {{0, 3, 10, 0}, {0, 4, 10, 0}, {0, 99, 0, 0}};
    EXPECT_EQ(bcm_multicast_set(0, group, 0, 3, list), BCM_E_PORT);
    EXPECT_EQ(bcm_multicast_set(0, group, 0, 2, list), BCM_E_NONE);
    EXPECT_EQ(bcm_multicast_egress_delete(0, group, 3, 10), BCM_E_NONE);
    int count = -1;
    EXPECT_EQ(bcm_multicast_get(0, group, 0, 3, list, &count), BCM_E_NONE);
    ASSERT_EQ(count, 1);
    EXPECT_EQ(list[0].port, 4);
    EXPECT_EQ(bcm_multicast_add(0, group, 0, 1, nullptr), BCM_E_PARAM);
}

TEST_F(Chip, MulticastEncapsulationsFollowTheMember) {
    bcm_multicast_t group = 0;
    ASSERT_EQ(bcm_multicast_create(0, 0, &group), BCM_E_NONE);
    bcm_vlan_port_t service{};
    ASSERT_EQ(bcm_vlan_create(0, 10), BCM_E_NONE);
    service.vsi = 10;
    ASSERT_EQ(bcm_vlan_port_create(0, &service), BCM_E_NONE);
    const auto get = bcm_multicast_vlan_encap_get;
    bcm_if_t encap = 0;
    EXPECT_EQ(get(0, group, 5, service.vlan_port_id, &encap), BCM_E_NONE);
    EXPECT_EQ(encap, service.vlan_port_id & 0x3ffffff);
    EXPECT_EQ(get(0, group, 5, service.vlan_port_id + 1, &encap), BCM_E_PORT);
    EXPECT_EQ(get(0, group, 999, service.vlan_port_id, &encap), BCM_E_PORT);
    EXPECT_EQ(get(0, group + 1, 5, service.vlan_port_id, &encap), BCM_E_NOT_FOUND);
    EXPECT_EQ(bcm_multicast_egress_object_encap_get(0, group, 5, &encap), BCM_E_NOT_FOUND);
}

TEST_F(Chip, MulticastGroupsComeAndGoTogether) {
    bcm_multicast_t taken = 3;
    ASSERT_EQ(bcm_multicast_create(0, kWithId, &taken), BCM_E_NONE);
    bcm_multicast_t first = 0;
    ASSERT_EQ(bcm_multicast_multi_alloc(0, {0, 3}, &first), BCM_E_NONE);
    EXPECT_EQ(first, 4);
    bcm_multicast_t start = 0;
    bcm_multicast_t end = 0;
    EXPECT_EQ(bcm_multicast_group_free_range_get(0, 0, &start, &end), BCM_E_NONE);
    EXPECT_EQ(std::pair(start, end), std::pair(7, 4096));
    EXPECT_EQ(bcm_multicast_multi_alloc(0, {kWithId, 2}, &taken), BCM_E_EXISTS);
    EXPECT_EQ(bcm_multicast_multi_alloc(0, {0, 5000}, &start), BCM_E_FULL);
    EXPECT_EQ(bcm_multicast_destroy(0, 5), BCM_E_NONE);
    EXPECT_EQ(bcm_multicast_multi_free(0, 5), BCM_E_NOT_FOUND);
    EXPECT_EQ(bcm_multicast_multi_free(0, 4), BCM_E_NONE);
    EXPECT_EQ(bcm_multicast_group_is_free(0, 6), BCM_E_NONE);
    EXPECT_EQ(bcm_multicast_group_is_free(0, 3), BCM_E_EXISTS);
}

TEST_F(Chip, MulticastWalkMayDestroyWhatItSees) {
    for (int i = 0; i < 5; ++i) {
        bcm_multicast_t group = 0;
        ASSERT_EQ(bcm_multicast_create(0, i % 2 == 0 ? 0x100u : 0u, &group), BCM_E_NONE);
    }
    std::vector<int> seen;
    const auto visit = [](int unit, bcm_multicast_t group, uint32, void *list) {
        static_cast<std::vector<int> *>(list)->push_back(group);
        bcm_multicast_destroy(unit, group);
        bcm_multicast_destroy(unit, group + 2);
        return 0;
    };
    EXPECT_EQ(bcm_multicast_group_traverse(0, visit, 0x100, &seen), BCM_E_NONE);
    EXPECT_EQ(seen, (std::vector<int>{1, 5}));
    EXPECT_EQ(bcm_multicast_group_traverse(0, nullptr, 0, nullptr), BCM_E_PARAM);
}

TEST_F(Chip, MirrorDestinationInUseStays) {
    bcm_mirror_destination_t made{};
    made.gport = kLocalGport.of(9);
    EXPECT_EQ(bcm_mirror_destination_create(0, &made), BCM_E_NONE);
    const bcm_gport_t id = made.mirror_dest_id;
    bcm_mirror_destination_t found{};
    EXPECT_EQ(bcm_mirror_destination_get(0, id, &found), BCM_E_NONE);
    EXPECT_EQ(found.gport, kLocalGport.of(9));
    EXPECT_EQ(bcm_mirror_port_dest_add(0, 3, 1, id), BCM_E_NONE);
    EXPECT_EQ(bcm_mirror_port_dest_add(0, 3, 1, id), BCM_E_EXISTS);
    EXPECT_EQ(bcm_mirror_port_dest_add(0, 3, 1, id + 1), BCM_E_NOT_FOUND);
    EXPECT_EQ(bcm_mirror_destination_destroy(0, id), BCM_E_BUSY);
    bcm_gport_t list[2] = {};
    int count = -1;
    EXPECT_EQ(bcm_mirror_port_dest_get(0, 3, 2, 2, list, &count), BCM_E_NONE);
    EXPECT_EQ(count, 0) << "other flags";
    EXPECT_EQ(bcm_mirror_port_dest_get(0, 3, 1, 2, list, &count), BCM_E_NONE);
    EXPECT_EQ(count, 1);
    EXPECT_EQ(bcm_mirror_port_dest_delete_all(0, 3, 1), BCM_E_NONE);
    EXPECT_EQ(bcm_mirror_destination_destroy(0, id), BCM_E_NONE);
    EXPECT_EQ(bcm_mirror_destination_destroy(0, id), BCM_E_NOT_FOUND);
}

TEST_F(Chip, PolicerReadsBack) {
    bcm_policer_config_t config{};
    config.ckbits_sec = 1000;
    bcm_policer_t id = 0;
    EXPECT_EQ(bcm_policer_create(0, &config, &id), BCM_E_NONE);
    config.ckbits_sec = 2000;
    EXPECT_EQ(bcm_policer_set(0, id, &config), BCM_E_NONE);
    config = {};
    EXPECT_EQ(bcm_policer_get(0, id, &config), BCM_E_NONE);
    EXPECT_EQ(config.ckbits_sec, 2000u);
    EXPECT_EQ(bcm_policer_get(0, id + 1, &config), BCM_E_NOT_FOUND);
    EXPECT_EQ(bcm_policer_create(0, nullptr, &id), BCM_E_PARAM);
    EXPECT_EQ(bcm_policer_create(0, &config, nullptr), BCM_E_PARAM);
    EXPECT_EQ(bcm_policer_destroy(0, id), BCM_E_NONE);
    EXPECT_EQ(bcm_policer_destroy(0, id), BCM_E_NOT_FOUND);
}

}  // namespace
}  // namespace standin
