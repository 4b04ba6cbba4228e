// Bridging through the whole pipeline, from what the calls wrote: who gets a frame, and if nobody,
// for which reason.
#include <cstring>
#include <functional>
#include <random>

#include "frames.h"
#include "sdk/bcm/l2.h"
#include "sdk/bcm/mcast.h"
#include "sdk/bcm/mirror.h"
#include "sdk/bcm/multicast.h"
#include "sdk/bcm/port.h"
#include "sdk/bcm/rx.h"
#include "sdk/bcm/stat.h"
#include "sdk/bcm/stg.h"
#include "sdk/bcm/trunk.h"
#include "sdk/bcm/vlan.h"
#include "standin/model/tables.h"

namespace standin {
namespace {

#define OK(call) ASSERT_EQ(call, BCM_E_NONE) << standin_last_refusal()

// VLAN 100: ports 1 and 2 untagged, 3 and 4 tagged. VLAN 200: ports 4, 5 tagged, 6 untagged.
struct Bridge : Chip {
    void SetUp() override {
        Chip::SetUp();
        OK(bcm_vlan_create(0, 100));
        OK(bcm_vlan_create(0, 200));
        OK(bcm_vlan_port_add(0, 100, ports({1, 2, 3, 4}), ports({1, 2})));
        OK(bcm_vlan_port_add(0, 200, ports({4, 5, 6}), ports({6})));
        for (const int port : {1, 2}) OK(bcm_port_untagged_vlan_set(0, port, 100));
        OK(bcm_port_untagged_vlan_set(0, 6, 200));
        OK(bcm_rx_start(0, nullptr));
    }
};

void station(std::uint32_t number, int port, bcm_vlan_t vid = 100, std::uint32_t flags = 0) {
    bcm_l2_addr_t entry{};
    std::memcpy(entry.mac, Mac(number).data(), 6);
    entry.vid = vid;
    entry.port = port;
    entry.tgid = port;
    entry.flags = flags | kL2Static;
    OK(bcm_l2_addr_add(0, &entry));
}

void trunk(std::initializer_list<int> members) {
    bcm_trunk_t made = 7;
    OK(bcm_trunk_create(0, kWithId, &made));
    std::vector<bcm_trunk_member_t> list;
    for (const int port : members) list.emplace_back().gport = kLocalGport.of(port);
    bcm_trunk_info_t info{};
    OK(bcm_trunk_set(0, made, &info, static_cast<int>(list.size()), list.data()));
}

void stp(int port, int state) { OK(bcm_stg_stp_set(0, 1, port, state)); }

const Frame kTagged = plain(tag(100));
const Frame kGroup = Frame{1, 0, 0x5e, 1, 1, 1} + mac(1) + n16(0x88b5) + Frame(46);
const Frame kLink = Frame{1, 0x80, 0xc2, 0, 0, 0} + mac(1) + n16(39) + Frame(46);
const Frame kRequest = mac(2) + mac(1) + n16(0x0806) + arp(1, 0x0a000001, 0x0a000002);

struct Case {
    const char *what;
    std::function<void()> setup;
    int port;
    Frame frame;
    const char *outcome;
};

// NOLINTNEXTLINE: a table
const Case kCases[] = {
    {"an unknown address goes to all others", [] {}, 1, plain(), "2 3:100 4:100"},
    {"the VLAN of a tag", [] {}, 3, kTagged, "1 2 4:100"},
    {"its priority stays", [] {}, 3, plain(tag(100, 5)), "1 2 4:100p5"},
    {"a priority tag leaves the VLAN of the port", [] {}, 1, plain(tag(0, 3)), "2 3:100p3 4:100p3"},
    {"the priority of the port", [] { OK(bcm_port_untagged_priority_set(0, 1, 6)); }, 1, plain(),
     "2 3:100p6 4:100p6"},
    {"a second tag is payload", [] {}, 3, plain(tag(100) + tag(9)), "1:9 2:9 4:100"},
    {"a known address", [] { station(2, 3); }, 1, plain(), "3:100"},
    {"known in another VLAN only", [] { station(2, 5, 200); }, 1, plain(), "2 3:100 4:100"},
    {"known where it came from", [] { station(2, 1); }, 1, plain(), "same_port"},
    {"a black hole", [] { station(2, 3, 100, kL2BlackHole); }, 1, plain(), "black_hole"},
    {"the processor's own address", [] { station(2, 0); }, 1, plain(), "to_processor"},
    {"no such VLAN", [] {}, 3, plain(tag(300)), "unknown_vlan"},
    {"which the processor wants to see", [] { OK(control(bcmSwitchUnknownVlanToCpu)); }, 3,
     plain(tag(300)), "to_processor unknown_vlan"},
    {"no member, and nobody minds", [] {}, 6, kTagged, "1 2 3:100 4:100"},
    {"no member, and the port filters", [] { OK(bcm_port_ifilter_set(0, 6, 1)); }, 6, kTagged,
     "vlan_filter"},
    {"a port that is off", [] { OK(bcm_port_enable_set(0, 1, 0)); }, 1, plain(), "port_down"},
    {"the cable is out", [] { OK(standin_link_set(0, 1, 0)); }, 1, plain(), "port_down"},
    {"flooding leaves out what is down", [] { OK(bcm_port_enable_set(0, 2, 0)); }, 1, plain(),
     "3:100 4:100"},
    {"known, but down",
     [] {
         station(2, 3);
         OK(bcm_port_enable_set(0, 3, 0));
     },
     1, plain(), "egress_down"},
    {"known, but no member", [] { station(2, 9); }, 1, plain(), "egress_vlan"},
    {"discards all", [] { OK(bcm_port_discard_set(0, 1, BCM_PORT_DISCARD_ALL)); }, 1, plain(),
     "port_discards"},
    {"discards what has no tag", [] { OK(bcm_port_discard_set(0, 1, BCM_PORT_DISCARD_UNTAG)); }, 1,
     plain(tag(0)), "port_discards"},
    {"and takes what has one", [] { OK(bcm_port_discard_set(0, 3, BCM_PORT_DISCARD_UNTAG)); }, 3,
     kTagged, "1 2 4:100"},
    {"discards what has a tag", [] { OK(bcm_port_discard_set(0, 3, BCM_PORT_DISCARD_TAG)); }, 3,
     kTagged, "port_discards"},
    {"discards what it sends",
     [] {
         station(2, 3);
         OK(bcm_port_discard_set(0, 3, BCM_PORT_DISCARD_EGRESS));
     },
     1, plain(), "egress_discards"},
    {"blocks", [] { stp(1, BCM_STG_STP_BLOCK); }, 1, plain(), "stp_state"},
    {"listens", [] { stp(1, BCM_STG_STP_LISTEN); }, 1, plain(), "stp_state"},
    {"learns", [] { stp(1, BCM_STG_STP_LEARN); }, 1, plain(), "stp_state"},
    {"is disabled", [] { stp(1, BCM_STG_STP_DISABLE); }, 1, plain(), "stp_state"},
    {"blocks on the way out", [] { stp(2, BCM_STG_STP_BLOCK); }, 1, plain(), "3:100 4:100"},
    {"known, but blocked",
     [] {
         station(2, 3);
         stp(3, BCM_STG_STP_LEARN);
     },
     1, plain(), "egress_stp"},
    {"a link protocol passes what blocks", [] { stp(1, BCM_STG_STP_BLOCK); }, 1, kLink,
     "to_processor"},
    {"a link protocol that nobody takes", [] { OK(bcm_port_bpdu_enable_set(0, 1, 0)); }, 1, kLink,
     "reserved_address"},
    {"a pause frame", [] {}, 1, Frame{1, 0x80, 0xc2, 0, 0, 1} + mac(1) + n16(0x8808) + Frame(46),
     "pause"},
    {"a group as its source", [] {}, 1, mac(2) + Frame{3, 0, 0, 0, 0, 1} + n16(0x88b5) + Frame(46),
     "group_source"},
    {"as long as may be", [] {}, 1, plain({}, 1500), "2 3:100 4:100"},
    {"longer", [] {}, 1, plain({}, 1501), "too_long"},
    {"a tag does not count", [] {}, 3, plain(tag(100), 1500), "1 2 4:100"},
    {"too long for one that it should leave",
     [] {
         OK(bcm_port_frame_max_set(0, 1, 9000));
         station(2, 3);
     },
     1, plain({}, 4000), "egress_too_long"},
    {"translated as it comes", [] { OK(bcm_vlan_translate_add(0, 3, 500, 100, 4)); }, 3,
     plain(tag(500)), "1 2 4:100p4"},
    {"translated as it leaves", [] { OK(bcm_vlan_translate_egress_add(0, 4, 100, 600, -1)); }, 3,
     plain(tag(100, 2)), "1 2 4:600p2"},
    {"a VLAN of the station", [] { OK(bcm_vlan_mac_add(0, Mac(1).data(), 200, 1)); }, 1, plain(),
     "4:200p1 5:200p1 6"},
    {"a station on a trunk",
     [] {
         trunk({3});
         station(2, 7, 100, kL2Trunk);
     },
     1, plain(), "3:100"},
    {"a trunk gets one copy",
     [] {
         trunk({2, 3, 4});
         OK(bcm_port_enable_set(0, 3, 0));
         OK(bcm_port_enable_set(0, 4, 0));
     },
     1, plain(), "2"},
    {"none to the trunk that it came from",
     [] {
         trunk({3, 4});
     },
     3, kTagged, "1 2"},
    {"nor to a station there",
     [] {
         trunk({3, 4});
         station(2, 7, 100, kL2Trunk);
     },
     3, kTagged, "same_port"},
    {"a trunk without a member that is up",
     [] {
         trunk({3});
         station(2, 7, 100, kL2Trunk);
         OK(bcm_port_enable_set(0, 3, 0));
     },
     1, plain(), "trunk_empty"},
    {"a multicast address floods", [] {}, 1, kGroup, "2 3:100 4:100"},
    {"unless it has ports",
     [] {
         bcm_mcast_addr_t address{};
         std::memcpy(address.mac, kGroup.data(), 6);
         address.vid = 100;
         address.pbmp = ports({2, 4});
         OK(bcm_mcast_addr_add(0, &address));
     },
     1, kGroup, "2 4:100"},
    {"a mirror of what comes in",
     [] {
         OK(bcm_mirror_mode_set(0, 1));
         OK(bcm_mirror_to_set(0, 9));
         OK(bcm_mirror_ingress_set(0, 3, 1));
         station(2, 1);
     },
     3, kTagged, "1 9:100"},
    {"a mirror of what leaves",
     [] {
         OK(bcm_mirror_mode_set(0, 1));
         OK(bcm_mirror_to_set(0, 9));
         OK(bcm_mirror_egress_set(0, 3, 1));
         station(2, 3);
     },
     1, plain(), "3:100 9:100"},
    {"ARP for the processor too", [] { OK(control(bcmSwitchArpRequestToCpu)); }, 1, kRequest,
     "2 3:100 4:100 to_processor"},
    {"and for nobody else",
     [] {
         OK(control(bcmSwitchArpRequestToCpu));
         OK(control(bcmSwitchArpRequestDrop));
     },
     1, kRequest, "protocol_drop to_processor"},
    {"nobody receives",
     [] {
         station(2, 0);
         OK(bcm_rx_stop(0, nullptr));
     },
     1, plain(), "rx_stopped"},
    {"one port in a loop",
     [] {
         station(2, 2);
         OK(bcm_port_loopback_set(0, 2, 1));
     },
     1, plain(), "same_port"},
    {"a VLAN of one port",
     [] {
         OK(bcm_vlan_port_remove(0, 200, ports({4, 5})));
     },
     6, plain(), "no_member"},
};

TEST_F(Bridge, FramesGoWhereTheCallsSay) {
    for (const Case &one : kCases) {
        SCOPED_TRACE(one.what);
        SetUp();
        one.setup();
        const auto before = ended();
        EXPECT_EQ(foretold(one.port, one.frame), one.outcome);
        EXPECT_EQ(ended(), before) << "a dry trace counts nothing";
        EXPECT_EQ(outcome(one.port, one.frame), one.outcome);
    }
}

TEST_F(Bridge, BytesStayAsTheyAre) {
    station(2, 3);
    const auto copies = inject(1, plain());
    ASSERT_EQ(copies.size(), 1u);
    EXPECT_EQ(copies[0].frame, kTagged);
    station(3, 1);
    const auto back = inject(3, mac(3) + mac(2) + tag(100, 5) + n16(0x88b5) + Frame(60, 1));
    ASSERT_EQ(back.size(), 1u);
    EXPECT_EQ(back[0].frame, mac(3) + mac(2) + n16(0x88b5) + Frame(60, 1));
}

TEST_F(Bridge, StationsAreLearnedWhereTheyAre) {
    bcm_l2_addr_t entry{};
    stp(1, BCM_STG_STP_LISTEN);
    inject(1, plain());
    EXPECT_EQ(bcm_l2_addr_get(0, Mac(1).data(), 100, &entry), BCM_E_NOT_FOUND);
    stp(1, BCM_STG_STP_LEARN);
    foretold(1, plain());
    EXPECT_EQ(bcm_l2_addr_get(0, Mac(1).data(), 100, &entry), BCM_E_NOT_FOUND) << "dry";
    inject(1, plain());
    OK(bcm_l2_addr_get(0, Mac(1).data(), 100, &entry));
    EXPECT_EQ(entry.port, 1);
    inject(3, kTagged);
    OK(bcm_l2_addr_get(0, Mac(1).data(), 100, &entry));
    EXPECT_EQ(entry.port, 3) << "it moved";
    EXPECT_EQ(outcome(2, mac(1) + mac(2) + n16(0x88b5) + Frame(46)), "3:100");
    trunk({3, 4});
    inject(4, kTagged);
    OK(bcm_l2_addr_get(0, Mac(1).data(), 100, &entry));
    EXPECT_EQ(entry.tgid, 7);
    OK(bcm_port_learn_set(0, 2, 0));
    inject(2, mac(1) + mac(9) + n16(0x88b5) + Frame(46));
    EXPECT_EQ(bcm_l2_addr_get(0, Mac(9).data(), 100, &entry), BCM_E_NOT_FOUND);
}

// Each flow keeps to one member, and the flows spread over all.
TEST_F(Bridge, FlowsKeepToOneMemberOfATrunk) {
    trunk({2, 3, 4});
    station(2, 7, 100, kL2Trunk);
    std::map<int, int> used;
    for (unsigned flow = 0; flow < 300; ++flow) {
        const Frame frame =
            mac(2) + mac(1) + n16(0x0800) + ip4(0x0a000001, 0x0a000002, 17, udp(flow, 53));
        const auto first = inject(1, frame);
        ASSERT_EQ(first.size(), 1u);
        ASSERT_EQ(inject(1, frame)[0].port, first[0].port);
        ++used[first[0].port];
    }
    EXPECT_EQ(used.size(), 3u);
    for (const auto &[port, flows] : used) EXPECT_GT(flows, 60) << port;
}

std::uint64_t stat(int port, int kind) {
    uint64 value = 0;
    EXPECT_EQ(bcm_stat_get(0, port, static_cast<bcm_stat_val_t>(kind), &value), BCM_E_NONE);
    return value;
}

TEST_F(Bridge, PortsCountWhatPasses) {
    station(2, 3);
    inject(1, plain({}, 46));  // 60 and the checksum: 64
    inject(1, Frame(6, 0xff) + mac(1) + n16(0x88b5) + Frame(500, 0));
    inject(1, plain({}, 1501));
    EXPECT_EQ(stat(1, snmpIfInUcastPkts), 2u);
    EXPECT_EQ(stat(1, snmpIfInBroadcastPkts), 1u);
    EXPECT_EQ(stat(1, snmpIfInErrors), 1u);
    EXPECT_EQ(stat(1, snmpIfInOctets), 64u + 518 + 1519);
    EXPECT_EQ(stat(1, snmpEtherStatsPkts64Octets), 1u);
    EXPECT_EQ(stat(3, snmpIfOutUcastPkts), 1u);
    EXPECT_EQ(stat(3, snmpIfOutBroadcastPkts), 1u);
    EXPECT_EQ(stat(3, snmpIfOutOctets), 68u + 522);
    OK(bcm_port_discard_set(0, 1, BCM_PORT_DISCARD_ALL));
    inject(1, plain());
    EXPECT_EQ(stat(1, snmpIfInDiscards), 1u);
}

TEST_F(Bridge, ATraceTellsWhoDecided) {
    station(2, 3);
    stp(3, BCM_STG_STP_BLOCK);
    int status = 0;
    const Frame frame = plain();
    const std::string text =
        standin_packet_trace(0, 1, frame.data(), static_cast<int>(frame.size()), 0, 0, &status);
    for (const char *const line :
         {"vlan: 100 by port\n", "stp: port 1 in group 1 is forwarding\n", "l2: MAC ",
          "= dropped by port 3: the port it should leave does not forward in the spanning tree "
          "(egress_stp)\n"})
        EXPECT_NE(text.find(line), std::string::npos) << line << text;
}

TEST_F(Bridge, ACaptureIsAFileThatReadersKnow) {
    OK(standin_packet_capture(0, 3, 3));
    station(2, 3);
    inject(1, plain());
    const uint8 *file = nullptr;
    int size = 0;
    unsigned long long left_out = 1;
    OK(standin_packet_capture_get(0, 3, &file, &size, &left_out));
    EXPECT_EQ(left_out, 0u);
    ASSERT_EQ(size, 24 + 16 + 64);
    EXPECT_TRUE(std::equal(kTagged.begin(), kTagged.end(), file + 40));
    OK(standin_packet_capture(0, 3, 0));
    EXPECT_EQ(standin_packet_capture_get(0, 3, &file, &size, nullptr), BCM_E_NOT_FOUND);
}

TEST_F(Bridge, WhatIsNoFrameIsRefused) {
    const Frame frame = plain();
    EXPECT_EQ(standin_packet_inject(0, 65, frame.data(), 60, nullptr, nullptr), BCM_E_PORT);
    EXPECT_EQ(standin_packet_inject(0, 1, nullptr, 60, nullptr, nullptr), BCM_E_PARAM);
    EXPECT_EQ(standin_packet_inject(0, 1, frame.data(), 0, nullptr, nullptr), BCM_E_PARAM);
    EXPECT_EQ(standin_packet_inject(3, 1, frame.data(), 60, nullptr, nullptr), BCM_E_UNIT);
}

// Switches and frames at random: what must hold in each of them.
TEST_F(Bridge, WhateverIsSetTheRulesHold) {
    std::mt19937 random(7);
    const auto one_of = [&](int count) {
        return static_cast<int>(random() % static_cast<unsigned>(count));
    };
    for (int round = 0; round < 100; ++round) {
        SetUp();
        for (int change = one_of(8); change > 0; --change) {
            const int port = 1 + one_of(6);
            switch (one_of(6)) {
                case 0:
                    stp(port, one_of(BCM_STG_STP_COUNT));
                    break;
                case 1:
                    OK(bcm_port_enable_set(0, port, 0));
                    break;
                case 2:
                    OK(bcm_port_discard_set(0, port, one_of(BCM_PORT_DISCARD_COUNT)));
                    break;
                case 3:
                    OK(bcm_port_ifilter_set(0, port, 1));
                    break;
                case 4:
                    station(static_cast<std::uint32_t>(1 + one_of(3)), port);
                    break;
                default:
                    if (change == 1) trunk({3, 4});
            }
        }
        for (int i = 0; i < 10; ++i) {
            const int port = 1 + one_of(6);
            const Frame tags = one_of(2) == 0 ? Frame{} : tag(one_of(2) == 0 ? 100 : 200);
            Frame frame = mac(static_cast<std::uint32_t>(one_of(4))) +
                          mac(static_cast<std::uint32_t>(one_of(4))) + tags + n16(0x88b5);
            frame.resize(10 + random() % 1600);
            const std::string before = foretold(port, frame);
            std::map<int, int> copies;
            auto counts = ended();
            for (const Sent &one : inject(port, frame)) {
                EXPECT_EQ(++copies[one.port], 1) << "made twice on port " << one.port;
                EXPECT_NE(one.port, port);
                int state = 0;
                int mode = 0;
                OK(bcm_port_link_status_get(0, one.port, &state));
                EXPECT_EQ(state, 1);
                OK(bcm_port_discard_get(0, one.port, &mode));
                EXPECT_NE(mode, BCM_PORT_DISCARD_ALL);
                OK(bcm_stg_stp_get(0, 1, one.port, &state));
                EXPECT_EQ(state, BCM_STG_STP_FORWARD);
            }
            EXPECT_EQ(ended()["sent"] - counts["sent"], copies.size());
            std::string sent;
            for (const auto &[out, count] : copies) sent += " " + std::to_string(out);
            for (const auto &[out, count] : copies)
                EXPECT_NE((" " + before).find(" " + std::to_string(out)), std::string::npos)
                    << "traced " << before << ", sent" << sent;
        }
        std::uint64_t in = 0;
        std::uint64_t out = 0;
        for (int port = 1; port < kPorts; ++port) {
            in += stat(port, snmpDot1dTpPortInFrames);
            out += stat(port, snmpDot1dTpPortOutFrames);
        }
        EXPECT_EQ(in, 10u);
        EXPECT_EQ(out, ended()["sent"]);
    }
}

}  // namespace
}  // namespace standin
