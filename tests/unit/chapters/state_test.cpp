// The state of a unit saved, loaded and compared by objects.
#include "standin/model/state.h"
#include "chip_fixture.h"
#include "sdk/bcm/l2.h"
#include "sdk/bcm/l3.h"
#include "sdk/bcm/port.h"
#include "sdk/bcm/vlan.h"
#include "standin/model/layouts.h"
#include "standin/model/switch.h"

namespace standin {
namespace {

constexpr auto kControl = static_cast<bcm_vlan_control_t>(bcmVlanDropUnknown);

SavedState saved() {
    int status = BCM_E_NONE;
    return save_state(0, status);
}

TEST_F(Chip, AStateIsLoadedAndComparedObjectByObject) {
    ASSERT_EQ(bcm_vlan_create(0, 100), BCM_E_NONE);
    ASSERT_EQ(bcm_vlan_control_set(0, kControl, 1), BCM_E_NONE);
    ASSERT_EQ(soc_deinit(0), BCM_E_NONE);
    int status = BCM_E_NONE;
    EXPECT_EQ(save_state(0, status), nullptr);
    EXPECT_EQ(status, BCM_E_INIT);
    ASSERT_EQ(soc_init(0), BCM_E_NONE);
    const SavedState first = saved();
    const std::uint64_t digest = state_digest(0);
    EXPECT_TRUE(compare_states(first, first_state()).empty());

    ASSERT_EQ(bcm_vlan_create(0, 100), BCM_E_NONE);
    ASSERT_EQ(bcm_vlan_control_set(0, kControl, 1), BCM_E_NONE);
    ASSERT_EQ(bcm_port_enable_set(0, 5, 0), BCM_E_NONE);
    bcm_l3_intf_t intf{};
    intf.l3a_vid = 100;
    ASSERT_EQ(bcm_l3_intf_create(0, &intf), BCM_E_NONE);
    EXPECT_NE(state_digest(0), digest);
    const auto found = compare_states(first, saved());
    std::string text;
    for (const StateDifference &one : found)
        text += one.kind + " " + one.key + (one.was_there ? " changed" : " new") + "\n";
    EXPECT_EQ(text, "vlan 100 new\nport 5 changed\nl3_intf 1 new\nbcm_vlan_control " +
                        hex_text(&kControl, 4) + " new\n");
    ASSERT_EQ(found[1].fields.size(), 1u);
    EXPECT_EQ(found[1].fields[0].name, "enable");
    EXPECT_EQ(found[1].fields[0].is, StateValue(std::int64_t{0}));
    EXPECT_EQ(found[2].fields.back().name, "l3a_vid");
    EXPECT_EQ(compare_states(saved(), first).front().kind, "bcm_vlan_control") << "users go first";

    ASSERT_EQ(load_state(0, first), BCM_E_NONE);
    EXPECT_EQ(state_digest(0), digest);
    EXPECT_EQ(bcm_vlan_destroy(0, 100), BCM_E_NOT_FOUND);
    EXPECT_EQ(load_state(1, first), BCM_E_UNIT);
}

// What is loaded has its references, and a watcher stays one.
TEST_F(Chip, ALoadedStateBehavesAsTheSaved) {
    ASSERT_EQ(bcm_vlan_create(0, 100), BCM_E_NONE);
    bcm_l3_intf_t intf{};
    intf.l3a_vid = 100;
    ASSERT_EQ(bcm_l3_intf_create(0, &intf), BCM_E_NONE);
    const SavedState then = saved();
    ASSERT_EQ(bcm_l3_intf_delete(0, &intf), BCM_E_NONE);
    ASSERT_EQ(bcm_vlan_destroy(0, 100), BCM_E_NONE);
    int heard = 0;
    ASSERT_EQ(bcm_l2_addr_register(
                  0, [](int, bcm_l2_addr_t *, int, void *count) { ++*static_cast<int *>(count); },
                  &heard),
              BCM_E_NONE);
    ASSERT_EQ(load_state(0, then), BCM_E_NONE);
    EXPECT_EQ(bcm_vlan_destroy(0, 100), BCM_E_BUSY);
    EXPECT_EQ(standin_l2_learn(0, Mac(1).data(), 100, 3), BCM_E_NONE);
    EXPECT_EQ(heard, 1);
}

// Every field of every structure lies inside it, and none in another.
TEST(Layouts, FieldsDoNotOverlap) {
    const auto check = [](const char *name, std::span<const LayoutField> fields) {
        std::uint32_t end = 0;
        for (const LayoutField &field : fields) {
            EXPECT_GE(field.offset, end) << name << "." << field.name;
            end = field.offset + field.size * field.count;
        }
    };
    for (const StructLayout &one : struct_layouts) check(one.name, one.fields);
    for (const FamilyLayout &one : family_layouts) check(one.family, one.fields);
    EXPECT_EQ(struct_layout("bcm_l2_addr_t")->fields.size(), 19u);
    EXPECT_EQ(struct_layout("bcm_l2_addr"), nullptr);
}

}  // namespace
}  // namespace standin
