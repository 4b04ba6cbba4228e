// Ports, VLANs and spanning tree groups.
#include "chip_fixture.h"
#include "sdk/bcm/linkscan.h"
#include "sdk/bcm/port.h"
#include "sdk/bcm/stg.h"
#include "sdk/bcm/trunk.h"
#include "sdk/bcm/vlan.h"
#include "standin/model/tables.h"

namespace standin {
namespace {

struct PortPair {
    const char *name;
    int (*set)(int, bcm_port_t, int);
    int (*get)(int, bcm_port_t, int *);
    int good;
    int bad;
    int refusal;
};

TEST_F(Chip, PortSettingsReadBack) {
    const PortPair pairs[] = {
        {"enable", bcm_port_enable_set, bcm_port_enable_get, 0, 2, BCM_E_PARAM},
        {"speed", bcm_port_speed_set, bcm_port_speed_get, 25'000, 30'000, BCM_E_CONFIG},
        {"speed above", bcm_port_speed_set, bcm_port_speed_get, 1'000, 100'000, BCM_E_CONFIG},
        {"frame", bcm_port_frame_max_set, bcm_port_frame_max_get, 9'000, 63, BCM_E_PARAM},
        {"loopback", bcm_port_loopback_set, bcm_port_loopback_get, 2, 4, BCM_E_PARAM},
        {"stp", bcm_port_stp_set, bcm_port_stp_get, 3, 5, BCM_E_PARAM},
        {"priority", bcm_port_untagged_priority_set, bcm_port_untagged_priority_get, 7, 8,
         BCM_E_PARAM},
    };
    for (const PortPair &pair : pairs) {
        SCOPED_TRACE(pair.name);
        int value = -1;
        EXPECT_EQ(pair.set(0, 5, pair.good), BCM_E_NONE);
        EXPECT_EQ(pair.set(0, 5, pair.bad), pair.refusal);
        EXPECT_EQ(pair.get(0, kLocalGport.of(5), &value), BCM_E_NONE);
        EXPECT_EQ(value, pair.good);
        EXPECT_EQ(pair.get(0, 6, &value), BCM_E_NONE);
        EXPECT_NE(value, pair.good) << "another port changed";
        EXPECT_EQ(pair.get(0, 5, nullptr), BCM_E_PARAM);
        EXPECT_EQ(pair.get(0, kPorts, &value), BCM_E_PORT);
        EXPECT_EQ(pair.get(0, -1, &value), BCM_E_PORT);
        EXPECT_EQ(pair.set(1, 5, pair.good), BCM_E_UNIT);
    }
}

TEST_F(Chip, LinkFollowsEnableAndFarEnd) {
    const auto link = [] {
        int status = -1;
        EXPECT_EQ(bcm_port_link_status_get(0, 3, &status), BCM_E_NONE);
        return status;
    };
    EXPECT_EQ(link(), 1);
    bcm_port_enable_set(0, 3, 0);
    EXPECT_EQ(link(), 0);
    EXPECT_EQ(standin_port_traffic(0, 3, 0, 1, 64), BCM_E_DISABLED);
    bcm_port_enable_set(0, 3, 1);
    standin_link_set(0, 3, 0);
    EXPECT_EQ(link(), 0);
    bcm_port_loopback_set(0, 3, BCM_PORT_LOOPBACK_MAC);
    EXPECT_EQ(link(), 1);
    bcm_port_link_state_t state{};
    EXPECT_EQ(bcm_port_link_state_get(0, 3, 0, &state), BCM_E_NONE);
    EXPECT_EQ(state.latch_down, 1);
}

TEST_F(Chip, PortTableTellsItself) {
    bcm_port_config_t config;
    ASSERT_EQ(bcm_port_config_get(0, &config), BCM_E_NONE);
    EXPECT_EQ(config.all, kAllPorts);
    EXPECT_EQ(config.e, kFrontPortSet);
    EXPECT_FALSE(any_common(config.xe, config.ce));
    EXPECT_FALSE(any_common(config.per_pipe[0], config.per_pipe[1]));
    EXPECT_STREQ(bcm_port_name(0, 7), "xe7");
    EXPECT_EQ(bcm_port_name(0, 65), nullptr);
    EXPECT_EQ(bcm_port_name(3, 7), nullptr);
    bcm_port_info_t info;
    ASSERT_EQ(bcm_port_info_get(0, 49, &info), BCM_E_NONE);
    EXPECT_EQ(info.speed, 100'000);
    EXPECT_EQ(bcm_port_config_get(0, nullptr), BCM_E_PARAM);
}

TEST_F(Chip, PortInfoIsTakenAsAWhole) {
    bcm_port_info_t info;
    ASSERT_EQ(bcm_port_info_get(0, 5, &info), BCM_E_NONE);
    info.speed = 25'000;
    info.loopback = BCM_PORT_LOOPBACK_COUNT;
    EXPECT_EQ(bcm_port_info_set(0, 5, &info), BCM_E_PARAM);
    int speed = 0;
    bcm_port_speed_get(0, 5, &speed);
    EXPECT_EQ(speed, 10'000) << "nothing changed";
    info.loopback = BCM_PORT_LOOPBACK_PHY;
    EXPECT_EQ(bcm_port_info_set(0, 5, &info), BCM_E_NONE);
    bcm_port_speed_get(0, 5, &speed);
    EXPECT_EQ(speed, 25'000);
    EXPECT_EQ(bcm_port_info_set(0, 5, nullptr), BCM_E_PARAM);
}

TEST_F(Chip, LinkscanHasOneModeInThreeForms) {
    int mode = -1;
    EXPECT_EQ(bcm_linkscan_mode_set_pbm(0, ports({3, 4}), BCM_LINKSCAN_MODE_HW), BCM_E_NONE);
    EXPECT_EQ(bcm_port_linkscan_get(0, 4, &mode), BCM_E_NONE);
    EXPECT_EQ(mode, BCM_LINKSCAN_MODE_HW);
    EXPECT_EQ(bcm_port_linkscan_set(0, 4, BCM_LINKSCAN_MODE_SW), BCM_E_NONE);
    EXPECT_EQ(bcm_linkscan_mode_get(0, 4, &mode), BCM_E_NONE);
    EXPECT_EQ(mode, BCM_LINKSCAN_MODE_SW);
    EXPECT_EQ(bcm_linkscan_mode_set(0, 4, BCM_LINKSCAN_MODE_NONE), BCM_E_NONE);
    EXPECT_EQ(bcm_port_linkscan_get(0, 4, &mode), BCM_E_NONE);
    EXPECT_EQ(mode, BCM_LINKSCAN_MODE_NONE);
    EXPECT_EQ(bcm_linkscan_mode_set_pbm(0, ports({3, 70}), 1), BCM_E_PORT);
    EXPECT_EQ(bcm_linkscan_mode_get(0, 3, &mode), BCM_E_NONE);
    EXPECT_EQ(mode, BCM_LINKSCAN_MODE_HW) << "refused whole";
}

TEST_F(Chip, VlanLifeAndMembers) {
    EXPECT_EQ(bcm_vlan_create(0, 10), BCM_E_NONE);
    EXPECT_EQ(bcm_vlan_create(0, 10), BCM_E_EXISTS);
    EXPECT_EQ(bcm_vlan_create(0, 0), BCM_E_PARAM);
    EXPECT_EQ(bcm_vlan_create(0, 4095), BCM_E_PARAM);
    EXPECT_EQ(bcm_vlan_destroy(0, 1), BCM_E_BADID);
    EXPECT_EQ(bcm_vlan_destroy(0, 11), BCM_E_NOT_FOUND);

    EXPECT_EQ(bcm_vlan_port_add(0, 10, ports({1, 2, 3}), ports({2})), BCM_E_NONE);
    EXPECT_EQ(bcm_vlan_port_add(0, 10, ports({1}), ports({2})), BCM_E_PARAM);
    EXPECT_EQ(bcm_vlan_port_add(0, 10, ports({65}), {}), BCM_E_PORT);
    EXPECT_EQ(bcm_vlan_port_remove(0, 10, ports({3})), BCM_E_NONE);
    EXPECT_EQ(bcm_vlan_port_remove(0, 10, ports({3})), BCM_E_NOT_FOUND);
    bcm_pbmp_t members{}, untagged{};
    EXPECT_EQ(bcm_vlan_port_get(0, 10, &members, &untagged), BCM_E_NONE);
    EXPECT_EQ(members, ports({1, 2}));
    EXPECT_EQ(untagged, ports({2}));
    EXPECT_EQ(bcm_vlan_port_get(0, 11, &members, &untagged), BCM_E_NOT_FOUND);
    EXPECT_EQ(bcm_vlan_port_get(0, 10, nullptr, &untagged), BCM_E_PARAM);
}

TEST_F(Chip, VlanListsAreLoans) {
    bcm_vlan_create(0, 10);
    bcm_vlan_port_add(0, 10, ports({9}), {});
    bcm_vlan_port_remove(0, 1, ports({9}));
    bcm_vlan_data_t *list = nullptr;
    int count = 0;
    ASSERT_EQ(bcm_vlan_list(0, &list, &count), BCM_E_NONE);
    ASSERT_EQ(count, 2);
    EXPECT_EQ(list[1].vlan_tag, 10);
    EXPECT_EQ(bcm_vlan_list_destroy(0, list, 1), BCM_E_PARAM);
    EXPECT_EQ(bcm_vlan_list_destroy(0, list, 2), BCM_E_NONE);
    EXPECT_EQ(bcm_vlan_list_destroy(0, list, 2), BCM_E_NOT_FOUND) << "given back twice";
    EXPECT_EQ(bcm_vlan_list_destroy(0, nullptr, 0), BCM_E_NOT_FOUND);

    ASSERT_EQ(bcm_vlan_list_by_pbmp(0, ports({9}), &list, &count), BCM_E_NONE);
    ASSERT_EQ(count, 1);
    EXPECT_EQ(list[0].vlan_tag, 10);
    EXPECT_EQ(bcm_vlan_list_destroy(0, list, count), BCM_E_NONE);
    EXPECT_EQ(bcm_vlan_list(0, nullptr, &count), BCM_E_PARAM);
}

TEST_F(Chip, VlanGportsOfEachKind) {
    bcm_vlan_create(0, 10);
    EXPECT_EQ(bcm_vlan_gport_add(0, 10, kLocalGport.of(4), 1), BCM_E_NONE);
    EXPECT_EQ(bcm_vlan_gport_add(0, 10, kTrunkGport.of(2), 0), BCM_E_NOT_FOUND);
    bcm_trunk_t tid = 2;
    ASSERT_EQ(bcm_trunk_create(0, BCM_TRUNK_FLAG_WITH_ID, &tid), BCM_E_NONE);
    EXPECT_EQ(bcm_vlan_gport_add(0, 10, kTrunkGport.of(2), 0), BCM_E_NONE);
    EXPECT_EQ(bcm_vlan_gport_add(0, 10, 70, 0), BCM_E_PORT);
    EXPECT_EQ(bcm_port_gport_is_free(0, kTrunkGport.of(2)), BCM_E_EXISTS);
    EXPECT_EQ(bcm_port_gport_is_free(0, kTrunkGport.of(3)), BCM_E_NONE);
    for (const bcm_gport_t none : {70, -1, kLocalGport.of(70)})
        EXPECT_EQ(bcm_port_gport_is_free(0, none), BCM_E_PORT) << none;
    bcm_pbmp_t members{}, untagged{};
    bcm_vlan_port_get(0, 10, &members, &untagged);
    EXPECT_EQ(untagged, ports({4}));
    bcm_gport_t gports[4] = {};
    int flags[4] = {};
    int size = -1;
    EXPECT_EQ(bcm_vlan_gport_get_all(0, 10, 4, gports, flags, &size), BCM_E_NONE);
    ASSERT_EQ(size, 2);
    EXPECT_EQ(gports[1], kTrunkGport.of(2));
    EXPECT_EQ(bcm_vlan_gport_get_all(0, 10, 0, nullptr, nullptr, &size), BCM_E_NONE);
    EXPECT_EQ(size, 2) << "max 0 asks for the number";
    EXPECT_EQ(bcm_vlan_gport_delete(0, 10, 4), BCM_E_NONE);
    EXPECT_EQ(bcm_vlan_gport_get(0, 10, 4, flags), BCM_E_NOT_FOUND);
}

TEST_F(Chip, VlansKeepTheirOneGroup) {
    bcm_stg_t stg = 0;
    ASSERT_EQ(bcm_stg_create(0, &stg), BCM_E_NONE);
    ASSERT_EQ(bcm_vlan_create(0, 10), BCM_E_NONE);
    EXPECT_EQ(bcm_stg_vlan_add(0, stg, 10), BCM_E_NONE);
    EXPECT_EQ(bcm_stg_vlan_add(0, stg, 11), BCM_E_NOT_FOUND);
    EXPECT_EQ(bcm_stg_vlan_remove(0, 1, 10), BCM_E_NOT_FOUND) << "it is in the other group";

    EXPECT_EQ(bcm_vlan_stp_set(0, 10, 5, BCM_STG_STP_LEARN), BCM_E_NONE);
    int state = -1;
    EXPECT_EQ(bcm_stg_stp_get(0, stg, 5, &state), BCM_E_NONE);
    EXPECT_EQ(state, BCM_STG_STP_LEARN);
    EXPECT_EQ(bcm_stg_stp_get(0, 1, 5, &state), BCM_E_NONE);
    EXPECT_EQ(state, BCM_STG_STP_FORWARD);
    EXPECT_EQ(bcm_stg_stp_set(0, stg, 5, 5), BCM_E_PARAM);
    EXPECT_EQ(bcm_stg_stp_set(0, 9, 5, 1), BCM_E_NOT_FOUND);

    bcm_vlan_t *vids = nullptr;
    int count = 0;
    ASSERT_EQ(bcm_stg_vlan_list(0, stg, &vids, &count), BCM_E_NONE);
    ASSERT_EQ(count, 1);
    EXPECT_EQ(vids[0], 10);
    EXPECT_EQ(bcm_stg_vlan_list_destroy(0, vids, count), BCM_E_NONE);

    EXPECT_EQ(bcm_stg_destroy(0, 1), BCM_E_BADID);
    EXPECT_EQ(bcm_stg_destroy(0, stg), BCM_E_NONE);
    EXPECT_EQ(bcm_vlan_stg_get(0, 10, &stg), BCM_E_NONE);
    EXPECT_EQ(stg, 1);
}

TEST_F(Chip, InitOfAChapterForgetsItsUnmodelledStateToo) {
    ASSERT_EQ(on_switch("test", 0,
                        [](Switch &chip) {
                            chip.generic["bcm_vlan_x"];
                            chip.generic["bcm_port_x"];
                            return int{BCM_E_NONE};
                        }),
              BCM_E_NONE);
    EXPECT_EQ(bcm_vlan_init(0), BCM_E_NONE);
    on_switch("test", 0, [](Switch &chip) {
        EXPECT_FALSE(chip.generic.contains("bcm_vlan_x"));
        EXPECT_TRUE(chip.generic.contains("bcm_port_x"));
        return int{BCM_E_NONE};
    });
}

TEST_F(Chip, GroupListAndLimit) {
    for (int stg = 2; stg <= 255; ++stg) ASSERT_EQ(bcm_stg_create_id(0, stg), BCM_E_NONE);
    EXPECT_EQ(bcm_stg_create_id(0, 256), BCM_E_PARAM);
    EXPECT_EQ(bcm_stg_create_id(0, 7), BCM_E_EXISTS);
    bcm_stg_t stg = 0;
    EXPECT_EQ(bcm_stg_create(0, &stg), BCM_E_FULL);
    bcm_stg_t *list = nullptr;
    int count = 0;
    ASSERT_EQ(bcm_stg_list(0, &list, &count), BCM_E_NONE);
    EXPECT_EQ(count, 255);
    EXPECT_EQ(list[254], 255);
    EXPECT_EQ(bcm_stg_list_destroy(0, list, count), BCM_E_NONE);
    EXPECT_EQ(bcm_stg_clear(0), BCM_E_NONE);
    ASSERT_EQ(bcm_stg_list(0, &list, &count), BCM_E_NONE);
    EXPECT_EQ(count, 1);
    EXPECT_EQ(bcm_stg_list_destroy(0, list, count), BCM_E_NONE);
}

}  // namespace
}  // namespace standin
