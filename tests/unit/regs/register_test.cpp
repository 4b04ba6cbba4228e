// Registers: whole, by field, by address; who is told and who takes over.
#include <algorithm>
#include <array>
#include <limits>
#include <numeric>
#include <string>
#include <vector>

#include "helper/shadow.h"
#include "helper/shadow_cxx.h"
#include "regs_fixture.h"
#include "sdk/bcm/stat.h"
#include "sdk/soc/chip.h"
#include "standin/regs/layout.h"

namespace standin {
namespace {

using Wide = std::array<unsigned int, 20>;

constexpr int kNoRegister = 1;
constexpr uint64 kAllOnes = std::numeric_limits<uint64>::max();

class RegistersTest : public RegsTest {};

// The bits of word `word` of a register as the datamask call tells them.
Wide datamask(int reg) {
    Wide mask{};
    soc_reg_above_64_datamask(0, reg, 0, mask.data());
    return mask;
}

TEST_F(RegistersTest, EachKeepsItsBitsInEveryInstanceAndElement) {
    for (const RegisterLayout &layout : all_registers()) {
        const int port = layout.block->scope == Scope::kChip   ? REG_PORT_ANY
                         : layout.block->scope == Scope::kCore ? 1
                                                               : kFrontPorts;
        Wide ones;
        ones.fill(~0u);
        const int last = layout.elements - 1;
        ASSERT_EQ(soc_reg_above_64_set(0, layout.id, port, last, ones.data()), BCM_E_NONE);
        Wide got;
        got.fill(0x55);
        ASSERT_EQ(soc_reg_above_64_get(0, layout.id, port, last, got.data()), BCM_E_NONE);
        EXPECT_EQ(got, datamask(layout.id)) << layout.name;
        // The first instance is another one.
        ASSERT_EQ(soc_reg_above_64_get(0, layout.id, 0, 0, got.data()), BCM_E_NONE);
        if (layout.instances() == 1 && layout.elements == 1) continue;
        EXPECT_EQ(got[0], layout.reset) << layout.name;
    }
}

TEST_F(RegistersTest, TheWidthOfACallMustHoldTheRegister) {
    struct Case {
        int reg;
        int bytes;
        bool fits32;
        bool fits64;
    };
    constexpr Case cases[] = {{ECI_TEST_REGISTERr, 4, true, true},
                              {RBYTr, 8, false, true},
                              {CGM_CGM_MC_DB_SP_TC_THr, 40, false, false}};
    for (const Case &one : cases) {
        SCOPED_TRACE(one.reg);
        uint32 narrow = 7;
        uint64 wide = 7;
        Wide widest{};
        EXPECT_EQ(soc_reg_bytes(0, one.reg), one.bytes);
        EXPECT_EQ(soc_reg32_get(0, one.reg, 0, 0, &narrow), one.fits32 ? BCM_E_NONE : BCM_E_PARAM);
        EXPECT_EQ(soc_reg64_get(0, one.reg, 0, 0, &wide), one.fits64 ? BCM_E_NONE : BCM_E_PARAM);
        EXPECT_EQ(soc_reg_get(0, one.reg, 0, 0, &wide), one.fits64 ? BCM_E_NONE : BCM_E_PARAM);
        EXPECT_EQ(soc_reg_set(0, one.reg, 0, 0, 5), one.fits64 ? BCM_E_NONE : BCM_E_PARAM);
        EXPECT_EQ(soc_reg_above_64_get(0, one.reg, 0, 0, widest.data()), BCM_E_NONE);
        EXPECT_EQ(widest[0], one.fits64 ? 5u : 0u);
        EXPECT_EQ(narrow, one.fits32 ? 0u : 7u);
    }
}

TEST_F(RegistersTest, WhatDoesNotExistHasAStatus) {
    struct Case {
        int unit, reg, port, index, status;
    };
    const Case cases[] = {
        {1, ECI_TEST_REGISTERr, 0, 0, BCM_E_UNIT},
        {-1, ECI_TEST_REGISTERr, 0, 0, BCM_E_UNIT},
        {0, kNoRegister, 0, 0, BCM_E_NOT_FOUND},
        {0, -1, 0, 0, BCM_E_NOT_FOUND},
        {0, ECI_TEST_REGISTERr, 1, 0, BCM_E_PORT},
        {0, ECI_TEST_REGISTERr, REG_PORT_ANY, 1, BCM_E_PARAM},
        {0, ECI_TEST_REGISTERr, REG_PORT_ANY, -1, BCM_E_PARAM},
        {0, IHP_GENERAL_TRAPr, 2, 0, BCM_E_PORT},
        {0, PORT_CNTMAXSIZEr, REG_PORT_ANY, 0, BCM_E_PORT},
        {0, PORT_CNTMAXSIZEr, kFrontPorts + 1, 0, BCM_E_PORT},
    };
    for (const Case &one : cases) {
        SCOPED_TRACE(testing::Message() << one.unit << ' ' << one.reg << ' ' << one.port);
        uint64 data = 7;
        Wide wide{};
        EXPECT_EQ(soc_reg_get(one.unit, one.reg, one.port, one.index, &data), one.status);
        EXPECT_EQ(soc_reg_set(one.unit, one.reg, one.port, one.index, 1), one.status);
        EXPECT_EQ(soc_reg_above_64_set(one.unit, one.reg, one.port, one.index, wide.data()),
                  one.status);
        EXPECT_EQ(soc_reg_addr(one.unit, one.reg, one.port, one.index), kNoAddress);
        EXPECT_EQ(soc_reg_port_idx_valid(one.unit, one.reg, one.port, one.index), 0);
        EXPECT_EQ(data, 7u);
    }
    EXPECT_EQ(soc_reg32_get(0, ECI_TEST_REGISTERr, 0, 0, nullptr), BCM_E_PARAM);
    EXPECT_EQ(soc_reg_above_64_get(0, ECI_TEST_REGISTERr, 0, 0, nullptr), BCM_E_PARAM);
    EXPECT_EQ(soc_reg_above_64_set(0, ECI_TEST_REGISTERr, 0, 0, nullptr), BCM_E_PARAM);
    EXPECT_EQ(soc_reg_bytes(0, kNoRegister), BCM_E_NOT_FOUND);
    EXPECT_EQ(soc_reg_datamask(0, kNoRegister, 0), 0u);
}

TEST_F(RegistersTest, AWriteToNoInstanceInParticularReachesBothCores) {
    ASSERT_EQ(soc_reg32_set(0, IHP_GENERAL_TRAPr, REG_PORT_ANY, 0, 8), BCM_E_NONE);
    EXPECT_EQ(get32(IHP_GENERAL_TRAPr, 1), 8u);
    ASSERT_EQ(soc_reg32_set(0, IHP_GENERAL_TRAPr, 1, 0, 9), BCM_E_NONE);
    EXPECT_EQ(get32(IHP_GENERAL_TRAPr), 8u);
    EXPECT_EQ(get32(PORT_CNTMAXSIZEr, kLocalGport.of(7)), 1518u);
}

TEST_F(RegistersTest, AnAddressLeadsToTheSameRegister) {
    int block = 0;
    uint8 kind = 9;
    const uint32 address = soc_reg_addr_get(0, RBYTr, 7, 0, 0, &block, &kind);
    EXPECT_EQ(address, soc_reg_addr(0, RBYTr, 7, 0));
    EXPECT_EQ(kind, 0);
    ASSERT_EQ(soc_reg_write(0, RBYTr, address, kAllOnes), BCM_E_NONE);
    constexpr uint64 expected = (uint64{1} << 48) - 1;
    const auto read64 = [&](uint64 *data) { return soc_reg64_read(0, address, data); };
    const auto read = [&](uint64 *data) { return soc_reg_read(0, RBYTr, address, data); };
    EXPECT_EQ(value_of<uint64>(read64), expected);
    EXPECT_EQ(value_of<uint64>(read), expected);
    // A call is as wide by address as by number.
    uint32 narrow = 0;
    EXPECT_EQ(soc_reg32_read(0, address, &narrow), BCM_E_PARAM);
    EXPECT_EQ(soc_reg32_read(0, address + 4, &narrow), BCM_E_PARAM);
    EXPECT_EQ(korvel_read_low(0, address + 4), 0xffffu) << "below, there are words";
    // Broken up again: the description, and the block with the offset in it.
    soc_regaddrinfo_t info{};
    soc_regaddrinfo_get(0, &info, address);
    EXPECT_EQ(info.valid, 1);
    EXPECT_EQ(info.reg, RBYTr);
    EXPECT_EQ(info.port, 7);
    EXPECT_EQ(info.block, block);
    const uint32 within = soc_reg_addr_get(0, RBYTr, 7, 0, 1, nullptr, nullptr);
    soc_regaddrinfo_extended_get(0, &info, block, 1, within);
    EXPECT_EQ(info.addr, address);
    EXPECT_EQ(info.acc_type, 1);
    soc_reg_addr_get(0, IHP_GENERAL_TRAPr, REG_PORT_ANY, 0, 0, &block, &kind);
    EXPECT_EQ(kind, 1);
    // Management registers are plain words.
    ASSERT_EQ(soc_reg32_write(0, 0x1a40, 5), BCM_E_NONE);
    EXPECT_EQ(value_of<uint32>([](uint32 *data) { return soc_reg32_read(0, 0x1a40, data); }), 5u);
}

TEST_F(RegistersTest, AnAddressWithNothingBehindIsNotFound) {
    uint32 word = 7;
    uint64 wide = 7;
    const uint32 eci = soc_reg_addr(0, ECI_TEST_REGISTERr, 0, 0);
    for (const uint32 address : {eci + 4, eci + 1, 0x1a42u, kManagementEnd, kNoAddress}) {
        EXPECT_EQ(soc_reg32_read(0, address, &word), BCM_E_NOT_FOUND) << address;
        EXPECT_EQ(soc_reg32_write(0, address, 1), BCM_E_NOT_FOUND) << address;
        EXPECT_EQ(korvel_write_low(0, address, 1), BCM_E_NOT_FOUND) << address;
        EXPECT_EQ(korvel_read_low(0, address), kNoAddress) << address;
        soc_regaddrinfo_t info{};
        soc_regaddrinfo_get(0, &info, address);
        EXPECT_EQ(info.valid, 0);
        EXPECT_EQ(info.reg, -1);
    }
    EXPECT_EQ(soc_reg64_read(0, eci, &wide), BCM_E_NONE);
    EXPECT_EQ(wide, 0u);
    EXPECT_EQ(soc_reg_read(0, IHP_GENERAL_TRAPr, eci, &wide), BCM_E_PARAM);
    EXPECT_EQ(soc_reg_write(0, kNoRegister, 0, kAllOnes), BCM_E_NOT_FOUND);
    EXPECT_EQ(soc_reg_write(3, kNoRegister, 0, kAllOnes), BCM_E_UNIT);
    EXPECT_EQ(word, 7u);
}

TEST_F(RegistersTest, FieldsStandOneAboveTheOther) {
    constexpr int reg = CGM_CGM_GENERAL_DB_THr;  // three of 20 bits
    uint64 value = 0;
    soc_reg64_field_set(0, reg, &value, MC_DB_THf, 0xabcde);
    EXPECT_EQ(value, uint64{0xabcde} << 20);
    soc_reg64_field32_set(0, reg, &value, UC_DB_THf, 0xffffffff);  // drops what does not fit
    EXPECT_EQ(soc_reg64_field_get(0, reg, value, UC_DB_THf), 0xfffffu);
    EXPECT_EQ(soc_reg64_field32_get(0, reg, value, MC_DB_THf), 0xabcdeu);
    EXPECT_EQ(soc_reg64_field_get(0, reg, value, TOTAL_DB_THf), 0u);
    EXPECT_EQ(soc_reg_field_length(0, reg, UC_DB_THf), 20);
    // A field that lies above the number in hand, or in another register.
    EXPECT_EQ(soc_reg_field_get(0, reg, ~0u, MC_DB_THf), 0u);
    const uint64 before = value;
    soc_reg64_field_set(0, reg, &value, TTL_SCOPEf, 1);
    soc_reg64_field_set(0, reg, nullptr, MC_DB_THf, 1);
    EXPECT_EQ(value, before);
    EXPECT_EQ(soc_reg_field_valid(0, reg, TTL_SCOPEf), 0);
    EXPECT_EQ(soc_reg_field_valid(0, EGQ_TTL_SCOPEr, TTL_SCOPEf), 1);
    EXPECT_EQ(soc_reg_field_length(0, reg, TTL_SCOPEf), 0);
    uint32 word = 0;
    soc_reg_field_set(0, EGQ_TTL_SCOPEr, &word, TTL_SCOPEf, 0x1ff);
    EXPECT_EQ(word, 0xffu);
}

TEST_F(RegistersTest, WideFieldsCrossWords) {
    constexpr int reg = CGM_CGM_MC_DB_SP_TC_THr;  // sixteen of 20 bits
    Wide value{};
    constexpr int fields[] = {CGM_MC_DB_SP_TC_TH_0f, CGM_MC_DB_SP_TC_TH_1f, CGM_MC_DB_SP_TC_TH_15f};
    for (const int field : fields)
        soc_reg_above_64_field32_set(0, reg, value.data(), field, 0x80001);
    EXPECT_EQ(value[0], 0x80001u | 0x80001u << 20);
    EXPECT_EQ(value[1], 0x80001u >> 12);
    EXPECT_EQ(value[9], 0x80001u << 12);
    EXPECT_EQ(soc_reg_above_64_field64_get(0, reg, value.data(), CGM_MC_DB_SP_TC_TH_1f), 0x80001u);
    Wide part{};
    part.fill(0x77);
    soc_reg_above_64_field_get(0, reg, value.data(), CGM_MC_DB_SP_TC_TH_15f, part.data());
    EXPECT_EQ(part[0], 0x80001u);
    EXPECT_EQ(std::accumulate(part.begin() + 1, part.end(), 0u), 0u);
    part[0] = 3;
    soc_reg_above_64_field_set(0, reg, value.data(), CGM_MC_DB_SP_TC_TH_15f, part.data());
    EXPECT_EQ(value[9], 3u << 12);
}

TEST_F(RegistersTest, FieldsOfTheRegisterItself) {
    constexpr int reg = CRPS_CRPS_SRC_MASKr;
    ASSERT_EQ(soc_reg_above_64_field32_modify(0, reg, 0, 15, CRPS_N_EGQ_A_MASKf, 1), BCM_E_NONE);
    EXPECT_EQ(get32(reg, 0, 15), 4u);
    EXPECT_EQ(get32(reg, 0, 0), 0u);
    ASSERT_EQ(soc_reg_above_64_field64_modify(0, RBCAr, 3, 0, VALUEf, 1ull << 40), BCM_E_NONE);
    uint64 wide = 0;
    EXPECT_EQ(soc_reg_above_64_field64_read(0, RBCAr, 3, 0, VALUEf, &wide), BCM_E_NONE);
    EXPECT_EQ(wide, 1ull << 40);
    uint32 word = 0;
    EXPECT_EQ(soc_reg_above_64_field32_read(0, reg, 0, 15, CRPS_N_EGQ_A_MASKf, &word), BCM_E_NONE);
    EXPECT_EQ(word, 1u);
    Wide part{};
    EXPECT_EQ(soc_reg_above_64_field_read(0, RBCAr, 3, 0, VALUEf, part.data()), BCM_E_NONE);
    EXPECT_EQ(part[1], 1u << 8);
    EXPECT_EQ(soc_reg_above_64_field_read(0, RBCAr, 3, 0, VALUEf, nullptr), BCM_E_PARAM);
    EXPECT_EQ(soc_reg_above_64_field32_read(0, reg, 0, 0, VALUEf, &word), BCM_E_NOT_FOUND);
}

TEST_F(RegistersTest, SeveralFieldsChangeTogetherOrNotAtAll) {
    constexpr int reg = IHB_ECMP_LB_KEY_CFGr;
    soc_field_t fields[] = {ECMP_LB_KEY_SEEDf, ECMP_LB_HASH_INDEXf};
    uint32 values[] = {0x1234, 0xf};
    ASSERT_EQ(soc_reg_fields32_modify(0, reg, REG_PORT_ANY, 2, fields, values), BCM_E_NONE);
    EXPECT_EQ(get32(reg, 1), 0x1234u | 0xfu << 20);
    values[0] = 0;
    values[1] = 0x10;  // too large for its 4 bits
    EXPECT_EQ(soc_reg_fields32_modify(0, reg, REG_PORT_ANY, 2, fields, values), BCM_E_PARAM);
    EXPECT_EQ(soc_reg_fields32_modify(0, reg, REG_PORT_ANY, -1, fields, values), BCM_E_PARAM);
    EXPECT_EQ(soc_reg_fields32_modify(0, reg, REG_PORT_ANY, 1, nullptr, values), BCM_E_PARAM);
    EXPECT_EQ(soc_reg_fields32_modify(0, reg, REG_PORT_ANY, 0, nullptr, nullptr), BCM_E_NONE);
    EXPECT_EQ(soc_reg_field32_modify(0, reg, 0, TTL_SCOPEf, 0), BCM_E_NOT_FOUND);
    EXPECT_EQ(get32(reg), 0x1234u | 0xfu << 20);
}

TEST_F(RegistersTest, ValuesAreHeldAgainstTheirField) {
    constexpr int reg = EGQ_TTL_SCOPEr;  // 8 bits
    EXPECT_EQ(soc_reg_field_validate(0, reg, TTL_SCOPEf, 255), BCM_E_NONE);
    EXPECT_EQ(soc_reg_field_validate(0, reg, TTL_SCOPEf, 256), BCM_E_PARAM);
    EXPECT_EQ(soc_reg_field_validate(0, reg, VALUEf, 0), BCM_E_NOT_FOUND);
    EXPECT_EQ(soc_reg_field_validate(5, reg, TTL_SCOPEf, 0), BCM_E_UNIT);
    EXPECT_EQ(soc_reg64_field_validate(0, RBCAr, VALUEf, (1ull << 48) - 1), BCM_E_NONE);
    EXPECT_EQ(soc_reg64_field_validate(0, RBCAr, VALUEf, 1ull << 48), BCM_E_PARAM);
    const auto masked = [](int value) {
        return value_of<uint32>(
            [&](uint32 *out) { return soc_reg_signed_field_mask(0, reg, TTL_SCOPEf, value, out); });
    };
    EXPECT_EQ(masked(-1), 0xffu);
    EXPECT_EQ(masked(-128), 0x80u);
    EXPECT_EQ(masked(127), 0x7fu);
    uint32 out = 7;
    EXPECT_EQ(soc_reg_signed_field_mask(0, reg, TTL_SCOPEf, 128, &out), BCM_E_PARAM);
    EXPECT_EQ(soc_reg_signed_field_mask(0, reg, TTL_SCOPEf, -129, &out), BCM_E_PARAM);
    EXPECT_EQ(out, 7u);
}

TEST_F(RegistersTest, DatamasksLeaveOutWhatTheChipChangesOnRequest) {
    EXPECT_EQ(soc_reg_datamask(0, EGQ_TTL_SCOPEr, 0), 0xffu);
    EXPECT_EQ(soc_reg64_datamask(0, RBCAr, 0), (1ull << 48) - 1);
    EXPECT_EQ(soc_reg64_datamask(0, RBCAr, 1), 0u);
    EXPECT_EQ(soc_reg_datamask(0, EGQ_TTL_SCOPEr, 1), 0xffu);
    soc_regaddrinfo_t info{};
    soc_regaddrinfo_get(0, &info, soc_reg_addr(0, EGQ_TTL_SCOPEr, 0, 3));
    uint64 mask = kAllOnes;
    EXPECT_EQ(reg_mask_subset(0, &info, &mask), 1);
    EXPECT_EQ(mask, 0xffu);
    EXPECT_EQ(reg_mask_subset(0, &info, &mask), 0);
    reg_data_t walk{};
    walk.start_from = 1;
    EXPECT_EQ(rval_test_skip_reg(0, &info, &walk), 1);
    EXPECT_EQ(rval_test_skip_reg(0, &info, &walk), 0);
    EXPECT_EQ(walk.count, 2);
    soc_regaddrinfo_get(0, &info, soc_reg_addr(0, RBCAr, 3, 0));
    EXPECT_EQ(rval_test_skip_reg(0, &info, &walk), 1);
    EXPECT_EQ(reg_mask_subset(0, nullptr, &mask), BCM_E_PARAM);
    EXPECT_EQ(rval_test_skip_reg(0, &info, nullptr), BCM_E_PARAM);
}

TEST_F(RegistersTest, TextsReadBack) {
    std::array<char, 200> text{};
    soc_regaddrinfo_t info{};
    soc_regaddrinfo_get(0, &info, soc_reg_addr(0, EGQ_TTL_SCOPEr, 1, 3));
    soc_reg_sprint_addr(0, text.data(), &info);
    EXPECT_STREQ(text.data(), "EGQ_TTL_SCOPE.1[3]");
    soc_regaddrinfo_get(0, &info, 0x1a40);
    soc_reg_sprint_addr(0, text.data(), &info);
    EXPECT_STREQ(text.data(), "0x00001a40");
    soc_reg_sprint_data(0, text.data(), nullptr, IHB_LEARNING_CFGr, 5);
    EXPECT_STREQ(text.data(), "LEARN_ENABLE=0x1,INGRESS_LEARNING=0x0,OPPORTUNISTIC_LEARNING=0x1");
    std::string infix = ": ";
    soc_reg_sprint_data(0, text.data(), infix.data(), EGQ_TTL_SCOPEr, 5);
    EXPECT_STREQ(text.data(), "TTL_SCOPE: 0x5");
    soc_reg_sprint_data(0, text.data(), nullptr, kNoRegister, 5);
    EXPECT_STREQ(text.data(), "");
    soc_reg_sprint_addr(0, nullptr, &info);
    soc_reg_sprint_addr(0, text.data(), nullptr);
}

TEST_F(RegistersTest, TheWalkVisitsEveryElementAndMayBeEnded) {
    struct Walk {
        int visits = 0;
        int until = -1;
    } walk;
    const auto visit = [](int unit, soc_regaddrinfo_t *info, void *data) {
        Walk &of = *static_cast<Walk *>(data);
        uint32 word = 0;
        const bool fits = find_register(info->reg)->words() == 1;
        EXPECT_EQ(soc_reg32_read(unit, info->addr, &word), fits ? BCM_E_NONE : BCM_E_PARAM);
        return ++of.visits == of.until ? BCM_E_FAIL : BCM_E_NONE;
    };
    int elements = 0;
    for (const auto &layout : all_registers()) elements += layout.instances() * layout.elements;
    EXPECT_EQ(soc_reg_iterate(0, visit, &walk), BCM_E_NONE);
    EXPECT_EQ(walk.visits, elements);
    walk = {0, 3};
    EXPECT_EQ(soc_reg_iterate(0, visit, &walk), BCM_E_FAIL);
    EXPECT_EQ(walk.visits, 3);
    EXPECT_EQ(soc_reg_iterate(0, nullptr, &walk), BCM_E_PARAM);
    EXPECT_EQ(soc_reg_iterate(9, visit, &walk), BCM_E_UNIT);
}

TEST_F(RegistersTest, AListGoesBackOnce) {
    soc_regaddrlist_t list{};
    ASSERT_EQ(soc_regaddrlist_alloc(&list), BCM_E_NONE);
    EXPECT_EQ(list.count, 0);
    list.ainfo[0].reg = 1;
    soc_regaddrlist_t copy = list;
    EXPECT_EQ(soc_regaddrlist_free(&list), BCM_E_NONE);
    EXPECT_EQ(list.ainfo, nullptr);
    EXPECT_EQ(soc_regaddrlist_free(&copy), BCM_E_NOT_FOUND);
    EXPECT_EQ(soc_regaddrlist_alloc(nullptr), BCM_E_PARAM);
    EXPECT_EQ(soc_regaddrlist_free(nullptr), BCM_E_PARAM);
}

// What a snoop was told.
struct Told {
    int calls = 0;
    uint32 flags = 0;
    uint64 data = 0;
    soc_regaddrinfo_t info{};
};

void snoop(int unit, soc_reg_t reg, soc_regaddrinfo_t *info, uint32 flags, uint32 high, uint32 low,
           void *user) {
    *static_cast<Told *>(user) = {static_cast<Told *>(user)->calls + 1, flags,
                                  uint64{high} << 32 | low, *info};
    soc_reg_snoop_unregister(unit, reg + 100'000);  // the lock is free
}

TEST_F(RegistersTest, ASnoopIsToldOfTheAccessesThatItAskedFor) {
    Told told;
    soc_reg_snoop_register(0, RBCAr, 2, snoop, &told);
    ASSERT_EQ(soc_reg64_set(0, RBCAr, 5, 0, 0x123456789a), BCM_E_NONE);
    EXPECT_EQ(told.calls, 1);
    EXPECT_EQ(told.flags, 2u);
    EXPECT_EQ(told.data, 0x123456789aull);
    EXPECT_EQ(told.info.port, 5);
    uint64 data = 0;
    ASSERT_EQ(soc_reg64_get(0, RBCAr, 5, 0, &data), BCM_E_NONE);
    EXPECT_EQ(told.calls, 1);
    soc_reg_snoop_register(0, RBCAr, 0, snoop, &told);  // takes its own place
    ASSERT_EQ(soc_reg64_read(0, told.info.addr, &data), BCM_E_NONE);
    EXPECT_EQ(told.calls, 2);
    EXPECT_EQ(told.flags, 1u);
    EXPECT_EQ(soc_reg64_set(0, RBCAr, 99, 0, 1), BCM_E_PORT);  // no access, nothing told
    soc_reg_snoop_unregister(0, RBCAr);
    ASSERT_EQ(soc_reg64_set(0, RBCAr, 5, 0, 1), BCM_E_NONE);
    EXPECT_EQ(told.calls, 2);
}

TEST_F(RegistersTest, BothCoresAndBothRoadsAreSnooped) {
    Told told;
    soc_reg_snoop_register(0, IHP_GENERAL_TRAPr, 0, snoop, &told);
    ASSERT_EQ(soc_reg32_set(0, IHP_GENERAL_TRAPr, REG_PORT_ANY, 0, 8), BCM_E_NONE);
    EXPECT_EQ(told.calls, 2) << "a write that reaches both cores";
    for (const int core : {0, 1}) {
        const uint32 address = soc_reg_addr(0, IHP_GENERAL_TRAPr, core, 0);
        ASSERT_EQ(soc_reg32_write(0, address, 9), BCM_E_NONE);
        EXPECT_EQ(told.info.port, core);
        EXPECT_EQ(told.info.addr, address);
        EXPECT_EQ(get32(IHP_GENERAL_TRAPr, core), 9u);
    }
    EXPECT_EQ(told.calls, 6);
}

TEST_F(RegistersTest, CountersAreThoseOfThePort) {
    const auto read = [](int reg) {
        return value_of<uint64>([&](uint64 *value) { return soc_reg64_get(0, reg, 5, 0, value); });
    };
    const auto stat = [](int kind) {
        return value_of<uint64>(
            [&](uint64 *value) { return bcm_stat_get(0, 5, bcm_stat_val_t{kind}, value); });
    };
    standin_port_traffic(0, 5, 0, 3, 300);
    EXPECT_EQ(read(RBCAr), 3u);
    EXPECT_EQ(read(RBYTr), 300u);
    soc_fe1600_stat_write(0, 5, 1, 0x123456789a);
    EXPECT_EQ(stat(snmpIfInOctets), 0x123456789au);
    EXPECT_EQ(korvel_read_low(0, soc_reg_addr(0, RBYTr, 5, 0)), 0x3456789au);
    EXPECT_EQ(bcm_stat_clear(0, 5), BCM_E_NONE);
    EXPECT_EQ(read(RBYTr) + read(RBCAr), 0u);
}

TEST_F(RegistersTest, AccessFunctionsTakeOverTheirWidth) {
    soc_reg_access_t access{};
    access.reg32_get = [](int unit, soc_reg_t reg, int port, int index, uint32 *data) {
        // What it accesses in turn is carried out by the library.
        const int status = soc_reg32_get(unit, reg, port, index, data);
        *data += 1000;
        return status;
    };
    access.reg64_set = [](int, soc_reg_t, int, int, uint64 data) {
        return data == (uint64{3} << 32 | 1) ? int{BCM_E_BUSY} : int{BCM_E_NONE};
    };
    access.mem_read = [](int, soc_mem_t, uint32, int, int, void *entry) {
        *static_cast<uint32 *>(entry) = 77;
        return int{BCM_E_NONE};
    };
    ASSERT_EQ(soc_reg_access_func_register(0, &access), BCM_E_NONE);
    ASSERT_EQ(soc_reg32_set(0, ECI_TEST_REGISTERr, 0, 0, 5), BCM_E_NONE);
    EXPECT_EQ(get32(ECI_TEST_REGISTERr), 1005u);
    EXPECT_EQ(soc_reg64_set(0, RBCAr, 5, 0, uint64{3} << 32 | 1), BCM_E_BUSY);
    uint32 entry = 0;
    EXPECT_EQ(soc_mem_read(0, CGM_HAPMm, -1, 0, &entry), BCM_E_NONE);
    EXPECT_EQ(entry, 77u);
    const uint32 table = TesselApi::tableBaseAddr(0, CGM_HAPMm, 0);
    entry = 0;
    EXPECT_EQ(soc_reg32_read(0, table, &entry), BCM_E_NONE);
    EXPECT_EQ(entry, 77u) << "by address, too";
    access = {};  // the library has its own copy
    EXPECT_EQ(get32(ECI_TEST_REGISTERr), 1005u);
    ASSERT_EQ(soc_reg_access_func_register(0, nullptr), BCM_E_NONE);
    EXPECT_EQ(get32(ECI_TEST_REGISTERr), 5u);
}

TEST_F(RegistersTest, WatchesPrintALineForEachAccess) {
    soc_reg_watch_set(0, 1);
    soc_mem_watch_set(0, 1);
    uint32 entry = 7;
    testing::internal::CaptureStdout();
    soc_reg32_set(0, EGQ_TTL_SCOPEr, 1, 2, 0x12);
    soc_mem_write(0, CGM_HAPMm, -1, 3, &entry);
    soc_reg_watch_set(0, 0);
    soc_mem_watch_set(0, 0);
    soc_reg32_set(0, EGQ_TTL_SCOPEr, 1, 2, 0x13);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "u0 reg write EGQ_TTL_SCOPE.1[2] = 0x12\nu0 mem write CGM_HAPM 3 = 0x7\n");
}

TEST_F(RegistersTest, AFaultStopsTheCallItIsSetFor) {
    config_set("fault.soc_reg32_get", "status:-9,count:1");
    uint32 word = 7;
    EXPECT_EQ(soc_reg32_get(0, EGQ_TTL_SCOPEr, 0, 0, &word), BCM_E_TIMEOUT);
    EXPECT_EQ(word, 7u);
    EXPECT_EQ(soc_reg32_get(0, EGQ_TTL_SCOPEr, 0, 0, &word), BCM_E_NONE);
}

TEST_F(RegistersTest, CountersOfThePortTakeWhatTheFabricWrites) {
    soc_fe1600_stat_write(0, 3, 1, 1000);
    soc_fe1600_stat_write(0, 3, 7, 1000);
    EXPECT_EQ(value_of<uint64>([](uint64 *out) { return soc_reg64_get(0, RBYTr, 3, 0, out); }),
              1000u);
}

TEST_F(RegistersTest, BusFormHasTheBlockBelow) {
    EXPECT_EQ(sbusFormatAddress(0, 3u << 25 | 0x10), 0x10u << 7 | 3);
    EXPECT_EQ(sbusFormatAddress(8, 0x1234), 0x1234u);
}

}  // namespace
}  // namespace standin
