// The MAC table: entries, walks that change it, bulk deletes, learning and ageing.
#include <algorithm>
#include <thread>
#include <vector>

#include "chip_fixture.h"
#include "sdk/bcm/l2.h"
#include "sdk/bcm/port.h"
#include "sdk/bcm/stg.h"
#include "sdk/bcm/trunk.h"
#include "sdk/bcm/vlan.h"
#include "standin/chapters/l2_select.h"
#include "standin/model/l2_chapter.h"
#include "toolkit/failing_new.h"

namespace standin {
namespace {

// With the VLANs and trunks that the cases name.
struct MacTable : Chip {
    void SetUp() override {
        Chip::SetUp();
        for (const bcm_vlan_t vid : std::vector<bcm_vlan_t>{10, 20, 30})
            ASSERT_EQ(bcm_vlan_create(0, vid), BCM_E_NONE);
        for (bcm_trunk_t tid : {5, 7, 9})
            ASSERT_EQ(bcm_trunk_create(0, BCM_TRUNK_FLAG_WITH_ID, &tid), BCM_E_NONE);
    }
};

bcm_l2_addr_t entry(std::uint32_t mac, bcm_vlan_t vid, int port, std::uint32_t flags = 0) {
    bcm_l2_addr_t made;
    bcm_l2_addr_t_init(&made, Mac(mac).data(), vid);
    made.port = port;
    made.flags = flags;
    return made;
}

int add(std::uint32_t mac, bcm_vlan_t vid, int port, std::uint32_t flags = 0) {
    bcm_l2_addr_t made = entry(mac, vid, port, flags);
    return bcm_l2_addr_add(0, &made);
}

bool has(std::uint32_t mac, bcm_vlan_t vid) {
    bcm_l2_addr_t found;
    return bcm_l2_addr_get(0, Mac(mac).data(), vid, &found) == BCM_E_NONE;
}

std::vector<int> walked() {
    std::vector<int> macs;
    const auto visit = [](int, bcm_l2_addr_t *info, void *list) {
        static_cast<std::vector<int> *>(list)->push_back(info->mac[4] << 8 | info->mac[5]);
        return 0;
    };
    EXPECT_EQ(bcm_l2_traverse(0, visit, &macs), BCM_E_NONE);
    return macs;
}

TEST_F(MacTable, EntriesReadBackInOneForm) {
    struct {
        int port;
        std::uint32_t flags;
        int status;
        int stored_port;
        std::uint32_t stored_flags;
        int trunk;
    } const cases[] = {
        {5, kL2Static, BCM_E_NONE, 5, kL2Static, 0},
        {kLocalGport.of(5), 0, BCM_E_NONE, 5, 0, 0},
        {kTrunkGport.of(9), kL2Static, BCM_E_NONE, 0, kL2Static | kL2Trunk, 9},
        {0x10000000, 0, BCM_E_NONE, 0, kL2BlackHole, 0},
        {5, kL2BlackHole | kL2Trunk, BCM_E_NONE, 5, kL2BlackHole | kL2Trunk, 0},
        {65, 0, BCM_E_PORT, 0, 0, 0},
        {-1, 0, BCM_E_PORT, 0, 0, 0},
    };
    std::uint32_t mac = 0;
    for (const auto &one : cases) {
        ++mac;
        EXPECT_EQ(add(mac, 10, one.port, one.flags), one.status) << "case " << mac;
        bcm_l2_addr_t found{};
        const int status = bcm_l2_addr_get(0, Mac(mac).data(), 10, &found);
        ASSERT_EQ(status, one.status == BCM_E_NONE ? BCM_E_NONE : BCM_E_NOT_FOUND);
        EXPECT_EQ(found.port, one.stored_port) << "case " << mac;
        EXPECT_EQ(found.flags, one.stored_flags) << "case " << mac;
        EXPECT_EQ(found.tgid, one.trunk) << "case " << mac;
    }
    EXPECT_EQ(add(1, 0, 5), BCM_E_PARAM);
    EXPECT_EQ(add(1, 4095, 5), BCM_E_PARAM);
    EXPECT_EQ(bcm_l2_addr_add(0, nullptr), BCM_E_PARAM);
    EXPECT_EQ(bcm_l2_addr_add(1, nullptr), BCM_E_UNIT);
    EXPECT_EQ(bcm_l2_addr_delete(0, Mac(99).data(), 10), BCM_E_NOT_FOUND);
    EXPECT_EQ(bcm_l2_addr_delete(0, nullptr, 10), BCM_E_PARAM);
}

TEST_F(MacTable, WalkGoesInTheOrderOfInsertion) {
    for (const std::uint32_t mac : {5u, 3u, 9u, 1u}) ASSERT_EQ(add(mac, 10, 1), BCM_E_NONE);
    ASSERT_EQ(add(3, 10, 2), BCM_E_NONE);  // moves, and keeps its place
    EXPECT_EQ(walked(), (std::vector<int>{5, 3, 9, 1}));
    bcm_l2_addr_delete(0, Mac(3).data(), 10);
    ASSERT_EQ(add(3, 10, 2), BCM_E_NONE);
    EXPECT_EQ(walked(), (std::vector<int>{5, 9, 1, 3}));
    EXPECT_EQ(bcm_l2_traverse(0, nullptr, nullptr), BCM_E_PARAM);
    EXPECT_EQ(bcm_l2_traverse(1, nullptr, nullptr), BCM_E_UNIT);
}

TEST_F(MacTable, WalkSurvivesWhatItsCallbackDoes) {
    for (std::uint32_t mac = 0; mac < 1000; ++mac) ASSERT_EQ(add(mac, 10, 1), BCM_E_NONE);
    int seen = 0;
    const auto visit = [](int unit, bcm_l2_addr_t *info, void *count) {
        ++*static_cast<int *>(count);
        // Itself and the next one: half of the rows are never seen, and rows move on the way.
        const int number = info->mac[4] << 8 | info->mac[5];
        bcm_l2_addr_delete(unit, info->mac, info->vid);
        bcm_l2_addr_delete(unit, Mac(static_cast<std::uint32_t>(number) + 1).data(), info->vid);
        return 0;
    };
    EXPECT_EQ(bcm_l2_traverse(0, visit, &seen), BCM_E_NONE);
    EXPECT_EQ(seen, 500);
    EXPECT_TRUE(walked().empty());

    add(1, 10, 1);
    add(2, 10, 1);
    const auto stop = [](int, bcm_l2_addr_t *, void *) { return int{BCM_E_FAIL}; };
    EXPECT_EQ(bcm_l2_traverse(0, stop, nullptr), BCM_E_FAIL);
}

TEST_F(MacTable, TableIsFullAtItsCapacity) {
    for (std::uint32_t mac = 0; mac < kL2Capacity; ++mac) ASSERT_EQ(add(mac, 10, 1), BCM_E_NONE);
    EXPECT_EQ(add(kL2Capacity, 10, 1), BCM_E_FULL);
    EXPECT_EQ(add(7, 10, 2), BCM_E_NONE) << "one that is there can move";
    EXPECT_EQ(bcm_l2_addr_delete(0, Mac(0).data(), 10), BCM_E_NONE);
    EXPECT_EQ(add(kL2Capacity, 10, 1), BCM_E_NONE);
    EXPECT_EQ(walked().size(), kL2Capacity);
}

// Whichever allocation fails, the entry is there or it is not, in the index, the walk and the
// counters alike.
TEST_F(MacTable, WhereMemoryEndsNothingIsHalfDone) {
    for (std::uint32_t number = 1; number <= 400; ++number) {
        int status = BCM_E_MEMORY;
        for (long left = 0; status == BCM_E_MEMORY; ++left) {
            bcm_l2_addr_t made = entry(number, 10, 5);
            allocations_left = left;
            status = bcm_l2_addr_add(0, &made);
            allocations_left = -1;
            ASSERT_EQ(has(number, 10), status == BCM_E_NONE) << number << " after " << left;
            ASSERT_EQ(walked().size(), status == BCM_E_NONE ? number : number - 1);
        }
        ASSERT_EQ(status, BCM_E_NONE);
    }
    ASSERT_EQ(bcm_l2_addr_delete_by_port(0, 0, 5, 0), BCM_E_NONE);
    EXPECT_TRUE(walked().empty());
}

// Entries that come and go take each other's places; look-up and order follow a model.
TEST_F(MacTable, TableFollowsAModelAsEntriesComeAndGo) {
    std::vector<int> model;
    std::uint32_t random = 1;
    for (int step = 0; step < 6000; ++step) {
        random = random * 1664525 + 1013904223;
        const int mac = static_cast<int>(random >> 16 & 0x1FF);
        const auto found = std::find(model.begin(), model.end(), mac);
        if (found != model.end()) {
            EXPECT_EQ(bcm_l2_addr_delete(0, Mac(static_cast<std::uint32_t>(mac)).data(), 10), 0);
            model.erase(found);
        } else {
            EXPECT_EQ(add(static_cast<std::uint32_t>(mac), 10, 1), 0);
            model.push_back(mac);
        }
        ASSERT_EQ(has(static_cast<std::uint32_t>(mac), 10), !model.empty() && model.back() == mac);
        ASSERT_TRUE(step % 100 != 0 || walked() == model);
    }
}

TEST_F(MacTable, BulkDeletesTakeWhatTheyName) {
    struct Case {
        const char *name;
        std::function<int()> call;
        std::vector<int> left;
    };
    // 1: port 1, vlan 10.  2: port 2, vlan 10.  3: port 1, vlan 20.  4: trunk 7, vlan 10.
    // 5: as 1 but static.  6: port 1 of module 3.
    const auto fill = [] {
        bcm_l2_clear(0);
        add(1, 10, 1);
        add(2, 10, 2);
        add(3, 20, 1);
        add(4, 10, kTrunkGport.of(7));
        add(5, 10, 1, kL2Static);
        bcm_l2_addr_t remote = entry(6, 10, 1);
        remote.modid = 3;
        bcm_l2_addr_add(0, &remote);
    };
    const Case cases[] = {
        {"port", [] { return bcm_l2_addr_delete_by_port(0, 0, 1, 0); }, {2, 4, 5, 6}},
        {"gport",
         [] { return bcm_l2_addr_delete_by_port(0, 0, kLocalGport.of(1), 0); },
         {2, 4, 5, 6}},
        {"static too", [] { return bcm_l2_addr_delete_by_port(0, 0, 1, kL2Static); }, {2, 4, 6}},
        {"module", [] { return bcm_l2_addr_delete_by_port(0, 3, 1, 0); }, {1, 2, 3, 4, 5}},
        {"vlan", [] { return bcm_l2_addr_delete_by_vlan(0, 10, 0); }, {3, 5}},
        {"vlan port",
         [] { return bcm_l2_addr_delete_by_vlan_port(0, 10, 0, 1, 0); },
         {2, 3, 4, 5, 6}},
        {"trunk", [] { return bcm_l2_addr_delete_by_trunk(0, 7, 0); }, {1, 2, 3, 5, 6}},
        {"vlan trunk",
         [] { return bcm_l2_addr_delete_by_vlan_trunk(0, 20, 7, 0); },
         {1, 2, 3, 4, 5, 6}},
        {"mac", [] { return bcm_l2_addr_delete_by_mac(0, Mac(3).data(), 0); }, {1, 2, 4, 5, 6}},
        {"mac port",
         [] { return bcm_l2_addr_delete_by_mac_port(0, Mac(3).data(), 0, 2, 0); },
         {1, 2, 3, 4, 5, 6}},
        {"null mac", [] { return bcm_l2_addr_delete_by_mac(0, nullptr, 0); }, {1, 2, 3, 4, 5, 6}},
    };
    for (const Case &one : cases) {
        fill();
        EXPECT_EQ(one.call(), BCM_E_NONE) << one.name;
        EXPECT_EQ(walked(), one.left) << one.name;
    }
}

TEST_F(MacTable, ReplaceMovesWhatMatches) {
    add(1, 10, 1);
    add(2, 20, 1);
    add(3, 10, 1, kL2Static);
    bcm_l2_addr_t match = entry(0, 10, 1);
    EXPECT_EQ(bcm_l2_replace(0, kMatchVlan | kMatchDestination, &match, 0, 8, -1), BCM_E_NONE);
    bcm_l2_addr_t found;
    const int expected[] = {8, 1, 1};
    const bcm_vlan_t vids[] = {10, 20, 10};
    for (std::uint32_t i = 0; i < 3; ++i) {
        ASSERT_EQ(bcm_l2_addr_get(0, Mac(i + 1).data(), vids[i], &found), BCM_E_NONE);
        EXPECT_EQ(found.port, expected[i]) << i;
    }
    EXPECT_EQ(bcm_l2_replace(0, 0, &match, 0, 0, 5), BCM_E_NONE);
    ASSERT_EQ(bcm_l2_addr_get(0, Mac(2).data(), 20, &found), BCM_E_NONE);
    EXPECT_EQ(found.flags & kL2Trunk, kL2Trunk);
    EXPECT_EQ(found.tgid, 5);
}

TEST_F(MacTable, LearningObeysPortFreezeStaticAndLimit) {
    EXPECT_EQ(standin_l2_learn(0, Mac(1).data(), 10, 3), BCM_E_NONE);
    EXPECT_EQ(add(2, 10, 3, kL2Static), BCM_E_NONE);
    EXPECT_EQ(standin_l2_learn(0, Mac(2).data(), 10, 4), BCM_E_DISABLED);
    bcm_port_learn_set(0, 4, 0);
    EXPECT_EQ(standin_l2_learn(0, Mac(3).data(), 10, 4), BCM_E_DISABLED);
    bcm_l2_addr_freeze(0);
    EXPECT_EQ(standin_l2_learn(0, Mac(3).data(), 10, 3), BCM_E_DISABLED);
    EXPECT_EQ(add(9, 10, 3), BCM_E_NONE) << "software may still add";
    EXPECT_EQ(bcm_l2_addr_thaw(0), BCM_E_NONE);
    EXPECT_EQ(bcm_l2_addr_thaw(0), BCM_E_PARAM);

    bcm_l2_learn_limit_t limit{};
    limit.flags = kLimitVlan;
    limit.vlan = 10;
    limit.limit = 3;
    EXPECT_EQ(bcm_l2_learn_limit_set(0, &limit), BCM_E_NONE);
    EXPECT_EQ(standin_l2_learn(0, Mac(4).data(), 10, 3), BCM_E_NONE);
    EXPECT_EQ(standin_l2_learn(0, Mac(5).data(), 10, 3), BCM_E_RESOURCE);
    EXPECT_EQ(standin_l2_learn(0, Mac(5).data(), 20, 3), BCM_E_NONE) << "another VLAN";
    EXPECT_EQ(standin_l2_learn(0, Mac(4).data(), 10, 5), BCM_E_NONE) << "a move adds none";
    limit.flags = kLimitPort;
    limit.port = 6;
    limit.limit = 1;
    EXPECT_EQ(bcm_l2_learn_limit_set(0, &limit), BCM_E_NONE);
    for (const auto turn : {"first", "again"}) {
        EXPECT_EQ(standin_l2_learn(0, Mac(6).data(), 30, 6), BCM_E_NONE) << turn;
        EXPECT_EQ(standin_l2_learn(0, Mac(7).data(), 30, 6), BCM_E_RESOURCE) << turn;
        EXPECT_EQ(bcm_l2_addr_delete(0, Mac(6).data(), 30), BCM_E_NONE) << "makes room";
        EXPECT_EQ(add(8, 30, 6, kL2Static), BCM_E_NONE) << "counts for nothing";
    }
    EXPECT_EQ(add(8, 30, 6), BCM_E_NONE) << "counts from now on";
    EXPECT_EQ(standin_l2_learn(0, Mac(6).data(), 30, 6), BCM_E_RESOURCE);
    limit.flags = kLimitVlan;
    limit.limit = 0;
    EXPECT_EQ(bcm_l2_learn_limit_get(0, &limit), BCM_E_NONE);
    EXPECT_EQ(limit.limit, 3);
    limit.flags = kLimitVlan | kLimitPort;
    EXPECT_EQ(bcm_l2_learn_limit_set(0, &limit), BCM_E_PARAM);
}

TEST_F(MacTable, LearningFollowsTheStateOfPortAndVlan) {
    bcm_trunk_gport_add(0, 7, 9);
    EXPECT_EQ(standin_l2_learn(0, Mac(1).data(), 10, 9), BCM_E_NONE);
    bcm_l2_addr_t found{};
    ASSERT_EQ(bcm_l2_addr_get(0, Mac(1).data(), 10, &found), BCM_E_NONE);
    EXPECT_EQ(found.flags & kL2Trunk, kL2Trunk) << "what a member hears is the trunk's";
    EXPECT_EQ(found.tgid, 7);
    EXPECT_EQ(standin_l2_learn(0, Mac(2).data(), 11, 3), BCM_E_NOT_FOUND) << "no such VLAN";

    struct {
        const char *name;
        std::function<int(int)> set;
        int stops;
        int allows;
    } const causes[] = {
        {"disabled", [](int on) { return bcm_port_enable_set(0, 3, on); }, 0, 1},
        {"discards all", [](int mode) { return bcm_port_discard_set(0, 3, mode); },
         BCM_PORT_DISCARD_ALL, BCM_PORT_DISCARD_UNTAG},
        {"discards tagged", [](int mode) { return bcm_port_discard_set(0, 3, mode); },
         BCM_PORT_DISCARD_TAG, BCM_PORT_DISCARD_NONE},
        {"blocked", [](int state) { return bcm_port_stp_set(0, 3, state); }, BCM_STG_STP_BLOCK,
         BCM_STG_STP_LEARN},
        {"filters", [](int on) { return bcm_port_ifilter_set(0, 3, on); }, 1, 0},
    };
    std::uint32_t mac = 10;
    for (const auto &cause : causes) {
        SCOPED_TRACE(cause.name);
        ++mac;
        ASSERT_EQ(cause.set(cause.stops), BCM_E_NONE);
        EXPECT_EQ(standin_l2_learn(0, Mac(mac).data(), 10, 3), BCM_E_DISABLED);
        EXPECT_FALSE(has(mac, 10));
        ASSERT_EQ(cause.set(cause.allows), BCM_E_NONE);
        EXPECT_EQ(standin_l2_learn(0, Mac(mac).data(), 10, 3), BCM_E_NONE);
    }
    bcm_port_ifilter_set(0, 3, 1);
    bcm_vlan_port_add(0, 10, ports({3}), {});
    EXPECT_EQ(standin_l2_learn(0, Mac(99).data(), 10, 3), BCM_E_NONE) << "a member";
}

TEST_F(MacTable, AgeingTakesWhatWasNotHeard) {
    bcm_l2_age_timer_set(0, 300);
    standin_l2_learn(0, Mac(1).data(), 10, 1);
    standin_l2_learn(0, Mac(2).data(), 10, 1);
    add(3, 10, 1, kL2Static);
    standin_time_pass(0, 200'000'000);
    standin_l2_learn(0, Mac(2).data(), 10, 1);  // heard again
    standin_time_pass(0, 100'000'000);
    EXPECT_FALSE(has(1, 10));
    EXPECT_TRUE(has(2, 10));
    EXPECT_TRUE(has(3, 10));
    bcm_l2_age_timer_set(0, 0);
    standin_time_pass(0, 100'000'000'000);
    EXPECT_TRUE(has(2, 10)) << "0 means never";
}

TEST_F(MacTable, NativeThreadsMayCallAtOnce) {
    std::vector<std::thread> threads;
    for (std::uint32_t part = 0; part < 4; ++part) {
        threads.emplace_back([part] {
            for (std::uint32_t i = 0; i < 500; ++i) {
                add(part * 1000 + i, 10, 1);
                if (i % 2 == 0) bcm_l2_addr_delete(0, Mac(part * 1000 + i).data(), 10);
                if (i % 100 == 0) walked();
            }
        });
    }
    for (std::thread &thread : threads) thread.join();
    EXPECT_EQ(walked().size(), 4u * 250);
}

struct Seen {
    std::vector<std::pair<int, int>> events;  // last byte of the address, operation
};

void watch(int unit, bcm_l2_addr_t *info, int operation, void *user_data) {
    static_cast<Seen *>(user_data)->events.emplace_back(info->mac[5], operation);
    bcm_l2_addr_t again;  // a watcher may call, since no lock is held
    bcm_l2_addr_get(unit, info->mac, info->vid, &again);
}

TEST_F(MacTable, WatchersHearEveryChange) {
    Seen seen;
    EXPECT_EQ(bcm_l2_addr_register(0, watch, &seen), BCM_E_NONE);
    EXPECT_EQ(bcm_l2_addr_register(0, watch, &seen), BCM_E_EXISTS);
    EXPECT_EQ(bcm_l2_addr_register(0, nullptr, &seen), BCM_E_PARAM);
    add(1, 10, 1);
    standin_l2_learn(0, Mac(2).data(), 10, 1);
    bcm_l2_addr_delete(0, Mac(1).data(), 10);
    bcm_l2_age_timer_set(0, 10);
    standin_time_pass(0, 10'000'000);
    EXPECT_EQ(bcm_l2_addr_unregister(0, watch, &seen), BCM_E_NONE);
    EXPECT_EQ(bcm_l2_addr_unregister(0, watch, &seen), BCM_E_NOT_FOUND);
    add(3, 10, 1);
    EXPECT_EQ(seen.events, (std::vector<std::pair<int, int>>{
                               {1, kL2Added}, {2, kL2Learned}, {1, kL2Deleted}, {2, kL2AgedOut}}));
}

}  // namespace
}  // namespace standin
