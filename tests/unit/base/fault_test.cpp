// Faults set through the configuration store.
#include "chip_fixture.h"
#include "helper/trace.h"
#include "sdk/bcm/l2.h"
#include "sdk/bcm/vlan.h"
#include "sdk/sal/config.h"
#include "standin/base/config_store.h"
#include "standin/base/faults.h"
#include "standin/base/log.h"

namespace standin {
namespace {

TEST_F(Chip, FaultAnswersTheNextCallsAndCountsDown) {
    ASSERT_TRUE(config_set("fault.bcm_vlan_create", "status:-6,count:2"));
    EXPECT_EQ(bcm_vlan_create(0, 10), BCM_E_FULL);
    EXPECT_EQ(config_get("fault.bcm_vlan_create").value_or(""), "status:-6,count:1,delay_us:0");
    EXPECT_EQ(bcm_vlan_destroy(0, 10), BCM_E_NOT_FOUND) << "another call is not met";
    EXPECT_EQ(bcm_vlan_create(0, 10), BCM_E_FULL);
    EXPECT_EQ(config_get("fault.bcm_vlan_create"), std::nullopt);
    EXPECT_EQ(bcm_vlan_create(0, 10), BCM_E_NONE);

    config_set("fault.bcm_vlan_create", "status:-1");
    for (int i = 0; i < 3; ++i) EXPECT_EQ(bcm_vlan_create(0, 11), BCM_E_INTERNAL);
    config_remove("fault.bcm_vlan_create");
    EXPECT_EQ(bcm_vlan_create(0, 11), BCM_E_NONE);
    EXPECT_FALSE(faults_armed());
}

TEST_F(Chip, FaultMeetsCallsOfEveryForm) {
    config_set("fault.soc_deinit", "status:-9");
    EXPECT_EQ(soc_deinit(0), BCM_E_TIMEOUT);
    config_set("fault.bcm_l2_traverse", "status:-9");
    const auto visit = [](int, bcm_l2_addr_t *, void *) { return 0; };
    EXPECT_EQ(bcm_l2_traverse(0, visit, nullptr), BCM_E_TIMEOUT);
    config_set("fault.standbySupIs", "status:-1");
    standbySupIs(true);
    EXPECT_EQ(standin_platform_value("standby_sup"), 0);
    config_set("fault.bcm_vlan_create", "delay_us:1000,count:1");
    EXPECT_EQ(bcm_vlan_create(0, 10), BCM_E_NONE) << "only slower";
}

TEST_F(Chip, AFaultIsRefusedWithTheWordThatIsNotUnderstood) {
    struct {
        const char *name;
        const char *value;
        const char *word;
    } const cases[] = {
        {"bcm_vlan_create", "", ""},
        {"bcm_vlan_create", "status", "status"},
        {"bcm_vlan_create", "status:", "status:"},
        {"bcm_vlan_create", "status:x", "status:x"},
        {"bcm_vlan_create", "count:0", "count:0"},
        {"bcm_vlan_create", "status:-6,count:-1", "count:-1"},
        {"bcm_vlan_create", "status:99999999999", "status:99999999999"},
        {"bcm_vlan_create", "speed:1,status:-6", "speed:1"},
        {"bcm_vlan_create", "status:-6;count:1", "status:-6;count:1"},
        {"table.vlan", "many", "many"},
        {"table.vlan", "-1", "-1"},
    };
    log_level_set(kLayerSal, kSourceConfig, kSeverityOff);
    for (const auto &one : cases) {
        const std::string name = std::string("fault.") + one.name;
        std::string fault;
        EXPECT_FALSE(config_setting_ok(name, one.value, fault)) << one.value;
        EXPECT_EQ(fault, std::string("no fault is '") + one.word + '\'');
        std::string given = name;
        std::string value = one.value;
        EXPECT_EQ(sal_config_set(given.data(), value.data()), BCM_E_PARAM);
        EXPECT_EQ(config_get(name), std::nullopt);
    }
    log_level_set(kLayerSal, kSourceConfig, kSeverityWarning);
}

TEST_F(Chip, FaultsMeetTheTraceAsWell) {
    config_set("fault.captureTrace", "status:-1");
    captureTrace(true);
    EXPECT_FALSE(trace_capture());
    config_clear();
}

TEST_F(Chip, TableFullAsTold) {
    config_set("fault.table.vlan", "full");
    EXPECT_EQ(bcm_vlan_create(0, 10), BCM_E_FULL);
    config_set("fault.table.vlan", "2");
    EXPECT_EQ(bcm_vlan_create(0, 10), BCM_E_NONE);
    EXPECT_EQ(bcm_vlan_create(0, 11), BCM_E_FULL) << "the default VLAN counts";
    config_remove("fault.table.vlan");
    EXPECT_EQ(bcm_vlan_create(0, 11), BCM_E_NONE);
}

}  // namespace
}  // namespace standin
