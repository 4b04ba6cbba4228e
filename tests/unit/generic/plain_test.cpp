// Initialisers, and functions without a rule.
#include <cstring>
#include <string>
#include <thread>
#include <vector>

#include "generic_fixture.h"
#include "sdk/bcm/cosq.h"
#include "sdk/bcm/fabric.h"
#include "sdk/bcm/mcast.h"
#include "sdk/bcm/niv.h"
#include "sdk/bcm/port.h"

namespace {

class Plain : public Generic {};

TEST_F(Plain, InitialisersClearTheRecord) {
    bcm_niv_port_t port;
    std::memset(&port, 0xff, sizeof port);
    bcm_niv_port_t_init(&port);
    EXPECT_EQ(std::string(reinterpret_cast<const char *>(&port), sizeof port),
              std::string(sizeof port, '\0'));
    bcm_fabric_predicate_info_t info;
    std::memset(&info, 0xff, sizeof info);
    bcm_fabric_predicate_info_t_init(kNoUnit, &info);
    EXPECT_EQ(info.flags, 0u);
    bcm_niv_port_t_init(nullptr);
}

TEST_F(Plain, InitialisersTakeTheFieldsTheyAreGiven) {
    bcm_mac_t mac = {2, 0, 0, 0, 0, 1};
    bcm_mcast_addr_t address;
    std::memset(&address, 0xff, sizeof address);
    bcm_mcast_addr_t_init(&address, mac, 20);
    EXPECT_EQ(std::memcmp(address.mac, mac, sizeof mac), 0);
    EXPECT_EQ(address.vid, 20);
    EXPECT_EQ(address.flags, 0u);
}

TEST_F(Plain, WithoutARuleTheCallIsUnavailable) {
    EXPECT_EQ(bcm_fabric_port_destroy(0, 1), BCM_E_UNAVAIL);
    EXPECT_EQ(bcm_fabric_port_destroy(kNoUnit, 1), BCM_E_UNIT);
    set("fault.bcm_fabric_port_destroy", "status:-10,count:1");
    EXPECT_EQ(bcm_fabric_port_destroy(0, 1), BCM_E_BUSY);
}

TEST_F(Plain, WhatNeverMovesReadsAsZeros) {
    uint64 crossbars = 7;
    EXPECT_EQ(bcm_fabric_crossbar_status_get(0, &crossbars), BCM_E_NONE);
    EXPECT_EQ(crossbars, 0u);
    EXPECT_EQ(bcm_fabric_crossbar_status_get(0, nullptr), BCM_E_PARAM);
    bcm_fabric_link_connectivity_t one{};
    int count = 7;
    EXPECT_EQ(bcm_fabric_link_connectivity_status_get(0, 1, &one, &count), BCM_E_NONE);
    EXPECT_EQ(count, 0);
    uint32 left = 7;
    EXPECT_EQ(bcm_port_queued_count_get(0, 999, &left), BCM_E_PORT);
    EXPECT_EQ(left, 7u);
}

TEST_F(Plain, ThreadsMayCallAtOnce) {
    std::vector<std::thread> threads;
    for (int port = 0; port < 4; ++port) {
        threads.emplace_back([port] {
            for (int queue = 0; queue < 60; ++queue)
                bcm_cosq_control_set(0, port, queue, bcm_cosq_control_t{1}, port * 1000 + queue);
        });
    }
    for (auto &thread : threads) thread.join();
    int arg = 0;
    for (int port = 0; port < 4; ++port) {
        ASSERT_EQ(bcm_cosq_control_get(0, port, 59, bcm_cosq_control_t{1}, &arg), BCM_E_NONE);
        EXPECT_EQ(arg, port * 1000 + 59);
    }
}

}  // namespace
