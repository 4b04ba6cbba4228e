// Add, get, delete and traverse forms; registrations; statistics.
#include <array>
#include <string>
#include <tuple>
#include <vector>

#include "generic_fixture.h"
#include "sdk/bcm/cosq.h"
#include "sdk/bcm/custom.h"
#include "sdk/bcm/niv.h"
#include "sdk/bcm/oam.h"
#include "sdk/bcm/stk.h"
#include "sdk/bcm/switch.h"
#include "sdk/bcm/vlan.h"
#include "sdk/bcm/vswitch.h"

namespace {

class Table : public Generic {};

TEST_F(Table, RowsAreAddedFoundAndDeleted) {
    bcm_vlan_t vid = 1;
    int prio = 1;
    EXPECT_EQ(bcm_vlan_dtag_get(0, 3, 100, &vid, &prio), BCM_E_NOT_FOUND);
    EXPECT_EQ(bcm_vlan_dtag_add(0, 3, 100, 200, 5), BCM_E_NONE);
    EXPECT_EQ(bcm_vlan_dtag_add(0, 3, 100, 201, 6), BCM_E_EXISTS);
    EXPECT_EQ(bcm_vlan_dtag_get(0, 3, 100, &vid, &prio), BCM_E_NONE);
    EXPECT_EQ(std::tuple(vid, prio), std::tuple(200, 5));
    EXPECT_EQ(bcm_vlan_dtag_delete(0, 3, 101), BCM_E_NOT_FOUND);
    EXPECT_EQ(bcm_vlan_dtag_delete(0, 3, 100), BCM_E_NONE);
    EXPECT_EQ(bcm_vlan_dtag_delete(0, 3, 100), BCM_E_NOT_FOUND);
    EXPECT_EQ(bcm_vlan_dtag_add(0, 3, 100, 201, 6), BCM_E_NONE);
    EXPECT_EQ(bcm_vlan_dtag_delete_all(0), BCM_E_NONE);
    EXPECT_EQ(bcm_vlan_dtag_get(0, 3, 100, &vid, &prio), BCM_E_NOT_FOUND);
}

TEST_F(Table, KeyFieldsOfARecordFindIt) {
    bcm_oam_ais_t ais{};
    ais.id = 4;
    ais.ais_id = 2;
    ais.period = 1000;
    ASSERT_EQ(bcm_oam_ais_add(0, &ais), BCM_E_NONE);
    EXPECT_EQ(bcm_oam_ais_add(0, &ais), BCM_E_EXISTS);
    bcm_oam_ais_t asked{};
    asked.id = 4;
    asked.ais_id = 2;
    EXPECT_EQ(bcm_oam_ais_get(0, &asked), BCM_E_NONE);
    EXPECT_EQ(asked.period, 1000);
    asked.ais_id = 3;
    EXPECT_EQ(bcm_oam_ais_get(0, &asked), BCM_E_NOT_FOUND);
    EXPECT_EQ(bcm_oam_ais_delete(0, &asked), BCM_E_NOT_FOUND);
    EXPECT_EQ(bcm_oam_ais_delete(0, nullptr), BCM_E_PARAM);
    EXPECT_EQ(bcm_oam_ais_delete(0, &ais), BCM_E_NONE);
}

TEST_F(Table, OneArgumentMaySelectSeveralRows) {
    for (const bcm_vlan_t vsi : std::array<bcm_vlan_t, 2>{7, 8})
        ASSERT_EQ(bcm_vswitch_create_with_id(0, vsi), BCM_E_NONE) << vsi;
    ASSERT_EQ(bcm_vswitch_port_add(0, 7, 1), BCM_E_NONE);
    ASSERT_EQ(bcm_vswitch_port_add(0, 7, 2), BCM_E_NONE);
    ASSERT_EQ(bcm_vswitch_port_add(0, 8, 3), BCM_E_NONE);
    bcm_vlan_t vsi = 0;
    EXPECT_EQ(bcm_vswitch_port_get(0, 2, &vsi), BCM_E_NONE);
    EXPECT_EQ(vsi, 7);
    EXPECT_EQ(bcm_vswitch_port_delete(0, 8, 2), BCM_E_NOT_FOUND);
    EXPECT_EQ(bcm_vswitch_port_delete_all(0, 7), BCM_E_NONE);
    EXPECT_EQ(bcm_vswitch_port_get(0, 2, &vsi), BCM_E_NOT_FOUND);
    EXPECT_EQ(bcm_vswitch_port_get(0, 3, &vsi), BCM_E_NONE);
}

// The set form stands for all rows that the get form could give.
TEST_F(Table, SetReplacesWhatWasAdded) {
    ASSERT_EQ(bcm_stk_port_modport_add(0, 1, 2, 10), BCM_E_NONE);
    ASSERT_EQ(bcm_stk_port_modport_add(0, 1, 2, 11), BCM_E_NONE);
    std::array<bcm_port_t, 3> ports = {};
    int count = 0;
    EXPECT_EQ(bcm_stk_port_modport_get_all(0, 1, 2, 3, ports.data(), &count), BCM_E_NONE);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(bcm_stk_port_modport_set(0, 1, 2, 12), BCM_E_NONE);
    EXPECT_EQ(bcm_stk_port_modport_get_all(0, 1, 2, 3, ports.data(), &count), BCM_E_NONE);
    EXPECT_EQ(count, 1);
    bcm_port_t port = 0;
    EXPECT_EQ(bcm_stk_port_modport_get(0, 1, 2, &port), BCM_E_NONE);
    EXPECT_EQ(port, 12);
}

TEST_F(Table, ArraysOfRecordsAreRows) {
    std::array<bcm_niv_egress_t, 2> egress = {};
    egress[0].port = 1;
    egress[1].port = 2;
    ASSERT_EQ(bcm_niv_egress_set(0, 9, 2, egress.data()), BCM_E_NONE);
    bcm_niv_egress_t third{};
    third.port = 3;
    EXPECT_EQ(bcm_niv_egress_add(0, 9, &third), BCM_E_NONE);
    EXPECT_EQ(bcm_niv_egress_delete(0, 9, &egress[0]), BCM_E_NONE);
    std::array<bcm_niv_egress_t, 3> back = {};
    int count = 0;
    EXPECT_EQ(bcm_niv_egress_get(0, 9, 3, back.data(), &count), BCM_E_NONE);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(back[0].port, 2);
    EXPECT_EQ(back[1].port, 3);
    egress[1].port = 999;  // one that names nothing: all is as before
    EXPECT_EQ(bcm_niv_egress_set(0, 9, 2, egress.data()), BCM_E_PORT);
    EXPECT_EQ(bcm_niv_egress_get(0, 9, 3, back.data(), &count), BCM_E_NONE);
    EXPECT_EQ(std::tuple(count, back[0].port), std::tuple(2, 2));
}

TEST_F(Table, SeveralInputsAreAttached) {
    ASSERT_EQ(bcm_cosq_gport_attach(0, 50, 60, 0), BCM_E_NONE);
    ASSERT_EQ(bcm_cosq_gport_attach(0, 50, 61, 1), BCM_E_NONE);
    EXPECT_EQ(bcm_cosq_gport_attach(0, 50, 61, 1), BCM_E_EXISTS);
    bcm_gport_t input = 0;
    bcm_cos_queue_t cosq = 0;
    EXPECT_EQ(bcm_cosq_gport_detach(0, 50, 60, 0), BCM_E_NONE);
    EXPECT_EQ(bcm_cosq_gport_attach_get(0, 50, &input, &cosq), BCM_E_NONE);
    EXPECT_EQ(std::tuple(input, cosq), std::tuple(61, 1));
}

using Seen = std::vector<std::tuple<int, int, int, int>>;

int visit_dtag(int, bcm_gport_t port, bcm_vlan_t inner, bcm_vlan_t outer, int prio, void *user) {
    static_cast<Seen *>(user)->emplace_back(port, inner, outer, prio);
    return BCM_E_NONE;
}

int visit_mac(int, bcm_mac_t mac, bcm_vlan_action_set_t *action, void *user) {
    static_cast<Seen *>(user)->emplace_back(mac[0], mac[5], action->new_outer_vlan,
                                            action->priority);
    return BCM_E_NONE;
}

TEST_F(Table, TraversalGivesKeysAndValues) {
    ASSERT_EQ(bcm_vlan_dtag_add(0, 3, 100, 200, 5), BCM_E_NONE);
    ASSERT_EQ(bcm_vlan_dtag_add(0, 2, 101, 201, 6), BCM_E_NONE);
    Seen seen;
    EXPECT_EQ(bcm_vlan_dtag_traverse(0, visit_dtag, &seen), BCM_E_NONE);
    EXPECT_EQ(seen, (Seen{{3, 100, 200, 5}, {2, 101, 201, 6}}));
    bcm_mac_t mac = {2, 0, 0, 0, 0, 9};
    bcm_vlan_action_set_t action{};
    action.new_outer_vlan = 30;
    action.priority = 4;
    ASSERT_EQ(bcm_vlan_mac_action_add(0, mac, &action), BCM_E_NONE);
    seen.clear();
    EXPECT_EQ(bcm_vlan_mac_action_traverse(0, visit_mac, &seen), BCM_E_NONE);
    EXPECT_EQ(seen, (Seen{{2, 9, 30, 4}}));
}

void on_event(int, bcm_switch_event_t, uint32, uint32, uint32, void *) {}

TEST_F(Table, CallbacksAreRegisteredOnce) {
    EXPECT_EQ(bcm_switch_event_unregister(0, on_event, nullptr), BCM_E_NOT_FOUND);
    EXPECT_EQ(bcm_switch_event_register(0, nullptr, nullptr), BCM_E_PARAM);
    EXPECT_EQ(bcm_switch_event_register(0, on_event, this), BCM_E_NONE);
    EXPECT_EQ(bcm_switch_event_register(0, on_event, this), BCM_E_EXISTS);
    EXPECT_EQ(bcm_switch_event_unregister(0, on_event, this), BCM_E_NONE);
    EXPECT_EQ(bcm_switch_event_unregister(0, on_event, this), BCM_E_NOT_FOUND);
}

int on_custom(int, int, int, int, int, uint32 *, int *, void *) { return 0; }

TEST_F(Table, AUnitMayHaveOneCallback) {
    EXPECT_EQ(bcm_custom_register(0, nullptr, nullptr), BCM_E_PARAM);
    EXPECT_EQ(bcm_custom_register(0, on_custom, nullptr), BCM_E_NONE);
    EXPECT_EQ(bcm_custom_register(0, on_custom, this), BCM_E_EXISTS);
    EXPECT_EQ(bcm_custom_unregister(0), BCM_E_NONE);
    EXPECT_EQ(bcm_custom_unregister(0), BCM_E_NOT_FOUND);
}

constexpr bcm_vlan_stat_t kStat{2};
constexpr bcm_vlan_stat_t kOther{3};

TEST_F(Table, CountersAreOneForAllForms) {
    ASSERT_EQ(bcm_vlan_create(0, 10), BCM_E_NONE);
    uint64 wide = 1;
    uint32 narrow = 1;
    EXPECT_EQ(bcm_vlan_stat_get(0, 10, 1, kStat, &wide), BCM_E_NONE);
    EXPECT_EQ(wide, 0u);
    ASSERT_EQ(bcm_vlan_stat_set(0, 10, 1, kStat, 0x1'0000'0002), BCM_E_NONE);
    EXPECT_EQ(bcm_vlan_stat_sync_get(0, 10, 1, kStat, &wide), BCM_E_NONE);
    EXPECT_EQ(wide, 0x1'0000'0002u);
    EXPECT_EQ(bcm_vlan_stat_get32(0, 10, 1, kStat, &narrow), BCM_E_NONE);
    EXPECT_EQ(narrow, 2u);
    std::array<bcm_vlan_stat_t, 2> stats = {kOther, kStat};
    std::array<uint64, 2> values = {7, 7};
    EXPECT_EQ(bcm_vlan_stat_multi_get(0, 10, 1, 2, stats.data(), values.data()), BCM_E_NONE);
    EXPECT_EQ(values, (std::array<uint64, 2>{0, 0x1'0000'0002}));
    std::array<uint32, 2> narrow_values = {8, 9};
    EXPECT_EQ(bcm_vlan_stat_multi_set32(0, 10, 1, 2, stats.data(), narrow_values.data()),
              BCM_E_NONE);
    EXPECT_EQ(bcm_vlan_stat_get(0, 10, 1, kStat, &wide), BCM_E_NONE);
    EXPECT_EQ(wide, 9u);
    EXPECT_EQ(bcm_vlan_stat_get(0, 10, 2, kStat, &wide), BCM_E_NONE);
    EXPECT_EQ(wide, 0u);
    EXPECT_EQ(bcm_vlan_stat_multi_get(0, 10, 1, 2, nullptr, values.data()), BCM_E_PARAM);
    EXPECT_EQ(bcm_vlan_stat_multi_get(0, 10, 1, 0, nullptr, nullptr), BCM_E_NONE);
}

TEST_F(Table, CountersByIndex) {
    ASSERT_EQ(bcm_vlan_create(0, 10), BCM_E_NONE);
    std::array<uint32, 2> indexes = {5, 6};
    std::array<bcm_stat_value_t, 2> values = {};
    values[0].bytes = 50;
    values[1].bytes = 60;
    ASSERT_EQ(bcm_vlan_stat_counter_set(0, 10, kStat, 2, indexes.data(), values.data()),
              BCM_E_NONE);
    std::array<uint32, 2> asked = {6, 7};
    EXPECT_EQ(bcm_vlan_stat_counter_sync_get(0, 10, kStat, 2, asked.data(), values.data()),
              BCM_E_NONE);
    EXPECT_EQ(values[0].bytes, 60u);
    EXPECT_EQ(values[1].bytes, 0u);
}

TEST_F(Table, CounterIdsAreAttachedAndDetached) {
    ASSERT_EQ(bcm_vlan_create(0, 10), BCM_E_NONE);
    uint32 id = 0;
    EXPECT_EQ(bcm_vlan_stat_id_get(0, 10, kStat, &id), BCM_E_NOT_FOUND);
    EXPECT_EQ(bcm_vlan_stat_attach(0, 10, 77), BCM_E_NONE);
    EXPECT_EQ(bcm_vlan_stat_attach(0, 10, 78), BCM_E_EXISTS);
    EXPECT_EQ(bcm_vlan_stat_id_get(0, 10, kStat, &id), BCM_E_NONE);
    EXPECT_EQ(id, 77u);
    EXPECT_EQ(bcm_vlan_stat_detach(0, 10), BCM_E_NONE);
    EXPECT_EQ(bcm_vlan_stat_detach(0, 10), BCM_E_NOT_FOUND);
}

}  // namespace
