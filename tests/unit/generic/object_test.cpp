// Create, get, set, traverse and destroy forms.
#include <string>
#include <utility>
#include <vector>

#include "generic_fixture.h"
#include "sdk/bcm/cosq.h"
#include "sdk/bcm/fabric.h"
#include "sdk/bcm/ipmc.h"
#include "sdk/bcm/l3.h"
#include "sdk/bcm/mim.h"
#include "sdk/bcm/oam.h"
#include "sdk/bcm/vlan.h"

namespace {

constexpr uint32 kWithId = 0x10;
constexpr uint32 kReplace = 0x20;

class Object : public Generic {
  protected:
    bcm_fabric_action_t make(uint32 offset, uint32 flags = 0, bcm_fabric_action_t id = -1) {
        bcm_fabric_action_info_t info{};
        info.flags = flags;
        info.queue_index_offset = offset;
        status_ = bcm_fabric_action_create(0, &info, &id);
        return id;
    }
    uint32 offset_of(bcm_fabric_action_t id) {
        bcm_fabric_action_info_t info{};
        status_ = bcm_fabric_action_get(0, id, &info);
        return info.queue_index_offset;
    }

    int status_ = 0;
};

TEST_F(Object, IdsAreGivenOutAndTakenBack) {
    const auto first = make(10);
    const auto second = make(20);
    ASSERT_EQ(status_, BCM_E_NONE);
    EXPECT_NE(first, second);
    EXPECT_EQ(offset_of(first), 10u);
    EXPECT_EQ(offset_of(second), 20u);
    EXPECT_EQ(bcm_fabric_action_destroy(0, first), BCM_E_NONE);
    EXPECT_EQ(bcm_fabric_action_destroy(0, first), BCM_E_NOT_FOUND);
    offset_of(first);
    EXPECT_EQ(status_, BCM_E_NOT_FOUND);
    EXPECT_EQ(offset_of(second), 20u);
    EXPECT_EQ(bcm_fabric_action_destroy_all(0), BCM_E_NONE);
    offset_of(second);
    EXPECT_EQ(status_, BCM_E_NOT_FOUND);
    EXPECT_EQ(bcm_fabric_action_destroy_all(0), BCM_E_NONE);
}

TEST_F(Object, TheCallerMayChooseTheIdAndReplace) {
    EXPECT_EQ(make(10, kWithId, 500), 500);
    EXPECT_EQ(status_, BCM_E_NONE);
    make(11, kWithId, 500);
    EXPECT_EQ(status_, BCM_E_EXISTS);
    make(12, kWithId | kReplace, 500);
    EXPECT_EQ(status_, BCM_E_NONE);
    EXPECT_EQ(offset_of(500), 12u);
}

TEST_F(Object, TheTableCanBeFull) {
    set("fault.table.bcm_fabric_action", "2");
    make(1);
    make(2);
    EXPECT_EQ(status_, BCM_E_NONE);
    make(3);
    EXPECT_EQ(status_, BCM_E_FULL);
    set("fault.table.bcm_fabric_action", "3");
    make(3);
    EXPECT_EQ(status_, BCM_E_NONE);
}

TEST_F(Object, NumbersOfOneByteRunOut) {
    uint8 id = 0;
    for (int i = 0; i < 255; ++i)
        ASSERT_EQ(bcm_oam_opcodes_count_profile_create(0, &id), BCM_E_NONE) << i;
    EXPECT_EQ(bcm_oam_opcodes_count_profile_create(0, &id), BCM_E_FULL);
    EXPECT_EQ(bcm_oam_opcodes_count_profile_delete(0, 100), BCM_E_NONE);
    EXPECT_EQ(bcm_oam_opcodes_count_profile_create(0, &id), BCM_E_NONE);
    EXPECT_EQ(id, 100);
}

TEST_F(Object, AddressesAreNeeded) {
    bcm_fabric_action_t id = 0;
    bcm_fabric_action_info_t info{};
    EXPECT_EQ(bcm_fabric_action_create(0, nullptr, &id), BCM_E_PARAM);
    EXPECT_EQ(bcm_fabric_action_create(0, &info, nullptr), BCM_E_PARAM);
    EXPECT_EQ(bcm_fabric_action_get(0, make(1), nullptr), BCM_E_PARAM);
    EXPECT_EQ(bcm_fabric_action_traverse(0, nullptr, nullptr), BCM_E_PARAM);
}

TEST_F(Object, IdsInRecordsAreWrittenThere) {
    bcm_mim_vpn_config_t info{};
    info.lookup_id = 5;
    ASSERT_EQ(bcm_mim_vpn_create(0, &info), BCM_E_NONE);
    bcm_mim_vpn_config_t back{};
    EXPECT_EQ(bcm_mim_vpn_get(0, info.vpn, &back), BCM_E_NONE);
    EXPECT_EQ(back.lookup_id, 5);
    EXPECT_EQ(back.vpn, info.vpn);
    EXPECT_EQ(bcm_mim_vpn_destroy(0, info.vpn), BCM_E_NONE);
    EXPECT_EQ(bcm_mim_vpn_get(0, info.vpn, &back), BCM_E_NOT_FOUND);
}

// A walk, or a removal of all, may ask for a field of the records.
TEST_F(Object, RecordsArePickedByAField) {
    std::vector<bcm_oam_group_t> groups;
    for (int i = 0; i < 4; ++i) {
        bcm_oam_group_info_t group{};
        if (i < 2) {
            ASSERT_EQ(bcm_oam_group_create(0, &group), BCM_E_NONE);
            groups.push_back(group.id);
        }
        bcm_oam_endpoint_info_t end{};
        end.group = groups[static_cast<std::size_t>(i) / 2 * (groups.size() - 1)];
        ASSERT_EQ(bcm_oam_endpoint_create(0, &end), BCM_E_NONE);
    }
    const auto count = [](bcm_oam_group_t group) {
        int met = 0;
        const auto visit = [](int, bcm_oam_endpoint_info_t *, void *context) {
            return ++*static_cast<int *>(context);
        };
        EXPECT_EQ(bcm_oam_endpoint_traverse(0, group, visit, &met), BCM_E_NONE);
        return met;
    };
    EXPECT_EQ(count(groups[0]), 2);
    EXPECT_EQ(bcm_oam_endpoint_destroy_all(0, groups[0]), BCM_E_NONE);
    EXPECT_EQ(count(groups[0]), 0);
    EXPECT_EQ(count(groups[1]), 2);
    EXPECT_EQ(bcm_oam_endpoint_destroy_all(0, 999), BCM_E_NOT_FOUND);
}

// Objects are numbered within another: here ports within a network.
TEST_F(Object, KeysMayComeBeforeTheId) {
    bcm_mim_vpn_config_t vpn{};
    for (int i = 0; i < 2; ++i) ASSERT_EQ(bcm_mim_vpn_create(0, &vpn), BCM_E_NONE);
    bcm_mim_port_t port{};
    ASSERT_EQ(bcm_mim_port_add(0, 1, &port), BCM_E_NONE);
    ASSERT_EQ(bcm_mim_port_add(0, 1, &port), BCM_E_NONE);
    ASSERT_EQ(bcm_mim_port_add(0, 2, &port), BCM_E_NONE);
    std::vector<bcm_mim_port_t> ports(4);
    int count = 0;
    EXPECT_EQ(bcm_mim_port_get_all(0, 1, 4, ports.data(), &count), BCM_E_NONE);
    EXPECT_EQ(count, 2);
    EXPECT_NE(ports[0].mim_port_id, ports[1].mim_port_id);
    EXPECT_EQ(bcm_mim_port_delete_all(0, 1), BCM_E_NONE);
    EXPECT_EQ(bcm_mim_port_get(0, 1, &ports[0]), BCM_E_NOT_FOUND);
    EXPECT_EQ(bcm_mim_port_get(0, 2, &port), BCM_E_NONE);
}

TEST_F(Object, SetFormsNeedTheObject) {
    int id = 0;
    bcm_fabric_qsel_t qsel = 0;
    bcm_cosq_tas_profile_t profile{};
    EXPECT_EQ(bcm_cosq_tas_profile_set(0, 5, 1, &profile), BCM_E_NOT_FOUND);
    ASSERT_EQ(bcm_cosq_tas_profile_create(0, 5, &profile, &id), BCM_E_NONE);
    EXPECT_EQ(bcm_cosq_tas_profile_set(0, 6, id, &profile), BCM_E_NOT_FOUND);
    profile.num_entries = 3;
    EXPECT_EQ(bcm_cosq_tas_profile_set(0, 5, id, &profile), BCM_E_NONE);
    bcm_cosq_tas_profile_t back{};
    EXPECT_EQ(bcm_cosq_tas_profile_get(0, 5, id, &back), BCM_E_NONE);
    EXPECT_EQ(back.num_entries, 3);
    ASSERT_EQ(bcm_fabric_qsel_create(0, 4, 2, 3, &qsel), BCM_E_NONE);
    uint32 flags = 0;
    int entries = 0;
    int offsets = 0;
    EXPECT_EQ(bcm_fabric_qsel_get(0, qsel, &flags, &entries, &offsets), BCM_E_NONE);
    EXPECT_EQ(std::tuple(flags, entries, offsets), std::tuple(4u, 2, 3));
}

// Members go with their object.
TEST_F(Object, MembersBelongToTheirObject) {
    int group = 0;
    EXPECT_EQ(bcm_ipmc_rp_add(0, 1, 10), BCM_E_NOT_FOUND);
    ASSERT_EQ(bcm_ipmc_rp_create(0, 0, &group), BCM_E_NONE);
    for (bcm_if_t number = 1; number <= 11; ++number) {
        bcm_l3_intf_t intf{};
        intf.l3a_vid = 1;
        intf.l3a_mac_addr[5] = static_cast<uint8>(number);
        ASSERT_EQ(bcm_l3_intf_create(0, &intf), BCM_E_NONE);
    }
    EXPECT_EQ(bcm_ipmc_rp_add(0, group, 10), BCM_E_NONE);
    EXPECT_EQ(bcm_ipmc_rp_add(0, group, 10), BCM_E_EXISTS);
    EXPECT_EQ(bcm_ipmc_rp_add(0, group, 11), BCM_E_NONE);
    std::vector<bcm_if_t> members(3, -1);
    int count = 0;
    EXPECT_EQ(bcm_ipmc_rp_get(0, group, 3, members.data(), &count), BCM_E_NONE);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(members, (std::vector<bcm_if_t>{10, 11, -1}));
    std::vector<bcm_if_t> others = {7, 6, 5};
    EXPECT_EQ(bcm_ipmc_rp_set(0, group, 3, others.data()), BCM_E_NONE);
    EXPECT_EQ(bcm_ipmc_rp_get(0, group, 3, members.data(), &count), BCM_E_NONE);
    EXPECT_EQ(members, others);
    EXPECT_EQ(bcm_ipmc_rp_delete(0, group, 6), BCM_E_NONE);
    EXPECT_EQ(bcm_ipmc_rp_delete(0, group, 6), BCM_E_NOT_FOUND);
    EXPECT_EQ(bcm_ipmc_rp_destroy(0, group), BCM_E_NONE);
    EXPECT_EQ(bcm_ipmc_rp_get(0, group, 3, members.data(), &count), BCM_E_NOT_FOUND);
    EXPECT_EQ(bcm_ipmc_rp_delete_all(0, group), BCM_E_NOT_FOUND);
}

struct Walk {
    std::vector<std::pair<int, uint32>> seen;
    int stop_after = 100;
};

int visit_action(int unit, bcm_fabric_action_t action, bcm_fabric_action_info_t *info, void *user) {
    auto &walk = *static_cast<Walk *>(user);
    walk.seen.emplace_back(action, info->queue_index_offset);
    bcm_fabric_action_destroy(unit, action);  // a callback may change what is walked
    return static_cast<int>(walk.seen.size()) < walk.stop_after ? BCM_E_NONE : BCM_E_FAIL;
}

TEST_F(Object, TraversalShowsEachOnceInTheirOrder) {
    const std::vector<std::pair<int, uint32>> made = {
        {make(30), 30}, {make(20), 20}, {make(10), 10}};
    Walk walk;
    EXPECT_EQ(bcm_fabric_action_traverse(0, visit_action, &walk), BCM_E_NONE);
    EXPECT_EQ(walk.seen, made);
    walk.seen.clear();
    EXPECT_EQ(bcm_fabric_action_traverse(0, visit_action, &walk), BCM_E_NONE);
    EXPECT_TRUE(walk.seen.empty());
    EXPECT_EQ(bcm_fabric_action_traverse(kNoUnit, visit_action, &walk), BCM_E_UNIT);
}

TEST_F(Object, ACallbackEndsTheTraversal) {
    make(1);
    make(2);
    make(3);
    Walk walk;
    walk.stop_after = 2;
    EXPECT_EQ(bcm_fabric_action_traverse(0, visit_action, &walk), BCM_E_FAIL);
    EXPECT_EQ(walk.seen.size(), 2u);
}

}  // namespace
