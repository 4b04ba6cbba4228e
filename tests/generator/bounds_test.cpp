// Array bounds as numbers.

#include "generator/check/bounds.h"

#include <gtest/gtest.h>

namespace generator {
namespace {

struct Case {
    const char *text;
    std::optional<std::int64_t> value;
};

const Names kNames = {
    {"FOUR", "4"}, {"SUM", "(FOUR + LEAST)"}, {"LEAST", "-1"}, {"RING", "RING"},
    {"TO", "FRO"}, {"FRO", "TO + 1"},         {"NOTHING", ""}, {"REMARKED", "8 /* words */"}};

class Bounds : public testing::TestWithParam<Case> {};

TEST_P(Bounds, Evaluates) {
    const Case &wanted = GetParam();
    EXPECT_EQ(evaluate(wanted.text, kNames), wanted.value) << "'" << wanted.text << "'";
}

constexpr std::int64_t kMost = INT64_MAX;

INSTANTIATE_TEST_SUITE_P(
    Values, Bounds,
    testing::Values(
        // Numbers and their order of evaluation.
        Case{"4", 4}, Case{"0x1F", 31}, Case{"2 + 3 * 4", 14}, Case{"(2 + 3) * 4", 20},
        Case{"10 - 4 - 3", 3}, Case{"24 / 4 / 2", 3}, Case{"7 / 2", 3}, Case{"- 3 + 5", 2},
        Case{"--3", 3}, Case{"2 * -3", -6}, Case{"((((4))))", 4}, Case{" 4\t", 4},
        Case{"4 /* ports */", 4}, Case{"(4095 - 0 + 1)", 4096},
        // Names, also behind names.
        Case{"FOUR", 4}, Case{"SUM", 3}, Case{"SUM * SUM", 9}, Case{"REMARKED", 8},
        // Words of a bit array, rounded up.
        Case{"_SHR_BITDCLSIZE(0)", 0}, Case{"_SHR_BITDCLSIZE(1)", 1},
        Case{"_SHR_BITDCLSIZE(32)", 1}, Case{"_SHR_BITDCLSIZE(33)", 2},
        Case{"_SHR_BITDCLSIZE((684 + 277))", 31}, Case{"_SHR_BITDCLSIZE(FOUR) + 1", 2},
        // The ends of the range.
        Case{"9223372036854775807", kMost}, Case{"-9223372036854775807 - 1", INT64_MIN}));

INSTANTIATE_TEST_SUITE_P(
    Nothing, Bounds,
    testing::Values(
        // No expression at all, or not to its end.
        Case{"", std::nullopt}, Case{"(", std::nullopt}, Case{")", std::nullopt},
        Case{"((4)", std::nullopt}, Case{"4)", std::nullopt}, Case{"4 4", std::nullopt},
        Case{"4 +", std::nullopt}, Case{"* 4", std::nullopt}, Case{"-", std::nullopt},
        Case{"4 % 3", std::nullopt}, Case{"4 << 1", std::nullopt}, Case{"\"4\"", std::nullopt},
        Case{"_SHR_BITDCLSIZE", std::nullopt}, Case{"_SHR_BITDCLSIZE()", std::nullopt},
        // Numbers that are none.
        Case{"4u", std::nullopt}, Case{"4x", std::nullopt}, Case{"0x", std::nullopt},
        Case{"0xg", std::nullopt}, Case{"1.5", std::nullopt},
        // Names that lead nowhere.
        Case{"FIVE", std::nullopt}, Case{"FOUR + FIVE", std::nullopt}, Case{"RING", std::nullopt},
        Case{"TO", std::nullopt}, Case{"NOTHING", std::nullopt},
        // What no 64 bits hold.
        Case{"9223372036854775808", std::nullopt}, Case{"9223372036854775807 + 1", std::nullopt},
        Case{"-9223372036854775807 - 2", std::nullopt},
        Case{"4294967296 * 4294967296", std::nullopt},
        Case{"(-9223372036854775807 - 1) / -1", std::nullopt},
        Case{"-(-9223372036854775807 - 1)", std::nullopt}, Case{"4 / 0", std::nullopt}));

}  // namespace
}  // namespace generator
