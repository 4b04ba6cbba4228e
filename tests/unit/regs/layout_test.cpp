// The tables of registers and memories, and the places that follow from them.
#include "standin/regs/layout.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "sdk/constants.h"
#include "standin/text/name_text.h"

namespace standin {
namespace {

// Every identifier of the SDK has its row, and no row has a wrong number or name.
template <class Layouts>
void expect_complete(const Layouts &layouts, Identifier kind) {
    const auto &names = identifiers(kind);
    ASSERT_EQ(layouts.size(), names.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
        EXPECT_EQ(layouts[i].id, names[i].id);
        EXPECT_EQ(layouts[i].name, names[i].name);
    }
}

void collect_fields(const Layout &layout, std::set<int> &used) {
    std::set<int> own;
    unsigned bit = 0;
    for (const FieldPlace &field : layout.fields) {
        EXPECT_TRUE(own.insert(field.id).second) << layout.name << ' ' << field.name;
        EXPECT_EQ(field.first, bit) << layout.name;
        EXPECT_GT(field.bits, 0u) << layout.name;
        bit += field.bits;
    }
    EXPECT_EQ(layout.bits, bit);
    EXPECT_GT(bit, 0u) << layout.name;
    EXPECT_LE(bit, 640u) << layout.name;
    used.merge(own);
}

TEST(Layout, EveryIdentifierHasItsRowAndEveryFieldAPlace) {
    expect_complete(all_registers(), Identifier::kRegister);
    expect_complete(all_memories(), Identifier::kMemory);
    std::set<int> used;
    for (const auto &layout : all_registers()) collect_fields(layout, used);
    for (const auto &layout : all_memories()) collect_fields(layout, used);
    for (const auto &field : identifiers(Identifier::kField))
        EXPECT_TRUE(used.contains(field.id)) << field.name;
    EXPECT_EQ(used.size(), identifiers(Identifier::kField).size());
}

// Elements by address; an address that is given twice is a mistake.
template <class Element>
void claim(std::map<std::uint32_t, std::string> &taken, std::uint32_t address, unsigned words,
           const Element &element) {
    for (unsigned word = 0; word < words; ++word) {
        const auto [at, fresh] = taken.emplace(address + 4 * word, element);
        EXPECT_TRUE(fresh) << element << " on " << at->second << " at " << address;
    }
}

TEST(Layout, NoTwoRegistersShareAWordAndEachIsFoundAtItsOwn) {
    std::map<std::uint32_t, std::string> taken;
    for (const RegisterLayout &layout : all_registers()) {
        for (int instance = 0; instance < layout.instances(); ++instance) {
            for (int index = 0; index < layout.elements; ++index) {
                const std::uint32_t address = element_address(layout, instance, index);
                claim(taken, address, layout.words(), layout.name);
                const std::uint32_t last = address + 4 * (layout.words() - 1);
                const auto place = find_register_at(last);
                ASSERT_TRUE(place) << layout.name;
                EXPECT_EQ(place->layout, &layout);
                EXPECT_EQ(place->instance, instance);
                EXPECT_EQ(place->index, index);
                EXPECT_EQ(place->word, layout.words() - 1);
                EXPECT_FALSE(find_register_at(address + 1));
                EXPECT_FALSE(find_memory_at(address));
            }
        }
    }
}

TEST(Layout, NoTwoTablesShareAWordAndEachIsFoundAtItsOwn) {
    std::map<std::uint32_t, const MemoryLayout *> last_words;  // by last word, with its table
    for (const MemoryLayout &layout : all_memories()) {
        for (int core = 0; core < layout.block->count; ++core) {
            for (int array = 0; array < layout.arrays; ++array) {
                const int entry = layout.entries - 1;
                const std::uint32_t base = entry_address(layout, core, array, 0);
                const std::uint32_t last = base + layout.array_bytes() - 4;
                // The next table, by its last word, has to begin behind this one.
                const auto next = last_words.lower_bound(base);
                EXPECT_TRUE(next == last_words.end() ||
                            next->first - next->second->array_bytes() + 4 > last)
                    << layout.name << " and " << next->second->name;
                last_words[last] = &layout;
                const auto place = find_memory_at(last);
                ASSERT_TRUE(place) << layout.name;
                EXPECT_EQ(place->layout, &layout);
                EXPECT_EQ(place->core, core);
                EXPECT_EQ(place->array, array);
                EXPECT_EQ(place->index, entry);
                EXPECT_EQ(place->word, layout.words() - 1);
                EXPECT_FALSE(find_register_at(base));
                // A base has to pass as a signed number.
                EXPECT_LT(base, 0x80000000u);
            }
        }
    }
}

TEST(Layout, ATableWhoseNameIsAnAddressLiesThere) {
    EXPECT_EQ(find_memory(IHB_MEM_F30000m)->offset, 0xf30000u);
    EXPECT_EQ(find_memory(OAMP_MEM_190000m)->offset, 0x190000u);
    EXPECT_EQ(find_memory(IHB_MEM_1530000m)->offset, 0x1530000u);
}

}  // namespace
}  // namespace standin
