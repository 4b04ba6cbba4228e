// Ports, addresses, blocks, identifiers and port modes as text.
#include "standin/text/port_text.h"

#include "diag_fixture.h"
#include "sdk/constants.h"
#include "sdk/diag/format.h"
#include "sdk/diag/parse.h"
#include "sdk/diag/text.h"
#include "sdk/soc/reg.h"
#include "standin/base/output.h"
#include "standin/phy/mode_text.h"
#include "standin/text/address_text.h"
#include "standin/text/block_text.h"
#include "standin/text/identifier_text.h"

namespace standin {
namespace {

constexpr int kNoUnit = 63;  // never attached here: ports have no names

// A unit of two types, whose numbers and indexes differ, with a hole.
const PortNames kNames = {{0, "cpu"}, {1, "xe0"}, {2, "xe1"},  {3, "xe2"},
                          {5, "xe3"}, {6, "ce0"}, {7, "ce10"}, {40, "ge1"}};

PortSet ports(std::initializer_list<int> members) {
    PortSet set;
    for (int port : members) set.set(static_cast<std::size_t>(port));
    return set;
}

TEST(PortText, ReadsEveryItem) {
    struct Case {
        const char *text;
        PortSet set;
    };
    for (const Case &one :
         {Case{"7", ports({7})}, Case{"3-5", ports({3, 4, 5})}, Case{"4-4", ports({4})},
          Case{"xe1-xe1", ports({2})}, Case{"xe1", ports({2})},
          Case{"XE0-xe3", ports({1, 2, 3, 5})}, Case{"xe1-xe2", ports({2, 3})},
          Case{"ce", ports({6, 7})}, Case{"cpu", ports({0})},
          Case{"all", ports({0, 1, 2, 3, 5, 6, 7, 40})}, Case{"*,!xe,~cpu", ports({6, 7, 40})},
          Case{"none", {}}, Case{"0x22", ports({1, 5})}, Case{" 1 , 2  9", ports({1, 2, 9})},
          Case{"575", ports({575})}, Case{"!1,1", ports({1})}, Case{"0", ports({0})}}) {
        std::string fault;
        std::optional<PortSet> set = read_port_list(one.text, kNames, fault);
        ASSERT_TRUE(set) << one.text << ": " << fault;
        EXPECT_EQ(*set, one.set) << one.text;
    }
}

TEST(PortText, RefusesTheRest) {
    for (const char *text : {"",    " ",       ",",     "576",     "-1",      "5-3", "3-576",
                             "xe4", "xe0-ce0", "xe0-3", "xe3-xe0", "xe0-xe9", "zz",  "1-",
                             "-",   "!",       "0x",    "0xzz",    "1-2-3",   "1.5", "xe0-"}) {
        std::string fault;
        EXPECT_FALSE(read_port_list(text, kNames, fault)) << text;
        EXPECT_FALSE(fault.empty()) << text;
    }
    std::string fault;
    EXPECT_FALSE(read_port_list("all", {}, fault)) << "no unit, so nothing that could be all";
    EXPECT_FALSE(read_port_list("0x1" + std::string(144, '0'), {}, fault)) << "one bit too many";
    EXPECT_EQ(*read_port_list("0x8" + std::string(143, '0'), {}, fault), ports({575}));
}

TEST(PortText, ListsParseBack) {
    Random random;
    for (const PortNames &names : {kNames, PortNames()}) {
        for (int at = 0; at < 100; ++at) {
            PortSet set;
            if (at == 1) set.set();
            for (std::uint32_t left = at < 2 ? 0 : random.below(40); left > 0; --left)
                set.set(random.below(at % 2 == 0 ? 64 : kPortBits));
            std::string fault;
            std::string text = port_list_text(set, names);
            EXPECT_EQ(read_port_list(text, names, fault), set) << text << ": " << fault;
        }
    }
    EXPECT_EQ(port_list_text(ports({0, 1, 2, 3, 5, 6, 7, 40, 41, 42}), kNames),
              "cpu,xe0-xe2,xe3,ce0,ce10,ge1,41-42");
    EXPECT_EQ(port_list_text({}, kNames), "none");
}

TEST(PortText, BitmapsStayInTheirBuffer) {
    soc_pbmp_t pbmp{};
    ASSERT_EQ(parse_pbmp(kNoUnit, Text("1-4,9,17"), &pbmp), BCM_E_NONE);
    for (std::size_t size = 1; size <= 12; ++size) {
        Room room(size);
        EXPECT_EQ(format_pbmp(kNoUnit, room.data(), room.size(), pbmp), room.data());
        std::string whole = "1-4,9,17";
        if (size > whole.size()) {
            EXPECT_EQ(room.text(), whole);
            continue;
        }
        // A text that was cut must not be read as another set.
        EXPECT_EQ(room.text().size(), size - 1);
        EXPECT_NE(parse_pbmp_no_error(kNoUnit, room.data(), &pbmp), BCM_E_NONE) << room.text();
        ASSERT_EQ(parse_pbmp(kNoUnit, Text(whole), &pbmp), BCM_E_NONE);
    }
    EXPECT_EQ(format_pbmp(kNoUnit, nullptr, 5, pbmp), nullptr);
    Room room(1);
    EXPECT_EQ(format_bcm_pbmp(kNoUnit, room.data(), 0, pbmp), nullptr);
    EXPECT_EQ(format_bcm_pbmp(kNoUnit, room.data(), -1, pbmp), nullptr);
}

TEST(PortText, ParsersSayWhyUnlessAskedNotTo) {
    soc_pbmp_t pbmp{};
    pbmp.pbits[0] = 0x55;
    Capture capture;
    for (auto parse : {parse_pbmp, parse_pp_pbmp, parse_bcm_pbmp})
        EXPECT_EQ(parse(kNoUnit, Text("1,frog"), &pbmp), BCM_E_PARAM);
    EXPECT_EQ(capture.text(), "'frog' is no port\n'frog' is no port\n'frog' is no port\n");
    EXPECT_EQ(parse_pbmp_no_error(kNoUnit, Text("frog"), &pbmp), BCM_E_PARAM);
    EXPECT_EQ(parse_small_integers(kNoUnit, Text("xe1"), &pbmp), BCM_E_PARAM);
    EXPECT_EQ(parse_pbmp(kNoUnit, nullptr, &pbmp), BCM_E_PARAM);
    EXPECT_EQ(parse_pbmp(kNoUnit, Text("1"), nullptr), BCM_E_PARAM);
    EXPECT_EQ(capture.text().size(), 3 * std::string("'frog' is no port\n").size());
    EXPECT_EQ(pbmp.pbits[0], 0x55u) << "a refused text writes nothing";
}

TEST(PortText, SinglePorts) {
    int port = -1;
    EXPECT_EQ(parse_port(kNoUnit, Text("17"), &port), BCM_E_NONE);
    EXPECT_EQ(port, 17);
    EXPECT_EQ(parse_port(kNoUnit, Text("576"), &port), BCM_E_PARAM);
    EXPECT_EQ(parse_port(kNoUnit, nullptr, &port), BCM_E_PARAM);
    bcm_mod_port_t place{};
    EXPECT_EQ(parse_mod_port(kNoUnit, Text("3:17"), &place), BCM_E_NONE);
    EXPECT_EQ(place.mod, 3);
    EXPECT_EQ(place.port, 17);
    for (const char *text : {"", ":", "3:", ":4", "x:1", "1:2:3"})
        EXPECT_EQ(parse_mod_port(kNoUnit, Text(text), &place), BCM_E_PARAM) << text;
}

TEST(PortText, ModulePortsParseBack) {
    for (ModPort at : {ModPort{0, 2}, ModPort{0, 99}, ModPort{7, 2}, ModPort{-1, 5},
                       ModPort{0x7fffffff, -0x7fffffff}, ModPort{0, 5000}}) {
        std::optional<ModPort> back = read_mod_port(mod_port_text(at, kNames), kNames);
        ASSERT_TRUE(back) << mod_port_text(at, kNames);
        EXPECT_EQ(back->mod, at.mod);
        EXPECT_EQ(back->port, at.port);
    }
    EXPECT_EQ(mod_port_text({0, 2}, kNames), "0:xe1");
    EXPECT_STREQ(mod_port_name(kNoUnit, 4, 5), "4:5");
}

TEST(AddressText, GlobalPortsParseBack) {
    Random random;
    std::vector<std::int32_t> values = {0,          5,          0x4000005,       0x4000800,
                                        0xc000007,  0x10000000, 0x10400000,      0x6c00012c,
                                        0x6d000000, -1,         -0x7fffffff - 1, 0x7fffffff};
    for (int at = 0; at < 200; ++at) values.push_back(static_cast<std::int32_t>(random.word()));
    for (std::int32_t value : values) {
        Room room(32);
        format_gport(room.data(), value);
        bcm_port_t back = 0;
        EXPECT_EQ(parse_bcm_port(kNoUnit, room.data(), &back), BCM_E_NONE) << room.text();
        EXPECT_EQ(back, value) << room.text();
    }
    EXPECT_EQ(gport_text(0x4000005), "local.5");
    EXPECT_EQ(gport_text(0xc000007), "trunk.7");
    EXPECT_EQ(gport_text(0x10000000), "blackhole");
    EXPECT_EQ(gport_text(0x6c00012c), "sysport.300");
    for (const char *text : {"local.", "local.2048", "trunk.x", "local", "", "sysport.16777216"})
        EXPECT_FALSE(read_gport(text, kNames)) << text;
}

TEST(AddressText, IpAddressesParseBack) {
    Random random;
    for (int at = 0; at < 100; ++at) {
        std::uint32_t address = at == 0 ? 0 : at == 1 ? 0xffffffff : random.word();
        std::uint32_t mask = at % 3 == 0 ? random.word() : ~((1U << at % 32) - 1U);
        char text[IPADDR_STR_LEN];
        format_ipaddr(text, address);
        ip_addr_t back = 0;
        EXPECT_EQ(parse_ipaddr(text, &back), BCM_E_NONE) << text;
        EXPECT_EQ(back, address);
        Room room(32);
        format_ipaddr_mask(room.data(), address, mask);
        EXPECT_EQ(parse_ipaddr(room.data(), &back), BCM_E_NONE) << room.text();
        EXPECT_EQ(back, address) << room.text();
    }
    EXPECT_EQ(ip_mask_text(0x0a000000, 0xff000000), "10.0.0.0/8");
    EXPECT_EQ(ip_mask_text(0x0a000000, 0), "10.0.0.0/0");
    EXPECT_EQ(ip_mask_text(0x0a000001, 0xffffffff), "10.0.0.1/32");
    EXPECT_EQ(ip_mask_text(0x0a000000, 0xff00ff00), "10.0.0.0/255.0.255.0");
    EXPECT_EQ(*read_ip("0x0a000001"), 0x0a000001u);
    for (const char *text : {"", "1.2.3", "1.2.3.4.5", "256.0.0.1", "1..2.3", "a.b.c.d",
                             "1.2.3.4/33", "1.2.3.4/x", "1.2.3.4/", "4294967296", "1.2.3.0x4"}) {
        EXPECT_FALSE(read_ip(text)) << text;
    }
}

TEST(AddressText, MacAddresses) {
    MacBytes mac = {2, 0, 0xab, 0, 0, 0x0c};
    EXPECT_EQ(mac_text(mac.data()), "02:00:ab:00:00:0c");
    EXPECT_EQ(read_mac("02:00:ab:00:00:0c"), mac);
    EXPECT_EQ(read_mac("2-0-AB-0-0-C"), mac);
    for (const char *text :
         {"", "1:2:3:4:5", "1:2:3:4:5:6:7", "1:2:3:4:5:", "1:2:3:4:5:100", "g:0:0:0:0:0"}) {
        EXPECT_FALSE(read_mac(text)) << text;
    }
}

TEST(AddressText, Ranges) {
    struct Case {
        const char *text;
        int low;
        int high;
    };
    for (const Case &one : {Case{"5", 5, 5}, Case{"3-7", 3, 7}, Case{"all", -2, 9},
                            Case{"*", -2, 9}, Case{"min-max", -2, 9}, Case{"-2--1", -2, -1},
                            Case{"-1-4", -1, 4}, Case{"max", 9, 9}, Case{" 1 - 2 ", 1, 2}}) {
        int low = 77;
        int high = 77;
        EXPECT_EQ(parse_num_range(0, Text(one.text), &low, &high, -2, 9), BCM_E_NONE) << one.text;
        EXPECT_EQ(low, one.low) << one.text;
        EXPECT_EQ(high, one.high) << one.text;
    }
    int low = 77;
    int high = 77;
    for (const char *text : {"", "10", "7-3", "-3", "1-", "a-b", "1-2-3"})
        EXPECT_EQ(parse_num_range(0, Text(text), &low, &high, -2, 9), BCM_E_PARAM) << text;
    for (const char *text : {"all", "min", "max", "5"})
        EXPECT_EQ(parse_num_range(0, Text(text), &low, &high, 9, 3), BCM_E_PARAM) << text;
    EXPECT_EQ(parse_num_range(0, nullptr, &low, &high, 0, 1), BCM_E_PARAM);
    EXPECT_EQ(low, 77);
    EXPECT_EQ(diag_parse_range(Text("2"), Text("max"), &low, &high, 0, 9), BCM_E_NONE);
    EXPECT_EQ(high, 9);
    EXPECT_EQ(diag_parse_range(Text("2"), nullptr, &low, &high, 0, 9), BCM_E_NONE);
    EXPECT_EQ(high, 2);
    EXPECT_EQ(diag_parse_range(Text("2"), Text("3"), nullptr, &high, 0, 9), BCM_E_PARAM);
}

TEST(BlockText, Ranges) {
    struct Case {
        const char *text;
        const char *type;
        int low;
        int high;
    };
    for (const Case &one :
         {Case{"IHP", "IHP", 0, 15}, Case{"ihp1", "IHP", 1, 1}, Case{"IHP0-1", "IHP", 0, 1},
          Case{"IPST2-IPST3", "IPST", 2, 3}, Case{"0-1", "", 0, 1}, Case{"all", "", 0, 15}}) {
        std::optional<BlockRange> range = read_block_range(one.text);
        ASSERT_TRUE(range) << one.text;
        EXPECT_EQ(block_type_name(range->type), one.type);
        EXPECT_EQ(range->copies.low, one.low);
        EXPECT_EQ(range->copies.high, one.high);
    }
    for (const char *text : {"", "XYZ", "IHP0-IHB1", "IHP16", "IHP-3", "IHP1-", "1-0"})
        EXPECT_FALSE(read_block_range(text)) << text;
    int type = read_block_range("IHP")->type;
    const soc_block_type_t others[] = {type + 1, -1};
    const soc_block_type_t with_it[] = {type + 1, type, -1};
    int low = 0;
    int high = 0;
    EXPECT_EQ(parse_block_range(0, with_it, Text("IHP1"), &low, &high, nullptr), BCM_E_NONE);
    EXPECT_EQ(low, 1);
    EXPECT_EQ(parse_block_range(0, nullptr, Text("IHP1"), &low, &high, others), BCM_E_NOT_FOUND);
    EXPECT_EQ(parse_block_range(0, nullptr, nullptr, &low, &high, nullptr), BCM_E_PARAM);
}

TEST(IdentifierText, Memories) {
    soc_mem_t memory = 0;
    int copy = 0;
    unsigned int index = 9;
    EXPECT_EQ(parse_memory_name(0, &memory, Text("IHP_RESERVED_MC"), &copy, &index), BCM_E_NONE);
    EXPECT_EQ(memory, IHP_RESERVED_MCm);
    EXPECT_EQ(copy, kEveryCopy);
    EXPECT_EQ(index, 0u);
    EXPECT_EQ(parse_memory_name(0, &memory, Text("ihp_reserved_mcM[3].1"), &copy, &index),
              BCM_E_NONE);
    EXPECT_EQ(memory, IHP_RESERVED_MCm);
    EXPECT_EQ(copy, 1);
    EXPECT_EQ(index, 3u);
    EXPECT_EQ(parse_memory_name(0, &memory, Text("CGM_HAPM.*"), nullptr, nullptr), BCM_E_NONE);
    EXPECT_EQ(memory, CGM_HAPMm);
    for (const char *text :
         {"", "NO_SUCH_MEMORY", "IHP_RESERVED_MC[", "IHP_RESERVED_MC[]", "IHP_RESERVED_MC[x]",
          "IHP_RESERVED_MC.1-2", "IHP_RESERVED_MC.", "IHP_RESERVED_MC]", "-4"}) {
        EXPECT_EQ(parse_memory_name(0, &memory, Text(text), &copy, &index), BCM_E_PARAM) << text;
    }
    for (MemoryRef ref :
         {MemoryRef{IHP_RESERVED_MCm, kEveryCopy, 0}, MemoryRef{370, 2, 7}, MemoryRef{1, 0, 0}}) {
        std::optional<MemoryRef> back = read_memory_ref(memory_ref_text(ref));
        ASSERT_TRUE(back) << memory_ref_text(ref);
        EXPECT_EQ(back->memory, ref.memory);
        EXPECT_EQ(back->copy, ref.copy);
        EXPECT_EQ(back->array_index, ref.array_index);
    }
    EXPECT_EQ(parse_memory_index(0, IHP_RESERVED_MCm, Text("17")), 17);
    EXPECT_EQ(parse_memory_index(0, IHP_RESERVED_MCm, Text("min")), 0);
    int last = parse_memory_index(0, IHP_RESERVED_MCm, Text("max"));
    EXPECT_GT(last, 17);
    EXPECT_EQ(parse_memory_index(0, IHP_RESERVED_MCm, Text(std::to_string(last))), last);
    for (const std::string &text :
         {std::string("-1"), std::string(""), std::string("0-1"), std::to_string(last + 1)}) {
        EXPECT_EQ(parse_memory_index(0, IHP_RESERVED_MCm, Text(text)), -1) << text;
    }
    EXPECT_EQ(parse_memory_index(0, 1, Text("0")), -1) << "no such memory";
    EXPECT_EQ(parse_memory_array_index(0, IHP_RESERVED_MCm, Text("0")), 0u);
    EXPECT_EQ(parse_memory_array_index(0, IHP_RESERVED_MCm, nullptr), 0xffffffffu);
}

TEST(IdentifierText, Registers) {
    std::optional<RegisterRef> ref = read_register_ref("ECI_GLOBALF", kNames);
    ASSERT_TRUE(ref);
    EXPECT_EQ(ref->reg, ECI_GLOBALFr);
    EXPECT_EQ(ref->ports, std::vector<int>{kNoPort});
    ref = read_register_ref("eci_globalfR.xe0-xe1,7[2-3]", kNames);
    ASSERT_TRUE(ref);
    EXPECT_EQ(ref->ports, (std::vector<int>{1, 2, 7}));
    EXPECT_EQ(ref->index.low, 2);
    EXPECT_EQ(ref->index.high, 3);
    ref = read_register_ref("0x1a40", kNames);
    ASSERT_TRUE(ref);
    EXPECT_EQ(ref->address, 0x1a40u);
    for (const char *text : {"", "NO_SUCH", "ECI_GLOBALF.none", "ECI_GLOBALF[3-1]",
                             "ECI_GLOBALF.frog", "0x1_0000_0000", "ECI_GLOBALF[1"}) {
        EXPECT_FALSE(read_register_ref(text, kNames)) << text;
    }
    uint32 offset = 0;
    EXPECT_EQ(parse_cmic_regname(0, Text("cmic_config"), &offset), BCM_E_NONE);
    EXPECT_EQ(offset, 8u);
    EXPECT_EQ(parse_cmic_regname(0, Text("0x100"), &offset), BCM_E_NONE);
    for (const char *text : {"", "CMIC_NO_SUCH", "0x101", "0x40000"})
        EXPECT_EQ(parse_cmic_regname(0, Text(text), &offset), BCM_E_PARAM) << text;
    soc_regaddrlist_t list{};
    EXPECT_EQ(parse_symbolic_reference(0, nullptr, Text("ECI_GLOBALF")), BCM_E_PARAM);
    EXPECT_EQ(parse_symbolic_reference(0, &list, Text("ECI_GLOBALF")), BCM_E_PARAM);
    soc_regaddrinfo_t room{};
    list.ainfo = &room;
    EXPECT_EQ(parse_symbolic_reference(0, &list, Text("ECI_GLOBALF[0-9999]")), BCM_E_FULL);
    EXPECT_EQ(parse_symbolic_reference(0, &list, nullptr), BCM_E_PARAM);
}

TEST(ModeText, PortModesParseBack) {
    Random random;
    for (int at = 0; at < 100; ++at) {
        soc_port_mode_t mode = at < 32 ? 1U << at : at == 32 ? 0 : random.word();
        for (int abbreviated : {0, 1}) {
            Room room(400);
            format_port_mode(room.data(), room.size(), mode, abbreviated);
            soc_port_mode_t back = ~mode;
            EXPECT_EQ(parse_port_mode(room.data(), &back), BCM_E_NONE) << room.text();
            EXPECT_EQ(back, mode) << room.text();
        }
    }
    EXPECT_EQ(port_mode_text(1U << 9 | 1U << 16, false), "10000fd,pause_tx");
    EXPECT_EQ(port_mode_text(1U << 9 | 1U << 16, true), "10gf,ptx");
    soc_port_mode_t mode = 5;
    EXPECT_EQ(parse_port_mode(Text("fast"), &mode), BCM_E_PARAM);
    EXPECT_EQ(parse_port_mode(nullptr, &mode), BCM_E_PARAM);
    EXPECT_EQ(mode, 5u);
    Room narrow(6);
    format_port_mode(narrow.data(), narrow.size(), 0x3ff, 0);
    EXPECT_EQ(narrow.text(), "10...");
}

TEST(ModeText, AbilitiesByWord) {
    soc_port_ability_t ability{};
    ASSERT_EQ(parse_port_ability(Text("10000fd,10hd,ptx,lb_phy,cu,an"), &ability), BCM_E_NONE);
    const uint32 words[] = {1U << 9, 1U << 0, 1U << 16, 1U << 20, 1U << 23, 1U << 18, 0};
    for (std::size_t at = 0; at < std::size(words); ++at) EXPECT_EQ(ability.words[at], words[at]);
    EXPECT_EQ(parse_port_ability(Text("x"), &ability), BCM_E_PARAM);
    EXPECT_EQ(parse_port_ability(Text("an"), nullptr), BCM_E_PARAM);
}

TEST(ModeText, LongReachParsesBack) {
    for (int value :
         {0, 1, SOC_PHY_CONTROL_LONGREACH_ABILITY_100M_4PAIR | 2, 0x7fff, 0x12345678, -1}) {
        Room room(300);
        auto ability = static_cast<soc_phy_control_longreach_ability_t>(value);
        format_phy_control_longreach_ability(room.data(), room.size(), ability);
        soc_phy_control_longreach_ability_t back{};
        EXPECT_EQ(parse_phy_control_longreach_ability(room.data(), &back), BCM_E_NONE);
        EXPECT_EQ(back, value) << room.text();
    }
    EXPECT_EQ(read_long_reach("SOC_PHY_CONTROL_LONGREACH_ABILITY_PAUSE_TX"),
              SOC_PHY_CONTROL_LONGREACH_ABILITY_PAUSE_TX);
}

}  // namespace
}  // namespace standin
