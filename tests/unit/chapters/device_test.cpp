// Devices, and the order in which chips and layers start and stop.
#include <functional>

#include "chip_fixture.h"
#include "helper/shadow.h"
#include "sdk/bcm/init.h"
#include "sdk/bcm/stk.h"
#include "sdk/bcm/vlan.h"
#include "sdk/diag/appl.h"
#include "sdk/soc/phyctrl.h"
#include "sdk/soc/reg.h"
#include "sdk/variables.h"

namespace standin {
namespace {

struct Devices : ::testing::Test {
    void SetUp() override { standin_reset(); }
    void TearDown() override { standin_reset(); }
};

TEST_F(Devices, AddressIsTheIdentity) {
    EXPECT_EQ(addOmbraDevice(0, 1, 0, 0), 0);
    EXPECT_EQ(addOmbraFapDeviceUnmapped(0, 2, 0, 0, 1), 1);
    EXPECT_EQ(addOmbraFeDeviceUnmapped(0, 1, 0, 0, 0), BCM_E_EXISTS);
    EXPECT_EQ(getNumDevices(), 2);
    EXPECT_NE(getDevId(0), getDevId(1));
    EXPECT_EQ(getDevId(2), 0xffffffffu);

    rewireOmbraDeviceNoRemap(0, 0, 2, 0, 0);  // taken, so nothing moves
    EXPECT_EQ(addOmbraDevice(0, 1, 0, 0), BCM_E_EXISTS);
    rewireOmbraDeviceRemap(0, 0, 9, 0, 0);
    EXPECT_EQ(addOmbraDevice(0, 1, 0, 0), 2);
}

TEST_F(Devices, TableHoldsSixtySix) {
    for (int i = 0; i < 66; ++i) {
        ASSERT_EQ(addOmbraDevice(0, static_cast<std::uint8_t>(i), 0, 0), i);
        ASSERT_NE(soc_control[i], nullptr);
    }
    EXPECT_EQ(addOmbraDevice(1, 0, 0, 0), BCM_E_FULL);
    EXPECT_EQ(bcm_unit_max(), 65);
    standin_reset();
    EXPECT_EQ(soc_control[65], nullptr);
}

TEST_F(Devices, StandbyTellsWhatItWasTold) {
    ASSERT_EQ(addOmbraDevice(0, 1, 0, 0), 0);
    const std::uint32_t own = getDevId(0);
    standbyDevIdIs(0, 7);
    standbyRevIdIs(0, 8);
    standbyNumDevicesIs(5);
    standbyDevIdIs(-1, 7);  // no unit: nobody is harmed
    standbyRevIdIs(66, 7);
    EXPECT_EQ(getDevId(0), own);
    EXPECT_EQ(getNumDevices(), 1);
    standbySupIs(true);
    EXPECT_EQ(getDevId(0), 7u);
    EXPECT_EQ(getDevRev(0), 8u);
    EXPECT_EQ(getNumDevices(), 5);
}

// Each step: a call, and what it has to answer at this point.
struct Step {
    const char *what;
    std::function<int()> call;
    int answer;
};

void run(const std::vector<Step> &steps) {
    for (std::size_t i = 0; i < steps.size(); ++i)
        EXPECT_EQ(steps[i].call(), steps[i].answer) << "step " << i << ": " << steps[i].what;
}

TEST_F(Devices, EveryOrderOfStartHasItsStatus) {
    appl_dcmn_init_param_t param{};
    const auto vlan = [] { return bcm_vlan_create(0, 10); };
    run({
        {"no device", [] { return soc_init(0); }, BCM_E_UNIT},
        {"no device", vlan, BCM_E_UNIT},
        {"add", [] { return addOmbraFapDeviceUnmapped(0, 1, 0, 0, 0); }, 0},
        {"not mapped", [] { return soc_init(0); }, BCM_E_INIT},
        {"not started", vlan, BCM_E_INIT},
        {"misc before reset", [] { return soc_misc_init(0); }, BCM_E_INIT},
        {"deinit before init", [] { return soc_deinit(0); }, BCM_E_INIT},
        {"map", [] { return mapOmbraDevice(0), 0; }, 0},
        {"reset", [] { return soc_reset_init(0); }, BCM_E_NONE},
        {"half started", vlan, BCM_E_INIT},
        {"layer on half a chip", [] { return system_init(0); }, BCM_E_INIT},
        {"misc", [] { return soc_misc_init(0); }, BCM_E_NONE},
        {"ready", vlan, BCM_E_NONE},
        {"system", [] { return system_init(0); }, BCM_E_NONE},
        {"system twice", [] { return system_init(0); }, BCM_E_EXISTS},
        {"application, null", [] { return appl_dcmn_init(0, nullptr); }, BCM_E_PARAM},
        {"application", [&] { return appl_dcmn_init(0, &param); }, BCM_E_NONE},
        {"queueing before api", [] { return appl_dpp_cosq_diag_init(0); }, BCM_E_INIT},
        {"api", [] { return appl_dpp_bcm_diag_init_py(0, 1, 0, 0); }, BCM_E_NONE},
        {"queueing", [] { return appl_dpp_cosq_diag_init(0); }, BCM_E_NONE},
        {"reset below layers", [] { return soc_init(0); }, BCM_E_BUSY},
        {"system below application", [] { return system_shutdown(0, 0); }, BCM_E_BUSY},
        {"application down", [&] { return appl_dcmn_deinit(0, &param); }, BCM_E_NONE},
        {"application down twice", [&] { return appl_dcmn_deinit(0, &param); }, BCM_E_INIT},
        {"system down", [] { return system_shutdown(0, 0); }, BCM_E_NONE},
        {"tables stand", vlan, BCM_E_EXISTS},
        {"deinit", [] { return soc_deinit(0); }, BCM_E_NONE},
        {"stopped", vlan, BCM_E_INIT},
        {"start again", [] { return soc_init(0); }, BCM_E_NONE},
        {"as on the first day", vlan, BCM_E_NONE},
    });
}

TEST_F(Devices, TheRecordOfAStartIsReadOrRefused) {
    ASSERT_EQ(addOmbraDevice(0, 1, 0, 0), 0);
    ASSERT_EQ(soc_init(0), BCM_E_NONE);
    using Param = appl_dcmn_init_param_t;
    const auto start = [](auto field, auto value) {
        Param param{};
        param.*field = value;
        const int status = appl_dcmn_init(0, &param);
        if (appl_dcmn_deinit(0, &param) != BCM_E_NONE && status == BCM_E_NONE) return 99;
        return status;
    };
    EXPECT_EQ(start(&Param::warmboot, 1), BCM_E_UNAVAIL);
    EXPECT_NE(std::string(standin_last_refusal()).find("field warmboot is 1"), std::string::npos);
    EXPECT_EQ(start(&Param::l2_mode, 1u), BCM_E_UNAVAIL);
    EXPECT_EQ(start(&Param::unit, 3u), BCM_E_PARAM);
    EXPECT_EQ(start(&Param::nof_devices, -1), BCM_E_PARAM);
    EXPECT_EQ(start(&Param::modid, 9999), BCM_E_PARAM);
    EXPECT_EQ(start(&Param::no_elk_appl, 1), BCM_E_NONE);
    EXPECT_EQ(start(&Param::no_init, 1), 99) << "nothing was started";
    EXPECT_EQ(start(&Param::modid, 7), BCM_E_NONE);
    int module = 0;
    EXPECT_EQ(bcm_stk_modid_get(0, &module), BCM_E_NONE);
    EXPECT_EQ(module, 7);
    Param quiet{};
    quiet.no_intr = 1;
    quiet.no_appl_stk = 1;
    EXPECT_EQ(appl_dcmn_init(0, &quiet), BCM_E_NONE);
    EXPECT_EQ(standin_switch_event(0, 1, 0, 0, 0), BCM_E_DISABLED);
    EXPECT_EQ(appl_dpp_bcm_diag_init(0, &quiet), BCM_E_NONE);
    EXPECT_EQ(appl_dpp_stk_diag_init(0), BCM_E_DISABLED);
    EXPECT_EQ(appl_dpp_cosq_diag_init(0), BCM_E_NONE);
    EXPECT_EQ(appl_dpp_bcm_diag_init_py(0, 1, 2, 1), BCM_E_NONE);
    EXPECT_EQ(appl_dpp_cosq_diag_init(0), BCM_E_DISABLED);
}

TEST_F(Devices, AShutdownStartsNothingAndASwitchoverKeepsTheChip) {
    ASSERT_EQ(addOmbraDevice(0, 1, 0, 0), 0);
    ASSERT_EQ(soc_init(0), BCM_E_NONE);
    ASSERT_EQ(bcm_vlan_create(0, 10), BCM_E_NONE);
    isShuttingDownIs(true);
    EXPECT_EQ(addOmbraDevice(0, 2, 0, 0), BCM_E_DISABLED);
    EXPECT_EQ(system_init(0), BCM_E_DISABLED);
    EXPECT_EQ(soc_init(0), BCM_E_DISABLED);
    EXPECT_EQ(standin_switch_event(0, 1, 0, 0, 0), BCM_E_DISABLED);
    EXPECT_EQ(bcm_vlan_create(0, 10), BCM_E_EXISTS);
    isShuttingDownIs(false);
    EXPECT_EQ(standin_switch_event(0, 1, 0, 0, 0), BCM_E_NONE);
    ssoIs(true);
    EXPECT_EQ(soc_deinit(0), BCM_E_NONE);
    EXPECT_EQ(soc_init(0), BCM_E_NONE);
    EXPECT_EQ(bcm_vlan_create(0, 10), BCM_E_EXISTS);
    ssoIs(false);
    EXPECT_EQ(soc_init(0), BCM_E_NONE);
    EXPECT_EQ(bcm_vlan_create(0, 10), BCM_E_NONE);
}

TEST_F(Devices, ADeviceThatIsRewiredTakesItsHardwareAlong) {
    ASSERT_EQ(addOmbraDevice(0, 1, 0, 0), 0);
    ASSERT_EQ(soc_init(0), BCM_E_NONE);
    ASSERT_EQ(soc_reg32_set(0, IHP_GENERAL_TRAPr, 1, 0, 5), BCM_E_NONE);
    ASSERT_EQ(soc_phyctrl_reg_write(0, 7, 0, 0x18000, 6), BCM_E_NONE);
    ASSERT_EQ(bcm_vlan_create(0, 10), BCM_E_NONE);
    maskDeviceInterrupts(1);
    for (const auto rewire : {rewireOmbraDeviceRemap, rewireOmbraDeviceNoRemap}) {
        rewire(0, 0, 2, 0, 0);
        uint32 value = 0;
        forceReadFromHardwareIs(true);
        EXPECT_EQ(soc_reg32_get(0, IHP_GENERAL_TRAPr, 1, 0, &value), BCM_E_NONE);
        forceReadFromHardwareIs(false);
        EXPECT_EQ(value, 5u);
        EXPECT_EQ(soc_phyctrl_reg_read(0, 7, 0, 0x18000, &value), BCM_E_NONE);
        EXPECT_EQ(value, 6u);
        EXPECT_EQ(bcm_vlan_create(0, 10), BCM_E_EXISTS);
        EXPECT_EQ(standin_switch_event(0, 1, 0, 0, 0), BCM_E_NONE) << "on a bus that is heard";
        rewire(0, 0, 1, 0, 0);
        EXPECT_EQ(standin_switch_event(0, 1, 0, 0, 0), BCM_E_DISABLED);
        EXPECT_EQ(addOmbraDevice(0, 1, 0, 0), BCM_E_EXISTS);
    }
}

TEST_F(Devices, PlatformKeepsWhatItIsTold) {
    std::string name = "agent";
    setOmbraAgentName(name.data());
    name = "other";
    EXPECT_STREQ(standin_agent_name(), "agent");
    setOmbraAgentName(nullptr);
    EXPECT_STREQ(standin_agent_name(), "");
    ssoIs(true);
    EXPECT_EQ(standin_platform_value("sso"), 1);
    EXPECT_EQ(standin_platform_value("shutting_down"), 0);
    EXPECT_EQ(standin_platform_value("nothing"), -1);
    EXPECT_EQ(KorvelInit(nullptr, 1), BCM_E_PARAM);
    EXPECT_EQ(KorvelInit(nullptr, 0), BCM_E_NONE);
}

}  // namespace
}  // namespace standin
