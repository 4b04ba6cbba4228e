// Memories: entries, copies and arrays.
#include <array>
#include <string>

#include "helper/shadow.h"
#include "regs_fixture.h"
#include "sdk/variables.h"
#include "standin/regs/layout.h"

namespace standin {
namespace {

constexpr int kEvery = -1;
using Entry = std::array<unsigned int, 20>;

class MemoriesTest : public RegsTest {};

Entry read(int mem, int copy, int index, unsigned array = 0) {
    Entry entry{};
    EXPECT_EQ(soc_mem_array_read(0, mem, array, copy, index, entry.data()), BCM_E_NONE);
    return entry;
}

// Cells of the control record, as the copy number helpers read them.
int cell(std::size_t offset) {
    return *reinterpret_cast<const int *>(reinterpret_cast<const char *>(soc_control[0]) + offset);
}
int copy_any(int mem) { return cell(memory_cell(mem)); }

TEST_F(MemoriesTest, EachKeepsTheBitsOfItsFirstAndLastEntry) {
    for (const MemoryLayout &layout : all_memories()) {
        const auto array = static_cast<unsigned>(layout.arrays - 1);
        const int last = layout.entries - 1;
        Entry ones;
        ones.fill(~0u);
        ASSERT_EQ(soc_mem_array_write(0, layout.id, array, kEvery, last, ones.data()), BCM_E_NONE)
            << layout.name;
        const Entry got = read(layout.id, kEvery, last, array);
        for (unsigned word = 0; word < layout.words(); ++word)
            EXPECT_EQ(got[word], layout.mask(word)) << layout.name;
        EXPECT_EQ(read(layout.id, kEvery, 0, array)[0], 0u) << layout.name;
        Entry beyond{};
        for (const int index : {-1, layout.entries}) {
            EXPECT_EQ(soc_mem_read(0, layout.id, kEvery, index, beyond.data()), BCM_E_PARAM);
            EXPECT_EQ(soc_mem_write(0, layout.id, kEvery, index, beyond.data()), BCM_E_PARAM);
        }
        EXPECT_EQ(soc_mem_array_read(0, layout.id, array + 1, kEvery, 0, beyond.data()),
                  BCM_E_PARAM);
    }
}

TEST_F(MemoriesTest, WhatDoesNotExistHasAStatus) {
    Entry entry{};
    EXPECT_EQ(soc_mem_read(0, 371, kEvery, 0, entry.data()), BCM_E_NOT_FOUND);
    EXPECT_EQ(soc_mem_write(0, -1, kEvery, 0, entry.data()), BCM_E_NOT_FOUND);
    EXPECT_EQ(soc_mem_read(4, CGM_HAPMm, kEvery, 0, entry.data()), BCM_E_UNIT);
    EXPECT_EQ(soc_mem_read(0, CGM_HAPMm, kEvery, 0, nullptr), BCM_E_PARAM);
    EXPECT_EQ(soc_mem_read(0, CGM_HAPMm, 99, 0, entry.data()), BCM_E_PARAM);
}

TEST_F(MemoriesTest, ACopyIsThatOfACoreOrOfAll) {
    EXPECT_EQ(copy_any(kMemories - 1), 7);
    constexpr std::pair<int, CopyCells> cases[] = {{EGQ_PCTm, kEgressQueueing},
                                                   {IHB_PINFO_FLPm, kIngressHeader1},
                                                   {IHP_PP_PORT_INFOm, kIngressHeader2},
                                                   {IQM_CNREDm, kIngressQueueManager}};
    for (const auto &[mem, cells] : cases) {
        const int core0 = cell(cells.of_core(0));
        const int core1 = cell(cells.of_core(1));
        unsigned int entry[3] = {1};
        ASSERT_EQ(soc_mem_write(0, mem, cell(cells.all_cores), 0, entry), BCM_E_NONE);
        EXPECT_EQ(read(mem, core1, 0)[0], 1u);
        entry[0] = 2;
        ASSERT_EQ(soc_mem_write(0, mem, core1, 0, entry), BCM_E_NONE);
        EXPECT_EQ(read(mem, core1, 0)[0], 2u);
        EXPECT_EQ(read(mem, core0, 0)[0], 1u);
        EXPECT_EQ(read(mem, copy_any(mem), 0)[0], 1u);
        entry[0] = 3;
        ASSERT_EQ(soc_mem_write(0, mem, copy_any(mem), 0, entry), BCM_E_NONE);
        EXPECT_EQ(read(mem, core1, 0)[0], 3u);
        // The copies of one kind of block mean nothing to a table of another.
        EXPECT_EQ(soc_mem_read(0, CGM_HAPMm, core0, 0, entry), BCM_E_PARAM);
    }
}

TEST_F(MemoriesTest, ArraysAreTablesOfTheirOwn) {
    unsigned int entry[3] = {7, 8, 9};
    ASSERT_EQ(soc_mem_array_write(0, IHB_TCAM_ACTIONm, 3, kEvery, 5, entry), BCM_E_NONE);
    EXPECT_EQ(read(IHB_TCAM_ACTIONm, kEvery, 5, 3)[2], 9u);
    EXPECT_EQ(read(IHB_TCAM_ACTIONm, kEvery, 5, 2)[2], 0u);
    entry[0] = 0;
    ASSERT_EQ(soc_mem_read(0, IHB_TCAM_ACTIONm, kEvery, 5, entry), BCM_E_NONE);
    EXPECT_EQ(entry[0], 0u);
}

TEST_F(MemoriesTest, FieldsOfAnEntry) {
    unsigned int entry[3] = {0x00020001, 0x00040003, 0x00060005};
    EXPECT_EQ(soc_mem_field32_get(0, EGQ_PDCT_TABLEm, entry, PORT_UC_DB_FC_THf), 2u);
    EXPECT_EQ(soc_mem_field32_get(0, EGQ_PDCT_TABLEm, entry, PORT_MC_PD_SHEARD_THf), 6u);
    EXPECT_EQ(soc_mem_field32_get(0, EGQ_PDCT_TABLEm, entry, QTYPEf), 0u);
    EXPECT_EQ(soc_mem_field32_get(0, EGQ_PDCT_TABLEm, nullptr, PORT_UC_DB_FC_THf), 0u);
    EXPECT_EQ(soc_mem_field32_get(0, 371, entry, PORT_UC_DB_FC_THf), 0u);
}

TEST_F(MemoriesTest, AResetEmptiesTablesAndRegisters) {
    unsigned int entry = 7;
    ASSERT_EQ(soc_mem_write(0, CGM_HAPMm, kEvery, 0, &entry), BCM_E_NONE);
    ASSERT_EQ(soc_reg32_set(0, PORT_CNTMAXSIZEr, 1, 0, 9000), BCM_E_NONE);
    ASSERT_EQ(soc_deinit(0), BCM_E_NONE);
    EXPECT_EQ(soc_mem_read(0, CGM_HAPMm, kEvery, 0, &entry), BCM_E_INIT);
    ASSERT_EQ(soc_reset_init(0), BCM_E_NONE);  // registers answer before the API does
    EXPECT_EQ(read(CGM_HAPMm, kEvery, 0)[0], 0u);
    EXPECT_EQ(get32(PORT_CNTMAXSIZEr, 1), 1518u);
    ASSERT_EQ(soc_misc_init(0), BCM_E_NONE);
}

}  // namespace
}  // namespace standin
