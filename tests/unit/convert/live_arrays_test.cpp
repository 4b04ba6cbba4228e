// The table of live arrays.

#include "classes/live_arrays.h"

#include <gtest/gtest.h>

#include <vector>

namespace ombra {
namespace {

TEST(LiveArrays, AreKnownFromNoteToForget) {
    int array[4] = {};
    EXPECT_FALSE(is_live_array(array));
    EXPECT_EQ(array_length(array), nullptr);
    EXPECT_FALSE(forget_array(array));
    EXPECT_TRUE(note_array(array, 4));
    EXPECT_TRUE(is_live_array(array));
    ASSERT_NE(array_length(array), nullptr);
    EXPECT_EQ(*array_length(array), 4U);
    EXPECT_TRUE(forget_array(array));
    EXPECT_FALSE(is_live_array(array));
    EXPECT_FALSE(forget_array(array));
}

// Only the first element's address is the array; null is none.
TEST(LiveArrays, ByTheirFirstAddressAlone) {
    int array[4] = {};
    note_array(array, 4);
    EXPECT_FALSE(is_live_array(array + 1));
    EXPECT_EQ(array_length(array + 1), nullptr);
    EXPECT_FALSE(is_live_array(nullptr));
    forget_array(array);
}

// The allocator may hand an address out again: the last note counts.
TEST(LiveArrays, NotedAgain) {
    int array[4] = {};
    note_array(array, 0);
    EXPECT_EQ(*array_length(array), 0U);
    note_array(array, 3);
    EXPECT_EQ(*array_length(array), 3U);
    EXPECT_TRUE(forget_array(array));
    EXPECT_FALSE(is_live_array(array));
}

TEST(LiveArrays, Many) {
    std::vector<char> addresses(1000);
    for (std::size_t i = 0; i < addresses.size(); ++i) ASSERT_TRUE(note_array(&addresses[i], i));
    for (std::size_t i = 0; i < addresses.size(); i += 2) ASSERT_TRUE(forget_array(&addresses[i]));
    for (std::size_t i = 0; i < addresses.size(); ++i) {
        const std::size_t *length = array_length(&addresses[i]);
        ASSERT_EQ(length != nullptr, i % 2 == 1);
        ASSERT_TRUE(length == nullptr || *length == i);
        forget_array(&addresses[i]);
    }
}

}  // namespace
}  // namespace ombra
