// Set and get forms: what one takes, the other gives back, key by key.
#include <array>

#include "generic_fixture.h"
#include "sdk/bcm/cosq.h"
#include "sdk/bcm/fabric.h"
#include "sdk/bcm/proxy.h"
#include "sdk/bcm/rx.h"
#include "sdk/bcm/vlan.h"

namespace {

using Control = bcm_cosq_control_t;
using Threshold = bcm_fabric_link_threshold_type_t;

class Pair : public Generic {};

TEST_F(Pair, ValuesAreKeptUnderTheirKeys) {
    int arg = 5;
    EXPECT_EQ(bcm_cosq_control_get(0, 1, 2, Control{3}, &arg), BCM_E_NONE);
    EXPECT_EQ(arg, 0);
    EXPECT_EQ(bcm_cosq_control_set(0, 1, 2, Control{3}, 40), BCM_E_NONE);
    EXPECT_EQ(bcm_cosq_control_set(0, 1, 2, Control{4}, 50), BCM_E_NONE);
    EXPECT_EQ(bcm_cosq_control_set(0, 1, 2, Control{3}, 41), BCM_E_NONE);
    EXPECT_EQ(bcm_cosq_control_get(0, 1, 2, Control{3}, &arg), BCM_E_NONE);
    EXPECT_EQ(arg, 41);
    EXPECT_EQ(bcm_cosq_control_get(0, 1, 2, Control{4}, &arg), BCM_E_NONE);
    EXPECT_EQ(arg, 50);
    EXPECT_EQ(bcm_cosq_control_get(0, 2, 1, Control{3}, &arg), BCM_E_NONE);
    EXPECT_EQ(arg, 0);
}

TEST_F(Pair, RefusalsComeInOrder) {
    set("fault.bcm_cosq_control_get", "status:-9,count:1");
    EXPECT_EQ(bcm_cosq_control_get(kNoUnit, 1, 2, Control{3}, nullptr), BCM_E_TIMEOUT);
    EXPECT_EQ(bcm_cosq_control_get(kNoUnit, 1, 2, Control{3}, nullptr), BCM_E_UNIT);
    EXPECT_EQ(bcm_cosq_control_get(0, 1, 2, Control{3}, nullptr), BCM_E_PARAM);
    ASSERT_EQ(addOmbraDevice(0, 2, 0, 0), 1);
    int arg = 0;
    EXPECT_EQ(bcm_cosq_control_get(1, 1, 2, Control{3}, &arg), BCM_E_INIT);
}

TEST_F(Pair, UnitsAreApartAndForgetWhenTheyStop) {
    ASSERT_EQ(addOmbraDevice(0, 2, 0, 0), 1);
    ASSERT_EQ(soc_init(1), BCM_E_NONE);
    ASSERT_EQ(bcm_cosq_control_set(0, 1, 2, Control{3}, 40), BCM_E_NONE);
    int arg = 1;
    EXPECT_EQ(bcm_cosq_control_get(1, 1, 2, Control{3}, &arg), BCM_E_NONE);
    EXPECT_EQ(arg, 0);
    ASSERT_EQ(soc_deinit(0), BCM_E_NONE);
    ASSERT_EQ(soc_init(0), BCM_E_NONE);
    arg = 1;
    EXPECT_EQ(bcm_cosq_control_get(0, 1, 2, Control{3}, &arg), BCM_E_NONE);
    EXPECT_EQ(arg, 0);
}

TEST_F(Pair, InitOfAChapterForgetsThatChapterOnly) {
    ASSERT_EQ(bcm_cosq_control_set(0, 1, 2, Control{3}, 40), BCM_E_NONE);
    ASSERT_EQ(bcm_fabric_control_set(0, bcm_fabric_control_t{3}, 60), BCM_E_NONE);
    ASSERT_EQ(bcm_cosq_detach(0), BCM_E_NONE);
    int arg = 1;
    EXPECT_EQ(bcm_cosq_control_get(0, 1, 2, Control{3}, &arg), BCM_E_INIT);
    ASSERT_EQ(bcm_cosq_init(0), BCM_E_NONE);
    EXPECT_EQ(bcm_cosq_control_get(0, 1, 2, Control{3}, &arg), BCM_E_NONE);
    EXPECT_EQ(arg, 0);
    EXPECT_EQ(bcm_fabric_control_get(0, bcm_fabric_control_t{3}, &arg), BCM_E_NONE);
    EXPECT_EQ(arg, 60);
}

// A record that names an object is a key; one that describes it is a value.
TEST_F(Pair, RecordsAreKeysOrValues) {
    bcm_proxy_server_t server{};
    server.server_gport = 2;
    ASSERT_EQ(bcm_proxy_server_port_set(0, 5, &server, 1), BCM_E_NONE);
    int enable = 0;
    EXPECT_EQ(bcm_proxy_server_port_get(0, 5, &server, &enable), BCM_E_NONE);
    EXPECT_EQ(enable, 1);
    server.server_gport = 3;
    EXPECT_EQ(bcm_proxy_server_port_get(0, 5, &server, &enable), BCM_E_NONE);
    EXPECT_EQ(enable, 0);

    bcm_vlan_action_set_t action{};
    action.new_outer_vlan = 100;
    action.priority = 7;
    ASSERT_EQ(bcm_vlan_port_default_action_set(0, 5, &action), BCM_E_NONE);
    bcm_vlan_action_set_t back{};
    EXPECT_EQ(bcm_vlan_port_default_action_get(0, 5, &back), BCM_E_NONE);
    EXPECT_EQ(back.new_outer_vlan, 100);
    EXPECT_EQ(back.priority, 7);
    EXPECT_EQ(bcm_vlan_port_default_action_set(0, 5, nullptr), BCM_E_PARAM);
}

// One record is both, where its key fields stand among its values.
TEST_F(Pair, ARecordBearsItsKey) {
    bcm_rx_mtu_config_t config{};
    config.gport = 3;
    config.mtu = 1500;
    ASSERT_EQ(bcm_rx_mtu_set(0, &config), BCM_E_NONE);
    bcm_rx_mtu_config_t asked{};
    asked.gport = 3;
    EXPECT_EQ(bcm_rx_mtu_get(0, &asked), BCM_E_NONE);
    EXPECT_EQ(asked.mtu, 1500u);
    asked.gport = 4;
    EXPECT_EQ(bcm_rx_mtu_get(0, &asked), BCM_E_NONE);
    EXPECT_EQ(asked.mtu, 0u);
}

TEST_F(Pair, FixedArraysAreValues) {
    const int weights[8] = {1, 2, 3, 4, 5, 6, 7, 8};
    ASSERT_EQ(bcm_cosq_sched_set(0, 9, weights, 10), BCM_E_NONE);
    int mode = 0;
    int back[8] = {};
    int delay = 0;
    EXPECT_EQ(bcm_cosq_sched_get(0, &mode, back, &delay), BCM_E_NONE);
    EXPECT_EQ(mode, 9);
    EXPECT_EQ(delay, 10);
    EXPECT_EQ(std::to_array(back), std::to_array(weights));
}

TEST_F(Pair, ArraysComeBackUpToTheLimit) {
    std::array<int, 3> links = {11, 12, 13};
    ASSERT_EQ(bcm_fabric_link_topology_set(0, 4, 3, links.data()), BCM_E_NONE);
    std::array<int, 4> back = {-1, -1, -1, -1};
    int count = -1;
    EXPECT_EQ(bcm_fabric_link_topology_get(0, 4, 4, &count, back.data()), BCM_E_NONE);
    EXPECT_EQ(count, 3);
    EXPECT_EQ(back, (std::array<int, 4>{11, 12, 13, -1}));
    back = {-1, -1, -1, -1};
    EXPECT_EQ(bcm_fabric_link_topology_get(0, 4, 2, &count, back.data()), BCM_E_NONE);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(back, (std::array<int, 4>{11, 12, -1, -1}));
    EXPECT_EQ(bcm_fabric_link_topology_get(0, 4, 0, &count, nullptr), BCM_E_NONE);
    EXPECT_EQ(count, 3);
    EXPECT_EQ(bcm_fabric_link_topology_get(0, 5, 4, &count, back.data()), BCM_E_NONE);
    EXPECT_EQ(count, 0);
}

TEST_F(Pair, ArraysAreRefusedWithoutRoomOrNumber) {
    int link = 0;
    int count = 0;
    EXPECT_EQ(bcm_fabric_link_topology_set(0, 4, -1, &link), BCM_E_PARAM);
    EXPECT_EQ(bcm_fabric_link_topology_set(0, 4, 1, nullptr), BCM_E_PARAM);
    EXPECT_EQ(bcm_fabric_link_topology_get(0, 4, -1, &count, &link), BCM_E_PARAM);
    EXPECT_EQ(bcm_fabric_link_topology_get(0, 4, 1, &count, nullptr), BCM_E_PARAM);
    EXPECT_EQ(bcm_fabric_link_topology_get(0, 4, 1, nullptr, &link), BCM_E_PARAM);
    EXPECT_EQ(bcm_fabric_link_topology_set(0, 4, 0, nullptr), BCM_E_NONE);
}

TEST_F(Pair, OneArrayMayBeTheKeysOfTheOther) {
    std::array<Threshold, 2> types = {Threshold{4}, Threshold{2}};
    std::array<int, 2> values = {40, 20};
    ASSERT_EQ(bcm_fabric_link_thresholds_set(0, 1, 2, types.data(), values.data()), BCM_E_NONE);
    std::array<Threshold, 3> asked = {Threshold{2}, Threshold{3}, Threshold{4}};
    std::array<int, 3> back = {-1, -1, -1};
    EXPECT_EQ(bcm_fabric_link_thresholds_get(0, 1, 3, asked.data(), back.data()), BCM_E_NONE);
    EXPECT_EQ(back, (std::array<int, 3>{20, 0, 40}));
}

}  // namespace
