// Queues of ports, and the calls that are bound by hand to the tables of the rules.
#include <array>
#include <vector>

#include "chip_fixture.h"
#include "sdk/bcm/cosq.h"
#include "sdk/bcm/fabric.h"
#include "sdk/bcm/l2.h"
#include "sdk/bcm/qos.h"
#include "sdk/bcm/stat.h"
#include "sdk/bcm/switch.h"
#include "sdk/bcm/vlan.h"

namespace standin {
namespace {

TEST_F(Chip, PrioritiesReachTheQueuesThatAreThere) {
    const auto queue_of = [](int port, int priority) {
        int queue = -1;
        EXPECT_EQ(bcm_cosq_port_mapping_get(0, port, priority, &queue), BCM_E_NONE);
        return queue;
    };
    EXPECT_EQ(queue_of(5, 3), 3);
    EXPECT_EQ(bcm_cosq_port_mapping_set(0, 5, 3, 6), BCM_E_NONE);
    EXPECT_EQ(std::pair(queue_of(5, 3), queue_of(6, 3)), std::pair(6, 3));
    EXPECT_EQ(bcm_cosq_mapping_set(0, 3, 2), BCM_E_NONE);  // reaches every port
    EXPECT_EQ(std::pair(queue_of(5, 3), queue_of(6, 3)), std::pair(2, 2));
    EXPECT_EQ(bcm_cosq_config_set(0, 4), BCM_E_NONE);
    EXPECT_EQ(queue_of(5, 7), 3);
    EXPECT_EQ(bcm_cosq_mapping_set(0, 3, 4), BCM_E_PARAM);
    std::array<int, 2> priorities = {1, 2};
    std::array<int, 2> queues = {3, 4};
    EXPECT_EQ(bcm_cosq_port_mapping_multi_set(0, 5, 2, priorities.data(), queues.data()),
              BCM_E_PARAM);
    EXPECT_EQ(queue_of(5, 1), 1);  // refused whole
    EXPECT_EQ(bcm_cosq_config_set(0, 9), BCM_E_PARAM);
    EXPECT_EQ(bcm_cosq_init(0), BCM_E_NONE);
    EXPECT_EQ(queue_of(5, 7), 7);
}

TEST_F(Chip, SchedulingIsOneStateForOnePortAndMany) {
    std::array<int, 8> weights = {1, 2, 3, 4, 5, 6, 7, 8};
    std::array<int, 8> back{};
    int mode = 0;
    int delay = 0;
    const auto get = [&](const bcm_pbmp_t &of) {
        return bcm_cosq_port_sched_get(0, of, &mode, back.data(), &delay);
    };
    EXPECT_EQ(bcm_cosq_port_sched_set(0, ports({5, 6}), 2, weights.data(), 9), BCM_E_NONE);
    EXPECT_EQ(get(ports({6})), BCM_E_NONE);
    EXPECT_EQ(std::tuple(mode, back, delay), std::tuple(2, weights, 9));
    EXPECT_EQ(get(ports({6, 7})), BCM_E_CONFIG);
    EXPECT_EQ(bcm_cosq_sched_set(0, 3, weights.data(), 0), BCM_E_NONE);
    EXPECT_EQ(get(ports({6, 7})), BCM_E_NONE);
    EXPECT_EQ(mode, 3);
    weights[4] = 128;
    EXPECT_EQ(bcm_cosq_sched_set(0, 3, weights.data(), 0), BCM_E_PARAM);
    EXPECT_EQ(get(ports({})), BCM_E_PARAM);
    EXPECT_EQ(get(ports({200})), BCM_E_PORT);
}

TEST_F(Chip, TheTreeOfSchedulersIsAskedFromBothSides) {
    std::array<bcm_gport_t, 3> nodes{};
    for (auto &node : nodes) ASSERT_EQ(bcm_cosq_gport_add(0, 5, 8, 0, &node), BCM_E_NONE);
    const auto [root, other, leaf] = nodes;
    ASSERT_EQ(bcm_cosq_gport_attach(0, root, leaf, 2), BCM_E_NONE);
    bcm_gport_t found = 0;
    EXPECT_EQ(bcm_cosq_gport_parent_get(0, leaf, 2, &found), BCM_E_NONE);
    EXPECT_EQ(found, root);
    EXPECT_EQ(bcm_cosq_gport_child_get(0, root, 2, &found), BCM_E_NONE);
    EXPECT_EQ(found, leaf);
    EXPECT_EQ(bcm_cosq_gport_child_get(0, root, 3, &found), BCM_E_NOT_FOUND);
    EXPECT_EQ(bcm_cosq_gport_reattach(0, other, leaf, 1), BCM_E_NONE);
    EXPECT_EQ(bcm_cosq_gport_parent_get(0, leaf, 1, &found), BCM_E_NONE);
    EXPECT_EQ(found, other);
    EXPECT_EQ(bcm_cosq_gport_parent_get(0, leaf, 2, &found), BCM_E_NOT_FOUND);
    EXPECT_EQ(bcm_cosq_gport_delete(0, other), BCM_E_NONE);  // and what was attached to it
    EXPECT_EQ(bcm_cosq_gport_parent_get(0, leaf, 1, &found), BCM_E_NOT_FOUND);
    EXPECT_EQ(bcm_cosq_gport_reattach(0, root, 999, 1), BCM_E_PORT);
}

TEST_F(Chip, QueuesOfAnIngressPortLeadSomewhere) {
    int id = 0;
    EXPECT_EQ(bcm_cosq_gport_queue_attach(0, 0, 5, 1, 6, 2, &id), BCM_E_NONE);
    bcm_gport_t out = 0;
    bcm_cos_t queue = 0;
    EXPECT_EQ(bcm_cosq_gport_queue_attach_get(0, 5, 1, &out, &queue, id), BCM_E_NONE);
    EXPECT_EQ(std::pair(out, queue), std::pair(6, 2));
    EXPECT_EQ(bcm_cosq_gport_queue_attach(0, 0, 5, 1, 999, 2, &id), BCM_E_PORT);
    EXPECT_EQ(bcm_cosq_gport_queue_detach(0, 5, 1, id), BCM_E_NONE);
    EXPECT_EQ(bcm_cosq_gport_queue_detach(0, 5, 1, id), BCM_E_NOT_FOUND);
}

TEST_F(Chip, StatisticsOfTwoPortsAreSetAndClearedTogether) {
    std::array<bcm_cosq_gport_stats_t, 2> kinds{bcm_cosq_gport_stats_t{1},
                                                bcm_cosq_gport_stats_t{2}};
    std::array<uint64, 2> values{};
    const auto get = [&](int clear) {
        EXPECT_EQ(
            bcm_cosq_gport_statistic_multi_get(0, 5, 6, 1, 2, kinds.data(), clear, values.data()),
            BCM_E_NONE);
        return values;
    };
    EXPECT_EQ(bcm_cosq_gport_statistic_multi_set(0, 5, 6, 1, 2, kinds.data(), 7), BCM_E_NONE);
    EXPECT_EQ(get(1), (std::array<uint64, 2>{7, 7}));
    EXPECT_EQ(get(0), (std::array<uint64, 2>{0, 0}));
}

TEST_F(Chip, ACalendarComesBackUpToTheRoom) {
    std::array<bcm_gport_t, 3> gports = {5, 6, 7};
    std::array<bcm_cos_queue_t, 3> queues = {1, 2, 3};
    int count = 3;
    ASSERT_EQ(bcm_fabric_calendar_multi_set(0, 1, &count, gports.data(), queues.data()),
              BCM_E_NONE);
    gports = {};
    count = 2;
    EXPECT_EQ(bcm_fabric_calendar_multi_get(0, 1, &count, gports.data(), queues.data()),
              BCM_E_NONE);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(gports, (std::array<bcm_gport_t, 3>{5, 6, 0}));
    gports = {5, 999, 7};
    count = 3;
    EXPECT_EQ(bcm_fabric_calendar_multi_set(0, 1, &count, gports.data(), queues.data()),
              BCM_E_PORT);
    EXPECT_EQ(bcm_fabric_calendar_multi_set(0, 1, nullptr, gports.data(), queues.data()),
              BCM_E_PARAM);
}

TEST_F(Chip, TheCacheFindsAPlace) {
    bcm_l2_cache_addr_t entry{};
    int used = 0;
    entry.vlan = 7;
    ASSERT_EQ(bcm_l2_cache_set(0, 1, &entry, &used), BCM_E_NONE);
    EXPECT_EQ(used, 1);
    entry.vlan = 8;
    ASSERT_EQ(bcm_l2_cache_set(0, -1, &entry, &used), BCM_E_NONE);
    EXPECT_NE(used, 1);
    EXPECT_EQ(bcm_l2_cache_get(0, 1, &entry), BCM_E_NONE);
    EXPECT_EQ(entry.vlan, 7);
    EXPECT_EQ(bcm_l2_cache_delete(0, 1), BCM_E_NONE);
    EXPECT_EQ(bcm_l2_cache_get(0, 1, &entry), BCM_E_NOT_FOUND);
    EXPECT_EQ(bcm_l2_cache_delete_all(0), BCM_E_NONE);
    EXPECT_EQ(bcm_l2_cache_get(0, used, &entry), BCM_E_NOT_FOUND);
    EXPECT_EQ(bcm_l2_cache_set(0, -2, &entry, &used), BCM_E_PARAM);
}

TEST_F(Chip, QosMapsAreListedWithTheirFlags) {
    std::array<int, 2> made{};
    ASSERT_EQ(bcm_qos_map_create(0, 1, &made[0]), BCM_E_NONE);
    ASSERT_EQ(bcm_qos_map_create(0, 2, &made[1]), BCM_E_NONE);
    std::array<int, 3> ids{};
    std::array<int, 3> flags{};
    int count = 0;
    EXPECT_EQ(bcm_qos_multi_get(0, 3, ids.data(), flags.data(), &count), BCM_E_NONE);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(ids, (std::array<int, 3>{made[0], made[1], 0}));
    EXPECT_EQ(flags, (std::array<int, 3>{1, 2, 0}));
    ASSERT_EQ(bcm_qos_port_map_set(0, 5, made[0], made[1]), BCM_E_NONE);
    int map = 0;
    EXPECT_EQ(bcm_qos_port_map_type_get(0, 5, 2, &map), BCM_E_NONE);
    EXPECT_EQ(map, made[1]);
    EXPECT_EQ(bcm_qos_port_map_type_get(0, 5, 3, &map), BCM_E_PARAM);
    EXPECT_EQ(bcm_qos_map_destroy(0, made[1]), BCM_E_NONE);
    EXPECT_EQ(bcm_qos_port_map_type_get(0, 5, 2, &map), BCM_E_NONE);
    EXPECT_EQ(map, 0);  // the port is without it
}

TEST_F(Chip, OneCounterIsClearedAlone) {
    ASSERT_EQ(standin_port_traffic(0, 5, 0, 3, 300), BCM_E_NONE);
    const auto read = [](int kind) {
        uint64 value = 0;
        EXPECT_EQ(bcm_stat_get(0, 5, bcm_stat_val_t{kind}, &value), BCM_E_NONE);
        return value;
    };
    EXPECT_EQ(bcm_stat_clear_single(0, 5, bcm_stat_val_t{snmpIfInOctets}), BCM_E_NONE);
    EXPECT_EQ(read(snmpIfInOctets), 0u);
    EXPECT_EQ(read(snmpIfInUcastPkts), 3u);
    ASSERT_EQ(standin_port_traffic(0, 5, 0, 1, 100), BCM_E_NONE);
    EXPECT_EQ(read(snmpIfInOctets), 100u);
    EXPECT_EQ(bcm_stat_clear(0, 5), BCM_E_NONE);
    EXPECT_EQ(read(snmpIfInOctets), 0u);
    int told = 0;
    const bcm_stat_val_t custom{snmpIfInOctets};
    const bcm_custom_stat_trigger_t trigger{1};
    EXPECT_EQ(bcm_stat_custom_add(0, 5, custom, trigger), BCM_E_NONE);
    EXPECT_EQ(bcm_stat_custom_check(0, 5, custom, trigger, &told), BCM_E_NONE);
    EXPECT_EQ(told, 1);
    EXPECT_EQ(bcm_stat_custom_delete(0, 5, custom, trigger), BCM_E_NONE);
    EXPECT_EQ(bcm_stat_custom_check(0, 5, custom, trigger, &told), BCM_E_NONE);
    EXPECT_EQ(told, 0);
}

TEST_F(Chip, ObjectsAreCountedWhereTheyStand) {
    ASSERT_EQ(bcm_vlan_create(0, 10), BCM_E_NONE);
    std::array<bcm_switch_object_t, 2> kinds{bcm_switch_object_t{bcmSwitchObjectVlanCurrent},
                                             bcm_switch_object_t{bcmSwitchObjectL2EntryMax}};
    std::array<int, 2> counts{};
    EXPECT_EQ(bcm_switch_object_count_multi_get(0, 2, kinds.data(), counts.data()), BCM_E_NONE);
    EXPECT_EQ(counts, (std::array<int, 2>{2, 65'536}));
    kinds[1] = bcm_switch_object_t{bcmSwitchObjectIpmcV4Max};
    counts = {};
    EXPECT_EQ(bcm_switch_object_count_multi_get(0, 2, kinds.data(), counts.data()), BCM_E_UNAVAIL);
    EXPECT_EQ(counts, (std::array<int, 2>{0, 0}));
}

}  // namespace
}  // namespace standin
