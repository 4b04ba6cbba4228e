// Faults set through the configuration store.
#include "chip_fixture.h"
#include "helper/trace.h"
#include "sdk/bcm/l2.h"
#include "sdk/bcm/port.h"
#include "sdk/bcm/vlan.h"
#include "sdk/sal/config.h"
#include "standin/base/call_record.h"
#include "standin/base/config_store.h"
#include "standin/base/faults.h"
#include "standin/base/log.h"

namespace standin {
namespace {

TEST_F(Chip, FaultAnswersTheNextCallsAndCountsDown) {
    ASSERT_TRUE(config_set("fault.bcm_vlan_create", "status:-6,count:2"));
    EXPECT_EQ(bcm_vlan_create(0, 10), BCM_E_FULL);
    EXPECT_EQ(config_get("fault.bcm_vlan_create").value_or(""), "status:-6,count:1");
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

TEST_F(Chip, AFaultIsRefusedWithWhatIsNotUnderstood) {
    struct {
        const char *name;
        const char *value;
        const char *fault;
    } const cases[] = {
        {"bcm_vlan_create", "", "no fault is ''"},
        {"bcm_vlan_create", "status", "no fault is 'status'"},
        {"bcm_vlan_create", "status:", "no fault is 'status:'"},
        {"bcm_vlan_create", "status:x", "no fault is 'status:x'"},
        {"bcm_vlan_create", "count:0", "no fault is 'count:0'"},
        {"bcm_vlan_create", "status:-6,count:-1", "no fault is 'count:-1'"},
        {"bcm_vlan_create", "status:99999999999", "no fault is 'status:99999999999'"},
        {"bcm_vlan_create", "speed:1,status:-6", "no fault is 'speed:1': there are status:<n>, "},
        {"bcm_vlan_create", "status:-6;count:1", "no fault is 'status:-6;count:1'"},
        {"bcm_vlan_create", "after:-1", "no fault is 'after:-1'"},
        {"bcm_vlan_create", "status:-6,arg.port:1", "no fault is 'arg.port:1'"},
        {"bcm_vlan_creat", "status:-6", "there is no function 'bcm_vlan_creat'"},
        {"callback.bcm_vlan_creat", "status:-6", "there is no function 'bcm_vlan_creat'"},
        {"table.vlan", "many", "no limit is 'many': there are full, <entries>"},
        {"table.vlan", "-1", "no limit is '-1'"},
        {"table.vlan", "0", "table vlan holds 1 entries"},
        {"table.vlans", "5", "there is no table 'vlans'"},
    };
    log_level_set(kLayerSal, kSourceConfig, kSeverityOff);
    for (const auto &one : cases) {
        const std::string name = std::string("fault.") + one.name;
        std::string fault;
        EXPECT_FALSE(config_setting_ok(name, one.value, fault)) << one.value;
        EXPECT_TRUE(fault.starts_with(one.fault)) << fault;
        std::string given = name;
        std::string value = one.value;
        EXPECT_EQ(sal_config_set(given.data(), value.data()), BCM_E_PARAM);
        EXPECT_EQ(config_get(name), std::nullopt);
    }
    log_level_set(kLayerSal, kSourceConfig, kSeverityWarning);
}

// Which calls of one function are met, of many with different units and arguments.
TEST_F(Chip, FaultMeetsTheCallsThatItIsAbout) {
    ASSERT_EQ(addOmbraDevice(0, 2, 0, 0), 1);
    ASSERT_EQ(soc_init(1), BCM_E_NONE);
    const auto calls = [](const char *value) {
        EXPECT_TRUE(config_set("fault.bcm_port_enable_set", value));
        std::string met;
        for (int call = 0; call < 8; ++call)
            met += bcm_port_enable_set(call / 4, 1 + call % 4, 1) == BCM_E_NONE ? '.' : 'x';
        config_remove("fault.bcm_port_enable_set");
        return met;
    };
    EXPECT_EQ(calls("status:-1"), "xxxxxxxx");
    EXPECT_EQ(calls("status:-1,unit:1"), "....xxxx");
    EXPECT_EQ(calls("status:-1,after:3,count:2"), "...xx...");
    EXPECT_EQ(calls("status:-1,arg.port:2"), ".x...x..");
    EXPECT_EQ(calls("status:-1,arg.port:2,arg.enable:1,unit:0"), ".x......");
    EXPECT_EQ(calls("status:-1,arg.port:3,after:1"), "......x.") << "others do not count";
    EXPECT_EQ(calls("status:-1,unit:2"), "........");
    EXPECT_EQ(faults_never_met(),
              std::vector<std::string>{"bcm_port_enable_set (status:-1,unit:2)"});
    forget_faults();
    EXPECT_TRUE(faults_never_met().empty());
}

TEST_F(Chip, FaultAnswersForACallback) {
    ASSERT_EQ(bcm_vlan_create(0, 10), BCM_E_NONE);
    for (std::uint32_t i = 0; i < 3; ++i)
        ASSERT_EQ(standin_l2_learn(0, Mac(i).data(), 10, 3), BCM_E_NONE);
    config_set("fault.callback.bcm_l2_traverse", "status:-9,after:1");
    int seen = 0;
    const auto visit = [](int, bcm_l2_addr_t *, void *count) {
        ++*static_cast<int *>(count);
        return 0;
    };
    EXPECT_EQ(bcm_l2_traverse(0, visit, &seen), BCM_E_TIMEOUT);
    EXPECT_EQ(seen, 1);
}

TEST_F(Chip, CallsAreRecordedWithWhoAnswered) {
    record_calls(true);
    EXPECT_EQ(bcm_vlan_create(0, 10), BCM_E_NONE);
    EXPECT_EQ(bcm_l2_addr_delete(0, Mac(7).data(), 10), BCM_E_NOT_FOUND);
    config_set("fault.bcm_vlan_create", "status:-6");
    EXPECT_EQ(bcm_vlan_create(0, 11), BCM_E_FULL);
    record_calls(false);
    config_remove("fault.bcm_vlan_create");
    EXPECT_EQ(bcm_vlan_create(0, 12), BCM_E_NONE);
    std::size_t left_out = 0;
    std::string text;
    for (const RecordedCall &one : recorded_calls(left_out)) {
        text += std::string(one.row->name) + " " + one.layer + " " + std::to_string(one.result);
        for (const auto &argument : one.arguments)
            text += argument.value.index() == 1 ? " " + std::get<std::string>(argument.value)
                                                : " " + std::to_string(std::get<0>(argument.value));
        text += "\n";
    }
    EXPECT_EQ(text,
              "bcm_vlan_create chapters 0 0 10\n"
              "bcm_l2_addr_delete chapters -7 0 02:00:00:00:00:07 10\n"
              "bcm_vlan_create fault -6 0 11\n");
    EXPECT_TRUE(gates_shut());
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
