// Searches in type tables, casts and client data.
#include "runtime/type_table.h"

#include <array>
#include <string>
#include <vector>

#include "runtime/module_list.h"
#include "tests/unit/runtime/tiny_module.h"

namespace {

using TypeTableTest = tiny::Test;

// A type with sources a, b and c, in this order.
struct ThreeSources {
    swig_type_info a{"_p_a", nullptr, nullptr, nullptr, nullptr, 0};
    swig_type_info b{"_p_b", nullptr, nullptr, nullptr, nullptr, 0};
    swig_type_info c{"_p_c", nullptr, nullptr, nullptr, nullptr, 0};
    std::array<swig_cast_link, 3> links{{{&a, nullptr, &links[1], nullptr},
                                         {&b, nullptr, &links[2], &links[0]},
                                         {&c, nullptr, nullptr, &links[1]}}};
    swig_type_info type{"_p_target", nullptr, nullptr, links.data(), nullptr, 0};

    // The names from the head on. Checks that the links point back as they point forth.
    std::string order() const {
        std::string names;
        const swig_cast_link *before = nullptr;
        for (const swig_cast_link *link = type.casts; link != nullptr; link = link->next) {
            EXPECT_EQ(link->prev, before);
            names += link->type->name + 3;
            before = link;
        }
        return names;
    }
};

TEST_F(TypeTableTest, CheckMovesEachHitToTheFront) {
    const struct {
        const char *name;
        bool found;
        const char *order;
    } steps[] = {
        {"_p_a", true, "abc"}, {"_p_b", true, "bac"},  {"_p_b", true, "bac"},
        {"_p_c", true, "cba"}, {"_p_B", false, "cba"}, {"_p_target", false, "cba"},
        {"_p_a", true, "acb"},
    };
    ThreeSources list;
    for (const auto &step : steps) {
        const swig_cast_link *link = SWIG_TypeCheck(step.name, &list.type);
        EXPECT_EQ(link != nullptr, step.found) << step.name;
        EXPECT_EQ(link, step.found ? list.type.casts : nullptr) << step.name;
        EXPECT_EQ(list.order(), step.order) << step.name;
    }
}

// Tables of every small size, each name searched in each, and names between all neighbours.
TEST_F(TypeTableTest, BinarySearchFindsAllAndNothingElse) {
    std::vector<std::string> names;
    for (char letter = 'b'; letter <= 'j'; ++letter) names.push_back(std::string("_p_") + letter);
    std::vector<swig_type_info> types;
    types.reserve(names.size());
    for (const std::string &name : names)
        types.push_back({name.c_str(), nullptr, nullptr, nullptr, nullptr, 0});
    std::vector<swig_type_info *> slots;
    slots.reserve(types.size());
    for (swig_type_info &type : types) slots.push_back(&type);
    for (std::size_t size = 0; size <= types.size(); ++size) {
        swig_module_table table{slots.data(), size, nullptr, nullptr, nullptr, nullptr};
        table.next = &table;
        for (std::size_t index = 0; index < types.size(); ++index) {
            swig_type_info *expected = index < size ? &types[index] : nullptr;
            EXPECT_EQ(SWIG_MangledTypeQueryModule(&table, &table, names[index].c_str()), expected);
            const std::string between = names[index] + "x";
            EXPECT_EQ(SWIG_MangledTypeQueryModule(&table, &table, between.c_str()), nullptr);
        }
        EXPECT_EQ(SWIG_MangledTypeQueryModule(&table, &table, "_p_B"), nullptr);
    }
}

TEST_F(TypeTableTest, SearchStopsBeforeItsEnd) {
    swig_type_info one{"_p_one", nullptr, nullptr, nullptr, nullptr, 0};
    swig_type_info two{"_p_two", nullptr, nullptr, nullptr, nullptr, 0};
    swig_type_info *first_types[] = {&one};
    swig_type_info *second_types[] = {&two};
    swig_module_table second{second_types, 1, nullptr, nullptr, nullptr, nullptr};
    swig_module_table first{first_types, 1, &second, nullptr, nullptr, nullptr};
    second.next = &first;
    EXPECT_EQ(SWIG_MangledTypeQueryModule(&first, &second, "_p_two"), nullptr);
    EXPECT_EQ(SWIG_MangledTypeQueryModule(&first, &first, "_p_two"), &two);
    EXPECT_EQ(SWIG_MangledTypeQueryModule(&second, &first, "_p_one"), nullptr);
}

TEST_F(TypeTableTest, QueryTakesMangledNamesAndSpellings) {
    const struct {
        const char *key;
        swig_type_info *expected;
    } cases[] = {
        {"_p_char", tiny::type(tiny::character)},
        {"_p_char", tiny::type(tiny::character)},
        {"shape_t *", tiny::type(tiny::shape)},
        {"Shape*", tiny::type(tiny::shape)},
        {" tiny_t * ", tiny::type(tiny::integer)},
        {"int", nullptr},
        {"int *|", nullptr},
        {"", nullptr},
    };
    for (const auto &entry : cases)
        EXPECT_EQ(SWIG_Python_TypeQuery(entry.key), entry.expected) << entry.key;
    EXPECT_EQ(SWIG_pchar_descriptor(), tiny::type(tiny::character));
    EXPECT_EQ(SWIG_pchar_descriptor(), tiny::type(tiny::character));
}

}  // namespace
