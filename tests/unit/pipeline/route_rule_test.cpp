// Routing, and the rules: what they match, in which order, what they do and count.
#include <cstring>
#include <functional>

#include "frames.h"
#include "sdk/bcm/field.h"
#include "sdk/bcm/field_qualify.h"
#include "sdk/bcm/ip.h"
#include "sdk/bcm/l3.h"
#include "sdk/bcm/policer.h"
#include "sdk/bcm/port.h"
#include "sdk/bcm/rx.h"
#include "sdk/bcm/vlan.h"
#include "standin/model/tables.h"

namespace standin {
namespace {

#define OK(call) ASSERT_EQ(call, BCM_E_NONE) << standin_last_refusal()

constexpr std::uint32_t kHere = 0x0a010001;   // 10.1.0.1
constexpr std::uint32_t kThere = 0x0a020001;  // 10.2.0.1
const Frame kRouter = mac(0xee);

// Ports 1, 2 untagged in VLAN 100, 5 untagged and 6 tagged in VLAN 200, an interface in each with
// the same address. 10.2.0.0/16 is behind station 0x52 on port 5, 10.2.9.0/24 behind 0x62 on 6.
struct Router : Chip {
    void SetUp() override {
        Chip::SetUp();
        for (const bcm_vlan_t vid : {bcm_vlan_t{100}, bcm_vlan_t{200}}) {
            OK(bcm_vlan_create(0, vid));
            intf = {};
            std::memcpy(intf.l3a_mac_addr, kRouter.data(), 6);
            intf.l3a_vid = vid;
            OK(bcm_l3_intf_create(0, &intf));
        }
        OK(bcm_vlan_port_add(0, 100, ports({1, 2}), ports({1, 2})));
        OK(bcm_vlan_port_add(0, 200, ports({5, 6}), ports({5})));
        for (const int port : {1, 2}) {
            OK(bcm_port_untagged_vlan_set(0, port, 100));
            OK(bcm_port_l3_enable_set(0, port, 1));
        }
        OK(bcm_rx_start(0, nullptr));
        hops = {hop(0x52, 5), hop(0x62, 6)};
        route(0x0a020000, 16, hops[0]);
        route(0x0a020900, 24, hops[1]);
    }
    bcm_if_t hop(std::uint32_t station, int port) {
        bcm_l3_egress_t made{};
        made.intf = intf.l3a_intf_id;
        std::memcpy(made.mac_addr, Mac(station).data(), 6);
        made.port = port;
        bcm_if_t number = 0;
        EXPECT_EQ(bcm_l3_egress_create(0, 0, &made, &number), BCM_E_NONE);
        return number;
    }
    static void route(std::uint32_t net, int length, bcm_if_t to) {
        bcm_l3_route_t made{};
        made.l3a_subnet = net;
        made.l3a_ip_mask = bcm_ip_mask_create(length);
        made.l3a_intf = to;
        OK(bcm_l3_route_add(0, &made));
    }
    static Frame packet(std::uint32_t target = kThere, unsigned hops = 64, unsigned port = 53) {
        return kRouter + mac(1) + n16(0x0800) + ip4(kHere, target, 17, udp(1000, port), hops);
    }

    bcm_l3_intf_t intf{};  // the last one
    std::vector<bcm_if_t> hops;
};

TEST_F(Router, PacketsGoTheLongestPrefix) {
    struct Case {
        const char *what;
        std::function<void()> setup;
        Frame frame;
        const char *outcome;
    };
    Frame broken = packet();
    broken[24] ^= 1;
    const Case cases[] = {
        {"a net", [] {}, packet(), "5"},
        {"a net in it", [] {}, packet(0x0a020901), "6:200"},
        {"a host before any net",
         [&] {
             bcm_l3_host_t host{};
             host.l3a_ip_addr = kThere;
             host.l3a_intf = hops[1];
             OK(bcm_l3_host_add(0, &host));
         },
         packet(), "6:200"},
        {"no net", [] {}, packet(0x0a030001), "no_route"},
        {"which the processor wants to see", [] { OK(control(bcmSwitchV4L3DstMissToCpu)); },
         packet(0x0a030001), "no_route to_processor"},
        {"a default route", [&] { route(0, 0, hops[0]); }, packet(0x0b030001), "5"},
        {"the last hop", [] {}, packet(kThere, 1), "ttl_expired"},
        {"of which the processor tells", [] { OK(control(bcmSwitchL3UcastTtl1ToCpu)); },
         packet(kThere, 1), "to_processor ttl_expired"},
        {"a broken sum", [] {}, broken, "bad_checksum"},
        {"too large for the interface",
         [&] {
             intf.l3a_mtu = 27;
             intf.l3a_flags = kWithId | kReplace;
             OK(bcm_l3_intf_create(0, &intf));
         },
         packet(), "too_large_to_route"},
        {"not for the router", [] {},
         mac(2) + mac(1) + n16(0x0800) + ip4(kHere, kThere, 17, udp(1, 2)), "2"},
        {"a port that does not route", [] { OK(bcm_port_l3_enable_set(0, 1, 0)); }, packet(), "2"},
        {"the next hop is down", [] { OK(bcm_port_enable_set(0, 5, 0)); }, packet(), "egress_down"},
        {"an interface without a next hop", [&] { route(0x0a040000, 16, intf.l3a_intf_id); },
         packet(0x0a040001), "to_processor"}};
    for (const Case &one : cases) {
        SCOPED_TRACE(one.what);
        SetUp();
        one.setup();
        EXPECT_EQ(foretold(1, one.frame), one.outcome);
        EXPECT_EQ(outcome(1, one.frame), one.outcome);
    }
}

// RFC 1812, 5.2.1: new addresses, one hop less, a right sum, and nothing else.
TEST_F(Router, ARoutedPacketDiffersWhereItMust) {
    const auto copies = inject(1, packet());
    ASSERT_EQ(copies.size(), 1u);
    EXPECT_EQ(copies[0].frame,
              mac(0x52) + kRouter + n16(0x0800) + ip4(kHere, kThere, 17, udp(1000, 53), 63));
    for (unsigned left = 2; left < 256; ++left) {
        const auto one = inject(1, packet(kThere + left, left));
        ASSERT_EQ(one.size(), 1u);
        EXPECT_EQ(checksum(Frame(one[0].frame.begin() + 14, one[0].frame.begin() + 34)), 0u);
    }
}

TEST_F(Router, FlowsKeepToOnePath) {
    bcm_if_t group = 0;
    OK(bcm_l3_egress_multipath_create(0, 0, 2, hops.data(), &group));
    route(0x0a050000, 16, group);
    std::map<int, int> used;
    for (unsigned flow = 0; flow < 200; ++flow) {
        const Frame frame = packet(0x0a050001, 64, flow);
        const auto first = inject(1, frame);
        ASSERT_EQ(first.size(), 1u);
        ASSERT_EQ(inject(1, frame)[0].port, first[0].port);
        ++used[first[0].port];
    }
    EXPECT_GT(used[5], 60);
    EXPECT_GT(used[6], 60);
}

// A router with one group of rules.
struct Rules : Router {
    void SetUp() override {
        Router::SetUp();
        group = make_group(10);
    }
    static bcm_field_group_t make_group(int priority, int stage = bcmFieldQualifyStageIngress) {
        bcm_field_qset_t set{};
        for (const int id :
             {stage, +bcmFieldQualifySrcIp, +bcmFieldQualifyDstIp, +bcmFieldQualifyL4DstPort,
              +bcmFieldQualifyInPort, +bcmFieldQualifyInPorts, +bcmFieldQualifyIpType,
              +bcmFieldQualifyRangeCheck, +bcmFieldQualifyOuterVlanId, +bcmFieldQualifyOutPort,
              +bcmFieldQualifyVlanFormat})
            set.w[id / 32] |= 1u << (id % 32);
        bcm_field_group_t made = 0;
        EXPECT_EQ(bcm_field_group_create(0, set, priority, &made), BCM_E_NONE)
            << standin_last_refusal();
        return made;
    }
    bcm_field_entry_t rule(int priority, const std::function<int(bcm_field_entry_t)> &qualify,
                           int action, std::uint32_t param0 = 0, std::uint32_t param1 = 0) const {
        bcm_field_entry_t made = 0;
        EXPECT_EQ(bcm_field_entry_create(0, group, &made), BCM_E_NONE);
        EXPECT_EQ(bcm_field_entry_prio_set(0, made, priority), BCM_E_NONE);
        EXPECT_EQ(qualify(made), BCM_E_NONE) << standin_last_refusal();
        EXPECT_EQ(
            bcm_field_action_add(0, made, static_cast<bcm_field_action_t>(action), param0, param1),
            BCM_E_NONE);
        EXPECT_EQ(bcm_field_entry_install(0, made), BCM_E_NONE) << standin_last_refusal();
        return made;
    }
    static int from_net(bcm_field_entry_t entry) {
        return bcm_field_qualify_SrcIp(0, entry, 0x0a000000, 0xff000000);
    }
    static int any(bcm_field_entry_t entry) {
        return bcm_field_qualify_IpType(0, entry,
                                        static_cast<bcm_field_IpType_t>(bcmFieldIpTypeAny));
    }

    bcm_field_group_t group = 0;
};

TEST_F(Rules, MatchWhatTheySay) {
    bcm_field_range_t range = 0;
    struct Case {
        const char *what;
        std::function<int(bcm_field_entry_t)> qualify;
        bool dns, web, other_port;  // whether it drops: port 53, port 80, port 53 by port 2
    };
    const Case cases[] = {
        {"anything", any, true, true, true},
        {"a net", from_net, true, true, true},
        {"another net",
         [](auto e) { return bcm_field_qualify_SrcIp(0, e, 0x0b000000, 0xff000000); }, false, false,
         false},
        {"a number", [](auto e) { return bcm_field_qualify_L4DstPort(0, e, 53, 0xffff); }, true,
         false, true},
        {"a number and a net",
         [](auto e) { return bcm_field_qualify_L4DstPort(0, e, 80, 0xffff) | from_net(e); }, false,
         true, false},
        {"a port", [](auto e) { return bcm_field_qualify_InPort(0, e, 2, 0xffff); }, false, false,
         true},
        {"a port by its global number",
         [](auto e) { return bcm_field_qualify_InPort(0, e, kLocalGport.of(1), -1); }, true, true,
         false},
        {"ports", [](auto e) { return bcm_field_qualify_InPorts(0, e, ports({1}), kAllPorts); },
         true, true, false},
        {"a range", [&](auto e) { return bcm_field_qualify_RangeCheck(0, e, range, 0); }, true,
         false, true},
        {"all but a range", [&](auto e) { return bcm_field_qualify_RangeCheck(0, e, range, 1); },
         false, true, false},
        {"IPv6",
         [](auto e) {
             return bcm_field_qualify_IpType(0, e,
                                             static_cast<bcm_field_IpType_t>(bcmFieldIpTypeIpv6));
         },
         false, false, false},
        {"a VLAN", [](auto e) { return bcm_field_qualify_OuterVlanId(0, e, 100, 0xfff); }, true,
         true, true}};
    for (const Case &one : cases) {
        SCOPED_TRACE(one.what);
        SetUp();
        OK(bcm_field_range_create(0, &range, 0, 50, 60));
        rule(1, one.qualify, bcmFieldActionDrop);
        const auto dropped = [](bool is) { return is ? "rule_drop" : "5"; };
        EXPECT_EQ(foretold(1, packet()), dropped(one.dns));
        EXPECT_EQ(outcome(1, packet()), dropped(one.dns));
        EXPECT_EQ(outcome(1, packet(kThere, 64, 80)), dropped(one.web));
        EXPECT_EQ(outcome(2, packet()), dropped(one.other_port));
    }
}

TEST_F(Rules, TheFirstByPriorityCounts) {
    const auto low = rule(1, from_net, bcmFieldActionDrop);
    EXPECT_EQ(outcome(1, packet()), "rule_drop");
    const auto high = rule(
        5, [](auto e) { return bcm_field_qualify_L4DstPort(0, e, 53, 0xffff); },
        bcmFieldActionCopyToCpu);
    EXPECT_EQ(outcome(1, packet()), "5 to_processor");
    EXPECT_EQ(outcome(1, packet(kThere, 64, 80)), "rule_drop");
    OK(bcm_field_entry_prio_set(0, high, 0));
    OK(bcm_field_entry_reinstall(0, high));
    EXPECT_EQ(outcome(1, packet()), "rule_drop");
    OK(bcm_field_entry_enable_set(0, low, 0));
    EXPECT_EQ(outcome(1, packet()), "5 to_processor");
    OK(bcm_field_entry_destroy(0, high));
    EXPECT_EQ(outcome(1, packet()), "5");
    // The group of higher priority decides what both would do; each has its own first rule.
    OK(bcm_field_entry_enable_set(0, low, 1));
    group = make_group(20);
    rule(1, any, bcmFieldActionDropCancel);
    EXPECT_EQ(outcome(1, packet()), "5");
}

TEST_F(Rules, DoWhatTheirActionsSay) {
    struct Case {
        const char *what;
        int action;
        std::uint32_t param0, param1;
        const char *outcome;
    };
    const std::uint32_t other = static_cast<std::uint32_t>(hops[1]);
    const Case cases[] = {{"drop", bcmFieldActionDrop, 0, 0, "rule_drop"},
                          {"a trap", bcmFieldActionTrap, 0, 0, "rule_drop to_processor"},
                          {"to a port", bcmFieldActionRedirectPort, 0, 2, "egress_vlan"},
                          {"to the processor", bcmFieldActionRedirectPort, 0, 0, "to_processor"},
                          {"to a next hop", bcmFieldActionL3Switch, other, 0, "6:200"},
                          {"priority", bcmFieldActionPrioPktNew, 3, 0, "5"},
                          {"a mirror", bcmFieldActionMirrorIngress, 0,
                           static_cast<std::uint32_t>(kLocalGport.of(9)), "5 9"}};
    for (const Case &one : cases) {
        SCOPED_TRACE(one.what);
        SetUp();
        rule(1, any, one.action, one.param0, one.param1);
        EXPECT_EQ(foretold(1, packet()), one.outcome);
        EXPECT_EQ(outcome(1, packet()), one.outcome);
    }
    SetUp();
    rule(1, any, bcmFieldActionDscpNew, 46);
    const auto copies = inject(1, packet());
    ASSERT_EQ(copies.size(), 1u);
    EXPECT_EQ(copies[0].frame[15], 46 << 2);
    EXPECT_EQ(checksum(Frame(copies[0].frame.begin() + 14, copies[0].frame.begin() + 34)), 0u);
}

TEST_F(Rules, OfTheWayOutSeeThePort) {
    group = make_group(1, bcmFieldQualifyStageEgress);
    rule(
        1, [](auto e) { return bcm_field_qualify_OutPort(0, e, 5, 0xffff); }, bcmFieldActionDrop);
    EXPECT_EQ(outcome(1, packet()), "rule_drop");
    EXPECT_EQ(outcome(1, packet(0x0a020901)), "6:200");
}

TEST_F(Rules, CountAndPolice) {
    bcm_field_stat_t kinds[3];
    for (int i = 0; i < 3; ++i)
        kinds[i] = static_cast<bcm_field_stat_t>(
            std::array{+bcmFieldStatPackets, +bcmFieldStatBytes,
                       +bcmFieldStatRedPackets}[static_cast<std::size_t>(i)]);
    int stat = 0;
    OK(bcm_field_stat_create(0, group, 3, kinds, &stat));
    const auto made = rule(1, from_net, bcmFieldActionRpDrop);
    OK(bcm_field_entry_stat_attach(0, made, stat));
    bcm_policer_config_t config{};
    config.mode = static_cast<bcm_policer_mode_t>(bcmPolicerModeCommitted);
    config.ckbits_sec = 8;                  // a thousand bytes a second
    config.cbits_burst_lower = 50 * 8 * 2;  // two packets of 46 bytes and their checksum
    bcm_policer_t policer = 0;
    OK(bcm_policer_create(0, &config, &policer));
    OK(bcm_field_entry_policer_attach(0, made, 0, policer));
    OK(bcm_field_entry_reinstall(0, made));
    Frame frame = packet();
    frame.resize(46);
    EXPECT_EQ(outcome(1, frame), "5");
    EXPECT_EQ(foretold(1, frame), "5") << "takes no token";
    EXPECT_EQ(outcome(1, frame), "5");
    EXPECT_EQ(foretold(1, frame), "rule_drop");
    EXPECT_EQ(outcome(1, frame), "rule_drop");
    OK(standin_time_pass(0, 50'000));
    EXPECT_EQ(outcome(1, frame), "5") << "50 bytes more";
    EXPECT_EQ(outcome(1, frame), "rule_drop");
    const std::uint64_t expected[] = {5, 5 * 50, 2};
    for (int i = 0; i < 3; ++i) {
        uint64 value = 0;
        OK(bcm_field_stat_get(0, stat, kinds[i], &value));
        EXPECT_EQ(value, expected[i]) << i;
    }
}

}  // namespace
}  // namespace standin
