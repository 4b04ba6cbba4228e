// PHYs of ports: state, registers, controls, callbacks, and external ones behind accessors.
#include <array>
#include <atomic>
#include <cstring>
#include <functional>
#include <map>
#include <string>
#include <thread>
#include <vector>

#include "helper/mdio.h"
#include "helper/mdio_cxx.h"
#include "regs_fixture.h"
#include "sdk/bcm/port.h"
#include "sdk/soc/phy.h"
#include "sdk/soc/phyctrl.h"
#include "sdk/variables.h"
#include "toolkit/alloc_track.h"

namespace standin {
namespace {

using Hardware::PhyBcm::ManagedPhy;
using Hardware::TesselApi::ExternalPhyId;
using Hardware::TesselApi::UnitId;

constexpr int kNoPort = kFrontPorts + 1;
constexpr uint32 kInternal = 1;

class PhyTest : public RegsTest {};

template <class Get>
int number(Get get, int port) {
    return value_of<int>([&](int *value) { return get(0, port, value); });
}

TEST_F(PhyTest, PortAndPhyAreOfOneMind) {
    ASSERT_EQ(soc_phyctrl_speed_set(0, 7, 1000), BCM_E_NONE);
    EXPECT_EQ(number(bcm_port_speed_get, 7), 1000);
    ASSERT_EQ(bcm_port_speed_set(0, 7, 25'000), BCM_E_NONE);
    EXPECT_EQ(number(soc_phyctrl_speed_get, 7), 25'000);
    EXPECT_EQ(soc_phyctrl_speed_set(0, 7, 1234), BCM_E_CONFIG);
    EXPECT_EQ(soc_phyctrl_speed_set(0, 7, 40'000), BCM_E_CONFIG);
    ASSERT_EQ(soc_phyctrl_set_speed_max(0, 7, 10'000), BCM_E_NONE);
    EXPECT_EQ(number(bcm_port_speed_get, 7), 10'000);
    ASSERT_EQ(soc_phyctrl_loopback_set(0, 7, 1, 0), BCM_E_NONE);
    EXPECT_EQ(number(bcm_port_loopback_get, 7), BCM_PORT_LOOPBACK_PHY);
    ASSERT_EQ(soc_phyctrl_loopback_set(0, 7, 0, 0), BCM_E_NONE);
    EXPECT_EQ(number(bcm_port_loopback_get, 7), BCM_PORT_LOOPBACK_NONE);
    ASSERT_EQ(bcm_port_loopback_set(0, 7, BCM_PORT_LOOPBACK_MAC), BCM_E_NONE);
    ASSERT_EQ(soc_phyctrl_loopback_set(0, 7, 0, 0), BCM_E_NONE);
    EXPECT_EQ(number(bcm_port_loopback_get, 7), BCM_PORT_LOOPBACK_MAC);
    EXPECT_EQ(number(soc_phyctrl_duplex_get, kLocalGport.of(7)), 1);
    ASSERT_EQ(bcm_port_phy_set(0, 7, 0, 0x18002, 0x55), BCM_E_NONE);
    uint32 value = 0;
    ASSERT_EQ(soc_phyctrl_reg_read(0, 7, 0, 0x18002, &value), BCM_E_NONE);
    EXPECT_EQ(value, 0x55u);
}

TEST_F(PhyTest, TheLinkFollowsPeerEnableDirectionsAndLoopback) {
    EXPECT_EQ(number(soc_phyctrl_link_get, 7), 1);
    ASSERT_EQ(soc_enable_txrx_set(0, 7, 0, 1), BCM_E_NONE);
    EXPECT_EQ(number(soc_phyctrl_link_get, 7), 0);
    EXPECT_EQ(number(soc_phyctrl_linkfault_get, 7), 1);
    ASSERT_EQ(soc_enable_txrx_set(0, 7, 1, 1), BCM_E_NONE);
    standin_link_set(0, 7, 0);
    EXPECT_EQ(number(soc_phyctrl_link_get, 7), 0);
    ASSERT_EQ(soc_phyctrl_loopback_set(0, 7, 1, 0), BCM_E_NONE);
    EXPECT_EQ(number(soc_phyctrl_link_change, 7), 1);
    ASSERT_EQ(soc_phyctrl_auto_negotiate_set(0, 7, 1), BCM_E_NONE);
    int an = 0;
    int done = 0;
    ASSERT_EQ(soc_phyctrl_auto_negotiate_get(0, 7, &an, &done), BCM_E_NONE);
    EXPECT_EQ(an + done, 2);
    ASSERT_EQ(soc_phyctrl_enable_set(0, 7, 0), BCM_E_NONE);
    EXPECT_EQ(number(soc_phyctrl_linkfault_get, 7), 0);  // switched off is no fault
}

TEST_F(PhyTest, PairsGiveBackWhatWasSetAndRefuseWhatIsNot) {
    using Set = int (*)(int, soc_port_t, int);
    using Get = int (*)(int, soc_port_t, int *);
    struct Case {
        Set set;
        Get get;
        int good;
    };
    const Case cases[] = {
        {soc_phyctrl_enable_set, soc_phyctrl_enable_get, 0},
        {soc_phyctrl_duplex_set, soc_phyctrl_duplex_get, 0},
        {soc_phyctrl_master_set, soc_phyctrl_master_get, 1},
        {soc_phyctrl_interface_set, soc_phyctrl_interface_get, 5},
        {soc_phyctrl_mdix_set, soc_phyctrl_mdix_get, 2},
        {soc_phyctrl_offset_set, soc_phyctrl_offset_get, 3},
    };
    for (const Case &one : cases) {
        SCOPED_TRACE(&one - cases);
        int value = 0;
        EXPECT_EQ(one.set(0, 5, one.good), BCM_E_NONE);
        EXPECT_EQ(number(one.get, 5), one.good);
        EXPECT_NE(number(one.get, 6), one.good);
        EXPECT_EQ(one.set(0, 5, -1), BCM_E_PARAM);
        EXPECT_EQ(one.set(0, kNoPort, one.good), BCM_E_PORT);
        EXPECT_EQ(one.set(3, 5, one.good), BCM_E_UNIT);
        EXPECT_EQ(one.get(0, 5, nullptr), BCM_E_PARAM);
        EXPECT_EQ(one.get(0, -1, &value), BCM_E_PORT);
    }
}

TEST_F(PhyTest, AdvertisingIsTheSameByModeAndByAbility) {
    soc_port_mode_t all = 0;
    ASSERT_EQ(soc_phyctrl_ability_get(0, 7, &all), BCM_E_NONE);
    EXPECT_NE(all & 1u << 11, 0u);  // 25000fd
    EXPECT_EQ(all & 1u << 12, 0u);  // 40000fd
    EXPECT_EQ(soc_phyctrl_adv_local_set(0, 7, 1u << 12), BCM_E_CONFIG);
    ASSERT_EQ(soc_phyctrl_adv_local_set(0, 7, 1u << 11 | 1u << 16), BCM_E_NONE);
    soc_port_ability_t ability{};
    ASSERT_EQ(soc_phyctrl_ability_advert_get(0, 7, &ability), BCM_E_NONE);
    EXPECT_EQ(ability.words[0], 1u << 11);
    EXPECT_EQ(ability.words[2], 1u << 16);
    ability.words[2] = 0;
    ASSERT_EQ(soc_phyctrl_ability_advert_set(0, 7, &ability), BCM_E_NONE);
    soc_port_mode_t mode = 0;
    ASSERT_EQ(soc_phyctrl_adv_local_get(0, 7, &mode), BCM_E_NONE);
    EXPECT_EQ(mode, 1u << 11);
    ASSERT_EQ(soc_phyctrl_adv_remote_get(0, 7, &mode), BCM_E_NONE);
    EXPECT_EQ(mode, all);
    standin_link_set(0, 7, 0);
    ASSERT_EQ(soc_phyctrl_ability_remote_get(0, 7, &ability), BCM_E_NONE);
    EXPECT_EQ(ability.words[0], 0u);
    EXPECT_EQ(soc_phyctrl_ability_advert_set(0, 7, nullptr), BCM_E_PARAM);
}

TEST_F(PhyTest, APartDoesWhatTheWholeDoesUntilToldOtherwise) {
    constexpr int port = 60;  // four lanes
    constexpr int control = SOC_PHY_CONTROL_EQUALIZER_BOOST;
    const auto get = [](int lane) {
        return value_of<uint32>([&](uint32 *value) {
            return soc_phyctrl_lane_control_get(0, port, lane, soc_phy_control_t{control}, value);
        });
    };
    ASSERT_EQ(soc_phyctrl_control_set(0, port, soc_phy_control_t{control}, 5), BCM_E_NONE);
    EXPECT_EQ(get(3), 5u);
    ASSERT_EQ(soc_phyctrl_lane_control_set(0, port, 3, soc_phy_control_t{control}, 6), BCM_E_NONE);
    EXPECT_EQ(get(3), 6u);
    EXPECT_EQ(get(2), 5u);
    ASSERT_EQ(soc_phyctrl_redirect_control_set(0, port, 1, -1, 1, soc_phy_control_t{control}, 7),
              BCM_E_NONE);  // another PHY
    EXPECT_EQ(get(3), 6u);
    ASSERT_EQ(soc_phyctrl_control_set(0, port, soc_phy_control_t{control}, 8), BCM_E_NONE);
    EXPECT_EQ(get(3), 8u);
    uint32 value = 0;
    for (const int bad : {-1, int{SOC_PHY_CONTROL_COUNT}, PHY_DIAG_CTRL_LAST + 1}) {
        EXPECT_EQ(soc_phyctrl_control_set(0, port, soc_phy_control_t{bad}, 1), BCM_E_PARAM);
        EXPECT_EQ(soc_phyctrl_control_get(0, port, soc_phy_control_t{bad}, &value), BCM_E_PARAM);
    }
    EXPECT_EQ(soc_phyctrl_lane_control_set(0, 7, 1, soc_phy_control_t{control}, 6), BCM_E_PARAM);
    EXPECT_EQ(soc_phyctrl_redirect_control_set(0, port, 2, 0, 0, soc_phy_control_t{control}, 6),
              BCM_E_PARAM);
    int on = 0;
    int done = 0;
    ASSERT_EQ(soc_phyctrl_redirect_auto_negotiate_set(0, port, 0, 2, 0, 1), BCM_E_NONE);
    ASSERT_EQ(soc_phyctrl_redirect_auto_negotiate_get(0, port, 0, 2, 0, &on, &done), BCM_E_NONE);
    EXPECT_EQ(on + done, 2);
    ASSERT_EQ(soc_phyctrl_auto_negotiate_set(0, port, 0), BCM_E_NONE);
    ASSERT_EQ(soc_phyctrl_redirect_auto_negotiate_get(0, port, 0, 2, 0, &on, &done), BCM_E_NONE);
    EXPECT_EQ(on, 0);
    ASSERT_EQ(soc_phyctrl_redirect_loopback_set(0, port, 0, -1, 0, 1, 0), BCM_E_NONE);  // plain
    EXPECT_EQ(number(soc_phyctrl_loopback_get, port), 1);
    ASSERT_EQ(soc_phyctrl_redirect_loopback_set(0, port, 1, -1, 0, 0, 0), BCM_E_NONE);
    ASSERT_EQ(soc_phyctrl_redirect_loopback_get(0, port, 1, 2, 0, &on), BCM_E_NONE);
    EXPECT_EQ(on, 0);
    ASSERT_EQ(soc_phyctrl_redirect_loopback_get(0, port, 0, 2, 0, &on), BCM_E_NONE);
    EXPECT_EQ(on, 1);
}

TEST_F(PhyTest, RegistersOfTheInternalPhy) {
    const auto get = [](int port, int lane, uint32 address) {
        uint16 value = 0x7777;
        TesselApiInternalPhyRead(0, port, lane, address, &value);
        return int{value};
    };
    ASSERT_EQ(soc_phyctrl_reg_write(0, 60, 0, 0x1800a, 0xffff), BCM_E_NONE);
    EXPECT_EQ(get(60, 0, 0x1800a), 0xffff);
    EXPECT_EQ(get(60, 1, 0x1800a), 0);
    EXPECT_EQ(get(61, 0, 0x1800a), 0);
    EXPECT_EQ(get(60, 4, 0x1800a), 0x7777);
    EXPECT_EQ(get(7, 1, 0x1800a), 0x7777);
    ASSERT_EQ(soc_phyctrl_reg_modify(0, 60, 0, 0x1800a, 0x0012, 0x00ff), BCM_E_NONE);
    EXPECT_EQ(get(60, 0, 0x1800a), 0xff12);
    EXPECT_EQ(soc_phyctrl_reg_write(0, 60, 0, 0, 0x10000), BCM_E_PARAM);
    EXPECT_EQ(soc_phyctrl_reg_modify(0, 60, 0, 0, 0x10000, ~0u), BCM_E_PARAM);
    EXPECT_EQ(soc_phyctrl_reg_read(0, 60, 0, 0, nullptr), BCM_E_PARAM);
    TesselApiInternalPhyWrite(0, 60, 3, 0x1800a, 9);
    EXPECT_EQ(get(60, 3, 0x1800a), 9);
    TesselApiInternalPhyRead(0, 60, 3, 0, nullptr);
    TesselApiInternalPhyWrite(9, 60, 3, 0, 1);
    std::array<uint8, 3> bytes{};
    int size = 0;
    ASSERT_EQ(soc_phyctrl_port_phy_multi_get(0, 60, 0, 1, 0x8009, 3, bytes.data(), &size),
              BCM_E_NONE);
    EXPECT_EQ(size, 3);
    EXPECT_EQ(bytes[1], 0x12);
    EXPECT_EQ(soc_phyctrl_port_phy_multi_get(0, 60, 0, 1, 0xffff, 2, bytes.data(), &size),
              BCM_E_PARAM);
    uint16 word = 0;
    ASSERT_EQ(soc_phyctrl_toplvl_reg_write(0, 60, 57, 4, 0x55), BCM_E_NONE);
    ASSERT_EQ(soc_phyctrl_toplvl_reg_read(0, 59, 57, 4, &word), BCM_E_NONE);
    EXPECT_EQ(word, 0x55);
    EXPECT_EQ(soc_phyctrl_toplvl_reg_read(0, 59, kNoPort, 4, &word), BCM_E_PORT);
}

// Registers of an internal PHY, by device and number.
struct Registers {
    int port = 7;
    uint32 operator()(uint32 device, uint32 number) const {
        return value_of<uint32>([&](uint32 *value) {
            return soc_phyctrl_reg_read(0, port, kInternal, device << 16 | number, value);
        });
    }
    void set(uint32 device, uint32 number, uint32 value) const {
        EXPECT_EQ(soc_phyctrl_reg_write(0, port, kInternal, device << 16 | number, value),
                  BCM_E_NONE);
    }
};

TEST_F(PhyTest, TheStandardRegistersAndTheCallsAreOneState) {
    const Registers reg;
    for (const uint32 device : {0u, 1u, 3u, 7u}) {
        reg.set(device, 2, 0);  // nobody writes an identifier
        EXPECT_EQ(reg(device, 2), soc_phy_id0reg_get(0, 7));
        EXPECT_EQ(reg(device, 3), soc_phy_id1reg_get(0, 7));
    }
    // What a call does a register shows, and the other way round.
    struct Case {
        const char *what;
        std::function<void(int)> set;
        std::function<int()> get;
        uint32 device, number, bit;
        bool inverse = false;
    };
    const auto loopback = [](int on) { soc_phyctrl_loopback_set(0, 7, on, 0); };
    const auto is_looped = [] { return number(soc_phyctrl_loopback_get, 7); };
    const auto enable = [](int on) { bcm_port_enable_set(0, 7, on); };
    const auto is_enabled = [] { return number(bcm_port_enable_get, 7); };
    const auto negotiate = [](int on) { bcm_port_autoneg_set(0, 7, on); };
    const auto negotiates = [] { return number(bcm_port_autoneg_get, 7); };
    const Case cases[] = {
        {"loopback", loopback, is_looped, 0, 0, 1 << 14},
        {"loopback, PMA", loopback, is_looped, 1, 0, 1 << 0},
        {"loopback, PCS", loopback, is_looped, 3, 0, 1 << 14},
        {"power", enable, is_enabled, 0, 0, 1 << 11, true},
        {"power, PMA", enable, is_enabled, 1, 0, 1 << 11, true},
        {"negotiation", negotiate, negotiates, 0, 0, 1 << 12},
        {"negotiation, 45", negotiate, negotiates, 7, 0, 1 << 12},
        {"duplex", [](int on) { bcm_port_duplex_set(0, 7, on); },
         [] { return number(bcm_port_duplex_get, 7); }, 0, 0, 1 << 8},
        {"transmitter", [](int on) { soc_enable_txrx_set(0, 7, on, 1); },
         [] {
             int tx = 0;
             int rx = 0;
             soc_enable_txrx_get(0, 7, &tx, &rx);
             return tx;
         },
         1, 9, 1 << 0, true},
    };
    for (const Case &one : cases) {
        SCOPED_TRACE(one.what);
        for (const int on : {1, 0, 1, 0}) {
            one.set(on);
            const bool bit = (on != 0) != one.inverse;
            EXPECT_EQ((reg(one.device, one.number) & one.bit) != 0, bit);
            const uint32 other = reg(one.device, one.number) ^ one.bit;
            reg.set(one.device, one.number, other);
            EXPECT_EQ(one.get(), 1 - on);
            EXPECT_EQ(reg(one.device, one.number), other);
        }
        one.set(one.inverse ? 1 : 0);
    }
}

TEST_F(PhyTest, SpeedsAbilitiesAndPagesStandInTheirBits) {
    const Registers reg;
    struct Case {
        int speed;
        uint32 basic, coded;
    };
    const Case cases[] = {{10, 0, 0},
                          {100, 1 << 13, 1 << 13},
                          {1'000, 1 << 6, 1 << 6},
                          {10'000, 0x2040, 0x2040},
                          {25'000, 0x2040, 0x2040 | 4 << 2}};
    for (const Case &one : cases) {
        SCOPED_TRACE(one.speed);
        ASSERT_EQ(bcm_port_speed_set(0, 7, one.speed), BCM_E_NONE);
        EXPECT_EQ(reg(0, 0) & 0x2040, one.basic);
        EXPECT_EQ(reg(1, 0) & 0x207c, one.coded);
        ASSERT_EQ(bcm_port_speed_set(0, 7, 5'000), BCM_E_NONE);
        reg.set(3, 0, one.coded);
        EXPECT_EQ(number(bcm_port_speed_get, 7), one.speed);
    }
    reg.set(1, 0, 0x2040 | 3 << 2);  // 100 Gbit/s, which the port can't
    EXPECT_EQ(number(bcm_port_speed_get, 7), 25'000);
    reg.set(0, 4, 0xffff);
    reg.set(7, 17, 1 << 15);
    soc_port_mode_t mode = 0;
    ASSERT_EQ(soc_phyctrl_adv_local_get(0, 7, &mode), BCM_E_NONE);
    EXPECT_EQ(mode, 1u << 1 | 1u << 3 | 3u << 16 | 1u << 11);
    EXPECT_EQ(reg(0, 4), 1u | 1 << 6 | 1 << 8 | 3 << 10);
    EXPECT_EQ(reg(0, 5), reg(0, 4)) << "the far end is one of our kind";
    EXPECT_EQ(reg(1, 5), 0x8bu);
    EXPECT_EQ(reg(1, 4) & 1, 1u);
    standin_link_set(0, 7, 0);
    EXPECT_EQ(reg(0, 5), 0u);
    // The way round through clause 22: the address, then the data.
    reg.set(0, 13, 1);
    reg.set(0, 14, 0x8000);
    reg.set(0, 13, 2u << 14 | 1);
    reg.set(0, 14, 0x55);
    reg.set(0, 14, 0x66);
    EXPECT_EQ(reg(1, 0x8000), 0x55u);
    EXPECT_EQ(reg(1, 0x8001), 0x66u);
}

TEST_F(PhyTest, ALinkThatWasDownIsDownOnceMoreInEachDevice) {
    const Registers reg;
    for (const uint32 device : {0u, 1u, 3u, 7u}) EXPECT_NE(reg(device, 1) & 4, 0u);
    standin_link_set(0, 7, 0);
    standin_link_set(0, 7, 1);
    for (const uint32 device : {0u, 1u, 3u, 7u}) {
        EXPECT_EQ(reg(device, 1) & 4, 0u);
        EXPECT_NE(reg(device, 1) & 4, 0u);
    }
    soc_phyctrl_loopback_set(0, 7, 1, 0);
    soc_phyctrl_mdix_set(0, 7, 2);
    reg.set(0, 0, 0x8000);
    EXPECT_EQ(reg(0, 0) & 0xc000, 0u) << "the bit clears itself, the loopback is over";
    EXPECT_EQ(number(soc_phyctrl_mdix_get, 7), 0);
}

TEST_F(PhyTest, ADetachedDriverAnswersNothingUntilItIsProbed) {
    ASSERT_EQ(soc_phyctrl_mdix_set(0, 7, 2), BCM_E_NONE);
    ASSERT_EQ(soc_phyctrl_detach(0, 7), BCM_E_NONE);
    int value = 0;
    EXPECT_EQ(soc_phyctrl_mdix_get(0, 7, &value), BCM_E_INIT);
    EXPECT_EQ(soc_phyctrl_drv_name(0, 7), nullptr);
    EXPECT_EQ(soc_phy_id0reg_get(0, 7), 0xffff);
    pbmp_t okay{};
    ASSERT_EQ(soc_phyctrl_pbm_probe_init(0, ports({7, 300}), &okay), BCM_E_NONE);
    EXPECT_EQ(okay, ports({7}));
    EXPECT_EQ(number(soc_phyctrl_mdix_get, 7), 2);
    ASSERT_EQ(soc_phyctrl_software_deinit(0), BCM_E_NONE);
    EXPECT_EQ(soc_phyctrl_mdix_get(0, 8, &value), BCM_E_INIT);
    ASSERT_EQ(soc_phyctrl_software_init(0), BCM_E_NONE);
    ASSERT_EQ(soc_phyctrl_reset(0, 7, nullptr), BCM_E_NONE);
    EXPECT_EQ(number(soc_phyctrl_mdix_get, 7), 0);
}

// What callbacks of PHYs were called with.
std::vector<std::string> heard;

int hear_reset(int unit, int port, void *user) {
    heard.push_back("reset " + std::to_string(unit) + ' ' + std::to_string(port));
    return *static_cast<int *>(user);
}

int hear_medium(int unit, int port, int medium, void *) {
    heard.push_back("medium " + std::to_string(port) + ' ' + std::to_string(medium));
    int link = 0;
    return soc_phyctrl_link_get(unit, port, &link);  // the lock is free
}

TEST_F(PhyTest, CallbacksAreCalledWhileTheyAreRegistered) {
    heard.clear();
    int good = 0;
    int bad = BCM_E_BUSY;
    ASSERT_EQ(soc_phy_reset_register(0, 7, hear_reset, &bad, 0), BCM_E_NONE);
    EXPECT_EQ(soc_phy_reset_register(0, 7, hear_reset, &bad, 0), BCM_E_EXISTS);
    ASSERT_EQ(soc_phy_reset_register(0, 7, hear_reset, &good, 0), BCM_E_NONE);
    ASSERT_EQ(soc_phyctrl_mdix_set(0, 7, 2), BCM_E_NONE);
    EXPECT_EQ(soc_phy_reset(0, 7), BCM_E_BUSY);  // the first one ends it
    EXPECT_EQ(heard.size(), 1u);
    EXPECT_EQ(number(soc_phyctrl_mdix_get, 7), 2);  // ours was told to stay out of it
    ASSERT_EQ(soc_phy_reset_unregister(0, 7, hear_reset, &bad), BCM_E_NONE);
    EXPECT_EQ(soc_phy_reset_unregister(0, 7, hear_reset, &bad), BCM_E_NOT_FOUND);
    EXPECT_EQ(soc_phy_reset(0, 7), BCM_E_NONE);
    ASSERT_EQ(soc_phy_reset_unregister(0, 7, hear_reset, &good), BCM_E_NONE);
    EXPECT_EQ(soc_phy_reset(0, 7), BCM_E_NONE);
    EXPECT_EQ(number(soc_phyctrl_mdix_get, 7), 0);
    EXPECT_EQ(soc_phy_reset_register(0, 7, nullptr, nullptr, 1), BCM_E_PARAM);
    ASSERT_EQ(soc_phy_medium_status_register(0, 7, hear_medium, nullptr), BCM_E_NONE);
    soc_phy_medium_status_notify(0, 7, 1);
    soc_phy_medium_status_notify(0, 7, 5);  // no medium
    EXPECT_EQ(number(soc_phyctrl_medium_get, 7), 1);
    ASSERT_EQ(soc_phy_medium_status_unregister(0, 7, hear_medium, nullptr), BCM_E_NONE);
    soc_phy_medium_status_notify(0, 7, 2);
    EXPECT_EQ(heard, (std::vector<std::string>{"reset 0 7", "reset 0 7", "medium 7 1"}));
}

TEST_F(PhyTest, IdentityAndAddresses) {
    EXPECT_EQ(soc_phy_addr_of_port(0, 7), 7);
    EXPECT_EQ(soc_phy_addr_int_of_port(0, 7), 0x87);
    EXPECT_EQ(soc_phy_addr_to_port(0, 7), 7);
    EXPECT_EQ(soc_phy_addr_to_port(0, 0x87), 7);
    EXPECT_EQ(soc_phy_addr_to_port(0, 0x3ff), -1);
    EXPECT_EQ(soc_phy_addr_to_port(4, 7), -1);
    ASSERT_EQ(soc_phy_cfg_addr_set(0, 7, 0, 0x3ff), BCM_E_NONE);
    EXPECT_EQ(soc_phy_addr_to_port(0, 0x3ff), 7);
    EXPECT_EQ(soc_phy_cfg_addr_set(0, 7, 0, 0x400), BCM_E_PARAM);
    EXPECT_EQ(soc_phy_cfg_addr_set(0, 7, 2, 1), BCM_E_PARAM);
    EXPECT_EQ(soc_phy_addr_of_port(0, kNoPort), 0xffff);
    EXPECT_EQ(soc_phy_is_c45_miim(0, 7), 1);
    EXPECT_EQ(soc_phy_is_c45_miim(0, kNoPort), 0);
    char name[20] = "untouched";
    EXPECT_EQ(soc_phyctrl_drv_name_get(0, 7, name, 3), BCM_E_PARAM);
    EXPECT_STREQ(name, "untouched");
    ASSERT_EQ(soc_phyctrl_drv_name_get(0, 7, name, sizeof name), BCM_E_NONE);
    EXPECT_STREQ(name, soc_phy_name_get(0, 7));
    soc_phy_info_t info{};
    ASSERT_EQ(soc_phy_info_get(0, 7, &info), BCM_E_NONE);
    char *const first = info.phy_name;
    ASSERT_EQ(soc_phy_info_get(0, 8, &info), BCM_E_NONE);
    EXPECT_EQ(info.phy_name, first);  // no new text for a record that has it
    EXPECT_EQ(info.phy_addr, 8);
    delete[] info.phy_name;
    int dividend = 0;
    int divisor = 0;
    EXPECT_EQ(soc_cmic_rate_param_set(0, 1, 0), BCM_E_PARAM);
    ASSERT_EQ(soc_cmic_rate_param_set(0, 2, 64), BCM_E_NONE);
    ASSERT_EQ(soc_cmic_rate_param_get(0, &dividend, &divisor), BCM_E_NONE);
    EXPECT_EQ(dividend * divisor, 128);
}

TEST_F(PhyTest, TablesOfTheVariablesComeAndGo) {
    ASSERT_EQ(soc_phy_cfg_addr_set(0, 7, 0, 0x3ff), BCM_E_NONE);
    ASSERT_EQ(soc_phy_common_init(0), BCM_E_NONE);
    EXPECT_EQ(phy_port_info[0][7].phy_addr, 0x3ff);
    EXPECT_EQ(phy_rmap[0][0x3ff], 7);
    EXPECT_EQ(phy_rmap[0][7], -1);
    ASSERT_EQ(soc_phy_common_init(0), BCM_E_NONE);  // once more
    soc_phy_info_t *const ours = phy_port_info[0];
    soc_phy_info_t theirs{};
    phy_port_info[0] = &theirs;
    ASSERT_EQ(soc_phy_common_detach(0), BCM_E_NONE);
    EXPECT_NE(ours, nullptr);
    EXPECT_EQ(phy_port_info[0], &theirs);  // what another put there stays
    EXPECT_EQ(phy_rmap[0], nullptr);
    phy_port_info[0] = nullptr;
}

TEST_F(PhyTest, PortsAreTranslatedByTheCallersFunction) {
    soc_phy_cb_xlate_port_func = [](int, int *port) {
        *port = 7;
        return int{BCM_E_NONE};
    };
    EXPECT_EQ(soc_phyctrl_mdix_set(0, 500, 3), BCM_E_NONE);
    soc_phy_cb_xlate_port_func = [](int, int *port) {
        *port = 7;
        return int{BCM_E_FAIL};
    };
    EXPECT_EQ(soc_phyctrl_mdix_set(0, 500, 2), BCM_E_PORT);
    soc_phy_cb_xlate_port_func = nullptr;
    EXPECT_EQ(number(soc_phyctrl_mdix_get, 7), 3);
    EXPECT_EQ(soc_phyctrl_mdix_set(0, 500, 3), BCM_E_PORT);
}

TEST_F(PhyTest, FirmwareAndDiagnostics) {
    uint8 bytes[4] = {1, 2, 3, 4};
    EXPECT_EQ(soc_phyctrl_firmware_set(0, 7, 0, 0, bytes, 4), BCM_E_NONE);
    EXPECT_EQ(soc_phyctrl_firmware_set(0, 7, 0, 4, bytes, 4), BCM_E_NONE);
    EXPECT_EQ(soc_phyctrl_firmware_set(0, 7, 0, 9, bytes, 4), BCM_E_PARAM);  // leaves a gap
    EXPECT_EQ(soc_phyctrl_firmware_set(0, 7, 0, 0, nullptr, 4), BCM_E_PARAM);
    EXPECT_EQ(soc_phyctrl_firmware_set(0, 7, 0, 0, bytes, 0), BCM_E_PARAM);
    uint32 value = 5;
    const int command = PHY_DIAG_CTRL_DSC;
    EXPECT_EQ(soc_phyctrl_diag_ctrl(0, 7, 0, 1, command, &value), BCM_E_NONE);
    value = 0;
    EXPECT_EQ(soc_phyctrl_diag_ctrl(0, 7, 0, 2, command, &value), BCM_E_NONE);
    EXPECT_EQ(value, 5u);
    EXPECT_EQ(soc_phyctrl_diag_ctrl(0, 7, 0, 1, command, nullptr), BCM_E_PARAM);
    EXPECT_EQ(soc_phyctrl_diag_ctrl(0, 7, 0, 3, command, nullptr), BCM_E_NONE);
    EXPECT_EQ(soc_phyctrl_diag_ctrl(0, 7, 0, 2, 0, &value), BCM_E_PARAM);
    EXPECT_EQ(soc_phyctrl_cable_diag(0, 7, nullptr), BCM_E_PARAM);
}

// -- external PHYs -------------------------------------------------------------------------------

// An accessor over registers of its own.
class Bench final : public MdioHamImpl::HamImpl {
  public:
    static inline Lumo::AllocTrackTypeInfo *lumoAllocTrackTypeInfo_ = nullptr;

    Bench()
        : HamImpl(Lumo::Name(Lumo::String("bench")), Hardware::Mdio::BusId(0),
                  Hardware::Mdio::PortAddr(0)) {}
    // Calls the model, as what a Python object does when it dies: no lock may be held then.
    ~Bench() override {
        soc_phy_is_c45_miim(0, 7);
        Lumo::AllocTrackTypeInfo::trackDeallocation(lumoAllocTrackTypeInfo_);
    }

    int read(unsigned device, unsigned reg, std::uint16_t *value) override {
        if (status < 0) return status;
        *value = registers[{device, reg}];
        if (during_read) during_read();
        return statusOk;
    }
    int write(unsigned device, unsigned reg, std::uint16_t value) override {
        if (status == statusOk) registers[{device, reg}] = value;
        return status;
    }

    std::map<std::pair<unsigned, unsigned>, std::uint16_t> registers;
    int status = statusOk;
    void (*during_read)() = nullptr;
};

Lumo::Ptr<Bench> install(int unit, int phy, ManagedPhy kind = ManagedPhy::phy84328) {
    auto bench = Lumo::newTracked<Bench>();
    TesselApiSetExtMdioAccess(UnitId(static_cast<std::uint32_t>(unit)),
                              ExternalPhyId(static_cast<std::uint16_t>(phy)), bench, kind);
    return bench;
}

MdioHamImpl::HamImpl::Ptr installed(int unit, int phy, ManagedPhy kind = ManagedPhy::phy84328) {
    return TesselApiGetExtMdioAccess(UnitId(static_cast<std::uint32_t>(unit)),
                                     ExternalPhyId(static_cast<std::uint16_t>(phy)), kind);
}

TEST_F(PhyTest, AnAccessorServesThePortOfItsNumber) {
    const auto bench = install(0, 7);
    EXPECT_EQ(bench->references(), 2u);
    ASSERT_EQ(soc_phyctrl_reg_write(0, 7, 0, 3 << 16 | 0x8001, 0x1234), BCM_E_NONE);
    EXPECT_EQ((bench->registers[{3, 0x8001}]), 0x1234);
    ASSERT_EQ(soc_phyctrl_reg_modify(0, 7, 0, 3 << 16 | 0x8001, 0xff, 0xf), BCM_E_NONE);
    uint32 value = 0;
    ASSERT_EQ(soc_phyctrl_reg_read(0, 7, 0, 3 << 16 | 0x8001, &value), BCM_E_NONE);
    EXPECT_EQ(value, 0x123fu);
    ASSERT_EQ(soc_phyctrl_reg_read(0, 7, kInternal, 3 << 16 | 0x8001, &value), BCM_E_NONE);
    EXPECT_EQ(value, 0u);
    ASSERT_EQ(soc_phyctrl_reg_read(0, 8, 0, 3 << 16 | 0x8001, &value), BCM_E_NONE);
    EXPECT_EQ(value, 0u);
    EXPECT_EQ(soc_phyctrl_reg_write(0, 7, 0, 0, 0x10000), BCM_E_PARAM);
    EXPECT_STREQ(soc_phyctrl_drv_name(0, 7), "standin external");
    bench->status = MdioHamImpl::HamImpl::statusFail;
    value = 7;
    EXPECT_EQ(soc_phyctrl_reg_read(0, 7, 0, 0, &value), BCM_E_FAIL);
    EXPECT_EQ(soc_phyctrl_reg_modify(0, 7, 0, 0, 1, 1), BCM_E_FAIL);
    EXPECT_EQ(value, 7u);
    EXPECT_EQ(soc_phyctrl_ext_phy_reset(0, 7), nullptr);
    bench->status = 0;
    EXPECT_NE(soc_phyctrl_ext_phy_reset(0, 7), nullptr);
    EXPECT_EQ((bench->registers[{1, 0}]), 0x8000);
    EXPECT_EQ(soc_phyctrl_ext_phy_reset(0, 8), nullptr);
}

TEST_F(PhyTest, AccessorsAreKeptByUnitPhyAndKindAndReplaced) {
    const auto first = install(255, 0x3ff);
    EXPECT_EQ(installed(255, 0x3ff).get(), first.get());
    EXPECT_FALSE(installed(254, 0x3ff));
    EXPECT_FALSE(installed(255, 0x3fe));
    EXPECT_FALSE(installed(255, 0x3ff, ManagedPhy(-7)));
    const auto other_kind = install(255, 0x3ff, ManagedPhy(-7));
    const auto second = install(255, 0x3ff);
    EXPECT_EQ(first->references(), 1u);  // ours alone
    EXPECT_EQ(installed(255, 0x3ff).get(), second.get());
    EXPECT_EQ(installed(255, 0x3ff, ManagedPhy(-7)).get(), other_kind.get());
    EXPECT_EQ(standin_mdio_count(), 2);
    EXPECT_EQ(standin_mdio_remove(255, 0x3ff, 3), BCM_E_NONE);
    EXPECT_EQ(standin_mdio_remove(255, 0x3ff, 3), BCM_E_NOT_FOUND);
    EXPECT_EQ(standin_mdio_remove(256, 0, 3), BCM_E_PARAM);
    TesselApiSetExtMdioAccess(UnitId(255), ExternalPhyId(0x3ff), nullptr, ManagedPhy(-7));
    EXPECT_EQ(standin_mdio_count(), 0);
    EXPECT_EQ(second->references(), 1u);
}

TEST_F(PhyTest, AnAccessorMayBeReplacedWhileItIsCalled) {
    const auto bench = install(0, 7);
    bench->during_read = [] { install(0, 7); };
    uint32 value = 7;
    EXPECT_EQ(soc_phyctrl_reg_read(0, 7, 0, 0, &value), BCM_E_NONE);
    EXPECT_EQ(bench->references(), 1u);
}

TEST_F(PhyTest, ThreadsShareTheBook) {
    install(0, 7);
    std::atomic<bool> done = false;
    std::thread replacing([&done] {
        while (!done) install(0, 7);
    });
    for (int n = 0; n < 100'000; ++n) {
        uint32 value = 0;
        char name[32];
        EXPECT_EQ(soc_phyctrl_reg_read(0, 7, 0, 0x10001, &value), BCM_E_NONE);
        EXPECT_STREQ(soc_phyctrl_drv_name(0, 7), "standin external");
        EXPECT_STREQ(soc_phy_name_get(0, 7), "standin external");
        EXPECT_EQ(soc_phyctrl_drv_name_get(0, 7, name, sizeof name), BCM_E_NONE);
    }
    done = true;
    replacing.join();
    EXPECT_EQ(installed(0, 7)->references(), 2u);
}

TEST_F(PhyTest, TheVersionToldCountsOnStandby) {
    standbyBcm84328VersionIs(UnitId(0), ExternalPhyId(7),
                             Hardware::PhyBcm::Bcm84328Version(0xbeef));
    EXPECT_EQ(standin_phy_version(0, 7), 0xbeef);
    EXPECT_EQ(standin_phy_version(0, 8), -1);
    EXPECT_NE(soc_phy_id1reg_get(0, 7), 0xbeef);
    standbySupIs(true);
    EXPECT_EQ(soc_phy_id1reg_get(0, 7), 0xbeef);
    EXPECT_NE(soc_phy_id1reg_get(0, 8), 0xbeef);
}

}  // namespace
}  // namespace standin
