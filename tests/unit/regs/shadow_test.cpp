// The shadow in front of the hardware: what it tells, and how it is put right.
#include "helper/shadow.h"

#include <stdlib.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <functional>
#include <iterator>
#include <sstream>
#include <string>

#include "helper/shadow_cxx.h"
#include "regs_fixture.h"
#include "sdk/bcm/init.h"
#include "sdk/diag/appl.h"
#include "sdk/soc/phy.h"
#include "sdk/variables.h"
#include "standin/regs/layout.h"

namespace standin {
namespace {

constexpr int kReg = ECI_TEST_REGISTERr;
constexpr std::uint32_t kNotDone = 0xffffffff;

class ShadowTest : public RegsTest {
  protected:
    // Gives the register one value through the API and another behind the shadow's back.
    void disagree(std::uint32_t shadow = 1, std::uint32_t hardware = 2) {
        ASSERT_EQ(soc_reg32_set(0, kReg, 0, 0, shadow), BCM_E_NONE);
        ASSERT_EQ(korvel_write_low(0, soc_reg_addr(0, kReg, 0, 0), hardware), BCM_E_NONE);
    }
};

// A file of the test's own, gone at its end.
class File {
  public:
    File() { ::close(::mkstemp(name_)); }
    ~File() { ::unlink(name_); }
    File(const File &) = delete;
    File &operator=(const File &) = delete;

    const char *name() const { return name_; }
    std::string text() const {
        std::ifstream in(name_);
        return {std::istreambuf_iterator<char>(in), {}};
    }

  private:
    char name_[25] = "/tmp/ombra_shadow_XXXXXX";
};

// The line of a dump that begins with `name`, its cells parted by one blank.
std::string row(const std::string &text, const std::string &name) {
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream cells(line);
        std::string all;
        for (std::string cell; cells >> cell;) all += (all.empty() ? "" : " ") + cell;
        if (all.starts_with(name + ' ')) return all;
    }
    return "no line for " + name;
}

TEST_F(ShadowTest, AForcedReadTellsTheTruthAndKeepsNothing) {
    disagree();
    EXPECT_FALSE(forceReadFromHardware());
    EXPECT_EQ(get32(kReg), 1u);
    forceReadFromHardwareIs(true);
    EXPECT_TRUE(forceReadFromHardware());
    EXPECT_EQ(get32(kReg), 2u);
    forceReadFromHardwareIs(false);
    EXPECT_EQ(get32(kReg), 1u);
}

TEST_F(ShadowTest, WhatTheChipChangesByItselfIsNeverKept) {
    ASSERT_EQ(soc_reg32_set(0, IHP_INTERRUPT_REGISTERr, 1, 0, 1), BCM_E_NONE);
    korvel_write_low(0, soc_reg_addr(0, IHP_INTERRUPT_REGISTERr, 1, 0), 3);
    EXPECT_EQ(get32(IHP_INTERRUPT_REGISTERr, 1), 3u);
    EXPECT_EQ(standin_shadow_words(0), 0);
}

TEST_F(ShadowTest, SyncCountsReportsAndRepairs) {
    disagree();
    ASSERT_EQ(soc_reg32_set(0, EGQ_TTL_SCOPEr, 0, 0, 9), BCM_E_NONE);
    EXPECT_EQ(syncRegisters(0, false, false), 1u);  // looks only
    EXPECT_EQ(get32(kReg), 1u);
    const File file;
    ASSERT_EQ(dumpRegSyncData(0, file.name()), BCM_E_NONE);
    EXPECT_EQ(file.text(),
              "# unit 0: 2 registers compared, 1 different\n"
              "Register           Address     Word      Shadow    Hardware\n"
              "-----------------  ----------  ----  ----------  ----------\n"
              "ECI_TEST_REGISTER  0x0a012000     0  0x00000001  0x00000002\n");
    testing::internal::CaptureStdout();
    EXPECT_EQ(syncRegisters(0, true, true), 1u);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "ECI_TEST_REGISTER (0x0a012000) = 0x2\nEGQ_TTL_SCOPE.0 (0x0e004000) = 0x9\n");
    EXPECT_EQ(get32(kReg), 2u);
    EXPECT_EQ(syncRegisters(0, false, true), 0u);
    ASSERT_EQ(dumpRegSyncData(0, file.name()), BCM_E_NONE);
    EXPECT_NE(file.text().find("2 registers compared, 0 different, shadow repaired"),
              std::string::npos);
}

TEST_F(ShadowTest, SyncOfOneRegisterLeavesTheOthers) {
    disagree();
    ASSERT_EQ(soc_reg32_set(0, EGQ_TTL_SCOPEr, 1, 7, 9), BCM_E_NONE);
    korvel_write_low(0, soc_reg_addr(0, EGQ_TTL_SCOPEr, 1, 7), 8);
    EXPECT_EQ(syncSpecificRegister(0, EGQ_TTL_SCOPEr), 1u);
    EXPECT_EQ(get32(EGQ_TTL_SCOPEr, 1, 7), 8u);
    EXPECT_EQ(get32(kReg), 1u);
    EXPECT_EQ(syncSpecificRegister(0, 1), kNotDone);
    EXPECT_EQ(syncSpecificRegister(7, kReg), kNotDone);
    EXPECT_EQ(syncRegisters(0xffffffff, false, true), kNotDone);
}

TEST_F(ShadowTest, AnUnmappedDeviceIsServedByItsShadowAlone) {
    disagree();
    unmapOmbraDevice(0);
    EXPECT_EQ(get32(kReg), 1u);
    std::uint32_t word = 7;
    EXPECT_EQ(soc_reg32_get(0, EGQ_TTL_SCOPEr, 0, 0, &word), BCM_E_INIT);
    EXPECT_EQ(soc_reg32_set(0, kReg, 0, 0, 5), BCM_E_INIT);
    EXPECT_EQ(word, 7u);
    EXPECT_EQ(korvel_read_low(0, 0), 0xffffffffu);
    EXPECT_EQ(korvel_write_low(0, 0, 1), BCM_E_INIT);
    EXPECT_EQ(syncRegisters(0, false, true), kNotDone);
    mapOmbraDevice(0);
    EXPECT_EQ(syncRegisters(0, false, true), 1u);
    EXPECT_EQ(get32(kReg), 2u);
}

TEST_F(ShadowTest, InitialisationHasAShadowOfItsOwn) {
    disagree();
    EXPECT_FALSE(initShadowDestroyed(0));
    teardownShadowForHwInit(0);  // nothing stands
    EXPECT_FALSE(initShadowDestroyed(0));
    setupShadowForHwInit(0, false);
    EXPECT_FALSE(initShadowDestroyed(0));
    EXPECT_EQ(get32(kReg), 0u);  // its reset value; the hardware is not asked
    EXPECT_EQ(get32(PORT_CNTMAXSIZEr, 1), 1518u);
    ASSERT_EQ(soc_init(0), BCM_E_NONE);  // between the two, as agents do
    ASSERT_EQ(soc_reg32_set(0, kReg, 0, 0, 4), BCM_E_NONE);
    EXPECT_EQ(get32(kReg), 4u);
    teardownShadowForHwInit(0);
    EXPECT_TRUE(initShadowDestroyed(0));
    EXPECT_EQ(get32(kReg), 4u);
    setupShadowForHwInit(0, true);  // diagnostics look at the hardware
    EXPECT_FALSE(initShadowDestroyed(0));
    disagree(5, 6);
    EXPECT_EQ(get32(kReg), 6u);
    teardownShadowForHwInit(0);
    EXPECT_EQ(get32(kReg), 6u);
    EXPECT_FALSE(initShadowDestroyed(9));
    setupShadowForHwInit(0xffffffff, true);
}

TEST_F(ShadowTest, TablesAreKeptWhereTheirDynamicShadowIsOn) {
    constexpr int mem = IHB_TCAM_ACTIONm;
    const auto base = [](int array) {
        return static_cast<int>(TesselApi::tableBaseAddr(0, mem, array));
    };
    const auto read = [](unsigned array) {
        unsigned int entry[3] = {};
        EXPECT_EQ(soc_mem_array_read(0, mem, array, -1, 0, entry), BCM_E_NONE);
        return entry[0];
    };
    const auto write_behind = [&](int array, unsigned value) {
        ASSERT_EQ(korvel_write_low(0, static_cast<std::uint32_t>(base(array)), value), BCM_E_NONE);
    };
    dynamicShadowEnableIs(0, mem, 1, base(1), true);
    EXPECT_TRUE(dynamicShadowEnable(0, mem, 1, base(1)));
    EXPECT_FALSE(dynamicShadowEnable(0, mem, 0, base(0)));
    EXPECT_FALSE(dynamicShadowEnable(0, mem, 1, base(0)));  // that base is another table's
    EXPECT_EQ(read(0), 0u);
    EXPECT_EQ(read(1), 0u);
    write_behind(0, 5);
    write_behind(1, 5);
    EXPECT_EQ(read(0), 5u);
    EXPECT_EQ(read(1), 0u);
    forceReadFromHardwareIs(true);
    EXPECT_EQ(read(1), 5u);
    forceReadFromHardwareIs(false);
    dynamicShadowEnableIs(0, mem, 1, base(1), false);
    EXPECT_EQ(read(1), 5u);
    EXPECT_EQ(standin_shadow_words(0), 0);
    dynamicShadowEnableIs(0, 371, 0, 0, true);  // there is no such table
    EXPECT_FALSE(dynamicShadowEnable(0, 371, 0, 0));
}

TEST_F(ShadowTest, ReducingHalvesTheTablesOfInterfaces) {
    constexpr int mem = IHP_IN_RIF_CONFIG_TABLEm;
    const int base = static_cast<int>(TesselApi::tableBaseAddr(0, mem, 0));
    const int entries = find_memory(mem)->entries;
    dynamicShadowEnableIs(0, mem, 0, base, true);
    unsigned int entry[2] = {};
    for (const int index : {0, entries - 1}) soc_mem_read(0, mem, -1, index, entry);
    EXPECT_EQ(standin_shadow_words(0), 4);
    reduceLifShadowSize(0);
    EXPECT_EQ(standin_shadow_words(0), 2);
    soc_mem_read(0, mem, -1, entries - 1, entry);
    EXPECT_EQ(standin_shadow_words(0), 2);
}

TEST_F(ShadowTest, TablesOfThePlatformAreClosedWhileItFillsThem) {
    ASSERT_EQ(addOmbraFapDeviceUnmapped(0, 2, 0, 0, 1), 1);  // a fake one
    mapOmbraDevice(1);
    ASSERT_EQ(soc_init(1), BCM_E_NONE);
    const auto status = [](int unit, int mem) {
        unsigned int entry[20] = {};
        return soc_mem_read(unit, mem, -1, 0, entry);
    };
    EXPECT_EQ(status(0, IHB_MEM_F30000m), BCM_E_NONE);
    for (const unsigned unit : {0u, 1u}) setupShadowForHwInit(unit, false);
    EXPECT_EQ(status(0, IHB_MEM_F30000m), BCM_E_DISABLED);
    EXPECT_EQ(status(0, IHB_PINFO_FLPm), BCM_E_NONE);
    EXPECT_FALSE(simTableAccessOk());
    simAllowAllTableAccess(true);
    EXPECT_TRUE(simTableAccessOk());
    EXPECT_EQ(status(0, IHB_MEM_F30000m), BCM_E_DISABLED);
    EXPECT_EQ(status(1, IHB_MEM_F30000m), BCM_E_NONE);
    allowAllTableAccess(0, true);
    EXPECT_EQ(status(0, IHB_MEM_F30000m), BCM_E_NONE);
    allowAllTableAccess(0, false);
    EXPECT_EQ(status(0, IHB_MEM_F30000m), BCM_E_DISABLED);
    std::uint32_t word = 0;
    const std::uint32_t there = TesselApi::tableBaseAddr(0, IHB_MEM_F30000m, 1) + 4;
    EXPECT_EQ(soc_reg32_read(0, there, &word), BCM_E_DISABLED) << "by address, in the other core";
    EXPECT_EQ(soc_reg32_write(0, there, 1), BCM_E_DISABLED);
    teardownShadowForHwInit(0);
    EXPECT_EQ(status(0, IHB_MEM_F30000m), BCM_E_NONE);
    EXPECT_EQ(soc_reg32_write(0, there, 1), BCM_E_NONE);
}

TEST_F(ShadowTest, ARegisterBlockTellsItsSizeFirst) {
    constexpr int reg = CRPS_CRPS_SRC_MASKr;  // 16 elements of one word
    ASSERT_EQ(soc_reg32_set(0, reg, 0, 15, 0xf), BCM_E_NONE);
    std::uint32_t size = 0;
    EXPECT_EQ(getRegisterBlockFromShadow(0, reg, -1, 14, nullptr, &size), BCM_E_NONE);
    EXPECT_EQ(size, 8u);
    std::uint32_t words[3] = {9, 9, 9};
    size = 7;
    EXPECT_EQ(getRegisterBlockFromShadow(0, reg, -1, 14, words, &size), BCM_E_FULL);
    EXPECT_EQ(words[0], 9u);
    EXPECT_EQ(getRegisterBlockFromShadow(0, reg, -1, 14, words, &size), BCM_E_NONE);
    EXPECT_EQ(words[0], 0u);
    EXPECT_EQ(words[1], 0xfu);
    EXPECT_EQ(words[2], 9u);
    EXPECT_EQ(getRegisterBlockFromShadow(0, reg, -1, 0, words, nullptr), BCM_E_PARAM);
    EXPECT_EQ(getRegisterBlockFromShadow(0, reg, -1, 16, nullptr, &size), BCM_E_PARAM);
    EXPECT_EQ(getRegisterBlockFromShadow(0, reg, 77, 0, nullptr, &size), BCM_E_PARAM);
    EXPECT_EQ(getRegisterBlockFromShadow(0, 1, -1, 0, nullptr, &size), BCM_E_NOT_FOUND);
    // A port is an offset, a core a block.
    ASSERT_EQ(soc_reg32_set(0, PORT_CNTMAXSIZEr, 64, 0, 9000), BCM_E_NONE);
    size = sizeof words;
    EXPECT_EQ(getRegisterBlockFromShadow(0, PORT_CNTMAXSIZEr, -1, 64, words, &size), BCM_E_NONE);
    EXPECT_EQ(size, 4u);
    EXPECT_EQ(words[0], 9000u);
    EXPECT_EQ(getRegisterBlockFromShadow(0, PORT_CNTMAXSIZEr, -1, 65, words, &size), BCM_E_PARAM);
    ASSERT_EQ(soc_reg32_set(0, IHP_GENERAL_TRAPr, 1, 0, 5), BCM_E_NONE);
    const int block = static_cast<int>(soc_reg_addr(0, IHP_GENERAL_TRAPr, 1, 0) >> kBlockShift);
    EXPECT_EQ(getRegisterBlockFromShadow(0, IHP_GENERAL_TRAPr, block, 0, words, &size), BCM_E_NONE);
    EXPECT_EQ(words[0], 5u);
}

TEST_F(ShadowTest, DumpsTellWhatThereIs) {
    const File file;
    setCopyEngineConstraintsFilePath("constraints.txt");
    configureHwPciConfigShadow();
    dynamicShadowEnableIs(0, CGM_HAPMm, 0,
                          static_cast<int>(TesselApi::tableBaseAddr(0, CGM_HAPMm, 0)), true);
    ASSERT_EQ(TesselApiPrintDeviceMemInfoToFile(0, file.name()), BCM_E_NONE);
    const std::string memories = file.text();
    EXPECT_EQ(memories.find("# unit 0: memories\n# PCI configuration shadow: on\n"
                            "# copy engine constraints: constraints.txt\n"),
              0u);
    EXPECT_EQ(row(memories, "CGM_HAPM"), "CGM_HAPM 370 CGM 0 0x03000000 256 12 1 sdk on");
    EXPECT_EQ(row(memories, "IHB_MEM_F30000"),
              "IHB_MEM_F30000 4108 IHB 0 0x1af30000 256 80 2 platform off");
    korvel_write_low(0, soc_reg_addr(0, IHB_PARITY_ERR_CNTr, 1, 0), 3);
    ASSERT_EQ(TesselApiPrintDeviceMemParityEccInfoToFile(0, file.name()), BCM_E_NONE);
    const std::string parity = file.text();
    EXPECT_EQ(row(parity, "IHB_PINFO_FLP"), "IHB_PINFO_FLP IHB parity 1 3");
    EXPECT_EQ(row(parity, "IHB_TCAM_ACTION"), "IHB_TCAM_ACTION IHB ecc 21 3");
    EXPECT_EQ(row(parity, "CGM_HAPM"), "CGM_HAPM CGM parity 1 -");
    using Dump = int (*)(int, const char *);
    for (const Dump dump : {Dump{dumpRegSyncData}, Dump{TesselApiPrintDeviceMemInfoToFile},
                            Dump{TesselApiPrintDeviceMemParityEccInfoToFile}}) {
        EXPECT_EQ(dump(0, nullptr), BCM_E_PARAM);
        EXPECT_EQ(dump(0, "/no/such/place"), BCM_E_FAIL);
        EXPECT_EQ(dump(0, "/dev/full"), BCM_E_FAIL);
        EXPECT_EQ(dump(3, file.name()), BCM_E_UNIT);
    }
}

TEST_F(ShadowTest, PrintsEveryElementOnce) {
    int elements = 0;
    for (const auto &layout : all_registers()) elements += layout.instances() * layout.elements;
    testing::internal::CaptureStdout();
    printAllRegisters(0);
    printAllRegisters(4);
    const std::string text = testing::internal::GetCapturedStdout();
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), elements);
    EXPECT_NE(text.find("\nPORT_CNTMAXSIZE.64 (0x"), std::string::npos);
}

TEST_F(ShadowTest, ConfiguringStartsEveryShadowAnew) {
    disagree();
    EXPECT_EQ(standin_shadow_words(0), 1);
    configureHwShadow(nullptr);
    EXPECT_EQ(standin_shadow_words(0), 0);
    EXPECT_EQ(get32(kReg), 2u);
    EXPECT_EQ(standin_shadow_value("configured"), 1);
    EXPECT_EQ(standin_shadow_value(nullptr), -1);
}

// -- counted objects -----------------------------------------------------------------------------

TEST_F(ShadowTest, ATableIsFoundByItsBaseAndByWhatLiesInIt) {
    constexpr int mem = IHB_TCAM_ACTIONm;
    const std::uint32_t base = TesselApi::tableBaseAddr(0, mem, 2);
    const auto by_base = TesselApi::findChipMemory(0, mem, static_cast<int>(base));
    ASSERT_TRUE(by_base);
    EXPECT_EQ(by_base->place().address.value(), base);
    EXPECT_EQ(by_base->place().mem, mem);
    const std::uint32_t size = by_base->place().sizeBytes;
    const auto within = [&](std::uint64_t from, std::uint32_t bytes) {
        return TesselApi::findChipMemory(0, mem, Hardware::ChipAddress(from), bytes).get();
    };
    EXPECT_EQ(within(base, size), by_base.get());
    EXPECT_EQ(within(base + 8, 4), by_base.get());
    EXPECT_EQ(within(base, size + 1), nullptr);
    EXPECT_EQ(within(base + size - 4, 8), nullptr);
    EXPECT_NE(within(base - 4, 4), by_base.get());
    EXPECT_EQ(within(base + (1ull << 32), 4), nullptr);
    EXPECT_EQ(within(~0ull, ~0u), nullptr);
    EXPECT_FALSE(TesselApi::findChipMemory(0, mem, static_cast<int>(base) + 4));
    EXPECT_FALSE(TesselApi::findChipMemory(0, 371, static_cast<int>(base)));
    EXPECT_FALSE(TesselApi::findChipMemory(7, mem, static_cast<int>(base)));
    // The arrays of the second core follow.
    const std::uint32_t other = TesselApi::tableBaseAddr(0, mem, 6);
    EXPECT_EQ(find_memory_at(other)->core, 1);
    EXPECT_EQ(find_memory_at(other)->array, 2);
    EXPECT_EQ(within(other + 4, 4),
              TesselApi::findChipMemory(0, mem, static_cast<int>(other)).get());
    EXPECT_NE(within(other + 4, 4), by_base.get());
    EXPECT_EQ(TesselApi::tableBaseAddr(0, mem, 8), kNoAddress);
    EXPECT_EQ(TesselApi::tableBaseAddr(0, 371, 0), kNoAddress);
}

TEST_F(ShadowTest, ObjectsAreSharedAndCounted) {
    const int base = static_cast<int>(TesselApi::tableBaseAddr(0, CGM_HAPMm, 0));
    auto table = TesselApi::findChipMemory(0, CGM_HAPMm, base);
    auto shadow = getHwShadow(0);
    ASSERT_TRUE(table && shadow);
    EXPECT_EQ(table->references(), 2u);  // the library's and ours
    EXPECT_EQ(getHwShadow(0).get(), shadow.get());
    EXPECT_EQ(shadow->references(), 2u);
    EXPECT_FALSE(getHwShadow(5));
    {
        const auto again = TesselApi::findChipMemory(0, CGM_HAPMm, base);
        EXPECT_EQ(again.get(), table.get());
        EXPECT_EQ(table->references(), 3u);
    }
    EXPECT_EQ(table->references(), 2u);
    ASSERT_EQ(soc_init(0), BCM_E_NONE);  // objects stand for the device, not for its contents
    EXPECT_EQ(getHwShadow(0).get(), shadow.get());
    standin_shadow_reset();
    EXPECT_EQ(table->references(), 1u);
    EXPECT_EQ(shadow->references(), 1u);
    const int objects = standin_live_objects();
    table = nullptr;
    shadow = nullptr;
    EXPECT_EQ(standin_live_objects(), objects - 2);
}

TEST_F(ShadowTest, WhoManagesATable) {
    const auto managed_elsewhere = [](int mem) {
        return tableNotManagedBySdk(
            TesselApi::findChipMemory(0, mem, static_cast<int>(TesselApi::tableBaseAddr(0, mem, 0)))
                .get());
    };
    EXPECT_TRUE(managed_elsewhere(OAMP_MEM_100000m));
    EXPECT_FALSE(managed_elsewhere(IHP_RESERVED_MCm));
    EXPECT_TRUE(tableNotManagedBySdk(nullptr));
}

// Whatever the order in which a fake device comes up and goes down, calls are answered, and the
// shadow that is left tells the truth.
TEST_F(ShadowTest, AFakeDeviceGoesUpAndDownInEveryOrder) {
    using Step = void (*)(int);
    constexpr Step steps[] = {
        [](int unit) { mapOmbraDevice(unit); },
        [](int unit) { unmapOmbraDevice(unit); },
        [](int unit) { setupShadowForHwInit(static_cast<unsigned>(unit), false); },
        [](int unit) { teardownShadowForHwInit(static_cast<unsigned>(unit)); },
        [](int unit) { soc_init(unit); },
        [](int unit) { soc_deinit(unit); },
    };
    int order[] = {0, 1, 2, 3, 4, 5};
    std::uint32_t value = 0;
    do {
        standin_reset();
        const int unit = addOmbraFapDeviceUnmapped(0, 3, 0, 0, 1);
        ASSERT_EQ(unit, 0);
        EXPECT_FALSE(initShadowDestroyed(0));
        for (const int step : order) {
            steps[step](unit);
            const int status = soc_reg32_set(unit, kReg, 0, 0, ++value);
            if (status == BCM_E_NONE)
                EXPECT_EQ(get32(kReg), value);
            else
                EXPECT_EQ(status, BCM_E_INIT);
        }
        mapOmbraDevice(unit);
        teardownShadowForHwInit(0);
        ASSERT_EQ(soc_init(unit), BCM_E_NONE);
        EXPECT_EQ(get32(kReg), 0u);
        EXPECT_EQ(syncRegisters(0, false, true), 0u);
    } while (std::next_permutation(std::begin(order), std::end(order)));
}

// What each layer remembers of a unit goes with the chip or with the device, and neither takes
// along what is remembered of the other unit.
TEST_F(ShadowTest, StatesGoWithTheirOwner) {
    constexpr int kUnits = 2;
    const auto start = [](int unit) {
        ASSERT_EQ(addOmbraDevice(0, static_cast<std::uint8_t>(1 + unit), 0, 0), unit);
        ASSERT_EQ(soc_init(unit), BCM_E_NONE);
    };
    struct Event {
        const char *what;
        std::function<void()> happen;
        bool chip_stays, shadow_stays, tables_stay, other_stays;
    } const events[] = {
        {"nothing", [] {}, true, true, true, true},
        {"reset", [] { soc_init(0); }, false, true, true, true},
        {"clear", [] { bcm_clear(0); }, false, true, true, true},
        {"layer up and down", [] { system_init(0), system_shutdown(0, 0); }, true, true, true,
         true},
        {"clean down", [] { system_init(0), system_shutdown(0, 1); }, false, true, true, true},
        {"shadow dropped", [] { standin_shadow_reset(); }, true, false, true, false},
        {"removed", [&] { standin_reset(), start(0), start(1); }, false, false, false, false},
    };
    start(1);
    for (const Event &event : events) {
        Hardware::HardwareShadow::Ptr shadows[kUnits];
        for (int unit = 0; unit < kUnits; ++unit) {
            ASSERT_EQ(soc_reg32_set(unit, kReg, 0, 0, 5), BCM_E_NONE);
            ASSERT_EQ(soc_cmic_rate_param_set(unit, 3, 7), BCM_E_NONE);
            ASSERT_EQ(soc_phy_common_init(unit), BCM_E_NONE);
            shadows[unit] = getHwShadow(unit);
        }
        event.happen();
        for (int unit = 0; unit < kUnits; ++unit) {
            SCOPED_TRACE(std::string(event.what) + " on 0, seen on " + std::to_string(unit));
            const bool chip = unit == 0 ? event.chip_stays : event.chip_stays || event.other_stays;
            int dividend = 0, divisor = 0;
            ASSERT_EQ(soc_cmic_rate_param_get(unit, &dividend, &divisor), BCM_E_NONE);
            EXPECT_EQ(dividend, chip ? 3 : 1);
            EXPECT_EQ(get32(kReg, 0, 0, unit), chip ? 5u : 0u);
            const bool shadow = unit == 0 ? event.shadow_stays : event.other_stays;
            EXPECT_EQ(getHwShadow(unit).get() == shadows[unit].get(), shadow);
            EXPECT_EQ(phy_port_info[unit] != nullptr, event.tables_stay);
        }
    }
}

}  // namespace
}  // namespace standin
