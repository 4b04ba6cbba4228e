// The rule engine.
#include <cstring>

#include "chip_fixture.h"
#include "sdk/bcm/field.h"
#include "sdk/bcm/field_qualify.h"
#include "sdk/bcm/field_qualify_get.h"
#include "sdk/bcm/policer.h"

namespace standin {
namespace {

// A group, 1, that qualifies the ids given, with one entry, 1.
struct Rules : Chip {
    void SetUp() override {
        Chip::SetUp();
        for (const int id :
             {bcmFieldQualifyDrop, bcmFieldQualifySrcMac, bcmFieldQualifySrcIp6,
              bcmFieldQualifyInPorts, bcmFieldQualifySrcPort, bcmFieldQualifyInVPort}) {
            qualifiers.w[id / 32] |= 1u << (id % 32);
        }
        ASSERT_EQ(bcm_field_group_create(0, qualifiers, 3, &group), BCM_E_NONE);
        ASSERT_EQ(bcm_field_entry_create(0, group, &entry), BCM_E_NONE);
    }

    bcm_field_qset_t qualifiers{};
    bcm_field_group_t group = 0;
    bcm_field_entry_t entry = 0;
};

TEST_F(Rules, QualifiersOfEachShapeReadBack) {
    std::uint8_t data8 = 0, mask8 = 0;
    EXPECT_EQ(bcm_field_qualify_Drop_get(0, entry, &data8, &mask8), BCM_E_NOT_FOUND);
    EXPECT_EQ(bcm_field_qualify_Drop(0, entry, 1, 3), BCM_E_NONE);
    EXPECT_EQ(bcm_field_qualify_Drop_get(0, entry, &data8, &mask8), BCM_E_NONE);
    EXPECT_EQ(data8, 1);
    EXPECT_EQ(mask8, 3);
    EXPECT_EQ(bcm_field_qualify_Drop_get(0, entry, &data8, nullptr), BCM_E_PARAM);

    bcm_mac_t mac{};
    bcm_mac_t mask{};
    EXPECT_EQ(bcm_field_qualify_SrcMac(0, entry, Mac(5).data(), Mac(0).data()), BCM_E_NONE);
    EXPECT_EQ(bcm_field_qualify_SrcMac(0, entry, nullptr, Mac(0).data()), BCM_E_PARAM);
    EXPECT_EQ(bcm_field_qualify_SrcMac_get(0, entry, &mac, &mask), BCM_E_NONE);
    EXPECT_EQ(std::memcmp(mac, Mac(5).data(), 6), 0);

    bcm_ip6_t ip{}, ip_mask{};
    unsigned char address[16] = {0x20, 1};
    unsigned char all[16];
    std::memset(all, 0xff, sizeof all);
    EXPECT_EQ(bcm_field_qualify_SrcIp6(0, entry, address, all), BCM_E_NONE);
    EXPECT_EQ(bcm_field_qualify_SrcIp6_get(0, entry, &ip, &ip_mask), BCM_E_NONE);
    EXPECT_EQ(std::memcmp(ip, address, 16), 0);
    EXPECT_EQ(ip_mask[15], 0xff);

    bcm_pbmp_t in{}, in_mask{};
    EXPECT_EQ(bcm_field_qualify_InPorts(0, entry, ports({4}), ports({4, 5})), BCM_E_NONE);
    EXPECT_EQ(bcm_field_qualify_InPorts_get(0, entry, &in, &in_mask), BCM_E_NONE);
    EXPECT_EQ(in, ports({4}));
    EXPECT_EQ(in_mask, ports({4, 5}));

    int values[4] = {};
    EXPECT_EQ(bcm_field_qualify_SrcPort(0, entry, 1, 2, 3, 4), BCM_E_NONE);
    EXPECT_EQ(bcm_field_qualify_SrcPort_get(0, entry, values, values + 1, values + 2, values + 3),
              BCM_E_NONE);
    EXPECT_EQ(values[2], 3);
}

TEST_F(Rules, QualifierOutsideTheSetIsRefused) {
    EXPECT_EQ(bcm_field_qualify_DSCP(0, entry, 1, 1), BCM_E_PARAM);
    EXPECT_EQ(bcm_field_qualify_Drop(0, entry + 1, 1, 1), BCM_E_NOT_FOUND);
    EXPECT_EQ(bcm_field_group_set(0, group, {}), BCM_E_BUSY) << "entries use the old set";
    EXPECT_EQ(bcm_field_qualify_Drop(0, entry, 1, 1), BCM_E_NONE);
    EXPECT_EQ(
        bcm_field_qualifier_delete(0, entry, static_cast<bcm_field_qualify_t>(bcmFieldQualifyDrop)),
        BCM_E_NONE);
    std::uint8_t data = 0, mask = 0;
    EXPECT_EQ(bcm_field_qualify_Drop_get(0, entry, &data, &mask), BCM_E_NOT_FOUND);
}

TEST_F(Rules, WidthsOfOneQualifierAreApart) {
    EXPECT_EQ(bcm_field_qualify_InVPort32(0, entry, 0x12345678, 0xffffffff), BCM_E_NONE);
    std::uint32_t data = 0, mask = 0;
    EXPECT_EQ(bcm_field_qualify_InVPort32_get(0, entry, &data, &mask), BCM_E_NONE);
    EXPECT_EQ(data, 0x12345678u);
}

TEST_F(Rules, GroupStaysWhileItHasSomething) {
    EXPECT_EQ(bcm_field_group_destroy(0, group), BCM_E_BUSY);
    EXPECT_EQ(bcm_field_entry_destroy(0, entry), BCM_E_NONE);
    EXPECT_EQ(bcm_field_entry_destroy(0, entry), BCM_E_NOT_FOUND);
    EXPECT_EQ(bcm_field_group_destroy(0, group), BCM_E_NONE);
    EXPECT_EQ(bcm_field_entry_create(0, group, &entry), BCM_E_NOT_FOUND);
    EXPECT_EQ(bcm_field_group_create(0, qualifiers, -5, &group), BCM_E_PARAM);
    EXPECT_EQ(bcm_field_group_create(0, qualifiers, BCM_FIELD_GROUP_PRIO_ANY, &group), BCM_E_NONE);
    EXPECT_EQ(bcm_field_group_create_id(0, qualifiers, 0, group), BCM_E_EXISTS);
    EXPECT_EQ(bcm_field_group_create(0, qualifiers, 0, nullptr), BCM_E_PARAM);
}

TEST_F(Rules, ActionsAreOneOfAKind) {
    const auto drop = static_cast<bcm_field_action_t>(1);
    const auto other = static_cast<bcm_field_action_t>(2);
    std::uint32_t first = 0, second = 0;
    EXPECT_EQ(bcm_field_action_add(0, entry, drop, 7, 8), BCM_E_NONE);
    EXPECT_EQ(bcm_field_action_add(0, entry, drop, 9, 9), BCM_E_EXISTS);
    EXPECT_EQ(bcm_field_action_get(0, entry, drop, &first, &second), BCM_E_NONE);
    EXPECT_EQ(first, 7u);
    EXPECT_EQ(second, 8u);
    EXPECT_EQ(bcm_field_action_delete(0, entry, drop, 7, 9), BCM_E_NOT_FOUND);
    EXPECT_EQ(bcm_field_action_delete(0, entry, drop, 7, 8), BCM_E_NONE);
    EXPECT_EQ(
        bcm_field_action_add(0, entry, static_cast<bcm_field_action_t>(bcmFieldActionCount), 0, 0),
        BCM_E_PARAM);
    EXPECT_EQ(bcm_field_action_mac_add(0, entry, drop, Mac(3).data()), BCM_E_NONE);
    bcm_mac_t mac{};
    bcm_pbmp_t set{};
    EXPECT_EQ(bcm_field_action_mac_get(0, entry, drop, &mac), BCM_E_NONE);
    EXPECT_EQ(mac[5], 3);
    EXPECT_EQ(bcm_field_action_ports_get(0, entry, drop, &set), BCM_E_NOT_FOUND);

    bcm_field_aset_t actions{};
    actions.w[0] = 1u << 1;
    EXPECT_EQ(bcm_field_group_action_set(0, group, actions), BCM_E_NONE);
    EXPECT_EQ(bcm_field_action_add(0, entry, other, 0, 0), BCM_E_PARAM) << "not in the set";
}

TEST_F(Rules, CountersAndPolicersAreHeldByEntries) {
    bcm_field_stat_t kinds[] = {bcm_field_stat_t{bcmFieldStatBytes},
                                bcm_field_stat_t{bcmFieldStatPackets}};
    int stat = 0;
    EXPECT_EQ(bcm_field_stat_create(0, group, 2, kinds, &stat), BCM_E_NONE);
    EXPECT_EQ(bcm_field_entry_stat_attach(0, entry, stat), BCM_E_NONE);
    EXPECT_EQ(bcm_field_entry_stat_attach(0, entry, stat), BCM_E_EXISTS);
    EXPECT_EQ(standin_field_stat_hit(0, stat, 2, 300), BCM_E_NONE);
    std::uint64_t values[2] = {};
    EXPECT_EQ(bcm_field_stat_multi_get(0, stat, 2, kinds, values), BCM_E_NONE);
    EXPECT_EQ(values[0], 300u);
    EXPECT_EQ(values[1], 2u);
    EXPECT_EQ(bcm_field_stat_get(0, stat, bcm_field_stat_t{bcmFieldStatRedBytes}, values),
              BCM_E_NOT_FOUND);

    bcm_policer_config_t config{};
    bcm_policer_t policer = 0;
    bcm_policer_create(0, &config, &policer);
    EXPECT_EQ(bcm_field_entry_policer_attach(0, entry, 0, policer), BCM_E_NONE);
    bcm_field_entry_t copy = 0;
    EXPECT_EQ(bcm_field_entry_copy(0, entry, &copy), BCM_E_NONE);
    EXPECT_EQ(bcm_field_entry_destroy(0, entry), BCM_E_NONE);
    EXPECT_EQ(bcm_field_stat_destroy(0, stat), BCM_E_BUSY) << "the copy holds it";
    EXPECT_EQ(bcm_policer_destroy(0, policer), BCM_E_BUSY);
    EXPECT_EQ(bcm_field_group_flush(0, group), BCM_E_NONE);
    EXPECT_EQ(bcm_field_stat_destroy(0, stat), BCM_E_NONE);
    EXPECT_EQ(bcm_policer_destroy(0, policer), BCM_E_NONE);
}

}  // namespace
}  // namespace standin
