// The state of a unit as commands: whatever calls have made comes back from them.
#include <random>

#include "diag_fixture.h"
#include "helper/device.h"
#include "helper/shell_cxx.h"
#include "sdk/bcm/cosq.h"
#include "sdk/bcm/field.h"
#include "sdk/bcm/field_qualify.h"
#include "sdk/bcm/l2.h"
#include "sdk/bcm/l3.h"
#include "sdk/bcm/mirror.h"
#include "sdk/bcm/multicast.h"
#include "sdk/bcm/policer.h"
#include "sdk/bcm/port.h"
#include "sdk/bcm/qos.h"
#include "sdk/bcm/stg.h"
#include "sdk/bcm/trunk.h"
#include "sdk/bcm/vlan.h"
#include "sdk/constants.h"
#include "sdk/soc/init.h"
#include "sdk/soc/reg.h"
#include "standin/chapters/field_qualify.h"
#include "standin/chapters/hooks.h"
#include "standin/model/groups.h"
#include "standin/model/l3.h"
#include "standin/shell/running.h"
#include "standin/text/name_text.h"

namespace standin {
namespace {

void start_unit() {
    standin_reset();
    ASSERT_EQ(addOmbraDevice(0, 1, 0, 0), 0);
    ASSERT_EQ(soc_init(0), BCM_E_NONE);
}

// Calls on unit 0 with arguments by chance; those that the model refuses change nothing.
class Chance {
  public:
    explicit Chance(unsigned seed) : random_(seed) {}

    void step() {
        void (Chance::*const steps[])() = {&Chance::vlans,     &Chance::trees,     &Chance::ports,
                                           &Chance::links,     &Chance::groups,    &Chance::mirrors,
                                           &Chance::next_hops, &Chance::routes,    &Chance::rules,
                                           &Chance::matches,   &Chance::addresses, &Chance::queues};
        (this->*steps[pick(std::size(steps))])();
    }

  private:
    int pick(std::size_t below) { return static_cast<int>(random_() % below); }
    uint32 number(std::size_t below) { return static_cast<uint32>(pick(below)); }
    int port() { return pick(kPorts); }
    bcm_vlan_t vlan() { return static_cast<bcm_vlan_t>(1 + pick(6)); }
    bcm_pbmp_t port_set() {
        bcm_pbmp_t set{};
        for (int left = pick(5); left > 0; --left) add_port(set, port());
        return set;
    }
    // A structure of which one byte in eight is not zero.
    template <class T>
    T noise() {
        T made{};
        auto *const bytes = reinterpret_cast<unsigned char *>(&made);
        for (std::size_t at = 0; at < sizeof made; ++at)
            if (pick(8) == 0) bytes[at] = static_cast<unsigned char>(random_());
        return made;
    }
    template <class Set>
    Set some_bits(std::initializer_list<int> bits) {
        Set set{};
        for (const int bit : bits)
            if (pick(3) != 0) set.w[bit / 32] |= 1U << (bit % 32);
        return set;
    }

    void vlans() {
        bcm_vlan_create(0, vlan());
        bcm_vlan_port_add(0, vlan(), port_set(), port_set());
        bcm_vlan_port_remove(0, vlan(), port_set());
        bcm_vlan_gport_add(0, vlan(), kTrunkGport.of(pick(4)), pick(2));
        if (pick(6) == 0) bcm_vlan_default_set(0, vlan());
        if (pick(6) == 0) bcm_vlan_destroy(0, vlan());
    }
    void trees() {
        bcm_stg_create_id(0, 1 + pick(4));
        bcm_stg_stp_set(0, 1 + pick(4), port(), pick(5));
        bcm_stg_vlan_add(0, 1 + pick(4), vlan());
        if (pick(6) == 0) bcm_stg_default_set(0, 1 + pick(4));
    }
    void ports() {
        bcm_mac_t mac = {2, 0, 0, 0, 0, static_cast<unsigned char>(pick(9))};
        bcm_port_enable_set(0, port(), pick(2));
        bcm_port_speed_set(0, port(), 1000);
        bcm_port_frame_max_set(0, port(), 64 + pick(9000));
        bcm_port_loopback_set(0, port(), pick(3));
        bcm_port_discard_set(0, port(), pick(4));
        bcm_port_pause_set(0, port(), pick(2), pick(2));
        bcm_port_pause_addr_set(0, port(), mac);
        bcm_port_untagged_vlan_set(0, port(), vlan());
        bcm_port_learn_set(0, port(), number(8));
        bcm_port_linkscan_set(0, port(), pick(3));
        bcm_port_bpdu_enable_set(0, port(), pick(2));
        bcm_port_pfm_set(0, port(), pick(4));
        bcm_port_control_set(0, port(), static_cast<bcm_port_control_t>(pick(20)), pick(9));
        auto ability = noise<bcm_port_ability_t>();
        bcm_port_ability_advert_set(0, port(), &ability);
        bcm_port_autoneg_set(0, port(), pick(2));
    }
    void links() {
        bcm_trunk_t id = pick(4);
        bcm_trunk_create(0, BCM_TRUNK_FLAG_WITH_ID, &id);
        auto info = noise<bcm_trunk_info_t>();
        if (pick(3) == 0) bcm_trunk_set(0, id, &info, 0, nullptr);
        for (int left = pick(4); left > 0; --left) {
            auto member = noise<bcm_trunk_member_t>();
            member.gport = pick(2) == 0 ? port() : kSystemGport.of(pick(50));
            bcm_trunk_member_add(0, id, &member);
        }
        bcm_trunk_egress_set(0, id, port_set());
    }
    void groups() {
        bcm_multicast_t group = 1 + pick(5);
        bcm_multicast_create(0, 0x10U | number(4) << 16, &group);
        bcm_multicast_egress_add(0, group, port(), pick(3));
        bcm_multicast_ingress_add(0, group, kLocalGport.of(port()), pick(3));
        auto config = noise<bcm_policer_config_t>();
        bcm_policer_t policer = 0;
        bcm_policer_create(0, &config, &policer);
    }
    void mirrors() {
        auto made = noise<bcm_mirror_destination_t>();
        made.gport = port();
        if (pick(3) == 0) bcm_mirror_destination_create(0, &made);
        bcm_mirror_port_dest_add(0, port(), number(3), kMirrorGport.of(1 + pick(4)));
        bcm_mirror_mode_set(0, pick(3));
        bcm_mirror_to_set(0, pick(2) == 0 ? -1 : port());
        bcm_mirror_ingress_set(0, port(), 1);
    }
    void next_hops() {
        auto intf = noise<bcm_l3_intf_t>();
        intf.l3a_vid = vlan();
        bcm_l3_intf_create(0, &intf);
        auto egress = noise<bcm_l3_egress_t>();
        egress.intf = pick(3);
        egress.port = port();
        egress.trunk = 0;
        bcm_if_t id = 0;
        bcm_l3_egress_create(0, 0, &egress, &id);
        bcm_if_t paths[] = {kFirstEgress + pick(4), kFirstEgress + pick(4)};
        bcm_l3_egress_multipath_create(0, 0, 2, paths, &id);
        if (pick(9) == 0) bcm_l3_route_max_ecmp_set(0, 2 + pick(60));
    }
    void routes() {
        const bcm_if_t hops[] = {0, kFirstInterface, kFirstEgress, kFirstEgress + 1,
                                 kFirstMultipath};
        auto host = noise<bcm_l3_host_t>();
        host.l3a_intf = hops[pick(std::size(hops))];
        bcm_l3_host_add(0, &host);
        auto route = noise<bcm_l3_route_t>();
        route.l3a_intf = hops[pick(std::size(hops))];
        route.l3a_ip_mask = ~0U << pick(32);
        std::fill(route.l3a_ip6_mask, route.l3a_ip6_mask + 16, static_cast<unsigned char>(0));
        std::fill(route.l3a_ip6_mask, route.l3a_ip6_mask + pick(17),
                  static_cast<unsigned char>(255));
        bcm_l3_route_add(0, &route);
    }
    void rules() {
        const auto qualifiers = some_bits<bcm_field_qset_t>(
            {bcmFieldQualifySrcIp, bcmFieldQualifySrcMac, bcmFieldQualifyInPort,
             bcmFieldQualifyL4PortRangeCheck, bcmFieldQualifySrcIp6});
        bcm_field_group_t group = 1 + pick(3);
        bcm_field_group_ports_create_mode_id(0, port_set(), qualifiers, pick(9),
                                             static_cast<bcm_field_group_mode_t>(pick(3)), group);
        bcm_field_group_enable_set(0, group, pick(2));
        if (pick(4) == 0)
            bcm_field_group_action_set(
                0, group,
                some_bits<bcm_field_aset_t>({bcmFieldActionDrop, bcmFieldActionCopyToCpu}));
        bcm_field_entry_create_id(0, group, 1 + pick(9));
        bcm_field_stat_t kinds[] = {static_cast<bcm_field_stat_t>(pick(6))};
        bcm_field_stat_create_id(0, group, 1, kinds, 1 + pick(6));
        bcm_field_range_t range = 0;
        bcm_field_range_create(0, &range, number(3), pick(100), 100 + pick(100));
    }
    void matches() {
        const bcm_field_entry_t entry = 1 + pick(9);
        const std::pair<int, std::size_t> sizes[] = {
            {bcmFieldQualifySrcIp, 8},  {bcmFieldQualifySrcMac, 12}, {bcmFieldQualifySrcIp6, 32},
            {bcmFieldQualifyInPort, 8}, {bcmFieldQualifyInPort, 2},  {bcmFieldQualifyInPort, 7}};
        const auto [qualifier, size] = sizes[pick(std::size(sizes))];
        std::string bytes;
        for (std::size_t at = 0; at < size; ++at) bytes += static_cast<char>(random_());
        set_qualifier("test", 0, entry, qualifier, {{bytes.data(), bytes.size()}});
        bcm_field_qualify_L4PortRangeCheck(0, entry, number(4), pick(2));
        bcm_field_action_add(0, entry, static_cast<bcm_field_action_t>(bcmFieldActionDrop),
                             number(2), number(2));
        bcm_mac_t mac = {2, 0, 0, 0, 0, 7};
        bcm_field_action_mac_add(0, entry, static_cast<bcm_field_action_t>(bcmFieldActionSrcMacNew),
                                 mac);
        bcm_field_action_ports_add(
            0, entry, static_cast<bcm_field_action_t>(bcmFieldActionRedirectPbmp), port_set());
        bcm_field_entry_prio_set(0, entry, pick(50));
        bcm_field_entry_stat_attach(0, entry, 1 + pick(6));
        bcm_field_entry_policer_attach(0, entry, pick(2), 1 + pick(6));
        if (pick(2) == 0) bcm_field_entry_install(0, entry);
        bcm_field_entry_enable_set(0, entry, pick(2));
    }
    void addresses() {
        auto row = noise<bcm_l2_addr_t>();
        row.vid = vlan();
        row.port = port();
        row.tgid = pick(4);
        bcm_l2_addr_add(0, &row);
        bcm_l2_age_timer_set(0, pick(300));
        bcm_l2_learn_limit_t limit{};
        limit.flags = 1U << pick(4);
        limit.vlan = vlan();
        limit.port = port();
        limit.trunk = pick(4);
        limit.limit = pick(50);
        bcm_l2_learn_limit_set(0, &limit);
    }
    void queues() {
        int map = 0;
        bcm_qos_map_create(0, 0, &map);
        bcm_qos_map_t one{};  // not noise: the bytes between its fields are part of a row's key
        one.pkt_pri = static_cast<uint8>(pick(8));
        one.dscp = pick(64);
        one.color = static_cast<bcm_color_t>(pick(3));
        bcm_qos_map_add(0, 0, &one, 1 + pick(3));
        bcm_qos_port_map_set(0, port(), 1 + pick(3), 1 + pick(3));
        bcm_cosq_mapping_set(0, pick(8), pick(8));
        bcm_cosq_port_mapping_set(0, port(), pick(16), pick(8));
        if (pick(6) == 0) bcm_cosq_config_set(0, 1 + pick(8));
        bcm_cosq_port_bandwidth_set(0, port(), pick(8), number(1000), number(1000), 0);
        const int weights[8] = {pick(4), pick(4), 3};
        bcm_cosq_port_sched_set(0, port_set(), pick(4), weights, pick(9));
    }

    std::mt19937 random_;
};

TEST(Running, MakesAnyStateAgain) {
    Directory directory;
    for (unsigned seed = 1; seed <= 6; ++seed) {
        start_unit();
        Chance chance(seed);
        for (int step = 0; step < 300; ++step) chance.step();
        int status = BCM_E_NONE;
        const SavedState before = save_state(0, status);
        const std::string lines = sdc(0, Text("running")).stdString();
        start_unit();
        const std::string file = directory.file_with("running", lines);
        EXPECT_EQ(sdc(0, Text("config apply " + file)).stdString(), "") << "seed " << seed;
        EXPECT_EQ(sdc(0, Text("running")).stdString(), lines) << "seed " << seed;
        EXPECT_EQ(sdc(0, Text("config diff " + file)).stdString(), "no difference\n");
        for (const StateDifference &one : compare_states(before, save_state(0, status)))
            for (const StateDifference::Field &field : one.fields)
                EXPECT_TRUE(is_measured(one.kind, field.name))
                    << "seed " << seed << ": " << one.kind << ' ' << one.key << ' ' << field.name;
    }
    standin_reset();
}

void count_access(int, soc_reg_t, soc_regaddrinfo_t *, uint32, uint32, uint32, void *user) {
    ++*static_cast<int *>(user);
}

void count_row(int, bcm_l2_addr_t *, int, void *user) { ++*static_cast<int *>(user); }

// Whoever watches hears of a trial nothing, and a fault meets what is done in earnest.
TEST(Running, ATrialReachesNobodyOutside) {
    start_unit();
    Directory directory;
    int accesses = 0;
    int rows = 0;
    soc_reg_snoop_register(0, *identifier_of(Identifier::kRegister, "CLP_XMAC_PAUSE_CTRL"), 2,
                           count_access, &accesses);
    bcm_l2_addr_register(0, count_row, &rows);
    const std::string file = directory.file_with(
        "file",
        "setreg CLP_XMAC_PAUSE_CTRL.xe1 3\nl2 put mac=02:00:00:00:00:01 vlan=1 port=1\n"
        "vlan create 5 ports=xe1\n");
    sdc(0, Text("fault call bcm_vlan_create -6 count=1"));
    EXPECT_EQ(sdc(0, Text("config apply " + file)).stdString(),
              "vlan create: BCM_E_FULL: the table is full\nconfig apply: stopped in line 3\n");
    EXPECT_EQ(accesses, 1);
    EXPECT_EQ(rows, 1);
    EXPECT_EQ(sdc(0, Text("vlan create 5 ports=xe1; fault")).stdString(),
              "nothing is made to fail\n");
    standin_reset();
}

// All lines are tried before one is run, and each bad one is told.
TEST(Running, AFileWithABadLineChangesNothing) {
    start_unit();
    Directory directory;
    const std::string bad = directory.file_with(
        "bad", "vlan create 10\nvlan creat 11\nl2 add mac=02:00:00:00:00:01 vlan=12 port=xe1\n");
    EXPECT_EQ(sdc(0, Text("config apply " + bad)).stdString(),
              bad +
                  ":2: vlan creat: show, create, destroy, add, remove or default; did you mean "
                  "'create'?\nconfig apply: nothing was changed\n");
    const std::string worse = directory.file_with(
        "worse",
        "vlan create 10\nl2 add mac=02:00:00:00:00:01 vlan=12 port=xe1\nstg destroy 9\n"
        "vlan create 12; vlan create 12\n");
    const std::string told = sdc(0, Text("config apply " + worse)).stdString();
    for (const char *line : {":2: l2 add: BCM_E_NOT_FOUND", ":3: stg destroy: BCM_E_NOT_FOUND",
                             ":4: vlan create: BCM_E_EXISTS", "nothing was changed\n"})
        EXPECT_NE(told.find(line), std::string::npos) << line << " in " << told;
    EXPECT_EQ(sdc(0, Text("running")).stdString(), "");
    EXPECT_EQ(sdc(0, Text("config apply /nowhere/x")).stdString(),
              "config apply: /nowhere/x: no such file\n");
    const std::string stray = directory.file_with("stray", "echo x\n");
    EXPECT_EQ(sdc(0, Text("config apply " + stray)).stdString(),
              stray +
                  ":1: echo: it makes no setting of the unit\n"
                  "config apply: nothing was changed\n");
    standin_reset();
}

}  // namespace
}  // namespace standin
